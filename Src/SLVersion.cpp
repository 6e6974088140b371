#include "SLVersion.h"

#include <cstring>

namespace {

void SkipBlanks(const char*& text)
{
    while (*text == ' ' || *text == '\t') {
        ++text;
    }
}

void SkipV(const char*& text)
{
    if (*text == 'V' || *text == 'v') {
        ++text;
    }
}

/// Takes up to `most` digits as BCD; false if there is none.
bool TakeDigits(const char*& text, int most, unsigned& bcd)
{
    int taken = 0;
    for (bcd = 0; taken < most && *text >= '0' && *text <= '9'; ++taken) {
        bcd = bcd * 16 + static_cast<unsigned>(*text++ - '0');
    }
    return taken > 0;
}

/// Takes what follows the "V" to the end of the text.
bool TakeNumber(const char* text, int mostDigits, unsigned& major, unsigned& minor)
{
    if (!TakeDigits(text, mostDigits, major) || *text++ != '.' || !TakeDigits(text, mostDigits, minor)) {
        return false;
    }
    SkipBlanks(text);
    return *text == 0;
}

bool IsBCD(unsigned number)
{
    for (; number > 0; number >>= 4) {
        if ((number & 0xF) > 9) {
            return false;
        }
    }
    return true;
}

char Digit(unsigned number, int place)
{
    return static_cast<char>('0' + (number >> 4 * place & 0xF));
}

}

SVersion::SVersion(const char* text)
{
    if (!text) {
        return;
    }
    SkipBlanks(text);
    SkipV(text);
    SkipBlanks(text);
    unsigned major = 0;
    unsigned minor = 0;
    if (TakeNumber(text, 1, major, minor)) {
        number = static_cast<RR::UInt08>(major << 4 | minor);
    }
}

SVersion::SVersion(RR::SInt32 major, RR::SInt32 minor)
{
    if (major >= 0 && major <= 9 && minor >= 0 && minor <= 9) {
        number = static_cast<RR::UInt08>(major << 4 | minor);
    }
}

bool SVersion::IsValid() const
{
    return IsBCD(number);
}

const char* SVersion::ToStr() const
{
    std::strcpy(text, "-.-");
    if (IsValid()) {
        text[0] = Digit(number, 1);
        text[1] = '.';
        text[2] = Digit(number, 0);
    }
    return text;
}

LVersion::LVersion(const char* text)
{
    if (!text) {
        return;
    }
    SkipBlanks(text);
    SkipV(text);
    unsigned major = 0;
    unsigned minor = 0;
    if (TakeNumber(text, 2, major, minor)) {
        number = static_cast<RR::UInt16>(major << 8 | minor);
    }
}

bool LVersion::IsValid() const
{
    return IsBCD(number);
}

const char* LVersion::ToStr() const
{
    if (!IsValid()) {
        return std::strcpy(text, "--.--");
    }
    char* out = text;
    if (number >= 0x1000) {
        *out++ = Digit(number, 3);
    }
    *out++ = Digit(number, 2);
    *out++ = '.';
    *out++ = Digit(number, 1);
    *out++ = Digit(number, 0);
    *out = 0;
    return text;
}

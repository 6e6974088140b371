#include "RRx/RRString.h"

#include "RRx/RRList.h"

#include <cstring>
#include <new>
#include <utility>

namespace RR {

namespace {

bool IsIn(char c, const char* charList)
{
    return c != '\0' && std::strchr(charList, c) != nullptr;
}

bool IsAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

/// Hands out the characters of a text as they sort.
class CollationReader {
public:
    explicit CollationReader(const char* text) : p(text) { }

    unsigned char Next()
    {
        if (secondOfSharpS) {
            secondOfSharpS = false;
            return 's';
        }
        const unsigned char c = static_cast<unsigned char>(*p);
        p += c != 0;
        switch (c) {
        case 0xC4: return 'A';
        case 0xD6: return 'O';
        case 0xDC: return 'U';
        case 0xE4: return 'a';
        case 0xF6: return 'o';
        case 0xFC: return 'u';
        case 0xDF: secondOfSharpS = true; return 's';
        default: return c;
        }
    }

private:
    const char* p;
    bool secondOfSharpS = false;
};

}

int Compare(const char* ap, const char* bp)
{
    if (ap == nullptr || bp == nullptr) {
        return (ap == nullptr) - (bp == nullptr);
    }
    // What is byte for byte the same sorts the same; keys often share long beginnings.
    while (*ap == *bp && *ap != '\0') {
        ++ap;
        ++bp;
    }
    if (IsAscii(*ap) && IsAscii(*bp)) {
        return (*ap > *bp) - (*ap < *bp);
    }
    CollationReader readerA(ap);
    CollationReader readerB(bp);
    unsigned char a;
    unsigned char b;
    do {
        a = readerA.Next();
        b = readerB.Next();
    } while (a == b && a != 0);
    return (a > b) - (a < b);
}

String::String(const char* str, SInt32 limit)
{
    if (str != nullptr && (limit > 0 || limit == INVALID)) {
        Assign(str, static_cast<SInt32>(limit == INVALID ? std::strlen(str) : strnlen(str, static_cast<std::size_t>(limit))));
    }
}

String& String::operator=(const String& source)
{
    String copy(source);
    SwapResources(copy);
    return *this;
}

String& String::operator=(String&& source) noexcept
{
    SwapResources(source);
    return *this;
}

String& String::operator=(const char* str)
{
    String copy(str);
    SwapResources(copy);
    return *this;
}

char& String::operator[](SInt32 index) const
{
    RR_ASSERT(index >= 0 && index < length);
    return buffer[index];
}

void String::SetLen(SInt32 newLen)
{
    newLen = newLen < 1 ? 0 : newLen;
    if (newLen == length) {
        return;
    }
    Free();
    if (newLen > 0) {
        buffer = new (std::nothrow) char[static_cast<std::size_t>(newLen) + 1];
        RR_ASSERT(buffer != __null);
        buffer[0] = '\0';
        buffer[newLen] = '\0';
        length = newLen;
    }
}

void String::SetLen(SInt32 newLen, char c)
{
    SetLen(newLen);
    std::memset(buffer, c, static_cast<std::size_t>(length));
}

void String::SwapResources(String& source)
{
    std::swap(length, source.length);
    std::swap(buffer, source.buffer);
}

String String::Mid(SInt32 a, SInt32 b) const
{
    a = Max(a, 0);
    b = Min(b, length);
    return a < b ? String(buffer + a, b - a) : String();
}

String& String::operator+=(const String& b)
{
    String joined = *this + b;
    SwapResources(joined);
    return *this;
}

String operator+(const char* a, const String& b)
{
    return String(a) + b;
}

String operator+(char a, const String& b)
{
    return String(a) + b;
}

String String::Upper() const
{
    String result(*this);
    for (SInt32 i = 0; i < length; ++i) {
        result.buffer[i] = UpperOf(buffer[i]);
    }
    return result;
}

String String::Lower() const
{
    String result(*this);
    for (SInt32 i = 0; i < length; ++i) {
        result.buffer[i] = LowerOf(buffer[i]);
    }
    return result;
}

String& String::Chop(SInt32 n)
{
    if (n >= 1) {
        String rest = n < length ? Left(length - n) : String();
        SwapResources(rest);
    }
    return *this;
}

String& String::Trim()
{
    SInt32 a = 0;
    SInt32 b = length;
    while (a < b && IsIn(buffer[a], " \t")) {
        ++a;
    }
    while (a < b && IsIn(buffer[b - 1], " \t")) {
        --b;
    }
    String rest = Mid(a, b);
    SwapResources(rest);
    return *this;
}

String& String::Simplify()
{
    String work(*this);
    SInt32 used = 0;
    bool gap = false;
    for (SInt32 i = 0; i < length; ++i) {
        if (IsIn(buffer[i], " \t\v\f")) {
            gap = used > 0;
            continue;
        }
        if (gap) {
            work.buffer[used++] = ' ';
            gap = false;
        }
        work.buffer[used++] = buffer[i];
    }
    String rest = work.Left(used);
    SwapResources(rest);
    return *this;
}

String& String::Replace(char s, char d)
{
    for (SInt32 i = 0; i < length; ++i) {
        if (buffer[i] == s) {
            buffer[i] = d;
        }
    }
    return *this;
}

bool String::operator==(const String& b) const
{
    return std::strcmp(buffer, b.buffer) == 0;
}

bool String::operator==(const char* b) const
{
    return std::strcmp(buffer, b != nullptr ? b : "") == 0;
}

bool String::Contains(const char* charList) const
{
    return charList != nullptr && std::strpbrk(buffer, charList) != nullptr;
}

bool String::Find(const char* find, SInt32& pos) const
{
    const char* hit = find != nullptr && pos >= 0 && pos <= length ? std::strstr(buffer + pos, find) : nullptr;
    pos = hit != nullptr ? static_cast<SInt32>(hit - buffer) : INVALID;
    return hit != nullptr;
}

void String::Split(const char* sepStr, List<String>& list, bool skipEmpty) const
{
    // The string may itself be in the list.
    List<String> pieces;
    const char* const separators = sepStr != nullptr ? sepStr : "";
    SInt32 start = 0;
    for (SInt32 i = 0; i <= length; ++i) {
        if (i < length && !IsIn(buffer[i], separators)) {
            continue;
        }
        if (i > start || !skipEmpty) {
            pieces.Append()() = Mid(start, i);
        }
        start = i + 1;
    }
    list.SwapResources(pieces);
}

char String::UpperOf(char c)
{
    const unsigned char u = static_cast<unsigned char>(c);
    const bool lower = (u >= 'a' && u <= 'z') || (u >= 0xE0 && u <= 0xFE && u != 0xF7);
    return lower ? static_cast<char>(u - 32) : c;
}

char String::LowerOf(char c)
{
    const unsigned char u = static_cast<unsigned char>(c);
    const bool upper = (u >= 'A' && u <= 'Z') || (u >= 0xC0 && u <= 0xDE && u != 0xD7);
    return upper ? static_cast<char>(u + 32) : c;
}

bool String::IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool String::IsLetter(char c)
{
    return UpperOf(c) != c || LowerOf(c) != c || static_cast<unsigned char>(c) == 0xDF;
}

String String::Join(const char* a, SInt32 aLen, const char* b, SInt32 bLen)
{
    String joined;
    joined.SetLen(aLen + bLen);
    std::memcpy(joined.buffer, a, static_cast<std::size_t>(aLen));
    std::memcpy(joined.buffer + aLen, b, static_cast<std::size_t>(bLen));
    return joined;
}

/// For a string that owns nothing.
void String::Assign(const char* str, SInt32 len)
{
    SetLen(len);
    std::memcpy(buffer, str, static_cast<std::size_t>(length));
}

void String::Free()
{
    if (length > 0) {
        delete[] buffer;
    }
    length = 0;
    buffer = emptyText;
}

}

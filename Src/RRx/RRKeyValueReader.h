#pragma once

#include "RRx/RRTypeDefs.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace RR {

/// Walks once over the bytes of a key-value file, line by line, without a store. A NUL has to stand behind them: it belongs
/// to nothing but a comment, so that all else ends there by itself.
class KeyValueReader {
public:
    /// What a character may stand in, one bit each.
    enum CharClass : UInt08 { IN_KEY = 1, IN_VALUE = 2 };

    explicit KeyValueReader(std::string_view text) : at(text.data()), end(at + text.size()) {}

    static bool IsIn(char c, CharClass charClass) { return charClasses[static_cast<UInt08>(c)] & charClass; }

    bool IsAtEnd() const { return at == end; }

    /// Takes the rest of a line without its end; `key` is empty for a comment or a blank line, which leaves `value`
    /// alone. `false` if the line breaks the format.
    bool TakeLine(std::string_view& key, std::string_view& value)
    {
        key = TakeAll(IN_KEY);
        if (!key.empty()) {
            SkipBlanks();
            if (!Take('=')) {
                return false;
            }
            SkipBlanks();
            if (!Take('"')) {
                return false;
            }
            value = TakeAll(IN_VALUE);
            if (!Take('"')) {
                return false;
            }
        }
        SkipBlanks();
        if (Take('#')) {
            while (!IsAtEnd() && !IsLineEnd(*at)) {
                ++at;
            }
        }
        return IsAtEnd() || IsLineEnd(*at);
    }

    /// Takes all line ends that follow and returns their number; CR LF is one.
    SInt32 TakeLineEnds()
    {
        SInt32 number = 0;
        for (; IsLineEnd(*at); ++number) {
            const bool isReturn = *at++ == '\r';
            if (isReturn) {
                Take('\n');
            }
        }
        return number;
    }

private:
    static constexpr std::array<UInt08, 256> MakeCharClasses()
    {
        std::array<UInt08, 256> classes{};
        for (int c = 0; c < 256; ++c) {
            const bool inKey = c >= 0x21 && c <= 0x7E && c != '*' && c != '#' && c != '?' && c != '=';
            const bool inValue = ((c >= 0x07 && c <= 0x0D) || (c >= 0x20 && c <= 0x7E) || c >= 0xA1) && c != '"';
            classes[static_cast<std::size_t>(c)] = static_cast<UInt08>((inKey ? IN_KEY : 0) | (inValue ? IN_VALUE : 0));
        }
        return classes;
    }

    static bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

    bool Take(char c)
    {
        const bool there = *at == c;
        at += there;
        return there;
    }

    std::string_view TakeAll(CharClass charClass)
    {
        const char* const start = at;
        while (IsIn(*at, charClass)) {
            ++at;
        }
        return std::string_view(start, static_cast<std::size_t>(at - start));
    }

    void SkipBlanks()
    {
        while (*at == ' ' || *at == '\t') {
            ++at;
        }
    }

    static const std::array<UInt08, 256> charClasses;

    const char* at;
    const char* const end;
};

inline constexpr std::array<UInt08, 256> KeyValueReader::charClasses = KeyValueReader::MakeCharClasses();

}

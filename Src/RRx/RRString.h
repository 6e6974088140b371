#pragma once

#include "RRx/RRFixPnt.h"
#include "RRx/RRTypeDefs.h"

#include <compare>
#include <concepts>

namespace RR {

template <class T>
class List;

/// Collation of two texts, -1, 0 or 1: German umlauts sort as their base letters and sharp s as "ss", upper case
/// before lower case. A null pointer sorts after every text.
int Compare(const char* ap, const char* bp);

/// A byte string, Latin-1 where it isn't ASCII, without NUL bytes in it. Null pointers count as empty texts.
class String {
public:
    String() = default;
    /// Takes exactly `char`, so that 0 is the null pointer. A NUL gives the empty string.
    template <std::same_as<char> C>
    String(C c) { Assign(&c, c != '\0'); }
    /// Up to `limit` characters; `INVALID` for no limit.
    String(const char* str, SInt32 limit = INVALID);
    String(const String& source) { Assign(source.buffer, source.length); }
    String(String&& source) noexcept { SwapResources(source); }
    ~String() { Free(); }

    String& operator=(const String& source);
    String& operator=(String&& source) noexcept;
    String& operator=(const char* str);

    /// Never null.
    operator const char*() const { return buffer; }
    /// May be written through within the length.
    char* Adr() const { return buffer; }
    char& operator[](SInt32 index) const;
    /// These stop on an empty string.
    char& First() const { return (*this)[0]; }
    char& Last() const { return (*this)[length - 1]; }

    bool IsEmpty() const { return length == 0; }
    SInt32 GetLen() const { return length; }
    void SetEmpty() { SetLen(0); }
    /// Any other length than the present one loses the text and leaves the new one unset behind a NUL.
    void SetLen(SInt32 newLen);
    void SetLen(SInt32 newLen, char c);
    void SwapResources(String& source);

    /// From index `a` up to but not including index `b`.
    String Mid(SInt32 a, SInt32 b) const;
    /// The first `b` characters.
    String Left(SInt32 b) const { return Mid(0, b); }
    /// From index `a` to the end.
    String Right(SInt32 a) const { return Mid(a, length); }
    /// The last `n` characters.
    String Rest(SInt32 n) const { return n > 0 ? Right(length - n) : String(); }

    String operator+(const String& b) const { return Join(buffer, length, b.buffer, b.length); }
    String operator+(const char* b) const { return *this + String(b); }
    String operator+(char b) const { return *this + String(b); }
    String& operator+=(const String& b);
    String Upper() const;
    String Lower() const;

    /// Removes `n` characters from the end.
    String& Chop(SInt32 n);
    /// Removes spaces and tabs at both ends.
    String& Trim();
    /// Removes white space (space, tab, vertical tab, form feed) at both ends, and leaves one space of each run inside.
    String& Simplify();
    String& Replace(char s, char d);

    /// Byte for byte.
    bool operator==(const String& b) const;
    bool operator==(const char* b) const;
    /// By `Compare`, so two texts may be equivalent and yet not equal.
    std::weak_ordering operator<=>(const char* b) const { return Compare(buffer, b) <=> 0; }
    std::weak_ordering operator<=>(const String& b) const { return Compare(buffer, b.buffer) <=> 0; }

    /// Whether one of the characters of `charList` is in the string.
    bool Contains(const char* charList) const;
    /// Searches from index `pos` on and sets `pos` to the first hit, or to `INVALID` and returns false.
    bool Find(const char* find, SInt32& pos) const;
    /// Cuts at every character that is in `sepStr`; the old content of `list` is lost. Include RRList.h to use it.
    void Split(const char* sepStr, List<String>& list, bool skipEmpty) const;
    /// Wildcard match of the whole string: '*' for any characters, '?' for one; a backslash makes '*', '?' and
    /// backslash literal, and no match before any other. `m` is true to tell upper from lower case. The time grows
    /// with each '*' by a factor of up to the length.
    bool Matches(const char* pattern, bool m) const;

    /// Latin-1.
    static char UpperOf(char c);
    static char LowerOf(char c);
    static bool IsDigit(char c);
    static bool IsLetter(char c);

    static String Print(UInt32 val);
    static String Print(SInt32 val);
    static String Print(UInt64 val);
    static String Print(SInt64 val);
    /// All decimals of the type, '.' before them. An invalid value prints as digits too.
    static String Print(const FixPnt& val);
    /// Upper case, with the digits that the type can need, without prefix.
    static String PrintHex(UInt08 val);
    static String PrintHex(UInt16 val);
    static String PrintHex(UInt32 val);
    static String PrintHex(UInt64 val);

    /// Integers, with blanks (spaces, tabs) around them, decimal or, unsigned by a sign, hexadecimal behind "0x".
    /// On failure `val` is 0, `INVALID` for `SInt32`. An overflow is seen only where a further digit makes the value
    /// smaller; other numbers above 32 bits pass with their low 32 bits.
    static bool Parse(const char* str, UInt32& val);
    static bool Parse(const char* str, SInt32& val);
    static bool Parse(const char* str, UInt16& val);
    static bool Parse(const char* str, SInt16& val);
    static bool Parse(const char* str, UInt08& val);
    static bool Parse(const char* str, SInt08& val);
    /// Decimal point and exponent, or the hexadecimal form of an integer; 18 digits count. On failure `val` is 0.0.
    /// A zero needs a digit behind its point: "0.0", not "0".
    static bool Parse(const char* str, double& val);
    /// Rounds to the type's places; on failure `val` is invalid.
    static bool Parse(const char* str, FixPnt& val);

private:
    friend String operator+(const char* a, const String& b);
    friend String operator+(char a, const String& b);

    static String Join(const char* a, SInt32 aLen, const char* b, SInt32 bLen);
    void Assign(const char* str, SInt32 len);
    void Free();

    static inline char emptyText[1] = {};

    SInt32 length = 0;
    char* buffer = emptyText;
};

String operator+(const char* a, const String& b);
String operator+(char a, const String& b);

}

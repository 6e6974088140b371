#pragma once

#include "RRx/RRTypeDefs.h"

/// A version of one digit each side of the point, as "1.5". An invalid one compares greater than all valid
/// ones.
class SVersion {
public:
    SVersion() = default;
    /// Reads "1.5", with "V" in front if need be; blanks may stand around each part but the number.
    /// Invalid for any other text and for null.
    SVersion(const char* text);
    /// Invalid unless both numbers are 0 to 9.
    SVersion(RR::SInt32 major, RR::SInt32 minor);

    bool IsValid() const;
    /// "-.-" if invalid. Good until the version goes or `ToStr` is called again.
    const char* ToStr() const;
    /// The major digit in the high nibble, the minor one in the low nibble; 0xFF without a version.
    RR::UInt08 BCD() const { return number; }
    RR::UInt08& BCD() { return number; }

    bool operator==(const SVersion& other) const { return number == other.number; }
    bool operator!=(const SVersion& other) const { return number != other.number; }
    bool operator<(const SVersion& other) const { return number < other.number; }
    bool operator<=(const SVersion& other) const { return number <= other.number; }
    bool operator>(const SVersion& other) const { return number > other.number; }
    bool operator>=(const SVersion& other) const { return number >= other.number; }

private:
    RR::UInt08 number = 0xFF;
    mutable char text[4] = "";
};

/// A version of two digits each side of the point, as "1.90". An invalid one compares greater than all
/// valid ones.
class LVersion {
public:
    LVersion() = default;
    LVersion(const LVersion&) = default;
    LVersion& operator=(const LVersion&) = default;
    /// Reads one or two digits each side of the point, "V" right in front if need be; blanks may stand
    /// around the whole. A single minor digit is the low one: "1.9" is 1.09.
    LVersion(const char* text);

    bool IsValid() const;
    /// Without a leading zero; "--.--" if invalid. Good until the version goes or `ToStr` is called again.
    const char* ToStr() const;

    bool operator==(const LVersion& other) const { return number == other.number; }
    bool operator!=(const LVersion& other) const { return number != other.number; }
    bool operator<(const LVersion& other) const { return number < other.number; }
    bool operator<=(const LVersion& other) const { return number <= other.number; }
    bool operator>(const LVersion& other) const { return number > other.number; }
    bool operator>=(const LVersion& other) const { return number >= other.number; }

private:
    RR::UInt16 number = 0xFFFF; // BCD, the major part in the high byte
    mutable char text[6] = "";
};

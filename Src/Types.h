#pragma once

#include "RRx/RRFixPnt.h"
#include "RRx/RRTypeDefs.h"

/// One pressure in every unit that the user can choose, each filled where the reading arrives.
/// Nothing keeps the elements in step when one of them is changed.
class Pressure {
public:
    enum Unit : RR::SInt32 { BAR = 0, KPA = 1, PSI = 2, MPA = 3, NUM = 4 };

    /// Invalid in all units.
    constexpr Pressure() : Pressure(RR::INVALID, RR::INVALID, RR::INVALID, RR::INVALID) {}
    constexpr Pressure(RR::FixPnt3 bar, RR::FixPnt3 kPa, RR::FixPnt3 psi, RR::FixPnt3 mpa)
        : elements{bar, kPa, psi, mpa}
    {
    }

    RR::FixPnt3& operator[](Unit index);
    const RR::FixPnt3& operator[](Unit index) const;

private:
    RR::FixPnt3 elements[NUM];
};

/// One humidity in every unit that the user can choose. The dew points `CELS` and `FAHR` refer to 1 bar,
/// `CELSPR` and `FAHRPR` to the measured gas pressure; `PPMV` and `PPMW` are parts per million by volume
/// and by weight.
class Humidity {
public:
    enum Unit : RR::SInt32 { CELS = 0, FAHR = 1, PPMV = 2, PPMW = 3, CELSPR = 4, FAHRPR = 5, NUM = 6 };

    /// Invalid in all units.
    constexpr Humidity() : Humidity(RR::INVALID, RR::INVALID, RR::INVALID, RR::INVALID) {}
    /// Invalid in `CELSPR` and `FAHRPR`.
    constexpr Humidity(RR::FixPnt3 cels, RR::FixPnt3 fahr, RR::FixPnt3 ppmv, RR::FixPnt3 ppmw)
        : elements{cels, fahr, ppmv, ppmw, RR::INVALID, RR::INVALID}
    {
    }

    RR::FixPnt3& operator[](Unit index);
    const RR::FixPnt3& operator[](Unit index) const;

private:
    RR::FixPnt3 elements[NUM];
};

/// One temperature in whole degrees of both units.
class Temperature {
public:
    enum Unit : RR::SInt32 { CELS = 0, FAHR = 1, NUM = 2 };

    /// Invalid in both units.
    constexpr Temperature() = default;
    constexpr Temperature(RR::SInt32 cels, RR::SInt32 fahr) : elements{cels, fahr} {}

    RR::SInt32& operator[](Unit index);
    const RR::SInt32& operator[](Unit index) const;

private:
    RR::SInt32 elements[NUM] = {RR::INVALID, RR::INVALID};
};

/// A language code of two upper case letters, or "--" for none.
class LangCC {
public:
    constexpr LangCC() = default;
    LangCC(const char* l) { Set(l); }

    /// Takes the first two characters of `l`, in upper case. Null or anything but letters there stores
    /// "--" and gives false.
    bool Set(const char* l);
    const char* ToStr() const { return c; }

    bool operator==(const LangCC& other) const { return Order() == other.Order(); }
    bool operator!=(const LangCC& other) const { return Order() != other.Order(); }
    bool operator<(const LangCC& other) const { return Order() < other.Order(); }
    bool operator>(const LangCC& other) const { return Order() > other.Order(); }
    bool operator<=(const LangCC& other) const { return Order() <= other.Order(); }
    bool operator>=(const LangCC& other) const { return Order() >= other.Order(); }

private:
    RR::SInt32 Order() const { return static_cast<RR::UInt08>(c[0]) * 256 + static_cast<RR::UInt08>(c[1]); }

    char c[3] = {'-', '-', 0};
};

/// The test sequences of the inspection; the letters are those of the jobs that each one runs.
enum InspJobType : RR::SInt32 { IJ_BD = 0, IJ_BE = 1, IJ_H = 2, IJ_I = 3, IJ_NONE = 4 };

/// A test sequence and how far it has come.
struct InspJob {
    InspJobType type = IJ_NONE;
    RR::SInt32 passNo = 0;             ///< the pass in progress, from 0
    RR::SInt32 passMax = RR::INVALID;  ///< number of passes
    RR::SInt32 passTime = 0;           ///< seconds that the gas flows through the sensors in a pass
};

/// The form in which measurements go to a stick.
enum MeaTransFormat : RR::SInt32 { MTF_SAVE_NATIVE = 0, MTF_EXPORT_CSV = 1 };

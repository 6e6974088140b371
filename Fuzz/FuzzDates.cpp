#include "RRx/RRDateTime.h"

#include <cstdint>
#include <cstring>
#include <vector>

using namespace RR;

namespace {

/// What a text reads as must come back from its own export.
template <class T>
void CheckImport(const char* text, const char* templ)
{
    T value;
    RR_ASSERT(value.Import(text) == value.IsValid());
    char printed[32];
    std::strcpy(printed, templ);
    RR_ASSERT(value.Export(printed) == value.IsValid());
    RR_ASSERT(std::strlen(printed) == std::strlen(templ));
    T again;
    RR_ASSERT(again.Import(printed) == value.IsValid());
    RR_ASSERT(again == value);
}

/// A move and its reverse meet, unless the way leads out of the calendar.
void CheckMoves(DateTime start, SInt32 amount)
{
    DateTime moved = start;
    moved.Increment(amount);
    RR_ASSERT(!moved.IsValid() || (amount < 0 ? moved < start : moved >= start));
    DateTime back = moved;
    back.Decrement(amount);
    RR_ASSERT(!back.IsValid() || back == start);

    Date date = start.GetDate();
    date.Increment(amount);
    RR_ASSERT(!date.IsValid() || Date::CalcDiffInDays(start.GetDate(), date) == amount);

    UInt32 seconds;
    DateTime copy;
    if (start.Export(seconds)) {
        copy.Import(seconds);
        RR_ASSERT(copy == start);
    }
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // A block of its own of just the length, so that a read past the end shows.
    std::vector<char> text(data, data + size);
    text.push_back(0);
    CheckImport<Date>(text.data(), "YYYY-MM-DD");
    CheckImport<Date>(text.data(), "MME DD YYYY");
    CheckImport<Time>(text.data(), "hh:mm:ss");
    CheckImport<DateTime>(text.data(), "YYYY-MM-DDThh:mm:ss");

    SInt32 amount = 0;
    std::memcpy(&amount, text.data(), size < sizeof amount ? size : sizeof amount);
    const DateTime value(text.data());
    CheckMoves(value.IsValid() ? value : SILVESTER_2000, amount);
    CheckMoves(SILVESTER_2000, amount);

    const std::size_t length = std::strlen(text.data());
    value.Export(text.data());
    RR_ASSERT(std::strlen(text.data()) == length);
    return 0;
}

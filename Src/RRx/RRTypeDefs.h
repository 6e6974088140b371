#pragma once

#include <cstdint>

namespace RR {

using UInt08 = std::uint8_t;
using SInt08 = std::int8_t;
using UInt16 = std::uint16_t;
using SInt16 = std::int16_t;
using UInt32 = std::uint32_t;
using SInt32 = std::int32_t;
using UInt64 = std::uint64_t;
using SInt64 = std::int64_t;

/// No value: the raw form in `FixPnt` and in plain `SInt32` fields alike.
constexpr SInt32 INVALID = INT32_MIN;
/// The double form of `INVALID`.
constexpr double INVALID_DOUBLE = -2147483648.0;

/// Ends the program with the failed condition as text. For programming errors alone, in every build.
[[noreturn]] void AssertFailed(const char* condition, const char* file, int line);

/// Adds a piece to the log in the form of `printf`. What a thread has added reaches standard output with the end of
/// its line, so that lines of different threads don't mix.
void Log(const char* format, ...) __attribute__((format(printf, 1, 2)));
/// Hands on the line that this thread has begun.
void LogFlush();

}

#define RR_ASSERT(condition) ((condition) ? void(0) : RR::AssertFailed(#condition, __FILE__, __LINE__))

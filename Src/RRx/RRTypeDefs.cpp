#include "RRx/RRTypeDefs.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace RR {

void AssertFailed(const char* condition, const char* file, int line)
{
    LogFlush();
    std::fprintf(stderr, "%s:%d: Assertion \"%s\" failed.\n", file, line, condition);
    std::abort();
}

namespace {

/// The line that this thread has begun. Plain memory, so that it serves to the very end of the program.
struct Line {
    char text[1024];
    int length;
};
thread_local Line line;

}

void Log(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    va_list again;
    va_copy(again, args);
    const int room = static_cast<int>(sizeof line.text) - line.length;
    const int length = std::vsnprintf(line.text + line.length, static_cast<std::size_t>(room), format, args);
    if (length >= room) {
        LogFlush();
        std::vprintf(format, again);
        std::fflush(stdout);
    } else if (length > 0) {
        line.length += length;
        if (line.text[line.length - 1] == '\n') {
            LogFlush();
        }
    }
    va_end(again);
    va_end(args);
}

void LogFlush()
{
    std::fwrite(line.text, 1, static_cast<std::size_t>(line.length), stdout);
    std::fflush(stdout);
    line.length = 0;
}

}

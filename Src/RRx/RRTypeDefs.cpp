#include "RRx/RRTypeDefs.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace RR {

void AssertFailed(const char* condition, const char* file, int line)
{
    std::fflush(stdout);
    std::fprintf(stderr, "%s:%d: Assertion \"%s\" failed.\n", file, line, condition);
    std::abort();
}

void Log(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    std::vprintf(format, args);
    va_end(args);
    std::fflush(stdout);
}

}

#include "SensorUnit/Log.h"

#include <cstdarg>
#include <cstdio>

namespace SensorUnit {

void Log(const char* format, ...)
{
    char text[1024];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    std::fprintf(stderr, "[unit] %s\n", text);
}

}

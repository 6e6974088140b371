#include "SensorUnit/Protocol.h"

#include <cstdio>

namespace SensorUnit {

namespace {

/// Takes exactly `digits` upper-case hexadecimal digits from the front of `text`.
bool TakeHex(std::string_view& text, std::size_t digits, std::uint32_t& value)
{
    if (text.size() < digits) {
        return false;
    }
    value = 0;
    for (const char c : text.substr(0, digits)) {
        std::uint32_t digit = 0;
        if (c >= '0' && c <= '9') {
            digit = std::uint32_t(c - '0');
        } else if (c >= 'A' && c <= 'F') {
            digit = std::uint32_t(c - 'A') + 10;
        } else {
            return false;
        }
        value = value << 4 | digit;
    }
    text.remove_prefix(digits);
    return true;
}

bool TakeBlank(std::string_view& text)
{
    if (text.empty() || text.front() != ' ') {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

}

std::optional<Request> ParseRequest(std::string_view line)
{
    if (line.empty() || (line.front() != 'R' && line.front() != 'W')) {
        return std::nullopt;
    }
    Request request;
    request.write = line.front() == 'W';
    line.remove_prefix(1);
    std::uint32_t count = 0;
    if (!TakeBlank(line) || !TakeHex(line, 8, request.location) || !TakeBlank(line) || !TakeHex(line, 2, count)) {
        return std::nullopt;
    }
    if (count < 1 || count > std::uint32_t(maxDataBytes)) {
        return std::nullopt;
    }
    request.count = int(count);
    for (int i = 0; request.write && i < request.count; i++) {
        std::uint32_t byte = 0;
        if (!TakeBlank(line) || !TakeHex(line, 2, byte)) {
            return std::nullopt;
        }
        request.data[std::size_t(i)] = std::uint8_t(byte);
    }
    if (!line.empty()) {
        return std::nullopt;
    }
    return request;
}

std::string FormatResponse(const Request& request, const std::uint8_t* data)
{
    char text[16];
    std::snprintf(text, sizeof text, "%c %08X %02X", request.write ? 'w' : 'r', unsigned(request.location), unsigned(request.count));
    std::string line = text;
    for (int i = 0; !request.write && i < request.count; i++) {
        std::snprintf(text, sizeof text, " %02X", unsigned(data[i]));
        line += text;
    }
    return line + '\r';
}

std::string Printable(std::string_view line, std::size_t most)
{
    std::string text;
    for (const char c : line.substr(0, most)) {
        if (c >= 0x20 && c < 0x7F && c != '\\') {
            text += c;
        } else {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\x%02X", unsigned(static_cast<unsigned char>(c)));
            text += escaped;
        }
    }
    return line.size() > most ? text + "..." : text;
}

}

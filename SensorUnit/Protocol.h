#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace SensorUnit {

/// Most data bytes of one request.
constexpr int maxDataBytes = 64;

/// Characters of the longest request, a write of 64 bytes, without its CR.
constexpr std::size_t maxRequestChars = 205;

/// A request as it came over the line. `data` counts for writes only.
struct Request {
    bool write = false;
    std::uint32_t location = 0;
    int count = 0; ///< 1 to 64
    std::array<std::uint8_t, maxDataBytes> data{};
};

/// Reads a request line without its CR. Exactly the form that the display board writes is taken: upper
/// case, 8 and 2 digits, single blanks, as many data bytes as counted. So neither the echo of a response
/// nor a request that lost a character is ever mistaken for a request.
std::optional<Request> ParseRequest(std::string_view line);

/// The response line that answers `request`, ended by CR. A read carries `request.count` bytes of `data`.
std::string FormatResponse(const Request& request, const std::uint8_t* data);

/// The first `most` characters of `line`, with everything that isn't printable ASCII as \xNN.
std::string Printable(std::string_view line, std::size_t most = 80);

}

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace SensorUnit {

/// What an image says of itself.
struct ImageInfo {
    std::uint8_t type = 55;        ///< application type, 16 or higher
    std::uint8_t version = 0x60;   ///< major and minor in one nibble each
    std::uint8_t boardType = 0x11; ///< the board that it is made for
};

/// Bytes of the image that units come with.
constexpr std::size_t factoryImageSize = 0x550E;

/// An image of `size` bytes whose first 16 describe it, all numbers big-endian:
///
///     0   4 bytes  the mark "ZSUA"
///     4   1 byte   application type
///     5   1 byte   version, major and minor in one nibble each
///     6   1 byte   board type
///     7   1 byte   0
///     8   4 bytes  length of the image, these 16 bytes included
///     12  4 bytes  CRC-32 (polynomial 0xEDB88320, reflected, inverted at both ends) of all other bytes
///
/// What follows stands for the program; it depends on `info`, so no two versions are alike.
std::vector<std::uint8_t> MakeImage(const ImageInfo& info, std::size_t size = factoryImageSize);

/// The unit's program memory with the means to read, write and judge it.
class Loader {
public:
    static constexpr std::size_t memorySize = 0x10000;

    /// The memory of a unit from the factory: its image, and 0xFF behind it.
    Loader();

    /// Whether `count` bytes at `location` lie in the memory.
    static bool Covers(std::uint32_t location, int count);

    /// `location` and `count` must be covered.
    const std::uint8_t* At(std::uint32_t location) const { return &memory[location]; }
    void Write(std::uint32_t location, const std::uint8_t* data, int count);

    /// Replaces the memory's content by `image`, with 0xFF behind it; what exceeds the memory is cut.
    void Install(const std::vector<std::uint8_t>& image);

    /// The memory's bytes up to the last one that isn't erased.
    std::vector<std::uint8_t> Content() const;

    /// The application that would start on a board of `boardType`; nothing if the image is none, is
    /// damaged, or is made for another board.
    std::optional<ImageInfo> Application(std::uint8_t boardType) const;

private:
    std::array<std::uint8_t, memorySize> memory;
};

}

#include "SensorUnit/Loader.h"

#include <algorithm>
#include <cstring>

namespace SensorUnit {

namespace {

constexpr std::uint8_t mark[4] = {'Z', 'S', 'U', 'A'};
constexpr std::size_t lengthOffset = 8, checksumOffset = 12, descriptorSize = 16;
constexpr std::uint8_t lowestApplicationType = 16;

std::uint32_t Crc32(std::uint32_t crc, const std::uint8_t* bytes, std::size_t count)
{
    for (std::size_t i = 0; i < count; i++) {
        crc ^= bytes[i];
        for (int bit = 0; bit < 8; bit++) {
            crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320u : 0u);
        }
    }
    return crc;
}

std::uint32_t Checksum(const std::uint8_t* image, std::size_t size)
{
    const std::uint32_t head = Crc32(0xFFFFFFFFu, image, checksumOffset);
    return ~Crc32(head, image + descriptorSize, size - descriptorSize);
}

void PutLong(std::uint8_t* to, std::uint32_t value)
{
    for (int i = 0; i < 4; i++) {
        to[i] = std::uint8_t(value >> (24 - 8 * i));
    }
}

std::uint32_t Long(const std::uint8_t* from)
{
    return std::uint32_t(from[0]) << 24 | std::uint32_t(from[1]) << 16 | std::uint32_t(from[2]) << 8 | from[3];
}

}

std::vector<std::uint8_t> MakeImage(const ImageInfo& info, std::size_t size)
{
    std::vector<std::uint8_t> image(std::max(size, descriptorSize));
    std::copy(std::begin(mark), std::end(mark), image.begin());
    image[4] = info.type;
    image[5] = info.version;
    image[6] = info.boardType;
    PutLong(&image[lengthOffset], std::uint32_t(image.size()));
    std::uint32_t state = std::uint32_t(info.type) << 16 | std::uint32_t(info.version) << 8 | info.boardType;
    for (std::size_t i = descriptorSize; i < image.size(); i++) {
        state = state * 1664525 + 1013904223;
        image[i] = std::uint8_t(state >> 24);
    }
    PutLong(&image[checksumOffset], Checksum(image.data(), image.size()));
    return image;
}

Loader::Loader()
{
    Install(MakeImage({}));
}

bool Loader::Covers(std::uint32_t location, int count)
{
    return location < memorySize && std::size_t(count) <= memorySize - location;
}

void Loader::Write(std::uint32_t location, const std::uint8_t* data, int count)
{
    std::memcpy(&memory[location], data, std::size_t(count));
}

void Loader::Install(const std::vector<std::uint8_t>& image)
{
    memory.fill(0xFF);
    std::copy_n(image.begin(), std::min(image.size(), memorySize), memory.begin());
}

std::vector<std::uint8_t> Loader::Content() const
{
    const auto end = std::find_if(memory.rbegin(), memory.rend(), [](std::uint8_t byte) { return byte != 0xFF; }).base();
    return {memory.begin(), end};
}

std::optional<ImageInfo> Loader::Application(std::uint8_t boardType) const
{
    const ImageInfo info{memory[4], memory[5], memory[6]};
    const std::uint32_t length = Long(&memory[lengthOffset]);
    if (!std::equal(std::begin(mark), std::end(mark), memory.begin()) || length < descriptorSize || length > memorySize) {
        return std::nullopt;
    }
    if (info.type < lowestApplicationType || info.boardType != boardType || Long(&memory[checksumOffset]) != Checksum(memory.data(), length)) {
        return std::nullopt;
    }
    return info;
}

}

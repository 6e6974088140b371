#include "Globals.h"

#include "Board/Board.h"
#include "Hourglass.h"

#include <fcntl.h>
#include <unistd.h>
#include <vector>

// The framebuffer: 16 bits a pixel, from the highest bit on 5 of red, 6 of green, 5 of blue.

namespace {

using Pixel = RR::UInt16;

constexpr int screenWidth = 800;
constexpr int screenHeight = 480;
constexpr size_t screenBytes = screenWidth * screenHeight * sizeof(Pixel);
const char* const framebuffer = "/dev/fb0";
const char* const backlight =
    "/sys/devices/platform/s3c24xx-pwm.1/pwm-backlight.0/backlight:pwm-backlight/brightness";

int OpenDevice(const char* path, int flags)
{
    return open(Board::Locate(path).c_str(), flags | O_CLOEXEC);
}

/// Reads up to `size` bytes and gives their number.
size_t ReadAll(int fd, void* data, size_t size)
{
    size_t done = 0;
    while (done < size) {
        const ssize_t n = read(fd, static_cast<char*>(data) + done, size - done);
        if (n <= 0) {
            break;
        }
        done += static_cast<size_t>(n);
    }
    return done;
}

bool WriteAll(int fd, const void* data, size_t size)
{
    size_t done = 0;
    while (done < size) {
        const ssize_t n = write(fd, static_cast<const char*>(data) + done, size - done);
        if (n <= 0) {
            return false;
        }
        done += static_cast<size_t>(n);
    }
    return true;
}

}

void SetDsplBrightness(RR::SInt32 b)
{
    const int fd = OpenDevice(backlight, O_WRONLY);
    if (fd < 0) {
        RR::Log("[ZARN] Error: No backlight device found\n");
        return;
    }
    const RR::SInt32 level = b < 1 ? 0 : b > 99 ? 255 : b * 255 / 100;
    const RR::String text = RR::String::Print(level);
    WriteAll(fd, text.Adr(), static_cast<size_t>(text.GetLen()));
    fsync(fd);
    close(fd);
}

void DsplClear()
{
    const int fd = OpenDevice(framebuffer, O_WRONLY);
    if (fd < 0) {
        return;
    }
    const std::vector<char> black(screenBytes);
    WriteAll(fd, black.data(), screenBytes);
    close(fd);
}

void DsplHalfbright()
{
    Board::DimWindows();
    const int fd = OpenDevice(framebuffer, O_RDWR);
    if (fd < 0) {
        return;
    }
    std::vector<Pixel> pixels(screenBytes / sizeof(Pixel));
    const size_t bytes = ReadAll(fd, pixels.data(), screenBytes);
    for (Pixel& pixel : pixels) {
        // The mask takes out the lowest bit of each colour, which the shift moves into the next one.
        pixel = pixel >> 1 & 0x7BEF;
    }
    if (lseek(fd, 0, SEEK_SET) == 0) {
        WriteAll(fd, pixels.data(), bytes);
    }
    close(fd);
}

void DsplShowHourglass()
{
    Board::ShowWaitingSign(Hourglass::picture.data(), Hourglass::WIDTH, Hourglass::HEIGHT);
    const int fd = OpenDevice(framebuffer, O_WRONLY);
    if (fd < 0) {
        return;
    }
    const int left = (screenWidth - Hourglass::WIDTH) / 2;
    const int top = (screenHeight - Hourglass::HEIGHT) / 2;
    Pixel line[Hourglass::WIDTH];
    off_t offset = (top * screenWidth + left) * static_cast<off_t>(sizeof(Pixel));
    for (int y = 0; y < Hourglass::HEIGHT; ++y, offset += screenWidth * static_cast<off_t>(sizeof(Pixel))) {
        for (int x = 0; x < Hourglass::WIDTH; ++x) {
            const RR::UInt08 g = Hourglass::picture[static_cast<size_t>(y * Hourglass::WIDTH + x)];
            line[x] = static_cast<Pixel>((g & 0xF8) * 256 + (g & 0xFC) * 8 + (g >> 3));
        }
        if (lseek(fd, offset, SEEK_SET) != offset || !WriteAll(fd, line, sizeof line)) {
            break;
        }
    }
    close(fd);
}

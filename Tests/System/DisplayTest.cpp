#include "Globals.h"

#include "SystemTesting.h"

#include <set>

namespace {

const char* const backlight =
    "/sys/devices/platform/s3c24xx-pwm.1/pwm-backlight.0/backlight:pwm-backlight/brightness";
constexpr size_t screenBytes = 768000;

RR::UInt16 PixelOf(const std::string& screen, int x, int y)
{
    const auto at = static_cast<size_t>(y * 1600 + x * 2);
    return static_cast<RR::UInt16>(static_cast<RR::UInt08>(screen[at]) | static_cast<RR::UInt08>(screen[at + 1]) << 8);
}

}

TEST(Display, DimmingHalvesEachColourByItself)
{
    std::string screen(screenBytes, '\0');
    for (size_t i = 0; i < screenBytes; i += 2) {
        screen[i] = static_cast<char>(i / 2);
        screen[i + 1] = static_cast<char>(i / 512);
    }
    WriteFile(OnBoard("/dev/fb0"), screen);
    DsplHalfbright();
    const std::string dimmed = ReadFile(OnBoard("/dev/fb0"));
    ASSERT_EQ(dimmed.size(), screenBytes);
    for (int i = 0; i < 0x10000; ++i) {
        const int expected = (i >> 11) / 2 << 11 | (i >> 5 & 63) / 2 << 5 | (i & 31) / 2;
        ASSERT_EQ(PixelOf(dimmed, i % 800, i / 800), expected) << i;
    }
    DsplClear();
    EXPECT_EQ(ReadFile(OnBoard("/dev/fb0")), std::string(screenBytes, '\0'));
}

TEST(Display, TheHourglassStandsGreyInTheMiddle)
{
    WriteFile(OnBoard("/dev/fb0"), std::string(screenBytes, '\x55'));
    DsplShowHourglass();
    const std::string screen = ReadFile(OnBoard("/dev/fb0"));
    ASSERT_EQ(screen.size(), screenBytes);
    std::set<RR::UInt16> greys;
    for (int y = 0; y < 480; ++y) {
        for (int x = 0; x < 800; ++x) {
            const RR::UInt16 pixel = PixelOf(screen, x, y);
            if (x < 379 || x >= 420 || y < 210 || y >= 270) {
                ASSERT_EQ(pixel, 0x5555) << x << ", " << y;
                continue;
            }
            ASSERT_EQ(pixel >> 11, pixel & 31) << "red and blue differ at " << x << ", " << y;
            ASSERT_EQ(pixel >> 11, pixel >> 6 & 31) << "red and green differ at " << x << ", " << y;
            EXPECT_NEAR(pixel >> 11, PixelOf(screen, 798 - x, y) >> 11, 20) << "left and right differ";
            greys.insert(pixel);
        }
    }
    EXPECT_GE(greys.size(), 8u) << "no picture";
}

TEST(Display, BrightnessIsWrittenAsALevelOf255)
{
    for (const auto& [percent, level] : {std::pair{-5, "0"}, {0, "0"}, {1, "2"}, {50, "127"}, {99, "252"}, {100, "255"},
                                         {RR::INVALID, "0"}, {INT32_MAX, "255"}}) {
        WriteFile(OnBoard(backlight), "");
        SetDsplBrightness(percent);
        EXPECT_EQ(ReadFile(OnBoard(backlight)), level) << percent;
    }
}

TEST(Display, WithoutTheDevicesNothingHappens)
{
    std::filesystem::remove(OnBoard("/dev/fb0"));
    std::filesystem::remove(OnBoard(backlight));
    DsplClear();
    DsplHalfbright();
    DsplShowHourglass();
    EXPECT_EQ(LogOf([] { SetDsplBrightness(50); }), "[ZARN] Error: No backlight device found\n");
    EXPECT_FALSE(std::filesystem::exists(OnBoard("/dev/fb0")));
    EXPECT_FALSE(std::filesystem::exists(OnBoard(backlight)));
}

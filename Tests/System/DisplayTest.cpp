#include "Globals.h"

#include "SystemTesting.h"

#include <cstring>
#include <set>
#include <vector>

namespace {

const char* const backlight =
    "/sys/devices/platform/s3c24xx-pwm.1/pwm-backlight.0/backlight:pwm-backlight/brightness";

using Screen = std::vector<RR::UInt16>; // 480 lines of 800 pixels

void Put(const Screen& screen)
{
    WriteFile(OnBoard("/dev/fb0"), {reinterpret_cast<const char*>(screen.data()), screen.size() * 2});
}

Screen Shown()
{
    const std::string bytes = ReadFile(OnBoard("/dev/fb0"));
    Screen screen(bytes.size() / 2);
    std::memcpy(screen.data(), bytes.data(), bytes.size());
    return screen;
}

}

TEST(Display, DimmingHalvesEachColourByItself)
{
    Screen screen(800 * 480);
    for (size_t i = 0; i < screen.size(); ++i) {
        screen[i] = static_cast<RR::UInt16>(i);
    }
    Put(screen);
    DsplHalfbright();
    for (RR::UInt16& pixel : screen) {
        pixel = static_cast<RR::UInt16>((pixel >> 11) / 2 << 11 | (pixel >> 5 & 63) / 2 << 5 | (pixel & 31) / 2);
    }
    EXPECT_TRUE(Shown() == screen);
    DsplClear();
    EXPECT_TRUE(Shown() == Screen(800 * 480));
}

TEST(Display, TheHourglassStandsGreyInTheMiddle)
{
    Put(Screen(800 * 480, 0x5555));
    DsplShowHourglass();
    const Screen screen = Shown();
    ASSERT_EQ(screen.size(), 800u * 480u);
    std::set<int> greys;
    for (size_t i = 0; i < screen.size(); ++i) {
        const size_t x = i % 800;
        const size_t y = i / 800;
        if (x < 379 || x >= 420 || y < 210 || y >= 270) {
            ASSERT_EQ(screen[i], 0x5555) << x << ", " << y;
            continue;
        }
        const int red = screen[i] >> 11;
        ASSERT_TRUE(red == (screen[i] & 31) && red == (screen[i] >> 6 & 31)) << "not grey at " << x << ", " << y;
        greys.insert(red);
    }
    EXPECT_GE(greys.size(), 8u) << "no picture";
}

TEST(Display, TheBacklightTakesALevelOf255)
{
    for (const auto& [percent, level] : {std::pair{-5, "0"}, {1, "2"}, {50, "127"}, {99, "252"}, {100, "255"},
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
    EXPECT_FALSE(std::filesystem::exists(OnBoard("/dev/fb0")) || std::filesystem::exists(OnBoard(backlight)));
}

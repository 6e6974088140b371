#include "Globals.h"

#include "BoardFiles.h"

#include <cstring>
#include <numeric>
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
    std::iota(screen.begin(), screen.end(), RR::UInt16{0});
    Put(screen);
    DsplHalfbright();
    for (RR::UInt16& pixel : screen) {
        pixel = static_cast<RR::UInt16>((pixel >> 11) / 2 << 11 | (pixel >> 5 & 63) / 2 << 5 | (pixel & 31) / 2);
    }
    EXPECT_TRUE(Shown() == screen);
    DsplClear();
    EXPECT_TRUE(Shown() == Screen(800 * 480));
}

TEST(Display, TheHourglassStandsInTheMiddle)
{
    Put(Screen(800 * 480, 0x5555));
    DsplShowHourglass();
    const Screen screen = Shown();
    for (size_t i = 0; i < screen.size(); ++i) {
        const bool inside = i % 800 >= 379 && i % 800 < 420 && i / 800 >= 210 && i / 800 < 270;
        ASSERT_EQ(screen[i] != 0x5555, inside) << "column " << i % 800 << ", line " << i / 800;
    }
    EXPECT_GE(std::set(screen.begin(), screen.end()).size(), 9u) << "no picture";
}

TEST(Display, TheBacklightTakesALevelOf255)
{
    for (const auto& [percent, level] :
         {std::pair{-5, "0"}, {1, "2"}, {50, "127"}, {99, "252"}, {RR::INVALID, "0"}, {INT32_MAX, "255"}}) {
        WriteFile(OnBoard(backlight), "");
        SetDsplBrightness(percent);
        EXPECT_EQ(ReadFile(OnBoard(backlight)), level) << percent;
    }
    std::filesystem::remove(OnBoard(backlight));
    EXPECT_EQ(LogOf([] { SetDsplBrightness(50); }), "[ZARN] Error: No backlight device found\n");
}

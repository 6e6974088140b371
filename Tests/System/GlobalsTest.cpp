#include "Globals.h"

#include "PrintIt.h"
#include "Settings.h"
#include "SystemTesting.h"

#include <QCoreApplication>
#include <QEvent>
#include <ctime>
#include <gmock/gmock.h>

namespace fs = std::filesystem;
using RR::DateTime;
using RR::FixPnt3;
using testing::HasSubstr;

/// Stands for the main window: counts the changes of language that it is told.
class WndMain : public QObject {
public:
    bool event(QEvent* event) override
    {
        languageChanges += event->type() == QEvent::LanguageChange;
        return QObject::event(event);
    }
    int languageChanges = 0;
};

WndMain* wndMain = nullptr;

QObject* WndMainObject()
{
    return wndMain;
}

TEST(SystemServices, TheClockIsSetInUniversalTime)
{
    setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    tzset();
    EXPECT_THAT(LogOf([] { EXPECT_TRUE(SetClock(DateTime(31, 7, 2024, 12, 0, 0))); }), HasSubstr(" 1722420000\n"));
    EXPECT_THAT(LogOf([] { EXPECT_TRUE(SetClock(DateTime(31, 1, 2024, 0, 30, 0))); }), HasSubstr(" 1706657400\n"));
    EXPECT_EQ(LogOf([] {
        EXPECT_FALSE(SetClock(DateTime()));
        EXPECT_FALSE(SetClock(DateTime(1, 1, 1970, 0, 59, 59)));
        fs::rename(OnBoard("/dev/rtc0"), OnBoard("/dev/rtc"));
        EXPECT_FALSE(SetClock(DateTime(31, 7, 2024, 12, 0, 0)));
        fs::rename(OnBoard("/dev/rtc"), OnBoard("/dev/rtc0"));
    }), "");
    unsetenv("TZ");
    tzset();
}

TEST(SystemServices, CardAndStickComeAndGo)
{
    WriteFile(OnBoard("/dev/mmcblk0p1"), "");
    EXPECT_TRUE(MMCAvailable() && MMCReadWritable());
    fs::remove(OnBoard("/dev/mmcblk0p1"));
    EXPECT_FALSE(MMCAvailable());

    EXPECT_EQ(LogOf([] { EXPECT_EQ(MountUSBStorage("/dev/sda1"), ""); }),
              "[ZARN] Mount failed: \"No such file or directory\"\n");
    WriteFile(OnBoard("/dev/sda1"), "");
    WriteFile(OnBoard("/usb-stick/note"), "x");
    EXPECT_EQ(LogOf([] { EXPECT_EQ(MountUSBStorage("/dev/sda1"), "/mnt/usb-storage/"); }),
              "[ZARN] Device \"/dev/sda1\" mounted to \"/mnt/usb-storage/\"\n");
    const auto space = fs::space(Board::Root());
    RR::SInt32 capacity = 0;
    EXPECT_NEAR(GetDiskSpaceFree("/mnt/usb-storage/", capacity), space.available >> 20, 64);
    EXPECT_EQ(capacity, static_cast<RR::SInt32>(space.capacity >> 20));
    EXPECT_EQ(GetDiskSpaceFree("/mnt/none", capacity), RR::INVALID);
    EXPECT_EQ(capacity, RR::INVALID);

    Unmount("/mnt/usb-storage/");
    EXPECT_FALSE(fs::exists(OnBoard("/mnt/usb-storage/note")));
}

TEST(SystemServices, NothingButFourNumbersReachesTheShell)
{
    for (const char* bad : {"", "192.168.1", "192.168.1.2.3", "192.168.1.256", "192.168.1.-1", "192.168.1.", "0x1.2.3.4",
                            "192.168.1.2;halt", "192.168.1.2 halt", "$(halt).1.1.1", "1.1.1.99999999999"}) {
        EXPECT_EQ(LogOf([&] { EXPECT_FALSE(SetIpAdr(bad, "eth0")) << bad; }), "") << bad;
    }
    EXPECT_FALSE(fs::exists(OnBoard("/etc/config_eth")));
    EXPECT_THAT(LogOf([] { EXPECT_TRUE(SetIpAdr("192.168.010.255", "eth0")); }), HasSubstr("ifconfig eth0 192.168.10.255\""));
    EXPECT_EQ(ReadFile(OnBoard("/etc/config_eth")), "ifconfig eth0 192.168.10.255\n");
}

TEST(SystemServices, AnInterfaceTellsItsAddresses)
{
    EXPECT_EQ(GetIpAdr("lo"), "127.0.0.1");
    EXPECT_EQ(GetMacAdr("lo"), "00:00:00:00:00:00");
    for (const char* bad : {"none0", "a-name-of-16-let", "", static_cast<const char*>(nullptr)}) {
        EXPECT_TRUE(GetIpAdr(bad).IsEmpty() && GetMacAdr(bad).IsEmpty());
    }
}

TEST(SystemServices, ALanguageComesAndGoesWithItsTexts)
{
    WndMain window;
    wndMain = &window;
    settings.applLanguage = "DE";
    EXPECT_TRUE(SelectLanguage("FR"));
    EXPECT_EQ(settings.applLanguage, LangCC("FR"));
    EXPECT_EQ(PrintPressureComp(Pressure(), {}), "n.d.");
    QCoreApplication::processEvents();
    EXPECT_EQ(window.languageChanges, 0) << "the toolkit tells windows by itself";
    EXPECT_EQ(LogOf([] { EXPECT_TRUE(SelectLanguage("DE")); }), "[ZARN] Language set: German\n");
    EXPECT_EQ(PrintPressureComp(Pressure(), {}), "n.v.");
    QCoreApplication::processEvents();
    EXPECT_EQ(window.languageChanges, 1);
    wndMain = nullptr;

    EXPECT_EQ(LogOf([] { EXPECT_FALSE(SelectLanguage("XX")); }), "[Application] Invalid translation \"transXX.qm\"\n");
    EXPECT_EQ(settings.applLanguage, LangCC("DE"));
    EXPECT_TRUE(HasLanguage("DE") && HasLanguage("FR"));
    EXPECT_FALSE(HasLanguage("XX"));
    for (const auto& [code, locale] : {std::pair{"UK", "en"}, {"CZ", "cs"}, {"BR", "pt"}, {"FR", "fr"}, {"DE", "de"}}) {
        settings.applLanguage = code;
        EXPECT_EQ(GetLocal(), QLocale(locale)) << code;
    }
}

TEST(SystemServices, ChecksumAndRaster)
{
    RR::UInt32 crc = 0xFFFFFFFF;
    for (RR::UInt08 c = '1'; c <= '9'; ++c) {
        UpdateCRC32(c, crc);
    }
    EXPECT_EQ(~crc, 0xCBF43926u);

    for (const auto& [value, raster] : {std::pair{-5.0, 0.001}, {0.099, 0.001}, {0.1, 0.002}, {0.499, 0.005}, {0.5, 0.01},
                                        {4.999, 0.05}, {450.0, 5.0}, {49999.0, 500.0}, {50000.0, 1000.0},
                                        {2000000.0, 1000.0}}) {
        EXPECT_EQ(RasterizeValue(FixPnt3(value)), FixPnt3(raster)) << value;
    }
}

#include "Globals.h"

#include "PrintIt.h"
#include "Settings.h"
#include "BoardFiles.h"

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
    EXPECT_EQ(LogOf([] { EXPECT_FALSE(SetClock(DateTime()) || SetClock(DateTime(1, 1, 1970, 0, 59, 59))); }), "");
    unsetenv("TZ");
    tzset();
}

TEST(SystemServices, AStickComesAndGoes)
{
    EXPECT_EQ(LogOf([] { EXPECT_EQ(MountUSBStorage("/dev/sda1"), ""); }),
              "[ZARN] Mount failed: \"No such file or directory\"\n");
    WriteFile(OnBoard("/dev/sda1"), "");
    EXPECT_EQ(LogOf([] { EXPECT_EQ(MountUSBStorage("/dev/sda1"), "/mnt/usb-storage/"); }),
              "[ZARN] Device \"/dev/sda1\" mounted to \"/mnt/usb-storage/\"\n");
    const auto space = fs::space(Board::Root());
    RR::SInt32 capacity = 0;
    EXPECT_NEAR(GetDiskSpaceFree("/mnt/usb-storage/", capacity), space.available >> 20, 64);
    EXPECT_EQ(capacity, static_cast<RR::SInt32>(space.capacity >> 20));
    EXPECT_TRUE(GetDiskSpaceFree("/mnt/none", capacity) == RR::INVALID && capacity == RR::INVALID);
    Unmount("/mnt/usb-storage/");
}

TEST(SystemServices, NothingButFourNumbersReachesTheShell)
{
    for (const char* bad : {"", "192.168.1", "192.168.1.2.3", "192.168.1.256", "192.168.1.-1", "1.2.3.", "0x1.2.3.4",
                            "192.168.1.2;halt", "192.168.1.2 halt", "$(halt).1.1.1", "1.1.1.99999999999"}) {
        EXPECT_EQ(LogOf([&] { EXPECT_FALSE(SetIpAdr(bad, "eth0")) << bad; }), "") << bad;
    }
    EXPECT_FALSE(fs::exists(OnBoard("/etc/config_eth")));
    EXPECT_TRUE(SetIpAdr("192.168.010.255", "eth0"));
    EXPECT_EQ(ReadFile(OnBoard("/etc/config_eth")), "ifconfig eth0 192.168.10.255\n");
}

TEST(SystemServices, AnInterfaceTellsItsAddresses)
{
    EXPECT_EQ(GetIpAdr("lo"), "127.0.0.1");
    EXPECT_EQ(GetMacAdr("lo"), "00:00:00:00:00:00");
    EXPECT_TRUE(GetIpAdr("a-name-of-16-let").IsEmpty() && GetMacAdr(nullptr).IsEmpty());
}

TEST(SystemServices, ALanguageComesAndGoesWithItsTexts)
{
    WndMain window;
    wndMain = &window;
    settings.applLanguage = "DE";
    EXPECT_TRUE(SelectLanguage("FR"));
    EXPECT_EQ(PrintPressureComp(Pressure(), {}), "n.d.");
    QCoreApplication::processEvents();
    EXPECT_EQ(window.languageChanges, 0) << "the toolkit tells windows itself";
    EXPECT_EQ(LogOf([] { EXPECT_TRUE(SelectLanguage("DE")); }), "[ZARN] Language set: German\n");
    EXPECT_EQ(PrintPressureComp(Pressure(), {}), "n.v.");
    QCoreApplication::processEvents();
    EXPECT_EQ(window.languageChanges, 1);
    wndMain = nullptr;

    EXPECT_EQ(LogOf([] { EXPECT_FALSE(SelectLanguage("XX")); }), "[Application] Invalid translation \"transXX.qm\"\n");
    EXPECT_EQ(settings.applLanguage, LangCC("DE"));
    EXPECT_TRUE(HasLanguage("DE") && HasLanguage("FR") && !HasLanguage("XX"));
}

TEST(SystemServices, TheRasterGrowsWithTheValue)
{
    for (const auto& [value, raster] : {std::pair{-5.0, 0.001}, {0.099, 0.001}, {0.1, 0.002}, {0.499, 0.005},
                                        {4.999, 0.05}, {450.0, 5.0}, {49999.0, 500.0}, {50000.0, 1000.0}}) {
        EXPECT_EQ(RasterizeValue(FixPnt3(value)), FixPnt3(raster)) << value;
    }
}

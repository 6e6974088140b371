#include "BoardFiles.h"
#include "Fakes/UnitControl.h"
#include "TavorDev.h"

#include <atomic>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QTest>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;
namespace fs = std::filesystem;
using Bytes = RR::Array<unsigned char>;

namespace {

/// A sensor unit in software at the board's serial line, unpaced, and the program's link to it.
struct TavorDevTest : testing::Test {
    void SetUp() override
    {
        control = Board::Root() + "/unit.ctl";
        const std::string line = Board::Locate("/dev/ttySAC0");
        fs::remove(line);
        const char* args[] = {
            ZARN_UNIT_PROGRAM, "--fast", "--link", line.c_str(), "--control", control.c_str(), nullptr};
        ASSERT_EQ(posix_spawn(&unit, args[0], nullptr, nullptr, const_cast<char**>(args), environ), 0);
        ASSERT_TRUE(QTest::qWaitFor([&] { return fs::exists(line) && fs::exists(control); }, 5000));
        dev = std::make_unique<TavorDev>();
        QObject::connect(dev.get(), &TavorDev::Changed, [this] { ++changes; });
    }

    void TearDown() override
    {
        dev.reset();
        kill(unit, SIGTERM);
        waitpid(unit, nullptr, 0);
    }

    void Tell(const std::string& command) { ASSERT_EQ(TellUnit(control, command), "ok\n") << command; }

    std::string control;
    pid_t unit = 0;
    std::atomic<int> changes = 0; ///< counted on the link's thread, too
    std::unique_ptr<TavorDev> dev;
};

}

TEST_F(TavorDevTest, ConnectingFillsTheCacheAtOnce)
{
    QSignalSpy connected(dev.get(), &TavorDev::Connected);
    QSignalSpy disconnected(dev.get(), &TavorDev::Disconnected);
    EXPECT_EQ(dev->GetValve(TavorDev::VALVE_V1), TavorDev::VALVE_FAILURE) << "before connecting";
    EXPECT_FALSE(dev->GetRTC().IsValid());
    TavorDev::Info info;
    EXPECT_TRUE(dev->GetDevInfo(info)) << "needs no connection";

    ASSERT_TRUE(dev->Connect(TavorDev::MODE_APPL));
    EXPECT_EQ(connected.count(), 1);
    EXPECT_EQ(dev->GetValve(TavorDev::VALVE_V6), TavorDev::VALVE_CLOSE);
    EXPECT_EQ(dev->GetCompressor(), TavorDev::COMPRESSOR_OFF);
    EXPECT_TRUE(dev->GetRTC().IsValid());
    EXPECT_EQ(dev->GetAirPressure(), 1013);
    EXPECT_TRUE(dev->HasSensor(TavorDev::SENSOR_SO2) && !dev->HasSensor(TavorDev::SENSOR___));
    EXPECT_STREQ(info.applVers.ToStr(), "6.0");

    dev->Disconnect();
    dev->Disconnect();
    EXPECT_EQ(disconnected.count(), 1);
    EXPECT_EQ(dev->GetAirPressure(), RR::INVALID);
}

TEST_F(TavorDevTest, CommandsShowAtOnceAndChangesOfTheUnitByPolling)
{
    ASSERT_TRUE(dev->Connect(TavorDev::MODE_APPL));
    ASSERT_TRUE(dev->SetValve(TavorDev::VALVE_V4, true));
    EXPECT_EQ(dev->GetValve(TavorDev::VALVE_V4), TavorDev::VALVE_OPEN);
    EXPECT_EQ(dev->GetValve(TavorDev::VALVE_V3), TavorDev::VALVE_CLOSE);
    ASSERT_TRUE(dev->SetFan1(true));
    EXPECT_TRUE(dev->GetFan1() == TavorDev::FAN_ON && dev->GetFan2() == TavorDev::FAN_OFF);

    const int before = changes;
    Tell("set hpa 980");
    EXPECT_TRUE(QTest::qWaitFor([&] { return dev->GetAirPressure() == 980 && changes > before; }, 6000));

    Bytes beyond(2);
    beyond.Fill(1);
    EXPECT_FALSE(dev->Write(0x10000605, beyond)) << "the unit doesn't serve bytes of two services";
}

TEST_F(TavorDevTest, AnUnpluggedLineDisablesServicesUntilItIsPluggedAgain)
{
    ASSERT_TRUE(dev->Connect(TavorDev::MODE_APPL));
    Tell("unplug");
    EXPECT_TRUE(QTest::qWaitFor([&] { return dev->GetValve(TavorDev::VALVE_V1) == TavorDev::VALVE_FAILURE; }, 12000));
    EXPECT_TRUE(!dev->SetCompressor(true) && dev->GetCompressor() == TavorDev::COMPRESSOR_FAILURE);
    EXPECT_EQ(dev->GetMode(), TavorDev::MODE_APPL);
    Tell("plug");
    EXPECT_TRUE(QTest::qWaitFor([&] { return dev->GetValve(TavorDev::VALVE_V1) == TavorDev::VALVE_CLOSE; }, 12000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return dev->GetCompressor() == TavorDev::COMPRESSOR_OFF; }, 12000));
}

TEST_F(TavorDevTest, TheLoaderIsEnteredAndLeft)
{
    ASSERT_TRUE(dev->Connect(TavorDev::MODE_PGMLDR));
    EXPECT_EQ(dev->GetAirPressure(), RR::INVALID);
    Bytes record(64);
    record.Fill(0x5A);
    ASSERT_TRUE(dev->Write(0x8000, record));
    Bytes back(64);
    ASSERT_TRUE(dev->Read(0x8000, back));
    EXPECT_TRUE(back == record);
    EXPECT_TRUE(dev->Connect(TavorDev::MODE_APPL));
    EXPECT_EQ(dev->GetMode(), TavorDev::MODE_APPL);
}

TEST_F(TavorDevTest, ForegroundCommandsAndPollingShareTheLineWithoutLosses)
{
    ASSERT_TRUE(dev->Connect(TavorDev::MODE_APPL));
    for (int i = 0; i < 30; ++i) {
        ASSERT_TRUE(dev->SetValve(TavorDev::VALVE_V2, i % 2 == 0));
        ASSERT_EQ(dev->GetValve(TavorDev::VALVE_V2), i % 2 == 0 ? TavorDev::VALVE_OPEN : TavorDev::VALVE_CLOSE);
        ASSERT_NE(dev->GetPressure(TavorDev::PRESSENS_P1)[Pressure::BAR], RR::INVALID_DOUBLE);
    }
}

TEST_F(TavorDevTest, ASensorProfileKeepsAllItsFieldsOnTheWayThroughTheUnit)
{
    ASSERT_TRUE(dev->Connect(TavorDev::MODE_APPL));
    const TavorDev::SensorProfile profile = {TavorDev::SENSOR_HF, SVersion("3.4"), 7, 2, RR::INVALID, 12,
        RR::Date(31, 12, 2023), "A1234567", 3650, RR::Date(29, 2, 2024), 365};
    ASSERT_TRUE(dev->SetSensorProfile(profile));
    dev->Connect(TavorDev::MODE_APPL);
    EXPECT_TRUE(dev->GetSensorProfile(TavorDev::SENSOR_HF) == profile);
    EXPECT_FALSE(dev->SetSensorProfile(TavorDev::SensorProfile()));
}

TEST(TavorDevWithoutALine, FailsWithoutBlocking)
{
    fs::remove(Board::Locate("/dev/ttySAC0"));
    std::unique_ptr<TavorDev> dev;
    EXPECT_EQ(LogOf([&] { dev = std::make_unique<TavorDev>(); }),
              "[ZARN] Error open serial device: \"/dev/ttySAC0\"\n");
    EXPECT_FALSE(dev->Connect(TavorDev::MODE_APPL) || dev->SetCompressor(true));
}

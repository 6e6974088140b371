#include "Fakes/ScriptedTavorDev.h"
#include "Records/MeaFiles.h"
#include "Settings.h"

#include <gtest/gtest.h>

using namespace RR;
using T = TavorDev;
using enum Mea::Result;

namespace {

/// Each row starts from a gas whose readings stand exactly at the factory limits.
const struct {
    const char* what;
    void (*arrange)();
    const char* reports; ///< SF6, SO2, humidity, HF in their stored form
    Mea::Result result;
} verdictRows[] = {
    {"at the limits", [] {}, "ok ok ok ok", PASSED},
    {"SF6 low", [] { scripted.amount[T::SENSOR_SF6] = 96.9; }, "lo ok ok ok", FAILED},
    {"SO2 high", [] { scripted.amount[T::SENSOR_SO2] = 12.001; }, "ok hi ok ok", FAILED},
    {"wet", [] { scripted.SetDewPoint(-35.0); }, "ok ok hi ok", FAILED},
    {"HF high", [] { scripted.amount[T::SENSOR_HF] = 0.001; }, "ok ok ok hi", FAILED},
    {"no HF sensor", [] { scripted.profile[T::SENSOR_HF] = T::SensorProfile(); }, "ok ok ok ---", PASSED},
    {"no HF limit", [] { settings.limitMaxHF = FixPnt3(INVALID); }, "ok ok ok ---", PASSED},
    {"no humidity limit", [] { settings.limitMaxHumidity = Humidity(); }, "ok ok --- ok", PASSED},
    {"no SF6 limit", [] { settings.limitMinSF6 = FixPnt1(INVALID); }, "ok ok ok ok", PASSED},
    {"no SO2 limit", [] { settings.limitMaxSO2 = FixPnt3(INVALID); }, "ok hi ok ok", FAILED},
    {"pressurised dew point against the limit at 1 bar",
    [] { settings.unitHumidity = Humidity::CELSPR, scripted.humidity[Humidity::CELSPR] = -35; }, "ok ok hi ok", FAILED},
    {"the same in Fahrenheit, dry",
    [] { settings.unitHumidity = Humidity::FAHRPR, scripted.humidity[Humidity::FAHRPR] = -32; }, "ok ok ok ok", PASSED},
    {"no reading", [] { scripted.humidity = Humidity(), std::fill_n(scripted.amount, T::SENSOR_NUM, INVALID_DOUBLE); },
     "--- --- --- ---", NO_RESULT},
    {"pulled", [] { std::fill_n(scripted.profile, T::SENSOR_NUM, T::SensorProfile()); }, "--- --- --- ---", NO_RESULT}};

}

TEST(Mea, ReadingsAreJudgedByTheLimitsInForce)
{
    Mea mea; // one for all: nothing of a former snapshot may stay
    for (const auto& row : verdictRows) {
        settings = Settings::def;
        scripted.Reset();
        scripted.SetDewPoint(-36.0);
        scripted.amount[T::SENSOR_SF6] = 97.0;
        scripted.amount[T::SENSOR_SO2] = 12.0;
        scripted.amount[T::SENSOR_HF] = 0.0;
        row.arrange();
        mea.Snapshot('B');
        EXPECT_STREQ(BiC(mea.reportSF6) + " " + BiC(mea.reportSO2) + " " + BiC(mea.reportHum) + " " + BiC(mea.reportHF),
                     row.reports) << row.what;
        EXPECT_EQ(mea.result, row.result) << row.what;
    }
}

TEST(Mea, AFileNameIsFreeAndTellsTheTime)
{
    const DateTime lastSecond(31, 1, 2024, 23, 59, 59);
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const String file = Mea::CreateFilename(lastSecond);
        ASSERT_STREQ(file, String("D240131T235959") + letter + ".mea");
        PutFile(file, "");
    }
    EXPECT_TRUE(Mea::CreateFilename(lastSecond).IsEmpty()) << "the 27th of a second";
    EXPECT_STREQ(Mea::CreateFilename(DateTime(31, 12, 1999, 23, 59, 59)), "D000101T000000A.mea");
}

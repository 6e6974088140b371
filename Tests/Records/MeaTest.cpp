#include "Fakes/ScriptedTavorDev.h"
#include "Records/MeaFiles.h"
#include "Settings.h"

#include <gtest/gtest.h>

using namespace RR;
using T = TavorDev;

namespace {

struct VerdictRow {
    const char* what;
    void (*arrange)();
    const char* reports; ///< SF6, SO2, humidity, HF in their stored form
    Mea::Result result;
};

/// Each row starts from a gas whose readings stand exactly at the factory limits.
const VerdictRow verdictRows[] = {
    {"at the limits", [] {}, "ok ok ok ok", Mea::PASSED},
    {"SF6 low", [] { scripted.amount[T::SENSOR_SF6] = 96.9; }, "lo ok ok ok", Mea::FAILED},
    {"SO2 high", [] { scripted.amount[T::SENSOR_SO2] = 12.001; }, "ok hi ok ok", Mea::FAILED},
    {"wet", [] { scripted.SetDewPoint(-35.0); }, "ok ok hi ok", Mea::FAILED},
    {"HF high", [] { scripted.amount[T::SENSOR_HF] = 0.001; }, "ok ok ok hi", Mea::FAILED},
    {"no HF sensor", [] { scripted.profile[T::SENSOR_HF] = T::SensorProfile(); }, "ok ok ok ---", Mea::PASSED},
    {"no HF limit", [] { settings.limitMaxHF = FixPnt3(INVALID); }, "ok ok ok ---", Mea::PASSED},
    {"no humidity limit", [] { settings.limitMaxHumidity = Humidity(); }, "ok ok --- ok", Mea::PASSED},
    {"no SF6 limit", [] { settings.limitMinSF6 = FixPnt1(INVALID); }, "ok ok ok ok", Mea::PASSED},
    {"no SO2 limit", [] { settings.limitMaxSO2 = FixPnt3(INVALID); }, "ok hi ok ok", Mea::FAILED},
    {"pressurised dew point against the limit at 1 bar",
     [] { settings.unitHumidity = Humidity::CELSPR, scripted.humidity[Humidity::CELSPR] = FixPnt3(-35); },
     "ok ok hi ok", Mea::FAILED},
    {"the same in Fahrenheit, dry",
     [] { settings.unitHumidity = Humidity::FAHRPR, scripted.humidity[Humidity::FAHRPR] = FixPnt3(-32); },
     "ok ok ok ok", Mea::PASSED},
    {"no reading", [] { scripted.humidity = Humidity(), std::fill_n(scripted.amount, T::SENSOR_NUM, INVALID_DOUBLE); },
     "--- --- --- ---", Mea::NO_RESULT},
    {"sensors pulled", [] { std::fill_n(scripted.profile, T::SENSOR_NUM, T::SensorProfile()); },
     "--- --- --- ---", Mea::NO_RESULT},
};

}

TEST(Mea, ReadingsAreJudgedByTheLimitsInForce)
{
    Mea mea; // one for all: nothing of a former snapshot may stay
    for (const VerdictRow& row : verdictRows) {
        SCOPED_TRACE(row.what);
        settings = Settings::def;
        scripted.Reset();
        scripted.SetDewPoint(-36.0);
        scripted.amount[T::SENSOR_SF6] = 97.0;
        scripted.amount[T::SENSOR_SO2] = 12.0;
        scripted.amount[T::SENSOR_HF] = 0.0;
        row.arrange();
        mea.Snapshot('B');
        EXPECT_STREQ(BiC(mea.reportSF6) + " " + BiC(mea.reportSO2) + " " + BiC(mea.reportHum) + " " + BiC(mea.reportHF),
                     row.reports);
        EXPECT_EQ(mea.result, row.result);
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
    EXPECT_STREQ(Mea::CreateFilename(DateTime(1, 1, 2000, 0, 0, 1)), "D000101T000001A.mea");
}

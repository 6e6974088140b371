#include "Records/MeaFiles.h"
#include "Settings.h"

#include <gtest/gtest.h>

using namespace RR;

TEST(MeaExport, TheListsShowTheRecordInTheUnitsOfToday)
{
    settings = Settings::def;
    PutFile("Full.mea", ReadFile(MEA_CORPUS "/Full.mea"));
    Mea mea;
    ASSERT_EQ(mea.Load("Full.mea"), Mea::ACCEPTED);
    mea.dateTime = DateTime(); // its text depends on the locale data of the system
    List<Mea::Item> items;
    items.Append({'-', "of a former use", ""});
    mea.Export(items, true);
    EXPECT_EQ(Mea::PrintCSV(items).toStdString(), ReadFile(MEA_LISTS "/ShortList.csv"));

    settings.unitPressure = Pressure::KPA;
    settings.unitHumidity = Humidity::PPMV;
    settings.unitTemperature = Temperature::FAHR;
    mea.name = QString(" A \"b\"\t") + QChar(0x2192) + QChar(0x2022) + " c ";
    mea.sensorSF6.tag = 1;
    mea.sensorCO = TavorDev::SensorProfile();
    mea.ExportUTF8(items);
    EXPECT_EQ(Mea::PrintCSV(items).toStdString(), ReadFile(MEA_LISTS "/FullList.csv")) << "as plain text";
}

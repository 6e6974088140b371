#include "Records/MeaFiles.h"
#include "Settings.h"

#include <gtest/gtest.h>

using namespace RR;

namespace {

Mea ReferenceRecord()
{
    settings = Settings::def;
    Mea mea;
    PutFile("Full.mea", GetFile(MEA_CORPUS "/Full.mea"));
    EXPECT_EQ(mea.Load("Full.mea"), Mea::ACCEPTED);
    mea.dateTime = DateTime(); // its text depends on the locale data of the system
    return mea;
}

}

TEST(MeaExport, TheShortListShowsTheRecordInTheUnitsOfToday)
{
    const Mea mea = ReferenceRecord();
    List<Mea::Item> items;
    items.Append({'-', "of a former use", ""});
    mea.Export(items, true);
    EXPECT_EQ(Mea::PrintCSV(items).toStdString(), GetFile(MEA_LISTS "/ShortList.csv"));
    EXPECT_EQ(items.First()().type, '-');
}

TEST(MeaExport, TheCommaSeparatedFormHoldsTheFullListAsPlainText)
{
    Mea mea = ReferenceRecord();
    settings.unitPressure = Pressure::KPA;
    settings.unitHumidity = Humidity::PPMV;
    settings.unitTemperature = Temperature::FAHR;
    mea.name = QString(" A \"b\"\t") + QChar(0x2192) + QChar(0x2022) + " c ";
    mea.sensorSF6.tag = 1;
    mea.sensorCO = TavorDev::SensorProfile();
    List<Mea::Item> items;
    mea.ExportUTF8(items);
    EXPECT_EQ(Mea::PrintCSV(items).toStdString(), GetFile(MEA_LISTS "/FullList.csv"));
}

TEST(MeaExport, SectionsWithoutSensorsAreKeptApart)
{
    List<Mea::Item> items;
    std::string types;
    Mea().Export(items, false);
    for (List<Mea::Item>::Handle item = items.First(); !item.IsNil(); item.Next()) {
        types += item().name.isEmpty() ? ' ' : item().type;
    }
    EXPECT_EQ(types, "-xxxxxxx-*- -xxxx- -xxxx");
}

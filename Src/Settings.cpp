#include "Settings.h"

#include "BiC.h"
#include "Config.h"
#include "Globals.h"
#include "RRx/RRFile.h"
#include "RRx/RRKeyValue.h"

#include <tuple>

using RR::KeyValue;
using RR::SInt32;
using RR::String;

namespace {

const char* const headline =
    "--------------------------\n ZARN Application settings\n--------------------------\n";

template <typename Type>
struct Field {
    const char* key;
    Type Settings::*member;
};
// Older compilers don't deduce aggregates by themselves.
template <typename Type>
Field(const char*, Type Settings::*) -> Field<Type>;

constexpr auto fields = std::tuple{
    Field{"DisplayAutoDimTime", &Settings::dsplAutoDimTime},
    Field{"ApplLanguage", &Settings::applLanguage},
    Field{"UnitHumidity", &Settings::unitHumidity},
    Field{"UnitPressure", &Settings::unitPressure},
    Field{"UnitTemperature", &Settings::unitTemperature},
    Field{"DelOldestMea", &Settings::delOldestMea},
    Field{"ShowAvailSensOnly", &Settings::showAvailSensOnly},
    Field{"FlowChartView", &Settings::flowChartView},
    Field{"LimitMinSF6", &Settings::limitMinSF6},
    Field{"LimitMaxSO2", &Settings::limitMaxSO2},
    Field{"LimitMaxHF", &Settings::limitMaxHF},
    Field{"LimitMaxHumidity", &Settings::limitMaxHumidity},
    Field{"LimitMinInletPress", &Settings::limitMinInletPress},
    Field{"LimitMaxInletPress", &Settings::limitMaxInletPress},
    Field{"LimitMaxBkPress", &Settings::limitMaxBkPress},
    Field{"MeaSaveNumber", &Settings::meaSaveNumber},
    Field{"MeaRecentName", &Settings::meaRecentName},
    Field{"SensorPassageTime", &Settings::sensPassageTime},
    Field{"InspJobNo", &Settings::inspJobNo},
    Field{"InspJobPasses", &Settings::inspJobPasses},
    Field{"InspJobPassTime", &Settings::inspJobPassTime},
    Field{"SaveOneMsgAs", &Settings::saveOneMsgAs},
    Field{"SaveAllMsgAs", &Settings::saveAllMsgAs},
    Field{"ShowSensorValuesAfter", &Settings::showSensorValuesAfter},
    Field{"AutoPumpBack", &Settings::autoPumpBack},
    Field{"AutoMeaBEnabled", &Settings::autoMeaBEnabled},
    Field{"AutoMeaBCount", &Settings::autoMeaBCount},
    Field{"AutoMeaBInterval", &Settings::autoMeaBInterval},
    Field{"AutoMeaCEnabled", &Settings::autoMeaCEnabled},
    Field{"AutoMeaCCount", &Settings::autoMeaCCount},
    Field{"AutoMeaCInterval", &Settings::autoMeaCInterval},
};

template <typename Visit>
void ForEachField(Visit visit)
{
    std::apply([&](const auto&... field) { (visit(field), ...); }, fields);
}

Settings FactoryValues()
{
    Settings s;
    s.dsplAutoDimTime = 20;
    s.applLanguage = "DE";
    s.unitHumidity = Humidity::CELS;
    s.unitPressure = Pressure::BAR;
    s.unitTemperature = Temperature::CELS;
    s.delOldestMea = false;
    s.showAvailSensOnly = true;
    s.flowChartView = false;
    s.limitMinSF6 = 97.0;
    s.limitMaxSO2 = 12.0;
    s.limitMaxHF = 0.0;
    s.limitMaxHumidity = Humidity(-36, -32, 198, 24);
    s.limitMinInletPress = Pressure(1.2, 120, 17, 0.12);
    s.limitMaxInletPress = Pressure(33, 3300, 480, 3.3);
    s.limitMaxBkPress = Pressure(0.015, 1.5, 0.2, 0.001);
    s.meaSaveNumber = 1;
    s.meaRecentName = QString();
    s.sensPassageTime = 450;
    s.inspJobNo = 0;
    s.inspJobPasses = 1;
    s.inspJobPassTime = 450;
    s.saveOneMsgAs = MTF_SAVE_NATIVE;
    s.saveAllMsgAs = MTF_SAVE_NATIVE;
    s.showSensorValuesAfter = 75;
    s.autoPumpBack = false;
    s.autoMeaBEnabled = false;
    s.autoMeaBCount = 2;
    s.autoMeaBInterval = 30;
    s.autoMeaCEnabled = false;
    s.autoMeaCCount = 2;
    s.autoMeaCInterval = 30;
    return s;
}

String FilePath()
{
    return RR::PATH_Merge(CFG::SettFileFolder, CFG::SettFileName);
}

void ReportFailedLoad(const String& path, const KeyValue& store, SInt32 errRow, SInt32 dblRow)
{
    RR::Log("[ZARN] %s: ", path.Adr());
    if (errRow != RR::INVALID) {
        RR::Log("%d: syntax error\n", errRow);
    } else if (dblRow != RR::INVALID) {
        RR::Log("%d: duplicate key '%s'\n", dblRow, store.First().GetKey().Adr());
    } else {
        RR::Log("file open failure (default settings applied)\n");
        if (!MMCAvailable() || !RR::DIR_Create(CFG::SettFileFolder)) {
            RR::Log("[ZARN] Error creating folder \"%s\"\n", CFG::SettFileFolder);
        }
    }
}

template <class T>
void ReadField(const String& text, T& value, const T& fallback)
{
    BiC(text, value, fallback);
}

/// A limit without any readable pressure is the factory's in all its units; the reader alone would leave out MPa.
void ReadField(const String& text, Pressure& value, const Pressure& fallback)
{
    RR::FixPnt3 elements[Pressure::NUM];
    if (BiC(text, elements, Pressure::NUM) || BiC(text, elements, Pressure::NUM - 1)) {
        BiC(text, value, fallback);
    } else {
        value = fallback;
    }
}

}

const Settings Settings::def = FactoryValues();

Settings settings;

void Settings::Load()
{
    *this = def;

    const String path = FilePath();
    KeyValue store;
    SInt32 errRow = RR::INVALID;
    SInt32 dblRow = RR::INVALID;
    if (!store.Load(path, errRow, dblRow)) {
        ReportFailedLoad(path, store, errRow, dblRow);
        // A repeated key is still in the store; nothing of such a file counts.
        store.SetEmpty();
    } else if (RR::FILE_ReadSize(path) == 0) {
        RR::Log("[ZARN] Settings file empty\n");
    } else if (store(".ApplType") != CFG::ApplType) {
        RR::Log("[ZARN] Settings file rejected (application type mismatch)\n");
        store.SetEmpty();
    }

    ForEachField([&](const auto& field) {
        if (store.Has(field.key)) {
            ReadField(store(field.key), this->*field.member, def.*field.member);
        }
    });
}

void Settings::Save()
{
    KeyValue store;
    store(".ApplType", CFG::ApplType);
    store(".ApplVers", CFG::ApplVers);
    store(".BoardType", CFG::BoardType);
    ForEachField([&](const auto& field) { store(field.key, BiC(this->*field.member)); });

    const String path = FilePath();
    KeyValue onMedium;
    onMedium.Load(path);
    if (store == onMedium) {
        return;
    }
    store.headline = headline;
    if (!store.Save(path)) {
        RR::Log("[ZARN] Error writing settings file\n");
    }
}

void Settings::Reset()
{
    *this = def;
    Save();
}

#include "Mea.h"

#include "Config.h"
#include "Globals.h"
#include "RRx/RRFile.h"
#include "Settings.h"

using namespace RR;

namespace {

const char* const networkInterface = "eth0";

bool HasValue(const FixPnt& value)
{
    return value.Eject() != INVALID;
}

Mea::Report JudgeByMax(const FixPnt& reading, const FixPnt& limit)
{
    return reading > limit ? Mea::ABOVE_MAX : Mea::NORMAL;
}

/// The limit is set for the dew point at 1 bar; the pressurised dew point is held against that one too.
Humidity::Unit LimitUnit(Humidity::Unit unit)
{
    switch (unit) {
    case Humidity::CELSPR: return Humidity::CELS;
    case Humidity::FAHRPR: return Humidity::FAHR;
    default: return unit;
    }
}

}

void Mea::Snapshot(char actType)
{
    applType = CFG::ApplType;
    applVers = LVersion(CFG::ApplVers);
    boardType = CFG::BoardType;
    macAddress = GetMacAdr(networkInterface);
    ipAddress = GetIpAdr(networkInterface);

    TavorDev::Info info;
    tavorDev.GetDevInfo(info);
    tdApplType = info.applType;
    tdApplVers = info.applVers;
    tdBoardType = info.boardType;
    tdBoardVers = info.boardVers;

    name = tr("MESSUNG %1").arg(settings.meaSaveNumber);
    type = actType;
    dateTime = DateTime::Now();

    TakeReadings();
    TakeProfiles();
    TakeSettings();
    Judge();
    comprOperTime = tavorDev.GetCompressorOperatingTime();
    pumpBackNum = tavorDev.GetPumpBackProcesses();
    autoPumpBack = settings.autoPumpBack;
    empty = false;
}

void Mea::TakeReadings()
{
    inTemperature = tavorDev.GetBoardTemperature();
    relHumidity = tavorDev.GetRelHumidity();
    airPressure = tavorDev.GetAirPressure();
    sensPassageTime = settings.sensPassageTime;

    pressureComp = tavorDev.GetPressureComp();
    pressureInlet = tavorDev.GetPressure(TavorDev::PRESSENS_INLET);
    pressureBack = tavorDev.GetPressure(TavorDev::PRESSENS_BACK);
    pressureOper = tavorDev.GetPressure(TavorDev::PRESSENS_OPERATION);
    pressureDepot = tavorDev.GetPressure(TavorDev::PRESSENS_DEPOT);

    amountSF6 = tavorDev.GetAmountSF6();
    amountSO2 = tavorDev.GetAmountSO2();
    humidity = tavorDev.GetHumidity();
    amountHF = tavorDev.GetAmountHF();
    amountCO = tavorDev.GetAmountCO();
    amountH2S = tavorDev.GetAmountH2S();
}

void Mea::TakeProfiles()
{
    sensorSF6 = tavorDev.GetSensorProfile(TavorDev::SENSOR_SF6);
    sensorSO2 = tavorDev.GetSensorProfile(TavorDev::SENSOR_SO2);
    sensorHum = tavorDev.GetSensorProfile(TavorDev::SENSOR_HUM);
    sensorHF = tavorDev.GetSensorProfile(TavorDev::SENSOR_HF);
    sensorCO = tavorDev.GetSensorProfile(TavorDev::SENSOR_CO);
    sensorH2S = tavorDev.GetSensorProfile(TavorDev::SENSOR_H2S);
    sensorPressComp = tavorDev.GetSensorProfile(TavorDev::SENSOR_P6);
}

void Mea::TakeSettings()
{
    unitHumidity = settings.unitHumidity;
    unitPressure = settings.unitPressure;
    unitTemperature = settings.unitTemperature;
    limitMinSF6 = settings.limitMinSF6;
    limitMaxSO2 = settings.limitMaxSO2;
    limitMaxHF = settings.limitMaxHF;
    limitMaxHumidity = settings.limitMaxHumidity;
    limitMinInletPress = settings.limitMinInletPress;
    limitMaxInletPress = settings.limitMaxInletPress;
    limitMaxBkPress = settings.limitMaxBkPress;
}

void Mea::Judge()
{
    reportSF6 = reportSO2 = reportHum = reportHF = NO_REPORT;
    // Limits of SF6 and SO2 are always set; those of humidity and HF may be off.
    if (tavorDev.HasSensor(TavorDev::SENSOR_SF6) && HasValue(amountSF6)) {
        reportSF6 = amountSF6 < limitMinSF6 ? BELOW_MIN : NORMAL;
    }
    if (tavorDev.HasSensor(TavorDev::SENSOR_SO2) && HasValue(amountSO2)) {
        reportSO2 = JudgeByMax(amountSO2, limitMaxSO2);
    }
    const FixPnt3 dewPoint = humidity[unitHumidity];
    const FixPnt3 limitHumidity = limitMaxHumidity[LimitUnit(unitHumidity)];
    if (tavorDev.HasSensor(TavorDev::SENSOR_HUM) && HasValue(dewPoint) && HasValue(limitHumidity)) {
        reportHum = JudgeByMax(dewPoint, limitHumidity);
    }
    if (tavorDev.HasSensor(TavorDev::SENSOR_HF) && HasValue(limitMaxHF) && HasValue(amountHF)) {
        reportHF = JudgeByMax(amountHF, limitMaxHF);
    }

    result = NO_RESULT;
    for (const Report report : {reportSF6, reportSO2, reportHum, reportHF}) {
        if (report == ABOVE_MAX || report == BELOW_MIN) {
            result = FAILED;
        } else if (report == NORMAL && result == NO_RESULT) {
            result = PASSED;
        }
    }
}

String Mea::CreateFilename()
{
    return CreateFilename(DateTime::Now());
}

String Mea::CreateFilename(const DateTime& now)
{
    char stamp[] = "_yyMMDD_hhmmss_";
    (now < SILVESTER_2000 ? SILVESTER_2000 : now).Export(stamp);
    stamp[0] = 'D';
    stamp[7] = 'T';
    for (stamp[14] = 'A'; stamp[14] <= 'Z'; ++stamp[14]) {
        const String file = String(stamp) + ".mea";
        if (!FILE_IsPresent(PATH_Merge(CFG::MeaFilesFolder, file))) {
            return file;
        }
    }
    return String();
}

String BiC(Mea::Report report)
{
    switch (report) {
    case Mea::ABOVE_MAX: return "hi";
    case Mea::NORMAL: return "ok";
    case Mea::BELOW_MIN: return "lo";
    default: return "---";
    }
}

void BiC(const String& text, Mea::Report& report)
{
    report = Mea::NO_REPORT;
    for (const Mea::Report known : {Mea::ABOVE_MAX, Mea::NORMAL, Mea::BELOW_MIN}) {
        if (text == BiC(known)) {
            report = known;
        }
    }
}

String BiC(Mea::Result result)
{
    switch (result) {
    case Mea::PASSED: return "P";
    case Mea::FAILED: return "F";
    default: return "---";
    }
}

void BiC(const String& text, Mea::Result& result)
{
    result = text == "P" ? Mea::PASSED : text == "F" ? Mea::FAILED : Mea::NO_RESULT;
}

QString PrintResult(const Mea::Result& result)
{
    switch (result) {
    case Mea::PASSED: return QCoreApplication::translate("PrintIt", "Bestanden");
    case Mea::FAILED: return QCoreApplication::translate("PrintIt", "Nicht bestanden");
    default: return QCoreApplication::translate("PrintIt", "n.v.");
    }
}

QString PrintReport(const Mea::Report& report)
{
    switch (report) {
    case Mea::ABOVE_MAX: return QCoreApplication::translate("PrintIt", "> Max.");
    case Mea::NORMAL: return QCoreApplication::translate("PrintIt", "Normal");
    case Mea::BELOW_MIN: return QCoreApplication::translate("PrintIt", "< Min.");
    default: return QCoreApplication::translate("PrintIt", "n.v.");
    }
}

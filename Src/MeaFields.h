#pragma once

#include "Mea.h"

/// Calls `visit(key, member)` for each stored field of a `Mea`: its key in the measurement file, and the pointer
/// to the member. "D-" keys describe the instrument, "M-" keys the measurement. The text form of a field follows
/// from its type (`BiC`); this is the one place where keys and fields meet.
template <class Visitor> void VisitFields(Visitor&& visit)
{
    visit("D-ApplType", &Mea::applType);
    visit("D-ApplVers", &Mea::applVers);
    visit("D-BoardType", &Mea::boardType);
    visit("D-MacAddress", &Mea::macAddress);
    visit("D-IPAddress", &Mea::ipAddress);
    visit("D-TDApplType", &Mea::tdApplType);
    visit("D-TDApplVers", &Mea::tdApplVers);
    visit("D-TDBoardType", &Mea::tdBoardType);
    visit("D-TDBoardVers", &Mea::tdBoardVers);
    visit("D-SensorSF6", &Mea::sensorSF6);
    visit("D-SensorSO2", &Mea::sensorSO2);
    visit("D-SensorHumidity", &Mea::sensorHum);
    visit("D-SensorHF", &Mea::sensorHF);
    visit("D-SensorCO", &Mea::sensorCO);
    visit("D-SensorH2S", &Mea::sensorH2S);
    visit("D-SensorPressComp", &Mea::sensorPressComp);
    visit("D-ComprOperTime", &Mea::comprOperTime);
    visit("D-PumpBackNum", &Mea::pumpBackNum);
    visit("M-Name", &Mea::name);
    visit("M-Type", &Mea::type);
    visit("M-DateTime", &Mea::dateTime);
    visit("M-InTemperature", &Mea::inTemperature);
    visit("M-RelHumidity", &Mea::relHumidity);
    visit("M-AirPressure", &Mea::airPressure);
    visit("M-SensorPassageTime", &Mea::sensPassageTime);
    visit("M-PressComp", &Mea::pressureComp);
    visit("M-PressInlet", &Mea::pressureInlet);
    visit("M-PressBack", &Mea::pressureBack);
    visit("M-PressOper", &Mea::pressureOper);
    visit("M-PressDepot", &Mea::pressureDepot);
    visit("M-AmountSF6", &Mea::amountSF6);
    visit("M-AmountSO2", &Mea::amountSO2);
    visit("M-Humidity", &Mea::humidity);
    visit("M-AmountHF", &Mea::amountHF);
    visit("M-AmountCO", &Mea::amountCO);
    visit("M-AmountH2S", &Mea::amountH2S);
    visit("M-UnitHumidity", &Mea::unitHumidity);
    visit("M-UnitPressure", &Mea::unitPressure);
    visit("M-UnitTemperature", &Mea::unitTemperature);
    visit("M-LimitMinSF6", &Mea::limitMinSF6);
    visit("M-LimitMaxSO2", &Mea::limitMaxSO2);
    visit("M-LimitMaxHF", &Mea::limitMaxHF);
    visit("M-LimitMaxHumidity", &Mea::limitMaxHumidity);
    visit("M-LimitMinInletPress", &Mea::limitMinInletPress);
    visit("M-LimitMaxInletPress", &Mea::limitMaxInletPress);
    visit("M-LimitMaxBkPress", &Mea::limitMaxBkPress);
    visit("M-ReportSF6", &Mea::reportSF6);
    visit("M-ReportSO2", &Mea::reportSO2);
    visit("M-ReportHumidity", &Mea::reportHum);
    visit("M-ReportHF", &Mea::reportHF);
    visit("M-Result", &Mea::result);
    visit("M-AutoPumpBack", &Mea::autoPumpBack);
}

#pragma once

#include "RRx/RRFixPnt.h"
#include "Types.h"

#include <QString>

/// What the user chose: limits, units, language, and what dialogs remember. A plain record that all read and
/// write directly. It is on the medium only after `Save`, at the regular end of the program.
class Settings {
public:
    RR::SInt32 dsplAutoDimTime = 0;          ///< kept for the file alone
    LangCC applLanguage;
    Humidity::Unit unitHumidity = Humidity::CELS;
    Pressure::Unit unitPressure = Pressure::BAR;
    Temperature::Unit unitTemperature = Temperature::CELS;
    bool delOldestMea = false;               ///< when the store of measurements is full
    bool showAvailSensOnly = false;
    bool flowChartView = false;              ///< the first tab starts with the flow chart
    RR::FixPnt1 limitMinSF6 = 0;             ///< percent by volume
    RR::FixPnt3 limitMaxSO2 = 0;             ///< ppm
    RR::FixPnt3 limitMaxHF = 0;              ///< ppm, invalid for no limit
    Humidity limitMaxHumidity;
    Pressure limitMinInletPress;
    Pressure limitMaxInletPress;
    Pressure limitMaxBkPress;
    RR::SInt32 meaSaveNumber = 0;            ///< running number of measurements, 1 to 9999
    QString meaRecentName;
    RR::SInt32 sensPassageTime = 0;          ///< seconds that the gas flows through the sensors
    RR::SInt32 inspJobNo = 0;                ///< test sequence, an `InspJobType`
    RR::SInt32 inspJobPasses = 0;
    RR::SInt32 inspJobPassTime = 0;          ///< seconds
    MeaTransFormat saveOneMsgAs = MTF_SAVE_NATIVE;
    MeaTransFormat saveAllMsgAs = MTF_SAVE_NATIVE;
    RR::SInt32 showSensorValuesAfter = 0;    ///< percent of a measurement's progress
    bool autoPumpBack = false;
    bool autoMeaBEnabled = false;            ///< a measurement of type B is a series
    int autoMeaBCount = 0;                   ///< of measurements in a series
    int autoMeaBInterval = 0;                ///< minutes between them
    bool autoMeaCEnabled = false;            ///< likewise for type C
    int autoMeaCCount = 0;
    int autoMeaCInterval = 0;

    /// The factory values.
    static const Settings def;

    /// Takes the values of the file, and the factory value for each that is missing or unreadable there.
    /// Faults end in a log line.
    void Load();
    /// Writes the file if its content would change. A failure ends in a log line.
    void Save();
    /// Takes the factory values and saves them.
    void Reset();
};

extern Settings settings;

#pragma once

#include "RRx/RRDateTime.h"
#include "RRx/RRFixPnt.h"
#include "RRx/RRList.h"
#include "RRx/RRString.h"
#include "SLVersion.h"
#include "TavorDev.h"
#include "Types.h"

#include <QCoreApplication>
#include <QString>

/// One measurement: everything that was true at the instant it was taken, so that it can be judged and
/// shown years later without the settings and sensors of that day. A plain value.
class Mea {
    Q_DECLARE_TR_FUNCTIONS(Mea)

public:
    enum LoadState {
        ACCEPTED = 0,
        REJECTED = 1, ///< missing, unreadable or no measurement file; the record is empty
        MODIFIED = 2  ///< readable, but no longer as the instrument wrote it
    };
    enum Result { PASSED = 0, FAILED = 1, NO_RESULT = 2 };
    enum Report { ABOVE_MAX = 0, NORMAL = 1, BELOW_MIN = 2, NO_REPORT = 3 };

    /// One line of the display form.
    struct Item {
        char type = 'x'; ///< '-' section heading, 'x' item, '*' overall result
        QString name;
        QString value;
    };

    bool IsEmpty() const { return empty; }
    void SetEmpty() { *this = Mea(); }

    /// Takes all readings of the sensor unit, its sensor profiles and the present settings, and passes the
    /// verdict. `actType` is the letter of the job that measures. A reading that the unit doesn't have
    /// stays without value and leaves its report at `NO_REPORT`.
    void Snapshot(char actType);

    /// A bare file name that is free in the measurement folder, empty if all letters of this second are taken.
    static RR::String CreateFilename();
    /// The same for a measurement at `now`; a time before the year 2000 counts as its first second.
    static RR::String CreateFilename(const RR::DateTime& now);

    /// Writes the record below the bare name `file` in the measurement folder. Advances the running number
    /// of the settings (1 to 9999), also if the write fails. On failure the file may be short.
    bool Save(const RR::String& file) const;

    /// Reads the measurement folder's `file`. Only `ACCEPTED` ends with `IsEmpty()` false; a `MODIFIED`
    /// record holds the values of the file nevertheless.
    LoadState Load(const RR::String& file);
    /// The same for lists of many: fills no more than `dateTime`, `name`, `amountSF6` and `result`.
    LoadState LoadBrief(const RR::String& file);

    /// The record as display lines in the language and units of today; `isPreView` gives the short list.
    void Export(RR::List<Item>& items, bool isPreView) const;
    /// The full list as plain text: no bullets or arrows, white space simplified, the title of a section as the
    /// value of a line that is named "section" in the language of today.
    void ExportUTF8(RR::List<Item>& items) const;
    /// The comma-separated form of `items`, two quoted fields a line, with CR LF. Double quotes are not doubled.
    static QString PrintCSV(const RR::List<Item>& items);

    RR::String applType;
    LVersion applVers;
    RR::String boardType;
    RR::String macAddress;
    RR::String ipAddress;
    RR::SInt32 tdApplType = RR::INVALID;
    SVersion tdApplVers;
    RR::SInt32 tdBoardType = RR::INVALID;
    SVersion tdBoardVers;

    QString name;
    char type = '0';       ///< letter of the job, '0' for none
    RR::DateTime dateTime; ///< local time
    Temperature inTemperature;
    RR::SInt32 relHumidity = RR::INVALID;     ///< inside the instrument, percent
    RR::SInt32 airPressure = RR::INVALID;     ///< hPa
    RR::SInt32 sensPassageTime = RR::INVALID; ///< as set, seconds

    Pressure pressureComp; ///< of the gas compartment
    Pressure pressureInlet;
    Pressure pressureBack;
    Pressure pressureOper;
    Pressure pressureDepot;
    RR::FixPnt1 amountSF6{RR::INVALID}; ///< volume percent
    RR::FixPnt3 amountSO2{RR::INVALID}; ///< this and the amounts below in ppm by volume
    Humidity humidity;
    RR::FixPnt3 amountHF{RR::INVALID};
    RR::FixPnt3 amountCO{RR::INVALID};
    RR::FixPnt3 amountH2S{RR::INVALID};

    TavorDev::SensorProfile sensorSF6;
    TavorDev::SensorProfile sensorSO2;
    TavorDev::SensorProfile sensorHum;
    TavorDev::SensorProfile sensorHF;
    TavorDev::SensorProfile sensorCO;
    TavorDev::SensorProfile sensorH2S;
    TavorDev::SensorProfile sensorPressComp;

    Humidity::Unit unitHumidity = Humidity::CELS;
    Pressure::Unit unitPressure = Pressure::BAR;
    Temperature::Unit unitTemperature = Temperature::CELS;
    RR::FixPnt1 limitMinSF6{RR::INVALID};
    RR::FixPnt3 limitMaxSO2{RR::INVALID};
    RR::FixPnt3 limitMaxHF{RR::INVALID};
    Humidity limitMaxHumidity;
    Pressure limitMinInletPress;
    Pressure limitMaxInletPress;
    Pressure limitMaxBkPress;

    Report reportSF6 = NO_REPORT;
    Report reportSO2 = NO_REPORT;
    Report reportHum = NO_REPORT;
    Report reportHF = NO_REPORT;
    Result result = NO_RESULT;

    RR::SInt32 comprOperTime = RR::INVALID; ///< minutes
    RR::SInt32 pumpBackNum = RR::INVALID;
    bool autoPumpBack = false;

private:
    bool empty = true;

    void TakeReadings();
    void TakeProfiles();
    void TakeSettings();
    void Judge();
};

RR::String BiC(Mea::Report report);
/// An unknown text gives `NO_REPORT`.
void BiC(const RR::String& text, Mea::Report& report);
RR::String BiC(Mea::Result result);
/// An unknown text gives `NO_RESULT`.
void BiC(const RR::String& text, Mea::Result& result);

QString PrintResult(const Mea::Result& result);
QString PrintReport(const Mea::Report& report);

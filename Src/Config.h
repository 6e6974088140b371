#pragma once

#include "RRx/RRFixPnt.h"
#include "Types.h"

/// What is fixed when the program is built. Nothing here can be set at run time.
namespace CFG {

inline constexpr const char* ApplType = "ZARN";
inline constexpr const char* ApplVers = "V1.90";
inline constexpr const char* BoardType = "10";
inline constexpr const char* FontFamily = "DejaVu Sans";

inline constexpr const char* SettFileFolder = "/mnt/sdcard-i/Settings";
inline constexpr const char* SettFileName = "ZARNSettings.ini";
inline constexpr const char* MeaNameListPath = "/mnt/sdcard-i/Settings";
inline constexpr const char* MeaNameListFile = "MeaNameList.csv";
inline constexpr const char* MeaFilesFolder = "/mnt/sdcard-i/Measurements";
inline constexpr const char* MeaEntryIdent = "ZARN-Measurement";
inline constexpr const char* MeaHdrPath = "/mnt/sdcard-i/Measurements";
inline constexpr const char* MeaHdrFile = ".meaHdrs.dat";
inline constexpr const char* UsbMountPoint = "/mnt/usb-storage/";
inline constexpr const char* UsbMeaFolder = "Measurements";
inline constexpr const char* UsbCsvFolder = "MeasurementsCSV";
inline constexpr const char* InspKeyFileName = "ZARNInspMode.key";

// Bounds of the limits that the user sets, in the units of the settings.
extern const RR::FixPnt1 LimitMinSF6Lo;
extern const RR::FixPnt1 LimitMinSF6Hi;
extern const Humidity LimitMaxHumLo;
extern const Humidity LimitMaxHumHi;
extern const Pressure LimitMaxBkPressLo;
extern const Pressure LimitMaxBkPressHi;
extern const Pressure LimitInletPressMin;
extern const Pressure LimitInletPressMax;

extern const RR::FixPnt1 LowBattWarning;     ///< volts, below it the battery symbol blinks
extern const RR::FixPnt1 LowBattLimit;       ///< volts, below it the instrument shuts off
extern const Pressure MeaPumpBackLimit;      ///< absolute, where pumping back ends
extern const Temperature InsideTempLimit;    ///< of the housing
extern const RR::FixPnt3 DryingThreshold;    ///< dew point in degrees Celsius, above it the sensors need drying
extern const RR::FixPnt3 SysAirPressDevMin;  ///< bar, inner pressure against the air pressure
extern const RR::FixPnt3 SysAirPressDevMax;  ///< bar, likewise
extern const RR::FixPnt3 DepotEvacPressMin;  ///< bar, of an evacuated storage compartment

}

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
inline constexpr RR::FixPnt1 LimitMinSF6Lo(0.5);
inline constexpr RR::FixPnt1 LimitMinSF6Hi(99.9);
inline constexpr Humidity LimitMaxHumLo(-79, -110, 0.6, 0.08);
inline constexpr Humidity LimitMaxHumHi(20, 68, 23000, 2820);
inline constexpr Pressure LimitMaxBkPressLo(0.004, 0.4, 0.06, 0.001);
inline constexpr Pressure LimitMaxBkPressHi(0.03, 3, 0.45, 0.003);
inline constexpr Pressure LimitInletPressMin(1.2, 120, 17, 0.12);
inline constexpr Pressure LimitInletPressMax(33, 3300, 480, 3.3);

inline constexpr RR::FixPnt1 LowBattWarning(20.5);      ///< volts, below it the battery symbol blinks
inline constexpr RR::FixPnt1 LowBattLimit(20.0);        ///< volts, below it the instrument shuts off
inline constexpr Pressure MeaPumpBackLimit(11, 1100, 160, 1.1); ///< absolute, where pumping back ends
inline constexpr Temperature InsideTempLimit(60, 140);  ///< of the housing
inline constexpr RR::FixPnt3 DryingThreshold(-10);      ///< dew point in degrees Celsius, above it the sensors need drying
inline constexpr RR::FixPnt3 SysAirPressDevMin(-0.21);  ///< bar, inner pressure against the air pressure
inline constexpr RR::FixPnt3 SysAirPressDevMax(0.21);   ///< bar, likewise
inline constexpr RR::FixPnt3 DepotEvacPressMin(-0.1);   ///< bar, of an evacuated storage compartment

}

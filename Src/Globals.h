#pragma once

#include "RRx/RRDateTime.h"
#include "RRx/RRFixPnt.h"
#include "RRx/RRString.h"
#include "RRx/RRTypeDefs.h"
#include "Types.h"

#include <QLocale>
#include <QString>
#include <QTranslator>

class QObject;
class WndMain;

// What ties the program to its board: clock, storage, network, display, language. All run on the event loop's
// thread.

/// The one main window, null when there is none.
extern WndMain* wndMain;
/// `wndMain` for those who needn't know what it is.
QObject* WndMainObject();
/// Shows a message in the status bar for 5 seconds, if there is a window.
void StatusMsg(const QString& msg);

/// The one translator. Empty for German, the language of the source texts.
extern QTranslator translator;

/// Sets the hardware clock (to universal time) and the system clock to the local time `dt`. False, maybe with
/// the hardware clock set, for a time that one of them can't hold or without a hardware clock.
bool SetClock(const RR::DateTime& dt);

/// Unmounts by force; an empty path is left alone.
void Unmount(const RR::String& mntPoint);
/// The internal memory card is plugged.
bool MMCAvailable();
/// The folder of the measurements can be read and written.
bool MMCReadWritable();
/// Mounts a stick. Gives the mount point, empty on failure.
RR::String MountUSBStorage(const char* devNode);
/// Free space in MiB of what is mounted there, and its `capacity` in MiB; both invalid on failure.
RR::SInt32 GetDiskSpaceFree(const char* devMountPoint, RR::SInt32& capacity);
RR::SInt32 GetDiskSpaceFree(const char* devMountPoint);

/// Gives the interface an address of four decimal numbers, and stores the command for the next start of the
/// board. False for any other text, and on a failure of either step.
bool SetIpAdr(const RR::String& ipStr, const char* interface);
/// The address in dotted form, empty on failure.
RR::String GetIpAdr(const char* interface);
/// Six pairs of hexadecimal digits joined by ":", empty on failure.
RR::String GetMacAdr(const char* interface);

/// Brightness of the backlight in percent; what lies outside counts as the nearest end.
void SetDsplBrightness(RR::SInt32 b);
/// Blackens the screen. Like the two below it writes to the framebuffer behind the window system's back, and
/// does nothing without one.
void DsplClear();
/// Dims what the screen shows to half, as a backdrop.
void DsplHalfbright();
/// Puts the sign of waiting into the middle of the screen.
void DsplShowHourglass();

/// The locale of the language in the settings.
QLocale GetLocal();
/// Translates the interface and stores the language in the settings. False, with nothing changed there,
/// without a translation.
bool SelectLanguage(LangCC langCC);
bool HasLanguage(LangCC langCC);

/// Takes one byte into a reflected CRC-32 of the polynomial 0xEDB88320. Initial value and final inversion are
/// the caller's.
void UpdateCRC32(RR::UInt08 data, RR::UInt32& crc);
void UpdateCRC32(const char* bytes, RR::SInt32 num, RR::UInt32& crc);
/// The step in which a value of this size is set: about a hundredth of it, on a 1-2-5 ladder.
RR::FixPnt3 RasterizeValue(const RR::FixPnt& v);

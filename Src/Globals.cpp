#include "Globals.h"

#include "Board/Board.h"
#include "Config.h"
#include "RRx/RRFile.h"
#include "RRx/RRList.h"

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <iterator>
#include <linux/rtc.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/statvfs.h>
#include <unistd.h>

using RR::SInt32;
using RR::String;

bool SetClock(const RR::DateTime& dt)
{
    if (!dt.IsValid()) {
        return false;
    }
    RR::DateTime utc = dt;
    utc.Universalize();
    if (!utc.IsValid()) {
        return false;
    }
    const int fd = open(Board::Locate("/dev/rtc0").c_str(), O_WRONLY | O_CLOEXEC);
    if (fd < 0) {
        return false;
    }
    rtc_time rtc = {};
    rtc.tm_sec = utc.GetSecond();
    rtc.tm_min = utc.GetMinute();
    rtc.tm_hour = utc.GetHour();
    rtc.tm_mday = utc.GetDay();
    rtc.tm_mon = utc.GetMonth() - 1;
    rtc.tm_year = utc.GetYear() - 1900;
    rtc.tm_wday = utc.CalcWeekDay() % 7;
    rtc.tm_yday = utc.CalcYearDay() - 1;
    ioctl(fd, RTC_SET_TIME, &rtc);
    close(fd);

    RR::UInt32 secs = 0;
    if (!utc.Export(secs)) {
        return false;
    }
    Board::SetSystemClock(secs);
    return true;
}

void Unmount(const String& mntPoint)
{
    if (!mntPoint.IsEmpty()) {
        Board::Unmount(mntPoint);
    }
}

bool MMCAvailable()
{
    return RR::FILE_IsPresent("/dev/mmcblk0p1");
}

bool MMCReadWritable()
{
    return RR::FILE_IsReadWritable(CFG::MeaFilesFolder);
}

String MountUSBStorage(const char* devNode)
{
    static bool once = true;
    if (once && !RR::DIR_IsPresent(CFG::UsbMountPoint) && !RR::DIR_Create(CFG::UsbMountPoint)) {
        RR::Log("[ZARN] Unable to create mount point \"%s\"\n", CFG::UsbMountPoint);
    }
    once = false;

    if (!Board::Mount(devNode, CFG::UsbMountPoint)) {
        RR::Log("[ZARN] Mount failed: \"%s\"\n", std::strerror(errno));
        return String();
    }
    RR::Log("[ZARN] Device \"%s\" mounted to \"%s\"\n", devNode, CFG::UsbMountPoint);
    return CFG::UsbMountPoint;
}

SInt32 GetDiskSpaceFree(const char* devMountPoint, SInt32& capacity)
{
    capacity = RR::INVALID;
    struct statvfs64 state = {};
    if (statvfs64(Board::Locate(devMountPoint).c_str(), &state) != 0 || state.f_frsize == 0) {
        return RR::INVALID;
    }
    const RR::UInt64 blockSize = state.f_frsize;
    capacity = static_cast<SInt32>(state.f_blocks * blockSize >> 20);
    return static_cast<SInt32>(state.f_bavail * blockSize >> 20);
}

SInt32 GetDiskSpaceFree(const char* devMountPoint)
{
    SInt32 capacity = RR::INVALID;
    return GetDiskSpaceFree(devMountPoint, capacity);
}

bool SetIpAdr(const String& ipStr, const char* interface)
{
    RR::List<String> parts;
    ipStr.Split(".", parts, false);
    if (parts.GetCount() != 4) {
        return false;
    }
    String adr;
    for (auto part = parts.First(); !part.IsNil(); part.Next()) {
        RR::UInt08 number = 0;
        // The parser would read hexadecimal numbers as well.
        if (part().Contains("xX") || !String::Parse(part(), number)) {
            return false;
        }
        adr += (part.IsFirst() ? "" : ".") + String::Print(RR::UInt32{number});
    }
    const String command = String("ifconfig ") + interface + " " + adr;
    if (Board::Shell(command) == -1) {
        return false;
    }
    return RR::FILE_Write("/etc/config_eth", command + "\n");
}

namespace {

/// Asks the kernel about an interface. False without an answer; `answer` is then undefined.
bool QueryInterface(const char* interface, unsigned long request, ifreq& answer)
{
    if (!interface || std::strlen(interface) >= sizeof answer.ifr_name) {
        return false;
    }
    const int fd = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0) {
        return false;
    }
    answer = {};
    answer.ifr_addr.sa_family = AF_INET;
    std::strcpy(answer.ifr_name, interface);
    const bool answered = ioctl(fd, request, &answer) == 0;
    close(fd);
    return answered;
}

}

String GetIpAdr(const char* interface)
{
    ifreq answer;
    if (!QueryInterface(interface, SIOCGIFADDR, answer)) {
        return String();
    }
    sockaddr_in adr;
    std::memcpy(&adr, &answer.ifr_addr, sizeof adr);
    return inet_ntoa(adr.sin_addr);
}

String GetMacAdr(const char* interface)
{
    ifreq answer;
    if (!QueryInterface(interface, SIOCGIFHWADDR, answer)) {
        return String();
    }
    String text;
    for (int i = 0; i < 6; ++i) {
        const auto byte = static_cast<RR::UInt08>(answer.ifr_hwaddr.sa_data[i]);
        text += (i > 0 ? ":" : "") + String::PrintHex(byte);
    }
    return text;
}

namespace {

/// What each byte that leaves the register does to the rest of it.
constexpr std::array<RR::UInt32, 256> MakeCRC32Steps()
{
    std::array<RR::UInt32, 256> steps{};
    for (RR::UInt32 byte = 0; byte < steps.size(); ++byte) {
        RR::UInt32 step = byte;
        for (int bit = 0; bit < 8; ++bit) {
            step = (step >> 1) ^ (step & 1 ? 0xEDB88320u : 0u);
        }
        steps[byte] = step;
    }
    return steps;
}

constexpr std::array<RR::UInt32, 256> crc32Steps = MakeCRC32Steps();

}

void UpdateCRC32(RR::UInt08 data, RR::UInt32& crc)
{
    crc = (crc >> 8) ^ crc32Steps[(data ^ crc) & 0xFF];
}

void UpdateCRC32(const char* bytes, SInt32 num, RR::UInt32& crc)
{
    RR::UInt32 inRegister = crc;
    for (const char* const end = bytes + num; bytes != end; ++bytes) {
        UpdateCRC32(static_cast<RR::UInt08>(*bytes), inRegister);
    }
    crc = inRegister;
}

RR::FixPnt3 RasterizeValue(const RR::FixPnt& v)
{
    // Thousandths; a value of 50000 or more gets the last raster.
    static constexpr SInt32 rasters[] = {1,    2,    5,     10,    20,    50,     100,    200,    500,   1000,
                                         2000, 5000, 10000, 20000, 50000, 100000, 200000, 500000, 1000000};
    const SInt32 value = RR::FixPnt3(v).Eject();
    const SInt32* raster = rasters;
    while (raster != std::end(rasters) - 1 && value >= *raster * 100) {
        ++raster;
    }
    return RR::FixPnt3::Inlay(*raster);
}

#include "Board/Board.h"

#include <cstdlib>
#include <sys/mount.h>
#include <sys/time.h>

namespace Board {

const std::string& Root()
{
    static const std::string root;
    return root;
}

std::string Locate(const char* path)
{
    return path;
}

bool Mount(const char* devNode, const char* mountPoint)
{
    return mount(devNode, mountPoint, "vfat", MS_SYNCHRONOUS, "") == 0;
}

void Unmount(const char* mountPoint)
{
    umount2(mountPoint, MNT_FORCE);
}

void SetSystemClock(std::uint32_t secs)
{
    const timeval time = {static_cast<time_t>(secs), 0};
    const struct timezone zone = {};
    settimeofday(&time, nullptr);
    // The kernel takes a time and a zone in separate calls only.
    settimeofday(nullptr, &zone);
}

int Shell(const char* command)
{
    return std::system(command);
}

void DimWindows()
{
}

void ShowWaitingSign(const std::uint8_t*, int, int)
{
}

std::vector<std::string> WindowSystemArgs()
{
    return {"-platform", "linuxfb:fb=/dev/fb0:size=800x480"};
}

}

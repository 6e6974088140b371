#include "Board/Board.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t framebufferBytes = 768000;
const char* const backlightFolder = "/sys/devices/platform/s3c24xx-pwm.1/pwm-backlight.0/backlight:pwm-backlight";

void Touch(const fs::path& file, std::uintmax_t size = 0)
{
    if (fs::exists(file)) {
        return;
    }
    fs::create_directories(file.parent_path());
    std::ofstream(file).close();
    if (size > 0) {
        fs::resize_file(file, size);
    }
}

/// Makes what a board has from the factory. The card is plugged on a new board only, so that one
/// that was pulled stays away.
void Furnish(const fs::path& root)
{
    std::error_code ignored;
    const bool newBoard = !fs::exists(root / "mnt/sdcard-i", ignored);
    fs::create_directories(root / "dev", ignored);
    fs::create_directories(root / "etc", ignored);
    fs::create_directories(root / "mnt/sdcard-i/Measurements", ignored);
    fs::create_directories(root / "usb-stick", ignored);
    Touch(root / "dev/fb0", framebufferBytes);
    Touch(root / "dev/rtc0");
    Touch(root.string() + backlightFolder + "/brightness");
    if (newBoard) {
        Touch(root / "dev/mmcblk0p1");
    }
}

std::string MakeRoot()
{
    const char* named = std::getenv("ZARN_BOARD");
    std::error_code failed;
    fs::path root = fs::absolute(named && *named ? named : "desk", failed).lexically_normal();
    std::string text = root.string();
    while (text.size() > 1 && text.back() == '/') {
        text.pop_back();
    }
    try {
        Furnish(text);
    } catch (const fs::filesystem_error& error) {
        std::printf("[ZARN] Desk board: %s\n", error.what());
    }
    return text;
}

}

namespace Board {

const std::string& Root()
{
    static const std::string root = MakeRoot();
    return root;
}

std::string Locate(const char* path)
{
    return *path == '/' ? Root() + path : path;
}

bool Mount(const char* devNode, const char* mountPoint)
{
    std::error_code failed;
    fs::path point = Locate(mountPoint);
    if (!fs::exists(Locate(devNode), failed)) {
        errno = ENOENT;
        return false;
    }
    if (!point.has_filename()) {
        point = point.parent_path();
    }
    // The stick's content shows through a link that stands where the instrument has a mount point. It leads by way of
    // another one beside the device node, which goes with the stick when that is pulled.
    if (fs::is_symlink(point, failed)) {
        errno = EBUSY;
        return false;
    }
    const fs::path content = Locate(devNode) + ".content";
    fs::remove(content, failed);
    fs::create_directory_symlink(fs::path(Root()) / "usb-stick", content, failed);
    fs::remove(point, failed);
    fs::create_directory_symlink(content, point, failed);
    errno = failed.value();
    return !failed;
}

void Unmount(const char* mountPoint)
{
    std::error_code ignored;
    fs::path point = Locate(mountPoint);
    if (!point.has_filename()) {
        point = point.parent_path();
    }
    if (fs::is_symlink(point, ignored)) {
        fs::remove(fs::read_symlink(point, ignored), ignored);
        fs::remove(point, ignored);
        fs::create_directory(point, ignored);
    }
}

void SetSystemClock(std::uint32_t secs)
{
    std::printf("[ZARN] Desk board: system clock to %u\n", secs);
}

int Shell(const char* command)
{
    std::printf("[ZARN] Desk board: shell \"%s\"\n", command);
    return 0;
}

std::vector<std::string> WindowSystemArgs()
{
    return {};
}

}

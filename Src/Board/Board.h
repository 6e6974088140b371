#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The one door to what only the instrument has. Two backends serve it, Device and Desk; which one is
/// chosen when a program is linked, and nothing in the program asks.
namespace Board {

/// The folder below which the board's absolute paths lie, without a final separator: empty on the
/// instrument. The same for the whole run of the program.
const std::string& Root();

/// Where `path` really lies: an absolute path gets `Root()` in front, any other stays as it is.
std::string Locate(const char* path);

/// Mounts the "vfat" medium of `devNode` on `mountPoint`, for synchronous writing. On failure `errno` tells why.
bool Mount(const char* devNode, const char* mountPoint);

/// Unmounts by force; a folder that isn't mounted is left alone.
void Unmount(const char* mountPoint);

/// Sets the system clock to `secs` seconds since 1 January 1970, UTC. The desk only logs it.
void SetSystemClock(std::uint32_t secs);

/// Runs a shell command and returns what `system` returns, -1 on failure. The desk only logs it and returns 0.
int Shell(const char* command);

// What stands behind the windows is drawn into the framebuffer. The two below draw it where the window system keeps
// the framebuffer to itself; the instrument does nothing there. Event loop's thread only.

/// Dims all windows, until the next window that opens closes again or a finger touches what is dimmed.
void DimWindows();
/// Puts the sign of waiting, `width` x `height` grey bytes line by line, into the middle of the dimmed front window.
void ShowWaitingSign(const std::uint8_t* grey, int width, int height);

/// The arguments that the window system needs on this board, to be put behind the program's name.
std::vector<std::string> WindowSystemArgs();

}

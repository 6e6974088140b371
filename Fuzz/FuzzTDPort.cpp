#include "Board/Board.h"
#include "TDPort.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

// What the sensor unit sends, in any form. A plain file stands for the line: what the port writes takes the place
// of the padding at its head, and its end is the silence that ends an exchange.

namespace {

constexpr const char* devicePath = "/dev/ttyFuzz";
constexpr std::size_t longestRequest = 206;

__attribute__((constructor(101))) void PlugBoard()
{
    static char folder[] = "/dev/shm/zarn-fuzz-XXXXXX";
    if (mkdtemp(folder)) {
        setenv("ZARN_BOARD", folder, 1);
        std::atexit([] {
            std::error_code ignored;
            std::filesystem::remove_all(folder, ignored);
        });
    }
}

void Expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

std::string HexLine(const TDMsg& msg)
{
    char text[16];
    std::snprintf(text, sizeof text, "%c %08X %02X", msg.GetType() == TDMsg::READ ? 'r' : 'w', msg.GetLoc(), static_cast<unsigned>(msg.GetNum()));
    std::string line = text;
    for (int i = 0; msg.GetType() == TDMsg::READ && i < msg.GetNum(); ++i) {
        std::snprintf(text, sizeof text, " %02X", msg[i]);
        line += text;
    }
    return line + "\r";
}

/// Runs one exchange against a line that holds `received`.
bool Exchange(TDMsg& msg, const std::string& received)
{
    const std::size_t request = 14 + (msg.GetType() == TDMsg::WRITE ? 3 * static_cast<std::size_t>(msg.GetNum()) : 0);
    std::ofstream(Board::Locate(devicePath), std::ios::binary) << std::string(std::min(request, longestRequest), ' ') << received;
    TDPort port;
    Expect(port.Open(devicePath));
    const bool taken = port.Transceive(msg);
    Expect(taken != msg.IsDiscarded());
    return taken;
}

}

/// The first two bytes choose the request, the rest is what comes back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2) {
        return 0;
    }
    const int num = data[1] % (TDMsg::CAPACITY + 1);
    const std::uint8_t bytes[TDMsg::CAPACITY] = {};
    TDMsg msg;
    if (data[0] & 1) {
        msg.Setup(0x10000600, num, bytes);
    } else {
        msg.Setup(0x10000100, num);
    }
    const TDMsg request = msg;
    if (Exchange(msg, std::string(reinterpret_cast<const char*>(data) + 2, size - 2))) {
        Expect(msg.GetLoc() == request.GetLoc() && msg.GetNum() == request.GetNum() && msg.GetType() == request.GetType());
        // What was understood is understood again in its plain form.
        TDMsg again = request;
        Expect(Exchange(again, HexLine(msg)));
        Expect(std::memcmp(again.Data(), msg.Data(), msg.GetType() == TDMsg::READ ? static_cast<std::size_t>(num) : 0) == 0);
    }
    return 0;
}

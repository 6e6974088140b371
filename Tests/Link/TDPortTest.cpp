#include "Board/Board.h"
#include "TDPort.h"

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace std::string_literals;

namespace {

constexpr const char* devicePath = "/dev/ttyTest";

/// The far end of a pty whose near end is a serial device of the board.
class FarEnd {
public:
    FarEnd()
    {
        master = posix_openpt(O_RDWR | O_NOCTTY);
        grantpt(master);
        unlockpt(master);
        const fs::path link = Board::Locate(devicePath);
        fs::create_directories(link.parent_path());
        fs::remove(link);
        fs::create_symlink(ptsname(master), link);
    }
    ~FarEnd() { close(master); }

    void Send(const std::string& bytes)
    {
        ASSERT_EQ(write(master, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }

    /// Takes one request off the line, up to its CR.
    std::string Receive()
    {
        std::string text;
        char c;
        while (text.back() != '\r' && read(master, &c, 1) == 1) {
            text += c;
        }
        return text;
    }

private:
    int master;
};

struct TDPortTest : testing::Test {
    TDPortTest() { opened = port.Open(devicePath); }

    /// Runs one exchange in which the far end answers with `response`, and keeps the request sent.
    bool Exchange(TDMsg& msg, const std::string& response)
    {
        std::thread unit([&] {
            request = farEnd.Receive();
            farEnd.Send(response);
        });
        const bool done = port.Transceive(msg);
        unit.join();
        EXPECT_EQ(done, !msg.IsDiscarded());
        return done;
    }

    FarEnd farEnd;
    TDPort port;
    bool opened;
    std::string request;
};

TDMsg ReadOf(RR::UInt32 loc, int num)
{
    TDMsg msg;
    msg.Setup(loc, num);
    return msg;
}

}

TEST_F(TDPortTest, RequestsStandOnTheWireByteForByte)
{
    ASSERT_TRUE(opened);
    TDMsg msg = ReadOf(0x10000100, 4);
    ASSERT_TRUE(Exchange(msg, "r 10000100 04 00 00 7B 01\r"));
    EXPECT_EQ(request, "R 10000100 04\r");
    EXPECT_EQ(std::string(msg.Data(), msg.Data() + 4), "\0\0\x7B\x01"s);

    const RR::UInt08 on = 1;
    msg.Setup(0x10000700, 1, &on);
    ASSERT_TRUE(Exchange(msg, "w 10000700 01\r\n"));
    EXPECT_EQ(request, "W 10000700 01 01\r");
    EXPECT_EQ(msg[0], 1);

    RR::UInt08 most[64];
    std::fill(most, most + 64, 0xA5);
    msg.Setup(0xFFFFFFFA, 64, most);
    ASSERT_TRUE(Exchange(msg, "w FFFFFFFA 40\r"));
    EXPECT_EQ(request.size(), 206u);
}

TEST_F(TDPortTest, ResponsesAreTakenExactlyWhenTheyAnswerTheRequest)
{
    const std::string good = "r 10000100 02 0A FF\r";
    const std::pair<std::string, bool> rows[] = {
        {good, true}, {"  r10000100 \t 0002  00A   0ff \r", true}, {"r 10000100 02 0A FF\0 junk"s, true},
        // Other lines come first.
        {"r 10000200 02 01 02\r" + good, true}, {"R 10000100 02\r" + good, true}, {"\x01\xFF\x80 r\r" + good, true},
        {std::string(300, 'r') + "\r" + good, true}, {"R 10000100 02 0A FF\r", false}, {"w 10000100 02\r", false},
        {"r 10000101 02 0A FF\r", false}, {"r 10000100 03 0A FF\r", false}, {"r 10000100 102 0A FF\r", false},
        {"r 10000100 02 0A\r", false}, {"r 10000100 02 0A FF 00\r", false}, {"r 10000100 02 0A 100\r", false},
        {"r 10000100 02 0A FG\r", false}, {"r 110000100 02 0A FF\r", false}, {"r 10000100 02 0A FF", false},
        {"\r\n\r\n \r", false},
        // The longest line has 240 characters.
        {"r 10000100 " + std::string(222, '0') + "2 0A FF\r", true},
        {"r 10000100 " + std::string(223, '0') + "2 0A FF\r", false}};
    for (const auto& [line, taken] : rows) {
        TDMsg msg = ReadOf(0x10000100, 2);
        EXPECT_EQ(Exchange(msg, line), taken) << line;
        EXPECT_TRUE(!taken || (msg[0] == 0x0A && msg[1] == 0xFF)) << line;
        port.Flush();
    }
    TDMsg write;
    write.Setup(0x10000700, 0, nullptr);
    EXPECT_FALSE(Exchange(write, "w 10000700 00 01\r")) << "a write's response with data";
}

TEST_F(TDPortTest, SilenceEndsAnExchangeAfter200Milliseconds)
{
    TDMsg msg = ReadOf(0x10000100, 2);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(port.Transceive(msg));
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_TRUE(took >= std::chrono::milliseconds(190) && took < std::chrono::milliseconds(600)) << took.count();

    TDMsg discarded = ReadOf(0x10000100, 1);
    discarded.Discard();
    farEnd.Receive();
    farEnd.Send("r 10000100 1 7\r");
    EXPECT_TRUE(port.Transceive(discarded)) << "waits for an answer without sending";
    EXPECT_EQ(discarded[0], 7);

    port.Close();
    EXPECT_FALSE(port.Transceive(msg));
    EXPECT_FALSE(port.Open("/dev/ttyNone") || port.IsOpen());
}

TEST(TDMsgDeathTest, BoundsStopTheProgram)
{
    TDMsg msg;
    EXPECT_DEATH(msg.Setup(0, 65), "n >= 0 && n <= CAPACITY");
    EXPECT_DEATH(msg[64] = 0, "index >= 0 && index < CAPACITY");
}

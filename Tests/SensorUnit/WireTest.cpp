#include "UnitProcess.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>

namespace {

using std::optional;
using std::string;

const string deviceInfo = "r FFFFFFF0 04 37 60 11 20";

/// A request and what the unit answers; an empty answer is silence.
struct Exchange {
    string request, answer;
};

/// The answer to `request`, empty for silence, which shows by the answer to a second request coming first.
string Reply(const UnitProcess& unit, const string& request)
{
    const string mark = "r FFFFFFF0 01 ";
    unit.Put(request + "\r");
    const string first = unit.Ask("R FFFFFFF0 01").value_or("nothing at all");
    if (first.compare(0, mark.size(), mark) == 0) {
        return "";
    }
    EXPECT_EQ(unit.Take().value_or("").substr(0, mark.size()), mark) << request;
    return first;
}

void Expect(UnitProcess& unit, const std::vector<Exchange>& exchanges)
{
    for (const Exchange& exchange : exchanges) {
        EXPECT_EQ(Reply(unit, exchange.request), exchange.answer) << exchange.request;
    }
}

string Bytes(int count, const char* byte)
{
    string text;
    for (int i = 0; i < count; i++) {
        text += string(" ") + byte;
    }
    return text;
}

/// A restart takes less than a second.
bool AnswersAgain(const UnitProcess& unit)
{
    for (int i = 0; i < 20; i++) {
        if (unit.Answers()) {
            return true;
        }
    }
    return false;
}

double SecondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}

TEST(Wire, WhatIsNoExactRequestIsNeverAnswered)
{
    UnitProcess unit({"--fast"});
    ASSERT_TRUE(unit.IsReady());
    const string lines[] = {
        "r FFFFFFF0 04", "R fffffff0 04", "RFFFFFFF0 04", "R  FFFFFFF0 04", " R FFFFFFF0 04", "R FFFFFFF0 04 ",
        "R FFFFFFF0  04", "R FFFFFFF0 4", "R FFFFFFF0 004", "R FFFFFFF 04", "R 0FFFFFFF0 04", "R FFFFFFF0",
        "R FFFFFFF0 ", "R", "", " ", "X FFFFFFF0 04", "R FFFFFFF0 04 00", "R FFFFFFF0 00", "R FFFFFFF0 41",
        "R FFFFFFF0 FF", "R\tFFFFFFF0\t04", "R FFFFFFF0 0G", "R +FFFFFF0 04", "W 10000700 01", "W 10000700 01 1",
        "W 10000700 01 01 01", "W 10000700 02 01", "W 10000700 01  01", "W 10000700 01 01x", "W 10000700 00",
        "w 10000700 01", "r FFFFFFF0 04 37 60 11 20", "R FFFFFFF0 04\n", "\nR FFFFFFF0\n04",
        string("R FFFFFFF0\0 04", 14), string("\0R FFFFFFF0 04", 14), "R FFFFFFF0 04\x80", "\xFF\xFE\xFD",
        "R FFFFFFF0 04R FFFFFFF0 04",
        string(206, 'R'), string(5000, ' '), "W 10000600 40" + Bytes(64, "00") + " ",
        "W 10000600 40" + Bytes(65, "00")};
    for (const string& line : lines) {
        unit.Put(line + "\r");
        EXPECT_EQ(unit.Ask("R FFFFFFF0 04").value_or(""), deviceInfo) << line;
    }
    EXPECT_EQ(unit.Control("get compressor"), "off");
    EXPECT_EQ(unit.Counter("overlong"), 4);
    EXPECT_EQ(unit.Counter("malformed"), long(std::size(lines)) - 4 - 1) << "all but the overlong and the empty ones";
    EXPECT_EQ(unit.Counter("unserved"), 0);

    string noise;
    unsigned state = 1;
    for (int i = 0; i < 20000; i++) {
        state = state * 1664525 + 1013904223;
        noise += char(state >> 24);
    }
    unit.Put(noise + "\r");
    EXPECT_TRUE(unit.Answers()) << "after noise";
    unit.Put("R FFFFF");
    std::this_thread::sleep_for(std::chrono::milliseconds(1200));
    EXPECT_TRUE(unit.Answers()) << "behind half a line";
    EXPECT_EQ(unit.Counter("half"), 1);
}

TEST(Wire, LineEndsAndPiecesDoNotMatter)
{
    UnitProcess unit({"--fast"});
    ASSERT_TRUE(unit.IsReady());
    unit.Put("\r\n\r\nR FFFFFFF0 04\r\nR FFFFFFF0 01\rR FFFF");
    EXPECT_EQ(unit.Take().value_or(""), deviceInfo);
    EXPECT_EQ(unit.Take().value_or(""), "r FFFFFFF0 01 37");
    unit.Reopen();
    unit.Put("FFF2 0");
    EXPECT_EQ(unit.Ask("2").value_or(""), "r FFFFFFF2 02 11 20") << "the line was closed in the middle of a request";
}

TEST(Wire, BothDirectionsKeepThePaceOfTheRealLine)
{
    UnitProcess unit;
    ASSERT_TRUE(unit.IsReady());
    // Another sensor's type: not served, but it takes its time.
    const string request = "W 10001200 20" + Bytes(32, "00");
    constexpr double onTheLine = (13 + 32 * 3 + 1 + 14 + 13 + 32 * 3 + 1) * 10 / 57600.0;
    double fastest = 1;
    for (int i = 0; i < 20; i++) {
        const auto start = std::chrono::steady_clock::now();
        unit.Put(request + "\r");
        const optional<string> answer = unit.Ask("R 10001300 20");
        ASSERT_TRUE(answer && answer->size() == 13 + 32 * 3) << i;
        fastest = std::min(fastest, SecondsSince(start));
    }
    EXPECT_GE(fastest, onTheLine);
    EXPECT_LE(fastest, onTheLine * 1.5);
}

TEST(Wire, EveryServiceTakesWhatItAllowsAndNothingElse)
{
    UnitProcess unit({"--fast"});
    ASSERT_TRUE(unit.IsReady());
    const struct {
        const char* location;
        int size;
        bool readable, writable;
        const char* byte; ///< what a write of the whole service may hold in every byte
    } services[] = {
        {"10000100", 4, true, false, "00"}, {"10000200", 7, true, true, "FF"}, {"10000300", 1, false, true, "5E"},
        {"10000500", 4, true, false, "00"}, {"10000600", 6, true, true, "01"}, {"10000700", 1, true, true, "01"},
        {"10000800", 20, true, false, "00"}, {"10000900", 1, true, false, "00"}, {"10000A00", 2, true, true, "01"},
        {"10001100", 32, true, true, "00"}, {"10001200", 32, true, true, "01"}, {"10001300", 32, true, true, "02"},
        {"10001400", 32, true, true, "03"}, {"10001500", 32, true, true, "04"}, {"10001700", 32, true, true, "06"},
        {"10001800", 32, true, true, "07"}, {"10001600", 32, true, false, "05"}, {"10002000", 6, true, true, "80"},
        {"FFFFFFF0", 4, true, false, "00"}, {"FFFFFFF8", 1, false, true, "5E"}};
    for (const auto& service : services) {
        char count[3], more[3];
        std::snprintf(count, sizeof count, "%02X", unsigned(service.size));
        std::snprintf(more, sizeof more, "%02X", unsigned(service.size + 1));
        const string location = service.location;
        const string head = "r " + location + " " + count;
        const string read = Reply(unit, "R " + location + " " + count);
        EXPECT_EQ(read.size(), service.readable ? head.size() + 3 * std::size_t(service.size) : 0) << location;
        EXPECT_EQ(read.substr(0, head.size()), service.readable ? head : "");
        EXPECT_EQ(Reply(unit, "R " + location + " " + more), "") << location;
        const string written = service.writable ? "w " + location + " " + count : "";
        EXPECT_EQ(Reply(unit, "W " + location + " " + count + Bytes(service.size, service.byte)), written);
    }
    EXPECT_EQ(unit.Control("get valves"), "1 2 3 4 5 6 l");
    EXPECT_EQ(unit.Control("get compressor"), "on");
    Expect(unit, {
        {"W 10000300 01 5E", "w 10000300 01"}, {"R 10000600 06", "r 10000600 06 00 00 00 00 00 00"},
        {"R 10000700 01", "r 10000700 01 00"}, {"R 10000A00 02", "r 10000A00 02 00 00"}, {"W 10000602 02 01 02", ""},
        {"W 10000605 02 01 01", ""}, {"R 10000600 06", "r 10000600 06 00 00 00 00 00 00"},
        {"W 10000602 02 01 01", "w 10000602 02"}, {"R 10000602 02", "r 10000602 02 01 01"},
        {"W 10000A01 01 01", "w 10000A01 01"}, {"R 10000A00 02", "r 10000A00 02 00 01"}, {"W 10000700 01 02", ""},
        {"W 10000300 01 5F", ""}, {"W FFFFFFFA 01 5E", ""}, {"R 10000000 01", ""}, {"R 100000FF 02", ""},
        {"R 10000104 01", ""}, {"R 00000000 01", ""}, {"R FFFFFFFF 01", ""}, {"R FFFFFFF3 40", ""}});
}

TEST(Wire, ClockCountersAndSensorMemoriesKeepWhatIsWrittenInParts)
{
    UnitProcess unit({"--fast"});
    ASSERT_TRUE(unit.IsReady());
    // The last second of a leap year's February, and an hour set by itself; then times that don't exist.
    EXPECT_TRUE(unit.Ask("W 10000200 07 07 E8 02 1D 16 3B 3B"));
    EXPECT_TRUE(unit.Ask("W 10000204 01 17"));
    const auto start = std::chrono::steady_clock::now();
    string time = "r 10000200 07 07 E8 02 1D 17 3B 3B";
    while (SecondsSince(start) < 5 && time < "r 10000200 07 07 E8 03") {
        time = unit.Ask("R 10000200 07").value_or("");
    }
    EXPECT_EQ(time, "r 10000200 07 07 E8 03 01 00 00 00");
    const string allSet = "W 10000200 07" + Bytes(7, "FF");
    for (const char* wrong : {allSet.c_str(), "W 10000203 01 20", "W 10000202 02 02 1E", "W 10000204 01 18"}) {
        EXPECT_TRUE(unit.Ask(wrong));
        EXPECT_EQ(unit.Ask("R 10000200 04").value_or(""), "r 10000200 04 07 E8 03 01") << wrong;
    }
    unit.Control("set compressor-seconds 100000");
    Expect(unit, {
        {"W 10002000 02 80 00", "w 10002000 02"}, {"R 10002000 06", "r 10002000 06 80 00 00 01 86 A0"},
        {"W 10002002 04 00 00 00 00", "w 10002002 04"}, {"W 10002001 01 07", "w 10002001 01"},
        {"R 10002000 06", "r 10002000 06 80 07 00 00 00 00"}, {"W 10002001 02 09 01", "w 10002001 02"},
        {"R 10002000 06", "r 10002000 06 80 09 01 00 00 00"},
        // The serial number of the SO2 sensor, then its value, which can't be written, and a type that isn't its own.
        {"W 1000120C 04 41 42 43 44", "w 1000120C 04"}, {"R 1000120C 08", "r 1000120C 08 41 42 43 44 33 31 00 00"},
        {"W 1000121C 04 7F FF FF FF", "w 1000121C 04"}, {"W 10001200 01 09", ""},
        {"R 10001200 01", "r 10001200 01 01"}, {"W 10001600 01 05", ""}});
    EXPECT_LT(unit.Ask("R 1000121C 04").value_or("x").substr(0, 22), "r 1000121C 04 00 00 02") << "SO2 is near 0";
}

TEST(Wire, OnlyAGoodImageLeavesTheLoader)
{
    UnitProcess unit({"--fast"});
    ASSERT_TRUE(unit.IsReady());
    const string loaderInfo = "r FFFFFFF0 04 01 10 11 20";
    unit.Control("set depot 50");
    Expect(unit, {
        {"W 10000600 01 01", "w 10000600 01"}, {"W FFFFFFF9 01 5E", "w FFFFFFF9 01"}, {"R FFFFFFF0 04", loaderInfo},
        {"R 10000600 06", ""}, {"W 10000300 01 5E", ""}, {"W FFFFFFF9 01 5E", "w FFFFFFF9 01"},
        {"R 00000004 03", "r 00000004 03 37 60 11"}, {"R 0000FFFF 01", "r 0000FFFF 01 FF"}, {"R 0000FFFF 02", ""},
        {"R 00010000 01", ""}, {"W 0000FFFE 02 12 34", "w 0000FFFE 02"}, {"R 0000FFFE 02", "r 0000FFFE 02 12 34"}});
    EXPECT_EQ(unit.Control("get valves"), "none") << "without its application the unit holds no valve open";
    // One byte after the other spoilt and put right: mark, type, version, board, length, checksum, program.
    for (const char* place : {"00000000", "00000004", "00000005", "00000006", "0000000A", "0000000F", "0000550D"}) {
        const string location = place;
        const string good = unit.Ask("R " + location + " 01").value_or("??").substr(14);
        EXPECT_TRUE(unit.Ask("W " + location + " 01 " + (good == "A5" ? "5A" : "A5")));
        EXPECT_TRUE(unit.Ask("W FFFFFFF8 01 5E"));
        EXPECT_EQ(unit.Ask("R FFFFFFF0 04").value_or(""), loaderInfo) << location;
        EXPECT_TRUE(unit.Ask("W " + location + " 01 " + good));
    }
    Expect(unit, {{"W FFFFFFF8 01 00", ""}, {"W FFFFFFF8 01 5E", "w FFFFFFF8 01"}});
    Expect(unit, {{"R FFFFFFF0 04", deviceInfo}, {"R 00000004 03", ""}});

    // The road of an upgrade: a whole image over the line, record by record, and back.
    unit.Control("image 5.9");
    EXPECT_TRUE(AnswersAgain(unit));
    FILE* source = popen((string(ZARN_UNIT) + " image 6 1").c_str(), "r");
    ASSERT_NE(source, nullptr);
    EXPECT_TRUE(unit.Ask("W FFFFFFF9 01 5E"));
    unsigned char record[64];
    unsigned location = 0;
    for (std::size_t count = 0; (count = fread(record, 1, sizeof record, source)) > 0; location += unsigned(count)) {
        char place[16];
        std::snprintf(place, sizeof place, "%08X %02X", location, unsigned(count));
        string data;
        for (std::size_t i = 0; i < count; i++) {
            char byte[4];
            std::snprintf(byte, sizeof byte, " %02X", record[i]);
            data += byte;
        }
        Expect(unit, {{string("W ") + place + data, string("w ") + place}});
        Expect(unit, {{string("R ") + place, string("r ") + place + data}});
    }
    pclose(source);
    EXPECT_EQ(location, 21774u);
    Expect(unit, {{"W FFFFFFF8 01 5E", "w FFFFFFF8 01"}, {"R FFFFFFF0 04", "r FFFFFFF0 04 37 61 11 20"}});
}

TEST(Wire, StateOutlivesARestart)
{
    UnitProcess unit({"--fast"});
    ASSERT_TRUE(unit.IsReady());
    Expect(unit, {{"W 10002000 02 01 02", "w 10002000 02"}, {"W 1000170C 03 58 59 5A", "w 1000170C 03"},
                  {"W 10000200 07 07 D0 05 06 07 08 09", "w 10000200 07"}});
    for (const char* command : {"set so2 12.5", "flush", "set depot 61", "set port3 container 7", "set hpa 900",
                                "set compressor-seconds 100000", "set filter 20", "fault silent", "image 5.8"}) {
        EXPECT_EQ(unit.Control(command), "ok\n") << command;
    }
    unit.Restart();
    ASSERT_TRUE(unit.IsReady());
    Expect(unit, {{"R 10002000 06", "r 10002000 06 01 02 00 01 86 A0"}, {"R 1000170C 03", "r 1000170C 03 58 59 5A"},
                  {"R 10000200 05", "r 10000200 05 07 D0 05 06 07"},
                  {"R 10000900 01", "r 10000900 01 3D"}, {"R FFFFFFF0 04", "r FFFFFFF0 04 37 58 11 20"},
                  {"R 10000502 02", "r 10000502 02 03 84"}});
    EXPECT_EQ(unit.Control("get so2"), "12.5");
    EXPECT_EQ(unit.Control("get port3").substr(0, 11), "container 7");
    EXPECT_EQ(unit.Control("get filter"), "20");

    // A state that was spoilt from outside costs what it said, never the unit.
    std::ofstream(unit.Folder() + "/state", std::ios::app)
        << "storings = x\nsensor = 9 00\ngas-j = nan 1 1\ngas-d = 0 0 0\nports = 7 7 7\nmemory = 5Z\nambient = 5\n"
        << "nonsense\n = \n" << string(300, '\xEE');
    unit.Restart();
    ASSERT_TRUE(unit.IsReady());
    Expect(unit, {{"R 10002000 02", "r 10002000 02 01 02"}, {"R FFFFFFF0 04", "r FFFFFFF0 04 37 58 11 20"}});
}

TEST(Wire, FaultsShowOnTheLine)
{
    UnitProcess unit({"--fast"});
    ASSERT_TRUE(unit.IsReady());
    const string noValue = " 80 00 00 00";
    const struct {
        const char* fault;
        const char* request;
        string answer;
    } rows[] = {
        {"valve 3 failing", "R 10000602 01", "r 10000602 01 02"},
        {"valve l failing", "R 10000A00 01", "r 10000A00 01 02"},
        {"compressor failing", "R 10000700 01", "r 10000700 01 02"},
        {"pressure 4", "R 1000080C 04", "r 1000080C 04" + noValue}, {"depot", "R 10000900 01", "r 10000900 01 FF"},
        {"climate", "R 10000500 04", "r 10000500 04 80 FF FF FF"},
        {"sensor h2s unplugged", "R 10001700 01", "r 10001700 01 80"},
        {"sensor co failing", "R 1000151C 04", "r 1000151C 04" + noValue}, {"service clock", "R 10000200 07", ""},
        {"silent", "R FFFFFFF0 04", ""}};
    for (const auto& row : rows) {
        EXPECT_EQ(unit.Control(string("fault ") + row.fault), "ok\n");
        EXPECT_EQ(unit.Control("fault"), row.fault);
        EXPECT_EQ(unit.Ask(row.request).value_or(""), row.answer) << row.fault;
        EXPECT_EQ(unit.Control("clear " + string(row.fault).substr(0, string(row.fault).find(' '))), "ok\n");
        EXPECT_NE(unit.Ask(row.request).value_or(""), row.answer) << row.fault;
    }
    EXPECT_EQ(unit.Counter("withheld"), 2);

    unit.Control("fault slow 120");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(unit.Answers());
    EXPECT_GE(SecondsSince(start), 0.12);
    unit.Control("clear");
    unit.Control("fault stale");
    EXPECT_EQ(unit.Ask("R 10000600 01").value_or(""), deviceInfo);
    EXPECT_EQ(unit.Take().value_or(""), "r 10000600 01 00");
    unit.Control("clear");
    unit.Control("fault duplicate");
    EXPECT_EQ(unit.Ask("R FFFFFFF0 04").value_or(""), deviceInfo);
    EXPECT_EQ(unit.Take().value_or(""), deviceInfo);
    unit.Control("clear");
    unit.Control("fault garble 1");
    const string garbled = unit.Ask("R FFFFFFF0 04").value_or("");
    EXPECT_NE(garbled, deviceInfo);
    EXPECT_EQ(garbled.size(), deviceInfo.size());
    for (const char* wrong : {"fault garble 1.1", "fault garble", "fault valve 7 stuck", "fault leak n1 nan",
                              "fault silent now", "set hpa 299", "set mode loader",
                              "set sf6", "profile so2 calibrated 2023-02-29", "profile so2 serial 123456789",
                              "image 16.0", "power", "clear all", "nothing"}) {
        EXPECT_EQ(unit.Control(wrong).substr(0, 6), "error ") << wrong;
    }
    EXPECT_EQ(unit.Control("fault"), "garble 1") << "a wrong command changes nothing";
}

TEST(Wire, UnitGoesAndComesBack)
{
    UnitProcess unit({"--fast"});
    ASSERT_TRUE(unit.IsReady());
    const struct {
        const char* away;
        const char* back;
    } rows[] = {{"unplug", "plug"}, {"power off", "power on"}};
    for (const auto& row : rows) {
        unit.Control(row.away);
        EXPECT_FALSE(unit.Answers()) << row.away;
        unit.Control(row.back);
        EXPECT_TRUE(AnswersAgain(unit)) << row.back;
    }
    EXPECT_EQ(unit.Counter("vanished-in"), 14);
    EXPECT_TRUE(unit.Ask("W 10000600 01 01"));
    unit.Control("reset");
    EXPECT_FALSE(unit.Answers()) << "a restart takes a moment";
    EXPECT_TRUE(AnswersAgain(unit));
    EXPECT_EQ(unit.Control("get valves"), "none");
    EXPECT_EQ(unit.Ask("W FFFFFFFA 01 05").value_or(""), "w FFFFFFFA 01");
    EXPECT_FALSE(unit.Answers());
    EXPECT_EQ(unit.Control("get mode"), "off");
}

TEST(Wire, ACommandRunsUnderTheUnit)
{
    UnitProcess ends({}, {"sh", "-c", "exit 7"});
    EXPECT_EQ(ends.End(), 7);
    EXPECT_FALSE(std::filesystem::is_symlink(ends.LinkPath())) << "the link goes with the unit";
    UnitProcess missing({}, {"/nowhere/to/be/found"});
    EXPECT_EQ(missing.End(), 127);
    const string ready = ends.Folder() + "/ready";
    UnitProcess told({}, {"sh", "-c", "trap 'exit 9' TERM; touch " + ready + "; while :; do sleep 0.05; done"});
    for (int i = 0; i < 1000 && !std::filesystem::exists(ready); i++) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_EQ(told.End(SIGTERM), 9);

    UnitProcess killed;
    ASSERT_TRUE(killed.IsReady());
    killed.End(SIGKILL);
    killed.Restart();
    ASSERT_TRUE(killed.IsReady()) << "a link and a socket left behind are replaced";
    EXPECT_TRUE(killed.Answers());
    const string client = string(ZARN_UNIT) + " ctl " + killed.Folder() + "/control ";
    EXPECT_EQ(WEXITSTATUS(std::system((client + "set depot 40").c_str())), 0);
    EXPECT_EQ(WEXITSTATUS(std::system((client + "set depot 400 2>/dev/null").c_str())), 1);
    EXPECT_EQ(killed.Control("get depot"), "40");
}

#include "UnitProcess.h"

#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

TEST(SerialPort, TheUnitServesAPortThatItDidNotMake)
{
    // The far end of a null modem cable.
    const int cable = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    ASSERT_TRUE(grantpt(cable) == 0 && unlockpt(cable) == 0);
    UnitProcess unit({"--serial", ptsname(cable)});
    unit.IsReady();
    const std::string request = "R FFFFFFF0 04\r";
    ASSERT_EQ(write(cable, request.data(), request.size()), static_cast<ssize_t>(request.size()));
    std::string answer;
    char byte = 0;
    pollfd readable = {cable, POLLIN, 0};
    while (byte != '\r' && poll(&readable, 1, 1000) == 1 && read(cable, &byte, 1) == 1) {
        answer += byte;
    }
    EXPECT_EQ(answer.substr(0, 13), "r FFFFFFF0 04");
    close(cable);
    EXPECT_EQ(UnitProcess({"--serial", "/dev/null"}).End(), 2) << "no terminal";
}

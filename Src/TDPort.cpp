#include "TDPort.h"

#include "Board/Board.h"

#include <cstring>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

using RR::SInt32;
using RR::UInt08;
using RR::UInt32;

TDMsg& TDMsg::operator=(const TDMsg& other)
{
    if (this != &other) {
        discarded = other.discarded;
        type = other.type;
        loc = other.loc;
        num = other.num;
        std::memcpy(data, other.data, num);
    }
    return *this;
}

void TDMsg::Setup(UInt32 l, SInt32 n)
{
    RR_ASSERT(n >= 0 && n <= CAPACITY);
    discarded = false;
    type = READ;
    loc = l;
    num = static_cast<UInt08>(n);
}

void TDMsg::Setup(UInt32 l, SInt32 n, const UInt08* d)
{
    Setup(l, n);
    type = WRITE;
    if (d) {
        std::memcpy(data, d, num);
    }
}

UInt08 TDMsg::operator[](int index) const
{
    RR_ASSERT(index >= 0 && index < CAPACITY);
    return data[index];
}

UInt08& TDMsg::operator[](int index)
{
    RR_ASSERT(index >= 0 && index < CAPACITY);
    return data[index];
}

namespace {

constexpr int lineCapacity = 240;

/// Appends the two digits of `val` at `txt`, moves it on and keeps the text ended.
void Print(UInt08 val, char*& txt)
{
    static const char digits[] = "0123456789ABCDEF";
    *txt++ = digits[val >> 4];
    *txt++ = digits[val & 0x0F];
    *txt = 0;
}

/// The digit that `c` stands for, in either case, or a value above 15.
UInt32 DigitOf(char c)
{
    UInt08 digit = static_cast<UInt08>(c);
    if (digit > 0x60) {
        digit -= 0x20;
    }
    if (digit >= '0' && digit <= '9') {
        return digit - '0';
    }
    return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : 16;
}

/// Takes one hexadecimal token off `txt`. On failure `val` is 0: no token, a foreign character, over 32 bits.
bool Parse(const char*& txt, UInt32& val)
{
    val = 0;
    while (*txt == ' ') {
        ++txt;
    }
    if (!*txt) {
        return false;
    }
    UInt32 sum = 0;
    for (; *txt && *txt != ' '; ++txt) {
        const UInt32 digit = DigitOf(*txt);
        const UInt32 next = sum * 16 + digit;
        if (digit > 15 || next < sum) {
            return false;
        }
        sum = next;
    }
    val = sum;
    return true;
}

/// The next line that isn't empty, cleaned: no blanks at its ends, single spaces within. An overlong
/// line reads as empty text. Null after 200 ms without a byte. The text lasts until the next call.
const char* ReceiveLine(int fd)
{
    static char line[lineCapacity + 1];
    int num = 0;
    bool overlong = false;
    for (;;) {
        char c;
        if (read(fd, &c, 1) != 1) {
            return nullptr;
        }
        if (c >= 0x0A && c <= 0x0D) {
            c = 0;
        } else if (c == '\t') {
            c = ' ';
        }
        if (num == 0 && (c == ' ' || c == 0)) {
            continue;
        }
        if (c == 0) {
            break;
        }
        if (c == ' ' && line[num - 1] == ' ') {
            continue;
        }
        if (num < lineCapacity) {
            line[num++] = c;
        } else {
            overlong = true;
        }
    }
    if (line[num - 1] == ' ') {
        --num;
    }
    line[overlong ? 0 : num] = 0;
    return line;
}

/// Takes the response `line` into `msg`, which holds the request. False, with `msg` discarded, if the
/// line doesn't answer it; a read's data are then undefined.
bool ImportMsgRsp(const char* line, TDMsg& msg)
{
    const UInt32 loc = msg.GetLoc();
    const SInt32 num = msg.GetNum();
    const bool isRead = msg.GetType() == TDMsg::READ;
    msg.Discard();

    while (*line == ' ') {
        ++line;
    }
    if (*line++ != (isRead ? 'r' : 'w')) {
        return false;
    }
    UInt32 val;
    if (!Parse(line, val) || val != loc) {
        return false;
    }
    if (!Parse(line, val) || val > 0xFF || val != static_cast<UInt32>(num)) {
        return false;
    }
    for (SInt32 i = 0; isRead && i < num; ++i) {
        if (!Parse(line, val) || val > 0xFF) {
            return false;
        }
        msg[i] = static_cast<UInt08>(val);
    }
    while (*line == ' ') {
        ++line;
    }
    if (*line) {
        return false;
    }
    if (isRead) {
        msg.Setup(loc, num);
    } else {
        msg.Setup(loc, num, nullptr);
    }
    return true;
}

}

bool TDPort::Open(const char* name)
{
    Close();
    serFd = open(Board::Locate(name).c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (serFd < 0) {
        return false;
    }
    termios line = {};
    line.c_iflag = IGNPAR;
    line.c_cflag = B57600 | CS8 | CREAD | CLOCAL;
    line.c_cc[VMIN] = 0;
    // A read gives up after 2 tenths of a second without a byte: the one timeout of the protocol.
    line.c_cc[VTIME] = 2;
    tcflush(serFd, TCIFLUSH);
    tcsetattr(serFd, TCSAFLUSH, &line);
    fcntl(serFd, F_SETOWN, getpid());
    return true;
}

void TDPort::Close()
{
    if (IsOpen()) {
        close(serFd);
    }
    serFd = -1;
}

bool TDPort::Transceive(TDMsg& msg) const
{
    if (!IsOpen()) {
        msg.Discard();
    }
    if (!msg.IsDiscarded()) {
        PutRequest(msg);
    }
    return GetResponse(msg);
}

void TDPort::Flush() const
{
    if (IsOpen()) {
        ReceiveLine(serFd);
    }
}

void TDPort::PutRequest(const TDMsg& msg) const
{
    char text[lineCapacity + 1];
    char* end = text;
    *end++ = msg.GetType() == TDMsg::READ ? 'R' : 'W';
    *end++ = ' ';
    for (int shift = 24; shift >= 0; shift -= 8) {
        Print(static_cast<UInt08>(msg.GetLoc() >> shift), end);
    }
    *end++ = ' ';
    Print(static_cast<UInt08>(msg.GetNum()), end);
    for (SInt32 i = 0; msg.GetType() == TDMsg::WRITE && i < msg.GetNum(); ++i) {
        *end++ = ' ';
        Print(msg.Data()[i], end);
    }
    // A failed write shows as a missing response.
    [[maybe_unused]] ssize_t sent = write(serFd, text, static_cast<size_t>(end - text));
    sent = write(serFd, "\r", 1);
}

bool TDPort::GetResponse(TDMsg& msg) const
{
    const char* line;
    while ((line = ReceiveLine(serFd)) != nullptr) {
        if (ImportMsgRsp(line, msg)) {
            return true;
        }
    }
    msg.Discard();
    return false;
}

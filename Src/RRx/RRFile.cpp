// The instrument is a 32-bit machine: sizes and times of files need the wide calls there.
#define _FILE_OFFSET_BITS 64

#include "RRx/RRFile.h"

#include "Board/Board.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <new>
#include <string>
#include <sys/stat.h>

namespace RR {

namespace {

constexpr SInt32 copyBlockBytes = 16384;

/// Closes with its scope.
struct Descriptor {
    explicit Descriptor(int opened) : fd(opened) {}
    ~Descriptor()
    {
        if (fd >= 0) {
            close(fd);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    const int fd;
};

/// Where the path really lies; a null path is one that can't exist.
std::string Locate(const char* path)
{
    return path ? Board::Locate(path) : std::string();
}

bool IsAccessible(const char* pathFile, ACC_MODE mode)
{
    return access(Locate(pathFile).c_str(), mode) == 0;
}

bool IsMediumFull()
{
    return errno == ENOSPC || errno == EDQUOT;
}

/// Whether a file fits into memory: one that doesn't is no programming error, as a failed block would be.
bool HasRoomFor(SInt32 bytes)
{
    constexpr SInt32 alwaysThere = 1 << 20;
    if (bytes <= alwaysThere) {
        return true;
    }
    // On a 32-bit board the two together must not wrap.
    if (bytes >= INT32_MAX / 2) {
        return false;
    }
    // Room for both the content and a shortened copy of it.
    const std::unique_ptr<char[]> probe(new (std::nothrow) char[2 * (static_cast<std::size_t>(bytes) + 1)]);
    return probe != nullptr;
}

/// One read; the bytes that came, -1 on failure.
SInt32 ReadOnce(int fd, void* buffer, SInt32 num)
{
    ssize_t got;
    do {
        got = read(fd, buffer, static_cast<std::size_t>(num));
    } while (got < 0 && errno == EINTR);
    return static_cast<SInt32>(got);
}

}

int OpenFile(OpenAcc acc, const char* pathFile)
{
    const std::string path = Locate(pathFile);
    const int flags = O_CREAT | O_SYNC | O_CLOEXEC | (acc == OPENREAD ? O_RDONLY : O_WRONLY | O_TRUNC);
    int fd;
    do {
        fd = open(path.c_str(), flags, 0777);
    } while (fd < 0 && errno == EINTR);
    return fd;
}

bool ReadFileNext(int fd, Array<UInt08>& content)
{
    const SInt32 got = fd >= 0 ? ReadOnce(fd, content.Adr(), content.GetSize()) : -1;
    if (got < 1) {
        content.SetEmpty();
    } else if (got < content.GetSize()) {
        Array<UInt08> shrunk(got);
        std::memcpy(shrunk.Adr(), content.Adr(), static_cast<std::size_t>(got));
        content.SwapResources(shrunk);
    }
    return got >= 0;
}

bool WriteFileNext(int fd, const UInt08* buffer, SInt32 num, bool& full)
{
    full = false;
    if (fd < 0 || num < 0 || (!buffer && num > 0)) {
        return false;
    }
    // A nearly full medium takes a part and reports its state only when asked to take the rest.
    while (num > 0) {
        const ssize_t written = write(fd, buffer, static_cast<std::size_t>(num));
        if (written > 0) {
            buffer += written;
            num -= static_cast<SInt32>(written);
        } else if (written == 0 || errno != EINTR) {
            full = written < 0 && IsMediumFull();
            return false;
        }
    }
    return true;
}

bool FILE_Read(const char* pathFile, Array<UInt08>& content)
{
    content.SetEmpty();
    const SInt32 size = FILE_ReadSize(pathFile);
    if (size == INVALID || !HasRoomFor(size)) {
        return false;
    }
    const Descriptor file(OpenFile(OPENREAD, pathFile));
    content.SetSize(size);
    return ReadFileNext(file.fd, content);
}

bool FILE_Read(const char* pathFile, String& text)
{
    String read;
    const SInt32 size = FILE_ReadSize(pathFile);
    const Descriptor file(size == INVALID || !HasRoomFor(size) ? -1 : OpenFile(OPENREAD, pathFile));
    SInt32 got = -1;
    if (file.fd >= 0) {
        read.SetLen(size);
        got = ReadOnce(file.fd, read.Adr(), size);
    }
    if (got < size && got > 0) {
        String shrunk;
        shrunk.SetLen(got);
        std::memcpy(shrunk.Adr(), read.Adr(), static_cast<std::size_t>(got));
        read.SwapResources(shrunk);
    } else if (got < 1) {
        read.SetEmpty();
    }
    text.SwapResources(read);
    return got >= 0;
}

bool FILE_Read(const char* pathFile, UInt08* buffer, SInt32 room, SInt32& num)
{
    num = 0;
    // One way along the path instead of two. What is no regular file must not make the opening wait.
    const Descriptor file(open(Locate(pathFile).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (file.fd < 0 || fstat(file.fd, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > room) {
        return false;
    }
    const SInt32 got = ReadOnce(file.fd, buffer, static_cast<SInt32>(status.st_size));
    num = got >= 0 ? got : 0;
    return got >= 0;
}

bool FILE_Write(const char* pathFile, const UInt08* content, SInt32 num, bool& full)
{
    const Descriptor file(OpenFile(OPENWRITE, pathFile));
    if (file.fd < 0) {
        full = IsMediumFull();
        return false;
    }
    return WriteFileNext(file.fd, content, num, full);
}

bool FILE_Write(const char* pathFile, const UInt08* content, SInt32 num)
{
    bool full;
    return FILE_Write(pathFile, content, num, full);
}

bool FILE_Write(const char* pathFile, const Array<UInt08>& content, bool& full)
{
    return FILE_Write(pathFile, content.Adr(), content.GetSize(), full);
}

bool FILE_Write(const char* pathFile, const Array<UInt08>& content)
{
    bool full;
    return FILE_Write(pathFile, content, full);
}

bool FILE_Write(const char* pathFile, const String& content, bool& full)
{
    return FILE_Write(pathFile, reinterpret_cast<const UInt08*>(content.Adr()), content.GetLen(), full);
}

bool FILE_Write(const char* pathFile, const String& content)
{
    bool full;
    return FILE_Write(pathFile, content, full);
}

bool FILE_Copy(const char* srcPathFile, const char* dstPathFile, bool& full)
{
    full = false;
    const Descriptor source(OpenFile(OPENREAD, srcPathFile));
    if (source.fd < 0) {
        full = IsMediumFull();
        return false;
    }
    const Descriptor destination(OpenFile(OPENWRITE, dstPathFile));
    if (destination.fd < 0) {
        full = IsMediumFull();
        return false;
    }
    Array<UInt08> block;
    for (;;) {
        block.SetSize(copyBlockBytes);
        const bool read = ReadFileNext(source.fd, block);
        if (read && block.IsEmpty()) {
            return true;
        }
        if (!read || !WriteFileNext(destination.fd, block.Adr(), block.GetSize(), full)) {
            FILE_Delete(dstPathFile);
            return false;
        }
    }
}

bool FILE_Copy(const char* srcPathFile, const char* dstPathFile)
{
    bool full;
    return FILE_Copy(srcPathFile, dstPathFile, full);
}

bool FILE_Rename(const char* oldPathFile, const char* newPathFile)
{
    return std::rename(Locate(oldPathFile).c_str(), Locate(newPathFile).c_str()) == 0;
}

bool FILE_Delete(const char* pathFile)
{
    return std::remove(Locate(pathFile).c_str()) == 0;
}

bool FILE_IsPresent(const char* pathFile)
{
    return IsAccessible(pathFile, ACC_MODE_OK);
}

bool FILE_IsReadable(const char* pathFile)
{
    return IsAccessible(pathFile, ACC_MODE_RD);
}

bool FILE_IsWritable(const char* pathFile)
{
    return IsAccessible(pathFile, ACC_MODE_WR);
}

bool FILE_IsReadWritable(const char* pathFile)
{
    return IsAccessible(pathFile, ACC_MODE_RDWR);
}

bool FILE_IsExecutable(const char* pathFile)
{
    return IsAccessible(pathFile, ACC_MODE_EX);
}

bool FILE_ReadInfo(const char* pathFile, FileInfo& info)
{
    // Named first: the caller may hand in the path of this very `info`.
    const std::string path = Locate(pathFile);
    info.pathFile = pathFile;
    info.type = FT_ERR;
    info.size = INVALID;
    info.modTime = DateTime();
    struct stat status;
    if (stat(path.c_str(), &status) != 0 || status.st_size > INT32_MAX) {
        return false;
    }
    if (S_ISREG(status.st_mode)) {
        info.type = FT_REGULAR;
        info.size = static_cast<SInt32>(status.st_size);
    } else {
        info.type = S_ISDIR(status.st_mode) ? FT_FOLDER : FT_OTHER;
    }
    const SInt64 changed = status.st_mtime;
    if (changed >= 0 && changed <= UINT32_MAX) {
        info.modTime.Import(static_cast<UInt32>(changed));
    }
    return true;
}

SInt32 FILE_ReadSize(const char* pathFile)
{
    FileInfo info;
    FILE_ReadInfo(pathFile, info);
    return info.size;
}

FileType FILE_ReadType(const char* pathFile)
{
    FileInfo info;
    FILE_ReadInfo(pathFile, info);
    return info.type;
}

bool FILE_IsFolder(const char* path)
{
    return FILE_ReadType(path) == FT_FOLDER;
}

}

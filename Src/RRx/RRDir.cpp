// Inodes and offsets of a large medium need the wide calls on a 32-bit machine.
#define _FILE_OFFSET_BITS 64

#include "RRx/RRFile.h"

#include "Board/Board.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <memory>
#include <string>
#include <sys/stat.h>

namespace RR {

namespace {

struct Release {
    void operator()(char* text) const { std::free(text); }
    void operator()(DIR* folder) const { closedir(folder); }
};

std::string Locate(const char* path)
{
    return path ? Board::Locate(path) : std::string();
}

bool IsSelected(FileType type, DirSelect select)
{
    return select == DIR_ALL || (type == FT_FOLDER) == (select == DIR_FOLDERS);
}

}

bool DIR_IsPresent(const char* path)
{
    return FILE_IsFolder(path);
}

bool MakeDir(const char* path)
{
    return mkdir(Locate(path).c_str(), 0777) == 0 || (errno == EEXIST && DIR_IsPresent(path));
}

bool DIR_Create(const char* path)
{
    if (MakeDir(path)) {
        return true;
    }
    String folder;
    String segment;
    PATH_Split(path, folder, segment);
    if (segment.IsEmpty()) {
        return false;
    }
    DIR_Create(folder);
    return MakeDir(path);
}

bool DIR_Delete(const char* path)
{
    return rmdir(Locate(path).c_str()) == 0;
}

bool DIR_List(const char* pathFilter, List<FileInfo>& list, DirSelect select)
{
    String folder;
    String pattern;
    PATH_Split(pathFilter, folder, pattern);
    list.SetEmpty();
    const std::unique_ptr<DIR, Release> opened(opendir(Locate(folder).c_str()));
    if (!opened) {
        return false;
    }
    for (;;) {
        // An end and an error differ in `errno` alone.
        errno = 0;
        const dirent* entry = readdir(opened.get());
        if (!entry) {
            return errno == 0;
        }
        const String name(entry->d_name);
        if (name == "." || name == ".." || !name.Matches(pattern, false)) {
            continue;
        }
        FileInfo info;
        FILE_ReadInfo(PATH_Merge(folder, name), info);
        if (IsSelected(info.type, select)) {
            list.Append(info);
        }
    }
}

bool SetCurDir(const char* path)
{
    return chdir(Locate(path).c_str()) == 0;
}

String GetCurDir()
{
    const std::unique_ptr<char, Release> real(getcwd(nullptr, 0));
    if (!real) {
        return String();
    }
    const char* path = real.get();
    const std::unique_ptr<char, Release> root(realpath(Board::Root().c_str(), nullptr));
    const std::size_t rootLength = root ? std::strlen(root.get()) : 0;
    if (rootLength > 1 && std::strncmp(path, root.get(), rootLength) == 0) {
        if (path[rootLength] == '/') {
            path += rootLength;
        } else if (path[rootLength] == 0) {
            path = "/";
        }
    }
    return *path ? path : "./";
}

}

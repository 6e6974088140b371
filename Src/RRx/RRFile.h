#pragma once

#include "RRx/RRArray.h"
#include "RRx/RRDateTime.h"
#include "RRx/RRList.h"
#include "RRx/RRPath.h"
#include "RRx/RRString.h"

#include <unistd.h>

namespace RR {

// Files and folders. Absolute paths lie below the root of the board; all texts handed back are without it.
// A failure is a result of `false`, or `INVALID` where a number is returned, and is never logged here.

enum FileType { FT_REGULAR = 0, FT_FOLDER = 1, FT_OTHER = 2, FT_ERR = 3 };
enum DirSelect { DIR_FILES = 0, DIR_FOLDERS = 1, DIR_ALL = 2 };
enum OpenAcc { OPENREAD = 0, OPENWRITE = 1 };
enum ACC_MODE { ACC_MODE_OK = F_OK, ACC_MODE_RD = R_OK, ACC_MODE_WR = W_OK, ACC_MODE_RDWR = R_OK | W_OK, ACC_MODE_EX = X_OK };

/// One entry of a folder.
struct FileInfo {
    String pathFile;
    FileType type = FT_ERR;
    /// Bytes; known for regular files only.
    SInt32 size = INVALID;
    /// Last change, UTC.
    DateTime modTime;

    /// By path, in the collation of `String`.
    bool operator<(const FileInfo& other) const { return pathFile < other.pathFile; }
    bool operator>(const FileInfo& other) const { return pathFile > other.pathFile; }
};

/// The descriptor, or -1. Creates a missing file in both forms; `OPENWRITE` empties a present one, and its
/// writes are on the medium when they return.
int OpenFile(OpenAcc acc, const char* pathFile);
/// Reads at most the size of `content` at once and shrinks it to what came, to nothing at the end of the
/// file and on failure.
bool ReadFileNext(int fd, Array<UInt08>& content);
/// `true` if all `num` bytes were written. `full` tells whether the medium had no room for them.
bool WriteFileNext(int fd, const UInt08* buffer, SInt32 num, bool& full);

/// Read a whole regular file; the content is empty on failure. A file that shrinks meanwhile yields what is there.
bool FILE_Read(const char* pathFile, Array<UInt08>& content);
bool FILE_Read(const char* pathFile, String& text);
/// The same into `room` bytes of the caller's, of which `num` are used; fails if the file is larger.
bool FILE_Read(const char* pathFile, UInt08* buffer, SInt32 room, SInt32& num);

/// Replace a whole file: it is emptied, then written at once. After a failure in between it is short or
/// empty, which its reader must be able to notice. `full` tells whether the medium had no room.
bool FILE_Write(const char* pathFile, const UInt08* content, SInt32 num, bool& full);
bool FILE_Write(const char* pathFile, const UInt08* content, SInt32 num);
bool FILE_Write(const char* pathFile, const Array<UInt08>& content, bool& full);
bool FILE_Write(const char* pathFile, const Array<UInt08>& content);
bool FILE_Write(const char* pathFile, const String& content, bool& full);
bool FILE_Write(const char* pathFile, const String& content);

/// A missing source counts as an empty one and is created. A copy that fails half-way is deleted; `full` then tells
/// whether the medium had no room.
bool FILE_Copy(const char* srcPathFile, const char* dstPathFile, bool& full);
bool FILE_Copy(const char* srcPathFile, const char* dstPathFile);

bool FILE_Rename(const char* oldPathFile, const char* newPathFile);
bool FILE_Delete(const char* pathFile);

bool FILE_IsPresent(const char* pathFile);
bool FILE_IsReadable(const char* pathFile);
bool FILE_IsWritable(const char* pathFile);
bool FILE_IsReadWritable(const char* pathFile);
bool FILE_IsExecutable(const char* pathFile);

/// On failure, which includes a size above 0x7FFFFFFF, `info` holds the path and nothing else.
bool FILE_ReadInfo(const char* pathFile, FileInfo& info);
SInt32 FILE_ReadSize(const char* pathFile);
/// `FT_ERR` on failure.
FileType FILE_ReadType(const char* pathFile);
bool FILE_IsFolder(const char* path);

bool DIR_IsPresent(const char* path);
/// Makes one folder; `true` also if it is there.
bool MakeDir(const char* path);
/// Makes a folder and its parents.
bool DIR_Create(const char* path);
/// An empty folder only.
bool DIR_Delete(const char* path);
/// Lists the entries of a folder, but "." and "..", whose names match the last segment of `pathFilter` ("*" and
/// "?", upper and lower case alike), in the order of the folder. What is no folder counts as a file.
bool DIR_List(const char* pathFilter, List<FileInfo>& list, DirSelect select);

bool SetCurDir(const char* path);
/// The working directory; "" on failure.
String GetCurDir();

}

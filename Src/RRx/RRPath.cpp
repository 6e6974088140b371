#include "RRx/RRPath.h"

namespace RR {

namespace {

bool IsSep(char c)
{
    return c == '/' || c == '\\';
}

/// The dot before the extension, or `INVALID`.
SInt32 FindExtDot(const String& path)
{
    const SInt32 dot = FindLastDot(path);
    return dot > 0 && !IsSep(path[dot - 1]) ? dot : INVALID;
}

}

void PATH_UnifySep(char* path, char sep)
{
    for (; path && *path; ++path) {
        if (IsSep(*path)) {
            *path = sep ? sep : '/';
        }
    }
}

void PATH_UnifySep(String& path, char sep)
{
    PATH_UnifySep(path.Adr(), sep);
}

bool PATH_HasFinalSep(const String& path)
{
    return !path.IsEmpty() && IsSep(path.Last());
}

String PATH_CutFinalSep(const String& path)
{
    return PATH_HasFinalSep(path) ? path.Left(path.GetLen() - 1) : path;
}

String PATH_Merge(const String& lPath, const String& rPath)
{
    if (!rPath.IsEmpty() && IsSep(rPath.First())) {
        return PATH_CutFinalSep(lPath) + rPath;
    }
    if (!PATH_HasFinalSep(lPath) && !lPath.IsEmpty() && !rPath.IsEmpty()) {
        return lPath + "/" + rPath;
    }
    return lPath + rPath;
}

void PATH_Split(const String& path, String& folder, String& segment)
{
    const String whole = path;
    const String text = PATH_CutFinalSep(whole);
    SInt32 sep = text.GetLen() - 1;
    while (sep >= 0 && !IsSep(text[sep])) {
        --sep;
    }
    if (text.IsEmpty()) {
        folder = whole;
        segment.SetEmpty();
    } else if (sep >= 0) {
        folder = text.Left(sep > 0 ? sep : 1);
        segment = text.Right(sep + 1);
    } else if (text.First() == '.') {
        folder = ".";
        segment.SetEmpty();
    } else {
        folder.SetEmpty();
        segment = text;
    }
}

String PATH_GetFile(const String& path)
{
    String folder;
    String segment;
    if (!PATH_HasFinalSep(path)) {
        PATH_Split(path, folder, segment);
    }
    return segment;
}

String PATH_GetFileName(const String& path)
{
    return PATH_CutFileExt(PATH_GetFile(path));
}

String PATH_GetPath(const String& path)
{
    if (path.GetLen() > 1 && PATH_HasFinalSep(path)) {
        return PATH_CutFinalSep(path);
    }
    String folder;
    String segment;
    PATH_Split(path, folder, segment);
    return folder;
}

String PATH_GetFileExt(const String& path)
{
    const SInt32 dot = FindExtDot(path);
    return dot == INVALID ? String() : path.Right(dot + 1);
}

String PATH_CutFileExt(const String& path)
{
    const SInt32 dot = FindExtDot(path);
    return dot == INVALID ? path : path.Left(dot);
}

String PATH_AddFileExt(const String& path, const String& ext)
{
    if (path.IsEmpty() || PATH_HasFinalSep(path)) {
        return path;
    }
    return !ext.IsEmpty() && ext.First() == '.' ? path + ext : path + "." + ext;
}

SInt32 FindLastDot(const String& str)
{
    SInt32 at = str.GetLen() - 1;
    while (at >= 0 && str[at] != '.') {
        --at;
    }
    return at >= 0 ? at : INVALID;
}

}

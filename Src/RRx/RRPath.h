#pragma once

#include "RRx/RRString.h"

namespace RR {

// Path texts. "/" and the backslash are both separators; no file is touched.

/// Replace each separator by `sep`, by "/" if that is NUL.
void PATH_UnifySep(char* path, char sep = 0);
void PATH_UnifySep(String& path, char sep = 0);

bool PATH_HasFinalSep(const String& path);
/// `path` without its final separator, if it has one.
String PATH_CutFinalSep(const String& path);

/// Both joined with exactly one separator; an empty part adds none.
String PATH_Merge(const String& lPath, const String& rPath);

/// Cuts at the last separator that isn't the final character, and drops both. `folder` keeps a separator that
/// is the whole of it. Without a separator all is `segment`, but for a path that starts with ".": then
/// `folder` is "." and `segment` empty. `path` may be the same object as `folder` or `segment`.
void PATH_Split(const String& path, String& folder, String& segment);

/// The last segment; empty if the path ends in a separator.
String PATH_GetFile(const String& path);
/// The last segment without extension.
String PATH_GetFileName(const String& path);
/// The part before the last segment. A path with a final separator is a folder as a whole, and comes back
/// without it.
String PATH_GetPath(const String& path);

/// The text behind the last dot. A dot at the start of the path or right behind a separator begins no extension.
String PATH_GetFileExt(const String& path);
String PATH_CutFileExt(const String& path);
/// Appends `ext`, with or without its dot; nothing for an empty path or one with a final separator.
String PATH_AddFileExt(const String& path, const String& ext);

/// Index of the last ".", or `INVALID`.
SInt32 FindLastDot(const String& str);

}

#pragma once

#include "BiC.h"
#include "BoardFiles.h"
#include "Config.h"
#include "MeaFields.h"

/// Puts `bytes` into the measurement folder below the name `file`, faster than the synchronous file layer.
inline void PutFile(const char* file, const std::string& bytes)
{
    const std::filesystem::path path = OnBoard(CFG::MeaFilesFolder) / file;
    std::filesystem::remove(path);
    WriteFile(path, bytes);
}

/// The keys of the stored fields in which two records differ, each followed by a blank.
inline std::string DifferentFields(const Mea& a, const Mea& b)
{
    std::string keys;
    VisitFields([&](const char* key, auto field) {
        if constexpr (requires { a.*field == b.*field; }) {
            keys += a.*field == b.*field ? "" : std::string(key) + " ";
        } else {
            keys += BiC(a.*field) == BiC(b.*field) ? "" : std::string(key) + " ";
        }
    });
    return keys;
}

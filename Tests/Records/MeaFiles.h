#pragma once

#include "BiC.h"
#include "Board/Board.h"
#include "Config.h"
#include "MeaFields.h"

#include <filesystem>
#include <fstream>
#include <iterator>

/// Puts `bytes` into the measurement folder below the name `file`, faster than the synchronous file layer.
inline void PutFile(const char* file, const std::string& bytes)
{
    const std::string path = Board::Locate(CFG::MeaFilesFolder) + "/" + file;
    std::filesystem::remove(path);
    std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string GetFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
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

#pragma once

#include "Board/Board.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

/// Where `path` of the instrument lies.
inline std::filesystem::path OnBoard(const char* path)
{
    return Board::Locate(path);
}

inline void WriteFile(const std::filesystem::path& file, const std::string& content)
{
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

inline std::string ReadFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// What `action` writes to standard output.
inline std::string LogOf(const std::function<void()>& action)
{
    testing::internal::CaptureStdout();
    action();
    return testing::internal::GetCapturedStdout();
}

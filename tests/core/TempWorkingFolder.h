// A fresh working directory for one test, removed afterwards with all that is in it. Windows only.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <windows.h>

class TempWorkingFolder : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(936u, GetACP()) << "without code page 936 no Chinese text or file name works";
        before = std::filesystem::current_path();
        folder = std::filesystem::temp_directory_path() /
                 ("zorvane" + std::to_string(GetCurrentProcessId()));
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        std::filesystem::current_path(folder);
    }

    void TearDown() override
    {
        std::filesystem::current_path(before);
        // A process that was just ended may still be in the folder for a moment.
        std::error_code error;
        for (int attempt = 0; attempt < 100; ++attempt)
        {
            std::filesystem::remove_all(folder, error);
            if (!error)
                return;
            Sleep(20);
        }
        ADD_FAILURE() << "the folder of the test stays: " << error.message();
    }

    static void WriteBytes(const char* path, const std::string& bytes)
    {
        std::ofstream(path, std::ios::binary) << bytes;
    }

    static std::string ReadBytes(const char* path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static bool IsThere(const char* path)
    {
        return GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES;
    }

private:
    std::filesystem::path before;
    std::filesystem::path folder;
};

#include "tests/window/Files.h"

#include <windows.h>

#include <fstream>
#include <iterator>

std::string ReadBytes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void WriteBytes(const std::string& path, const std::string& bytes)
{
    for (size_t at = path.find('\\'); at != std::string::npos; at = path.find('\\', at + 1))
        CreateDirectoryA(path.substr(0, at).c_str(), nullptr);
    std::ofstream(path, std::ios::binary) << bytes;
}

void RemoveTree(const std::string& path)
{
    WIN32_FIND_DATAA entry;
    const HANDLE search = FindFirstFileA((path + "\\*").c_str(), &entry);
    if (search != INVALID_HANDLE_VALUE)
    {
        do
        {
            const std::string name = entry.cFileName;
            if (name == "." || name == "..")
                continue;
            RemoveTree(path + "\\" + name);
        } while (FindNextFileA(search, &entry));
        FindClose(search);
    }
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (!RemoveDirectoryA(path.c_str()))
        DeleteFileA(path.c_str());
}

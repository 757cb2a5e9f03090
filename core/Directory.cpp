#include "core/Directory.h"

#include "core/Gbk.h"

#include <cstring>
#include <io.h>
#include <string>
#include <windows.h>

namespace
{
const size_t kRefusedPathLength = 1020;

bool Exists(const char* path)
{
    return _access(path, 0) == 0;
}

void CreateIfMissing(const std::string& folder)
{
    if (!Exists(folder.c_str()))
        CreateDirectoryA(folder.c_str(), nullptr);
}
} // namespace

bool CreateDirectoryPath(const char* path)
{
    if (!path)
        return false;
    if (Exists(path))
        return true;
    if (strlen(path) >= kRefusedPathLength)
        return false;

    // By characters: a backslash may be the second byte of a Chinese one.
    for (const char* at = path; *at != '\0'; at += GbkCharLength(at))
    {
        if (*at == '\\')
            CreateIfMissing(std::string(path, at));
    }
    CreateIfMissing(path);
    return true;
}

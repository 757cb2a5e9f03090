#include "core/FileBytes.h"

#include <cstdio>
#include <windows.h>

namespace
{
bool IsReadOnly(const char* path)
{
    const DWORD attributes = GetFileAttributesA(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
}

bool WriteNewFile(const char* path, const std::string& bytes)
{
    const HANDLE file =
        CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool whole =
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
        written == bytes.size() && FlushFileBuffers(file);
    return CloseHandle(file) && whole;
}

// The client reads these files at any time, and a file that someone has open can't be replaced:
// wait a moment for the reader to finish rather than lose what the user entered.
bool MoveOver(const char* from, const char* to)
{
    const int kAttempts = 10;
    const DWORD kPause = 20;
    for (int attempt = 1;; ++attempt)
    {
        if (MoveFileExA(from, to, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return true;
        const DWORD error = GetLastError();
        const bool inUse = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
        if (!inUse || attempt == kAttempts)
            return false;
        Sleep(kPause);
    }
}
} // namespace

bool ReadFileBytes(const char* path, std::string& bytes)
{
    bytes.clear();
    FILE* file = fopen(path, "rb");
    if (!file)
        return false;
    char block[4096];
    size_t length;
    while ((length = fread(block, 1, sizeof(block), file)) > 0)
        bytes.append(block, length);
    fclose(file);
    return true;
}

bool ReplaceFileBytes(const char* path, const std::string& bytes)
{
    if (IsReadOnly(path)) // Not every system refuses to replace it.
        return false;
    const std::string fresh = std::string(path) + ".tmp";
    if (WriteNewFile(fresh.c_str(), bytes) && MoveOver(fresh.c_str(), path))
        return true;
    DeleteFileA(fresh.c_str());
    return false;
}

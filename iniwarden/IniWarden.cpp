#include "iniwarden/IniWarden.h"

#include "iniwarden/IniStore.h"

#include <windows.h>

// The library and its callers each carry a C++ runtime of their own. Both take memory from the one
// heap of the C runtime in the system, so a returned std::string is freed well by the caller.

namespace
{
constexpr wchar_t kPackagedFolder[] = L"Sys\\";

IniStore& Store()
{
    static IniStore store;
    return store;
}

std::wstring Widen(const std::string& text)
{
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    wide.resize(MultiByteToWideChar(CP_ACP, 0, text.c_str(), size, &wide[0], size));
    return wide;
}

std::wstring FullPath(const std::wstring& path)
{
    // Longer paths open no file.
    wchar_t full[MAX_PATH];
    const DWORD length = GetFullPathNameW(path.c_str(), MAX_PATH, full, nullptr);
    return std::wstring(full, length < MAX_PATH ? length : 0);
}

/// With a backslash at its end.
std::wstring WorkingFolder()
{
    wchar_t folder[MAX_PATH];
    const DWORD length = GetCurrentDirectoryW(MAX_PATH, folder);
    std::wstring path(folder, length < MAX_PATH ? length : 0);
    if (path.empty() || path.back() != L'\\')
        path += L'\\';
    return path;
}

bool IsBelow(const std::wstring& path, const std::wstring& folder)
{
    const int length = static_cast<int>(folder.size());
    return path.size() > folder.size() &&
           CompareStringOrdinal(path.c_str(), length, folder.c_str(), length, TRUE) == CSTR_EQUAL;
}

/// Empty when the name can't be a file's.
std::wstring UserPath(const std::string& file)
{
    if (file.empty() || file.find('\0') != std::string::npos)
        return {};
    return FullPath(Widen(file));
}

/// Empty as well for a file outside of the working directory, which has no packaged twin.
std::wstring PackagedPath(const std::string& file)
{
    const std::wstring path = UserPath(file);
    const std::wstring folder = WorkingFolder();
    return IsBelow(path, folder) ? folder + kPackagedFolder + path.substr(folder.size()) : L"";
}

std::optional<std::string> Read(const std::wstring& path, const std::string& section,
                                const std::string& key)
{
    return path.empty() ? std::nullopt : Store().Read(path, section, key);
}
} // namespace

std::string IniWarden::ReadConfigWithDefault(const std::string& section, const std::string& key,
                                             const std::string& defaultText,
                                             const std::string& file)
{
    return Read(UserPath(file), section, key).value_or(defaultText);
}

int IniWarden::ReadConfigIntWithDefault(const std::string& section, const std::string& key,
                                        int defaultValue, const std::string& file)
{
    const auto value = Read(UserPath(file), section, key);
    return value ? IniInteger(*value, defaultValue) : defaultValue;
}

std::string IniWarden::ReadSysConfigWithDefault(const std::string& section, const std::string& key,
                                                const std::string& defaultText,
                                                const std::string& file)
{
    return Read(PackagedPath(file), section, key).value_or(defaultText);
}

int IniWarden::ReadSysConfigIntWithDefault(const std::string& section, const std::string& key,
                                           int defaultValue, const std::string& file)
{
    const auto value = Read(PackagedPath(file), section, key);
    return value ? IniInteger(*value, defaultValue) : defaultValue;
}

double IniWarden::ReadSysConfigFloatWithDefault(const std::string& section, const std::string& key,
                                                double defaultValue, const std::string& file)
{
    const auto value = Read(PackagedPath(file), section, key);
    return value ? IniFloat(*value, defaultValue) : defaultValue;
}

unsigned int IniWarden::WriteConfig(const std::string& section, const std::string& key,
                                    const std::string& value, const std::string& file)
{
    const std::wstring path = UserPath(file);
    if (path.empty() || IsBelow(path, WorkingFolder() + kPackagedFolder))
        return 0;
    return Store().Write(path, section, key, value) ? 1 : 0;
}

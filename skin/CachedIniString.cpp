#include "skin/CachedIniString.h"

#include "core/Text.h"

#include <windows.h>

#include <cstring>
#include <map>
#include <string>

namespace
{

constexpr size_t kKeyCapacity = 256;
constexpr DWORD kValueCapacity = 1024;

std::string WithLineFeeds(const char* text)
{
    std::string result;
    for (const char* at = text; *at; ++at)
    {
        // The second byte of a character may be a backslash too: characters are taken whole.
        if (IsDBCSLeadByteEx(936, static_cast<BYTE>(*at)) && at[1])
        {
            result += *at++;
            result += *at;
        }
        else if (at[0] == '\\' && at[1] == 'n')
        {
            result += '\n';
            ++at;
        }
        else
            result += *at;
    }
    return result;
}

} // namespace

const char* ReadCachedIniString(const char* section, const char* key, const char* defaultValue,
                                const char* file)
{
    static std::map<std::string, std::map<std::string, std::string>> files;

    auto& values = files[file];
    if (strlen(section) + strlen(key) >= kKeyCapacity - 1)
        return defaultValue;

    char name[kKeyCapacity];
    PrintTo(name, sizeof(name), "%s_%s", section, key);
    const auto found = values.find(name);
    if (found != values.end())
        return found->second.c_str();

    char value[kValueCapacity];
    GetPrivateProfileStringA(section, key, defaultValue, value, sizeof(value), file);
    return values.emplace(name, WithLineFeeds(value)).first->second.c_str();
}

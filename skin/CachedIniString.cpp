#include "skin/CachedIniString.h"

#include "core/Gbk.h"
#include "core/Text.h"

#include <windows.h>

#include <cstring>
#include <map>
#include <string>

namespace
{

constexpr size_t kKeyCapacity = 256;
constexpr DWORD kValueCapacity = 1024;

// Each backslash-n as a line feed. The second byte of a character may be a backslash too: characters
// are taken whole.
std::string WithLineFeeds(const char* text)
{
    std::string result;
    while (*text)
    {
        const bool isLineFeed = text[0] == '\\' && text[1] == 'n';
        const size_t length = isLineFeed ? 2 : GbkCharLength(text);
        if (isLineFeed)
            result += '\n';
        else
            result.append(text, length);
        text += length;
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

    // Cutting a value, the system may count a byte in that it has not written.
    char value[kValueCapacity] = "";
    const DWORD length =
        GetPrivateProfileStringA(section, key, defaultValue, value, sizeof(value), file);
    // And a value that was cut may end in half a character.
    value[GbkPrefixLength(value, length)] = 0;
    return values.emplace(name, WithLineFeeds(value)).first->second.c_str();
}

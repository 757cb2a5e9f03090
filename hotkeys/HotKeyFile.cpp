#include "hotkeys/HotKeyFile.h"

#include <cstring>

HotKeyList DecodeHotKeys(const std::string& bytes, uint32_t version)
{
    uint32_t found;
    if (bytes.size() < sizeof(found))
        return {};
    memcpy(&found, bytes.data(), sizeof(found));
    if (found != version)
        return {};

    HotKeyList list((bytes.size() - sizeof(found)) / sizeof(HotKeyRecord));
    if (!list.empty())
        memcpy(list.data(), bytes.data() + sizeof(found), list.size() * sizeof(HotKeyRecord));
    return list;
}

std::string EncodeHotKeys(const HotKeyList& list, uint32_t version)
{
    std::string bytes(reinterpret_cast<const char*>(&version), sizeof(version));
    bytes.append(reinterpret_cast<const char*>(list.data()), list.size() * sizeof(HotKeyRecord));
    return bytes;
}

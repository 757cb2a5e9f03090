#include "hotkeys/HotKey.h"

#include "core/FileBytes.h"
#include "hotkeys/HotKeyFile.h"

namespace
{
std::string FileName(int type)
{
    return ".\\cfg\\trade\\HotKey" + std::to_string(type) + ".dat";
}
} // namespace

void CHotKey::Save()
{
    ReplaceFileBytes(FileName(type).c_str(), EncodeHotKeys(list, kOrderKeysVersion));
}

void CHotKey::Load()
{
    std::string bytes;
    ReadFileBytes(FileName(type).c_str(), bytes);
    list = DecodeHotKeys(bytes, kOrderKeysVersion);
}

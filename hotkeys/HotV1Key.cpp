#include "hotkeys/HotV1Key.h"

#include "core/FileBytes.h"
#include "hotkeys/HotKeyFile.h"
#include "hotkeys/QuickKeys.h"

namespace
{
std::string FileName(int type)
{
    return ".\\cfg\\trade\\HotV1Key" + std::to_string(type) + ".dat";
}
} // namespace

void CHotV1Key::Save()
{
    MergeQuickKeys(list, visible);
    ReplaceFileBytes(FileName(type).c_str(), EncodeHotKeys(list, kQuickKeysVersion));
}

void CHotV1Key::Load()
{
    std::string bytes;
    ReadFileBytes(FileName(type).c_str(), bytes);
    list = DecodeQuickKeys(bytes);
    visible = VisibleQuickKeys(list);
    PurgeQuickKeys(visible);
}

void CHotV1Key::SetNetMode(bool net)
{
    MergeQuickKeys(list, visible);
    ShowQuickKeys(list, net);
    visible = VisibleQuickKeys(list);
}

bool CHotV1Key::HasNetRows() const
{
    return HasNetQuickKeys(visible);
}

#include "hotkeys/HotKeyFile.h"
#include "hotkeys/QuickKeys.h"

#include <cstdlib>

namespace
{
bool HasClassicRow(const HotKeyList& list)
{
    for (const HotKeyRecord& record : list)
    {
        if (record.action >= kBuyOpenPanel && record.action <= kBuyClosePanel)
            return true;
    }
    return false;
}

void Check(bool holds)
{
    if (!holds)
        abort();
}
} // namespace

// Any file of the quick keys goes through a load, both modes and a save.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    HotKeyList list = DecodeQuickKeys({reinterpret_cast<const char*>(data), size});
    Check(!list.empty());
    const size_t rows = list.size();

    HotKeyList visible = VisibleQuickKeys(list);
    PurgeQuickKeys(visible);
    Check(!HasClassicRow(visible) || !HasNetQuickKeys(visible));

    for (bool net : {true, false})
    {
        MergeQuickKeys(list, visible);
        ShowQuickKeys(list, net);
        visible = VisibleQuickKeys(list);
        Check(net ? !HasClassicRow(visible) : !HasNetQuickKeys(visible));
    }
    MergeQuickKeys(list, visible);
    Check(list.size() == rows);

    const std::string bytes = EncodeHotKeys(list, kQuickKeysVersion);
    Check(EncodeHotKeys(DecodeQuickKeys(bytes), kQuickKeysVersion) == bytes);
    return 0;
}

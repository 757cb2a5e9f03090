#include "hotkeys/QuickKeys.h"

#include "hotkeys/HotKeyFile.h"

#include <algorithm>

namespace
{
const uint8_t kVkF1 = 112;

HotKeyRecord MakeQuickKey(QuickKeyAction action, uint8_t vk, uint8_t shown)
{
    HotKeyRecord record = {};
    record.action = action;
    record.vk = vk;
    record.shown = shown;
    return record;
}

HotKeyList DefaultQuickKeys()
{
    return {
        MakeQuickKey(kBuyOpenPanel, kVkF1, 1),      MakeQuickKey(kSellClosePanel, kVkF1 + 1, 1),
        MakeQuickKey(kSellOpenPanel, kVkF1 + 2, 1), MakeQuickKey(kBuyClosePanel, kVkF1 + 3, 1),
        MakeQuickKey(kCancelAll, 'A', 1),           MakeQuickKey(kReset, 'Z', 1),
        MakeQuickKey(kNetBuyPanel, kVkF1 + 4, 0),   MakeQuickKey(kNetSellPanel, kVkF1 + 5, 0),
    };
}

bool IsClassic(const HotKeyRecord& record)
{
    return record.action >= kBuyOpenPanel && record.action <= kBuyClosePanel;
}

bool IsNet(const HotKeyRecord& record)
{
    return record.action == kNetBuyPanel || record.action == kNetSellPanel;
}

void Migrate(HotKeyList& list)
{
    list.push_back(MakeQuickKey(kNetBuyPanel, kVkF1 + 4, 0));
    list.push_back(MakeQuickKey(kNetSellPanel, kVkF1 + 5, 0));
    ShowQuickKeys(list, false);
}
} // namespace

HotKeyList DecodeQuickKeys(const std::string& bytes)
{
    HotKeyList list = DecodeHotKeys(bytes, kOrderKeysVersion);
    if (!list.empty())
        Migrate(list);
    else
        list = DecodeHotKeys(bytes, kQuickKeysVersion);
    return list.empty() ? DefaultQuickKeys() : list;
}

HotKeyList VisibleQuickKeys(const HotKeyList& list)
{
    HotKeyList visible;
    std::copy_if(list.begin(), list.end(), std::back_inserter(visible),
                 [](const HotKeyRecord& record) { return record.shown != 0; });
    if (visible.size() == 4 && HasNetQuickKeys(visible))
        std::rotate(visible.begin(), visible.begin() + 2, visible.end());
    return visible;
}

void PurgeQuickKeys(HotKeyList& visible)
{
    if (std::any_of(visible.begin(), visible.end(), IsClassic))
        visible.erase(std::remove_if(visible.begin(), visible.end(), IsNet), visible.end());
}

void MergeQuickKeys(HotKeyList& list, HotKeyList& visible)
{
    for (HotKeyRecord& record : list)
    {
        const auto edited = std::find_if(visible.begin(), visible.end(),
                                         [&record](const HotKeyRecord& candidate)
                                         { return candidate.action == record.action; });
        if (edited != visible.end())
            record = *edited;
    }
    PurgeQuickKeys(visible);
}

void ShowQuickKeys(HotKeyList& list, bool net)
{
    for (HotKeyRecord& record : list)
        record.shown = net ? !IsClassic(record) : !IsNet(record);
}

bool HasNetQuickKeys(const HotKeyList& list)
{
    return std::any_of(list.begin(), list.end(), IsNet);
}

const char* QuickKeyText(uint32_t action)
{
    switch (action)
    {
    case kBuyOpenPanel:
        return "买开界面";
    case kSellClosePanel:
        return "卖平界面";
    case kSellOpenPanel:
        return "卖开界面";
    case kBuyClosePanel:
        return "买平界面";
    case kCancelAll:
        return "全部撤单";
    case kReset:
        return "复位";
    case kNetBuyPanel:
        return "买入界面";
    case kNetSellPanel:
        return "卖出界面";
    default:
        return "";
    }
}

bool CanBeQuickKey(unsigned int vk)
{
    const auto isIn = [vk](unsigned int first, unsigned int last)
    {
        return vk >= first && vk <= last;
    };
    // Virtual-key codes of Windows.
    constexpr unsigned int kReturn = 13, kDelete = 46;
    const bool isDigit = isIn('0', '9') || isIn(96, 105); // the latter on the number pad
    const bool isArrow = isIn(37, 40);
    return !isDigit && !isArrow && vk != kDelete && vk != kReturn;
}

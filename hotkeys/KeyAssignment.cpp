#include "hotkeys/KeyAssignment.h"

#include "hotkeys/KeyName.h"

#include <algorithm>

namespace
{
void ClearKey(HotKeyRecord& record)
{
    record.modifiers = 0;
    record.vk = 0;
}

bool IsHeldBy(const HotKeyRecord& record, uint8_t modifiers)
{
    // Shift in the row without Shift held is let pass. This is meant.
    const int differing = record.modifiers ^ modifiers;
    return !(differing & (kModifierCtrl | kModifierAlt)) &&
           !(modifiers & differing & kModifierShift);
}
} // namespace

KeyAssignment AssignKey(HotKeyList& list, size_t row, uint8_t modifiers, unsigned int vk,
                        char* name)
{
    HotKeyRecord& record = list[row];
    record.modifiers = modifiers;
    record.vk = static_cast<uint8_t>(vk);
    MakeKeyName(record.modifiers, record.vk, name);
    if (name[0] == '\0')
    {
        ClearKey(record);
        return KeyAssignment::Cleared;
    }

    const bool isTaken = std::any_of(list.begin(), list.end(),
                                     [&record](const HotKeyRecord& other) {
                                         return &other != &record &&
                                                other.modifiers == record.modifiers &&
                                                other.vk == record.vk;
                                     });
    if (!isTaken)
        return KeyAssignment::Stands;
    ClearKey(record);
    name[0] = '\0';
    return KeyAssignment::Duplicate;
}

HotKeyRecord* FindHeldRow(HotKeyList& list, uint8_t modifiers, unsigned int vk)
{
    const auto row = std::find_if(list.begin(), list.end(),
                                  [=](const HotKeyRecord& record)
                                  { return record.vk == vk && IsHeldBy(record, modifiers); });
    return row == list.end() ? nullptr : &*row;
}

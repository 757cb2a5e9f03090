#include "hotkeys/HotKeyFile.h"
#include "hotkeys/KeyAssignment.h"
#include "hotkeys/KeyName.h"

#include <cstdlib>
#include <cstring>

namespace
{
// Any file of the keyboard-order rows, and a key given to one of its rows.
void CheckRows(HotKeyList list, uint8_t choice)
{
    for (const HotKeyRecord& record : list)
    {
        if (PriceTypeOf(record).size() > sizeof(record.priceType))
            abort();
    }
    if (list.empty())
        return;
    HotKeyRecord& record = list[choice % list.size()];
    char name[kKeyNameSize];
    const KeyAssignment outcome = AssignKey(list, &record - list.data(), choice & 7, choice, name);
    const bool hasKey = record.vk != 0 || record.modifiers != 0;
    if (hasKey != (outcome == KeyAssignment::Stands) || hasKey != (name[0] != '\0'))
        abort();
    if (hasKey && !FindHeldRow(list, record.modifiers, record.vk))
        abort();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const HotKeyList list = DecodeHotKeys(bytes, kOrderKeysVersion);
    const std::string again = EncodeHotKeys(list, kOrderKeysVersion);
    if (!list.empty() && (again.size() > size || bytes.compare(0, again.size(), again) != 0))
        abort();
    CheckRows(list, size ? data[size - 1] : 0);
    return 0;
}

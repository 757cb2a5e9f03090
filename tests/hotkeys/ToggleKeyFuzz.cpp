#include "hotkeys/OrderKeyCells.h"
#include "hotkeys/ToggleKey.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string setting(reinterpret_cast<const char*>(data), size);
    const std::string text = ToggleKeyText(setting);
    if (text.find('\0') != std::string::npos || text.size() > setting.size() + 4)
        abort();

    HotKeyRecord record = {};
    memcpy(&record, data, size < sizeof(record) ? size : sizeof(record));
    for (int column = kKeyColumn; column <= kActionColumn; ++column)
    {
        OrderKeyCellText(record, column);
        const int item = FindOrderKeyItem(record, column);
        if (item >= static_cast<int>(OrderKeyItems(column).size()))
            abort();
    }
    return 0;
}

#include "hotkeys/HotKeyRecord.h"
#include "hotkeys/KeyName.h"

#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    unsigned int words[2] = {};
    memcpy(words, data, size < sizeof(words) ? size : sizeof(words));
    char* name = new char[kKeyNameSize];
    MakeKeyName(words[0], words[1], name);
    MakeKeyName(words[0] & 0xFF, words[1] & 0xFF, name);
    delete[] name;

    const std::string text(reinterpret_cast<const char*>(data), size);
    HotKeyRecord record = MakeDefaultHotKey();
    SetPriceType(record, text.c_str());
    const std::string stored = PriceTypeOf(record);
    if (stored.size() > 32 || strncmp(stored.c_str(), text.c_str(), stored.size()) != 0)
        abort();
    if (record.overTicks != 0 || record.openClose != '0')
        abort();
    return 0;
}

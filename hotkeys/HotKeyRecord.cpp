#include "hotkeys/HotKeyRecord.h"

#include "core/Gbk.h"

#include <cstring>

HotKeyRecord MakeDefaultHotKey()
{
    HotKeyRecord record = {};
    record.action = 2;
    record.buySell = '0';
    SetPriceType(record, "对手价");
    record.openClose = '0';
    return record;
}

std::string PriceTypeOf(const HotKeyRecord& record)
{
    return {record.priceType, GbkPrefixLength(record.priceType, sizeof(record.priceType))};
}

void SetPriceType(HotKeyRecord& record, const char* text)
{
    const size_t length = GbkPrefixLength(text, sizeof(record.priceType) - 1);
    memcpy(record.priceType, text, length);
    record.priceType[length] = '\0';
}

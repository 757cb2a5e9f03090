// A row of the key lists: the same 84 bytes in memory and in the files. Free of windows.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// Bits of `HotKeyRecord::modifiers`.
enum HotKeyModifier : uint8_t
{
    kModifierCtrl = 1,
    kModifierAlt = 2,
    kModifierShift = 4,
};

struct HotKeyRecord
{
    uint32_t action;
    uint8_t modifiers;    ///< HotKeyModifier bits
    uint8_t vk;           ///< virtual key code, 0 for no key
    char buySell;         ///< '0' buy, '1' sell
    char priceType[33];   ///< text in code page 936; one read from a file may lack its NUL
    int32_t overTicks;    ///< price offset in ticks, may be negative
    int32_t covered;      ///< 1 covered, 0 not
    int32_t multiple;     ///< order multiple of actions 9 and 10
    char openClose;       ///< '0' open, '1' close, '3' automatic
    uint8_t shown;        ///< quick keys only: 1 when the row is in the visible list
    uint8_t reserved[30]; ///< carried through load and save
};

static_assert(offsetof(HotKeyRecord, action) == 0);
static_assert(offsetof(HotKeyRecord, modifiers) == 4);
static_assert(offsetof(HotKeyRecord, vk) == 5);
static_assert(offsetof(HotKeyRecord, buySell) == 6);
static_assert(offsetof(HotKeyRecord, priceType) == 7);
static_assert(offsetof(HotKeyRecord, overTicks) == 40);
static_assert(offsetof(HotKeyRecord, covered) == 44);
static_assert(offsetof(HotKeyRecord, multiple) == 48);
static_assert(offsetof(HotKeyRecord, openClose) == 52);
static_assert(offsetof(HotKeyRecord, shown) == 53);
static_assert(offsetof(HotKeyRecord, reserved) == 54);
static_assert(sizeof(HotKeyRecord) == 84);

using HotKeyList = std::vector<HotKeyRecord>;

/// The row that a user adds: an order without confirmation, at the opposite price, without a key.
HotKeyRecord MakeDefaultHotKey();

/// The row's price type, whether or not it is ended by a NUL.
std::string PriceTypeOf(const HotKeyRecord& record);

/// Stores the text with its NUL; one of more than 32 bytes is cut at a character.
void SetPriceType(HotKeyRecord& record, const char* text);

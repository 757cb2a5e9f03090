#include "hotkeys/HotKeyRecord.h"

#include "tests/hotkeys/HotKeyBytes.h"

#include <gtest/gtest.h>

TEST(HotKeyRecord, FieldsStandAtTheirOffsets)
{
    HotKeyRecord record;
    memset(&record, 0xEE, sizeof(record));
    record.action = 0x04030201;
    record.modifiers = 5;
    record.vk = 6;
    record.buySell = 7;
    memset(record.priceType, 8, sizeof(record.priceType));
    record.overTicks = -2;
    record.covered = 0x14131211;
    record.multiple = 0x18171615;
    record.openClose = 0x19;
    record.shown = 0x1A;
    EXPECT_EQ(std::string("\1\2\3\4\5\6\7") + std::string(33, 8) + "\xFE\xFF\xFF\xFF" +
                  "\x11\x12\x13\x14\x15\x16\x17\x18\x19\x1A" + std::string(30, '\xEE'),
              BytesOf(record));
}

TEST(HotKeyRecord, DefaultRow)
{
    std::string expected(84, '\0');
    expected[0] = 2;
    expected[6] = '0';
    expected.replace(7, 6, "\xB6\xD4\xCA\xD6\xBC\xDB"); // "对手价"
    expected[52] = '0';
    EXPECT_EQ(expected, BytesOf(MakeDefaultHotKey()));
}

TEST(HotKeyRecord, PriceTypeTakesTheTextWithItsNul)
{
    HotKeyRecord record = {};
    memset(record.priceType, 'x', sizeof(record.priceType));
    SetPriceType(record, "ab");
    EXPECT_EQ(std::string("ab\0", 3) + std::string(30, 'x'), std::string(record.priceType, 33));
    EXPECT_EQ("ab", PriceTypeOf(record));
    SetPriceType(record, "");
    EXPECT_EQ("", PriceTypeOf(record));
}

TEST(HotKeyRecord, OverlongPriceTypeIsCutAtACharacter)
{
    HotKeyRecord record = {};
    record.overTicks = 0x55555555;
    std::string wide; // 17 characters of two bytes
    for (int i = 0; i < 17; ++i)
        wide += "\xB6\xD4";
    SetPriceType(record, wide.c_str());
    EXPECT_EQ(wide.substr(0, 32), PriceTypeOf(record));
    SetPriceType(record, ("a" + wide).c_str());
    EXPECT_EQ("a" + wide.substr(0, 30), PriceTypeOf(record)) << "no half character at the end";
    SetPriceType(record, std::string(100000, 'a').c_str());
    EXPECT_EQ(std::string(32, 'a'), PriceTypeOf(record));
    EXPECT_EQ('\0', record.priceType[32]);
    EXPECT_EQ(0x55555555, record.overTicks) << "nothing behind the text is touched";
}

TEST(HotKeyRecord, PriceTypeWithoutNulIsReadWithinItsField)
{
    HotKeyRecord record;
    memset(&record, 'y', sizeof(record));
    EXPECT_EQ(std::string(33, 'y'), PriceTypeOf(record));
    memset(record.priceType, '\xB6', sizeof(record.priceType));
    EXPECT_EQ(std::string(32, '\xB6'), PriceTypeOf(record));
}

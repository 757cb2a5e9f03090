#include "hotkeys/HotKeyFile.h"

#include "tests/hotkeys/HotKeyBytes.h"

#include <gtest/gtest.h>

TEST(HotKeyFile, RecordsAreCarriedByteByByte)
{
    for (uint32_t version : {kOrderKeysVersion, kQuickKeysVersion})
    {
        const std::string bytes = Word(version) + PatternBytes(0) + PatternBytes(100);
        const HotKeyList list = DecodeHotKeys(bytes, version);
        ASSERT_EQ(2u, list.size());
        EXPECT_EQ(PatternBytes(0), BytesOf(list[0]));
        EXPECT_EQ(PatternBytes(100), BytesOf(list[1]));
        EXPECT_EQ(bytes, EncodeHotKeys(list, version));
    }
}

TEST(HotKeyFile, VersionWords)
{
    EXPECT_EQ(std::string("\1\0\0\0", 4), EncodeHotKeys({}, kOrderKeysVersion));
    EXPECT_EQ(std::string("\2\0\0\0", 4), EncodeHotKeys({}, kQuickKeysVersion));
}

TEST(HotKeyFile, PieceAtTheEndIsIgnored)
{
    const std::string whole = Word(1) + PatternBytes(0);
    for (size_t piece = 0; piece < 84; ++piece)
        EXPECT_EQ(1u, DecodeHotKeys(whole + std::string(piece, 'x'), kOrderKeysVersion).size());
    EXPECT_EQ(2u, DecodeHotKeys(whole + std::string(84, 'x'), kOrderKeysVersion).size());
}

TEST(HotKeyFile, ShortFilesHoldNothing)
{
    for (size_t length = 0; length <= 4; ++length)
        EXPECT_TRUE(DecodeHotKeys(Word(1).substr(0, length), kOrderKeysVersion).empty());
}

TEST(HotKeyFile, ForeignVersionHoldsNothing)
{
    for (uint32_t version : {0u, 2u, 3u, 0x01000000u, 0x0101u, 0xFFFFFFFFu})
        EXPECT_TRUE(DecodeHotKeys(Word(version) + PatternBytes(0), kOrderKeysVersion).empty());
    EXPECT_TRUE(DecodeHotKeys(Word(1) + PatternBytes(0), kQuickKeysVersion).empty());
}

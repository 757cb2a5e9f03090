#include "core/Gbk.h"

#include <gtest/gtest.h>

TEST(Gbk, CharacterLengths)
{
    EXPECT_EQ(1u, GbkCharLength("a"));
    EXPECT_EQ(2u, GbkCharLength("\x81\x5C"));
    EXPECT_EQ(2u, GbkCharLength("\xFE\xFE"));
    EXPECT_EQ(1u, GbkCharLength("\x80\x5C")) << "0x80 begins no character";
    EXPECT_EQ(1u, GbkCharLength("\xFF\x5C"));
    EXPECT_EQ(1u, GbkCharLength("\xB6")) << "its second byte is missing";
}

TEST(Gbk, PrefixNeverEndsWithinACharacter)
{
    const char* const text = "a\xB6\xD4"
                             "b";
    EXPECT_EQ(0u, GbkPrefixLength(text, 0));
    EXPECT_EQ(1u, GbkPrefixLength(text, 1));
    EXPECT_EQ(1u, GbkPrefixLength(text, 2));
    EXPECT_EQ(3u, GbkPrefixLength(text, 3));
    EXPECT_EQ(4u, GbkPrefixLength(text, 4));
    EXPECT_EQ(4u, GbkPrefixLength(text, 100));
}

TEST(Gbk, PrefixReadsNoFurtherThanTheLimit)
{
    const char unterminated[3] = {'\xB6', '\xD4', '\xB6'};
    EXPECT_EQ(2u, GbkPrefixLength(unterminated, 3));
    EXPECT_EQ(2u, GbkPrefixLength(unterminated, 2));
}

TEST(Gbk, LoneFirstByteBeforeTheNulIsKept)
{
    EXPECT_EQ(2u, GbkPrefixLength("a\xB6", 10));
}

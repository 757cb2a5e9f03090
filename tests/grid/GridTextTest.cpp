#include "skin/grid/GridText.h"
#include "skin/grid/AnalystRatings.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>

namespace
{

std::string Copied(const std::string& text)
{
    char buffer[kCellTextCapacity];
    memset(buffer, '#', sizeof(buffer));
    CopyCellText(buffer, text.c_str());
    return buffer;
}

TEST(CellText, HoldsUpTo255Bytes)
{
    EXPECT_EQ("", Copied(""));
    EXPECT_EQ(std::string(255, 'x'), Copied(std::string(255, 'x')));
    EXPECT_EQ(std::string(255, 'x'), Copied(std::string(300, 'x')));
}

TEST(CellText, IsNotCutWithinADoubleByteCharacter)
{
    EXPECT_EQ(std::string(254, 'x'), Copied(std::string(254, 'x') + "\xC2\xF2"));
    EXPECT_EQ(std::string(253, 'x') + "\xC2\xF2", Copied(std::string(253, 'x') + "\xC2\xF2y"));
}

TEST(CellText, TakesNullForEmpty)
{
    char buffer[kCellTextCapacity] = "before";
    CopyCellText(buffer, nullptr);
    EXPECT_STREQ("", buffer);
}

TEST(CellText, MayBeCopiedToItself)
{
    char buffer[kCellTextCapacity] = "unchanged";
    CopyCellText(buffer, buffer);
    EXPECT_STREQ("unchanged", buffer);
}

TEST(KeptCharacters, LeavesRoomForTheDots)
{
    EXPECT_EQ(7, KeptCharacters(120, 12));
    EXPECT_EQ(6, KeptCharacters(119, 12));
    EXPECT_EQ(1, KeptCharacters(48, 12));
    EXPECT_EQ(0, KeptCharacters(47, 12));
    EXPECT_EQ(0, KeptCharacters(5, 12));
    EXPECT_EQ(0, KeptCharacters(-6, 12));
    EXPECT_EQ(0, KeptCharacters(100, 0));
}

TEST(AnalystRatings, ScoreTheFiveWords)
{
    const std::map<std::string, int> expected = {
        {"买入", 5}, {"增持", 4}, {"观望", 3}, {"减持", 2}, {"卖出", 1}};
    EXPECT_EQ(expected, kAnalystRatings);
}

} // namespace

#include "skin/scroll/ScrollValues.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

ScrollValues Values(int min, int max, unsigned page, int pos = 0)
{
    return {min, max, page, pos};
}

TEST(ScrollValues, MulDivRoundsToTheNearest)
{
    EXPECT_EQ(MulDivRounded(1, 1, 2), 1);
    EXPECT_EQ(MulDivRounded(-1, 1, 2), -1);
    EXPECT_EQ(MulDivRounded(1, 1, 3), 0);
    EXPECT_EQ(MulDivRounded(2, 1, 3), 1);
    EXPECT_EQ(MulDivRounded(3, 1, -2), -2);
    EXPECT_EQ(MulDivRounded(5, 7, 0), -1);
    EXPECT_EQ(MulDivRounded(INT_MAX, INT_MAX, INT_MAX), INT_MAX);
}

TEST(ScrollValues, PageIsCutToTheNumberOfPositions)
{
    ScrollValues values = Values(0, 99, 0);
    StorePage(values, 100);
    EXPECT_EQ(values.page, 100u);
    StorePage(values, 101);
    EXPECT_EQ(values.page, 100u);
    StorePage(values, UINT_MAX);
    EXPECT_EQ(values.page, 100u);

    values = Values(5, 0, 7);
    StorePage(values, 3);
    EXPECT_EQ(values.page, 0u) << "a range upside down has no positions";

    values = Values(INT_MIN, INT_MAX, 0);
    StorePage(values, UINT_MAX);
    EXPECT_EQ(values.page, UINT_MAX);
}

TEST(ScrollValues, PositionStaysBetweenTheFirstAndTheLastPage)
{
    ScrollValues values = Values(10, 99, 20);
    StorePos(values, 3);
    EXPECT_EQ(values.pos, 10);
    StorePos(values, 50);
    EXPECT_EQ(values.pos, 50);
    StorePos(values, 81);
    EXPECT_EQ(values.pos, 80);
}

TEST(ScrollValues, WithoutAPageThePositionMayBeOneBehindTheLast)
{
    ScrollValues values = Values(0, 100, 0);
    StorePos(values, 500);
    EXPECT_EQ(values.pos, 101);

    values = Values(0, INT_MAX, 0);
    StorePos(values, INT_MAX);
    EXPECT_EQ(values.pos, INT_MAX);
}

TEST(ScrollValues, NothingScrollsWithoutARangeOrWithAPageBeyondIt)
{
    EXPECT_TRUE(CanScroll(Values(0, 100, 0)));
    EXPECT_TRUE(CanScroll(Values(0, 100, 100)));
    EXPECT_FALSE(CanScroll(Values(0, 100, 101)));
    EXPECT_FALSE(CanScroll(Values(0, 0, 0)));
    EXPECT_FALSE(CanScroll(Values(7, 7, 1)));
    EXPECT_FALSE(CanScroll(Values(9, 3, 0)));
    EXPECT_FALSE(CanScroll(Values(-10, 0, 0))) << "a last position and page of 0";
    EXPECT_FALSE(CanScroll(Values(-20, -10, 0))) << "a page above the last position";
}

TEST(ScrollValues, MessagesLeadToTheirPositions)
{
    const ScrollValues values = Values(0, 100, 20, 50);
    const struct
    {
        int code;
        int expected;
    } cases[] = {{kLineBack, 49},   {kLineForward, 51},   {kPageBack, 30}, {kPageForward, 70},
                 {kThumbTrack, 33}, {kThumbPosition, 33}, {kToStart, 0},   {kToEnd, 81},
                 {kEndScroll, 50},  {1000, 50},           {-1, 50}};
    for (const auto& [code, expected] : cases)
        EXPECT_EQ(ScrolledPosition(values, code, 33), expected) << "code " << code;
}

TEST(ScrollValues, PositionsAfterMessagesAreBounded)
{
    EXPECT_EQ(ScrolledPosition(Values(0, 100, 20, 0), kLineBack, 0), 0);
    EXPECT_EQ(ScrolledPosition(Values(0, 100, 20, 5), kPageBack, 0), 0);
    EXPECT_EQ(ScrolledPosition(Values(0, 100, 20, 81), kLineForward, 0), 81);
    EXPECT_EQ(ScrolledPosition(Values(0, 100, 20, 75), kPageForward, 0), 81);
    EXPECT_EQ(ScrolledPosition(Values(0, 100, 20, 75), kThumbTrack, -5), 0);
    EXPECT_EQ(ScrolledPosition(Values(0, 100, 20, 75), kThumbTrack, 5000), 81);
    EXPECT_EQ(ScrolledPosition(Values(0, 100, 0, 75), kToEnd, 0), 99)
        << "the end is one before the last position";
}

} // namespace

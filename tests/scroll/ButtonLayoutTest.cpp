#include "skin/scroll/ButtonLayout.h"

#include <gtest/gtest.h>

namespace
{

ButtonExtent Fixed(int placement, int size)
{
    return {placement, size, size, size, size, false};
}

ButtonExtent Draggable(int placement, int size, int minSize, int maxSize)
{
    return {placement, size, size, minSize, maxSize, true};
}

/// 20 and 30 before the bar, 40 and 10 after it.
ButtonRow Row()
{
    ButtonRow row;
    row.Add(Fixed(kButtonBefore, 20));
    row.Add(Fixed(kButtonAfter, 40));
    row.Add(Fixed(kButtonBefore, 30));
    row.Add(Fixed(kButtonAfter, 10));
    return row;
}

TEST(ButtonLayout, LengthsAreToldByEnd)
{
    EXPECT_EQ(Row().Length(kButtonBefore), 50);
    EXPECT_EQ(Row().Length(kButtonAfter), 50);
    EXPECT_EQ(ButtonRow().Length(kButtonBefore), 0);
}

TEST(ButtonLayout, ButtonsStandInTheirOrderAtTheirEnd)
{
    const ScrollSpan whole = {1000, 1300};
    const int expected[][2] = {{1000, 1020}, {1250, 1290}, {1020, 1050}, {1290, 1300}};
    for (int i = 0; i < 4; ++i)
    {
        EXPECT_EQ(Row().Place(i, whole).from, expected[i][0]) << i;
        EXPECT_EQ(Row().Place(i, whole).to, expected[i][1]) << i;
    }
}

TEST(ButtonLayout, ButtonAtAPlaceIsFoundOnlyWhereItsEndIsShown)
{
    const ScrollSpan whole = {1000, 1300};
    EXPECT_EQ(Row().At(1019, whole, true, true), 0);
    EXPECT_EQ(Row().At(1020, whole, true, true), 2);
    EXPECT_EQ(Row().At(1050, whole, true, true), -1);
    EXPECT_EQ(Row().At(1299, whole, true, true), 3);
    EXPECT_EQ(Row().At(1019, whole, false, true), -1);
    EXPECT_EQ(Row().At(1299, whole, true, false), -1);
}

TEST(ButtonLayout, ButtonsAreShownWhereTheBarKeeps24Pixels)
{
    EXPECT_TRUE(FitButtons(Row(), 124).before);
    EXPECT_TRUE(FitButtons(Row(), 124).after);
    EXPECT_TRUE(FitButtons(Row(), 123).before);
    EXPECT_FALSE(FitButtons(Row(), 123).after);
    EXPECT_TRUE(FitButtons(Row(), 74).before);
    EXPECT_FALSE(FitButtons(Row(), 73).before);
    EXPECT_FALSE(FitButtons(Row(), 73).after);
    EXPECT_FALSE(FitButtons(ButtonRow(), 10).before);
}

TEST(ButtonLayout, DraggableButtonsLeaveTheBar50Pixels)
{
    ButtonRow row;
    row.Add(Draggable(kButtonBefore, 60, 10, 100));
    row.Add(Fixed(kButtonBefore, 20));
    row.Add(Draggable(kButtonAfter, 40, 30, 100));

    row.FitDraggable(170);
    EXPECT_EQ(row[0].size, 60);
    EXPECT_EQ(row[2].size, 40);
    row.FitDraggable(150);
    EXPECT_EQ(row[2].size, 30) << "the last gives first, down to its least size";
    EXPECT_EQ(row[0].size, 50);
    EXPECT_EQ(row[1].size, 20) << "a button of fixed size gives nothing";
    row.FitDraggable(20);
    EXPECT_EQ(row[0].size, 10);
    row.FitDraggable(170);
    EXPECT_EQ(row[0].size, 60) << "what was given comes back with the room";
    EXPECT_EQ(row[2].size, 40);
}

TEST(ButtonLayout, PulledButtonStaysWithinItsSizesAndItsRoom)
{
    ButtonRow row;
    row.Add(Draggable(kButtonBefore, 40, 10, 60));
    EXPECT_EQ(row.PulledSize(0, 5, 200), 45);
    EXPECT_EQ(row.PulledSize(0, 500, 200), 60);
    EXPECT_EQ(row.PulledSize(0, -500, 200), 10);
    EXPECT_EQ(row.PulledSize(0, 15, 100), 50) << "10 pixels of room";
    EXPECT_EQ(row.PulledSize(0, 15, 80), 40) << "no room at all";
}

} // namespace

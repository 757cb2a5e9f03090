#include "skin/SpinLayout.h"

#include <gtest/gtest.h>

namespace
{

void ExpectRect(const SpinRect& expected, const SpinRect& actual)
{
    EXPECT_EQ(expected.left, actual.left);
    EXPECT_EQ(expected.top, actual.top);
    EXPECT_EQ(expected.right, actual.right);
    EXPECT_EQ(expected.bottom, actual.bottom);
}

} // namespace

TEST(SpinLayout, ReservesTheColumnAndTakesTheStockFrameBack)
{
    ExpectRect({99, 49, 176, 81}, ReserveSpinColumn({100, 50, 200, 80}));
}

TEST(SpinLayout, ColumnRunsFromTheClientAreaToTheWindow)
{
    const SpinColumn column = LayOutSpinColumn(75, 100, 31);
    EXPECT_EQ(75, column.left);
    EXPECT_EQ(100, column.right);
    EXPECT_EQ(15, column.middle);
    EXPECT_EQ(31, column.bottom);
}

TEST(SpinLayout, TheMiddleBelongsToTheDownArrow)
{
    const SpinColumn column = LayOutSpinColumn(75, 100, 30);
    EXPECT_EQ(SpinButton::kUp, HitSpin(column, 80, 0));
    EXPECT_EQ(SpinButton::kUp, HitSpin(column, 80, 14));
    EXPECT_EQ(SpinButton::kDown, HitSpin(column, 80, 15));
    EXPECT_EQ(SpinButton::kDown, HitSpin(column, 80, 29));
}

TEST(SpinLayout, NothingIsHitOutsideTheColumn)
{
    const SpinColumn column = LayOutSpinColumn(75, 100, 30);
    EXPECT_EQ(SpinButton::kNone, HitSpin(column, 74, 10));
    EXPECT_EQ(SpinButton::kUp, HitSpin(column, 75, 10));
    EXPECT_EQ(SpinButton::kUp, HitSpin(column, 99, 10));
    EXPECT_EQ(SpinButton::kNone, HitSpin(column, 100, 10));
    EXPECT_EQ(SpinButton::kNone, HitSpin(column, 80, -1));
    EXPECT_EQ(SpinButton::kNone, HitSpin(column, 80, 30));
}

TEST(SpinLayout, CellsStandTwoByTwo)
{
    ExpectRect({0, 0, 24, 15}, SpinCell(48, 30, SpinButton::kUp, false));
    ExpectRect({24, 0, 48, 15}, SpinCell(48, 30, SpinButton::kUp, true));
    ExpectRect({0, 15, 24, 30}, SpinCell(48, 30, SpinButton::kDown, false));
    ExpectRect({24, 15, 48, 30}, SpinCell(48, 30, SpinButton::kDown, true));
    ExpectRect({0, 0, 0, 0}, SpinCell(0, 0, SpinButton::kDown, true));
}

TEST(SpinLayout, ALineStandsInTheVerticalCentre)
{
    ExpectRect({0, 7, 90, 23}, CentredLine(90, 30, 16));
    ExpectRect({0, 0, 90, 16}, CentredLine(90, 16, 16));
}

TEST(SpinLayout, ALineTallerThanItsFieldStandsOutEvenly)
{
    ExpectRect({0, -5, 90, 15}, CentredLine(90, 10, 20));
}

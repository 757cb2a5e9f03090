#include "skin/SpinLayout.h"

#include <gtest/gtest.h>

namespace
{

void ExpectBox(const Box& expected, const Box& actual)
{
    EXPECT_EQ(expected.left, actual.left);
    EXPECT_EQ(expected.top, actual.top);
    EXPECT_EQ(expected.width, actual.width);
    EXPECT_EQ(expected.height, actual.height);
}

} // namespace

TEST(SpinLayout, ReservesTheColumnAndTakesTheStockFrameBack)
{
    ExpectBox({99, 49, 77, 32}, ReserveSpinColumn({100, 50, 100, 30}));
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
    const SpinColumn column = LayOutSpinColumn(75, 100, 31);
    const auto cell = [&](SpinButton arrow, bool pressed)
    {
        return SpinArrowPart(column, arrow, 48, 30, pressed).source;
    };
    ExpectBox({0, 0, 24, 15}, cell(SpinButton::kUp, false));
    ExpectBox({24, 0, 24, 15}, cell(SpinButton::kUp, true));
    ExpectBox({0, 15, 24, 15}, cell(SpinButton::kDown, false));
    ExpectBox({24, 15, 24, 15}, cell(SpinButton::kDown, true));
}

TEST(SpinLayout, TheArrowsShareTheColumn)
{
    const SpinColumn column = LayOutSpinColumn(75, 100, 31);
    ExpectBox({75, 0, 25, 15}, SpinArrowPart(column, SpinButton::kUp, 48, 30, true).target);
    ExpectBox({75, 15, 25, 16}, SpinArrowPart(column, SpinButton::kDown, 48, 30, true).target);
}

TEST(SpinLayout, ABitmapThatIsTooSmallHasNoArrows)
{
    const SpinColumn column = LayOutSpinColumn(75, 100, 31);
    EXPECT_TRUE(SpinArrowPart(column, SpinButton::kDown, 0, 0, true).IsEmpty());
    EXPECT_TRUE(SpinArrowPart(column, SpinButton::kUp, 1, 2, false).IsEmpty());
    EXPECT_FALSE(SpinArrowPart(column, SpinButton::kUp, 2, 2, false).IsEmpty());
}

TEST(SpinLayout, ALineStandsInTheVerticalCentre)
{
    ExpectBox({0, 7, 90, 16}, CentredLine(90, 30, 16));
    ExpectBox({0, 0, 90, 16}, CentredLine(90, 16, 16));
}

TEST(SpinLayout, ALineTallerThanItsFieldStandsOutEvenly)
{
    ExpectBox({0, -5, 90, 20}, CentredLine(90, 10, 20));
}

#include "skin/grid/GridScroll.h"

#include <climits>
#include <gtest/gtest.h>

namespace
{

int After(ScrollStep step, int position, int page = 10)
{
    return NextScrollPosition(step, {position, 0, 50, page}, 33);
}

TEST(ScrollPosition, MovesByLines)
{
    EXPECT_EQ(19, After(ScrollStep::LineBack, 20));
    EXPECT_EQ(0, After(ScrollStep::LineBack, 0));
    EXPECT_EQ(21, After(ScrollStep::LineForward, 20));
    EXPECT_EQ(50, After(ScrollStep::LineForward, 50));
}

TEST(ScrollPosition, MovesByPagesWithinTheRange)
{
    EXPECT_EQ(10, After(ScrollStep::PageBack, 20));
    EXPECT_EQ(0, After(ScrollStep::PageBack, 5));
    EXPECT_EQ(30, After(ScrollStep::PageForward, 20));
    EXPECT_EQ(50, After(ScrollStep::PageForward, 45));
    EXPECT_EQ(50, After(ScrollStep::PageForward, 1, INT_MAX));
    EXPECT_EQ(0, After(ScrollStep::PageBack, 1, INT_MAX));
}

TEST(ScrollPosition, OutsideTheRangeIsLeftWhereItIs)
{
    EXPECT_EQ(60, After(ScrollStep::LineForward, 60));
    EXPECT_EQ(60, After(ScrollStep::PageForward, 60));
    EXPECT_EQ(-5, After(ScrollStep::LineBack, -5));
    EXPECT_EQ(-5, After(ScrollStep::PageBack, -5));
}

TEST(ScrollPosition, FollowsTheThumbAndJumpsToTheEnds)
{
    EXPECT_EQ(33, After(ScrollStep::ThumbPosition, 20));
    EXPECT_EQ(33, After(ScrollStep::ThumbTrack, 20));
    EXPECT_EQ(0, After(ScrollStep::First, 20));
    EXPECT_EQ(50, After(ScrollStep::Last, 20));
}

TEST(ScrollPosition, StaysAtTheEndOfAScroll)
{
    constexpr int kEndOfScroll = 8;
    EXPECT_EQ(20, After(static_cast<ScrollStep>(kEndOfScroll), 20));
    EXPECT_EQ(20, After(static_cast<ScrollStep>(-1), 20));
}

TEST(WheelPosition, IsOneRowWhateverTheDelta)
{
    const ScrollState middle{20, 0, 50, 10};
    EXPECT_EQ(21, NextWheelPosition(-1, middle));
    EXPECT_EQ(21, NextWheelPosition(-480, middle));
    EXPECT_EQ(19, NextWheelPosition(1, middle));
    EXPECT_EQ(19, NextWheelPosition(1200, middle));
    EXPECT_EQ(20, NextWheelPosition(0, middle));
    EXPECT_EQ(50, NextWheelPosition(-120, {50, 0, 50, 10}));
    EXPECT_EQ(0, NextWheelPosition(120, {0, 0, 50, 10}));
}

} // namespace

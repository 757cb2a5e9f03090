#include "skin/ToolTip.h"

#include "skin/Palette.h"
#include "tests/skin/KitWindow.h"
#include "tests/skin/LeftBehind.h"

namespace
{

struct ToolTip : testing::Test
{
    ToolTip()
    {
        EXPECT_TRUE(tip.Create(&parent));
        // Out of the way: the mouse over a tip hides it.
        SetCursorPos(1300, 900);
        PumpFor(20);
    }
    ~ToolTip() override { tip.DestroyWindow(); }

    CRect Place() const
    {
        CRect place;
        tip.GetWindowRect(&place);
        return place;
    }

    int LineHeight()
    {
        POINT point = {100, 100};
        tip.ShowAt("x\r\n", &point, 0);
        const int height = Place().Height() - 2;
        tip.Hide();
        return height;
    }

    KitWindow parent;
    CToolTip tip;
};

} // namespace

TEST_F(ToolTip, IsHiddenAtFirst)
{
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(ToolTip, ShowsBelowThePoint)
{
    POINT point = {100, 150};
    tip.ShowAt("first line\r\nsecond\r\n", &point, 0);
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(CPoint(100, 170), Place().TopLeft());
    EXPECT_EQ(100, point.x);
    EXPECT_EQ(150, point.y);
}

TEST_F(ToolTip, IsAsLargeAsItsLines)
{
    const int lineHeight = LineHeight();
    EXPECT_GT(lineHeight, 8);
    POINT point = {100, 100};
    tip.ShowAt("one\r\n\r\nthree\r\n", &point, 0);
    EXPECT_EQ(3 * lineHeight + 2, Place().Height());
    const int width = Place().Width();
    tip.ShowAt("one\r\n\r\nthree three\r\n", &point, 0);
    EXPECT_GT(Place().Width(), width);
    tip.ShowAt("one\r\n\r\nthree\r\nnot measured, not even when it is the longest", &point, 0);
    EXPECT_EQ(width, Place().Width());
    EXPECT_EQ(3 * lineHeight + 2, Place().Height());
}

TEST_F(ToolTip, ATextWithoutALineEndIsATinyEmptyWindow)
{
    POINT point = {100, 100};
    tip.ShowAt("no end", &point, 0);
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(CSize(5, 2), Place().Size());
    Paint(tip);
}

TEST_F(ToolTip, MovesLeftAtTheEdgeOfTheScreen)
{
    POINT point = {100, 100};
    tip.ShowAt("a line\r\n", &point, 0);
    const int width = Place().Width();
    tip.Hide();

    point = {100, 100};
    tip.ShowAt("a line\r\n", &point, 100 + width);
    EXPECT_EQ(100, point.x);
    tip.Hide();

    tip.ShowAt("a line\r\n", &point, 99 + width);
    EXPECT_EQ(99, point.x);
    EXPECT_EQ(99, Place().left);
}

TEST_F(ToolTip, CanBeAlignedLeftOfThePoint)
{
    POINT point = {300, 100};
    tip.ShowAligned("a line\r\n", &point, 1);
    EXPECT_EQ(CPoint(300, 120), Place().TopLeft());
    EXPECT_EQ(300, point.x);
    const int width = Place().Width();
    tip.Hide();

    tip.ShowAligned("a line\r\n", &point, 2);
    EXPECT_EQ(300 - width - 2, Place().left);
    EXPECT_EQ(300 - width - 2, point.x);
    EXPECT_EQ(120, Place().top);
}

TEST_F(ToolTip, TheSameTextDoesNotMoveIt)
{
    POINT point = {100, 100};
    tip.ShowAt("a line\r\n", &point, 0);
    point = {300, 200};
    tip.ShowAt("a line\r\n", &point, 50);
    EXPECT_EQ(CPoint(100, 120), Place().TopLeft());
    EXPECT_EQ(300, point.x);
    tip.ShowAligned("a line\r\n", &point, 2);
    EXPECT_EQ(CPoint(100, 120), Place().TopLeft());
    EXPECT_EQ(300, point.x);
}

TEST_F(ToolTip, AfterHidingTheSameTextShowsAgain)
{
    POINT point = {100, 100};
    tip.ShowAt("a line\r\n", &point, 0);
    tip.Hide();
    EXPECT_FALSE(tip.IsWindowVisible());
    tip.Hide();
    point = {200, 100};
    tip.ShowAt("a line\r\n", &point, 0);
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(200, Place().left);
}

TEST_F(ToolTip, NoTextHidesIt)
{
    POINT point = {100, 100};
    tip.ShowAt("a line\r\n", &point, 0);
    tip.ShowAt("", &point, 0);
    EXPECT_FALSE(tip.IsWindowVisible());
    tip.ShowAt("a line\r\n", &point, 0);
    tip.ShowAligned(nullptr, &point, 2);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_EQ(100, point.x);
}

TEST_F(ToolTip, TakesAtMost4095Bytes)
{
    const int lineHeight = LineHeight();
    // The 1024th line has lost its line feed; the 1023rd, three bytes further on, just keeps it.
    for (const char* start : {"", "xyz"})
    {
        std::string text = start;
        while (text.size() < 5000)
            text += "ab\r\n";
        POINT point = {0, 0};
        tip.ShowAt(text.c_str(), &point, 0);
        EXPECT_EQ(1023 * lineHeight + 2, Place().Height()) << start;
        Paint(tip);
    }
}

TEST_F(ToolTip, DrawsTheLinesInAFrame)
{
    POINT point = {100, 100};
    tip.ShowAt("■■\r\n■■\r\n", &point, 0);
    Paint(tip);
    const CSize size = Place().Size();
    EXPECT_COLOR(kTipFrame, PixelOf(tip, 0, 0));
    EXPECT_COLOR(kTipFrame, PixelOf(tip, size.cx - 1, size.cy - 1));
    EXPECT_COLOR(kTipBack, PixelOf(tip, 1, 1));
    bool inked[2] = {};
    for (int y = 1; y < size.cy - 1; ++y)
        for (int x = 3; x < size.cx - 1; ++x)
            inked[2 * y / size.cy] |= PixelOf(tip, x, y) == kBlackText;
    EXPECT_TRUE(inked[0]);
    EXPECT_TRUE(inked[1]);
}

TEST_F(ToolTip, TheMouseOverItHidesIt)
{
    POINT point = {100, 100};
    tip.ShowAt("a line\r\n", &point, 0);
    PumpFor(50);
    ASSERT_TRUE(tip.IsWindowVisible());
    MoveMouseTo(tip, 3, 3);
    EXPECT_TRUE(PumpUntil([&] { return !tip.IsWindowVisible(); }));
}

TEST_F(ToolTip, HandsTheFocusBack)
{
    parent.SetFocus();
    ASSERT_EQ(&parent, CWnd::GetFocus());
    POINT point = {100, 100};
    tip.ShowAt("a line\r\n", &point, 0);
    EXPECT_EQ(&parent, CWnd::GetFocus());
    tip.SetFocus();
    EXPECT_EQ(&parent, CWnd::GetFocus());
}

TEST_F(ToolTip, ShowsNothingWithoutAWindow)
{
    CToolTip bare;
    POINT point = {100, 100};
    bare.ShowAt("a line\r\n", &point, 50);
    bare.ShowAligned("a line\r\n", &point, 2);
    bare.Hide();
    EXPECT_EQ(100, point.x);
}

TEST_F(ToolTip, AThousandTipsLeaveNothingBehind)
{
    const auto makeOne = [&]
    {
        CToolTip one;
        ASSERT_TRUE(one.Create(&parent));
        POINT point = {100, 100};
        one.ShowAt("a line\r\n", &point, 0);
        Paint(one);
        one.DestroyWindow();
    };
    ExpectNothingLeftBehind(makeOne);
}

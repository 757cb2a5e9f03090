// What the bars look like, pixel by pixel.
#include "skin/scroll/CoolSBWrapper.h"
#include "tests/scroll/ScrollTestWindow.h"

#include <algorithm>
#include <map>

namespace
{

// On a pane of 300 by 200 with a vertical bar of 16 alone, arrows 20, the thumb at the top.
constexpr int kMiddle = 292;
constexpr int kThumbTop = 20;
constexpr int kThumbBottom = 60;
constexpr int kPage = 120;

constexpr COLORREF kFace = RGB(212, 208, 200);
constexpr COLORREF kShadow = RGB(128, 128, 128);
constexpr COLORREF kDarkShadow = RGB(64, 64, 64);
constexpr COLORREF kScrollBack = RGB(200, 180, 160);
constexpr COLORREF kHilight = RGB(255, 250, 240);
constexpr COLORREF kText = RGB(1, 2, 3);

/// Colours of the system that can be told apart, for the time of a test.
class SystemColors
{
public:
    explicit SystemColors(const std::map<int, COLORREF>& colors)
    {
        for (const auto& [index, color] : colors)
        {
            indices.push_back(index);
            before.push_back(GetSysColor(index));
            SetSysColors(1, &index, &color);
        }
    }
    ~SystemColors()
    {
        SetSysColors(static_cast<int>(indices.size()), indices.data(), before.data());
    }

private:
    std::vector<int> indices;
    std::vector<COLORREF> before;
};

class PaintTest : public ScrollTest
{
protected:
    void ShowVertical(int style)
    {
        ShowBars(false, true);
        CoolSB_SetStyle(pane, SB_BOTH, style);
        Pump(0);
    }

    COLORREF At(int x, int y) const { return PixelOf(pane, x, y); }

    /// The pixels of an area, row by row.
    std::vector<COLORREF> Area(int left, int top, int right, int bottom) const
    {
        std::vector<COLORREF> pixels;
        const HDC dc = GetWindowDC(pane);
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x)
                pixels.push_back(GetPixel(dc, x, y));
        ReleaseDC(pane, dc);
        return pixels;
    }

    long Count(const std::vector<COLORREF>& pixels, COLORREF color) const
    {
        return static_cast<long>(std::count(pixels.begin(), pixels.end(), color));
    }

    void ExpectCheckered(COLORREF one, COLORREF other, int left, int top) const
    {
        const std::vector<COLORREF> pixels = Area(left, top, left + 8, top + 8);
        EXPECT_EQ(Count(pixels, one), 32);
        EXPECT_EQ(Count(pixels, other), 32);
        EXPECT_NE(At(left, top), At(left + 1, top));
        EXPECT_NE(At(left, top), At(left, top + 1));
        EXPECT_EQ(At(left, top), At(left + 1, top + 1));
    }

    SystemColors colors{{{COLOR_3DFACE, kFace},
                         {COLOR_3DSHADOW, kShadow},
                         {COLOR_3DDKSHADOW, kDarkShadow},
                         {COLOR_3DHILIGHT, kHilight},
                         {COLOR_SCROLLBAR, kScrollBack},
                         {COLOR_BTNTEXT, kText}}};
};

TEST_F(PaintTest, PageAreasAreCheckered)
{
    ShowVertical(kCoolSBStandard);
    ExpectCheckered(kHilight, kScrollBack, 286, kPage);
    ExpectCheckered(kHilight, kScrollBack, 286, kPage + 5);
}

TEST_F(PaintTest, PressedPageAreaIsInverted)
{
    ShowVertical(kCoolSBStandard);
    scrollsItself = false;
    PressOn(SB_VERT, kPage);
    ExpectCheckered(RGB(0, 5, 15), RGB(55, 75, 95), 286, kPage);
    ReleaseMouse();
    ExpectCheckered(kHilight, kScrollBack, 286, kPage);
}

TEST_F(PaintTest, PageAreasDifferFromAWindowThatLooksLikeTheHighlight)
{
    const SystemColors likeWindow({{COLOR_WINDOW, kHilight}});
    ShowVertical(kCoolSBStandard);
    ExpectCheckered(kFace, kScrollBack, 286, kPage);
}

TEST_F(PaintTest, PageAreasOfAWhiteWindowAreWhite)
{
    const SystemColors white(
        {{COLOR_WINDOW, RGB(255, 255, 255)}, {COLOR_3DHILIGHT, RGB(255, 255, 255)}});
    ShowVertical(kCoolSBStandard);
    ExpectCheckered(RGB(255, 255, 255), kScrollBack, 286, kPage);
}

TEST_F(PaintTest, ThumbIsRaised)
{
    ShowVertical(kCoolSBStandard);
    EXPECT_EQ(At(kMiddle, kThumbTop + 10), kFace);
    EXPECT_EQ(At(kMiddle, kThumbTop + 1), kHilight) << "the inner upper edge";
    EXPECT_EQ(At(kMiddle, kThumbBottom - 1), kDarkShadow) << "the outer lower edge";
    EXPECT_EQ(At(kMiddle, kThumbBottom - 2), kShadow);

    CoolSB_SetStyle(pane, SB_VERT, kCoolSBFlat);
    EXPECT_EQ(At(kMiddle, kThumbTop + 10), kFace);
    CoolSB_SetStyle(pane, SB_VERT, kCoolSBHot);
    EXPECT_EQ(At(kMiddle, kThumbTop + 10), kShadow);
}

TEST_F(PaintTest, StandardArrowsHaveAnEdgeAndFlatOnesNone)
{
    ShowVertical(kCoolSBStandard);
    EXPECT_EQ(At(299, 19), kDarkShadow);
    EXPECT_GT(Count(Area(284, 0, 300, 20), kText), 8);

    CoolSB_SetStyle(pane, SB_VERT, kCoolSBFlat);
    EXPECT_EQ(At(299, 19), kFace);
    EXPECT_EQ(At(284, 0), kFace);
    const std::vector<COLORREF> flat = Area(284, 0, 300, 20);
    EXPECT_GT(Count(flat, kText), 8);
    EXPECT_EQ(Count(flat, kText) + Count(flat, kFace), 16 * 20) << "nothing else is drawn";
}

TEST_F(PaintTest, ArrowsShowTheirState)
{
    ShowVertical(kCoolSBStandard);
    const std::vector<COLORREF> normal = Area(284, 180, 300, 200);
    PressOn(SB_VERT, 190);
    const std::vector<COLORREF> pressed = Area(284, 180, 300, 200);
    EXPECT_NE(pressed, normal);
    MoveMouse({200, 150});
    EXPECT_EQ(Area(284, 180, 300, 200), normal) << "off the part it is released";
    ReleaseMouse();
    CoolSB_EnableScrollBar(pane, SB_VERT, ESB_DISABLE_DOWN);
    EXPECT_NE(Area(284, 180, 300, 200), normal);
    EXPECT_EQ(Count(Area(284, 180, 300, 200), kText), 0) << "a disabled arrow is grey";
    EXPECT_GT(Count(Area(284, 0, 300, 20), kText), 8) << "the other one is not";
}

TEST_F(PaintTest, FlatArrowsShowTheirState)
{
    ShowVertical(kCoolSBHot);
    PressOn(SB_VERT, 190);
    EXPECT_GT(Count(Area(284, 180, 300, 200), kDarkShadow), 200);
    ReleaseMouse();
    Pump(60);
    EXPECT_GT(Count(Area(284, 180, 300, 200), kShadow), 200) << "hot under the mouse";
    MoveMouse({200, 150});
    Pump(60);
    EXPECT_GT(Count(Area(284, 180, 300, 200), kFace), 200);
}

TEST_F(PaintTest, BarThatCannotScrollHasOnePageArea)
{
    ShowVertical(kCoolSBStandard);
    CoolSB_EnableScrollBar(pane, SB_VERT, ESB_DISABLE_BOTH);
    ExpectCheckered(kHilight, kScrollBack, 286, kThumbTop + 4);
}

TEST_F(PaintTest, DraggedThumbIsPaintedWhereTheMouseHasIt)
{
    ShowVertical(kCoolSBStandard);
    scrollsItself = false;
    PressOn(SB_VERT, 40);
    MoveTo(SB_VERT, 100);
    EXPECT_EQ(At(kMiddle, 80 + 10), kFace);
    ExpectCheckered(kHilight, kScrollBack, 286, 60);
    SendMessageA(pane, WM_NCPAINT, 1, 0);
    EXPECT_EQ(At(kMiddle, 80 + 10), kFace) << "a repaint leaves it there";
    MoveMouse({200, 150});
    EXPECT_EQ(At(kMiddle, kThumbTop + 10), kFace);
    ExpectCheckered(kHilight, kScrollBack, 286, 100);
    ReleaseMouse();
}

TEST_F(PaintTest, CornerIsPlainUnlessItIsTheParentsToo)
{
    ShowBars(true, true);
    EXPECT_EQ(Count(Area(284, 184, 300, 200), kFace), 256);
    SetWindowPos(pane, nullptr, 80, 80, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    SendMessageA(pane, WM_NCPAINT, 1, 0);
    EXPECT_LT(Count(Area(284, 184, 300, 200), kFace), 250) << "a grip";
    EXPECT_GT(Count(Area(284, 184, 300, 200), kShadow), 5);
}

TEST_F(PaintTest, HiddenBarLeavesNoTrace)
{
    ShowBars(true, true);
    CoolSB_ShowScrollBar(pane, SB_BOTH, FALSE);
    Pump();
    EXPECT_EQ(Count(Area(0, 0, 300, 200), RGB(255, 255, 255)), 300 * 200);
}

TEST_F(PaintTest, FrameActivatedOrRenamedKeepsTheDrawnBars)
{
    SetWindowLongA(pane, GWL_STYLE, GetWindowLongA(pane, GWL_STYLE) | WS_CAPTION);
    ShowBars(true, true);
    CoolSB_SetStyle(pane, SB_BOTH, kCoolSBHot);
    Pump();
    const std::vector<COLORREF> before = Area(5, 60, 300, 200);
    SendMessageA(pane, WM_NCACTIVATE, TRUE, 0);
    SendMessageA(pane, WM_NCACTIVATE, FALSE, 0);
    SetWindowTextA(pane, "renamed");
    EXPECT_EQ(Area(5, 60, 300, 200), before);
}

// Notifications

TEST_F(PaintTest, ParentIsToldOfEveryStage)
{
    ShowBars(false, true);
    draws.clear();
    SendMessageA(pane, WM_NCPAINT, 1, 0);
    ASSERT_EQ(draws.size(), 2u) << "before and after; the items are drawn here";
    EXPECT_EQ(draws[0].drawStage, static_cast<DWORD>(CDDS_PREPAINT));
    EXPECT_EQ(draws[1].drawStage, static_cast<DWORD>(CDDS_POSTPAINT));
    EXPECT_EQ(draws[0].hdr.hwndFrom, pane);
    EXPECT_EQ(draws[0].hdr.code, static_cast<UINT>(-4095));
    EXPECT_EQ(draws[0].bar, static_cast<UINT>(SB_VERT));
    const RECT bar = {284, 0, 300, 200};
    EXPECT_TRUE(EqualRect(&draws[0].rect, &bar));
}

TEST_F(PaintTest, ParentThatSkipsTheDefaultDrawsEveryItem)
{
    ShowBars(false, true);
    CoolSB_EnableScrollBar(pane, SB_VERT, ESB_DISABLE_UP);
    customDrawAnswer = CDRF_SKIPDEFAULT;
    SetPos(SB_VERT, 37);
    draws.clear();
    SendMessageA(pane, WM_NCPAINT, 1, 0);
    const struct
    {
        UINT item;
        int top;
        int bottom;
        UINT state;
    } expected[] = {{0, 0, 20, CDIS_DISABLED},
                    {2, 20, 79, CDIS_DEFAULT},
                    {3, 119, 180, CDIS_DEFAULT},
                    {5, 79, 119, CDIS_DEFAULT},
                    {1, 180, 200, CDIS_DEFAULT}};
    ASSERT_EQ(draws.size(), 7u);
    for (int i = 0; i < 5; ++i)
    {
        const NMCoolSBCustomDraw& draw = draws[i + 1];
        const RECT rect = {284, expected[i].top, 300, expected[i].bottom};
        EXPECT_EQ(draw.drawStage, 0x10001u);
        EXPECT_EQ(draw.item, expected[i].item);
        EXPECT_EQ(draw.state, expected[i].state);
        EXPECT_TRUE(EqualRect(&draw.rect, &rect)) << i;
    }
}

TEST_F(PaintTest, CornerIsItem32OfBar3)
{
    ShowBars(true, true);
    draws.clear();
    SendMessageA(pane, WM_NCPAINT, 1, 0);
    ASSERT_FALSE(draws.empty());
    EXPECT_EQ(draws.back().drawStage, 0x10001u);
    EXPECT_EQ(draws.back().item, 32u);
    EXPECT_EQ(draws.back().bar, 3u);
    const RECT corner = {284, 184, 300, 200};
    EXPECT_TRUE(EqualRect(&draws.back().rect, &corner));
}

TEST_F(PaintTest, DragPaintsItsTrackOnly)
{
    ShowBars(false, true);
    customDrawAnswer = CDRF_SKIPDEFAULT;
    scrollsItself = false;
    PressOn(SB_VERT, 40);
    draws.clear();
    SendMessageA(pane, WM_MOUSEMOVE, 0, MAKELPARAM(292, 70));
    std::vector<UINT> items;
    for (const NMCoolSBCustomDraw& draw : draws)
        if (draw.drawStage == CDDS_ITEMPREPAINT)
            items.push_back(draw.item);
    EXPECT_EQ(items, (std::vector<UINT>{2, 3, 5}));
    EXPECT_EQ(LastState(kPartThumb, SB_VERT), static_cast<UINT>(CDIS_SELECTED));
    ReleaseMouse();
}

// Custom colours

constexpr CoolSBColors kColors = {RGB(10, 0, 0),
                                  {RGB(20, 0, 0), RGB(21, 0, 0), RGB(22, 0, 0)},
                                  {RGB(30, 0, 0), RGB(31, 0, 0), RGB(32, 0, 0)},
                                  {RGB(40, 0, 0), RGB(41, 0, 0), RGB(42, 0, 0)},
                                  RGB(50, 0, 0)};

class ColorTest : public PaintTest
{
protected:
    void SetUp() override
    {
        PaintTest::SetUp();
        onDraw = [this](const NMCoolSBCustomDraw& draw)
        {
            customDrawAnswer = wrapper.OnCustomDraw(draw);
        };
        wrapper.Init(pane, false, 25, 0, 0, 99);
        wrapper.SetWidth(16);
        wrapper.ShowScrollBar(SB_HORZ, FALSE);
        Pump(0);
    }

    COLORREF Red(int value) const { return RGB(value, 0, 0); }

    /// The column of an arrow: its frame, its background, its triangle.
    void ExpectArrow(int top, int back, int fore) const
    {
        EXPECT_EQ(At(284, top), Red(50));
        EXPECT_EQ(At(299, top + 15), Red(50));
        EXPECT_EQ(At(285, top + 1), Red(back));
        EXPECT_EQ(At(292, top + 8), Red(fore)) << "the triangle's middle";
    }

    CoolSBWrapper wrapper;
};

TEST_F(ColorTest, WithoutColoursTheDefaultIsDrawn)
{
    EXPECT_EQ(At(kMiddle, 16 + 10), kFace);
}

TEST_F(ColorTest, EveryPartHasItsColour)
{
    wrapper.SetColors(kColors);
    ExpectArrow(0, 20, 30);
    ExpectArrow(184, 20, 30);
    EXPECT_EQ(At(kMiddle, 100), Red(10));
    // 168 pixels of track: the thumb is 42 long, from 16 on.
    EXPECT_EQ(At(kMiddle, 16), Red(50));
    EXPECT_EQ(At(kMiddle, 17), Red(40));
    EXPECT_EQ(At(kMiddle, 56), Red(40));
    EXPECT_EQ(At(kMiddle, 57), Red(50));
    EXPECT_EQ(At(kMiddle, 58), Red(10));
    const std::vector<COLORREF> bar = Area(284, 0, 300, 200);
    long known = 0;
    for (const int red : {10, 20, 30, 40, 50})
        known += Count(bar, Red(red));
    EXPECT_EQ(known, 16 * 200) << "no other pixel";
}

TEST_F(ColorTest, TrianglesPointUpAndDown)
{
    wrapper.SetColors(kColors);
    // Rows of the triangles, as wide as they are.
    const auto row = [this](int y)
    {
        return Count(Area(284, y, 300, y + 1), Red(30));
    };
    EXPECT_EQ(row(4), 0);
    EXPECT_GT(row(6), 0);
    EXPECT_LT(row(6), row(8));
    EXPECT_EQ(row(10), 0);
    EXPECT_EQ(row(184 + 5), 0);
    EXPECT_GT(row(184 + 6), row(184 + 8));
    EXPECT_GT(row(184 + 8), 0);
    EXPECT_EQ(row(184 + 11), 0);
}

TEST_F(ColorTest, StateChoosesTheColumn)
{
    wrapper.SetColors(kColors);
    PressOn(SB_VERT, 192);
    ExpectArrow(184, 21, 31);
    ExpectArrow(0, 20, 30);
    ReleaseMouse();
    Pump(60);
    ExpectArrow(184, 22, 32);
    MoveMouse({200, 150});
    Pump(60);
    ExpectArrow(184, 20, 30);

    CoolSB_SetScrollPos(pane, SB_VERT, 0, TRUE);
    MoveTo(SB_VERT, 30);
    Pump(60);
    EXPECT_EQ(At(kMiddle, 40), Red(42));
    PressMouse();
    EXPECT_EQ(At(kMiddle, 40), Red(41));
    ReleaseMouse();
}

TEST_F(ColorTest, CornerHasTheColourOfTheBack)
{
    wrapper.ShowScrollBar(SB_HORZ, TRUE);
    wrapper.SetColors(kColors);
    EXPECT_EQ(Count(Area(284, 184, 300, 200), Red(10)), 256);
}

TEST_F(ColorTest, ControlBarsAreNotDrawn)
{
    wrapper.SetColors(kColors);
    NMCoolSBCustomDraw draw = {};
    draw.drawStage = CDDS_PREPAINT;
    EXPECT_EQ(wrapper.OnCustomDraw(draw), 4);
    draw.drawStage = CDDS_POSTPAINT;
    EXPECT_EQ(wrapper.OnCustomDraw(draw), 0);
    draw.drawStage = CDDS_ITEMPREPAINT;
    draw.bar = SB_CTL;
    EXPECT_EQ(wrapper.OnCustomDraw(draw), 0);
    EXPECT_EQ(CoolSBWrapper().OnCustomDraw(draw), 0);
}

} // namespace

// The functions that stand for those of the system, and the room of the bars.
#include "tests/scroll/ScrollTestWindow.h"

#include <algorithm>

bool operator==(const RECT& a, const RECT& b)
{
    return EqualRect(&a, &b);
}

void PrintTo(const RECT& rect, std::ostream* out)
{
    *out << rect.left << "," << rect.top << " to " << rect.right << "," << rect.bottom;
}

namespace
{

using CoolSBTest = ScrollTest;

SCROLLINFO Info(UINT mask, int min = 0, int max = 0, UINT page = 0, int pos = 0)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = mask;
    info.nMin = min;
    info.nMax = max;
    info.nPage = page;
    info.nPos = pos;
    return info;
}

constexpr UINT kAllValues = SIF_RANGE | SIF_PAGE | SIF_POS;

bool HasStyle(HWND hwnd, LONG style)
{
    return (GetWindowLongA(hwnd, GWL_STYLE) & style) == style;
}

TEST_F(CoolSBTest, InitSubclassesOnceAndUninitUndoesIt)
{
    const LONG before = GetWindowLongA(pane, GWL_WNDPROC);
    EXPECT_FALSE(CoolSB_IsActive(pane));
    EXPECT_EQ(CoolSB_Init(pane), S_OK);
    EXPECT_TRUE(CoolSB_IsActive(pane));
    EXPECT_NE(GetWindowLongA(pane, GWL_WNDPROC), before);

    const HANDLE record = GetPropA(pane, "CoolSBSubclassPtr");
    EXPECT_NE(record, nullptr);
    EXPECT_EQ(CoolSB_Init(pane), S_OK);
    EXPECT_EQ(GetPropA(pane, "CoolSBSubclassPtr"), record) << "a second call changes nothing";

    EXPECT_EQ(CoolSB_Uninit(pane), S_OK);
    EXPECT_EQ(GetWindowLongA(pane, GWL_WNDPROC), before);
    EXPECT_EQ(GetPropA(pane, "CoolSBSubclassPtr"), nullptr);
    EXPECT_FALSE(CoolSB_IsActive(pane));
    EXPECT_EQ(static_cast<unsigned>(CoolSB_Uninit(pane)), 0x80004005u);
    EXPECT_TRUE(FAILED(CoolSB_Init(nullptr)));
    EXPECT_TRUE(FAILED(CoolSB_Init(GetDesktopWindow()))) << "it belongs to another process";
    EXPECT_FALSE(CoolSB_IsActive(GetDesktopWindow()));
}

TEST_F(CoolSBTest, WithoutASubclassTheFunctionsAreThoseOfTheSystem)
{
    const SCROLLINFO given = Info(kAllValues, 3, 90, 10, 20);
    EXPECT_EQ(CoolSB_SetScrollInfo(pane, SB_VERT, &given, TRUE), 20);
    EXPECT_EQ(GetScrollPos(pane, SB_VERT), 20);
    EXPECT_EQ(CoolSB_SetScrollPos(pane, SB_VERT, 30, TRUE), 20);
    EXPECT_EQ(CoolSB_GetScrollPos(pane, SB_VERT), 30);
    EXPECT_TRUE(CoolSB_SetScrollRange(pane, SB_VERT, 5, 80, TRUE));
    int min = 0;
    int max = 0;
    EXPECT_TRUE(CoolSB_GetScrollRange(pane, SB_VERT, &min, &max));
    EXPECT_EQ(min, 5);
    EXPECT_EQ(max, 80);
    SCROLLINFO read = Info(SIF_ALL);
    EXPECT_TRUE(CoolSB_GetScrollInfo(pane, SB_VERT, &read));
    EXPECT_EQ(read.nPos, 30);
    EXPECT_TRUE(CoolSB_ShowScrollBar(pane, SB_HORZ, TRUE));
    EXPECT_TRUE(HasStyle(pane, WS_HSCROLL));
    EXPECT_TRUE(CoolSB_EnableScrollBar(pane, SB_VERT, ESB_DISABLE_BOTH));
    EXPECT_FALSE(EnableScrollBar(pane, SB_VERT, ESB_DISABLE_BOTH)) << "it was disabled already";
}

TEST_F(CoolSBTest, WithoutASubclassTheOtherFunctionsReturnZero)
{
    CoolSBButton button = {};
    EXPECT_FALSE(CoolSB_SetSize(pane, SB_VERT, 10, 10));
    EXPECT_FALSE(CoolSB_SetMinThumbSize(pane, SB_VERT, 10));
    EXPECT_FALSE(CoolSB_SetStyle(pane, SB_VERT, kCoolSBFlat));
    EXPECT_FALSE(CoolSB_SetThumbAlways(pane, SB_VERT, TRUE));
    EXPECT_FALSE(CoolSB_IsThumbTracking(pane));
    EXPECT_FALSE(CoolSB_InsertButton(pane, SB_VERT, 0, &button));
    EXPECT_FALSE(CoolSB_ModifyButton(pane, SB_VERT, 0, &button));
    EXPECT_FALSE(CoolSB_RemoveButton(pane, SB_VERT, 0));
    EXPECT_FALSE(CoolSB_GetButton(pane, SB_VERT, 0, &button));
}

TEST_F(CoolSBTest, InitTakesOverTheBarsThatTheWindowHas)
{
    const SCROLLINFO given = Info(kAllValues, 3, 90, 10, 20);
    SetScrollInfo(pane, SB_VERT, &given, TRUE);
    ASSERT_TRUE(HasStyle(pane, WS_VSCROLL));
    CoolSB_Init(pane);
    SCROLLINFO read = Info(SIF_ALL);
    EXPECT_TRUE(CoolSB_GetScrollInfo(pane, SB_VERT, &read));
    EXPECT_EQ(read.nMin, 3);
    EXPECT_EQ(read.nMax, 90);
    EXPECT_EQ(read.nPage, 10u);
    EXPECT_EQ(read.nPos, 20);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 300 - GetSystemMetrics(SM_CXVSCROLL), 200}));
}

TEST_F(CoolSBTest, ValuesAreBoundedAndReturned)
{
    CoolSB_Init(pane);
    SCROLLINFO given = Info(kAllValues, 10, 109, 500, 50);
    EXPECT_EQ(CoolSB_SetScrollInfo(pane, SB_VERT, &given, TRUE), 10) << "one page is all there is";
    given = Info(kAllValues, 10, 109, 20, 500);
    EXPECT_EQ(CoolSB_SetScrollInfo(pane, SB_VERT, &given, TRUE), 90);
    given = Info(SIF_POS, 0, 0, 0, 4);
    EXPECT_EQ(CoolSB_SetScrollInfo(pane, SB_VERT, &given, TRUE), 10);
    EXPECT_EQ(CoolSB_SetScrollPos(pane, SB_VERT, 60, TRUE), 10);
    EXPECT_EQ(CoolSB_GetScrollPos(pane, SB_VERT), 60);
    EXPECT_EQ(CoolSB_GetScrollPos(pane, SB_HORZ), 0);
    EXPECT_TRUE(CoolSB_SetScrollRange(pane, SB_VERT, 0, 300, TRUE));
    int min = -1;
    int max = -1;
    EXPECT_TRUE(CoolSB_GetScrollRange(pane, SB_VERT, &min, &max));
    EXPECT_EQ(min, 0);
    EXPECT_EQ(max, 300);
    SCROLLINFO read = Info(SIF_PAGE);
    read.nPos = 12345;
    EXPECT_TRUE(CoolSB_GetScrollInfo(pane, SB_VERT, &read));
    EXPECT_EQ(read.nPage, 20u);
    EXPECT_EQ(read.nPos, 12345) << "not asked for";
    EXPECT_FALSE(CoolSB_GetScrollInfo(pane, SB_CTL, &read));
    EXPECT_FALSE(CoolSB_GetScrollInfo(pane, SB_VERT, nullptr));
    EXPECT_EQ(CoolSB_SetScrollInfo(pane, SB_VERT, nullptr, TRUE), 0);
}

TEST_F(CoolSBTest, BarIsShownWhenItCanScrollAndHiddenWhenNot)
{
    CoolSB_Init(pane);
    CoolSB_SetSize(pane, SB_BOTH, 20, 16);
    const SCROLLINFO scrolling = Info(kAllValues, 0, 99, 25);
    CoolSB_SetScrollInfo(pane, SB_VERT, &scrolling, TRUE);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 284, 200}));
    EXPECT_TRUE(HasStyle(pane, WS_VSCROLL));

    const SCROLLINFO empty = Info(kAllValues, 0, 0, 0);
    CoolSB_SetScrollInfo(pane, SB_VERT, &empty, TRUE);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 300, 200}));
    EXPECT_FALSE(HasStyle(pane, WS_VSCROLL));

    CoolSB_SetScrollInfo(pane, SB_VERT, &scrolling, FALSE);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 300, 200})) << "no new frame without redrawing";
    EXPECT_TRUE(HasStyle(pane, WS_VSCROLL));
}

TEST_F(CoolSBTest, BarStaysWhereItIsToldTo)
{
    ShowBars(true, true);
    const SCROLLINFO disable = Info(kAllValues | SIF_DISABLENOSCROLL, 0, 0, 0);
    CoolSB_SetScrollInfo(pane, SB_VERT, &disable, TRUE);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 284, 184}));

    EXPECT_TRUE(CoolSB_SetThumbAlways(pane, SB_HORZ, TRUE));
    const SCROLLINFO empty = Info(kAllValues, 0, 0, 0);
    CoolSB_SetScrollInfo(pane, SB_HORZ, &empty, TRUE);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 284, 184}));
}

TEST_F(CoolSBTest, SizesOutOfBoundsAreRefused)
{
    ShowBars(true, true);
    for (const int bad : {0, -9, 257, 100000})
    {
        EXPECT_FALSE(CoolSB_SetSize(pane, SB_BOTH, bad, 10)) << bad;
        EXPECT_FALSE(CoolSB_SetSize(pane, SB_BOTH, 10, bad)) << bad;
    }
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 284, 184}));
    EXPECT_TRUE(CoolSB_SetSize(pane, SB_VERT, -8, 9));
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 291, 184}));
    EXPECT_TRUE(CoolSB_SetSize(pane, SB_HORZ, 256, -1));
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 291, 200 - GetSystemMetrics(SM_CYHSCROLL)}));
    EXPECT_FALSE(CoolSB_SetMinThumbSize(pane, SB_BOTH, -2));
    EXPECT_FALSE(CoolSB_SetStyle(pane, SB_BOTH, 3));
    EXPECT_FALSE(CoolSB_SetStyle(pane, SB_BOTH, -1));
    EXPECT_FALSE(CoolSB_SetSize(pane, SB_CTL, 10, 10));
}

TEST_F(CoolSBTest, UsualThumbIsSixPixelsAtLeast)
{
    ShowBars(false, true);
    EXPECT_EQ(GetCoolSBWindow(pane)->vert.minThumb, 6);
    EXPECT_TRUE(CoolSB_SetMinThumbSize(pane, SB_VERT, 30));
    EXPECT_EQ(GetCoolSBWindow(pane)->vert.minThumb, 30);
    EXPECT_EQ(GetCoolSBWindow(pane)->horz.minThumb, 6);
    EXPECT_TRUE(CoolSB_SetMinThumbSize(pane, SB_VERT, -1));
    EXPECT_EQ(GetCoolSBWindow(pane)->vert.minThumb, 6);
}

TEST_F(CoolSBTest, HorizontalBarGoesWithoutRoomAndComesBackWithIt)
{
    ShowBars(true, false);
    SetWindowPos(pane, nullptr, 0, 0, 300, 16, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 300, 16}));
    SetWindowPos(pane, nullptr, 0, 0, 300, 17, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 300, 1}));
    SetWindowPos(pane, nullptr, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 300, 184}));
}

TEST_F(CoolSBTest, VerticalBarNeedsItsOwnWidthOnly)
{
    ShowBars(false, true);
    SetWindowPos(pane, nullptr, 0, 0, 15, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 15, 200}));
    SetWindowPos(pane, nullptr, 0, 0, 16, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 0, 200}));
}

TEST_F(CoolSBTest, VerticalBarStandsAtTheLeftWhereTheStyleSaysSo)
{
    ShowBars(true, true);
    SetWindowLongA(pane, GWL_EXSTYLE, WS_EX_LEFTSCROLLBAR);
    SetWindowPos(pane, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    EXPECT_EQ(ClientOf(pane), (RECT{16, 0, 300, 184}));
    SetWindowLongA(pane, GWL_EXSTYLE, 0);
    SetWindowPos(pane, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 284, 184}));
}

TEST_F(CoolSBTest, BarsLieInsideTheBordersOfTheWindow)
{
    SetWindowLongA(pane, GWL_STYLE, GetWindowLongA(pane, GWL_STYLE) | WS_CAPTION | WS_THICKFRAME);
    SetWindowPos(pane, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    const RECT bare = ClientOf(pane);
    ShowBars(true, true);
    EXPECT_EQ(ClientOf(pane), (RECT{bare.left, bare.top, bare.right - 16, bare.bottom - 16}));
    RECT window = {};
    GetWindowRect(pane, &window);
    const auto hit = [&](LONG x, LONG y)
    {
        return SendMessageA(pane, WM_NCHITTEST, 0, MAKELPARAM(window.left + x, window.top + y));
    };
    EXPECT_EQ(hit(bare.right - 1, bare.top), HTVSCROLL);
    EXPECT_EQ(hit(bare.right - 16, bare.top), HTVSCROLL);
    EXPECT_EQ(hit(bare.right - 17, bare.top), HTCLIENT);
    EXPECT_NE(hit(bare.right, bare.top + 40), HTVSCROLL) << "the border is the window's";
    EXPECT_EQ(hit(bare.left, bare.bottom - 1), HTHSCROLL);
    EXPECT_EQ(hit(bare.left, bare.bottom - 16), HTHSCROLL);
    EXPECT_EQ(hit(bare.left, bare.bottom - 17), HTCLIENT);
    EXPECT_EQ(hit(150, 10), HTCAPTION);
}

TEST_F(CoolSBTest, HidingTheStylesIsToldToNobody)
{
    ShowBars(true, true);
    others.clear();
    SetWindowPos(pane, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    SendMessageA(pane, WM_NCPAINT, 1, 0);
    CoolSB_ShowScrollBar(pane, SB_VERT, FALSE);
    CoolSB_ShowScrollBar(pane, SB_VERT, TRUE);
    Pump();
    EXPECT_EQ(std::count(others.begin(), others.end(), WM_STYLECHANGED), 0);
    EXPECT_EQ(std::count(others.begin(), others.end(), WM_STYLECHANGING), 0);
    EXPECT_GT(std::count(others.begin(), others.end(), WM_NCCALCSIZE), 0);
    EXPECT_GT(std::count(others.begin(), others.end(), WM_NCPAINT), 0);
    EXPECT_TRUE(HasStyle(pane, WS_HSCROLL | WS_VSCROLL)) << "the styles are back";

    SetWindowLongA(pane, GWL_STYLE, GetWindowLongA(pane, GWL_STYLE) | WS_TABSTOP);
    EXPECT_EQ(std::count(others.begin(), others.end(), WM_STYLECHANGED), 1) << "others are told";
}

TEST_F(CoolSBTest, UninitGivesTheSystemsBarsBack)
{
    ShowBars(true, true);
    CoolSB_Uninit(pane);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 300 - GetSystemMetrics(SM_CXVSCROLL),
                                    200 - GetSystemMetrics(SM_CYHSCROLL)}));
}

TEST_F(CoolSBTest, ShowAndEnableWorkOnOneBarOrBoth)
{
    ShowBars(false, false);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 300, 200}));
    EXPECT_TRUE(CoolSB_ShowScrollBar(pane, SB_BOTH, TRUE));
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 284, 184}));
    EXPECT_TRUE(CoolSB_ShowScrollBar(pane, SB_VERT, FALSE));
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 300, 184}));

    EXPECT_TRUE(CoolSB_EnableScrollBar(pane, SB_HORZ, ESB_DISABLE_LEFT));
    EXPECT_FALSE(CoolSB_EnableScrollBar(pane, SB_HORZ, ESB_DISABLE_LEFT)) << "nothing changes";
    EXPECT_EQ(GetCoolSBWindow(pane)->horz.flags & 3, 1u);
    EXPECT_TRUE(CoolSB_EnableScrollBar(pane, SB_BOTH, ESB_DISABLE_BOTH));
    EXPECT_EQ(GetCoolSBWindow(pane)->vert.flags & 3, 3u);
    EXPECT_TRUE(CoolSB_EnableScrollBar(pane, SB_BOTH, ESB_ENABLE_BOTH));
    EXPECT_EQ(GetCoolSBWindow(pane)->horz.flags & 3, 0u);
}

TEST_F(CoolSBTest, SettingAPositionLeavesAHiddenBarHidden)
{
    ShowBars(false, true);
    CoolSB_SetScrollPos(pane, SB_HORZ, 10, TRUE);
    EXPECT_EQ(ClientOf(pane), (RECT{0, 0, 284, 200}));
}

} // namespace

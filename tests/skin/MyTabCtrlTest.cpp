#include "skin/MyTabCtrl.h"

#include "tests/skin/KitWindow.h"
#include "tests/skin/LeftBehind.h"
#include "tests/skin/WindowPixels.h"

#include <commctrl.h>

#include <string>

namespace
{

constexpr int kId = 6000;
constexpr int kHeight = 40;
constexpr COLORREF kBar = RGB(200, 0, 0);
constexpr COLORREF kOther = RGB(0, 200, 0);

/// Loud colours, so that every part shows.
CMyTabCtrl_MyCtrl::Look LoudLook()
{
    CMyTabCtrl_MyCtrl::Look look;
    look.backColor = RGB(10, 10, 10);
    look.textColor = RGB(20, 20, 20);
    look.activeTextColor = RGB(30, 30, 30);
    look.activeBackColor = RGB(40, 40, 40);
    look.lineColor = RGB(50, 50, 50);
    return look;
}

class MyTabCtrl : public testing::Test
{
protected:
    MyTabCtrl()
    {
        EXPECT_TRUE(tabs.Create(kId, &parent));
        tabs.MoveWindow(0, 0, 400, kHeight);
    }

    void AddThree()
    {
        tabs.AddItem("one", 100, 200, kBar);
        tabs.AddItem("two", 50, 201, kBar);
        tabs.AddItem("three", 70, 202, kBar);
    }

    void Press(int x)
    {
        tabs.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, kHeight / 2));
        tabs.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, kHeight / 2));
    }

    COLORREF Pixel(int x, int y)
    {
        Paint(tabs);
        return PixelOf(tabs, x, y);
    }

    KitWindow parent;
    CMyTabCtrl_MyCtrl tabs;
};

} // namespace

TEST_F(MyTabCtrl, IsAnEmptyVisibleChildAtFirst)
{
    CMyTabCtrl_MyCtrl fresh;
    ASSERT_TRUE(fresh.Create(kId, &parent));
    EXPECT_EQ(kId, fresh.GetDlgCtrlID());
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | WS_VISIBLE), fresh.GetStyle());
    CRect place;
    fresh.GetWindowRect(&place);
    EXPECT_TRUE(place.IsRectEmpty());
    CString title;
    fresh.GetWindowText(title);
    EXPECT_STREQ("CMyTabCtrl_MyCtrl", title);
    EXPECT_EQ(static_cast<DWORD>(CS_DBLCLKS), GetClassLongA(fresh, GCL_STYLE));
}

TEST_F(MyTabCtrl, WithoutTabsOnlyTheBackgroundShows)
{
    EXPECT_EQ(-1, tabs.GetCurSel());
    EXPECT_EQ(0, tabs.GetItemCount());
    tabs.SetCurSel(0);
    EXPECT_EQ(-1, tabs.GetCurSel());
    Press(10);
    EXPECT_EQ(-1, tabs.GetCurSel());
    EXPECT_TRUE(parent.notices.empty());
    tabs.SetLook(LoudLook());
    Paint(tabs);
    for (int x = 0; x < 400; x += 7)
        EXPECT_COLOR(RGB(10, 10, 10), PixelOf(tabs, x, x % kHeight));
}

TEST_F(MyTabCtrl, AClickSelectsAndTellsTheParent)
{
    AddThree();
    Press(120);
    EXPECT_EQ(1, tabs.GetCurSel());
    ASSERT_EQ(1u, parent.notices.size());
    EXPECT_EQ(static_cast<UINT>(TCN_SELCHANGE), parent.notices[0].code);
    EXPECT_EQ(static_cast<UINT>(kId), parent.notices[0].id);
    EXPECT_EQ(static_cast<HWND>(tabs), parent.notices[0].from);
}

TEST_F(MyTabCtrl, AClickOnTheSelectedTabTellsNothing)
{
    AddThree();
    tabs.SetCurSel(1);
    Press(120);
    EXPECT_EQ(1, tabs.GetCurSel());
    EXPECT_TRUE(parent.notices.empty());
}

TEST_F(MyTabCtrl, TheFirstPixelOfATabAndWhatIsBehindTheLastDoNothing)
{
    AddThree();
    for (const int x : {0, 100, 150, 220, 221, 390})
        Press(x);
    EXPECT_EQ(-1, tabs.GetCurSel());
    EXPECT_TRUE(parent.notices.empty());
    Press(219);
    EXPECT_EQ(2, tabs.GetCurSel());
}

TEST_F(MyTabCtrl, AParentCanPutTheSelectionBack)
{
    AddThree();
    tabs.SetCurSel(0);
    parent.onNotice = [&](UINT)
    {
        tabs.SetCurSel(0);
    };
    Press(120);
    EXPECT_EQ(0, tabs.GetCurSel());
    EXPECT_EQ(1u, parent.notices.size());
}

TEST_F(MyTabCtrl, AParentCanDestroyTheStripWhenItIsTold)
{
    AddThree();
    parent.onNotice = [&](UINT)
    {
        tabs.DestroyWindow();
    };
    Press(120);
    EXPECT_EQ(nullptr, tabs.m_hWnd);
}

TEST_F(MyTabCtrl, SelectingByCallTellsNothing)
{
    AddThree();
    tabs.SetCurSel(2);
    EXPECT_EQ(2, tabs.GetCurSel());
    EXPECT_TRUE(parent.notices.empty());
}

TEST_F(MyTabCtrl, WorksWithoutAWindow)
{
    CMyTabCtrl_MyCtrl bare;
    bare.AddItem("one", 100, kBar);
    bare.SetCurSel(0);
    bare.SetItemTitle(0, "two");
    EXPECT_EQ(0, bare.GetCurSel());
}

TEST_F(MyTabCtrl, ItemsCarryData)
{
    EXPECT_EQ(0, tabs.AddItem("a", 100, 200, kBar));
    EXPECT_EQ(1, tabs.AddItem("b", 100, kBar));
    EXPECT_EQ(2, tabs.AddItem("c", 100, kBar, kOther));
    EXPECT_EQ(200, tabs.GetItemData(0));
    EXPECT_EQ(0, tabs.GetItemData(1));
    EXPECT_EQ(0, tabs.GetItemData(2));
    tabs.SetItemData(2, 202);
    EXPECT_EQ(202, tabs.GetItemData(2));
}

TEST_F(MyTabCtrl, IndicesOutOfRangeAreIgnored)
{
    AddThree();
    tabs.SetCurSel(1);
    for (const int index : {-1, 3, 1000})
    {
        tabs.SetCurSel(index);
        tabs.SetItemData(index, 9);
        tabs.SetItemTitle(index, "x");
        EXPECT_EQ(-1, tabs.GetItemData(index));
    }
    EXPECT_EQ(1, tabs.GetCurSel());
}

TEST_F(MyTabCtrl, HitTestCountsTheWidths)
{
    AddThree();
    EXPECT_EQ(0, tabs.HitTest(1, 0));
    EXPECT_EQ(-1, tabs.HitTest(100, 0));
    EXPECT_EQ(2, tabs.HitTest(151, 5000));
    EXPECT_EQ(-1, tabs.HitTest(220, 0));
}

TEST_F(MyTabCtrl, BoxesShareTheirEdges)
{
    AddThree();
    tabs.SetLook(LoudLook());
    const COLORREF line = RGB(50, 50, 50);
    const COLORREF back = RGB(10, 10, 10);
    EXPECT_COLOR(line, Pixel(0, 20));
    EXPECT_COLOR(line, Pixel(99, 20));
    EXPECT_COLOR(back, Pixel(100, 5));
    EXPECT_COLOR(line, Pixel(149, 20));
    EXPECT_COLOR(line, Pixel(219, 20));
    EXPECT_COLOR(back, Pixel(220, 20));
    EXPECT_COLOR(line, Pixel(50, 0));
    EXPECT_COLOR(line, Pixel(50, kHeight - 1));
}

TEST_F(MyTabCtrl, TheSelectedTabHasSideLinesAndABarBelow)
{
    AddThree();
    tabs.SetLook(LoudLook());
    tabs.SetCurSel(1);
    const COLORREF line = RGB(50, 50, 50);
    EXPECT_COLOR(RGB(40, 40, 40), Pixel(101, 3));
    EXPECT_COLOR(RGB(40, 40, 40), Pixel(125, 0));
    EXPECT_COLOR(line, Pixel(99, 20));
    EXPECT_COLOR(line, Pixel(149, 20));
    EXPECT_COLOR(RGB(40, 40, 40), Pixel(110, kHeight - 3));
    EXPECT_COLOR(kBar, Pixel(110, kHeight - 2));
    EXPECT_COLOR(kBar, Pixel(110, kHeight - 1));
    EXPECT_COLOR(kBar, Pixel(100, kHeight - 1));
    EXPECT_COLOR(line, Pixel(50, kHeight - 1));
}

TEST_F(MyTabCtrl, TheBarCanStandAtTheTop)
{
    AddThree();
    CMyTabCtrl_MyCtrl::Look look = LoudLook();
    look.barAtTop = true;
    tabs.SetLook(look);
    tabs.SetCurSel(0);
    EXPECT_COLOR(kBar, Pixel(50, 0));
    EXPECT_COLOR(kBar, Pixel(50, 2));
    EXPECT_COLOR(RGB(40, 40, 40), Pixel(50, 3));
    EXPECT_COLOR(RGB(40, 40, 40), Pixel(50, kHeight - 1));
}

TEST_F(MyTabCtrl, WithoutBoxesSeparatorsStandBetweenTheTabs)
{
    AddThree();
    CMyTabCtrl_MyCtrl::Look look = LoudLook();
    look.boxed = false;
    tabs.SetLook(look);
    const COLORREF line = RGB(50, 50, 50);
    const COLORREF back = RGB(10, 10, 10);
    EXPECT_COLOR(back, Pixel(0, 20));
    EXPECT_COLOR(back, Pixel(99, 3));
    EXPECT_COLOR(line, Pixel(99, 4));
    EXPECT_COLOR(line, Pixel(99, kHeight - 5));
    EXPECT_COLOR(back, Pixel(99, kHeight - 4));
    EXPECT_COLOR(line, Pixel(149, 20));
    EXPECT_COLOR(back, Pixel(219, 20));
}

TEST_F(MyTabCtrl, TheBarHasTheActiveColourOnly)
{
    tabs.AddItem("one", 100, kBar, kOther);
    tabs.AddItem("two", 100, kBar, kOther);
    tabs.SetCurSel(0);
    EXPECT_COLOR(kBar, Pixel(20, kHeight - 1));
    EXPECT_COLOR(kPageSheet, Pixel(120, kHeight - 1));
}

TEST_F(MyTabCtrl, TitlesShowInTheColourOfTheirState)
{
    tabs.AddItem("■■■", 100, kBar);
    tabs.AddItem("■■■", 100, kBar);
    CMyTabCtrl_MyCtrl::Look look = LoudLook();
    tabs.SetLook(look);
    tabs.SetCurSel(0);
    Paint(tabs);
    const auto has = [&](int from, COLORREF color)
    {
        for (int y = 4; y < kHeight - 4; ++y)
            for (int x = from + 4; x < from + 96; ++x)
                if (PixelOf(tabs, x, y) == color)
                    return true;
        return false;
    };
    EXPECT_TRUE(has(0, look.activeTextColor));
    EXPECT_FALSE(has(0, look.textColor));
    EXPECT_TRUE(has(100, look.textColor));
    EXPECT_FALSE(has(100, look.activeTextColor));
}

TEST_F(MyTabCtrl, TitlesAreCutAtThirtyOneBytes)
{
    constexpr int kWide = 390; // shows more than the limit
    tabs.AddItem("", kWide, kBar);
    const auto shown = [&](const std::string& title)
    {
        tabs.SetItemTitle(0, title.c_str());
        return PixelsOf(tabs);
    };
    const std::string whole(31, 'x');
    EXPECT_FALSE(shown(std::string(30, 'x')) == shown(whole));
    EXPECT_TRUE(shown(whole) == shown(whole + "x"));
    EXPECT_TRUE(shown(whole) == shown(std::string(100000, 'x')));
    // The sixteenth character would end one byte behind the limit: none of it is left.
    const std::string characters = "我我我我我我我我我我我我我我我";
    ASSERT_EQ(30u, characters.size());
    EXPECT_TRUE(shown(characters) == shown(characters + "我我"));
    EXPECT_FALSE(shown(characters) == shown(characters + "x"));

    tabs.AddItem(std::string(100000, 'x').c_str(), 100, kBar);
    EXPECT_EQ(2, tabs.GetItemCount());
}

TEST_F(MyTabCtrl, IsWorkedByKeyboard)
{
    AddThree();
    tabs.SetCurSel(0);
    EXPECT_EQ(DLGC_WANTARROWS, tabs.SendMessage(WM_GETDLGCODE));
    const auto press = [&](UINT key)
    {
        tabs.SendMessage(WM_KEYDOWN, key, 1);
        return tabs.GetCurSel();
    };
    EXPECT_EQ(1, press(VK_RIGHT));
    EXPECT_EQ(2, press(VK_RIGHT));
    EXPECT_EQ(2, press(VK_RIGHT));
    EXPECT_EQ(1, press(VK_LEFT));
    EXPECT_EQ(0, press(VK_HOME));
    EXPECT_EQ(0, press(VK_LEFT));
    EXPECT_EQ(2, press(VK_END));
    EXPECT_EQ(2, press('A'));
    EXPECT_EQ(5, parent.Count(TCN_SELCHANGE));

    parent.onNotice = [&](UINT)
    {
        tabs.SetCurSel(2);
    };
    EXPECT_EQ(2, press(VK_LEFT));
}

TEST_F(MyTabCtrl, ShowsThatItHasTheFocusToWhoWorksByKeyboard)
{
    /// Answers for the window around it, where the system keeps whether the keyboard is in use.
    class Strip : public CMyTabCtrl_MyCtrl
    {
    public:
        LRESULT hidden = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_QUERYUISTATE
                       ? hidden
                       : CMyTabCtrl_MyCtrl::WindowProc(message, wParam, lParam);
        }
    };
    Strip strip;
    ASSERT_TRUE(strip.Create(kId, &parent));
    strip.MoveWindow(0, 100, 300, kHeight);
    strip.AddItem("one", 100, kBar);
    strip.SetCurSel(0);
    // A dotted line shows at one of two pixels side by side.
    const auto isDotted = [&]
    {
        Paint(strip);
        return PixelOf(strip, 10, 4) != kPageSheet || PixelOf(strip, 11, 4) != kPageSheet;
    };
    ::SetFocus(parent);
    EXPECT_FALSE(isDotted());
    ::SetFocus(strip);
    EXPECT_TRUE(isDotted());
    strip.hidden = UISF_HIDEFOCUS;
    EXPECT_FALSE(isDotted());
}

TEST_F(MyTabCtrl, ShowsTheArrowCursor)
{
    ::SetCursor(nullptr);
    tabs.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(static_cast<HWND>(tabs)),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::LoadCursor(nullptr, IDC_ARROW), ::GetCursor());
}

TEST_F(MyTabCtrl, AThousandStripsLeaveNothingBehind)
{
    const auto makeOne = [&]
    {
        CMyTabCtrl_MyCtrl strip;
        ASSERT_TRUE(strip.Create(kId, &parent));
        strip.MoveWindow(0, 50, 300, kHeight);
        strip.AddItem("one", 100, kBar);
        strip.AddItem("two", 100, kBar);
        strip.SetCurSel(1);
        Paint(strip);
    };
    ExpectNothingLeftBehind(makeOne);
}

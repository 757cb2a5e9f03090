// Windows of the framework with drawn bars, used as a page uses them.
#include "skin/scroll/CoolSBDialog.h"
#include "skin/scroll/CoolSBWindow.h"
#include "skin/scroll/CoolSBWnd.h"
#include "tests/mfc/GdiCount.h"
#include "tests/scroll/ScrollTestDialogs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace
{

constexpr int kWidth = 12;

constexpr COLORREF kBack = RGB(240, 245, 249);
constexpr COLORREF kArrowBack = RGB(255, 255, 255);
constexpr COLORREF kLine = RGB(204, 214, 224);
constexpr COLORREF kThumb = RGB(210, 214, 226);
constexpr CoolSBColors kPageColors = {kBack,
                                      {kArrowBack, kArrowBack, kArrowBack},
                                      {kLine, kLine, kLine},
                                      {kThumb, kThumb, kThumb},
                                      kLine};

/// The bars of a page: a vertical one of 12 pixels over 600 positions, 200 of them seen.
template <typename Window>
void ShowPageBar(Window& window, int max = 600, UINT page = 200)
{
    window.Init(window.m_hWnd, false, 20, 0, 0, max);
    window.SetWidth(kWidth);
    window.ShowScrollBar(SB_HORZ, FALSE);
    window.SetColors(kPageColors);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = max;
    info.nPage = page;
    window.SetScrollInfo(SB_VERT, &info);
}

/// A page that moves its contents with its bar, and by a page with the wheel.
class CScrollPage : public CoolSBDialog<>
{
public:
    using CoolSBDialog<>::Create;

    void Show(int height)
    {
        SetWindowPos(nullptr, 20, 20, 300, height, SWP_NOZORDER);
        ShowPageBar(*this);
    }

protected:
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar)
    {
        const int before = GetScrollPos(SB_VERT);
        CoolSBDialog<>::OnVScroll(code, pos, bar);
        ScrollWindow(0, before - GetScrollPos(SB_VERT));
    }
    afx_msg BOOL OnMouseWheel(UINT, short delta, CPoint)
    {
        OnVScroll(delta < 1 ? SB_PAGEDOWN : SB_PAGEUP, 0, nullptr);
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CScrollPage, CoolSBDialog<>)
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()
// clang-format on

void Pump(DWORD milliseconds = 40)
{
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < milliseconds)
    {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
}

COLORREF PixelOf(HWND hwnd, int x, int y)
{
    const HDC dc = GetWindowDC(hwnd);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(hwnd, dc);
    return color;
}

class DialogTest : public testing::Test
{
protected:
    void SetUp() override
    {
        SetCursorPos(5, 5);
        const LPCTSTR windowClass = AfxRegisterWndClass(0, LoadCursor(nullptr, IDC_ARROW),
                                                        GetSysColorBrush(COLOR_WINDOW), nullptr);
        frame.CreateEx(WS_EX_TOPMOST, windowClass, "", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 80,
                       80, 400, 420, nullptr, nullptr);
        ASSERT_TRUE(page.Create(IDD_SCROLL_PAGE, &frame));
        page.Show(324);
        ::SetForegroundWindow(frame.m_hWnd);
        Pump();
    }
    void TearDown() override
    {
        mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
        frame.DestroyWindow();
        Pump(0);
    }

    /// Top of a control within the page's window.
    int TopOf(int id) const
    {
        RECT control = {};
        ::GetWindowRect(::GetDlgItem(page.m_hWnd, id), &control);
        RECT window = {};
        ::GetWindowRect(page.m_hWnd, &window);
        return control.top - window.top;
    }

    void MoveTo(int along)
    {
        RECT window = {};
        ::GetWindowRect(page.m_hWnd, &window);
        SetCursorPos(window.right - kWidth / 2, window.top + along);
        Pump();
    }
    void Mouse(DWORD event)
    {
        mouse_event(event, 0, 0, 0, 0);
        Pump();
    }
    void Click(int along)
    {
        MoveTo(along);
        Mouse(MOUSEEVENTF_LEFTDOWN);
        Mouse(MOUSEEVENTF_LEFTUP);
    }

    int Pos() const { return page.GetScrollPos(SB_VERT); }

    CWnd frame;
    CScrollPage page;
};

// The bar is 324 long: arrows of 12, a track of 300, a thumb of 100 (200 of 601 positions).
constexpr int kLastPos = 401;

TEST_F(DialogTest, BarIsDrawnInThePagesColours)
{
    EXPECT_EQ(PixelOf(page, 294, 200), kBack);
    EXPECT_EQ(PixelOf(page, 294, 60), kThumb);
    EXPECT_EQ(PixelOf(page, 288, 60), kLine);
    EXPECT_EQ(PixelOf(page, 289, 1), kArrowBack);
    EXPECT_EQ(PixelOf(page, 288, 0), kLine);
    EXPECT_NE(PixelOf(page, 287, 200), kBack) << "the page itself";
    RECT client = {};
    ::GetClientRect(page.m_hWnd, &client);
    EXPECT_EQ(client.right, 288);
    EXPECT_EQ(client.bottom, 324);
}

TEST_F(DialogTest, ArrowsPagesAndWheelMoveTheContents)
{
    const int top = TopOf(IDC_TOP_TEXT);
    Click(318);
    EXPECT_EQ(Pos(), 1);
    EXPECT_EQ(TopOf(IDC_TOP_TEXT), top - 1);
    Click(300);
    EXPECT_EQ(Pos(), 201);
    Click(300);
    EXPECT_EQ(Pos(), kLastPos) << "the last page";
    EXPECT_EQ(TopOf(IDC_TOP_TEXT), top - kLastPos);
    Click(20);
    EXPECT_EQ(Pos(), 201);
    Click(5);
    EXPECT_EQ(Pos(), 200);

    ::SendMessage(page.m_hWnd, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(Pos(), 0);
    ::SendMessage(page.m_hWnd, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
    EXPECT_EQ(Pos(), 200);
    EXPECT_EQ(TopOf(IDC_TOP_TEXT), top - 200);
    EXPECT_EQ(PixelOf(page, 294, 12 + 101), kThumb) << "the thumb has come along";
    EXPECT_EQ(PixelOf(page, 294, 100), kBack);
}

TEST_F(DialogTest, HeldArrowRepeats)
{
    MoveTo(318);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    Pump(700);
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_GE(Pos(), 2);
    EXPECT_LE(Pos(), 9);
}

TEST_F(DialogTest, ThumbDragsTheContents)
{
    const int top = TopOf(IDC_TOP_TEXT);
    MoveTo(50);
    Mouse(MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(page.IsThumbTracking());
    MoveTo(150);
    EXPECT_EQ(Pos(), 201) << "100 of 200 pixels: half of 401";
    EXPECT_EQ(TopOf(IDC_TOP_TEXT), top - 201);
    EXPECT_EQ(PixelOf(page, 294, 112 + 50), kThumb);
    EXPECT_EQ(PixelOf(page, 294, 60), kBack) << "no trace where it was";
    MoveTo(330);
    EXPECT_EQ(Pos(), kLastPos);
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_FALSE(page.IsThumbTracking());
    EXPECT_EQ(Pos(), kLastPos);
    EXPECT_EQ(TopOf(IDC_TOP_TEXT), top - kLastPos);
}

TEST_F(DialogTest, ThumbReleasedWhereItWasPressedMovesNothing)
{
    page.SetScrollPos(SB_VERT, 37);
    MoveTo(60);
    Mouse(MOUSEEVENTF_LEFTDOWN);
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(Pos(), 37);
}

TEST_F(DialogTest, PositionsBeyondSixteenBitsAreReached)
{
    ShowPageBar(page, 1000000, 200);
    MoveTo(18);
    Mouse(MOUSEEVENTF_LEFTDOWN);
    MoveTo(330);
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(Pos(), 1000000 - 200 + 1);
}

TEST_F(DialogTest, HiddenBarGivesItsRoomBackWithoutATrace)
{
    page.ShowScrollBar(SB_VERT, FALSE);
    Pump();
    const COLORREF sheet = PixelOf(page, 280, 310);
    const HDC dc = ::GetWindowDC(page.m_hWnd);
    int traces = 0;
    for (int y = 0; y < 324; ++y)
        for (int x = 288; x < 300; ++x)
            traces += GetPixel(dc, x, y) != sheet;
    ::ReleaseDC(page.m_hWnd, dc);
    EXPECT_EQ(traces, 0);
}

TEST_F(DialogTest, ScrollMessageOfAControlIsNotTheBars)
{
    page.SetScrollPos(SB_VERT, 50);
    const HWND slider = ::GetDlgItem(page.m_hWnd, IDC_SLIDER);
    ::SendMessage(page.m_hWnd, WM_VSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(slider));
    EXPECT_EQ(Pos(), 50);
    ::SendMessage(page.m_hWnd, WM_VSCROLL, SB_LINEDOWN, 0);
    EXPECT_EQ(Pos(), 51);
}

TEST_F(DialogTest, HorizontalMessagesTakeTheirPositionFromTheMessage)
{
    page.ShowScrollBar(SB_HORZ, TRUE);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = 500;
    info.nPage = 100;
    info.nPos = 40;
    page.SetScrollInfo(SB_HORZ, &info);
    const auto scroll = [this](int code, int pos)
    {
        ::SendMessage(page.m_hWnd, WM_HSCROLL, MAKEWPARAM(code, pos), 0);
        return page.GetScrollPos(SB_HORZ);
    };
    EXPECT_EQ(scroll(SB_LINERIGHT, 0), 41);
    EXPECT_EQ(scroll(SB_PAGERIGHT, 0), 141);
    EXPECT_EQ(scroll(SB_PAGELEFT, 0), 41);
    EXPECT_EQ(scroll(SB_THUMBTRACK, 222), 222);
    EXPECT_EQ(scroll(SB_THUMBPOSITION, 60000), 401);
    EXPECT_EQ(scroll(SB_LEFT, 0), 0);
    EXPECT_EQ(scroll(SB_LINELEFT, 0), 0);
    EXPECT_EQ(scroll(SB_RIGHT, 0), 401);
    EXPECT_EQ(scroll(SB_ENDSCROLL, 0), 401);
}

TEST_F(DialogTest, WrapperReadsWhatItSet)
{
    SCROLLINFO info = {};
    EXPECT_TRUE(page.GetScrollInfo(SB_VERT, &info, SIF_RANGE | SIF_PAGE));
    EXPECT_EQ(info.nMax, 600);
    EXPECT_EQ(info.nPage, 200u);
    EXPECT_TRUE(page.SetScrollRange(SB_VERT, 0, 700));
    int min = -1;
    int max = -1;
    EXPECT_TRUE(page.GetScrollRange(SB_VERT, &min, &max));
    EXPECT_EQ(min, 0);
    EXPECT_EQ(max, 700);
    EXPECT_TRUE(page.EnableBar(SB_VERT, FALSE));
    Click(318);
    EXPECT_EQ(Pos(), 0) << "both arrows are off";
    EXPECT_TRUE(page.EnableBar(SB_VERT, TRUE));
    Click(318);
    EXPECT_EQ(Pos(), 1);
}

TEST_F(DialogTest, InitGivesBothBarsTheSameValuesAndTheSystemsWidth)
{
    page.SetWidth(GetSystemMetrics(SM_CXVSCROLL));
    page.Init(page.m_hWnd, true, 30, 7, 0, 90);
    for (const int bar : {SB_HORZ, SB_VERT})
    {
        SCROLLINFO info = {};
        EXPECT_TRUE(page.GetScrollInfo(bar, &info));
        EXPECT_EQ(info.nPage, 30u);
        EXPECT_EQ(info.nPos, 7);
        EXPECT_EQ(info.nMax, 90);
        CoolSBBar& made = BarOf(*GetCoolSBWindow(page.m_hWnd), bar);
        EXPECT_EQ(made.style, kCoolSBHot);
        EXPECT_EQ(made.barWidth, GetSystemMetrics(SM_CXVSCROLL));
        EXPECT_EQ(made.arrowLength, GetSystemMetrics(SM_CXVSCROLL));
        EXPECT_EQ(made.minThumb, GetSystemMetrics(SM_CXVSCROLL));
        EXPECT_TRUE(made.shown);
    }
    page.Init(page.m_hWnd, false, 30, 7, 0, 90);
    EXPECT_EQ(GetCoolSBWindow(page.m_hWnd)->vert.style, kCoolSBFlat);
}

TEST_F(DialogTest, NotificationSentToTheWindowItselfIsAnsweredToo)
{
    NMCoolSBCustomDraw draw = {};
    draw.hdr.hwndFrom = ::GetDlgItem(page.m_hWnd, IDC_SLIDER);
    draw.hdr.code = NM_COOLSB_CUSTOMDRAW;
    draw.drawStage = CDDS_PREPAINT;
    const LPARAM record = reinterpret_cast<LPARAM>(&draw);
    EXPECT_EQ(::SendMessage(page.m_hWnd, WM_NOTIFY, 0, record), CDRF_SKIPDEFAULT);
    draw.hdr.code = NM_CUSTOMDRAW;
    EXPECT_EQ(::SendMessage(page.m_hWnd, WM_NOTIFY, 0, record), 0);
}

TEST_F(DialogTest, PageDestroyedDuringADragIsNoHarm)
{
    MoveTo(50);
    Mouse(MOUSEEVENTF_LEFTDOWN);
    MoveTo(90);
    page.DestroyWindow();
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(coolSBTracking.press.window, nullptr);
    ASSERT_TRUE(page.Create(IDD_SCROLL_PAGE, &frame));
    page.Show(324);
    EXPECT_EQ(Pos(), 0);
}

TEST_F(DialogTest, WindowWithoutParentDrawsItsOwnBars)
{
    CoolSBWnd window;
    const LPCTSTR windowClass = AfxRegisterWndClass(0, LoadCursor(nullptr, IDC_ARROW),
                                                    GetSysColorBrush(COLOR_WINDOW), nullptr);
    ASSERT_TRUE(window.CreateEx(WS_EX_TOPMOST, windowClass, "", WS_POPUP | WS_VISIBLE, 600, 100,
                                200, 324, nullptr, nullptr));
    ShowPageBar(window);
    Pump();
    EXPECT_EQ(PixelOf(window, 194, 200), kBack);
    EXPECT_EQ(PixelOf(window, 194, 60), kThumb);
    SetCursorPos(794, 418);
    Pump();
    Mouse(MOUSEEVENTF_LEFTDOWN);
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(window.GetScrollPos(SB_VERT), 1);
    window.DestroyWindow();
}

TEST_F(DialogTest, PagesComeAndGoWithoutALeak)
{
    const auto cycle = [this]
    {
        CScrollPage other;
        other.Create(IDD_SCROLL_PAGE, &frame);
        other.Show(324);
        Pump(10);
        other.DestroyWindow();
    };
    for (int i = 0; i < 5; ++i)
        cycle();
    const int before = CountGdiObjects();
    for (int i = 0; i < 30; ++i)
        cycle();
    EXPECT_LE(CountGdiObjects() - before, 5);
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    const int result = RUN_ALL_TESTS();
    AfxWinTerm();
    return result;
}

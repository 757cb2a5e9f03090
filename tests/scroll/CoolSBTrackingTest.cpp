// Presses, drags and hovering, by the real mouse.
#include "tests/scroll/ScrollTestWindow.h"
#include "tests/skin/ImportPatch.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace
{

using Codes = std::vector<int>;

// Where things are on a vertical bar of 200 pixels whose thumb stands at the top.
constexpr int kOnArrowUp = 10;
constexpr int kOnThumb = 40;     // 20 to 60
constexpr int kOnPageDown = 120; // 60 to 180
constexpr int kOnArrowDown = 190;

constexpr int kThumbOffset = kOnThumb - 20;

/// Position of a thumb that lies `pixels` below the upper arrow.
int PosAt(int pixels)
{
    return MulDiv(pixels, 75, 120);
}

/// Notes the timers that are started.
class TimerWatch
{
public:
    TimerWatch()
    {
        EXPECT_TRUE(patch.IsInPlace());
        original = patch.Original<decltype(original)>();
        started.clear();
    }

    /// Pairs of id and milliseconds.
    static inline std::vector<std::pair<UINT_PTR, UINT>> started;

private:
    static UINT_PTR WINAPI Note(HWND window, UINT_PTR id, UINT delay, TIMERPROC procedure)
    {
        started.emplace_back(id, delay);
        return original(window, id, delay, procedure);
    }

    static inline decltype(&SetTimer) original;
    const ImportPatch patch{"SetTimer", reinterpret_cast<void*>(Note)};
};

class TrackingTest : public ScrollTest
{
protected:
    void SetUp() override
    {
        ScrollTest::SetUp();
        ShowBars(false, true);
    }

    bool IsPressed() const { return coolSBTracking.press.capturedPart != kPartNone; }
    int PressedPart() const { return coolSBTracking.press.pressedPart; }

    void ExpectIdle() const
    {
        EXPECT_EQ(coolSBTracking.press.window, nullptr);
        EXPECT_EQ(coolSBTracking.press.trackBar, -1);
        EXPECT_EQ(coolSBTracking.press.capturedPart, -1);
        EXPECT_EQ(coolSBTracking.press.pressedPart, -1);
        EXPECT_EQ(coolSBTracking.press.scrollMessage, 0u);
        EXPECT_EQ(coolSBTracking.press.repeatTimer, 0u);
        EXPECT_FALSE(CoolSB_IsThumbTracking(pane));
        EXPECT_NE(GetCapture(), pane);
    }
};

// Press of an arrow or a page area

TEST_F(TrackingTest, PressOnAnArrowSendsOneMessageAtOnce)
{
    PressOn(SB_VERT, kOnArrowDown);
    EXPECT_EQ(TakeCodes(), Codes{SB_LINEDOWN});
    EXPECT_EQ(GetCapture(), pane);
    EXPECT_EQ(PressedPart(), kPartArrowForward);
    EXPECT_EQ(coolSBTracking.press.repeatTimer, 65533u);
    ReleaseMouse();
    EXPECT_EQ(TakeCodes(), Codes{SB_ENDSCROLL});
    ExpectIdle();
    EXPECT_EQ(Pos(SB_VERT), 1);
}

TEST_F(TrackingTest, EveryPartSendsItsCodeOnItsBar)
{
    SetPos(SB_VERT, 37); // thumb at 79
    const struct
    {
        int along;
        int code;
    } cases[] = {
        {kOnArrowUp, SB_LINEUP}, {kOnArrowDown, SB_LINEDOWN}, {30, SB_PAGEUP}, {170, SB_PAGEDOWN}};
    for (const auto& [along, code] : cases)
    {
        SetPos(SB_VERT, 37);
        PressOn(SB_VERT, along);
        ReleaseMouse();
        ASSERT_FALSE(scrolls.empty());
        EXPECT_EQ(scrolls.front().message, static_cast<UINT>(WM_VSCROLL));
        EXPECT_EQ(TakeCodes(), (Codes{code, SB_ENDSCROLL}));
    }
}

TEST_F(TrackingTest, HorizontalBarSendsItsOwnMessage)
{
    CoolSB_ShowScrollBar(pane, SB_VERT, FALSE);
    CoolSB_ShowScrollBar(pane, SB_HORZ, TRUE);
    PressOn(SB_HORZ, 290);
    ReleaseMouse();
    ASSERT_EQ(scrolls.size(), 2u);
    EXPECT_EQ(scrolls[0].message, static_cast<UINT>(WM_HSCROLL));
    EXPECT_EQ(TakeCodes(), (Codes{SB_LINERIGHT, SB_ENDSCROLL}));
    EXPECT_EQ(Pos(SB_HORZ), 1);
}

TEST_F(TrackingTest, HeldForASecondItSendsOneAndAboutThirteenMessages)
{
    const TimerWatch timers;
    MoveTo(SB_VERT, kOnArrowDown);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    Pump(1000);
    EXPECT_EQ((std::vector<std::pair<UINT_PTR, UINT>>{
                  {static_cast<UINT_PTR>(-14), 20}, {65533, 300}, {65534, 55}}),
              TimerWatch::started)
        << "the mouse above the bar, the wait, the repeats";
    ReleaseMouse();
    ASSERT_GE(scrolls.size(), 2u);
    const int lines = static_cast<int>(std::count_if(scrolls.begin(), scrolls.end(),
                                                     [](const ScrollMessage& scroll)
                                                     { return scroll.code == SB_LINEDOWN; }));
    // A busy machine may drop a few, never add one.
    EXPECT_GE(lines, 9);
    EXPECT_LE(lines, 15);
    EXPECT_GE(scrolls[1].time - scrolls[0].time, 290u); // less what a clock may be coarse
    EXPECT_EQ(scrolls.back().code, SB_ENDSCROLL);
    ExpectIdle();
}

TEST_F(TrackingTest, FirstTimerWaitsAndSecondRepeats)
{
    PressOn(SB_VERT, kOnArrowDown);
    TakeCodes();
    SendMessageA(pane, WM_TIMER, 65533, 0);
    EXPECT_EQ(TakeCodes(), Codes{}) << "the first only starts the second";
    EXPECT_EQ(coolSBTracking.press.repeatTimer, 65534u);
    SendMessageA(pane, WM_TIMER, 65534, 0);
    EXPECT_EQ(TakeCodes(), Codes{SB_LINEDOWN});
    ReleaseMouse();
    EXPECT_EQ(TakeCodes().back(), SB_ENDSCROLL);
}

TEST_F(TrackingTest, PressHeldOffItsPartPausesUntilTheMouseComesBack)
{
    PressOn(SB_VERT, kOnArrowDown);
    Pump(500);
    EXPECT_GT(TakeCodes().size(), 1u) << "it repeats";

    MoveMouse({200, 150});
    EXPECT_TRUE(IsPressed());
    EXPECT_EQ(PressedPart(), kPartNone);
    EXPECT_EQ(GetCapture(), pane);
    TakeCodes();
    Pump(300);
    EXPECT_EQ(TakeCodes(), Codes{}) << "nothing is sent while off the part";
    EXPECT_NE(coolSBTracking.press.repeatTimer, 0u) << "but the timer runs on";

    MoveTo(SB_VERT, kOnArrowDown);
    EXPECT_EQ(PressedPart(), kPartArrowForward);
    Pump(300);
    EXPECT_GE(TakeCodes().size(), 2u);

    MoveMouse({200, 150});
    TakeCodes();
    ReleaseMouse();
    EXPECT_EQ(TakeCodes(), Codes{SB_ENDSCROLL});
    ExpectIdle();
}

TEST_F(TrackingTest, AnotherPartThanThePressedOneIsOffIt)
{
    PressOn(SB_VERT, kOnArrowDown);
    MoveTo(SB_VERT, kOnArrowUp);
    EXPECT_EQ(PressedPart(), kPartNone);
    TakeCodes();
    Pump(400);
    EXPECT_EQ(TakeCodes(), Codes{});
    ReleaseMouse();
}

TEST_F(TrackingTest, PageAreaRepeatsUntilTheThumbIsUnderTheMouse)
{
    PressOn(SB_VERT, kOnPageDown);
    Pump(800);
    const Codes codes = TakeCodes();
    EXPECT_EQ(codes, (Codes{SB_PAGEDOWN, SB_PAGEDOWN})) << "25 puts the thumb at 60, 50 at 100";
    EXPECT_EQ(Pos(SB_VERT), 50);
    EXPECT_EQ(PressedPart(), kPartNone);
    ReleaseMouse();
    EXPECT_EQ(TakeCodes(), Codes{SB_ENDSCROLL});
}

TEST_F(TrackingTest, DisabledArrowStartsNothing)
{
    CoolSB_EnableScrollBar(pane, SB_VERT, ESB_DISABLE_DOWN);
    PressOn(SB_VERT, kOnArrowDown);
    EXPECT_NE(GetCapture(), pane);
    ExpectIdle();
    Pump(400);
    ReleaseMouse();
    EXPECT_EQ(TakeCodes(), Codes{});

    PressOn(SB_VERT, kOnArrowUp);
    ReleaseMouse();
    EXPECT_EQ(TakeCodes(), (Codes{SB_LINEUP, SB_ENDSCROLL})) << "the other one works";
}

TEST_F(TrackingTest, PressWithoutARangeIsCapturedAndSendsNothing)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_DISABLENOSCROLL;
    CoolSB_SetScrollInfo(pane, SB_VERT, &info, TRUE);
    PressOn(SB_VERT, kOnArrowDown);
    EXPECT_EQ(GetCapture(), pane);
    EXPECT_EQ(PressedPart(), kPartNone);
    EXPECT_EQ(coolSBTracking.press.repeatTimer, 0u);
    Pump(400);
    EXPECT_EQ(TakeCodes(), Codes{});
    ReleaseMouse();
    ExpectIdle();
}

TEST_F(TrackingTest, ThumbAlwaysShownMakesTheArrowsWorkWithoutARange)
{
    CoolSB_SetThumbAlways(pane, SB_VERT, TRUE);
    CoolSB_SetScrollRange(pane, SB_VERT, 0, 0, TRUE);
    PressOn(SB_VERT, kOnArrowDown);
    ReleaseMouse();
    EXPECT_EQ(TakeCodes(), (Codes{SB_LINEDOWN, SB_ENDSCROLL}));
}

TEST_F(TrackingTest, BarHiddenOrDisabledUnderThePressSendsNoMore)
{
    const std::function<void()> takeAway[] = {
        [this] { CoolSB_ShowScrollBar(pane, SB_VERT, FALSE); },
        [this] { CoolSB_EnableScrollBar(pane, SB_VERT, ESB_DISABLE_DOWN); },
        [this]
        {
            CoolSB_EnableScrollBar(pane, SB_VERT, ESB_DISABLE_BOTH);
        }};
    for (const auto& away : takeAway)
    {
        CoolSB_ShowScrollBar(pane, SB_VERT, TRUE);
        CoolSB_EnableScrollBar(pane, SB_VERT, ESB_ENABLE_BOTH);
        PressOn(SB_VERT, kOnArrowDown);
        EXPECT_EQ(TakeCodes(), Codes{SB_LINEDOWN});
        away();
        Pump(500);
        EXPECT_EQ(TakeCodes(), Codes{});
        ReleaseMouse();
        EXPECT_EQ(TakeCodes(), Codes{SB_ENDSCROLL});
        ExpectIdle();
    }
}

TEST_F(TrackingTest, DoubleClickIsASecondPress)
{
    PressOn(SB_VERT, kOnArrowDown);
    ReleaseMouse();
    PressMouse();
    ReleaseMouse();
    EXPECT_EQ(TakeCodes(), (Codes{SB_LINEDOWN, SB_ENDSCROLL, SB_LINEDOWN, SB_ENDSCROLL}));
}

TEST_F(TrackingTest, TimersOfTheWindowAreItsOwn)
{
    others.clear();
    SendMessageA(pane, WM_TIMER, 65533, 0);
    SendMessageA(pane, WM_TIMER, 7, 0);
    EXPECT_EQ(std::count(others.begin(), others.end(), WM_TIMER), 2);
}

TEST_F(TrackingTest, OtherPressesOfTheFrameGoToTheWindow)
{
    others.clear();
    SendMessageA(pane, WM_NCLBUTTONDOWN, HTBORDER, 0);
    EXPECT_EQ(std::count(others.begin(), others.end(), WM_NCLBUTTONDOWN), 1);
    ExpectIdle();
}

// The thumb

TEST_F(TrackingTest, ThumbFollowsTheMouse)
{
    PressOn(SB_VERT, kOnThumb);
    EXPECT_TRUE(CoolSB_IsThumbTracking(pane));
    EXPECT_EQ(GetCapture(), pane);
    EXPECT_EQ(TakeCodes(), Codes{});

    MoveTo(SB_VERT, kOnThumb + 40);
    ASSERT_EQ(scrolls.size(), 1u);
    EXPECT_EQ(scrolls[0].code, SB_THUMBTRACK);
    EXPECT_EQ(scrolls[0].pos, PosAt(40));
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    CoolSB_GetScrollInfo(pane, SB_VERT, &info);
    EXPECT_EQ(info.nTrackPos, PosAt(40));
    TakeCodes();

    MoveTo(SB_VERT, kOnThumb + 40);
    EXPECT_EQ(TakeCodes(), Codes{}) << "only a change is reported";

    MoveTo(SB_VERT, kOnThumb + 160);
    ASSERT_EQ(scrolls.size(), 1u);
    EXPECT_EQ(scrolls[0].pos, 75) << "the last page";
    TakeCodes();

    ReleaseMouse();
    ASSERT_EQ(scrolls.size(), 2u);
    EXPECT_EQ(scrolls[0].pos, 75);
    EXPECT_EQ(TakeCodes(), (Codes{SB_THUMBPOSITION, SB_ENDSCROLL}));
    EXPECT_EQ(Pos(SB_VERT), 75);
    ExpectIdle();
}

TEST_F(TrackingTest, ThumbPulledOffReturnsAndAReleaseThereReportsIt)
{
    SetPos(SB_VERT, 37);
    PressOn(SB_VERT, 100); // the thumb is at 79
    MoveTo(SB_VERT, 130);
    EXPECT_EQ(scrolls.back().pos, PosAt(59 + 30));
    TakeCodes();

    const ScrollPoint off = {On(SB_VERT, 0).x - 8 - 25, On(SB_VERT, 130).y};
    MoveMouse(off);
    ASSERT_EQ(scrolls.size(), 1u);
    EXPECT_EQ(scrolls[0].code, SB_THUMBTRACK);
    EXPECT_EQ(scrolls[0].pos, 37);
    EXPECT_EQ(coolSBTracking.press.thumb.thumbPos, coolSBTracking.press.thumb.thumbOriginalPos);
    TakeCodes();

    MoveMouse({off.x + 1, off.y});
    ASSERT_EQ(scrolls.size(), 1u) << "24 pixels off still counts as on the bar";
    EXPECT_EQ(scrolls[0].pos, PosAt(59 + 30));

    MoveMouse(off);
    TakeCodes();
    ReleaseMouse();
    ASSERT_EQ(scrolls.size(), 2u);
    EXPECT_EQ(scrolls[0].pos, 37);
    EXPECT_EQ(TakeCodes(), (Codes{SB_THUMBPOSITION, SB_ENDSCROLL}));
    EXPECT_EQ(Pos(SB_VERT), 37);
    ExpectIdle();
}

TEST_F(TrackingTest, ThumbPulledPastAnEndStaysThereForAWhile)
{
    PressOn(SB_VERT, kOnThumb);
    MoveTo(SB_VERT, 200 + 47);
    EXPECT_EQ(scrolls.back().pos, 75);
    MoveTo(SB_VERT, 200 + 48);
    EXPECT_EQ(scrolls.back().pos, 0);
    ReleaseMouse();
}

TEST_F(TrackingTest, ThumbReleasedWithoutAMoveReportsThePositionNegated)
{
    // Sent directly: a real mouse might add a move.
    SetPos(SB_VERT, 37);
    const ScrollPoint on = On(SB_VERT, 100);
    scrollsItself = false;
    SendMessageA(pane, WM_NCLBUTTONDOWN, HTVSCROLL, MAKELPARAM(on.x, on.y));
    EXPECT_TRUE(CoolSB_IsThumbTracking(pane));
    SendMessageA(pane, WM_LBUTTONUP, 0, MAKELPARAM(on.x - 100, on.y - 100));
    ASSERT_EQ(scrolls.size(), 2u);
    EXPECT_EQ(scrolls[0].code, SB_THUMBPOSITION);
    EXPECT_EQ(static_cast<short>(scrolls[0].pos), -37);
    EXPECT_EQ(Pos(SB_VERT), 37);
}

TEST_F(TrackingTest, NothingIsPaintedOverADrag)
{
    PressOn(SB_VERT, kOnThumb);
    MoveTo(SB_VERT, kOnThumb + 30);
    draws.clear();
    CoolSB_SetScrollPos(pane, SB_VERT, 5, TRUE);
    CoolSB_SetScrollRange(pane, SB_VERT, 0, 99, TRUE);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    info.nPos = 6;
    CoolSB_SetScrollInfo(pane, SB_VERT, &info, TRUE);
    EXPECT_EQ(draws.size(), 0u);
    EXPECT_EQ(Pos(SB_VERT), 6) << "the data changes all the same";
    ReleaseMouse();
    EXPECT_GT(draws.size(), 0u);
}

TEST_F(TrackingTest, BarThatLosesItsRangeInADragGoesAtItsEnd)
{
    onScroll = [this](const ScrollMessage& scroll)
    {
        if (scroll.code == SB_THUMBTRACK)
            CoolSB_SetScrollRange(pane, SB_VERT, 0, 0, TRUE);
    };
    PressOn(SB_VERT, kOnThumb);
    MoveTo(SB_VERT, kOnThumb + 30);
    EXPECT_EQ(ClientOf(pane).right, 284);
    ReleaseMouse();
    EXPECT_EQ(ClientOf(pane).right, 300);
    ExpectIdle();
}

// The mouse above a bar

TEST_F(TrackingTest, BarIsHotUnderTheMouseAndOnlyThere)
{
    customDrawAnswer = CDRF_SKIPDEFAULT;
    MoveTo(SB_VERT, kOnArrowDown);
    EXPECT_EQ(coolSBTracking.hover.hoverBar, SB_VERT);
    EXPECT_EQ(LastState(kPartArrowForward, SB_VERT), static_cast<UINT>(CDIS_HOT));
    EXPECT_EQ(LastState(kPartArrowBack, SB_VERT), static_cast<UINT>(CDIS_DEFAULT));

    MoveTo(SB_VERT, kOnThumb);
    Pump(100);
    EXPECT_EQ(LastState(kPartThumb, SB_VERT), static_cast<UINT>(CDIS_HOT));
    EXPECT_EQ(LastState(kPartArrowForward, SB_VERT), static_cast<UINT>(CDIS_DEFAULT));

    draws.clear();
    Pump(100);
    EXPECT_EQ(draws.size(), 0u) << "the same part is not drawn again";

    MoveMouse({200, 150});
    Pump(100);
    EXPECT_EQ(LastState(kPartThumb, SB_VERT), static_cast<UINT>(CDIS_DEFAULT));
    EXPECT_EQ(coolSBTracking.hover.hoverBar, -1);
    EXPECT_EQ(coolSBTracking.hover.hoverPart, -1);
    EXPECT_EQ(coolSBTracking.hover.lastHoverPart, -1);
    EXPECT_EQ(coolSBTracking.hover.hoverTimer, 0u);
    EXPECT_FALSE(KillTimer(pane, static_cast<UINT_PTR>(-14))) << "its timer is gone";
}

TEST_F(TrackingTest, HoverGoesFromOneBarToTheOther)
{
    CoolSB_ShowScrollBar(pane, SB_HORZ, TRUE);
    customDrawAnswer = CDRF_SKIPDEFAULT;
    MoveTo(SB_VERT, kOnArrowUp);
    EXPECT_EQ(LastState(kPartArrowBack, SB_VERT), static_cast<UINT>(CDIS_HOT));
    MoveTo(SB_HORZ, kOnArrowUp);
    Pump(100);
    EXPECT_EQ(coolSBTracking.hover.hoverBar, SB_HORZ);
    EXPECT_EQ(LastState(kPartArrowBack, SB_VERT), static_cast<UINT>(CDIS_DEFAULT));
    EXPECT_EQ(LastState(kPartArrowBack, SB_HORZ), static_cast<UINT>(CDIS_HOT));
}

TEST_F(TrackingTest, PressedPartIsDrawnPressedAndReleasedOffThePart)
{
    customDrawAnswer = CDRF_SKIPDEFAULT;
    PressOn(SB_VERT, kOnArrowDown);
    EXPECT_EQ(LastState(kPartArrowForward, SB_VERT), static_cast<UINT>(CDIS_SELECTED));
    MoveMouse({200, 150});
    Pump(100);
    EXPECT_EQ(LastState(kPartArrowForward, SB_VERT), static_cast<UINT>(CDIS_DEFAULT));
    MoveTo(SB_VERT, kOnArrowDown);
    EXPECT_EQ(LastState(kPartArrowForward, SB_VERT), static_cast<UINT>(CDIS_SELECTED));
    ReleaseMouse();
    EXPECT_NE(LastState(kPartArrowForward, SB_VERT), static_cast<UINT>(CDIS_SELECTED));

    PressOn(SB_VERT, kOnThumb);
    EXPECT_EQ(LastState(kPartThumb, SB_VERT), static_cast<UINT>(CDIS_SELECTED));
    ReleaseMouse();
    EXPECT_NE(LastState(kPartThumb, SB_VERT), static_cast<UINT>(CDIS_SELECTED));
}

// What else may take the mouse

TEST_F(TrackingTest, LostCaptureEndsThePress)
{
    PressOn(SB_VERT, kOnArrowDown);
    TakeCodes();
    SetCapture(frame);
    EXPECT_EQ(TakeCodes(), Codes{SB_ENDSCROLL});
    ExpectIdle();
    Pump(400);
    EXPECT_EQ(TakeCodes(), Codes{}) << "no timer is left";
    ReleaseCapture();
}

TEST_F(TrackingTest, LostCaptureEndsADrag)
{
    PressOn(SB_VERT, kOnThumb);
    MoveTo(SB_VERT, kOnThumb + 40);
    TakeCodes();
    SendMessageA(pane, WM_CANCELMODE, 0, 0);
    EXPECT_EQ(TakeCodes(), (Codes{SB_THUMBPOSITION, SB_ENDSCROLL}));
    ExpectIdle();
}

TEST_F(TrackingTest, PressCancelledByItsOwnMessageStaysEnded)
{
    onScroll = [this](const ScrollMessage& scroll)
    {
        if (scroll.code == SB_LINEDOWN)
            SendMessageA(pane, WM_CANCELMODE, 0, 0); // as a message box does
    };
    PressOn(SB_VERT, kOnArrowDown);
    EXPECT_EQ(TakeCodes(), (Codes{SB_LINEDOWN, SB_ENDSCROLL}));
    ExpectIdle();
    Pump(400);
    EXPECT_EQ(TakeCodes(), Codes{});
}

} // namespace

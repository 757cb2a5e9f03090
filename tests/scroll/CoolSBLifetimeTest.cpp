// Windows that go, or lose their bars, at the worst moment.
#include "tests/mfc/GdiCount.h"
#include "tests/scroll/ScrollTestWindow.h"

#include <cstdlib>
#include <new>

namespace
{

int liveAllocations = 0;

} // namespace

// Every allocation of this program is counted, so that a lost record shows.
void* operator new(std::size_t size)
{
    void* memory = std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    ++liveAllocations;
    return memory;
}

void operator delete(void* memory) noexcept
{
    if (memory)
        --liveAllocations;
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

namespace
{

class LifetimeTest : public ScrollTest
{
protected:
    void SetUp() override
    {
        ScrollTest::SetUp();
        PreparePane();
    }

    void PreparePane()
    {
        if (!IsWindow(pane))
            pane = CreateWindowExA(0, "ScrollTestPane", "", WS_CHILD | WS_VISIBLE, 40, 40, 300, 200,
                                   frame, nullptr, GetModuleHandleA(nullptr), nullptr);
        CoolSB_Uninit(pane);
        ShowBars(true, true);
        CoolSBButton button = {};
        button.mask = kCoolSBHasAll;
        button.placement = kButtonBefore;
        button.type = kCoolSBOwnerDrawn;
        button.id = 77;
        button.size = button.defaultSize = 20;
        button.maxSize = 20;
        CoolSB_InsertButton(pane, SB_HORZ, 0, &button);
        Pump(0);
        customDrawAnswer = CDRF_SKIPDEFAULT;
    }

    /// Without its subclass the window would track a bar of the system's, in a loop of its own.
    void Send(UINT message, WPARAM wParam, ScrollPoint point) const
    {
        if (CoolSB_IsActive(pane))
            SendMessageA(pane, message, wParam, MAKELPARAM(point.x, point.y));
    }

    void SendClient(UINT message, ScrollPoint point) const
    {
        SendMessageA(pane, message, 0, MAKELPARAM(point.x - 100, point.y - 100));
    }

    /// Everything that the mouse can do, message by message.
    void UseEverything() const
    {
        const ScrollPoint down = On(SB_VERT, 175);
        const ScrollPoint thumb = On(SB_VERT, 40);
        const ScrollPoint button = On(SB_HORZ, 10);
        Send(WM_NCMOUSEMOVE, HTVSCROLL, down);
        Send(WM_TIMER, static_cast<WPARAM>(-14), {0, 0});
        Send(WM_NCLBUTTONDOWN, HTVSCROLL, down);
        Send(WM_TIMER, 65533, {0, 0});
        Send(WM_TIMER, 65534, {0, 0});
        SendClient(WM_MOUSEMOVE, {150, 150});
        SendClient(WM_MOUSEMOVE, down);
        SendClient(WM_LBUTTONUP, down);
        Send(WM_NCMOUSEMOVE, HTVSCROLL, thumb);
        Send(WM_NCLBUTTONDOWN, HTVSCROLL, thumb);
        SendClient(WM_MOUSEMOVE, {thumb.x, thumb.y + 30});
        SendClient(WM_LBUTTONUP, thumb);
        Send(WM_NCLBUTTONDOWN, HTHSCROLL, button);
        SendClient(WM_MOUSEMOVE, {150, 150});
        SendClient(WM_MOUSEMOVE, button);
        SendClient(WM_LBUTTONUP, button);
        SendMessageA(pane, WM_NCPAINT, 1, 0);
    }

    /// Counts what the layer sends, and calls `action` at the `at`th.
    void ActAt(int at, const std::function<void()>& action)
    {
        countdown = at;
        const auto step = [this, action]
        {
            if (countdown-- == 0)
                action();
        };
        onScroll = [step](const ScrollMessage&)
        {
            step();
        };
        onDraw = [step](const NMCoolSBCustomDraw&)
        {
            step();
        };
    }

    int countdown = 0;
};

/// What a run of UseEverything sends.
constexpr int kSentAtLeast = 100;

TEST_F(LifetimeTest, WindowDestroyedAtAnyMomentIsNoHarm)
{
    int at = 0;
    for (countdown = -1; countdown < 0; ++at)
    {
        PreparePane();
        ActAt(at, [this] { DestroyWindow(pane); });
        UseEverything();
        onScroll = nullptr;
        onDraw = nullptr;
        ASSERT_EQ(coolSBTracking.press.window, nullptr) << "at " << at;
        ASSERT_EQ(coolSBTracking.hover.window, nullptr) << "at " << at;
    }
    EXPECT_GT(at, kSentAtLeast) << "every message and every notification had its turn";
}

TEST_F(LifetimeTest, SubclassEndedAtAnyMomentIsNoHarm)
{
    int at = 0;
    for (countdown = -1; countdown < 0; ++at)
    {
        PreparePane();
        ActAt(at, [this] { CoolSB_Uninit(pane); });
        UseEverything();
        onScroll = nullptr;
        onDraw = nullptr;
        ASSERT_EQ(coolSBTracking.press.window, nullptr) << "at " << at;
        ASSERT_EQ(coolSBTracking.hover.window, nullptr) << "at " << at;
        ASSERT_NE(GetCapture(), pane) << "at " << at;
        ASSERT_FALSE(KillTimer(pane, 65533)) << "at " << at;
        ASSERT_FALSE(KillTimer(pane, 65534)) << "at " << at;
    }
    EXPECT_GT(at, kSentAtLeast);
    ASSERT_TRUE(IsWindow(pane));
}

TEST_F(LifetimeTest, BarsTakenAwayAndGivenBackAtAnyMomentAreNoHarm)
{
    int at = 0;
    for (countdown = -1; countdown < 0; ++at)
    {
        PreparePane();
        ActAt(at,
              [this]
              {
                  CoolSB_Uninit(pane);
                  CoolSB_Init(pane);
                  CoolSB_RemoveButton(pane, SB_HORZ, 0);
              });
        UseEverything();
        onScroll = nullptr;
        onDraw = nullptr;
        ASSERT_FALSE(CoolSB_IsThumbTracking(pane)) << "at " << at;
    }
    EXPECT_GT(at, kSentAtLeast);
}

TEST_F(LifetimeTest, ButtonRemovedWhilePressedIsNoHarm)
{
    const ScrollPoint button = On(SB_HORZ, 10);
    Send(WM_NCLBUTTONDOWN, HTHSCROLL, button);
    EXPECT_EQ(clicks.size(), 1u);
    CoolSB_RemoveButton(pane, SB_HORZ, 0);
    SendClient(WM_MOUSEMOVE, {150, 150});
    SendClient(WM_LBUTTONUP, button);
    EXPECT_EQ(commands.size(), 0u);
    EXPECT_EQ(coolSBTracking.press.window, nullptr);
}

TEST_F(LifetimeTest, WindowDestroyedUnderTheRealMouseLeavesNothingBehind)
{
    PressOn(SB_VERT, 175);
    EXPECT_EQ(GetCapture(), pane);
    DestroyWindow(pane);
    EXPECT_EQ(coolSBTracking.press.window, nullptr);
    EXPECT_EQ(coolSBTracking.hover.window, nullptr);
    ReleaseMouse();
    Pump(100);
}

struct EndWatch
{
    WNDPROC procedure = nullptr;
    bool isAtTheEnd = false;
    bool wasActive = false;
};

EndWatch endWatch;

LRESULT CALLBACK WatchEnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCDESTROY)
    {
        endWatch.isAtTheEnd = true;
        endWatch.wasActive = CoolSB_IsActive(hwnd);
    }
    return CallWindowProcA(endWatch.procedure, hwnd, message, wParam, lParam);
}

TEST_F(LifetimeTest, RecordIsFreedBeforeTheOldProcedureSeesTheEnd)
{
    CoolSB_Uninit(pane);
    const LONG old = SetWindowLongA(pane, GWL_WNDPROC, reinterpret_cast<LONG>(WatchEnd));
    endWatch.procedure = reinterpret_cast<WNDPROC>(old);
    CoolSB_Init(pane);
    DestroyWindow(pane);
    EXPECT_TRUE(endWatch.isAtTheEnd);
    EXPECT_FALSE(endWatch.wasActive);
}

TEST_F(LifetimeTest, NothingLeaks)
{
    const auto cycle = [this]
    {
        PreparePane();
        UseEverything();
        customDrawAnswer = CDRF_DODEFAULT;
        for (const int style : {kCoolSBStandard, kCoolSBFlat, kCoolSBHot})
            CoolSB_SetStyle(pane, SB_BOTH, style);
        CoolSB_Uninit(pane);
        CoolSB_Init(pane);
        DestroyWindow(pane);
        std::vector<ScrollMessage>().swap(scrolls);
        std::vector<NMCoolSBCustomDraw>().swap(draws);
        std::vector<NMHDR>().swap(clicks);
        std::vector<WPARAM>().swap(commands);
        std::vector<UINT>().swap(others);
    };
    for (int i = 0; i < 5; ++i)
        cycle();
    const int allocations = liveAllocations;
    const int objects = CountGdiObjects();
    for (int i = 0; i < 50; ++i)
        cycle();
    EXPECT_EQ(liveAllocations, allocations);
    EXPECT_LE(CountGdiObjects() - objects, 5);
}

} // namespace

#include "tests/scroll/ScrollTestWindow.h"

namespace
{

constexpr char kFrameClass[] = "ScrollTestFrame";
constexpr char kPaneClass[] = "ScrollTestPane";

constexpr int kBarWidth = 16;
constexpr int kArrow = 20;

} // namespace

ScrollTest* ScrollTest::current = nullptr;

void Pump(DWORD milliseconds)
{
    const DWORD start = GetTickCount();
    DWORD passed = 0;
    do
    {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        passed = GetTickCount() - start;
        if (passed < milliseconds)
            MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - passed, QS_ALLINPUT);
    } while (passed < milliseconds);
}

void MoveMouse(ScrollPoint point)
{
    SetCursorPos(point.x, point.y);
    Pump();
}

void PressMouse()
{
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    Pump();
}

void ReleaseMouse()
{
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    Pump();
}

COLORREF PixelOf(HWND hwnd, int x, int y)
{
    const HDC dc = GetWindowDC(hwnd);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(hwnd, dc);
    return color;
}

void ScrollTest::Register(const char* name, WNDPROC procedure)
{
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    windowClass.lpszClassName = name;
    RegisterClassA(&windowClass);
}

void ScrollTest::SetUp()
{
    current = this;
    Register(kFrameClass, FrameProc);
    Register(kPaneClass, PaneProc);
    SetCursorPos(5, 5);
    const HINSTANCE module = GetModuleHandleA(nullptr);
    frame = CreateWindowExA(WS_EX_TOPMOST, kFrameClass, "", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN,
                            60, 60, 380, 280, nullptr, nullptr, module, nullptr);
    pane = CreateWindowExA(0, kPaneClass, "", WS_CHILD | WS_VISIBLE, 40, 40, 300, 200, frame,
                           nullptr, module, nullptr);
    SetForegroundWindow(frame);
    Pump(20);
}

void ScrollTest::TearDown()
{
    onScroll = nullptr;
    onDraw = nullptr;
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    DestroyWindow(frame);
    Pump(0);
    current = nullptr;
}

void ScrollTest::ShowBars(bool horz, bool vert)
{
    CoolSB_Init(pane);
    CoolSB_SetSize(pane, SB_BOTH, kArrow, kBarWidth);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = 99;
    info.nPage = 25;
    CoolSB_SetScrollInfo(pane, SB_BOTH, &info, FALSE);
    CoolSB_ShowScrollBar(pane, SB_HORZ, horz);
    CoolSB_ShowScrollBar(pane, SB_VERT, vert);
    Pump(0);
}

ScrollPoint ScrollTest::On(int bar, int along) const
{
    RECT window = {};
    GetWindowRect(pane, &window);
    if (bar == SB_VERT)
        return {static_cast<int>(window.right) - kBarWidth / 2,
                static_cast<int>(window.top) + along};
    return {static_cast<int>(window.left) + along, static_cast<int>(window.bottom) - kBarWidth / 2};
}

void ScrollTest::PressOn(int bar, int along)
{
    MoveTo(bar, along);
    PressMouse();
}

RECT ScrollTest::ClientOf(HWND hwnd) const
{
    RECT client = {};
    GetClientRect(hwnd, &client);
    MapWindowPoints(hwnd, nullptr, reinterpret_cast<POINT*>(&client), 2);
    RECT window = {};
    GetWindowRect(hwnd, &window);
    OffsetRect(&client, -window.left, -window.top);
    return client;
}

std::vector<int> ScrollTest::TakeCodes()
{
    std::vector<int> codes;
    for (const ScrollMessage& scroll : scrolls)
        codes.push_back(scroll.code);
    scrolls.clear();
    return codes;
}

UINT ScrollTest::LastState(UINT item, UINT bar) const
{
    for (auto draw = draws.rbegin(); draw != draws.rend(); ++draw)
        if (draw->drawStage == CDDS_ITEMPREPAINT && draw->item == item && draw->bar == bar)
            return draw->state;
    return 0;
}

LRESULT ScrollTest::OnNotify(const NMHDR& header)
{
    if (header.code != NM_COOLSB_CUSTOMDRAW)
    {
        clicks.push_back(header);
        return 0;
    }
    const NMCoolSBCustomDraw& draw = reinterpret_cast<const NMCoolSBCustomDraw&>(header);
    draws.push_back(draw);
    if (onDraw)
        onDraw(draw);
    return customDrawAnswer;
}

void ScrollTest::OnScrollMessage(HWND hwnd, UINT message, WPARAM wParam)
{
    const ScrollMessage scroll = {message, LOWORD(wParam), HIWORD(wParam), GetTickCount()};
    scrolls.push_back(scroll);
    if (onScroll)
        onScroll(scroll);
    if (!scrollsItself || !IsWindow(hwnd) || !CoolSB_IsActive(hwnd))
        return;
    const int bar = message == WM_VSCROLL ? SB_VERT : SB_HORZ;
    const ScrollValues values = ValuesOf(BarOf(*GetCoolSBWindow(hwnd), bar));
    CoolSB_SetScrollPos(hwnd, bar, ScrolledPosition(values, scroll.code, scroll.pos), TRUE);
}

LRESULT CALLBACK ScrollTest::FrameProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NOTIFY && current)
        return current->OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

LRESULT CALLBACK ScrollTest::PaneProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!current)
        return DefWindowProcA(hwnd, message, wParam, lParam);
    switch (message)
    {
    case WM_HSCROLL:
    case WM_VSCROLL:
        current->OnScrollMessage(hwnd, message, wParam);
        return 0;
    case WM_COMMAND:
        current->commands.push_back(wParam);
        return 0;
    default:
        current->others.push_back(message);
        return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

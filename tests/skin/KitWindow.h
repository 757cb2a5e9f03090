// A parent window for controls under test, and what a trader's eye and hand would do with them.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <functional>
#include <gtest/gtest.h>
#include <vector>

/// Handles the messages that wait, for at least so long.
inline void PumpFor(DWORD milliseconds)
{
    const DWORD start = GetTickCount();
    do
    {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        Sleep(1);
    } while (GetTickCount() - start < milliseconds);
}

/// Handles messages until something holds. @return whether it came to hold within a few seconds
inline bool PumpUntil(const std::function<bool()>& holds)
{
    const DWORD start = GetTickCount();
    while (!holds())
    {
        if (GetTickCount() - start > 5000)
            return false;
        PumpFor(1);
    }
    return true;
}

/// Shows what is waiting to be drawn.
inline void Paint(HWND window)
{
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

/// The colour of a pixel, counted from the window's corner, frame included.
inline COLORREF PixelOf(HWND window, int x, int y)
{
    const HDC dc = GetWindowDC(window);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(window, dc);
    return color;
}

inline testing::AssertionResult IsColor(const char*, const char* actualText, COLORREF expected,
                                        COLORREF actual)
{
    if (expected == actual)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << actualText << " is " << std::hex << actual
                                       << " instead of " << expected << " (blue, green, red)";
}

#define EXPECT_COLOR(expected, actual) EXPECT_PRED_FORMAT2(IsColor, expected, actual)

/// Moves the mouse to a point of a window, frame included.
inline void MoveMouseTo(HWND window, int x, int y)
{
    RECT place;
    GetWindowRect(window, &place);
    SetCursorPos(place.left + x, place.top + y);
    PumpFor(20);
}

inline void PressMouse()
{
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    PumpFor(20);
}

inline void ReleaseMouse()
{
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    PumpFor(20);
}

/// A press and a release, later than what would make it the second half of a double click.
inline void ClickAt(HWND window, int x, int y)
{
    PumpFor(GetDoubleClickTime());
    MoveMouseTo(window, x, y);
    PressMouse();
    ReleaseMouse();
}

/// Presses and releases a key of the keyboard, with another one held down or none.
inline void PressKey(BYTE key, BYTE held = 0)
{
    if (held)
        keybd_event(held, 0, 0, 0);
    keybd_event(key, 0, 0, 0);
    keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
    if (held)
        keybd_event(held, 0, KEYEVENTF_KEYUP, 0);
    PumpFor(20);
}

/// A window that remembers what its controls told it.
class KitWindow : public CWnd
{
public:
    struct Notice
    {
        UINT code;
        UINT id;
        HWND from;
    };

    KitWindow()
    {
        const char* windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW),
                                                      GetSysColorBrush(COLOR_WINDOW), nullptr);
        EXPECT_TRUE(CreateEx(0, windowClass, "kit", WS_POPUP | WS_VISIBLE, 50, 50, 600, 400,
                             nullptr, nullptr));
    }
    ~KitWindow() override { DestroyWindow(); }

    int Count(UINT code) const
    {
        int count = 0;
        for (const Notice& notice : notices)
            count += notice.code == code;
        return count;
    }

    std::vector<Notice> notices;
    std::function<void(UINT code)> onNotice;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        Remember({HIWORD(wParam), LOWORD(wParam), reinterpret_cast<HWND>(lParam)});
        return CWnd::OnCommand(wParam, lParam);
    }

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const auto* header = reinterpret_cast<NMHDR*>(lParam);
        EXPECT_EQ(header->idFrom, wParam);
        Remember({header->code, static_cast<UINT>(wParam), header->hwndFrom});
        return CWnd::OnNotify(wParam, lParam, result);
    }

private:
    void Remember(const Notice& notice)
    {
        notices.push_back(notice);
        if (onNotice)
            onNotice(notice.code);
    }
};

// What is left behind when something has come and gone.
#pragma once

#include "tests/mfc/GdiCount.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>

inline BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

inline BOOL CALLBACK CountWindowAndChildren(HWND window, LPARAM count)
{
    EnumChildWindows(window, CountWindow, count);
    return CountWindow(window, count);
}

/// Windows of this thread, children included.
inline int CountWindows()
{
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountWindowAndChildren,
                      reinterpret_cast<LPARAM>(&count));
    return count;
}

/// Does something a thousand times, after it has warmed up, and expects neither a drawing object nor a
/// window to stay.
inline void ExpectNothingLeftBehind(const std::function<void()>& comeAndGo)
{
    for (int warmUp = 0; warmUp < 20; ++warmUp)
        comeAndGo();
    const int objects = CountGdiObjects();
    const int windows = CountWindows();
    ASSERT_GT(objects, 0);
    for (int round = 0; round < 1000; ++round)
        comeAndGo();
    EXPECT_EQ(objects, CountGdiObjects());
    EXPECT_EQ(windows, CountWindows());
}

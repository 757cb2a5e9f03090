#pragma once

#include "mfc/parts/Platform.h"

/// A message without a name, by which the caret blinks. Like WM_PAINT it means no work.
constexpr UINT kCaretBlink = 0x0118;

inline bool IsMessageWaiting()
{
    MSG message;
    return ::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE) != FALSE;
}

// Presses, drags and the mouse above drawn scroll bars: one state machine for the process.
#pragma once

#include "skin/scroll/CoolSBWindow.h"

/// Begins a press at a point of the screen on a bar that the window shows or may show.
void BeginPress(HWND hwnd, int bar, ScrollPoint point);

/// Whether the window has a press under way.
bool IsPressed(HWND hwnd);

/// Follows the mouse during a press.
void MovePress(HWND hwnd, ScrollPoint point);

/// Ends a press by the release of the mouse button at a point of the screen.
void ReleasePress(HWND hwnd, ScrollPoint point);

/// Ends a press that something else has taken the mouse from.
void LosePress(HWND hwnd);

/// Begins to follow the mouse above a bar.
void BeginHover(HWND hwnd, int bar, ScrollPoint point);

/// Handles a timer of this layer.
/// @return false for any other timer
bool HandleTimer(HWND hwnd, UINT_PTR id);

/// Forgets a press and a hover of a window that ends its subclass, without a message.
void AbandonTracking(HWND hwnd);

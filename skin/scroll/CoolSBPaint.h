// Painting of drawn scroll bars, straight onto the frame of their window.
#pragma once

#include "skin/scroll/CoolSBWindow.h"

/// Paints a bar and its inserted buttons as the mouse and the values have them.
void PaintBar(HWND hwnd, int bar);

/// Paints what lies between the arrows of a bar.
void PaintTrack(HWND hwnd, int bar);

/// Finds out which inserted buttons of each bar fit, and paints the bars.
void PaintBars(HWND hwnd);

/// Paints the square between two shown bars.
void PaintCorner(HWND hwnd);

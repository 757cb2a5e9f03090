// A window to look at: drawn scroll bars in all styles, states and sizes, ready to be tried.
#pragma once

#include <windows.h>

/// Makes the gallery as a visible child of `parent`, or as a window of its own without one. It needs
/// about 1190 by 800 pixels, and ends with its window.
HWND CreateScrollGallery(HWND parent, const RECT& place);

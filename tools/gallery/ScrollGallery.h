// The gallery's page of scroll bars: drawn bars in all styles, states and sizes, ready to be tried.
#pragma once

#include <windows.h>

constexpr SIZE kScrollGallerySize = {1200, 820};

/// Fills the top left of `parent` with the page, which ends with it.
void CreateScrollGallery(HWND parent);

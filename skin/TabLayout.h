// Where the tabs of a strip lie. Free of windows.h.
#pragma once

#include <vector>

/// The tab under a point of the strip, or -1. The first pixel of a tab belongs to none; that is
/// meant.
/// @param widths of the tabs from the left, in pixels
int HitTab(const std::vector<int>& widths, int x);

// The parts of a scroll bar as they look without custom drawing. States are CDIS_ values, styles
// CoolSBStyle values.
#pragma once

#include "skin/scroll/CoolSB.h"

void DrawArrow(HDC dc, const RECT& rect, bool vertical, bool forward, UINT state, int style);

void DrawPageArea(HDC dc, const RECT& rect, bool pressed);

void DrawThumb(HDC dc, const RECT& rect, int style);

/// @param atLeft the grip stands in a left corner
void DrawSizeGrip(HDC dc, RECT rect, bool atLeft);

/// Draws any inserted button but an owner-drawn one.
void DrawInsertedButton(HDC dc, const RECT& rect, const CoolSBButton& button, UINT state,
                        int style);

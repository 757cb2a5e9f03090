// Drawing steps that the controls of the kit share.
#pragma once

#include "skin/SkinLayout.h"

#include <windows.h>

Box BoxOf(const RECT& rect);
RECT RectOf(const Box& box);

/// Draws a part of a bitmap, stretched where its place has another size; nothing for a null bitmap
/// or an empty part.
void DrawBitmapPart(HDC dc, HBITMAP bitmap, const BitmapPart& part);

/// A copy for AlphaBlend, in which one colour of a bitmap is transparent; null for a null bitmap. The
/// caller deletes it.
HBITMAP MakeTransparent(HBITMAP bitmap, COLORREF transparent);

/// Writes one line of text from the left edge of `area`, in the middle of its height.
/// @param font null takes the device context's own
void DrawTextLine(HDC dc, const char* text, RECT area, HFONT font, COLORREF color);

/// Writes a text centred on a point. @param font null takes the device context's own
void DrawCentredText(HDC dc, POINT centre, const char* text, HFONT font, COLORREF color);

// The drawing objects that all controls share: made on first use, kept until the process ends, never
// deleted by who asks. User-interface thread only.
#pragma once

#include <windows.h>

/// A solid brush.
HBRUSH GetCachedBrush(COLORREF color);

/// A pen. @param style a PS_ value  @param width in pixels
HPEN GetCachedPen(int width, COLORREF color, WORD style);

/// The slot of a font in the font table, below 2048. The same face, height and weight always have
/// the same slot.
/// @param height as CreateFontA takes it  @param weight 400 normal, 700 bold
/// @return -1 when the table is full
int GetCachedFontSlot(const char* face, int height, int weight);

/// The font in a slot; null for a slot that was never given out.
HFONT GetCachedFontBySlot(int slot);

/// Both in one call.
HFONT GetCachedFont(const char* face, int height, int weight);

/// The one memory device context, made from `dc` at the first call. Who selects a bitmap into it
/// selects the old one back before returning to the message loop.
HDC GetSharedMemDC(HDC dc);

/// A bitmap of the skin, loaded from a path below the working directory at the first call; null
/// while the file is missing, and tried again at the next call.
HBITMAP GetSkinBitmap(const char* path);

/// Loads a bitmap file for the caller alone, who deletes it; null when it is missing or not whole.
/// @param flags of LoadImage, besides LR_LOADFROMFILE
HBITMAP LoadBitmapFile(const char* path, UINT flags);

/// The same for a bitmap of the skin, as one whose pixels can be read.
HBITMAP LoadSkinBitmap(const char* path);

/// Width and height in pixels; 0 by 0 for null.
SIZE GetBitmapSize(HBITMAP bitmap);

/// Paints a page's background: the surround, and on it a white sheet 16 pixels in from the left, top
/// and right edges.
void FillPageBackground(HDC dc, HWND wnd);
/// The same in any area.
void FillPageBackground(HDC dc, RECT area);

/// How much larger than 96 dots an inch the screen is; 1.0 until the settings window opens.
float GetUIScale();
void SetUIScale(float scale);

/// A length at 96 dots an inch in pixels of this screen, truncated toward zero.
int Scaled(int length);

// What the tests of the small drawn controls share: a skin of flat colours, pixels and keys.
#pragma once

#include <string>

#include <windows.h>

/// Writes a file of the working directory; its folder must exist.
void WriteFileBytes(const char* path, const std::string& bytes);

/// The colour of a cell of the flat skin. All cells of all strips differ.
COLORREF CheckCellColor(int cell);
COLORREF ArrowColor(bool pressed);
COLORREF ListImageColor(int column, bool selected);

constexpr int kCheckCellSize = 14;
constexpr int kArrowHalfWidth = 20;
constexpr int kArrowHeight = 24;
constexpr int kListCellSize = 24;

/// Writes the flat skin below the working directory. @param columns of the list strip
void WriteFlatSkin(int columns);

/// What the window shows at a point of its client area, with everything painted.
COLORREF PixelAt(HWND window, int x, int y);

/// How many pixels of a part of the window's client area have a colour.
int CountPixels(HWND window, const RECT& area, COLORREF color);

/// The window's client area.
RECT ClientOf(HWND window);

/// Handles every message that waits.
void PumpMessages();

/// A black memory bitmap to draw on.
class CCanvas
{
public:
    CCanvas()
    {
        const HDC screen = GetDC(nullptr);
        dc = CreateCompatibleDC(screen);
        bitmap = CreateCompatibleBitmap(screen, 60, 200);
        ReleaseDC(nullptr, screen);
        old = SelectObject(dc, bitmap);
        Clear();
    }
    ~CCanvas()
    {
        SelectObject(dc, old);
        DeleteObject(bitmap);
        DeleteDC(dc);
    }
    void Clear() const { PatBlt(dc, 0, 0, 60, 200, BLACKNESS); }
    COLORREF At(int x, int y) const { return GetPixel(dc, x, y); }

    HDC dc;

private:
    HBITMAP bitmap;
    HGDIOBJ old;
};

/// Presses and releases a key through the message queue, as the dialog sees it.
void TypeKey(HWND dialog, UINT key);

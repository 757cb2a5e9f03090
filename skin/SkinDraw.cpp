#include "skin/SkinDraw.h"

#include "skin/SkinCache.h"

#include <algorithm>

Box BoxOf(const RECT& rect)
{
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

RECT RectOf(const Box& box)
{
    return {box.left, box.top, box.left + box.width, box.top + box.height};
}

namespace
{

/// A surface out of sight of at least a size, kept for all that follow.
HDC SurfaceOf(int width, int height)
{
    static HDC surface = nullptr;
    static SIZE size = {};
    if (width <= size.cx && height <= size.cy)
        return surface;

    const HDC screen = GetDC(nullptr);
    if (!surface)
    {
        surface = CreateCompatibleDC(screen);
        // Of the modes this one alone leaves slanted edges smooth at every size.
        SetStretchBltMode(surface, HALFTONE);
    }
    size = {std::max<LONG>(width, size.cx), std::max<LONG>(height, size.cy)};
    DeleteObject(SelectObject(surface, CreateCompatibleBitmap(screen, size.cx, size.cy)));
    ReleaseDC(nullptr, screen);
    return surface;
}

} // namespace

void DrawBitmapPart(HDC dc, HBITMAP bitmap, const BitmapPart& part)
{
    if (!bitmap || part.IsEmpty())
        return;
    const HDC memory = GetSharedMemDC(dc);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    const Box& to = part.target;
    const Box& from = part.source;
    // A system may stretch only what is to be seen, and distort it: so the whole is stretched out of
    // sight.
    const HDC whole = SurfaceOf(to.width, to.height);
    StretchBlt(whole, 0, 0, to.width, to.height, memory, from.left, from.top, from.width,
               from.height, SRCCOPY);
    BitBlt(dc, to.left, to.top, to.width, to.height, whole, 0, 0, SRCCOPY);
    SelectObject(memory, old);
}

HBITMAP MakeTransparent(HBITMAP bitmap, COLORREF transparent)
{
    const SIZE size = GetBitmapSize(bitmap);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(info.bmiHeader), size.cx, size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HDC screen = GetDC(nullptr);
    void* bits = nullptr;
    const HBITMAP copy = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (copy)
        GetDIBits(screen, bitmap, 0, size.cy, bits, &info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    if (!copy)
        return nullptr;

    constexpr DWORD kOpaque = 0xFF000000;
    const DWORD hidden =
        GetRValue(transparent) << 16 | GetGValue(transparent) << 8 | GetBValue(transparent);
    DWORD* const pixels = static_cast<DWORD*>(bits);
    std::for_each(pixels, pixels + size.cx * size.cy,
                  [hidden](DWORD& pixel)
                  {
                      const DWORD color = pixel & ~kOpaque;
                      pixel = color == hidden ? 0 : color | kOpaque;
                  });
    return copy;
}

void DrawTextLine(HDC dc, const char* text, RECT area, HFONT font, COLORREF color)
{
    const int saved = SaveDC(dc);
    if (font)
        SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, color);
    DrawTextA(dc, text, -1, &area, DT_VCENTER | DT_SINGLELINE);
    RestoreDC(dc, saved);
}

void DrawCentredText(HDC dc, POINT centre, const char* text, HFONT font, COLORREF color)
{
    const int saved = SaveDC(dc);
    if (font)
        SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, color);
    const int length = lstrlenA(text);
    SIZE size{};
    GetTextExtentPoint32A(dc, text, length, &size);
    TextOutA(dc, centre.x - size.cx / 2, centre.y - size.cy / 2, text, length);
    RestoreDC(dc, saved);
}

// What a window shows, as one value to compare.
#pragma once

#include <vector>

#include <windows.h>

/// Every pixel of a window's client area, freshly painted, row by row.
inline std::vector<DWORD> PixelsOf(HWND window)
{
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    RECT client;
    GetClientRect(window, &client);
    BITMAPINFO format = {};
    format.bmiHeader.biSize = sizeof(format.bmiHeader);
    format.bmiHeader.biWidth = client.right;
    format.bmiHeader.biHeight = client.bottom;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HDC screen = GetDC(window);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateDIBSection(memory, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, client.right, client.bottom, screen, 0, 0, SRCCOPY);
    GdiFlush();
    const auto* const first = static_cast<const DWORD*>(bits);
    const std::vector<DWORD> pixels(first, first + client.right * client.bottom);
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, screen);
    return pixels;
}

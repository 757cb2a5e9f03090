// Pictures of the list's rows and of what they are drawn from.
#pragma once

#include <windows.h>

#include <utility>

/// A part of the screen, or what a row of the list is drawn from.
class CPicture
{
public:
    static CPicture OfWindow(HWND window, const RECT& area)
    {
        const HDC screen = GetDC(window);
        CPicture picture(area.right - area.left, area.bottom - area.top);
        picture.Take(screen, area.left, area.top);
        ReleaseDC(window, screen);
        return picture;
    }

    /// A text of a row that is not selected.
    static CPicture OfText(const char* text, HFONT font)
    {
        const HDC dc = CreateCompatibleDC(nullptr);
        SelectObject(dc, font);
        RECT area = {};
        DrawTextA(dc, text, -1, &area, DT_CALCRECT | DT_SINGLELINE);
        DeleteDC(dc);

        CPicture picture(area.right, area.bottom);
        SelectObject(picture.m_dc, font);
        SetBkColor(picture.m_dc, RGB(255, 255, 255));
        SetTextColor(picture.m_dc, RGB(108, 114, 147));
        DrawTextA(picture.m_dc, text, -1, &area, DT_SINGLELINE);
        GdiFlush();
        return picture;
    }

    /// The image of a row that is not selected: a cell of the upper half.
    static CPicture OfListImage(HBITMAP strip, int image)
    {
        BITMAP size;
        GetObjectA(strip, sizeof(size), &size);
        const int columns = static_cast<int>(
            GetPrivateProfileIntA("ListBoxItem", "BmpNum", 0, ".\\skin\\ctrl\\Ctrl.ini"));
        const HDC dc = CreateCompatibleDC(nullptr);
        const HGDIOBJ old = SelectObject(dc, strip);
        CPicture picture(size.bmWidth / columns, size.bmHeight / 2);
        picture.Take(dc, image * picture.m_width, 0);
        SelectObject(dc, old);
        DeleteDC(dc);
        return picture;
    }

    CPicture(CPicture&& other)
        : m_width(other.m_width)
        , m_height(other.m_height)
        , m_pixels(other.m_pixels)
        , m_dc(std::exchange(other.m_dc, nullptr))
        , m_bitmap(std::exchange(other.m_bitmap, nullptr))
    {
    }

    ~CPicture()
    {
        DeleteDC(m_dc);
        DeleteObject(m_bitmap);
    }

    /// Whether the other one stands in this one somewhere, pixel by pixel.
    bool Holds(const CPicture& part) const
    {
        for (int y = 0; y + part.m_height <= m_height; ++y)
            for (int x = 0; x + part.m_width <= m_width; ++x)
                if (HoldsAt(part, x, y))
                    return true;
        return false;
    }

private:
    CPicture(int width, int height)
        : m_width(width)
        , m_height(height)
        , m_dc(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO format = {};
        format.bmiHeader.biSize = sizeof(format.bmiHeader);
        format.bmiHeader.biWidth = width;
        format.bmiHeader.biHeight = -height;
        format.bmiHeader.biPlanes = 1;
        format.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(m_dc, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_pixels = static_cast<const DWORD*>(bits);
        SelectObject(m_dc, m_bitmap);
    }

    void Take(HDC from, int left, int top)
    {
        BitBlt(m_dc, 0, 0, m_width, m_height, from, left, top, SRCCOPY);
        GdiFlush();
    }

    bool HoldsAt(const CPicture& part, int left, int top) const
    {
        constexpr DWORD kColor = 0xFFFFFF;
        for (int y = 0; y < part.m_height; ++y)
            for (int x = 0; x < part.m_width; ++x)
                if ((m_pixels[(top + y) * m_width + left + x] ^
                     part.m_pixels[y * part.m_width + x]) &
                    kColor)
                    return false;
        return true;
    }

    int m_width;
    int m_height;
    const DWORD* m_pixels = nullptr;
    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
};

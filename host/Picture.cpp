#include "host/Picture.h"

#include <cstdio>
#include <vector>

namespace
{

struct Pixels
{
    BITMAPINFOHEADER header = {};
    std::vector<unsigned char> bytes;
};

Pixels CopyFromScreen(const RECT& area)
{
    Pixels pixels;
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    pixels.header.biSize = sizeof(BITMAPINFOHEADER);
    pixels.header.biWidth = width;
    pixels.header.biHeight = height;
    pixels.header.biPlanes = 1;
    pixels.header.biBitCount = 24;
    pixels.bytes.resize(static_cast<size_t>((width * 3 + 3) / 4 * 4) * height);

    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
    SelectObject(memory, old);
    GetDIBits(memory, bitmap, 0, height, pixels.bytes.data(),
              reinterpret_cast<BITMAPINFO*>(&pixels.header), DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return pixels;
}

bool WriteBmp(const Pixels& pixels, const std::string& file)
{
    BITMAPFILEHEADER header = {};
    header.bfType = 0x4D42; // "BM"
    header.bfOffBits = sizeof(header) + sizeof(pixels.header);
    header.bfSize = static_cast<DWORD>(header.bfOffBits + pixels.bytes.size());

    FILE* stream = fopen(file.c_str(), "wb");
    if (!stream)
        return false;
    const bool written =
        fwrite(&header, sizeof(header), 1, stream) == 1 &&
        fwrite(&pixels.header, sizeof(pixels.header), 1, stream) == 1 &&
        fwrite(pixels.bytes.data(), 1, pixels.bytes.size(), stream) == pixels.bytes.size();
    return fclose(stream) == 0 && written;
}

} // namespace

bool SavePicture(HWND window, const std::string& file)
{
    RECT area;
    return GetWindowRect(window, &area) && WriteBmp(CopyFromScreen(area), file);
}

// Bitmaps of flat cells, so that a pixel tells which cell was drawn.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// The bytes of a 24-bit bitmap file whose cells stand in rows of `columns`, each of one colour.
inline std::string FlatBitmap(int columns, int cellWidth, int cellHeight,
                              const std::vector<COLORREF>& cells)
{
    const int rows = static_cast<int>(cells.size()) / columns;
    const int width = columns * cellWidth;
    const int height = rows * cellHeight;
    const int stride = (width * 3 + 3) / 4 * 4;

    BITMAPINFOHEADER info = {};
    info.biSize = sizeof(info);
    info.biWidth = width;
    info.biHeight = height;
    info.biPlanes = 1;
    info.biBitCount = 24;
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = file.bfOffBits + stride * height;

    std::string bytes(reinterpret_cast<const char*>(&file), sizeof(file));
    bytes.append(reinterpret_cast<const char*>(&info), sizeof(info));
    // Rows stand from the bottom to the top.
    for (int y = height - 1; y >= 0; --y)
    {
        std::string row(stride, '\0');
        for (int x = 0; x < width; ++x)
        {
            const COLORREF color = cells[y / cellHeight * columns + x / cellWidth];
            row[x * 3] = static_cast<char>(GetBValue(color));
            row[x * 3 + 1] = static_cast<char>(GetGValue(color));
            row[x * 3 + 2] = static_cast<char>(GetRValue(color));
        }
        bytes += row;
    }
    return bytes;
}

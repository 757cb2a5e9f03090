#include "tests/skin/SkinTestSupport.h"

#include "skin/SkinLayout.h"
#include "tests/skin/TestBitmap.h"

#include <filesystem>
#include <fstream>
#include <vector>

void WriteFileBytes(const char* path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

COLORREF CheckCellColor(int cell)
{
    return RGB(200, 10 + cell * 20, 30);
}

COLORREF ArrowColor(bool pressed)
{
    return pressed ? RGB(40, 90, 200) : RGB(40, 190, 200);
}

COLORREF ListImageColor(int column, bool selected)
{
    return RGB(30, 20 + column * 12, selected ? 160 : 60);
}

void WriteFlatSkin(int columns)
{
    std::filesystem::create_directories("skin\\ctrl");

    std::vector<COLORREF> cells;
    for (int cell = 0; cell < kCheckCells; ++cell)
        cells.push_back(CheckCellColor(cell));
    WriteFileBytes("skin\\ctrl\\Check.bmp",
                   FlatBitmap(kCheckCells, kCheckCellSize, kCheckCellSize, cells));

    WriteFileBytes(
        "skin\\ctrl\\ComboBoxArrow.bmp",
        FlatBitmap(2, kArrowHalfWidth, kArrowHeight, {ArrowColor(false), ArrowColor(true)}));

    cells.clear();
    for (const bool selected : {false, true})
        for (int column = 0; column < columns; ++column)
            cells.push_back(ListImageColor(column, selected));
    WriteFileBytes("skin\\ctrl\\ListBoxItem.bmp",
                   FlatBitmap(columns, kListCellSize, kListCellSize, cells));
    WriteFileBytes("skin\\ctrl\\Ctrl.ini",
                   "[ListBoxItem]\r\nBmpNum=" + std::to_string(columns) + "\r\n");
}

COLORREF PixelAt(HWND window, int x, int y)
{
    UpdateWindow(window);
    const HDC dc = GetDC(window);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(window, dc);
    return color;
}

int CountPixels(HWND window, const RECT& area, COLORREF color)
{
    UpdateWindow(window);
    const HDC dc = GetDC(window);
    int count = 0;
    for (LONG y = area.top; y < area.bottom; ++y)
        for (LONG x = area.left; x < area.right; ++x)
            count += GetPixel(dc, x, y) == color;
    ReleaseDC(window, dc);
    return count;
}

RECT ClientOf(HWND window)
{
    RECT client;
    GetClientRect(window, &client);
    return client;
}

void PumpMessages()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
    {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

void TypeKey(HWND dialog, UINT key)
{
    for (const UINT message : {static_cast<UINT>(WM_KEYDOWN), static_cast<UINT>(WM_KEYUP)})
    {
        MSG typed{};
        typed.hwnd = GetFocus();
        typed.message = message;
        typed.wParam = key;
        typed.lParam = message == WM_KEYUP ? static_cast<LPARAM>(0xC0000001) : 1;
        if (!IsDialogMessageA(dialog, &typed))
        {
            TranslateMessage(&typed);
            DispatchMessageA(&typed);
        }
    }
    PumpMessages();
}

#include "skin/grid/OwerListBody.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/grid/GridArithmetic.h"

#include <algorithm>

namespace
{

constexpr int kNarrowestArea = 20;
constexpr char kFontFace[] = "宋体";

HFONT MakeFont(const char* face, int height, int weight)
{
    return CreateFontA(height, 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0,
                       face);
}

HDC MakeSurfaceDC(HDC dc)
{
    const HDC surface = CreateCompatibleDC(dc);
    SetBkMode(surface, TRANSPARENT);
    return surface;
}

/// Null for an empty surface and for one too large for the address space.
HBITMAP MakeSurface(HDC dc, int width, int height)
{
    constexpr long long kLargestSurface = 1LL << 28;
    constexpr int kBits = 24;
    if (width <= 0 || height <= 0 || 4LL * width * height > kLargestSurface)
        return nullptr;

    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = kBits;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    return CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

/// Selects what was there before the surface and deletes the surface.
void DropSurface(HDC dc, HBITMAP& surface, HBITMAP& before)
{
    if (!surface)
        return;
    SelectObject(dc, before);
    DeleteObject(surface);
    surface = before = nullptr;
}

void ReplaceSurface(HDC dc, HBITMAP& surface, HBITMAP& before, HBITMAP replacement)
{
    DropSurface(dc, surface, before);
    if (replacement)
        before = static_cast<HBITMAP>(SelectObject(dc, replacement));
    surface = replacement;
}

void ReplaceFont(HFONT& font, HFONT replacement)
{
    if (font)
        DeleteObject(font);
    font = replacement;
}

/// Along the bottom and up the right edge of a cell; the cell below and the one to the right begin
/// with these pixels and leave them alone.
void DrawCellLines(HDC dc, const RECT& cell)
{
    const HGDIOBJ oldPen = SelectObject(dc, GetCachedPen(1, kGridLine, PS_SOLID));
    MoveToEx(dc, cell.left, cell.bottom, nullptr);
    LineTo(dc, cell.right, cell.bottom);
    LineTo(dc, cell.right, cell.top - 1);
    SelectObject(dc, oldPen);
}

void ShowSizingCursor()
{
    SetCursor(LoadCursor(nullptr, IDC_SIZEWE));
}

} // namespace

OwerListBody::OwerListBody(COwerDrawListView* owner, HDC dc, const RECT& area, int mode)
    : owner(owner)
    , lineColor(kGridSpareLine)
    , dc(dc)
    , headerDC(MakeSurfaceDC(dc))
    , bodyDC(MakeSurfaceDC(dc))
    , bitmapDC(CreateCompatibleDC(dc))
    , backColor(kGridBack)
    , selectColor(kGridSelectedRow)
{
    left = area.left;
    top = area.top;
    right = area.right;
    bottom = area.bottom;
    widthMode = mode;

    const int fontHeight = static_cast<int>(GetDeviceCaps(dc, LOGPIXELSY) / 96.0 * 12.0);
    SetFonts(kFontFace, fontHeight, FW_NORMAL, kFontFace, fontHeight, FW_BOLD);
}

OwerListBody::~OwerListBody()
{
    DropSurface(headerDC, headerBitmap, oldHeaderBitmap);
    DropSurface(bodyDC, bodyBitmap, oldBodyBitmap);
    for (const HDC context : {headerDC, bodyDC, bitmapDC})
        DeleteDC(context);
    ReplaceFont(font, nullptr);
    ReplaceFont(boldFont, nullptr);
}

void OwerListBody::Resize(int x, int y, int cx, int cy)
{
    if (cx != Width() || cy != Height())
    {
        ReplaceHeaderSurface(cx);
        ReplaceBodySurface(cx, cy);
    }
    left = x;
    top = y;
    right = Sum(x, cx);
    bottom = Sum(y, cy);
}

void OwerListBody::SetHeaderHeight(int height)
{
    headerHeight = height;
    ReplaceHeaderSurface(Width());
}

void OwerListBody::ReplaceHeaderSurface(int width)
{
    ReplaceSurface(headerDC, headerBitmap, oldHeaderBitmap, MakeSurface(dc, width, headerHeight));
}

void OwerListBody::ReplaceBodySurface(int width, int height)
{
    ReplaceSurface(bodyDC, bodyBitmap, oldBodyBitmap, MakeSurface(dc, width, height));
}

void OwerListBody::SetFonts(const char* face, int height, int weight, const char* boldFace,
                            int boldHeight, int boldWeight)
{
    ReplaceFont(font, MakeFont(face, height, weight));
    ReplaceFont(boldFont, MakeFont(boldFace, boldHeight, boldWeight));
}

void OwerListBody::GetCellRect(RECT* out, int column, int row) const
{
    const GridRect cell = CellRect(column, row);
    SetRect(out, cell.left, cell.top, cell.right, cell.bottom);
}

int OwerListBody::HitRowOrDivider(int x, int y)
{
    const int row = OwerListGeometry::HitRowOrDivider(x, y);
    if (HitTestDivider(x, y) >= 0)
        ShowSizingCursor();
    return row;
}

bool OwerListBody::TrackMouse(int x, int y)
{
    const bool changed = resizing && DragDivider(x);
    if (changed || (!resizing && HitTestDivider(x, y) >= 0))
        ShowSizingCursor();
    return changed;
}

void OwerListBody::Paint()
{
    if (Width() < kNarrowestArea)
        return;

    const RECT wholeHeader = {0, 0, Width(), headerHeight};
    const RECT wholeBody = {0, 0, Width(), Height()};
    FillRect(bodyDC, &wholeBody, GetCachedBrush(backColor));
    FillRect(headerDC, &wholeHeader, GetCachedBrush(backColor));

    const std::vector<ColumnSpan> columns = ColumnSpans();
    PaintHeader(columns);
    PaintRows(columns);
    CopyToScreen();
}

void OwerListBody::PaintHeader(const std::vector<ColumnSpan>& columns)
{
    if (!paintHeaderCell)
        return;
    const HGDIOBJ oldFont = SelectObject(headerDC, font);
    for (const ColumnSpan& span : columns)
    {
        RECT cell = {span.left + 1, Pixel(top), span.right,
                     Pixel(static_cast<long long>(top) + headerHeight)};
        if (cell.right >= 0)
            paintHeaderCell(headerDC, bitmapDC, span.column, &cell, owner);
    }
    SelectObject(headerDC, oldFont);
}

void OwerListBody::PaintRows(const std::vector<ColumnSpan>& columns)
{
    std::vector<ColumnSpan> shown;
    std::copy_if(columns.begin(), columns.end(), std::back_inserter(shown),
                 [this](const ColumnSpan& span) { return span.right >= 0 && span.left < Width(); });

    const HGDIOBJ oldFont = SelectObject(bodyDC, font);
    // A painter of row backs sees every row, so only without one are the rows above passed over.
    const RowRange rows = RowsToPaint(paintRowBack != nullptr);
    for (int row = rows.first; row < rows.end; ++row)
    {
        const int rowTop = RowTop(row);
        PaintRowBackground(row, rowTop);
        if (rowTop >= -rowHeight)
            PaintCells(shown, row, rowTop);
    }
    SelectObject(bodyDC, oldFont);
}

void OwerListBody::PaintRowBackground(int row, int rowTop)
{
    const int rowBottom = Pixel(static_cast<long long>(rowTop) + rowHeight);
    // The sum of the stored widths even when they are percentages. This is meant.
    const long long end = static_cast<long long>(left) + TotalWidth() - scrollX;
    const RECT band = {left, rowTop + 1, Pixel(end), rowBottom};
    if (row == currentRow)
    {
        FillRect(bodyDC, &band, GetCachedBrush(selectColor));
        return;
    }
    if (gridLines && row % 2 == 1)
        FillRect(bodyDC, &band, GetCachedBrush(kGridBand));
    if (paintRowBack)
    {
        RECT back = {scrollX, rowTop, Sum(Difference(scrollX, left), right), rowBottom};
        paintRowBack(row, bodyDC, &back, owner);
    }
}

void OwerListBody::PaintCells(const std::vector<ColumnSpan>& columns, int row, int rowTop)
{
    for (const ColumnSpan& span : columns)
    {
        RECT cell = {span.left, rowTop, span.right,
                     Pixel(static_cast<long long>(rowTop) + rowHeight)};
        if (gridLines)
            DrawCellLines(bodyDC, cell);
        if (paintCell)
            paintCell(bodyDC, bitmapDC, span.column == 0, row, span.column, &cell, owner);
    }
}

void OwerListBody::CopyToScreen()
{
    BitBlt(dc, left, top, Width(), headerHeight, headerDC, 0, 0, SRCCOPY);
    const int bodyHeight = std::max(Difference(Height(), headerHeight), 0);
    BitBlt(dc, left, Sum(top, headerHeight), Width(), bodyHeight, bodyDC, 0, 0, SRCCOPY);
}

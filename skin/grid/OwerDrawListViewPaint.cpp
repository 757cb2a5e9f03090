// How the grid paints what the page does not paint itself.
#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/grid/GridArithmetic.h"
#include "skin/grid/GridKeys.h"
#include "skin/grid/OwerDrawListView.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace
{

constexpr int kTextMargin = 3;
constexpr int kOwnerCellInset = 2;
constexpr char kSampleCharacter[] = "试";

/// Selects the font of the grid's parent for a while, if it has one.
class ParentFont
{
public:
    ParentFont(HDC dc, HWND grid)
        : dc(dc)
    {
        if (const LRESULT font = SendMessageA(GetParent(grid), WM_GETFONT, 0, 0))
            oldFont = SelectObject(dc, reinterpret_cast<HGDIOBJ>(font));
    }
    ~ParentFont()
    {
        if (oldFont)
            SelectObject(dc, oldFont);
    }
    ParentFont(const ParentFont&) = delete;
    ParentFont& operator=(const ParentFont&) = delete;

private:
    HDC dc;
    HGDIOBJ oldFont = nullptr;
};

/// Along the bottom and up the right edge, which stands in the gap to the next header cell.
void DrawHeaderLines(HDC dc, const RECT& cell)
{
    const HGDIOBJ oldPen = SelectObject(dc, GetCachedPen(1, kGridLine, PS_SOLID));
    MoveToEx(dc, cell.left, cell.bottom - 1, nullptr);
    LineTo(dc, cell.right, cell.bottom - 1);
    LineTo(dc, cell.right, cell.top - 1);
    SelectObject(dc, oldPen);
}

int TextWidth(HDC dc, const char* text)
{
    SIZE size = {};
    GetTextExtentPoint32A(dc, text, static_cast<int>(strlen(text)), &size);
    return size.cx;
}

/// The first characters of a text and "...".
std::string Shortened(const char* text, int characters)
{
    wchar_t wide[kCellTextCapacity];
    const int length = MultiByteToWideChar(CP_ACP, 0, text, static_cast<int>(strlen(text)), wide,
                                           kCellTextCapacity);
    char kept[2 * kCellTextCapacity];
    const int keptLength = WideCharToMultiByte(CP_ACP, 0, wide, std::min(characters, length), kept,
                                               sizeof(kept), nullptr, nullptr);
    return std::string(kept, keptLength) + "...";
}

void CopyBitmapPart(HDC dc, const RECT& target, HDC bitmapDC, HBITMAP bitmap, int sourceX)
{
    const HGDIOBJ oldBitmap = SelectObject(bitmapDC, bitmap);
    BitBlt(dc, target.left, target.top, target.right - target.left, target.bottom - target.top,
           bitmapDC, sourceX, 0, SRCCOPY);
    SelectObject(bitmapDC, oldBitmap);
}

/// Draws a cell's check box in the middle of the cell and remembers where.
void DrawCheckBox(HDC dc, HDC bitmapDC, HBITMAP bitmap, OwerCell& cell)
{
    BITMAP size;
    if (!GetObjectA(bitmap, sizeof(size), &size))
        return;
    const GridRect& place = cell.rect;
    const int width = size.bmWidth / 2;
    const int height = size.bmHeight;
    const int x = place.left + (place.right - width - place.left) / 2;
    const int y = place.top + (place.bottom - place.top - height) / 2;
    const RECT box = {x, y, x + width, y + height};
    CopyBitmapPart(dc, box, bitmapDC, bitmap, cell.checked ? 0 : width);
    cell.checkRect = {x, y, x + width, y + height};
}

} // namespace

void COwerDrawListView::OnPaint()
{
    // The paint context only marks the area as painted: the body draws on the context that it holds.
    CPaintDC paintDC(this);
    if (body)
        body->Paint();
    DrawGridKeyCell(*this, clientDC);
}

BOOL COwerDrawListView::OnEraseBkgnd(CDC* /*dc*/)
{
    return TRUE;
}

void COwerDrawListView::OnNcPaint()
{
    Default();
    if (!body || !body->HasCornerBox())
        return;
    CRect window;
    GetWindowRect(&window);
    ScreenToClient(&window);
    // As wide as the arrow of a horizontal bar and as high as a vertical bar is wide. This is meant.
    const RECT corner = {window.right - GetSystemMetrics(SM_CXHSCROLL),
                         window.bottom - GetSystemMetrics(SM_CXVSCROLL), window.right,
                         window.bottom};
    CWindowDC dc(this);
    ::FillRect(dc, &corner, GetCachedBrush(kGridBack));
}

void COwerDrawListView::PaintHeaderCell(HDC headerDC, HDC /*bitmapDC*/, int column, RECT* rect,
                                        COwerDrawListView* owner)
{
    FillRect(headerDC, rect, GetCachedBrush(kGridBack));
    DrawHeaderLines(headerDC, *rect);
    if (column < 0 || column >= static_cast<int>(owner->columns.size()))
        return;

    const ParentFont font(headerDC, owner->m_hWnd);
    const OwerColumn& shown = owner->columns[column];
    RECT place = *rect;
    InflateRect(&place, -kTextMargin, 0);
    SetTextColor(headerDC, owner->textColor);
    DrawTextA(headerDC, shown.title, -1, &place, shown.headerFormat);
}

void COwerDrawListView::PaintCell(HDC bodyDC, HDC bitmapDC, bool /*isFirstColumn*/, int row,
                                  int column, RECT* rect, COwerDrawListView* owner)
{
    const ParentFont font(bodyDC, owner->m_hWnd);
    if (owner->ownerData)
        owner->PaintOwnerCell(bodyDC, row, column, rect);
    else
        owner->PaintStoredCell(bodyDC, bitmapDC, row, column, *rect);
}

void COwerDrawListView::PaintOwnerCell(HDC bodyDC, int row, int column, RECT* rect)
{
    rect->left = Sum(rect->left, kOwnerCellInset);
    if (cellPaintProc)
        cellPaintProc(bodyDC, row, column, rect, body->boldFont, parent, userData, this);
    if (cellOverlayProc)
    {
        const bool isPressed = column == pressedColumn && row == pressedRow;
        int state = isPressed ? mouseState : kMouseIdle;
        cellOverlayProc(bodyDC, downX, Difference(downY, body->headerHeight), column, row, rect,
                        &state, userData);
    }
    rect->left = Difference(rect->left, kOwnerCellInset); // of whatever the painters have left
}

void COwerDrawListView::PaintStoredCell(HDC bodyDC, HDC bitmapDC, int row, int column,
                                        const RECT& rect)
{
    OwerCell* cell = rows.Find(row, column);
    if (!cell || column >= static_cast<int>(columns.size()))
        return;
    if (cell->backColor < kNoCellColor)
    {
        RECT inner = rect;
        InflateRect(&inner, -1, -1);
        FillRect(bodyDC, &inner, GetCachedBrush(cell->backColor));
    }
    cell->rect = {rect.left, rect.top, rect.right, rect.bottom};

    const OwerColumn& shown = columns[column];
    if (cell->text[0])
        PaintCellText(bodyDC, *cell, shown.cellFormat, rect);
    else if (shown.type == kCheckColumn)
        DrawCheckBox(bodyDC, bitmapDC, shown.bitmap, *cell);
}

void COwerDrawListView::PaintCellText(HDC bodyDC, const OwerCell& cell, UINT format,
                                      RECT rect) const
{
    InflateRect(&rect, -kTextMargin, 0);
    const COLORREF color = cell.textColor < kNoCellColor ? cell.textColor : textColor;
    const COLORREF oldColor = SetTextColor(bodyDC, color);
    const int width = rect.right - rect.left;
    if (TextWidth(bodyDC, cell.text) <= width)
        DrawTextA(bodyDC, cell.text, -1, &rect, format);
    else
    {
        const int kept = KeptCharacters(width, TextWidth(bodyDC, kSampleCharacter));
        DrawTextA(bodyDC, Shortened(cell.text, kept).c_str(), -1, &rect, format);
    }
    SetTextColor(bodyDC, oldColor);
}

void COwerDrawListView::PaintRowBack(int row, HDC bodyDC, RECT* rect, COwerDrawListView* owner)
{
    if (owner->rowPaintProc)
        owner->rowPaintProc(row, bodyDC, rect, owner->parent);
}

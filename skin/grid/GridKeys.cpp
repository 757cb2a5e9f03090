#include "skin/grid/GridKeys.h"

#include "skin/grid/GridArithmetic.h"
#include "skin/grid/OwerDrawListView.h"

#include <algorithm>

namespace
{

int VisibleRows(const OwerListBody& body)
{
    const int height = Difference(body.Height(), body.headerHeight);
    return body.rowHeight > 0 ? std::max(height / body.rowHeight, 1) : 1;
}

/// The row that a key leads to; -1 for a key that leads to none.
int RowAfter(const OwerListBody& body, WPARAM key)
{
    switch (key)
    {
    case VK_UP:
        return Difference(body.currentRow, 1);
    case VK_DOWN:
        return Sum(body.currentRow, 1);
    case VK_PRIOR:
        return Difference(body.currentRow, VisibleRows(body));
    case VK_NEXT:
        return Sum(body.currentRow, VisibleRows(body));
    case VK_HOME:
        return 0;
    default:
        return body.rowCount - 1;
    }
}

bool IsRowKey(WPARAM key)
{
    return key == VK_UP || key == VK_DOWN || key == VK_PRIOR || key == VK_NEXT || key == VK_HOME ||
           key == VK_END;
}

void ShowRow(COwerDrawListView& grid, int row)
{
    OwerListBody& body = *grid.body;
    const int first = grid.GetFirstVisibleRow();
    const int top = std::max(std::min(first, row), Difference(row, VisibleRows(body) - 1));
    if (top == first)
        return;
    grid.SetScrollPos(SB_VERT, top);
    body.SetScrollY(Product(top, body.rowHeight));
}

void ShowColumn(COwerDrawListView& grid, int column)
{
    OwerListBody& body = *grid.body;
    RECT cell;
    body.GetCellRect(&cell, column, 0);
    int offset = body.scrollX;
    if (cell.right > body.right)
        offset = Sum(offset, Difference(cell.right, body.right));
    if (cell.left < body.left)
        offset = std::max(Difference(offset, Difference(body.left, cell.left)), 0);
    if (offset == body.scrollX)
        return;
    grid.SetScrollPos(SB_HORZ, offset);
    body.SetScrollX(offset);
}

void MoveColumn(COwerDrawListView& grid, int step)
{
    const int last = static_cast<int>(grid.columns.size()) - 1;
    grid.keyColumn = std::max(std::min(std::max(grid.keyColumn, 0) + step, last), 0);
    ShowColumn(grid, grid.keyColumn);
    grid.Invalidate(FALSE);
    grid.accessible.TellSelection();
}

bool WorkByKey(COwerDrawListView& grid, WPARAM key)
{
    if (IsRowKey(key))
    {
        const int last = grid.GetRowCount() - 1;
        GoToGridRow(grid, std::max(std::min(RowAfter(*grid.body, key), last), 0));
    }
    else if (key == VK_LEFT || key == VK_RIGHT)
        MoveColumn(grid, key == VK_LEFT ? -1 : 1);
    else if (key == VK_RETURN)
        PressGridCell(grid, {WM_LBUTTONDBLCLK});
    else if (key == VK_SPACE || key == VK_F2)
        PressGridCell(grid, {WM_LBUTTONDOWN, WM_LBUTTONUP});
    else
        return false;
    return true;
}

} // namespace

bool WorkGridByKey(COwerDrawListView& grid, const MSG& message)
{
    if (!grid.body || message.hwnd != grid.m_hWnd)
        return false;
    if (message.message == WM_LBUTTONDOWN || message.message == WM_RBUTTONDOWN)
        grid.keyColumn = -1; // the mouse takes over
    return message.message == WM_KEYDOWN && WorkByKey(grid, message.wParam);
}

void GoToGridRow(COwerDrawListView& grid, int row)
{
    if (!grid.body || row < 0 || row >= grid.GetRowCount())
        return;
    grid.body->currentRow = row;
    ShowRow(grid, row);
    grid.Invalidate(FALSE);
    grid.accessible.TellSelection();
}

void PressGridCell(COwerDrawListView& grid, std::initializer_list<UINT> messages)
{
    if (!grid.body || grid.columns.empty() || grid.body->currentRow < 0 ||
        grid.body->currentRow >= grid.GetRowCount())
        return;
    RECT cell;
    grid.body->GetCellRect(&cell, std::max(grid.keyColumn, 0), grid.body->currentRow);
    // By the grid's own road, so that its parent is told the same as of the mouse.
    const LPARAM middle =
        MAKELPARAM(Sum(cell.left, cell.right) / 2, Sum(cell.top, cell.bottom) / 2);
    const HWND window = grid.m_hWnd;
    for (const UINT message : messages)
        if (::IsWindow(window))
            ::SendMessageA(window, message, MK_LBUTTON, middle);
}

void DrawGridKeyCell(COwerDrawListView& grid, HDC dc)
{
    if (grid.keyColumn < 0 || !grid.body || ::GetFocus() != grid.m_hWnd)
        return;
    RECT cell;
    grid.body->GetCellRect(&cell, grid.keyColumn, grid.body->currentRow);
    ::InflateRect(&cell, -1, -1);
    ::SetTextColor(dc, RGB(0, 0, 0));
    ::SetBkColor(dc, RGB(255, 255, 255));
    ::DrawFocusRect(dc, &cell);
}

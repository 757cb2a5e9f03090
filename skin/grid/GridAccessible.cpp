#include "skin/grid/GridAccessible.h"

#include "skin/grid/GridKeys.h"
#include "skin/grid/OwerDrawListView.h"

#include <objbase.h>
#include <oleacc.h>

CGridAccessible::CGridAccessible(COwerDrawListView& newGrid)
    : grid(newGrid)
{
}

HWND CGridAccessible::DrawnWindow() const
{
    return grid.m_hWnd;
}

AccessibleKind CGridAccessible::Kind() const
{
    AccessibleKind kind = {ROLE_SYSTEM_LIST};
    kind.partRole = ROLE_SYSTEM_LISTITEM;
    kind.action = "双击";
    return kind;
}

int CGridAccessible::PartCount() const
{
    return grid.GetRowCount();
}

AccessiblePart CGridAccessible::Part(int row) const
{
    const bool hasKeyCell = row == SelectedPart() && grid.keyColumn >= 0;
    const int named = hasKeyCell ? grid.keyColumn : 0;
    AccessiblePart part;
    part.name = hasKeyCell ? TitledText(row, named) : CellText(row, named);
    if (part.name.empty())
        part.name = "第" + std::to_string(row + 1) + "行";
    for (int column = 0; column < static_cast<int>(grid.columns.size()); ++column)
        if (column != named && !CellText(row, column).empty())
            part.description += (part.description.empty() ? "" : ", ") + TitledText(row, column);

    RECT cell = {};
    if (grid.body)
        grid.body->GetCellRect(&cell, 0, row);
    grid.GetClientRect(&part.place);
    part.place.top = cell.top;
    part.place.bottom = cell.bottom;
    return part;
}

std::string CGridAccessible::CellText(int row, int column) const
{
    if (grid.ownerData)
        return grid.cellTextProc ? grid.cellTextProc(row, column, grid.userData) : "";
    const OwerCell* const cell = grid.rows.Find(row, static_cast<size_t>(column));
    return cell ? cell->text : "";
}

std::string CGridAccessible::TitledText(int row, int column) const
{
    return std::string(grid.columns[column].title) + ": " + CellText(row, column);
}

int CGridAccessible::PartAt(CPoint point) const
{
    int column = -1;
    int row = -1;
    if (grid.HitTestHeader(point.x, point.y) < 0)
        grid.HitTestCell(&column, &row, point.x, point.y);
    return row;
}

/// A press below the last row makes the row after it the current one.
int CGridAccessible::SelectedPart() const
{
    return grid.body && grid.body->currentRow < grid.GetRowCount() ? grid.body->currentRow : -1;
}

void CGridAccessible::SelectPart(int row)
{
    GoToGridRow(grid, row);
}

void CGridAccessible::PressPart(int row)
{
    GoToGridRow(grid, row);
    PressGridCell(grid, {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP});
}

LRESULT COwerDrawListView::OnAskedForObject(WPARAM wParam, LPARAM lParam)
{
    const LRESULT answer = accessible.Answer(wParam, lParam);
    return answer ? answer : Default();
}

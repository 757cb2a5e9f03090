#include "skin/grid/OwerListGeometry.h"

#include "skin/grid/GridArithmetic.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace
{

constexpr int kDividerReach = 3;
constexpr int kNarrowestColumn = 10;

/// Rounds up. @param divisor above 0
long long DivideUp(long long value, int divisor)
{
    return value / divisor + (value % divisor > 0);
}

} // namespace

int OwerListGeometry::Width() const
{
    return Difference(right, left);
}

int OwerListGeometry::Height() const
{
    return Difference(bottom, top);
}

int OwerListGeometry::ColumnWidth(int column) const
{
    const int width = columnWidths[column];
    if (widthMode != kWidthPercent)
        return width;
    return Truncated(static_cast<double>(width) * Width() / 100.0 + 0.5);
}

int OwerListGeometry::TotalWidth() const
{
    return Saturated(std::accumulate(columnWidths.begin(), columnWidths.end(), 0LL));
}

void OwerListGeometry::SetRowCount(int count)
{
    rowCount = std::max(count, 0);
}

int OwerListGeometry::GetTotalHeight() const
{
    return Saturated((rowCount + 1LL) * rowHeight);
}

int OwerListGeometry::GetFirstVisibleRow() const
{
    return RowsIn(scrollY);
}

bool OwerListGeometry::HasCell(int column, int row) const
{
    return column >= 0 && column < columnWidths.count && row >= 0 && row < rowCount;
}

GridRect OwerListGeometry::CellRect(int column, int row) const
{
    if (column < 0 || column >= columnWidths.count)
        return {};
    const long long cellLeft = static_cast<long long>(ColumnLeft(column)) + left - scrollX;
    const long long cellTop = static_cast<long long>(RowTop(row)) + headerHeight;
    return {Pixel(cellLeft), Pixel(cellTop), Pixel(cellLeft + ColumnWidth(column)),
            Pixel(cellTop + rowHeight)};
}

void OwerListGeometry::EnsureRowVisible(int row)
{
    if (row < 0 || row >= rowCount)
        return;
    const int first = GetFirstVisibleRow();
    currentRow = row;

    const long long height = rowHeight;
    // A row number less a pixel offset: once the list is scrolled, any row from the first one on
    // passes. This is meant.
    if (row >= first && (static_cast<long long>(row) - scrollY) * height <= bottom)
        return;

    scrollY = Saturated(height * row - bottom / 2);
    if (scrollY * height + bottom > height * rowCount)
        scrollY = Saturated(height * rowCount - bottom);
}

int OwerListGeometry::HitRowOrDivider(int x, int y)
{
    if (IsInHeader(y))
    {
        const int column = HitTestDivider(x, y);
        if (column >= 0)
        {
            resizing = true;
            resizeColumn = column;
        }
        return -1;
    }

    const auto row = RowAt(y);
    if (!row)
        return -1;
    currentRow = *row;
    return *row;
}

GridCell OwerListGeometry::HitTestCell(int x, int y)
{
    const auto row = RowAt(y);
    if (!row)
        return {};
    const int column = ColumnAt(x);
    if (column < 0)
        return {};

    const GridRect cell = CellRect(column, *row);
    cellOffsetX = Difference(x, cell.left);
    cellOffsetY = Saturated(static_cast<long long>(y) - top - cell.top);
    return {column, *row == rowCount ? -1 : *row};
}

int OwerListGeometry::HitTestHeader(int x, int y) const
{
    return IsInHeader(y) ? ColumnAt(x) : -1;
}

int OwerListGeometry::HitTestDivider(int x, int y) const
{
    if (!IsInHeader(y))
        return -1;
    const long long at = static_cast<long long>(x) + scrollX - left;
    long long edge = 0;
    for (int column = 0; column < columnWidths.count; ++column)
    {
        edge += ColumnWidth(column);
        if (std::llabs(at - edge) < kDividerReach)
            return column;
    }
    return -1;
}

bool OwerListGeometry::DragDivider(int x)
{
    if (resizeColumn < 0 || resizeColumn >= columnWidths.count)
        return false;
    const int width =
        Saturated(static_cast<long long>(x) + scrollX - left - ColumnLeft(resizeColumn));
    if (width <= kNarrowestColumn)
        return false;

    int& stored = columnWidths[resizeColumn];
    if (widthMode != kWidthPercent)
        stored = width;
    else if (Width() > 0)
        stored = Truncated(width * 100.0 / Width() + 0.5);
    return true;
}

ScrollRange OwerListGeometry::HorizontalRange(int clientWidth) const
{
    return {TotalWidth(), clientWidth};
}

ScrollRange OwerListGeometry::VerticalRange(int clientHeight) const
{
    return {rowCount, RowsIn(clientHeight)};
}

std::optional<int> OwerListGeometry::PositionAfterShrinking(int clientBottom) const
{
    const int first = GetFirstVisibleRow();
    const int visible = RowsIn(clientBottom);
    if (first == 0 || static_cast<long long>(rowCount) - first >= visible - 1LL)
        return std::nullopt;
    return std::max(Difference(rowCount, visible), 0);
}

bool OwerListGeometry::HasCornerBox() const
{
    const bool tooHigh = static_cast<long long>(rowHeight) * rowCount + headerHeight >
                         static_cast<long long>(bottom) - left; // left, not top: this is meant
    const bool tooWide = widthMode != kWidthPixels || TotalWidth() > Width();
    return tooHigh && tooWide;
}

int OwerListGeometry::RowTop(int row) const
{
    return Pixel(static_cast<long long>(rowHeight) * row - scrollY);
}

std::vector<ColumnSpan> OwerListGeometry::ColumnSpans() const
{
    std::vector<ColumnSpan> spans;
    spans.reserve(columnWidths.count);
    long long x = static_cast<long long>(left) - scrollX;
    for (int column = 0; column < columnWidths.count; ++column)
    {
        const long long end = x + ColumnWidth(column);
        spans.push_back({column, Pixel(x), Pixel(end)});
        x = end;
    }
    return spans;
}

RowRange OwerListGeometry::RowsToPaint(bool fromTop) const
{
    if (rowHeight < 1)
        return {};
    // A row counts as long as its bottom edge is not above the area, and as long as its top edge is
    // less than a row below it.
    const long long first = fromTop ? 0 : DivideUp(scrollY, rowHeight) - 1;
    const long long end = DivideUp(static_cast<long long>(scrollY) + bottom + rowHeight, rowHeight);
    const auto clamped = [this](long long row)
    {
        return static_cast<int>(std::clamp<long long>(row, 0, rowCount));
    };
    return {clamped(first), clamped(end)};
}

bool OwerListGeometry::IsInHeader(int y) const
{
    return static_cast<long long>(y) - top < headerHeight;
}

int OwerListGeometry::RowsIn(int pixels) const
{
    return rowHeight > 0 ? pixels / rowHeight : 0;
}

/// The row at a height, the one behind the last included. The very first pixel below the header
/// belongs to none. This is meant.
std::optional<int> OwerListGeometry::RowAt(int y) const
{
    const long long depth = static_cast<long long>(scrollY) - headerHeight + y - top;
    if (depth < 1 || rowHeight < 1 || depth / rowHeight > rowCount)
        return std::nullopt;
    return static_cast<int>(depth / rowHeight);
}

int OwerListGeometry::ColumnAt(int x) const
{
    const long long at = static_cast<long long>(x) - left + scrollX;
    long long edge = 0;
    for (int column = 0; column < columnWidths.count; ++column)
    {
        edge += ColumnWidth(column);
        if (edge > at)
            return column;
    }
    return -1;
}

/// Left edge of a column, counted from the first one's.
int OwerListGeometry::ColumnLeft(int column) const
{
    long long edge = 0;
    for (int before = 0; before < column; ++before)
        edge += ColumnWidth(before);
    return Pixel(edge);
}

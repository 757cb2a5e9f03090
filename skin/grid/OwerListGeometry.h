// Where everything in the grid lies: columns, rows, scroll offsets, hit tests. Free of windows.h.
#pragma once

#include "skin/grid/EArray.h"
#include "skin/grid/GridRect.h"
#include "skin/grid/GridScroll.h"

#include <optional>
#include <vector>

/// The unit of `columnWidths`.
constexpr int kWidthPercent = 1; ///< of the area's width
constexpr int kWidthPixels = 2;

/// Rows from `first` up to, but without, `end`.
struct RowRange
{
    int first = 0;
    int end = 0;
};

/// A column's place on a surface.
struct ColumnSpan
{
    int column = 0;
    int left = 0;
    int right = 0;
};

/// The geometry of the grid. Points are in window client coordinates. The area's fields, the row
/// height and the rest may be set directly; no value makes an operation fail, and with a row height
/// below 1 there are no rows to see or to hit.
class OwerListGeometry
{
public:
    int left = 0; ///< the drawing area
    int top = 0;
    int right = 0;
    int bottom = 0;
    EArray<int> columnWidths;
    int widthMode = kWidthPixels;
    int rowCount = 0;
    int rowHeight = 22;
    int headerHeight = 22;
    int currentRow = -1; ///< highlighted row
    int scrollY = 0;     ///< pixels
    int scrollX = 0;     ///< pixels
    bool resizing = false;
    int resizeColumn = -1; ///< column whose divider is being dragged
    int cellOffsetX = 0;   ///< where the last hit fell inside its cell
    int cellOffsetY = 0;
    bool gridLines = false; ///< lines around the cells and banded rows

    int Width() const;
    int Height() const;

    /// A column's width on the screen. @param column from 0 to columnWidths.count - 1
    int ColumnWidth(int column) const;

    /// The sum of `columnWidths` in their own unit.
    int TotalWidth() const;

    /// Below 0 counts as 0.
    void SetRowCount(int count);
    void SetScrollX(int offset) { scrollX = offset; }
    void SetScrollY(int offset) { scrollY = offset; }

    /// The height of all rows and one more.
    int GetTotalHeight() const;
    int GetFirstVisibleRow() const;

    bool HasCell(int column, int row) const;

    /// Empty for a column that does not exist; any row has a place.
    GridRect CellRect(int column, int row) const;

    /// Makes a row the current one and scrolls it toward the middle if it is not in view. Does
    /// nothing for a row that does not exist. The scroll bar is the caller's.
    void EnsureRowVisible(int row);

    /// What a press means. Below the header the row under it becomes the current one and is
    /// returned; the blank below the last row counts as the row after it. On a divider of the header
    /// a drag begins. @return -1 where no row is
    int HitRowOrDivider(int x, int y);

    /// The cell under a point; it may have a column and no row, right below the last one. The header
    /// hides no cell from it: scrolled rows are hit there as well. This is meant.
    GridCell HitTestCell(int x, int y);

    /// @return the column whose header lies under a point, or -1
    int HitTestHeader(int x, int y) const;

    /// @return the column whose right edge lies under a point of the header, or -1
    int HitTestDivider(int x, int y) const;

    /// Moves the dragged divider to a point. @return whether the width changed
    bool DragDivider(int x);

    ScrollRange HorizontalRange(int clientWidth) const;
    ScrollRange VerticalRange(int clientHeight) const;

    /// The vertical position to go to when the rows have become too few for the view; none when they
    /// are enough or nothing is scrolled.
    std::optional<int> PositionAfterShrinking(int clientBottom) const;

    /// Whether the bars leave a corner between them.
    bool HasCornerBox() const;

    /// Top edge of a row on the body surface.
    int RowTop(int row) const;

    /// All columns from left to right.
    std::vector<ColumnSpan> ColumnSpans() const;

    /// The rows to paint. Those above the area are passed over unless `fromTop`; those below always
    /// are.
    RowRange RowsToPaint(bool fromTop) const;

private:
    bool IsInHeader(int y) const;
    int RowsIn(int pixels) const;
    std::optional<int> RowAt(int y) const;
    int ColumnAt(int x) const;
    int ColumnLeft(int column) const;
};

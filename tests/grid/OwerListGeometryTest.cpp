#include "skin/grid/OwerListGeometry.h"

#include <climits>
#include <gtest/gtest.h>

namespace
{

/// Three columns of 100, 60 and 40 pixels and rows of 20 in an area of 180 by 122 pixels, header
/// included: five rows fit.
class GeometryTest : public testing::Test
{
protected:
    GeometryTest()
    {
        for (const int width : {100, 60, 40})
            grid.columnWidths.Add(width);
        grid.right = 180;
        grid.bottom = 122;
        grid.rowHeight = 20;
        grid.rowCount = 50;
    }

    OwerListGeometry grid;
};

void ExpectRect(int left, int top, int right, int bottom, const GridRect& rect)
{
    EXPECT_EQ(left, rect.left);
    EXPECT_EQ(top, rect.top);
    EXPECT_EQ(right, rect.right);
    EXPECT_EQ(bottom, rect.bottom);
}

void ExpectCell(int column, int row, const GridCell& cell)
{
    EXPECT_EQ(column, cell.column);
    EXPECT_EQ(row, cell.row);
}

TEST(Geometry, BeginsEmpty)
{
    const OwerListGeometry grid;
    EXPECT_EQ(2, grid.widthMode);
    EXPECT_EQ(22, grid.rowHeight);
    EXPECT_EQ(22, grid.headerHeight);
    EXPECT_EQ(-1, grid.currentRow);
    EXPECT_EQ(-1, grid.resizeColumn);
    EXPECT_EQ(0, grid.columnWidths.count);
    EXPECT_EQ(22, grid.GetTotalHeight());
}

TEST_F(GeometryTest, HasCellsInItsRowsAndColumnsOnly)
{
    EXPECT_TRUE(grid.HasCell(0, 0));
    EXPECT_TRUE(grid.HasCell(2, 49));
    for (const auto& [column, row] :
         {std::pair(-1, 0), {3, 0}, {INT_MAX, 0}, {0, -1}, {0, 50}, {0, INT_MIN}})
        EXPECT_FALSE(grid.HasCell(column, row)) << column << ' ' << row;
}

TEST_F(GeometryTest, CountsRowsFromZero)
{
    grid.SetRowCount(7);
    EXPECT_EQ(7, grid.rowCount);
    grid.SetRowCount(-7);
    EXPECT_EQ(0, grid.rowCount);
}

TEST_F(GeometryTest, CountsOneRowMoreIntoTheHeight)
{
    EXPECT_EQ(51 * 20, grid.GetTotalHeight());
    grid.SetRowCount(INT_MAX);
    EXPECT_EQ(INT_MAX, grid.GetTotalHeight());
}

TEST_F(GeometryTest, KnowsTheFirstVisibleRow)
{
    EXPECT_EQ(0, grid.GetFirstVisibleRow());
    grid.SetScrollY(59);
    EXPECT_EQ(2, grid.GetFirstVisibleRow());
    grid.SetScrollY(60);
    EXPECT_EQ(3, grid.GetFirstVisibleRow());
}

TEST_F(GeometryTest, PlacesCells)
{
    ExpectRect(0, 22, 100, 42, grid.CellRect(0, 0));
    ExpectRect(160, 82, 200, 102, grid.CellRect(2, 3));
    grid.SetScrollX(30);
    grid.SetScrollY(45);
    ExpectRect(130, 37, 170, 57, grid.CellRect(2, 3));
    grid.left = 7;
    grid.top = 1000; // counts for nothing here
    ExpectRect(137, 37, 177, 57, grid.CellRect(2, 3));
}

TEST_F(GeometryTest, HasNoPlaceForAColumnThatIsNone)
{
    ExpectRect(0, 0, 0, 0, grid.CellRect(-1, 3));
    ExpectRect(0, 0, 0, 0, grid.CellRect(3, 3));
}

TEST_F(GeometryTest, TakesPercentagesOfTheWidth)
{
    grid.widthMode = 1;
    grid.columnWidths.Clear();
    for (const int percent : {25, 33, 42})
        grid.columnWidths.Add(percent);
    EXPECT_EQ(45, grid.ColumnWidth(0));
    EXPECT_EQ(59, grid.ColumnWidth(1)); // 59.4
    EXPECT_EQ(76, grid.ColumnWidth(2)); // 75.6
    EXPECT_EQ(100, grid.TotalWidth());
    ExpectRect(104, 22, 180, 42, grid.CellRect(2, 0));
    ExpectCell(1, 0, grid.HitTestCell(103, 30));
}

// ---- Bringing a row into view

TEST_F(GeometryTest, LeavesAVisibleRowWhereItIs)
{
    grid.EnsureRowVisible(6); // 6 * 20 is 120, not beyond the bottom
    EXPECT_EQ(0, grid.scrollY);
    EXPECT_EQ(6, grid.currentRow);
}

TEST_F(GeometryTest, PutsARowBelowIntoTheMiddle)
{
    grid.EnsureRowVisible(7);
    EXPECT_EQ(7, grid.currentRow);
    // 140 - 61 is 79; but 79 * 20 + 122 is beyond 50 * 20, so the end of the list comes instead.
    EXPECT_EQ(50 * 20 - 122, grid.scrollY);

    grid.scrollY = 0;
    grid.SetRowCount(1000);
    grid.EnsureRowVisible(7);
    EXPECT_EQ(79, grid.scrollY);
}

TEST_F(GeometryTest, TakesAnyRowFromTheFirstOneOnForVisibleOnceScrolled)
{
    grid.scrollY = 100;
    grid.EnsureRowVisible(49); // (49 - 100) * 20 is below the bottom
    EXPECT_EQ(100, grid.scrollY);
    EXPECT_EQ(49, grid.currentRow);
}

TEST_F(GeometryTest, ScrollsUpToARowAbove)
{
    grid.SetRowCount(1000);
    grid.scrollY = 800;
    grid.EnsureRowVisible(10);
    EXPECT_EQ(200 - 61, grid.scrollY);
    grid.EnsureRowVisible(2); // 40 - 61 is negative, and stays so
    EXPECT_EQ(-21, grid.scrollY);
}

TEST_F(GeometryTest, IgnoresARowThatIsNone)
{
    grid.currentRow = 3;
    for (const int row : {-1, 50, INT_MAX, INT_MIN})
        grid.EnsureRowVisible(row);
    EXPECT_EQ(3, grid.currentRow);
    EXPECT_EQ(0, grid.scrollY);
}

// ---- Hits

TEST_F(GeometryTest, HitsRows)
{
    EXPECT_EQ(-1, grid.HitRowOrDivider(5, 22)); // the first pixel belongs to no row
    EXPECT_EQ(-1, grid.currentRow);
    EXPECT_EQ(0, grid.HitRowOrDivider(5, 23));
    EXPECT_EQ(0, grid.HitRowOrDivider(5, 41));
    EXPECT_EQ(1, grid.HitRowOrDivider(5, 42));
    EXPECT_EQ(1, grid.currentRow);
    EXPECT_EQ(4, grid.HitRowOrDivider(170, 121)); // wherever the columns end
    grid.scrollY = 200;
    EXPECT_EQ(10, grid.HitRowOrDivider(5, 22));
}

TEST_F(GeometryTest, HitsTheBlankBelowTheLastRowAsOneRowMore)
{
    grid.SetRowCount(2);
    EXPECT_EQ(1, grid.HitRowOrDivider(5, 61));
    EXPECT_EQ(2, grid.HitRowOrDivider(5, 62));
    EXPECT_EQ(2, grid.currentRow);
    EXPECT_EQ(2, grid.HitRowOrDivider(5, 81));
    grid.currentRow = 1;
    EXPECT_EQ(-1, grid.HitRowOrDivider(5, 82));
    EXPECT_EQ(1, grid.currentRow);

    ExpectCell(0, 1, grid.HitTestCell(5, 61));
    ExpectCell(0, -1, grid.HitTestCell(5, 62));
    ExpectCell(-1, -1, grid.HitTestCell(5, 82));
}

TEST_F(GeometryTest, BeginsADragWithinTwoPixelsOfADivider)
{
    for (const int x : {97, 103, 157, 163})
    {
        EXPECT_EQ(-1, grid.HitRowOrDivider(x, 10));
        EXPECT_FALSE(grid.resizing) << x;
    }
    for (const int x : {98, 100, 102})
    {
        grid.resizing = false;
        EXPECT_EQ(-1, grid.HitRowOrDivider(x, 10));
        EXPECT_TRUE(grid.resizing) << x;
        EXPECT_EQ(0, grid.resizeColumn);
    }
    grid.HitRowOrDivider(158, 21);
    EXPECT_EQ(1, grid.resizeColumn);
    grid.scrollX = 50;
    grid.HitRowOrDivider(152, 0);
    EXPECT_EQ(2, grid.resizeColumn);
    EXPECT_EQ(-1, grid.currentRow);
}

TEST_F(GeometryTest, TakesTheFirstOfTwoDividersWithinReach)
{
    grid.columnWidths[1] = 2;
    grid.HitRowOrDivider(101, 10);
    EXPECT_EQ(0, grid.resizeColumn);
}

TEST_F(GeometryTest, HitsCells)
{
    ExpectCell(-1, -1, grid.HitTestCell(5, 22));
    ExpectCell(0, 0, grid.HitTestCell(99, 23));
    ExpectCell(1, 0, grid.HitTestCell(100, 23));
    ExpectCell(2, 4, grid.HitTestCell(179, 121));
    ExpectCell(-1, -1, grid.HitTestCell(200, 50));
    grid.scrollX = 30;
    ExpectCell(1, 0, grid.HitTestCell(70, 23));
    ExpectCell(0, 0, grid.HitTestCell(69, 23));
}

TEST_F(GeometryTest, TellsWhereInTheCellItWasHit)
{
    grid.scrollX = 30;
    grid.scrollY = 45;
    grid.HitTestCell(75, 40); // column 1 begins at 70; depth 63 is row 3, three pixels in
    EXPECT_EQ(5, grid.cellOffsetX);
    EXPECT_EQ(3, grid.cellOffsetY);
}

TEST_F(GeometryTest, HitsScrolledCellsBehindTheHeader)
{
    grid.scrollY = 200;
    ExpectCell(0, 9, grid.HitTestCell(5, 10));
    EXPECT_EQ(-1, grid.HitRowOrDivider(5, 10));
}

TEST_F(GeometryTest, HitsNothingWithoutColumns)
{
    grid.columnWidths.Clear();
    ExpectCell(-1, -1, grid.HitTestCell(5, 30));
    EXPECT_EQ(-1, grid.HitTestHeader(5, 5));
    EXPECT_EQ(0, grid.HitRowOrDivider(5, 30));
}

TEST_F(GeometryTest, HitsTheHeader)
{
    EXPECT_EQ(0, grid.HitTestHeader(0, 0));
    EXPECT_EQ(0, grid.HitTestHeader(99, 21));
    EXPECT_EQ(1, grid.HitTestHeader(100, 21));
    EXPECT_EQ(-1, grid.HitTestHeader(100, 22));
    EXPECT_EQ(-1, grid.HitTestHeader(200, 5));
    grid.scrollX = 60;
    EXPECT_EQ(2, grid.HitTestHeader(100, 5));
}

TEST_F(GeometryTest, FindsDividersInTheHeaderOnly)
{
    EXPECT_EQ(0, grid.HitTestDivider(101, 21));
    EXPECT_EQ(-1, grid.HitTestDivider(101, 22));
    EXPECT_EQ(-1, grid.HitTestDivider(50, 5));
}

// ---- Column drag

TEST_F(GeometryTest, DragsADividerDownToElevenPixels)
{
    grid.resizeColumn = 1;
    EXPECT_TRUE(grid.DragDivider(180));
    EXPECT_EQ(80, grid.columnWidths[1]);
    EXPECT_TRUE(grid.DragDivider(111));
    EXPECT_EQ(11, grid.columnWidths[1]);
    for (const int x : {110, 100, 0, -32768})
        EXPECT_FALSE(grid.DragDivider(x));
    EXPECT_EQ(11, grid.columnWidths[1]);
    grid.scrollX = 40;
    EXPECT_TRUE(grid.DragDivider(111));
    EXPECT_EQ(51, grid.columnWidths[1]);
}

TEST_F(GeometryTest, DragsNothingWithoutAColumn)
{
    EXPECT_FALSE(grid.DragDivider(180));
    grid.resizeColumn = 3; // the columns may go during a drag
    EXPECT_FALSE(grid.DragDivider(180));
}

TEST_F(GeometryTest, DragsPercentages)
{
    grid.widthMode = 1;
    grid.columnWidths[0] = 50;
    grid.resizeColumn = 0;
    EXPECT_TRUE(grid.DragDivider(45));
    EXPECT_EQ(25, grid.columnWidths[0]);
    EXPECT_EQ(45, grid.ColumnWidth(0));
}

// ---- Scroll ranges

TEST_F(GeometryTest, ScrollsByPixelsAcrossAndByRowsDown)
{
    EXPECT_EQ(200, grid.HorizontalRange(180).maximum);
    EXPECT_EQ(180, grid.HorizontalRange(180).page);
    EXPECT_EQ(50, grid.VerticalRange(122).maximum);
    EXPECT_EQ(6, grid.VerticalRange(122).page);
}

TEST_F(GeometryTest, KeepsThePositionWhileRowsFillTheView)
{
    EXPECT_FALSE(grid.PositionAfterShrinking(122));
    grid.scrollY = 45 * 20; // five rows are left, one less than fits
    EXPECT_FALSE(grid.PositionAfterShrinking(122));
    grid.scrollY = 19; // still the first row
    grid.SetRowCount(1);
    EXPECT_FALSE(grid.PositionAfterShrinking(122));
}

TEST_F(GeometryTest, GoesBackWhenTheListHasShrunkUnderTheView)
{
    grid.scrollY = 46 * 20; // four rows are left, two less than fit
    EXPECT_EQ(44, grid.PositionAfterShrinking(122));
    grid.SetRowCount(3);
    EXPECT_EQ(0, grid.PositionAfterShrinking(122));
}

TEST_F(GeometryTest, HasACornerBoxWhenBothBarsAreInUse)
{
    EXPECT_TRUE(grid.HasCornerBox());
    grid.right = 200; // as wide as the columns
    EXPECT_FALSE(grid.HasCornerBox());
    grid.widthMode = 1;
    EXPECT_TRUE(grid.HasCornerBox());
    grid.SetRowCount(5); // 5 * 20 and the header are the whole height
    EXPECT_FALSE(grid.HasCornerBox());
    grid.left = 1; // measured from the left edge, not from the top
    EXPECT_TRUE(grid.HasCornerBox());
}

// ---- Painting

/// The rows that a walk from the first to the last would paint.
RowRange WalkedRows(const OwerListGeometry& grid)
{
    RowRange range;
    long long y = -static_cast<long long>(grid.scrollY);
    int row = 0;
    for (; row < grid.rowCount && y < grid.bottom + grid.rowHeight; ++row, y += grid.rowHeight)
        range.first += y + grid.rowHeight < 0;
    range.end = row;
    return range;
}

TEST_F(GeometryTest, PaintsTheRowsThatAWalkWouldPaint)
{
    for (const int height : {1, 7, 20, 26, 500})
        for (int offset = -130; offset < 1200; ++offset)
        {
            grid.rowHeight = height;
            grid.scrollY = offset;
            const RowRange walked = WalkedRows(grid);
            const RowRange rows = grid.RowsToPaint(false);
            ASSERT_EQ(walked.end, rows.end) << height << ' ' << offset;
            ASSERT_EQ(std::min(walked.first, walked.end), rows.first) << height << ' ' << offset;
            ASSERT_EQ(0, grid.RowsToPaint(true).first);
            ASSERT_EQ(walked.end, grid.RowsToPaint(true).end);
        }
}

TEST_F(GeometryTest, PaintsAsManyRowsOfAMillionAsOfAHundred)
{
    grid.SetRowCount(1000000);
    grid.scrollY = 999000 * 20;
    const RowRange rows = grid.RowsToPaint(false);
    EXPECT_EQ(998999, rows.first); // its bottom edge lies on the area's top
    EXPECT_EQ(999008, rows.end);
}

// ---- Values that no page should give

TEST_F(GeometryTest, SurvivesAnyRowHeight)
{
    for (const int height : {0, -1, INT_MIN, INT_MAX})
    {
        grid.rowHeight = height;
        grid.scrollY = 100;
        EXPECT_EQ(0, grid.GetFirstVisibleRow());
        EXPECT_EQ(0, grid.VerticalRange(122).page);
        EXPECT_FALSE(grid.PositionAfterShrinking(122));
        if (height < 1)
        {
            EXPECT_EQ(-1, grid.HitRowOrDivider(5, 30));
            ExpectCell(-1, -1, grid.HitTestCell(5, 30));
            EXPECT_EQ(0, grid.RowsToPaint(false).end);
        }
        grid.EnsureRowVisible(49);
        grid.CellRect(1, INT_MAX);
        grid.HasCornerBox();
        grid.GetTotalHeight();
    }
}

TEST_F(GeometryTest, SurvivesExtremeValues)
{
    for (const int extreme : {INT_MIN, INT_MIN + 1, INT_MAX - 1, INT_MAX})
        for (const int mode : {1, 2})
        {
            OwerListGeometry wild;
            wild.widthMode = mode;
            for (int i = 0; i < 5; ++i)
                wild.columnWidths.Add(extreme);
            wild.left = extreme;
            wild.right = -(extreme + 1);
            wild.top = extreme;
            wild.bottom = -(extreme + 1);
            wild.SetRowCount(INT_MAX);
            wild.rowHeight = INT_MAX;
            wild.headerHeight = extreme;
            wild.scrollX = extreme;
            wild.scrollY = extreme;
            for (const int at : {INT_MIN, -1, 0, 1, INT_MAX})
            {
                wild.HitRowOrDivider(at, at);
                wild.HitTestCell(at, -1 - at);
                wild.HitTestHeader(at, at);
                wild.resizeColumn = 2;
                wild.DragDivider(at);
                wild.PositionAfterShrinking(at);
                wild.VerticalRange(at);
                wild.EnsureRowVisible(at);
                wild.CellRect(4, at);
            }
            wild.HasCornerBox();
            const RowRange rows = wild.RowsToPaint(false);
            EXPECT_LE(0, rows.first);
            EXPECT_LE(rows.end, wild.rowCount);
        }
}

} // namespace

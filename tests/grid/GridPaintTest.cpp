// Pixels. The body begins at 22; row 0 lies at 22 to 41, row 1 at 42 to 61.
#include "tests/grid/GridTestSupport.h"

namespace
{

constexpr COLORREF kBack = RGB(250, 240, 230);
constexpr COLORREF kHeaderWhite = RGB(255, 255, 255);
constexpr COLORREF kLine = RGB(178, 178, 178);
constexpr COLORREF kBand = RGB(229, 229, 229);
constexpr COLORREF kSelected = RGB(216, 237, 242);

// Colours are easier to compare in a failure message as hexadecimal numbers.
#define EXPECT_COLOR(expected, actual)                                                             \
    EXPECT_EQ(static_cast<COLORREF>(expected), (actual)) << std::hex << (expected)

class GridPaintTest : public GridTest
{
protected:
    GridPaintTest()
    {
        grid.body->backColor = kBack;
        // Without smoothing, so that a text's pixels have its very colour.
        plainFont.CreateFont(12, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                             NONANTIALIASED_QUALITY, 0, "宋体");
        host.font = plainFont;
    }

    int TextWidth(const char* text)
    {
        SIZE size = {};
        const HGDIOBJ old = SelectObject(grid.body->bodyDC, plainFont);
        GetTextExtentPoint32A(grid.body->bodyDC, text, static_cast<int>(strlen(text)), &size);
        SelectObject(grid.body->bodyDC, old);
        return size.cx;
    }

    /// Copies a piece of a surface after a fresh paint.
    std::vector<COLORREF> SurfacePixels(HDC surface, const CRect& place)
    {
        PaintNow();
        std::vector<COLORREF> pixels;
        for (int y = place.top; y < place.bottom; ++y)
            for (int x = place.left; x < place.right; ++x)
                pixels.push_back(GetPixel(surface, x, y));
        return pixels;
    }

    std::vector<COLORREF> BodyPixels(const CRect& place)
    {
        return SurfacePixels(grid.body->bodyDC, place);
    }

    std::vector<COLORREF> HeaderPixels(const CRect& place)
    {
        return SurfacePixels(grid.body->headerDC, place);
    }

    int CountBodyPixels(const CRect& place, COLORREF color)
    {
        const auto pixels = BodyPixels(place);
        return static_cast<int>(std::count(pixels.begin(), pixels.end(), color));
    }

    CFont plainFont;
};

TEST_F(GridPaintTest, HeaderCellsAreWhiteWithALineBelowAndAtTheRight)
{
    AddColumns({100, 60});
    // From one pixel right of the cell's left edge.
    EXPECT_COLOR(kBack, PixelAt(0, 2));
    EXPECT_COLOR(kHeaderWhite, PixelAt(1, 0));
    EXPECT_COLOR(kHeaderWhite, PixelAt(1, 20));
    EXPECT_COLOR(kHeaderWhite, PixelAt(99, 2));
    // The line below.
    EXPECT_COLOR(kBack, PixelAt(0, 21));
    EXPECT_COLOR(kLine, PixelAt(1, 21));
    EXPECT_COLOR(kLine, PixelAt(99, 21));
    // The line at the right, in the gap before the next cell, from the bottom edge to the top row.
    for (int y = 0; y <= 21; ++y)
        EXPECT_COLOR(kLine, PixelAt(100, y)) << y;
    EXPECT_COLOR(kHeaderWhite, PixelAt(101, 2));
    EXPECT_COLOR(kLine, PixelAt(160, 2));
    // Right of the columns.
    EXPECT_COLOR(kBack, PixelAt(161, 2));
    EXPECT_COLOR(kBack, PixelAt(161, 21));
    EXPECT_COLOR(kBack, PixelAt(50, 22));
}

TEST_F(GridPaintTest, HeaderTextIsInTheGridsColour)
{
    grid.textColor = RGB(0, 0, 255);
    grid.AddColumn("合约", 100, kCentred, kCentred, nullptr, kTextColumn);
    const auto pixels = HeaderPixels(CRect(4, 0, 97, 21));
    EXPECT_LT(5, std::count(pixels.begin(), pixels.end(), RGB(0, 0, 255)));
}

TEST_F(GridPaintTest, SelectedRowIsFilledAsWideAsTheColumns)
{
    FillStored({100, 60}, 3);
    grid.DeleteAllRows();
    for (int row = 0; row < 3; ++row)
        grid.AddRow("");
    grid.body->currentRow = 1;
    EXPECT_COLOR(kBack, PixelAt(5, 42)); // the first pixel row of a row stays
    EXPECT_COLOR(kSelected, PixelAt(0, 43));
    EXPECT_COLOR(kSelected, PixelAt(159, 61));
    EXPECT_COLOR(kBack, PixelAt(160, 50));
    EXPECT_COLOR(kBack, PixelAt(5, 62));

    grid.body->scrollX = 30;
    EXPECT_COLOR(kSelected, PixelAt(129, 50));
    EXPECT_COLOR(kBack, PixelAt(130, 50));
}

TEST_F(GridPaintTest, GridLinesBandOddRowsAndFrameCells)
{
    FillOwnerData({100, 60}, 4);
    EXPECT_COLOR(kBack, PixelAt(50, 50));

    grid.body->gridLines = true;
    EXPECT_COLOR(kBack, PixelAt(50, 30));
    EXPECT_COLOR(kBand, PixelAt(0, 43));
    EXPECT_COLOR(kBand, PixelAt(159, 61));
    EXPECT_COLOR(kBack, PixelAt(161, 50));
    EXPECT_COLOR(kBack, PixelAt(50, 70));
    // Below each cell, in the first pixel row of the next one.
    for (const int y : {42, 62, 82, 102})
    {
        EXPECT_COLOR(kLine, PixelAt(0, y)) << y;
        EXPECT_COLOR(kLine, PixelAt(160, y)) << y;
        EXPECT_COLOR(kBack, PixelAt(161, y)) << y;
    }
    // At the right of each cell.
    for (int y = 22; y <= 102; ++y)
    {
        EXPECT_COLOR(kLine, PixelAt(100, y)) << y;
        EXPECT_COLOR(kLine, PixelAt(160, y)) << y;
    }
    EXPECT_COLOR(kBack, PixelAt(100, 103));

    grid.body->currentRow = 3; // the highlight goes before the band
    EXPECT_COLOR(kSelected, PixelAt(50, 90));
    EXPECT_COLOR(kLine, PixelAt(100, 90));
}

struct RowBackCall
{
    int row;
    CRect rect;
};

std::vector<RowBackCall> rowBackCalls;
CWnd* rowBackParent = nullptr;

void RememberRow(int row, HDC, RECT* rect, CWnd* parent)
{
    rowBackCalls.push_back({row, *rect});
    rowBackParent = parent;
}

TEST_F(GridPaintTest, RowPainterGetsEveryRowDownToTheBottomButTheCurrentOne)
{
    FillOwnerData({100, 400}, 100);
    grid.body->paintRowBack = COwerDrawListView::PaintRowBack;
    PaintNow(); // nothing is set behind it yet

    grid.rowPaintProc = RememberRow;
    grid.body->scrollY = 60;
    grid.body->scrollX = 7;
    grid.body->currentRow = 5;
    rowBackCalls.clear();
    PaintNow();
    EXPECT_EQ(&host, rowBackParent);
    ASSERT_LT(5u, rowBackCalls.size());
    const int width = grid.body->right;
    for (size_t i = 0; i < rowBackCalls.size(); ++i)
    {
        const int row = static_cast<int>(i < 5 ? i : i + 1);
        EXPECT_EQ(row, rowBackCalls[i].row);
        EXPECT_EQ(CRect(7, row * 20 - 60, 7 + width, row * 20 - 40), rowBackCalls[i].rect);
    }
    // The last one begins less than a row below the area.
    const int bottom = grid.body->bottom;
    EXPECT_LT(rowBackCalls.back().rect.top, bottom + 20);
    EXPECT_GE(rowBackCalls.back().rect.top + 20, bottom + 20);
}

struct CellCall
{
    HDC dc;
    int row;
    int column;
    CRect rect;
    HFONT boldFont;
    CWnd* parent;
    COwerDrawListView* grid;
};

void RememberCell(HDC dc, int row, int column, RECT* rect, HFONT boldFont, CWnd* parent,
                  void* userData, COwerDrawListView* grid)
{
    static_cast<std::vector<CellCall>*>(userData)->push_back(
        {dc, row, column, *rect, boldFont, parent, grid});
}

TEST_F(GridPaintTest, OwnerDataCellsAreThePagesToPaint)
{
    FillOwnerData({100, 60}, 2);
    std::vector<CellCall> calls;
    grid.userData = &calls;
    grid.cellPaintProc = RememberCell;
    PaintNow();
    ASSERT_EQ(4u, calls.size());
    const CellCall& last = calls[3];
    EXPECT_EQ(grid.body->bodyDC, last.dc);
    EXPECT_EQ(1, last.row);
    EXPECT_EQ(1, last.column);
    EXPECT_EQ(CRect(102, 20, 160, 40), last.rect); // on the body surface, two pixels in
    EXPECT_EQ(grid.body->boldFont, last.boldFont);
    EXPECT_EQ(&host, last.parent);
    EXPECT_EQ(&grid, last.grid);
    EXPECT_EQ(1, calls[2].row);
    EXPECT_EQ(0, calls[2].column);
    EXPECT_EQ(CRect(2, 20, 100, 40), calls[2].rect);
}

struct OverlayPaint
{
    int x;
    int y;
    int column;
    int row;
    CRect rect;
    int state;
};

void RememberOverlay(HDC, int x, int y, int column, int row, RECT* rect, int* state, void* userData)
{
    static_cast<std::vector<OverlayPaint>*>(userData)->push_back(
        {x, y, column, row, *rect, *state});
    *state = 99; // counts for nothing while painting
}

TEST_F(GridPaintTest, OverlayIsToldWhichCellIsPressed)
{
    FillOwnerData({100, 60}, 2);
    std::vector<OverlayPaint> calls;
    grid.userData = &calls;
    grid.cellOverlayProc = RememberOverlay;
    PaintNow();
    ASSERT_EQ(4u, calls.size());
    for (const OverlayPaint& call : calls)
    {
        EXPECT_EQ(4, call.state);
        EXPECT_EQ(-1, call.x);
        EXPECT_EQ(-1 - 22, call.y);
    }

    grid.mouseState = 2;
    grid.pressedColumn = 1;
    grid.pressedRow = 0;
    grid.downX = 120;
    grid.downY = 30;
    calls.clear();
    PaintNow();
    ASSERT_EQ(4u, calls.size());
    EXPECT_EQ(4, calls[0].state);
    EXPECT_EQ(2, calls[1].state);
    EXPECT_EQ(4, calls[3].state);
    EXPECT_EQ(120, calls[1].x);
    EXPECT_EQ(30 - 22, calls[1].y);
    EXPECT_EQ(CRect(102, 0, 160, 20), calls[1].rect);
    EXPECT_EQ(2, grid.mouseState);
}

TEST_F(GridPaintTest, OnlyCellsInViewArePainted)
{
    FillOwnerData({100, 100, 100, 100, 100}, 100);
    std::vector<CellCall> calls;
    grid.userData = &calls;
    grid.cellPaintProc = RememberCell;
    grid.body->scrollX = 150;
    grid.body->scrollY = 510;
    PaintNow();
    std::vector<int> columns;
    for (const CellCall& call : calls)
    {
        EXPECT_LE(25, call.row); // its bottom edge is at 10
        EXPECT_LT(call.rect.top, grid.body->bottom + 20);
        if (call.row == 25)
            columns.push_back(call.column);
    }
    EXPECT_EQ((std::vector<int>{1, 2, 3, 4}), columns);
}

TEST_F(GridPaintTest, AMillionRowsPaintNoMoreCellsThanAHundred)
{
    std::vector<CellCall> calls;
    grid.userData = &calls;
    grid.cellPaintProc = RememberCell;
    FillOwnerData({100}, 100);
    size_t cells = 0;
    for (const int rows : {100, 10000, 1000000})
        for (const int top : {10, rows / 2, rows - 20})
        {
            grid.body->SetRowCount(rows);
            grid.body->scrollY = top * 20;
            calls.clear();
            PaintNow();
            if (!cells)
                cells = calls.size();
            EXPECT_EQ(cells, calls.size()) << rows << ' ' << top;
            EXPECT_EQ(top - 1, calls.front().row);
        }
}

TEST_F(GridPaintTest, StoredCellsHaveABackgroundOneSmallerAllRound)
{
    FillStored({100, 60}, 1);
    grid.SetCellText(0, 1, "");
    grid.SetCellBackColor(0, 1, RGB(10, 20, 30));
    EXPECT_COLOR(kBack, PixelAt(100, 30));
    EXPECT_COLOR(RGB(10, 20, 30), PixelAt(101, 23));
    EXPECT_COLOR(RGB(10, 20, 30), PixelAt(158, 40));
    EXPECT_COLOR(kBack, PixelAt(159, 30));
    EXPECT_COLOR(kBack, PixelAt(130, 22));
    EXPECT_COLOR(kBack, PixelAt(130, 41));

    grid.SetCellBackColor(0, 1, 0x1000000);
    EXPECT_COLOR(kBack, PixelAt(130, 30));
}

TEST_F(GridPaintTest, StoredCellsRememberWhereTheyWerePainted)
{
    FillStored({100, 60}, 30);
    grid.body->scrollY = 20;
    PaintNow();
    const GridRect rect = grid.GetCell(2, 1)->rect;
    EXPECT_EQ(100, rect.left);
    EXPECT_EQ(20, rect.top);
    EXPECT_EQ(160, rect.right);
    EXPECT_EQ(40, rect.bottom);
}

TEST_F(GridPaintTest, StoredTextHasItsColourOrTheGrids)
{
    FillStored({100}, 2);
    const CRect first(3, 0, 97, 20);
    const CRect second(3, 20, 97, 40);
    EXPECT_LT(0, CountBodyPixels(first, RGB(85, 85, 85)));
    grid.SetCellTextColor(0, 0, RGB(200, 0, 0));
    EXPECT_LT(0, CountBodyPixels(first, RGB(200, 0, 0)));
    EXPECT_EQ(0, CountBodyPixels(first, RGB(85, 85, 85)));
    EXPECT_EQ(0, CountBodyPixels(second, RGB(200, 0, 0)));
    grid.SetCellTextColor(0, 0, 0xFFFFFF);
    EXPECT_LT(0, CountBodyPixels(first, 0xFFFFFF));
}

TEST_F(GridPaintTest, StoredTextInACellThatTheRowGrewByIsBlack)
{
    FillStored({50}, 1);
    AddColumns({100});
    grid.textColor = RGB(0, 0, 255);
    grid.SetCellText(0, 1, "text");
    const CRect grown(53, 0, 147, 20);
    EXPECT_LT(0, CountBodyPixels(grown, RGB(0, 0, 0)));
    EXPECT_EQ(0, CountBodyPixels(grown, RGB(0, 0, 255)));
    EXPECT_LT(0, CountBodyPixels(CRect(3, 0, 47, 20), RGB(0, 0, 255)));
}

TEST_F(GridPaintTest, UsesTheParentsFontWhereThereIsOne)
{
    FillStored({100}, 1);
    const CRect cell(3, 0, 97, 20);
    host.font = nullptr;
    const auto own = BodyPixels(cell);
    const auto ownHeader = HeaderPixels(cell);
    CFont large;
    large.CreateFont(20, 0, 0, 0, 700, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "宋体");
    host.font = large;
    EXPECT_NE(own, BodyPixels(cell));
    EXPECT_NE(ownHeader, HeaderPixels(cell));
    host.font = nullptr;
    EXPECT_EQ(own, BodyPixels(cell));
    EXPECT_EQ(ownHeader, HeaderPixels(cell));
}

/// Two cells of the same width, one with a long text and one with the text that it must come to.
TEST_F(GridPaintTest, TextTooWideEndsInDots)
{
    AddColumns({100});
    grid.AddRow("这是一个太长的文本无法显示");
    grid.AddRow("");
    PaintNow();

    const int sample = TextWidth("试");
    const int kept = 94 / sample - 3;
    ASSERT_LT(0, kept);
    const std::string shown = std::string(grid.GetCell(0, 0)->text).substr(0, 2 * kept) + "...";
    grid.SetCellText(1, 0, shown.c_str());
    grid.SetCellTextColor(1, 0, 0x1000000);
    EXPECT_EQ(BodyPixels(CRect(0, 0, 100, 20)), BodyPixels(CRect(0, 20, 100, 40)));
    EXPECT_LT(0, CountBodyPixels(CRect(0, 0, 100, 20), RGB(85, 85, 85)));

    // In a cell as narrow as three sample characters only the dots are left.
    grid.body->columnWidths[0] = 6 + 3 * sample;
    grid.SetCellText(1, 0, "...");
    EXPECT_EQ(BodyPixels(CRect(0, 0, 60, 20)), BodyPixels(CRect(0, 20, 60, 40)));
    EXPECT_LT(0, CountBodyPixels(CRect(0, 0, 60, 20), RGB(85, 85, 85)));
}

TEST_F(GridPaintTest, TextThatFitsIsLeftWhole)
{
    AddColumns({100});
    grid.AddRow("买卖");
    const int width = TextWidth("买卖");
    grid.body->columnWidths[0] = width + 6;
    const int whole = CountBodyPixels(CRect(0, 0, width + 6, 20), RGB(85, 85, 85));
    grid.body->columnWidths[0] = width + 5;
    const int cut = CountBodyPixels(CRect(0, 0, width + 5, 20), RGB(85, 85, 85));
    EXPECT_LT(cut, whole / 2);
}

TEST_F(GridPaintTest, CheckBoxShowsTheLeftHalfWhenChecked)
{
    const COLORREF checkedColor = RGB(0, 200, 0);
    const COLORREF uncheckedColor = RGB(200, 0, 0);
    const HBITMAP strip = MakeCheckStrip(12, 10, checkedColor, uncheckedColor);
    grid.AddColumn("on", 100, kCentred, kCentred, strip, kCheckColumn);
    grid.AddRow("");
    grid.SetCellTextColor(0, 0, 0x1000000);
    const CRect box(44, 5, 56, 15);
    const CRect cell(0, 0, 100, 20);
    EXPECT_EQ(120, CountBodyPixels(box, uncheckedColor));
    grid.SetCellCheck(0, 0, 1);
    EXPECT_EQ(120, CountBodyPixels(box, checkedColor));
    EXPECT_EQ(120, CountBodyPixels(cell, checkedColor));

    grid.SetCellText(0, 0, "text"); // shown instead of the box
    EXPECT_EQ(0, CountBodyPixels(cell, checkedColor));
    EXPECT_LT(0, CountBodyPixels(cell, RGB(85, 85, 85)));
    DeleteObject(strip);
}

TEST_F(GridPaintTest, CheckColumnWithoutABitmapShowsNothing)
{
    grid.AddColumn("on", 100, kCentred, kCentred, nullptr, kCheckColumn);
    grid.AddRow("");
    EXPECT_EQ(100 * 20, CountBodyPixels(CRect(0, 0, 100, 20), kBack));
}

TEST_F(GridPaintTest, AGridNarrowerThanTwentyPixelsShowsNothingNew)
{
    FillStored({100}, 3);
    const COLORREF before = RGB(1, 2, 3);
    grid.SetWindowPos(nullptr, 0, 0, 19, 200, SWP_NOMOVE);
    grid.ShowScrollBar(SB_BOTH, FALSE);
    PaintNow();
    CClientDC dc(&grid);
    dc.FillSolidRect(0, 0, 19, 200, before);
    EXPECT_COLOR(before, PixelAt(10, 30));
    grid.SetWindowPos(nullptr, 0, 0, 20, 200, SWP_NOMOVE);
    grid.ShowScrollBar(SB_BOTH, FALSE);
    EXPECT_COLOR(kBack, PixelAt(10, 100));
}

TEST_F(GridPaintTest, ErasingDrawsNothing)
{
    CClientDC dc(&grid);
    dc.FillSolidRect(0, 0, 300, 200, RGB(1, 2, 3));
    EXPECT_EQ(1, grid.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)));
    EXPECT_COLOR(RGB(1, 2, 3), dc.GetPixel(10, 30));
}

TEST_F(GridPaintTest, CornerBoxBetweenTheBarsIsWhite)
{
    FillOwnerData({400}, 100);
    ASSERT_TRUE(HasBar(WS_HSCROLL));
    ASSERT_TRUE(HasBar(WS_VSCROLL));
    grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    CWindowDC dc(&grid);
    const int width = GetSystemMetrics(SM_CXHSCROLL);
    const int height = GetSystemMetrics(SM_CXVSCROLL);
    for (int y = 200 - height; y < 200; ++y)
        for (int x = 300 - width; x < 300; ++x)
            ASSERT_EQ(kHeaderWhite, dc.GetPixel(x, y)) << x << ' ' << y;
    EXPECT_NE(kHeaderWhite, dc.GetPixel(300 - width - 2, 199)); // the bars stay
    EXPECT_NE(kHeaderWhite, dc.GetPixel(299, 200 - height - 2));
}

TEST_F(GridPaintTest, OneBarLeavesNoCornerBox)
{
    FillOwnerData({100}, 100);
    ASSERT_FALSE(HasBar(WS_HSCROLL));
    ASSERT_TRUE(HasBar(WS_VSCROLL));
    grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    CWindowDC dc(&grid);
    int otherThanWhite = 0; // the bar's lower arrow
    for (int y = 200 - GetSystemMetrics(SM_CXVSCROLL); y < 200; ++y)
        for (int x = 300 - GetSystemMetrics(SM_CXHSCROLL); x < 300; ++x)
            otherThanWhite += dc.GetPixel(x, y) != kHeaderWhite;
    EXPECT_LT(50, otherThanWhite);
}

TEST_F(GridPaintTest, OuterFrameIsDrawnOnTheParent)
{
    FillStored({400}, 100); // the bars count in
    grid.DrawOuterFrame(12345);
    CClientDC dc(&host);
    for (const auto& [x, y] : {std::pair(9, 9), {310, 9}, {9, 210}, {310, 210}, {150, 9}, {9, 100}})
        EXPECT_COLOR(kLine, dc.GetPixel(x, y)) << x << ' ' << y;
    EXPECT_NE(kLine, dc.GetPixel(8, 100));
    EXPECT_NE(kLine, dc.GetPixel(311, 100));
}

TEST_F(GridPaintTest, WidthsInPercentFollowTheArea)
{
    FillOwnerData({25, 75}, 3);
    grid.body->widthMode = kWidthPercent;
    grid.body->gridLines = true;
    EXPECT_COLOR(kLine, PixelAt(75, 30));
    EXPECT_COLOR(kLine, PixelAt(75, 5));
    EXPECT_COLOR(kBack, PixelAt(200, 30));
    grid.body->currentRow = 0;
    EXPECT_COLOR(kSelected, PixelAt(99, 30)); // as wide as the sum of the percentages
    EXPECT_COLOR(kBack, PixelAt(100, 30));
}

} // namespace

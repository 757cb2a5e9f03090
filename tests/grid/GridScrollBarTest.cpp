// Scroll bars: what they show, and what their messages do.
#include "tests/grid/GridTestSupport.h"

#include <climits>

namespace
{

class GridBarsTest : public GridTest
{
protected:
    void Scroll(UINT message, int code, int position = 0)
    {
        grid.SendMessage(message, MAKEWPARAM(code, position));
    }

    int Down(int code, int position = 0)
    {
        Scroll(WM_VSCROLL, code, position);
        EXPECT_EQ(grid.body->scrollY, grid.GetScrollPos(SB_VERT) * grid.body->rowHeight);
        return grid.GetScrollPos(SB_VERT);
    }

    int Across(int code, int position = 0)
    {
        Scroll(WM_HSCROLL, code, position);
        EXPECT_EQ(grid.body->scrollX, grid.GetScrollPos(SB_HORZ));
        return grid.GetScrollPos(SB_HORZ);
    }

    int Wheel(int delta)
    {
        grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, delta));
        EXPECT_EQ(grid.body->scrollY, grid.GetScrollPos(SB_VERT) * grid.body->rowHeight);
        return grid.GetScrollPos(SB_VERT);
    }

    CRect Client()
    {
        CRect client;
        grid.GetClientRect(&client);
        return client;
    }
};

TEST_F(GridBarsTest, ShowNothingToScrollWhereAllFits)
{
    FillStored({100, 60}, 9);
    EXPECT_FALSE(HasBar(WS_HSCROLL));
    EXPECT_FALSE(HasBar(WS_VSCROLL));
    EXPECT_EQ(300, Client().right);
}

TEST_F(GridBarsTest, ShowColumnsInPixelsAndRowsInRows)
{
    FillStored({200, 200}, 50);
    EXPECT_TRUE(HasBar(WS_HSCROLL));
    EXPECT_TRUE(HasBar(WS_VSCROLL));
    const CRect client = Client();
    EXPECT_LT(client.right, 300);
    EXPECT_LT(client.bottom, 200);
    EXPECT_EQ(0, Bar(SB_HORZ).nMin);
    EXPECT_EQ(400, Bar(SB_HORZ).nMax);
    EXPECT_EQ(static_cast<UINT>(client.right), Bar(SB_HORZ).nPage);
    EXPECT_EQ(0, Bar(SB_VERT).nMin);
    EXPECT_EQ(50, Bar(SB_VERT).nMax);
    EXPECT_EQ(static_cast<UINT>(client.bottom / 20), Bar(SB_VERT).nPage);
    EXPECT_EQ(client.right, grid.body->right);
    EXPECT_EQ(client.bottom, grid.body->bottom);
}

TEST_F(GridBarsTest, GoBackToTheLeftWhenAllColumnsFit)
{
    FillStored({200, 200}, 3);
    Across(SB_RIGHT);
    EXPECT_LT(0, grid.body->scrollX);
    grid.SetWindowPos(nullptr, 0, 0, 500, 200, SWP_NOMOVE);
    EXPECT_EQ(0, grid.body->scrollX);
    EXPECT_EQ(0, grid.GetScrollPos(SB_HORZ));
    EXPECT_FALSE(HasBar(WS_HSCROLL));
}

/// Sizes, widths and numbers of rows around the points where one bar makes the other one come.
TEST_F(GridBarsTest, SettleWhateverTheSize)
{
    AddColumns({240});
    grid.ShowWindow(SW_HIDE); // much faster
    for (const int rows : {0, 7, 8, 9, 30})
    {
        grid.DeleteAllRows();
        for (int row = 0; row < rows; ++row)
            grid.AddRow("x");
        for (const int width : {200, 223, 224, 225, 239, 240, 241, 255, 256, 257, 258, 300})
            for (int height = 155; height <= 215; height += 3)
            {
                grid.received[WM_SIZE] = 0;
                grid.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE);
                ASSERT_LE(grid.received[WM_SIZE], 4) << width << 'x' << height << ' ' << rows;

                const CRect client = Client();
                ASSERT_EQ(static_cast<UINT>(std::min(client.right, 241l)), Bar(SB_HORZ).nPage);
                ASSERT_EQ(240, Bar(SB_HORZ).nMax);
                ASSERT_EQ(static_cast<UINT>(std::min(client.bottom / 20, rows + 1l)),
                          Bar(SB_VERT).nPage);
                ASSERT_EQ(rows, Bar(SB_VERT).nMax);
                // A bar is there exactly when its page does not cover its range.
                ASSERT_EQ(client.right < 241, HasBar(WS_HSCROLL)) << width << 'x' << height;
                ASSERT_EQ(client.bottom / 20 < rows + 1, HasBar(WS_VSCROLL));
                ASSERT_EQ(client.right, grid.body->right);
                ASSERT_EQ(client.bottom, grid.body->bottom);

                grid.received[WM_SIZE] = 0;
                grid.UpdateScrollBars();
                ASSERT_EQ(0, grid.received[WM_SIZE]) << width << 'x' << height;
            }
    }
}

TEST_F(GridBarsTest, AreLeftAloneWithoutAnArea)
{
    FillStored({200, 200}, 50);
    grid.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE);
    const SCROLLINFO before = Bar(SB_VERT);
    grid.AddRow("x");
    EXPECT_EQ(before.nMax, Bar(SB_VERT).nMax);
}

TEST_F(GridBarsTest, TakeARowNumberForPixelsWhenTheListHasShrunkUnderTheView)
{
    FillOwnerData({100}, 100);
    Down(SB_BOTTOM);
    EXPECT_EQ(91, grid.GetScrollPos(SB_VERT));

    grid.body->SetRowCount(50);
    grid.UpdateScrollBars();
    EXPECT_EQ(50 - 200 / 20, grid.body->scrollY); // forty pixels, where forty rows lie behind
    EXPECT_EQ(40, grid.GetScrollPos(SB_VERT));

    grid.body->SetRowCount(3);
    grid.UpdateScrollBars();
    EXPECT_EQ(0, grid.body->scrollY);
    EXPECT_EQ(0, grid.GetScrollPos(SB_VERT));
}

TEST_F(GridBarsTest, ScrollRowsByTheirMessages)
{
    FillOwnerData({100}, 100);
    EXPECT_EQ(91, grid.GetScrollLimit(SB_VERT));
    EXPECT_EQ(0, Down(SB_LINEUP));
    EXPECT_EQ(1, Down(SB_LINEDOWN));
    EXPECT_EQ(2, Down(SB_LINEDOWN));
    EXPECT_EQ(1, Down(SB_LINEUP));
    EXPECT_EQ(33, Down(SB_THUMBTRACK, 33));
    EXPECT_EQ(44, Down(SB_THUMBPOSITION, 44));
    EXPECT_EQ(44, Down(SB_ENDSCROLL));
    EXPECT_EQ(91, Down(SB_BOTTOM));
    EXPECT_EQ(91, Down(SB_LINEDOWN));
    EXPECT_EQ(91, Down(SB_PAGEDOWN));
    EXPECT_EQ(0, Down(SB_TOP));
    EXPECT_EQ(0, Down(SB_PAGEUP));
}

TEST_F(GridBarsTest, PageRowsByTheWidthInPixels)
{
    FillOwnerData({1000}, 1000);
    const int width = Client().right;
    EXPECT_EQ(width, Down(SB_PAGEDOWN));
    EXPECT_EQ(2 * width, Down(SB_PAGEDOWN));
    EXPECT_EQ(width, Down(SB_PAGEUP));
    Down(SB_THUMBPOSITION, 900);
    EXPECT_EQ(grid.GetScrollLimit(SB_VERT), Down(SB_PAGEDOWN));
    Down(SB_THUMBPOSITION, 5);
    EXPECT_EQ(0, Down(SB_PAGEUP));
}

TEST_F(GridBarsTest, ScrollColumnsByTheirMessages)
{
    FillOwnerData({2000}, 1);
    const int limit = 2000 - 300 + 1;
    EXPECT_EQ(limit, grid.GetScrollLimit(SB_HORZ));
    EXPECT_EQ(1, Across(SB_LINERIGHT));
    EXPECT_EQ(301, Across(SB_PAGERIGHT));
    EXPECT_EQ(1, Across(SB_PAGELEFT));
    EXPECT_EQ(0, Across(SB_PAGELEFT));
    EXPECT_EQ(0, Across(SB_LINELEFT));
    EXPECT_EQ(77, Across(SB_THUMBTRACK, 77));
    EXPECT_EQ(76, Across(SB_LINELEFT));
    EXPECT_EQ(limit, Across(SB_RIGHT));
    EXPECT_EQ(limit, Across(SB_LINERIGHT));
    EXPECT_EQ(0, Across(SB_LEFT));
}

TEST_F(GridBarsTest, FollowTheThumbWhereverTheMessagePutsIt)
{
    FillOwnerData({100}, 100);
    Scroll(WM_VSCROLL, SB_THUMBTRACK, 500);
    EXPECT_EQ(500 * 20, grid.body->scrollY);
    PaintNow();
    Scroll(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(grid.GetScrollPos(SB_VERT) * 20, grid.body->scrollY);
}

TEST_F(GridBarsTest, TurnStoredRowsByTheWheelAsWell)
{
    FillStored({100}, 100);
    EXPECT_EQ(1, Wheel(-120));
    EXPECT_EQ(0, Wheel(120));
}

TEST_F(GridBarsTest, TurnOneRowANotch)
{
    FillOwnerData({100}, 100);
    EXPECT_EQ(0, Wheel(120));
    EXPECT_EQ(1, Wheel(-120));
    EXPECT_EQ(2, Wheel(-1));
    EXPECT_EQ(3, Wheel(-1200));
    EXPECT_EQ(2, Wheel(1));
    EXPECT_EQ(2, Wheel(0));
    Down(SB_BOTTOM);
    EXPECT_EQ(91, Wheel(-120));
    EXPECT_TRUE(Take().empty());
}

int paintedCells = 0;

void CountCell(HDC, int, int, RECT*, HFONT, CWnd*, void*, COwerDrawListView*)
{
    ++paintedCells;
}

TEST_F(GridBarsTest, PaintAtOnce)
{
    FillOwnerData({400}, 100);
    grid.cellPaintProc = CountCell;
    for (const UINT message : {WM_HSCROLL, WM_VSCROLL})
    {
        paintedCells = 0;
        Scroll(message, SB_LINEDOWN);
        EXPECT_LT(0, paintedCells);
    }
    paintedCells = 0;
    Wheel(-120);
    EXPECT_LT(0, paintedCells);
}

TEST_F(GridBarsTest, GoToTheEnd)
{
    FillOwnerData({100}, 100);
    grid.ScrollToEnd();
    EXPECT_EQ(91, grid.GetScrollPos(SB_VERT));
    EXPECT_EQ(91 * 20, grid.body->scrollY);
    EXPECT_TRUE(grid.GetUpdateRect(nullptr));
    grid.body->SetRowCount(2);
    grid.UpdateScrollBars();
    grid.ScrollToEnd();
    EXPECT_EQ(0, grid.GetScrollPos(SB_VERT));
    EXPECT_EQ(0, grid.body->scrollY);
}

TEST_F(GridBarsTest, FollowADraggedColumn)
{
    FillStored({100, 100}, 2);
    SendMouse(WM_LBUTTONDOWN, 200, 10);
    SendMouse(WM_MOUSEMOVE, 280, 10);
    EXPECT_EQ(280, Bar(SB_HORZ).nMax);
    SendMouse(WM_MOUSEMOVE, 310, 10);
    EXPECT_TRUE(HasBar(WS_HSCROLL));
    SendMouse(WM_LBUTTONUP, 310, 10);
}

} // namespace

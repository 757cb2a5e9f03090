// Parents that change the grid, or end its window, in the midst of what it tells them.
//
// Row 0 lies at 22 to 41, row 1 at 42 to 61; column 0 ends at 100, column 1 at 160.
#include "tests/grid/GridTestSupport.h"

#include <functional>

namespace
{

/// A parent that answers some of what it is told.
class AnsweringHost : public GridHost
{
public:
    std::map<GridEvent, std::function<void()>> answers;
    std::function<void()> answerToNotification;
    int told = 0; ///< how often it answered

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const auto answer =
            message == kGridMessage ? answers.find(static_cast<GridEvent>(wParam)) : answers.end();
        if (answer != answers.end())
            Answer(answer->second);
        else if (answerToNotification && message == WM_NOTIFY)
            Answer(answerToNotification);
        return GridHost::WindowProc(message, wParam, lParam);
    }

private:
    void Answer(const std::function<void()>& answer)
    {
        ++told;
        answer();
    }
};

class GridLifeTest : public testing::Test
{
protected:
    GridLifeTest()
    {
        grid.Create(CRect(0, 0, 200, 200), &host, 1);
        grid.ShowWindow(SW_SHOW);
        grid.body->rowHeight = 20;
        for (const int width : {100, 60})
            grid.AddColumn("a", width, 0, 0, nullptr, kTextColumn);
        for (int row = 0; row < 3; ++row)
        {
            grid.AddRow("text");
            grid.SetCellEditable(row, 0, 1);
        }
        grid.RedrawWindow();
        PointAt(grid, 50, 30);
    }
    ~GridLifeTest() override
    {
        host.answers.clear();
        grid.DestroyWindow();
        ReleaseRealButton();
    }

    void EndAt(GridEvent event)
    {
        host.answers[event] = [this]
        {
            grid.DestroyWindow();
        };
    }

    void BecomeOwnerData() { grid.ownerData = 1; }

    /// An edit that is there and has not got the focus, whose end is thus told by nothing earlier.
    void ShowEditWithoutFocus()
    {
        grid.editColumn = grid.editRow = 0;
        grid.edit.ShowWindow(SW_SHOW);
    }

    void Send(UINT message, int x, int y) { grid.SendMessage(message, 0, MAKELPARAM(x, y)); }

    void ExpectEnded()
    {
        EXPECT_EQ(1, host.told);
        EXPECT_EQ(nullptr, grid.m_hWnd);
        EXPECT_EQ(nullptr, grid.body);
        EXPECT_EQ(nullptr, grid.edit.m_hWnd);
        EXPECT_FALSE(grid.IsEditing());
    }

    std::string EditText()
    {
        char text[300] = "";
        grid.edit.GetWindowText(text, sizeof(text));
        return text;
    }

    AnsweringHost host;
    COwerDrawListView grid;
};

TEST_F(GridLifeTest, EndOfAnEditIsToldOnceWhenTheParentTakesTheFocus)
{
    host.answers[GridEvent::EditEnded] = [this]
    {
        host.SetFocus();
    };
    grid.BeginEdit(0, 0, "new", 0, 0);
    grid.CommitEdit();
    EXPECT_EQ(1, host.told);
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(GridLifeTest, EndOfAnEditMayLeaveNoRowsForTheNext)
{
    host.answers[GridEvent::EditEnded] = [this]
    {
        grid.DeleteAllRows();
    };
    Send(WM_LBUTTONDOWN, 50, 30);
    EXPECT_TRUE(grid.IsEditing());
    Send(WM_LBUTTONDOWN, 50, 50);
    EXPECT_EQ(0, grid.GetRowCount());
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(GridLifeTest, EndOfAnEditMayRebuildTheRowsThatTheNextTextIsFrom)
{
    host.answers[GridEvent::EditEnded] = [this]
    {
        grid.DeleteAllRows();
        for (int row = 0; row < 3; ++row)
            grid.AddRow("rebuilt");
    };
    grid.BeginEdit(0, 0, "first", 0, 0);
    grid.BeginEdit(0, 1, grid.GetCell(1, 0)->text, 0, 0);
    EXPECT_EQ(1, host.told);
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ("text", EditText());
}

TEST_F(GridLifeTest, MayEndWhenAnEditLosesTheFocus)
{
    grid.BeginEdit(0, 0, "new", 0, 0);
    EndAt(GridEvent::EditEnded);
    host.SetFocus();
    ExpectEnded();
}

TEST_F(GridLifeTest, MayEndWhenAPressTakesTheFocusFromAnEdit)
{
    grid.BeginEdit(0, 0, "new", 0, 0);
    EndAt(GridEvent::EditEnded);
    Send(WM_LBUTTONDOWN, 120, 50);
    ExpectEnded();
}

TEST_F(GridLifeTest, MayEndWhenAPressOnACellEndsAnEdit)
{
    ShowEditWithoutFocus();
    EndAt(GridEvent::EditEnded);
    Send(WM_LBUTTONDOWN, 50, 50);
    ExpectEnded();
}

TEST_F(GridLifeTest, MayEndWhenAPressBesideTheCellsEndsAnEdit)
{
    ShowEditWithoutFocus();
    EndAt(GridEvent::EditEnded);
    Send(WM_LBUTTONDOWN, 180, 50);
    ExpectEnded();
}

TEST_F(GridLifeTest, MayEndWhenAnEditMakesRoomForTheNext)
{
    grid.BeginEdit(0, 0, "new", 0, 0);
    EndAt(GridEvent::EditEnded);
    grid.BeginEdit(0, 1, "next", 0, 0);
    ExpectEnded();
}

TEST_F(GridLifeTest, MayEndWhenAnOwnerDataEditMakesRoomForTheNext)
{
    BecomeOwnerData();
    grid.BeginEdit(0, 0, "new", 0, 0);
    EndAt(GridEvent::OwnerEditEnded);
    grid.BeginEdit(0, 1, "next", 0, 0);
    ExpectEnded();
}

TEST_F(GridLifeTest, MayEndAtTheReleaseOnACell)
{
    BecomeOwnerData();
    grid.cellOverlayProc = [](HDC, int, int, int, int, RECT*, int*, void*) {
    };
    EndAt(GridEvent::CellReleased);
    Send(WM_LBUTTONDOWN, 50, 30);
    Send(WM_LBUTTONUP, 50, 30);
    ExpectEnded();
}

TEST_F(GridLifeTest, MayEndAtTheNoticeOfADoubleClick)
{
    host.answerToNotification = [this]
    {
        grid.DestroyWindow();
    };
    Send(WM_LBUTTONDBLCLK, 50, 30);
    ExpectEnded();
}

TEST_F(GridLifeTest, MayEndAtTheNoticeOfARightClick)
{
    host.answerToNotification = [this]
    {
        grid.DestroyWindow();
    };
    Send(WM_RBUTTONUP, 50, 30);
    ExpectEnded();
    MSG message; // nothing has been posted to no window
    EXPECT_FALSE(PeekMessage(&message, nullptr, kGridMessage, kGridMessage, PM_REMOVE));
}

void EndWindow(HDC, int, int, int, int, RECT*, int*, void* userData)
{
    static_cast<COwerDrawListView*>(userData)->DestroyWindow();
}

TEST_F(GridLifeTest, MayEndInTheOverlay)
{
    BecomeOwnerData();
    grid.userData = &grid;
    grid.cellOverlayProc = EndWindow;
    Send(WM_LBUTTONDOWN, 50, 30);
    EXPECT_EQ(nullptr, grid.body);
}

TEST_F(GridLifeTest, MayEndInTheOverlayAtTheRelease)
{
    BecomeOwnerData();
    grid.userData = &grid;
    grid.cellOverlayProc = [](HDC, int, int, int, int, RECT*, int*, void*) {
    };
    Send(WM_LBUTTONDOWN, 50, 30);
    grid.cellOverlayProc = EndWindow;
    Send(WM_LBUTTONUP, 50, 30);
    EXPECT_EQ(nullptr, grid.body);
}

} // namespace

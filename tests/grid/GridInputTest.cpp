// What the grid tells its parent, and in which order, for each thing that a mouse can do.
//
// Row 0 lies at 22 to 41, row 1 at 42 to 61 and so on; column 0 ends at 100, column 1 at 160.
#include "tests/grid/GridTestSupport.h"

#include <climits>

namespace
{

class StoredInputTest : public GridTest
{
protected:
    StoredInputTest() { FillStored({100, 60}, 5); }
};

TEST_F(StoredInputTest, PressAndReleaseOnACell)
{
    SendMouse(WM_LBUTTONDOWN, 110, 50);
    EXPECT_EQ(Told{"post 7"}, Take());
    EXPECT_EQ(1, grid.body->currentRow);
    EXPECT_EQ(grid.m_hWnd, GetCapture());
    EXPECT_EQ(grid.m_hWnd, GetFocus());
    EXPECT_EQ(110, grid.downX);
    EXPECT_EQ(50, grid.downY);
    EXPECT_TRUE(grid.GetUpdateRect(nullptr));
    EXPECT_EQ(4, grid.mouseState);

    SendMouse(WM_LBUTTONUP, 20, 90);
    EXPECT_EQ(Told{}, Take());
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ(-1, grid.downX);
    EXPECT_EQ(-1, grid.downY);
    EXPECT_EQ(0, grid.clickColumn);
    EXPECT_EQ(3, grid.clickRow);
    EXPECT_EQ(1, grid.body->currentRow);
}

TEST_F(StoredInputTest, PressRightOfTheColumns)
{
    Click(200, 50);
    EXPECT_EQ(Told{}, Take());
    EXPECT_EQ(1, grid.body->currentRow);
    EXPECT_EQ(-1, grid.clickColumn);
}

TEST_F(StoredInputTest, PressRightBelowTheLastRow)
{
    Click(50, 50);
    Take();
    EXPECT_EQ(RGB(216, 237, 242), PixelAt(150, 59));
    Click(50, 130);
    EXPECT_EQ(Told{}, Take());
    EXPECT_EQ(5, grid.body->currentRow);
    EXPECT_EQ(RGB(255, 255, 255), PixelAt(150, 59)); // no row is highlighted
    Click(50, 150);
    EXPECT_EQ(5, grid.body->currentRow);
    EXPECT_EQ(Told{}, Take());
}

TEST_F(StoredInputTest, PressOnACellThatTheRowLacks)
{
    AddColumns({50});
    Click(180, 50);
    EXPECT_EQ(Told{}, Take());
}

TEST_F(StoredInputTest, RightPressAndRelease)
{
    SendMouse(WM_RBUTTONDOWN, 50, 70);
    EXPECT_EQ(Told{"post 7"}, Take());
    EXPECT_EQ(2, grid.body->currentRow);
    SendMouse(WM_RBUTTONUP, 50, 70);
    EXPECT_EQ((Told{"notify -5", "post 8"}), Take());
    EXPECT_EQ(0, grid.clickColumn);
    EXPECT_EQ(2, grid.clickRow);
}

TEST_F(StoredInputTest, DoubleClick)
{
    SendMouse(WM_LBUTTONDBLCLK, 50, 90);
    EXPECT_EQ(Told{"notify -3"}, Take());
    EXPECT_EQ(3, grid.body->currentRow);
    SendMouse(WM_LBUTTONDBLCLK, 250, 130); // the blank right below counts as a row
    EXPECT_EQ(Told{"notify -3"}, Take());
    SendMouse(WM_LBUTTONDBLCLK, 50, 170);
    EXPECT_EQ(Told{}, Take());
    SendMouse(WM_LBUTTONDBLCLK, 50, 10);
    EXPECT_EQ(Told{}, Take());
}

TEST_F(StoredInputTest, DoubleClickOnADividerBeginsADragThatTheReleaseEnds)
{
    SendMouse(WM_LBUTTONDBLCLK, 100, 10);
    EXPECT_TRUE(grid.body->resizing);
    SendMouse(WM_LBUTTONUP, 100, 10);
    EXPECT_FALSE(grid.body->resizing);
    EXPECT_EQ(Told{}, Take());
}

TEST_F(StoredInputTest, ClickInTheHeader)
{
    SendMouse(WM_LBUTTONDOWN, 130, 10);
    EXPECT_EQ(Told{}, Take());
    SendMouse(WM_LBUTTONUP, 130, 10);
    EXPECT_EQ(Told{"post 3"}, Take());
    EXPECT_EQ(1, grid.headerClickColumn);
    EXPECT_EQ(-1, grid.body->currentRow);

    Click(200, 10); // right of the columns
    EXPECT_EQ(Told{}, Take());
    EXPECT_EQ(1, grid.headerClickColumn);
}

TEST_F(StoredInputTest, RightClickInTheHeader)
{
    SendMouse(WM_RBUTTONDOWN, 130, 10);
    SendMouse(WM_RBUTTONUP, 130, 10);
    EXPECT_EQ((Told{"notify -5", "post 8"}), Take());
    EXPECT_EQ(-1, grid.headerClickColumn);
}

TEST_F(StoredInputTest, PressInTheHeaderOfScrolledRowsReachesTheCellBehind)
{
    grid.body->SetScrollY(40);
    SendMouse(WM_LBUTTONDOWN, 130, 10);
    EXPECT_EQ(Told{"post 7"}, Take());
    EXPECT_EQ(-1, grid.body->currentRow);
    SendMouse(WM_LBUTTONUP, 130, 10);
    EXPECT_EQ(Told{"post 3"}, Take());
    EXPECT_EQ(1, grid.headerClickColumn);
}

TEST_F(StoredInputTest, RightPressOnADividerBeginsADrag)
{
    SendMouse(WM_RBUTTONDOWN, 100, 10);
    EXPECT_EQ(0, grid.body->resizeColumn);
    SendMouse(WM_MOUSEMOVE, 130, 10);
    EXPECT_EQ(130, grid.body->columnWidths[0]);
    SendMouse(WM_RBUTTONUP, 130, 10);
    EXPECT_FALSE(grid.body->resizing);
    EXPECT_EQ((Told{"notify -5", "post 8"}), Take());
}

TEST_F(StoredInputTest, PressThreePixelsBesideADividerIsAHeaderClick)
{
    for (const int x : {97, 103})
    {
        SendMouse(WM_LBUTTONDOWN, x, 10);
        EXPECT_FALSE(grid.body->resizing) << x;
        SendMouse(WM_LBUTTONUP, x, 10);
        EXPECT_EQ(Told{"post 3"}, Take());
        EXPECT_EQ(x > 100, grid.headerClickColumn);
    }
}

TEST_F(StoredInputTest, DividerDrag)
{
    for (const int x : {98, 102})
    {
        SendMouse(WM_LBUTTONDOWN, x, 10);
        EXPECT_TRUE(grid.body->resizing);
        EXPECT_EQ(0, grid.body->resizeColumn);
        SendMouse(WM_LBUTTONUP, x, 10);
        EXPECT_FALSE(grid.body->resizing);
        EXPECT_EQ(-1, grid.body->resizeColumn);
        EXPECT_EQ(Told{}, Take()); // no header click
    }

    SendMouse(WM_LBUTTONDOWN, 100, 10);
    SendMouse(WM_MOUSEMOVE, 130, 10);
    EXPECT_EQ(130, grid.body->columnWidths[0]);
    EXPECT_EQ(100, grid.columns[0].width);
    EXPECT_TRUE(grid.GetUpdateRect(nullptr));
    SendMouse(WM_MOUSEMOVE, 11, 10);
    EXPECT_EQ(11, grid.body->columnWidths[0]);
    SendMouse(WM_MOUSEMOVE, 10, 10);
    SendMouse(WM_MOUSEMOVE, -500, 10);
    EXPECT_EQ(11, grid.body->columnWidths[0]);
    SendMouse(WM_LBUTTONUP, -500, 10);
    EXPECT_EQ(Told{}, Take());
    SendMouse(WM_MOUSEMOVE, 80, 10);
    EXPECT_EQ(11, grid.body->columnWidths[0]);
}

TEST_F(StoredInputTest, TheSizingShapeShowsOverADivider)
{
    const HCURSOR sizing = LoadCursor(nullptr, IDC_SIZEWE);
    const HCURSOR arrow = LoadCursor(nullptr, IDC_ARROW);
    const auto cursorAfter = [&](UINT message, int x, int y)
    {
        SetCursor(arrow);
        SendMouse(message, x, y);
        return GetCursor();
    };
    EXPECT_EQ(sizing, cursorAfter(WM_MOUSEMOVE, 101, 10));
    EXPECT_EQ(arrow, cursorAfter(WM_MOUSEMOVE, 104, 10));
    EXPECT_EQ(arrow, cursorAfter(WM_MOUSEMOVE, 101, 30));
    EXPECT_EQ(sizing, cursorAfter(WM_LBUTTONDOWN, 101, 10));
    EXPECT_EQ(sizing, cursorAfter(WM_MOUSEMOVE, 140, 30)); // dragging
    EXPECT_EQ(arrow, cursorAfter(WM_MOUSEMOVE, 5, 30));    // no width to take
}

TEST_F(StoredInputTest, HoverTellsOfEachNewCell)
{
    SendMouse(WM_MOUSEMOVE, 50, 50);
    EXPECT_EQ(Told{"post 5"}, Take());
    EXPECT_EQ(0, grid.hoverColumn);
    EXPECT_EQ(1, grid.hoverRow);
    EXPECT_EQ(0, grid.firstMove);
    EXPECT_LT(GetTickCount() - grid.lastMoveTick, 10000u);
    SendMouse(WM_MOUSEMOVE, 60, 55);
    EXPECT_EQ(Told{}, Take());
    SendMouse(WM_MOUSEMOVE, 120, 55);
    EXPECT_EQ(Told{"post 5"}, Take());
    SendMouse(WM_MOUSEMOVE, 250, 55);
    EXPECT_EQ(Told{"post 5"}, Take());
    EXPECT_EQ(-1, grid.hoverColumn);
    EXPECT_EQ(-1, grid.hoverRow);
    SendMouse(WM_MOUSEMOVE, 250, 5);
    EXPECT_EQ(Told{}, Take());
}

// ---- Check boxes

class CheckBoxTest : public GridTest
{
protected:
    CheckBoxTest()
    {
        strip = MakeCheckStrip(12, 10, RGB(0, 200, 0), RGB(200, 0, 0));
        grid.AddColumn("on", 100, kCentred, kCentred, strip, kCheckColumn);
        grid.AddRow("");
        grid.AddRow("text");
        PaintNow();
    }
    ~CheckBoxTest() override { DeleteObject(strip); }

    HBITMAP strip;
};

TEST_F(CheckBoxTest, ToggleWithinTheBoxEdgesIncluded)
{
    // The box is drawn at 44 to 56 and 5 to 15 of the body, and pressed a row's height further down.
    const GridRect box = grid.GetCell(0, 0)->checkRect;
    EXPECT_EQ(44, box.left);
    EXPECT_EQ(5, box.top);
    EXPECT_EQ(56, box.right);
    EXPECT_EQ(15, box.bottom);

    int checked = 0;
    for (const auto& [x, y] : {std::pair(44, 25), {56, 35}, {50, 30}})
    {
        Click(x, y);
        EXPECT_EQ((Told{"post 9", "post 7"}), Take());
        checked = !checked;
        EXPECT_EQ(checked, grid.GetCellCheck(0, 0));
        EXPECT_TRUE(grid.GetUpdateRect(nullptr));
    }
    for (const auto& [x, y] : {std::pair(43, 30), {57, 30}, {50, 24}, {50, 36}})
    {
        Click(x, y);
        EXPECT_EQ(Told{"post 7"}, Take());
        EXPECT_EQ(checked, grid.GetCellCheck(0, 0));
    }
}

TEST_F(CheckBoxTest, ToggleAnyStateToUncheckedAndBack)
{
    grid.SetCellCheck(0, 0, 7);
    Click(50, 30);
    EXPECT_EQ(0, grid.GetCellCheck(0, 0));
    Click(50, 30);
    EXPECT_EQ(1, grid.GetCellCheck(0, 0));
}

TEST_F(CheckBoxTest, ToggleNothingBesideABox)
{
    Click(50, 50); // the cell with text has no box
    EXPECT_EQ(Told{"post 7"}, Take());
    EXPECT_EQ(0, grid.GetCellCheck(1, 0));
}

TEST_F(CheckBoxTest, ToggleNothingInOwnerData)
{
    grid.ownerData = 1;
    Click(50, 30);
    EXPECT_EQ((Told{"post 0", "post 1"}), Take());
    EXPECT_EQ(0, grid.rows.Find(0, 0)->checked);
}

// ---- Editing stored cells

class StoredEditTest : public StoredInputTest
{
protected:
    StoredEditTest() { grid.SetCellEditable(1, 0, 1); }

    CRect EditPlace()
    {
        CRect place;
        grid.edit.GetWindowRect(&place);
        grid.ScreenToClient(&place);
        return place;
    }

    std::string EditText()
    {
        char text[300] = "";
        grid.edit.GetWindowText(text, sizeof(text));
        return text;
    }

    void ExpectNotEditing()
    {
        EXPECT_FALSE(grid.IsEditing());
        EXPECT_EQ(0u, grid.edit.GetStyle() & WS_VISIBLE);
    }
};

TEST_F(StoredEditTest, PressOpensTheEdit)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    EXPECT_EQ(Told{"post 7"}, Take());
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(0, grid.editColumn);
    EXPECT_EQ(1, grid.editRow);
    EXPECT_EQ(0, grid.edit.column);
    EXPECT_EQ(1, grid.edit.row);
    EXPECT_EQ("1,0", EditText());
    EXPECT_EQ(grid.edit.m_hWnd, GetFocus());
    // Down from the body's 20 to 40 by the row height of 20, although the header is 22 high.
    EXPECT_EQ(CRect(0, 40, 100, 60), EditPlace());
}

TEST_F(StoredEditTest, TheRightButtonOpensItAsWell)
{
    SendMouse(WM_RBUTTONDOWN, 50, 50);
    EXPECT_EQ(Told{"post 7"}, Take());
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(StoredEditTest, PressElsewhereStoresTheText)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    Take();
    grid.edit.SetWindowText("new text");
    SendMouse(WM_LBUTTONDOWN, 120, 90);
    EXPECT_EQ((Told{"send 6 (0,1)", "post 7"}), Take());
    EXPECT_STREQ("new text", grid.GetCell(1, 0)->text);
    ExpectNotEditing();
    EXPECT_EQ(grid.m_hWnd, GetFocus());
}

TEST_F(StoredEditTest, PressOnAnotherEditableCellMovesTheEdit)
{
    grid.SetCellEditable(3, 1, 1);
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    grid.edit.SetWindowText("first");
    SendMouse(WM_LBUTTONDOWN, 120, 90);
    EXPECT_EQ((Told{"send 6 (0,1)", "post 7", "post 7"}), Take());
    EXPECT_STREQ("first", grid.GetCell(1, 0)->text);
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(1, grid.editColumn);
    EXPECT_EQ(3, grid.editRow);
    EXPECT_EQ("3,1", EditText());
    EXPECT_EQ(grid.edit.m_hWnd, GetFocus());
}

TEST_F(StoredEditTest, LossOfFocusEndsTheEdit)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    Take();
    grid.edit.SetWindowText("left");
    host.SetFocus();
    EXPECT_EQ(Told{"send 6 (0,1)"}, Take());
    EXPECT_STREQ("left", grid.GetCell(1, 0)->text);
    ExpectNotEditing();
    grid.CommitEdit();
    EXPECT_EQ(Told{}, Take());
}

TEST_F(StoredEditTest, PressOnTheFrameEndsTheEdit)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    Take();
    grid.SendMessage(WM_NCLBUTTONDOWN, HTBORDER, 0);
    EXPECT_EQ(Told{"send 6 (0,1)"}, Take());
    ExpectNotEditing();
}

TEST_F(StoredEditTest, PressInTheHeaderEndsTheEdit)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    Take();
    SendMouse(WM_LBUTTONDOWN, 50, 5);
    EXPECT_EQ(Told{"send 6 (0,1)"}, Take());
    ExpectNotEditing();
}

TEST_F(StoredEditTest, LongTextIsCutAtAWholeCharacter)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    const std::string kept(254, 'x');
    grid.edit.SetWindowText((kept + "买卖").c_str());
    grid.CommitEdit();
    EXPECT_EQ(kept, grid.GetCell(1, 0)->text);
}

TEST_F(StoredEditTest, TextOfACellThatIsNotEditableIsNotStored)
{
    grid.BeginEdit(1, 2, "typed", 3, -5);
    EXPECT_EQ(Told{}, Take());
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ("typed", EditText());
    EXPECT_EQ(CRect(103, 62, 155, 82), EditPlace());
    EXPECT_EQ(grid.edit.m_hWnd, GetFocus());
    grid.CommitEdit();
    EXPECT_EQ(Told{"send 6 (1,2)"}, Take());
    EXPECT_STREQ("2,1", grid.GetCell(2, 1)->text);
}

TEST_F(StoredEditTest, RowsThatGoDuringAnEditTakeNoText)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    grid.DeleteAllRows();
    grid.CommitEdit();
    EXPECT_EQ((Told{"send 6 (0,1)", "post 7"}), Take());
    ExpectNotEditing();
}

TEST_F(StoredEditTest, EndsOnAHiddenPageAsWell)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    Take();
    grid.edit.SetWindowText("typed");
    host.ShowWindow(SW_HIDE);
    grid.CommitEdit();
    EXPECT_EQ(Told{"send 6 (0,1)"}, Take());
    EXPECT_STREQ("typed", grid.GetCell(1, 0)->text);
    ExpectNotEditing();
}

TEST_F(StoredEditTest, NoEditBeginsOnACellOutOfRange)
{
    for (const auto& [column, row] :
         {std::pair(-1, 1), {2, 1}, {INT_MAX, 1}, {0, -1}, {0, 5}, {0, INT_MAX}})
    {
        grid.BeginEdit(0, 0, "running", 0, 0);
        grid.BeginEdit(column, row, "text", 0, 0);
        EXPECT_EQ(Told{"send 6 (0,0)"}, Take()); // the running one has ended
        ExpectNotEditing();
    }
}

TEST_F(StoredEditTest, EndOfTheGridEndsTheEdit)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    grid.DestroyWindow();
    EXPECT_EQ(nullptr, grid.edit.m_hWnd);
    grid.CommitEdit();
}

TEST_F(StoredEditTest, ThePressGoesOnInsideTheEdit)
{
    PointAt(grid, 50, 50);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    for (int i = 0; i < 100 && GetCapture() != grid.edit.m_hWnd; ++i)
    {
        PumpPending();
        Sleep(10);
    }
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(grid.edit.m_hWnd, GetCapture()); // it tracks the pressed button
}

// ---- The edit itself

TEST_F(StoredEditTest, CharactersReachTheEditOnlyWhenAccepted)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    grid.edit.SetWindowText("");
    grid.edit.SendMessage(WM_CHAR, 'a');
    grid.edit.acceptChars = FALSE;
    grid.edit.SendMessage(WM_CHAR, 'b');
    EXPECT_EQ("a", EditText());
    grid.edit.acceptChars = TRUE;
    grid.edit.SendMessage(WM_CHAR, 'c');
    EXPECT_EQ("ac", EditText());
}

bool menuSeen = false;

void CALLBACK CancelMenu(HWND, UINT, UINT_PTR, DWORD)
{
    constexpr char kMenuClass[] = "#32768";
    if (const HWND menu = FindWindowA(kMenuClass, nullptr))
    {
        menuSeen = true;
        ::PostMessageA(menu, WM_KEYDOWN, VK_ESCAPE, 0);
        EndMenu();
    }
}

TEST_F(StoredEditTest, TheEditHasNoContextMenu)
{
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, CancelMenu);
    grid.edit.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(grid.edit.m_hWnd),
                          MAKELPARAM(100, 100));
    KillTimer(nullptr, timer);
    EXPECT_FALSE(menuSeen);
}

TEST(LtEdit, IsAnOrdinaryEditOutsideAGrid)
{
    GridHost host;
    CLtEdit edit;
    ASSERT_TRUE(edit.CreateEx(0, "EDIT", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &host, 1));
    edit.SetFocus();
    host.SetFocus();
    EXPECT_TRUE(edit.IsWindowVisible());
}

// ---- Owner data

struct OverlayCall
{
    HDC dc;
    int x;
    int y;
    int column;
    int row;
    CRect rect;
    int state;
};

struct Overlay
{
    std::vector<OverlayCall> calls;
    int stateAfterwards = 0; ///< 0 leaves it
};

void Observe(HDC bodyDC, int x, int y, int column, int row, RECT* rect, int* state, void* userData)
{
    auto* overlay = static_cast<Overlay*>(userData);
    overlay->calls.push_back({bodyDC, x, y, column, row, *rect, *state});
    if (overlay->stateAfterwards)
        *state = overlay->stateAfterwards;
}

class OwnerInputTest : public GridTest
{
protected:
    OwnerInputTest()
    {
        FillOwnerData({100, 60}, 5);
        grid.userData = &overlay;
    }

    void WatchPresses() { grid.cellOverlayProc = Observe; }

    Overlay overlay;
};

TEST_F(OwnerInputTest, PressAndReleaseOnACell)
{
    SendMouse(WM_LBUTTONDOWN, 110, 50);
    EXPECT_EQ((Told{"post 0", "post 1"}), Take());
    EXPECT_EQ(1, grid.clickColumn);
    EXPECT_EQ(1, grid.clickRow);
    EXPECT_EQ(1, grid.body->currentRow);
    EXPECT_EQ(4, grid.mouseState);
    SendMouse(WM_LBUTTONUP, 20, 90);
    EXPECT_EQ(Told{}, Take());
    EXPECT_EQ(0, grid.clickColumn);
    EXPECT_EQ(3, grid.clickRow);
}

TEST_F(OwnerInputTest, PressBesideTheCells)
{
    SendMouse(WM_LBUTTONDOWN, 250, 50); // right of the columns, on a row
    EXPECT_EQ(Told{"post 0"}, Take());
    SendMouse(WM_LBUTTONDOWN, 50, 130); // right below the last row
    EXPECT_EQ(Told{"post 0"}, Take());
    EXPECT_EQ(5, grid.body->currentRow);
    SendMouse(WM_LBUTTONDOWN, 50, 170);
    EXPECT_EQ(Told{}, Take());
    EXPECT_EQ(-1, grid.clickColumn);
}

TEST_F(OwnerInputTest, RightPressAndRelease)
{
    WatchPresses();
    SendMouse(WM_RBUTTONDOWN, 50, 50);
    EXPECT_EQ(Told{"post 0"}, Take());
    EXPECT_TRUE(overlay.calls.empty());
    EXPECT_EQ(-1, grid.clickColumn);
    SendMouse(WM_RBUTTONUP, 50, 50);
    EXPECT_EQ((Told{"notify -5", "post 8"}), Take());
}

TEST_F(OwnerInputTest, DoubleClick)
{
    SendMouse(WM_LBUTTONDBLCLK, 50, 90);
    EXPECT_EQ(Told{"notify -3"}, Take());
    EXPECT_EQ(3, grid.body->currentRow);
}

TEST_F(OwnerInputTest, ClickAndDragInTheHeader)
{
    Click(50, 10);
    EXPECT_EQ(Told{"post 3"}, Take());
    EXPECT_EQ(0, grid.headerClickColumn);
    SendMouse(WM_LBUTTONDOWN, 160, 10);
    SendMouse(WM_MOUSEMOVE, 180, 10);
    SendMouse(WM_LBUTTONUP, 180, 10);
    EXPECT_EQ(Told{}, Take());
    EXPECT_EQ(80, grid.body->columnWidths[1]);
}

TEST_F(OwnerInputTest, HoverTellsOfEachNewCell)
{
    SendMouse(WM_MOUSEMOVE, 50, 50);
    SendMouse(WM_MOUSEMOVE, 50, 70);
    EXPECT_EQ((Told{"post 5", "post 5"}), Take());
    EXPECT_EQ(2, grid.hoverRow);
}

TEST_F(OwnerInputTest, OverlaySeesPressAndRelease)
{
    WatchPresses();
    SendMouse(WM_LBUTTONDOWN, 110, 50);
    EXPECT_EQ((Told{"post 0", "post 1"}), Take());
    ASSERT_EQ(1u, overlay.calls.size());
    const OverlayCall press = overlay.calls[0];
    EXPECT_EQ(grid.body->bodyDC, press.dc);
    EXPECT_EQ(110, press.x);
    EXPECT_EQ(50, press.y);
    EXPECT_EQ(1, press.column);
    EXPECT_EQ(1, press.row);
    EXPECT_EQ(CRect(100, 42, 160, 62), press.rect);
    EXPECT_EQ(2, press.state);
    EXPECT_EQ(2, grid.mouseState);
    EXPECT_EQ(1, grid.pressedColumn);
    EXPECT_EQ(1, grid.pressedRow);
    EXPECT_EQ(CRect(100, 42, 160, 62), CRect(grid.pressedRect));

    SendMouse(WM_LBUTTONUP, 120, 55);
    EXPECT_EQ(Told{"send 4"}, Take());
    ASSERT_EQ(2u, overlay.calls.size());
    EXPECT_EQ(120, overlay.calls[1].x);
    EXPECT_EQ(3, overlay.calls[1].state);
    EXPECT_EQ(3, grid.mouseState);
    EXPECT_EQ(-1, grid.pressedColumn);
    EXPECT_EQ(-1, grid.pressedRow);
    EXPECT_TRUE(IsRectEmpty(&grid.pressedRect));
    EXPECT_TRUE(grid.GetUpdateRect(nullptr));
}

TEST_F(OwnerInputTest, ReleaseOnAnotherCellIsNoClick)
{
    WatchPresses();
    SendMouse(WM_LBUTTONDOWN, 110, 50);
    Take();
    SendMouse(WM_LBUTTONUP, 110, 70);
    EXPECT_EQ(Told{}, Take());
    EXPECT_EQ(2u, overlay.calls.size());
    EXPECT_EQ(3, grid.mouseState);
    EXPECT_EQ(-1, grid.pressedColumn);
    EXPECT_EQ(2, grid.clickRow);
}

TEST_F(OwnerInputTest, RightClickDuringAPressIsNotItsRelease)
{
    WatchPresses();
    SendMouse(WM_LBUTTONDOWN, 110, 50);
    SendMouse(WM_RBUTTONDOWN, 110, 50);
    Take();
    SendMouse(WM_RBUTTONUP, 110, 50);
    EXPECT_EQ((Told{"notify -5", "post 8"}), Take());
    EXPECT_EQ(1u, overlay.calls.size());
    EXPECT_EQ(2, grid.mouseState);
    EXPECT_EQ(1, grid.pressedRow);
    SendMouse(WM_LBUTTONUP, 110, 50);
    EXPECT_EQ(Told{"send 4"}, Take());
}

TEST_F(OwnerInputTest, PressOnTheFrameEndsTheEdit)
{
    grid.BeginEdit(1, 2, "typed", 0, 0);
    grid.SendMessage(WM_NCLBUTTONDOWN, HTBORDER, 0);
    EXPECT_EQ(Told{"send 2 (1,2)"}, Take());
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(OwnerInputTest, OverlayMayTakeTheClickBack)
{
    WatchPresses();
    SendMouse(WM_LBUTTONDOWN, 110, 50);
    Take();
    overlay.stateAfterwards = 4;
    SendMouse(WM_LBUTTONUP, 110, 50);
    EXPECT_EQ(Told{}, Take());
    EXPECT_EQ(4, grid.mouseState);
}

TEST_F(OwnerInputTest, ReleaseBesideTheCellsGoesIdle)
{
    WatchPresses();
    SendMouse(WM_LBUTTONDOWN, 110, 50);
    Take();
    SendMouse(WM_LBUTTONUP, 250, 50);
    EXPECT_EQ(Told{}, Take());
    EXPECT_EQ(4, grid.mouseState);
    EXPECT_TRUE(grid.GetUpdateRect(nullptr));
    EXPECT_EQ(1u, overlay.calls.size());
}

TEST_F(OwnerInputTest, ReleaseWithoutAPressGoesIdle)
{
    WatchPresses();
    Click(110, 50);
    EXPECT_EQ(3, grid.mouseState);
    SendMouse(WM_LBUTTONUP, 110, 50);
    EXPECT_EQ(4, grid.mouseState);
    PaintNow();
    SendMouse(WM_LBUTTONUP, 110, 50);
    EXPECT_EQ(4, grid.mouseState);
    EXPECT_FALSE(grid.GetUpdateRect(nullptr));
}

TEST_F(OwnerInputTest, ReleaseInTheHeaderEndsThePress)
{
    WatchPresses();
    SendMouse(WM_LBUTTONDOWN, 110, 50);
    Take();
    SendMouse(WM_LBUTTONUP, 130, 10);
    EXPECT_EQ(Told{"post 3"}, Take());
    EXPECT_EQ(3, grid.mouseState);
    EXPECT_EQ(-1, grid.pressedColumn);
    EXPECT_EQ(1, grid.headerClickColumn);
    Click(130, 10);
    EXPECT_EQ(Told{"post 3"}, Take());
    EXPECT_EQ(4, grid.mouseState);
}

TEST_F(OwnerInputTest, EditIsToldByItsOwnCode)
{
    grid.BeginEdit(1, 2, "typed", 0, 0);
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(1, grid.edit.column);
    EXPECT_EQ(2, grid.edit.row);
    SendMouse(WM_LBUTTONDOWN, 50, 50);
    EXPECT_EQ((Told{"send 2 (1,2)", "post 0", "post 1"}), Take());
    EXPECT_FALSE(grid.IsEditing());

    grid.BeginEdit(0, 0, "", 0, 0);
    grid.BeginEdit(1, 1, "", 0, 0);
    EXPECT_EQ(Told{"send 2 (0,0)"}, Take());
    host.SetFocus();
    EXPECT_EQ(Told{"send 2 (1,1)"}, Take());
}

TEST_F(OwnerInputTest, WheelTellsNothing)
{
    grid.body->SetRowCount(100);
    grid.UpdateScrollBars();
    grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120));
    EXPECT_EQ(20, grid.body->scrollY);
    EXPECT_EQ(Told{}, Take());
}

TEST_F(OwnerInputTest, FilteringOfKeysIsLeftToThePage)
{
    MSG message = {grid.m_hWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_FALSE(grid.PreTranslateMessage(&message));
}

} // namespace

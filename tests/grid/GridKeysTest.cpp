// The grid by keyboard, and what assistive software hears of it.
#include "skin/grid/GridKeys.h"
#include "tests/grid/GridTestSupport.h"

#include <objbase.h>
#include <oleacc.h>

namespace
{

VARIANT Child(long number)
{
    VARIANT child = {};
    child.vt = VT_I4;
    child.lVal = number;
    return child;
}

std::string TextOf(BSTR text)
{
    char narrow[512] = "";
    if (text)
        WideCharToMultiByte(936, 0, text, -1, narrow, sizeof(narrow), nullptr, nullptr);
    SysFreeString(text);
    return narrow;
}

class GridKeys : public GridTest
{
protected:
    /// Hands a key to the grid as a page does. @return whether the grid took it
    bool Press(UINT key)
    {
        MSG message = {};
        message.hwnd = grid;
        message.message = WM_KEYDOWN;
        message.wParam = key;
        return WorkGridByKey(grid, message);
    }

    int Row() const { return grid.body->currentRow; }
};

class GridAccessible : public GridKeys
{
protected:
    GridAccessible() { EXPECT_TRUE(SUCCEEDED(CoInitialize(nullptr))); }
    ~GridAccessible() override
    {
        if (object)
            object->Release();
        CoUninitialize();
    }

    void Ask()
    {
        ASSERT_EQ(S_OK, AccessibleObjectFromWindow(grid, OBJID_CLIENT, __uuidof(IAccessible),
                                                   reinterpret_cast<void**>(&object)));
    }

    std::string Name(long row) const
    {
        BSTR text = nullptr;
        EXPECT_EQ(S_OK, object->get_accName(Child(row), &text));
        return TextOf(text);
    }
    std::string Description(long row) const
    {
        BSTR text = nullptr;
        object->get_accDescription(Child(row), &text);
        return TextOf(text);
    }
    long State(long row) const
    {
        VARIANT state = {};
        EXPECT_EQ(S_OK, object->get_accState(Child(row), &state));
        return state.lVal;
    }

    IAccessible* object = nullptr;
};

} // namespace

TEST_F(GridKeys, MoveTheCurrentRow)
{
    FillStored({100, 100}, 50);
    EXPECT_TRUE(Press(VK_DOWN));
    EXPECT_EQ(0, Row());
    EXPECT_TRUE(Press(VK_DOWN));
    EXPECT_EQ(1, Row());
    EXPECT_TRUE(Press(VK_UP));
    EXPECT_TRUE(Press(VK_UP));
    EXPECT_EQ(0, Row());
    EXPECT_TRUE(Press(VK_END));
    EXPECT_EQ(49, Row());
    EXPECT_TRUE(Press(VK_DOWN));
    EXPECT_EQ(49, Row());
    EXPECT_TRUE(Press(VK_PRIOR));
    EXPECT_LT(Row(), 45);
    EXPECT_TRUE(Press(VK_HOME));
    EXPECT_EQ(0, Row());
    EXPECT_TRUE(Press(VK_NEXT));
    EXPECT_GT(Row(), 4);
    EXPECT_FALSE(Press('A'));
    EXPECT_FALSE(Press(VK_TAB));
    EXPECT_FALSE(Press(VK_ESCAPE));
}

TEST_F(GridKeys, KeepTheCurrentRowInView)
{
    FillStored({100, 100}, 50);
    // A header as high as a row, as the pages have it: only then the bar ends where the rows do.
    grid.body->SetHeaderHeight(20);
    grid.UpdateScrollBars();
    const auto isInView = [&]
    {
        RECT cell;
        grid.body->GetCellRect(&cell, 0, Row());
        return cell.top >= grid.body->headerHeight && cell.bottom <= grid.body->bottom;
    };
    for (const UINT key : {VK_END, VK_HOME, VK_NEXT, VK_NEXT, VK_PRIOR})
    {
        Press(key);
        EXPECT_TRUE(isInView()) << key;
    }
    for (int i = 0; i < 49; ++i)
    {
        Press(VK_DOWN);
        EXPECT_TRUE(isInView()) << Row();
        EXPECT_EQ(grid.GetFirstVisibleRow(), grid.GetScrollPos(SB_VERT));
    }
    EXPECT_EQ(49, Row());
}

TEST_F(GridKeys, PressTheCellThatTheyHaveComeTo)
{
    FillOwnerData({100, 100, 250}, 3);
    EXPECT_TRUE(Press(VK_RETURN));
    EXPECT_EQ(Told(), Take());
    Press(VK_DOWN);
    EXPECT_TRUE(Press(VK_RETURN));
    EXPECT_EQ((Told{"notify -3"}), Take());
    EXPECT_TRUE(Press(VK_SPACE));
    EXPECT_EQ((Told{"post 0", "post 1"}), Take());
    EXPECT_EQ(0, grid.clickColumn);
    EXPECT_EQ(0, grid.clickRow);
    Press(VK_DOWN);
    Press(VK_RIGHT);
    Press(VK_RIGHT);
    Press(VK_RIGHT);
    EXPECT_TRUE(Press(VK_F2));
    EXPECT_EQ(2, grid.clickColumn);
    EXPECT_EQ(1, grid.clickRow);
    Press(VK_LEFT);
    EXPECT_TRUE(Press(VK_SPACE));
    EXPECT_EQ(1, grid.clickColumn);
    // The last column does not fit beside the others: it has come into view and gone again.
    for (int i = 0; i < 5; ++i)
        Press(VK_LEFT);
    EXPECT_EQ(0, grid.keyColumn);
    EXPECT_EQ(0, grid.body->scrollX);
}

TEST_F(GridKeys, MarkTheirCellUntilTheMouseTakesOver)
{
    FillStored({100, 100}, 5);
    grid.SetFocus();
    Press(VK_DOWN);
    PaintNow();
    const auto isMarked = [&]
    {
        PaintNow();
        RECT cell;
        grid.body->GetCellRect(&cell, 1, 0);
        return PixelAt(cell.left + 20, cell.top + 1) != PixelAt(cell.left + 20, cell.top + 2) ||
               PixelAt(cell.left + 21, cell.top + 1) != PixelAt(cell.left + 21, cell.top + 2);
    };
    EXPECT_FALSE(isMarked());
    Press(VK_RIGHT);
    EXPECT_TRUE(isMarked());
    MSG press = {};
    press.hwnd = grid;
    press.message = WM_LBUTTONDOWN;
    EXPECT_FALSE(WorkGridByKey(grid, press));
    EXPECT_FALSE(isMarked());
}

TEST_F(GridKeys, LeaveAnEmptyGridAndControlsInItAlone)
{
    for (const UINT key : {VK_UP, VK_DOWN, VK_HOME, VK_END, VK_LEFT, VK_RIGHT, VK_RETURN})
        Press(key);
    EXPECT_EQ(-1, Row());
    FillStored({100}, 3);
    MSG message = {};
    message.hwnd = grid.edit;
    message.message = WM_KEYDOWN;
    message.wParam = VK_DOWN;
    EXPECT_FALSE(WorkGridByKey(grid, message));
    EXPECT_EQ(-1, Row());
}

TEST_F(GridAccessible, IsAListOfRows)
{
    FillStored({100, 100}, 3);
    grid.SetCellText(1, 0, "IF2403");
    grid.SetCellText(1, 1, "5手");
    Ask();
    long count = 0;
    EXPECT_EQ(S_OK, object->get_accChildCount(&count));
    EXPECT_EQ(3, count);
    VARIANT role = {};
    object->get_accRole(Child(0), &role);
    EXPECT_EQ(ROLE_SYSTEM_LIST, role.lVal);
    object->get_accRole(Child(2), &role);
    EXPECT_EQ(ROLE_SYSTEM_LISTITEM, role.lVal);
    EXPECT_EQ("IF2403", Name(2));
    EXPECT_EQ("1: 5手", Description(2));

    Press(VK_DOWN);
    Press(VK_DOWN);
    EXPECT_TRUE(State(2) & STATE_SYSTEM_SELECTED);
    EXPECT_FALSE(State(1) & STATE_SYSTEM_SELECTED);
    Press(VK_RIGHT);
    EXPECT_EQ("1: 5手", Name(2));
    EXPECT_EQ("0: IF2403", Description(2));
}

TEST_F(GridAccessible, TellsWhereItsRowsAre)
{
    FillStored({100, 100}, 50);
    Ask();
    CRect window;
    grid.GetWindowRect(&window);
    long left;
    long top;
    long width;
    long height;
    EXPECT_EQ(S_OK, object->accLocation(&left, &top, &width, &height, Child(2)));
    EXPECT_EQ(window.left, left);
    EXPECT_EQ(window.top + 22 + 20, top);
    EXPECT_EQ(20, height);
    VARIANT hit = {};
    EXPECT_EQ(S_OK, object->accHitTest(left + 5, top + 5, &hit));
    EXPECT_EQ(2, hit.lVal);
    EXPECT_EQ(S_OK, object->accHitTest(left + 5, window.top + 5, &hit));
    EXPECT_EQ(0, hit.lVal);
    EXPECT_FALSE(State(2) & STATE_SYSTEM_OFFSCREEN);
    EXPECT_TRUE(State(50) & STATE_SYSTEM_OFFSCREEN);
}

TEST_F(GridAccessible, RowsThatThePagePaintsHaveTheTextsThatItGives)
{
    FillOwnerData({100, 100}, 2);
    Ask();
    EXPECT_EQ("第2行", Name(2));
    EXPECT_EQ("", Description(2));
    grid.cellTextProc = [](int row, int column, void*)
    {
        return std::to_string(row) + "/" + std::to_string(column);
    };
    EXPECT_EQ("1/0", Name(2));
    EXPECT_EQ("1: 1/1", Description(2));
    EXPECT_EQ(S_OK, object->accDoDefaultAction(Child(2)));
    EXPECT_EQ(1, Row());
    EXPECT_EQ((Told{"notify -3", "post 0", "post 1"}), Take());
    EXPECT_EQ(S_OK, object->accSelect(SELFLAG_TAKESELECTION, Child(1)));
    EXPECT_EQ(0, Row());
}

TEST_F(GridAccessible, AnswersNoMoreOnceTheWindowIsGone)
{
    FillStored({100}, 2);
    Ask();
    grid.DestroyWindow();
    BSTR text = nullptr;
    EXPECT_TRUE(FAILED(object->get_accName(Child(1), &text)));
    long count = 0;
    EXPECT_TRUE(FAILED(object->get_accChildCount(&count)));
}

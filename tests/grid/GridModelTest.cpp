// Columns, stored rows and the life of the window.
#include "tests/grid/GridTestSupport.h"
#include "tests/mfc/GdiCount.h"

#include <climits>

namespace
{

/// Closes the message box that is about to open and keeps its texts.
class MessageBoxCloser
{
public:
    MessageBoxCloser()
    {
        text.clear();
        title.clear();
        timer = SetTimer(nullptr, 0, 20, Look);
    }
    ~MessageBoxCloser() { KillTimer(nullptr, timer); }

    static std::string text;
    static std::string title;

private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD)
    {
        EnumThreadWindows(GetCurrentThreadId(), CloseBox, 0);
    }

    static BOOL CALLBACK CloseBox(HWND window, LPARAM)
    {
        constexpr int kBoxText = 0xFFFF;
        char buffer[100] = "";
        if (!GetDlgItemTextA(window, kBoxText, buffer, sizeof(buffer)))
            return TRUE;
        text = buffer;
        GetWindowTextA(window, buffer, sizeof(buffer));
        title = buffer;
        EndDialog(window, IDOK);
        return FALSE;
    }

    UINT_PTR timer;
};

std::string MessageBoxCloser::text;
std::string MessageBoxCloser::title;

TEST(GridClass, IsRegisteredByTheFirstGrid)
{
    const COwerDrawListView grid;
    WNDCLASSA registered = {};
    ASSERT_TRUE(GetClassInfoA(AfxGetInstanceHandle(), "OWERLISTVIEW", &registered));
    EXPECT_EQ(11u, registered.style);
    EXPECT_EQ(reinterpret_cast<HBRUSH>(16), registered.hbrBackground);
    EXPECT_EQ(LoadCursor(nullptr, IDC_ARROW), registered.hCursor);
    EXPECT_EQ(0, registered.cbWndExtra);
    EXPECT_EQ(0, registered.cbClsExtra);
    EXPECT_EQ(nullptr, registered.lpszMenuName);
    EXPECT_TRUE(RegisterOwerListClass());
}

TEST(GridWithoutWindow, IgnoresEverything)
{
    COwerDrawListView grid;
    grid.AddColumn("a", 50, 0, 0, nullptr, kTextColumn);
    EXPECT_TRUE(grid.columns.empty());
    EXPECT_EQ(0, grid.GetRowCount());
    EXPECT_EQ(0, grid.GetFirstVisibleRow());
    EXPECT_EQ(-1, grid.AddRow("text"));
    grid.ClearColumns();
    grid.DeleteRow(0);
    grid.DeleteAllRows();
    grid.UpdateScrollBars();
    grid.ScrollToEnd();
    grid.DrawOuterFrame(0);
    grid.BeginEdit(0, 0, "text", 0, 0);
    EXPECT_FALSE(grid.IsEditing());
    grid.CommitEdit();
    int column = 7;
    int row = 7;
    grid.HitTestCell(&column, &row, 5, 5);
    EXPECT_EQ(-1, column);
    EXPECT_EQ(-1, row);
    EXPECT_EQ(-1, grid.HitTestHeader(5, 5));
}

TEST(GridWithoutWindow, HasTheInitialState)
{
    const COwerDrawListView grid;
    EXPECT_EQ(nullptr, grid.body);
    EXPECT_EQ(0, grid.ownerData);
    EXPECT_EQ(1, grid.firstMove);
    EXPECT_EQ(0u, grid.lastMoveTick);
    EXPECT_EQ(nullptr, grid.parent);
    EXPECT_EQ(-1, grid.pressedColumn);
    EXPECT_EQ(-1, grid.pressedRow);
    EXPECT_EQ(-1, grid.downX);
    EXPECT_EQ(-1, grid.downY);
    EXPECT_EQ(4, grid.mouseState);
    EXPECT_EQ(-1, grid.clickColumn);
    EXPECT_EQ(-1, grid.clickRow);
    EXPECT_EQ(-1, grid.headerClickColumn);
    EXPECT_EQ(-1, grid.hoverColumn);
    EXPECT_EQ(-1, grid.hoverRow);
    EXPECT_EQ(RGB(255, 255, 0), grid.highlightColor);
    EXPECT_EQ(RGB(85, 85, 85), grid.textColor);
    EXPECT_EQ(-1, grid.edit.column);
    EXPECT_EQ(-1, grid.edit.row);
    EXPECT_EQ(1, grid.edit.acceptChars);
}

TEST(GridWithoutWindow, TellsTheUserWhenItCannotBeMade)
{
    CWnd noParent;
    COwerDrawListView grid;
    const MessageBoxCloser closer;
    EXPECT_EQ(FALSE, grid.Create(CRect(0, 0, 10, 10), &noParent, 1));
    EXPECT_EQ("CREATE FAILE", MessageBoxCloser::text);
    EXPECT_EQ(nullptr, grid.parent);

    const std::string title = MessageBoxCloser::title;
    ::MessageBoxA(nullptr, "box without a title", nullptr, MB_OK);
    EXPECT_EQ("box without a title", MessageBoxCloser::text);
    EXPECT_EQ(MessageBoxCloser::title, title);
}

/// Notes the style that it asks for: bars that are not needed are gone once the window is there.
class StyleNotingGrid : public COwerDrawListView
{
public:
    DWORD style = 0;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override
    {
        style = create.style;
        return COwerDrawListView::PreCreateWindow(create);
    }
};

TEST_F(GridTest, IsCreatedHiddenWithBothBars)
{
    StyleNotingGrid other;
    EXPECT_EQ(1, other.Create(CRect(0, 0, 100, 100), &host, 4711));
    EXPECT_EQ(0x40300000u, other.style);
    EXPECT_EQ(4711u, other.ctrlId);
    EXPECT_EQ(&host, other.parent);
    EXPECT_EQ(4711, other.GetDlgCtrlID());
    EXPECT_FALSE(other.IsWindowVisible());
    EXPECT_NE(nullptr, other.clientDC);

    const OwerListBody& body = *other.body;
    EXPECT_EQ(&other, body.owner);
    EXPECT_EQ(other.clientDC, body.dc);
    EXPECT_EQ(22, body.rowHeight);
    EXPECT_EQ(22, body.headerHeight);
    EXPECT_EQ(2, body.widthMode);
    EXPECT_EQ(RGB(255, 255, 255), body.backColor);
    EXPECT_EQ(RGB(216, 237, 242), body.selectColor);
    EXPECT_EQ(RGB(155, 155, 155), body.lineColor);
    EXPECT_EQ(TRANSPARENT, GetBkMode(body.headerDC));
    EXPECT_EQ(TRANSPARENT, GetBkMode(body.bodyDC));
    EXPECT_EQ(nullptr, body.paintRowBack);
}

TEST_F(GridTest, UsesTheSerifFaceInTwelvePixelsOfThisScreen)
{
    const int height = static_cast<int>(GetDeviceCaps(grid.clientDC, LOGPIXELSY) / 96.0 * 12.0);
    for (const auto& [font, weight] : {std::pair(grid.body->font, 400), {grid.body->boldFont, 700}})
    {
        LOGFONTA shape = {};
        ASSERT_NE(0, GetObjectA(font, sizeof(shape), &shape));
        EXPECT_EQ(height, shape.lfHeight);
        EXPECT_EQ(weight, shape.lfWeight);
        EXPECT_EQ(1, shape.lfCharSet);
        EXPECT_EQ(0, shape.lfPitchAndFamily);
        EXPECT_STREQ("宋体", shape.lfFaceName);
    }
    grid.body->SetFonts("Tahoma", 20, 300, "黑体", 30, 900);
    LOGFONTA shape = {};
    GetObjectA(grid.body->font, sizeof(shape), &shape);
    EXPECT_EQ(20, shape.lfHeight);
    GetObjectA(grid.body->boldFont, sizeof(shape), &shape);
    EXPECT_EQ(900, shape.lfWeight);
}

TEST_F(GridTest, HasAHiddenEditOfItsOwn)
{
    char className[20];
    GetClassNameA(grid.edit.m_hWnd, className, sizeof(className));
    EXPECT_STRCASEEQ("EDIT", className);
    EXPECT_EQ(grid.m_hWnd, ::GetParent(grid.edit.m_hWnd));
    EXPECT_EQ(0, grid.edit.GetDlgCtrlID());
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | ES_RIGHT),
              grid.edit.GetStyle() & (WS_CHILD | WS_VISIBLE | ES_RIGHT));
    EXPECT_NE(0u, grid.edit.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_FALSE(grid.IsEditing());

    LOGFONTA shape = {};
    GetObjectA(reinterpret_cast<HFONT>(grid.edit.SendMessage(WM_GETFONT)), sizeof(shape), &shape);
    EXPECT_EQ(12, shape.lfHeight);
    EXPECT_EQ(0, shape.lfWidth);
    EXPECT_EQ(400, shape.lfWeight);
    EXPECT_EQ(1, shape.lfCharSet);
    EXPECT_STREQ("宋体", shape.lfFaceName);
}

TEST_F(GridTest, TakesItsSizeFromTheWindow)
{
    EXPECT_EQ(300, grid.body->right);
    EXPECT_EQ(200, grid.body->bottom);
    EXPECT_EQ(0, grid.body->left);
    EXPECT_EQ(0, grid.body->top);
    for (const HBITMAP surface : {grid.body->bodyBitmap, grid.body->headerBitmap})
    {
        DIBSECTION section = {};
        ASSERT_EQ(static_cast<int>(sizeof(section)),
                  GetObjectA(surface, sizeof(section), &section));
        EXPECT_EQ(24, section.dsBm.bmBitsPixel);
        EXPECT_EQ(300, section.dsBm.bmWidth);
        EXPECT_EQ(surface == grid.body->bodyBitmap ? 200 : 22, section.dsBmih.biHeight);
    }
}

TEST_F(GridTest, KeepsItsSurfacesWhenOnlyMoved)
{
    const HBITMAP surface = grid.body->bodyBitmap;
    grid.body->Resize(5, 6, 300, 200);
    EXPECT_EQ(surface, grid.body->bodyBitmap);
    EXPECT_EQ(5, grid.body->left);
    EXPECT_EQ(206, grid.body->bottom);
}

TEST_F(GridTest, ReplacesTheHeaderSurfaceForAnotherHeight)
{
    grid.body->SetHeaderHeight(30);
    EXPECT_EQ(30, grid.body->headerHeight);
    BITMAP bitmap = {};
    GetObjectA(grid.body->headerBitmap, sizeof(bitmap), &bitmap);
    EXPECT_EQ(30, bitmap.bmHeight);
    EXPECT_EQ(300, bitmap.bmWidth);
    for (const int height : {0, -5, INT_MAX, INT_MIN})
    {
        grid.body->SetHeaderHeight(height);
        EXPECT_EQ(nullptr, grid.body->headerBitmap);
        PaintNow();
    }
}

TEST_F(GridTest, HasColumnsInStepWithTheirWidths)
{
    const std::string longTitle(300, 'x');
    grid.AddColumn("合约", 80, 37, 36, nullptr, kTextColumn);
    grid.AddColumn(longTitle.c_str(), -5, 0, 0, nullptr, kCheckColumn);
    ASSERT_EQ(2u, grid.columns.size());
    EXPECT_STREQ("合约", grid.columns[0].title);
    EXPECT_EQ(80, grid.columns[0].width);
    EXPECT_EQ(37u, grid.columns[0].headerFormat);
    EXPECT_EQ(36u, grid.columns[0].cellFormat);
    EXPECT_EQ(0, grid.columns[0].type);
    EXPECT_EQ(255u, strlen(grid.columns[1].title));
    EXPECT_EQ(1, grid.columns[1].type);
    EXPECT_EQ(2, grid.body->columnWidths.count);
    EXPECT_EQ(80, grid.body->columnWidths[0]);
    EXPECT_EQ(75, Bar(SB_HORZ).nMax);

    grid.ClearColumns();
    EXPECT_TRUE(grid.columns.empty());
    EXPECT_EQ(0, grid.body->columnWidths.count);
    EXPECT_EQ(0, Bar(SB_HORZ).nMax);
}

TEST_F(GridTest, AddsNoRowWithoutColumns)
{
    EXPECT_EQ(-1, grid.AddRow("text"));
    EXPECT_EQ(0, grid.GetRowCount());
    EXPECT_EQ(0, grid.rows.Count());
}

TEST_F(GridTest, AddsRowsAtTheEnd)
{
    AddColumns({50, 50});
    EXPECT_EQ(0, grid.AddRow("first"));
    EXPECT_EQ(1, grid.AddRow("second"));
    EXPECT_EQ(2, grid.GetRowCount());
    EXPECT_STREQ("second", grid.GetCell(1, 0)->text);
    EXPECT_EQ(0x1000000u, grid.GetCell(1, 1)->textColor);
    EXPECT_EQ(2, Bar(SB_VERT).nMax);
}

TEST_F(GridTest, KeepsWhatIsSetInACell)
{
    FillStored({50, 50}, 2);
    grid.SetCellText(1, 1, std::string(300, 'y').c_str());
    EXPECT_EQ(255u, strlen(grid.GetCell(1, 1)->text));
    grid.SetCellSubText(1, 1, "sub");
    EXPECT_STREQ("sub", grid.GetCell(1, 1)->subText);
    grid.SetCellBackColor(1, 1, RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), grid.GetCell(1, 1)->backColor);
    grid.SetCellTextColor(1, 1, RGB(4, 5, 6));
    EXPECT_EQ(RGB(4, 5, 6), grid.GetCell(1, 1)->textColor);
    grid.SetCellEditable(1, 1, 2);
    EXPECT_TRUE(grid.GetCell(1, 1)->editable);
    grid.SetCellEditable(1, 1, 0);
    EXPECT_FALSE(grid.GetCell(1, 1)->editable);
    grid.SetCellMark(1, 1, 200);
    EXPECT_EQ(200, grid.GetCellMark(1, 1));
    grid.SetCellCheck(1, 1, 5);
    EXPECT_EQ(5, grid.GetCellCheck(1, 1));
}

TEST_F(GridTest, IgnoresCellsOutOfRange)
{
    FillStored({50, 50}, 2);
    for (const auto& [row, column] : {std::pair(-1, 0), {2, 0}, {0, 2}, {INT_MAX, -1}, {0, -1}})
    {
        grid.SetCellText(row, column, "x");
        grid.SetCellSubText(row, column, "x");
        grid.SetCellBackColor(row, column, 0);
        grid.SetCellTextColor(row, column, 0);
        grid.SetCellEditable(row, column, 1);
        grid.SetCellMark(row, column, 1);
        grid.SetCellCheck(row, column, 1);
        EXPECT_EQ(nullptr, grid.GetCell(row, column));
        EXPECT_EQ(0, grid.GetCellMark(row, column));
        EXPECT_EQ(0, grid.GetCellCheck(row, column));
    }
    grid.DeleteRow(-1);
    grid.DeleteRow(2);
    EXPECT_EQ(2, grid.GetRowCount());
    EXPECT_STREQ("1,1", grid.GetCell(1, 1)->text);
}

TEST_F(GridTest, GrowsAShortRowAtAWriteOfTextOrMark)
{
    FillStored({50}, 3);
    AddColumns({50, 50});
    EXPECT_EQ(nullptr, grid.GetCell(0, 1));

    grid.SetCellText(0, 2, "text");
    EXPECT_STREQ("text", grid.GetCell(0, 2)->text);
    grid.SetCellMark(1, 1, 9);
    EXPECT_EQ(9, grid.GetCellMark(1, 1));
    for (const int row : {0, 1})
        for (const UINT column : {1, 2})
        {
            EXPECT_EQ(0x1000000u, grid.GetCell(row, column)->backColor);
            EXPECT_EQ(0u, grid.GetCell(row, column)->textColor); // black, whatever the default is
        }

    grid.SetCellSubText(2, 1, "sub");
    EXPECT_STREQ("sub", grid.GetCell(2, 1)->subText);
    EXPECT_EQ(0u, grid.GetCell(2, 2)->backColor);
    EXPECT_EQ(0u, grid.GetCell(2, 2)->textColor);
}

TEST_F(GridTest, OnlyWritesOfTextAndMarkGrowARow)
{
    FillStored({50}, 1);
    AddColumns({50});
    grid.SetCellBackColor(0, 1, 0);
    grid.SetCellTextColor(0, 1, 0);
    grid.SetCellEditable(0, 1, 1);
    grid.SetCellCheck(0, 1, 1);
    EXPECT_EQ(nullptr, grid.GetCell(0, 1));
}

TEST_F(GridTest, DeletesRows)
{
    FillStored({50}, 3);
    grid.DeleteRow(0);
    EXPECT_EQ(2, grid.GetRowCount());
    EXPECT_STREQ("1,0", grid.GetCell(0, 0)->text);
    EXPECT_TRUE(grid.GetUpdateRect(nullptr));
    EXPECT_EQ(2, Bar(SB_VERT).nMax);

    PaintNow();
    for (const int none : {-1, 2, INT_MAX})
        grid.DeleteRow(none);
    EXPECT_EQ(2, grid.GetRowCount());
    EXPECT_FALSE(grid.GetUpdateRect(nullptr));

    grid.DeleteAllRows();
    EXPECT_EQ(0, grid.GetRowCount());
    EXPECT_EQ(0, Bar(SB_VERT).nMax);
}

TEST_F(GridTest, SortsRows)
{
    AddColumns({50});
    for (const char* text : {"10", "9", "1.5"})
        grid.AddRow(text);
    const auto texts = [&]
    {
        std::string joined;
        for (int row = 0; row < 3; ++row)
            joined += std::string(grid.GetCell(row, 0)->text) + " ";
        return joined;
    };
    grid.SortByText(0, true);
    EXPECT_EQ("1.5 10 9 ", texts());
    grid.SortByInteger(0, false);
    EXPECT_EQ("10 9 1.5 ", texts());
    grid.SortByNumber(0, true);
    EXPECT_EQ("1.5 9 10 ", texts());
    grid.SortByNumber(7, false);
    grid.SortByNumber(-7, false);
    EXPECT_EQ(3, grid.GetRowCount());
}

TEST_F(GridTest, HasNoStoredRowsInOwnerDataMode)
{
    FillOwnerData({50}, 100);
    EXPECT_EQ(100, grid.GetRowCount());
    EXPECT_EQ(-1, grid.AddRow("text"));
    grid.DeleteRow(0);
    grid.DeleteAllRows();
    grid.SetCellText(0, 0, "text");
    grid.SetCellMark(0, 0, 1);
    grid.SetCellCheck(0, 0, 1);
    grid.SortByText(0, true);
    EXPECT_EQ(nullptr, grid.GetCell(0, 0));
    EXPECT_EQ(0, grid.GetCellMark(0, 0));
    EXPECT_EQ(0, grid.GetCellCheck(0, 0));
    EXPECT_EQ(100, grid.GetRowCount());
}

TEST_F(GridTest, OwnerDataModeReachesOnlyTheChecksOfRowsStoredBefore)
{
    FillStored({50, 50}, 3);
    grid.SetCellMark(1, 1, 9);
    grid.ownerData = 1;
    EXPECT_EQ(-1, grid.AddRow("text"));
    grid.DeleteRow(0);
    grid.DeleteAllRows();
    grid.SetCellText(1, 1, "text");
    grid.SetCellSubText(1, 1, "text");
    grid.SetCellBackColor(1, 1, RGB(1, 2, 3));
    grid.SetCellTextColor(1, 1, RGB(1, 2, 3));
    grid.SetCellEditable(1, 1, 1);
    grid.SetCellMark(1, 1, 1);
    grid.SortByNumber(0, false);
    grid.SortByInteger(0, false);
    grid.SortByText(0, false);
    EXPECT_EQ(nullptr, grid.GetCell(1, 1));
    EXPECT_EQ(0, grid.GetCellMark(1, 1));
    EXPECT_EQ(3, grid.GetRowCount());
    grid.SetCellCheck(1, 1, 5);
    EXPECT_EQ(5, grid.GetCellCheck(1, 1));

    grid.ownerData = 0;
    ASSERT_EQ(3, grid.rows.Count());
    EXPECT_STREQ("0,0", grid.GetCell(0, 0)->text);
    const OwerCell& cell = *grid.GetCell(1, 1);
    EXPECT_STREQ("1,1", cell.text);
    EXPECT_STREQ("", cell.subText);
    EXPECT_EQ(kNoCellColor, cell.backColor);
    EXPECT_EQ(9, cell.mark);
    EXPECT_FALSE(cell.editable);
    EXPECT_EQ(5, cell.checked);
}

TEST_F(GridTest, SurvivesMessagesAfterItsEnd)
{
    FillStored({50}, 3);
    grid.SendMessage(WM_DESTROY);
    EXPECT_EQ(nullptr, grid.body);
    EXPECT_EQ(nullptr, grid.clientDC);
    EXPECT_EQ(nullptr, grid.edit.m_hWnd);
    for (const UINT message :
         {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP, WM_LBUTTONDBLCLK,
          WM_MOUSEMOVE, WM_SIZE, WM_NCPAINT, WM_HSCROLL, WM_VSCROLL, WM_MOUSEWHEEL})
        grid.SendMessage(message, 0, MAKELPARAM(30, 30));
    grid.RedrawWindow();
    EXPECT_EQ(0, grid.GetRowCount());
    EXPECT_STREQ("2,0", grid.GetCell(2, 0)->text);
}

TEST_F(GridTest, KeepsTheViewOnRowsWhenTheyAreDeletedUnderIt)
{
    FillStored({50}, 30);
    grid.ScrollToEnd();
    EXPECT_EQ(21 * 20, grid.body->scrollY);
    for (int row = 0; row < 15; ++row)
        grid.DeleteRow(0);
    EXPECT_LT(grid.body->scrollY, 15 * 20);
    EXPECT_EQ(15, Bar(SB_VERT).nMax);
}

TEST_F(GridTest, KeepsItsRowsWithoutItsWindow)
{
    FillStored({50}, 3);
    grid.DestroyWindow();
    grid.DeleteRow(0);
    EXPECT_STREQ("1,0", grid.GetCell(0, 0)->text);
    grid.DeleteAllRows();
    EXPECT_EQ(nullptr, grid.GetCell(0, 0));
}

TEST_F(GridTest, CanBeCreatedAnew)
{
    FillStored({50}, 3);
    grid.DestroyWindow();
    EXPECT_TRUE(grid.Create(CRect(10, 10, 310, 210), &host, 6000));
    EXPECT_EQ(3, grid.GetRowCount());
    EXPECT_TRUE(grid.columns.empty());
    AddColumns({70});
    PaintNow();
}

TEST_F(GridTest, LeavesNothingBehindWhenDeletedWithItsWindow)
{
    auto other = std::make_unique<COwerDrawListView>();
    other->Create(CRect(0, 0, 50, 50), &host, 1);
    const HWND window = other->m_hWnd;
    const HDC bodyDC = other->body->bodyDC;
    const HFONT font = other->body->font;
    const HBITMAP surface = other->body->bodyBitmap;
    ASSERT_NE(nullptr, surface);
    other.reset();
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(0u, GetObjectType(bodyDC));
    EXPECT_EQ(0u, GetObjectType(font));
    EXPECT_EQ(0u, GetObjectType(surface));
}

TEST_F(GridTest, LeavesNoDrawingObjectsBehind)
{
    const auto live = [this]
    {
        COwerDrawListView other;
        other.Create(CRect(0, 0, 100, 100), &host, 1);
        other.AddColumn("a", 80, kCentred, kCentred, nullptr, kTextColumn);
        other.AddRow("text");
        other.ShowWindow(SW_SHOW);
        other.body->Resize(0, 0, 120, 90);
        other.body->SetHeaderHeight(30);
        other.body->SetFonts("宋体", 14, 400, "黑体", 14, 700);
        other.RedrawWindow();
        other.DestroyWindow();
    };
    live();
    live();
    const int before = CountGdiObjects();
    for (int round = 0; round < 200; ++round)
        live();
    EXPECT_EQ(before, CountGdiObjects());
}

} // namespace

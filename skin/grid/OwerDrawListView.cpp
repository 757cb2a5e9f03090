#include "skin/grid/OwerDrawListView.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/grid/GridArithmetic.h"

#include <algorithm>

namespace
{

constexpr char kWindowClass[] = "OWERLISTVIEW";
const HBRUSH kWindowClassBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);

} // namespace

static_assert(kNoCellColor == kNoColor, "the model and the kit mean the same by no colour");

BEGIN_MESSAGE_MAP(COwerDrawListView, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_SIZE()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_NCPAINT()
ON_WM_LBUTTONDOWN()
ON_WM_RBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_RBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_NCLBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_MESSAGE(WM_GETOBJECT, OnAskedForObject)
END_MESSAGE_MAP()

BOOL RegisterOwerListClass()
{
    WNDCLASSA windowClass = {};
    const HINSTANCE instance = AfxGetInstanceHandle();
    if (GetClassInfoA(instance, kWindowClass, &windowClass))
        return TRUE;

    windowClass = {};
    windowClass.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = kWindowClassBackground;
    windowClass.lpszClassName = kWindowClass;
    if (AfxRegisterClass(&windowClass))
        return TRUE;
    ::MessageBoxA(nullptr, "RegisterWindowClass ERROR", nullptr, MB_OK);
    return FALSE;
}

COwerDrawListView::COwerDrawListView()
    : highlightColor(kGridSpareHighlight)
    , textColor(kGridText)
{
    RegisterOwerListClass();
}

COwerDrawListView::~COwerDrawListView()
{
    // Here and not in the base, where WM_DESTROY would no longer reach this class.
    DestroyWindow();
}

BOOL COwerDrawListView::Create(const RECT& rect, CWnd* parentWindow, UINT id)
{
    constexpr DWORD kStyle = WS_CHILD | WS_VSCROLL | WS_HSCROLL;
    if (!CWnd::Create(kWindowClass, nullptr, kStyle, rect, parentWindow, id))
    {
        ::MessageBoxA(parentWindow->GetSafeHwnd(), "CREATE FAILE", nullptr, MB_OK);
        return FALSE;
    }
    ctrlId = id;
    parent = parentWindow;
    return TRUE;
}

BOOL COwerDrawListView::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message);
}

int COwerDrawListView::OnCreate(LPCREATESTRUCT createStruct)
{
    if (CWnd::OnCreate(createStruct) == -1)
        return -1;
    const RECT empty = {};
    clientDC = ::GetDC(m_hWnd);
    body = std::make_unique<OwerListBody>(this, clientDC, empty, kWidthPixels);
    body->paintHeaderCell = PaintHeaderCell;
    body->paintCell = PaintCell;
    FollowRowCount(); // rows may be left from an earlier window
    edit.CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", WS_CHILD | ES_RIGHT, empty, this, 0);
    return 0;
}

void COwerDrawListView::OnDestroy()
{
    CWnd::OnDestroy();
    edit.DestroyWindow();
    body.reset();
    columns.clear(); // whose live widths have just gone
    ::ReleaseDC(m_hWnd, clientDC);
    clientDC = nullptr;
}

// ---- Columns and rows

void COwerDrawListView::AddColumn(const char* title, int width, UINT headerFormat, UINT cellFormat,
                                  HBITMAP bitmap, int type)
{
    if (!body || body->columnWidths.Add(width) < 0)
        return;
    OwerColumn column;
    CopyCellText(column.title, title);
    column.width = width;
    column.headerFormat = headerFormat;
    column.cellFormat = cellFormat;
    column.bitmap = bitmap;
    column.type = type;
    columns.push_back(column);
    UpdateScrollBars();
}

void COwerDrawListView::ClearColumns()
{
    columns.clear();
    if (body)
        body->columnWidths.Clear();
    UpdateScrollBars();
}

void COwerDrawListView::DrawOuterFrame(int /*unused*/)
{
    if (!m_hWnd)
        return;
    CRect frame;
    GetWindowRect(&frame);
    POINT origin = {};
    MapWindowPoints(GetParent(), &origin, 1);
    frame.MoveToXY(origin);
    frame.InflateRect(1, 1);
    CClientDC dc(GetParent());
    ::FrameRect(dc, &frame, GetCachedBrush(kGridLine));
}

void COwerDrawListView::FollowRowCount()
{
    if (body)
        body->SetRowCount(rows.Count());
}

int COwerDrawListView::AddRow(const char* firstCellText)
{
    if (ownerData)
        return -1;
    const int row = rows.Add(columns.size(), firstCellText);
    if (row >= 0)
    {
        FollowRowCount();
        UpdateScrollBars();
    }
    return row;
}

void COwerDrawListView::DeleteRow(int row)
{
    if (ownerData || !rows.Delete(row))
        return;
    FollowRowCount();
    UpdateScrollBars();
    if (body)
        Invalidate(FALSE);
}

void COwerDrawListView::DeleteAllRows()
{
    if (ownerData)
        return;
    rows.Clear();
    FollowRowCount();
    UpdateScrollBars();
    if (body)
        Invalidate(FALSE);
}

OwerCell* COwerDrawListView::GetCell(int row, UINT column)
{
    return ownerData ? nullptr : rows.Find(row, column);
}

OwerCell* COwerDrawListView::GetGrownCell(int row, UINT column, const OwerCell& newCell)
{
    return ownerData ? nullptr : rows.FindGrown(row, column, columns.size(), newCell);
}

void COwerDrawListView::SetCellText(int row, UINT column, const char* text)
{
    if (OwerCell* cell = GetGrownCell(row, column, MakeGrownCell()))
        CopyCellText(cell->text, text);
}

void COwerDrawListView::SetCellSubText(int row, UINT column, const char* text)
{
    // New cells are all zero here, which makes their background black. This is meant.
    if (OwerCell* cell = GetGrownCell(row, column, OwerCell()))
        CopyCellText(cell->subText, text);
}

void COwerDrawListView::SetCellBackColor(int row, UINT column, COLORREF color)
{
    if (OwerCell* cell = GetCell(row, column))
        cell->backColor = color;
}

void COwerDrawListView::SetCellTextColor(int row, UINT column, COLORREF color)
{
    if (OwerCell* cell = GetCell(row, column))
        cell->textColor = color;
}

void COwerDrawListView::SetCellEditable(int row, UINT column, int editable)
{
    if (OwerCell* cell = GetCell(row, column))
        cell->editable = editable != 0;
}

void COwerDrawListView::SetCellMark(int row, UINT column, BYTE mark)
{
    if (OwerCell* cell = GetGrownCell(row, column, MakeGrownCell()))
        cell->mark = mark;
}

BYTE COwerDrawListView::GetCellMark(int row, UINT column)
{
    const OwerCell* cell = GetCell(row, column);
    return cell ? cell->mark : 0;
}

void COwerDrawListView::SetCellCheck(UINT row, UINT column, int checked)
{
    if (OwerCell* cell = rows.Find(static_cast<int>(row), column))
        cell->checked = checked;
}

int COwerDrawListView::GetCellCheck(UINT row, UINT column)
{
    const OwerCell* cell = rows.Find(static_cast<int>(row), column);
    return cell ? cell->checked : 0;
}

void COwerDrawListView::SortByNumber(int column, bool ascending)
{
    Sort(RowOrder::Number, column, ascending);
}

void COwerDrawListView::SortByInteger(int column, bool ascending)
{
    Sort(RowOrder::Integer, column, ascending);
}

void COwerDrawListView::SortByText(int column, bool ascending)
{
    Sort(RowOrder::Text, column, ascending);
}

void COwerDrawListView::Sort(RowOrder order, int column, bool ascending)
{
    if (!ownerData)
        rows.Sort(order, column, ascending);
}

// ---- Geometry and scroll bars

int COwerDrawListView::GetRowCount() const
{
    return body ? body->rowCount : 0;
}

int COwerDrawListView::GetFirstVisibleRow() const
{
    return body ? body->GetFirstVisibleRow() : 0;
}

void COwerDrawListView::HitTestCell(int* column, int* row, int x, int y)
{
    const GridCell cell = body ? body->HitTestCell(x, y) : GridCell();
    *column = cell.column;
    *row = cell.row;
}

int COwerDrawListView::HitTestHeader(int x, int y) const
{
    return body ? body->HitTestHeader(x, y) : -1;
}

void COwerDrawListView::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    if (!body)
        return;
    body->Resize(0, 0, cx, cy);
    UpdateScrollBars();
}

void COwerDrawListView::UpdateScrollBars()
{
    // A bar that comes or goes changes the client area, which calls this again from within.
    if (!body || settingScrollBars)
        return;
    settingScrollBars = true;
    RECT client;
    const bool hasArea = SetScrollRanges(client);
    settingScrollBars = false;
    if (!hasArea)
        return;

    if (const auto position = body->PositionAfterShrinking(client.bottom))
    {
        SetScrollPos(SB_VERT, *position);
        body->SetScrollY(*position); // a row number as pixels: this is meant
        Invalidate(FALSE);
    }
}

/// Each bar is set for the client area as the other one leaves it. A bar that comes can make the
/// other one come, never go, so the area is steady after a few passes; the bound is for parents that
/// size the grid in answer.
bool COwerDrawListView::SetScrollRanges(RECT& client)
{
    constexpr int kMostPasses = 4;
    for (int pass = 0; pass < kMostPasses; ++pass)
    {
        GetClientRect(&client);
        if (client.right <= 0 || client.bottom <= 0)
            return false;
        const RECT before = client;

        const ScrollRange across = body->HorizontalRange(client.right);
        SetScrollRange(SB_HORZ, across);
        if (across.maximum <= across.page)
        {
            SetScrollPos(SB_HORZ, 0);
            body->SetScrollX(0);
            Invalidate(FALSE);
        }
        GetClientRect(&client);
        SetScrollRange(SB_VERT, body->VerticalRange(client.bottom));

        GetClientRect(&client);
        if (EqualRect(&before, &client))
            break;
    }
    return true;
}

/// A bar that stays is drawn anew with the next frame only: drawing it costs more than all else when
/// rows are added one by one.
void COwerDrawListView::SetScrollRange(int bar, const ScrollRange& range)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = range.maximum;
    info.nPage = static_cast<UINT>(range.page);

    const DWORD style = bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL;
    const bool isShown = (GetStyle() & style) != 0;
    const bool isNeeded = range.page <= range.maximum;
    if (!isShown || !isNeeded)
        SetScrollInfo(bar, &info);
    else if (HasOtherRange(bar, range))
    {
        SetScrollInfo(bar, &info, FALSE);
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    }
}

bool COwerDrawListView::HasOtherRange(int bar, const ScrollRange& range)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    GetScrollInfo(bar, &info, SIF_RANGE | SIF_PAGE);
    return info.nMin != 0 || info.nMax != range.maximum ||
           info.nPage != static_cast<UINT>(range.page);
}

ScrollState COwerDrawListView::ReadScrollBar(int bar)
{
    ScrollState state;
    int maximum = 0;
    state.position = GetScrollPos(bar);
    GetScrollRange(bar, &state.minimum, &maximum);
    state.limit = GetScrollLimit(bar);

    // The page of the horizontal bar, in pixels, serves the vertical one as rows: this is meant.
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    GetScrollInfo(SB_HORZ, &info, SIF_PAGE);
    state.page = static_cast<int>(info.nPage);
    return state;
}

void COwerDrawListView::ScrollTo(int bar, int position)
{
    SetScrollPos(bar, position);
    if (bar == SB_HORZ)
        body->SetScrollX(position);
    else
        body->SetScrollY(Product(position, body->rowHeight));
    body->Paint();
}

void COwerDrawListView::ScrollToEnd()
{
    if (!body)
        return;
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    GetScrollInfo(SB_VERT, &info, SIF_RANGE | SIF_PAGE);
    const int position = std::max(Sum(Difference(info.nMax, static_cast<int>(info.nPage)), 1), 0);
    SetScrollPos(SB_VERT, position);
    body->SetScrollY(Product(position, body->rowHeight));
    Invalidate(FALSE);
}

void COwerDrawListView::OnHScroll(UINT code, UINT position, CScrollBar* scrollBar)
{
    if (body)
        ScrollTo(SB_HORZ, NextScrollPosition(static_cast<ScrollStep>(code), ReadScrollBar(SB_HORZ),
                                             static_cast<int>(position)));
    CWnd::OnHScroll(code, position, scrollBar);
}

void COwerDrawListView::OnVScroll(UINT code, UINT position, CScrollBar* scrollBar)
{
    if (body)
        ScrollTo(SB_VERT, NextScrollPosition(static_cast<ScrollStep>(code), ReadScrollBar(SB_VERT),
                                             static_cast<int>(position)));
    CWnd::OnVScroll(code, position, scrollBar);
}

BOOL COwerDrawListView::OnMouseWheel(UINT /*flags*/, short delta, CPoint /*point*/)
{
    if (body)
        ScrollTo(SB_VERT, NextWheelPosition(delta, ReadScrollBar(SB_VERT)));
    return TRUE;
}

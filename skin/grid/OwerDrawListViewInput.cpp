// What the mouse does in the grid, the in-place edit, and what the parent is told. What is sent, not
// posted, the parent may answer by ending the window: then there is no body any more.
#include "skin/grid/GridArithmetic.h"
#include "skin/grid/OwerDrawListView.h"

namespace
{

/// Edges included.
bool Contains(const GridRect& rect, int x, int y)
{
    return x >= rect.left && x <= rect.right && y >= rect.top && y <= rect.bottom;
}

/// Lets the press under way end and begin anew, so that a window that has come under the pointer
/// gets it.
void RepeatPress()
{
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
}

} // namespace

// ---- Messages

void COwerDrawListView::OnLButtonDown(UINT flags, CPoint point)
{
    OnButtonDown('L', point.x, point.y);
    CWnd::OnLButtonDown(flags, point);
}

void COwerDrawListView::OnRButtonDown(UINT flags, CPoint point)
{
    OnButtonDown('R', point.x, point.y);
    CWnd::OnRButtonDown(flags, point);
}

void COwerDrawListView::OnLButtonUp(UINT flags, CPoint point)
{
    OnButtonUp('L', point.x, point.y);
    CWnd::OnLButtonUp(flags, point);
}

void COwerDrawListView::OnRButtonUp(UINT flags, CPoint point)
{
    OnButtonUp('R', point.x, point.y);
    NotifyParent(NM_RCLICK);
    PostToParent(GridEvent::RightReleased);
    CWnd::OnRButtonUp(flags, point);
}

void COwerDrawListView::OnLButtonDblClk(UINT flags, CPoint point)
{
    if (body && body->HitRowOrDivider(point.x, point.y) >= 0)
        NotifyParent(NM_DBLCLK);
    CWnd::OnLButtonDblClk(flags, point);
}

void COwerDrawListView::OnNcLButtonDown(UINT hitTest, CPoint point)
{
    CommitEdit();
    CWnd::OnNcLButtonDown(hitTest, point);
}

void COwerDrawListView::OnMouseMove(UINT flags, CPoint point)
{
    if (body)
        FollowMouse(point.x, point.y);
    CWnd::OnMouseMove(flags, point);
}

void COwerDrawListView::FollowMouse(int x, int y)
{
    if (body->TrackMouse(x, y))
    {
        Invalidate(FALSE);
        UpdateScrollBars();
    }
    lastMoveTick = GetTickCount();
    firstMove = 0;

    const GridCell cell = body->HitTestCell(x, y);
    if (cell == GridCell{hoverColumn, hoverRow})
        return;
    hoverColumn = cell.column;
    hoverRow = cell.row;
    PostToParent(GridEvent::HoverMoved);
}

// ---- Press

void COwerDrawListView::OnButtonDown(char button, int x, int y)
{
    if (!body)
        return;
    SetFocus(); // ends an edit
    if (!body)
        return;
    SetCapture();
    downX = x;
    downY = y;
    if (body->HitRowOrDivider(x, y) >= 0)
    {
        if (ownerData)
            PressOwnerData(button, x, y);
        if (!body)
            return;
        Invalidate(FALSE);
    }
    if (!ownerData && PressStoredCell(x, y))
        return;
    CommitEdit();
}

void COwerDrawListView::PressOwnerData(char button, int x, int y)
{
    PostToParent(GridEvent::RowPressed);
    const GridCell cell = body->HitTestCell(x, y);
    if (button != 'L' || !cell.IsValid())
        return;
    if (cellOverlayProc)
    {
        mouseState = kMousePressed;
        CallOverlay(x, y, cell);
        if (!body)
            return;
        pressedColumn = cell.column;
        pressedRow = cell.row;
        body->GetCellRect(&pressedRect, cell.column, cell.row);
    }
    clickColumn = cell.column;
    clickRow = cell.row;
    PostToParent(GridEvent::CellPressed);
}

/// @return whether an edit began
bool COwerDrawListView::PressStoredCell(int x, int y)
{
    const GridCell at = body->HitTestCell(x, y);
    OwerCell* cell = at.IsValid() ? rows.Find(at.row, at.column) : nullptr;
    if (!cell)
        return false;

    const bool beginsEdit = cell->editable;
    if (beginsEdit)
        EditStoredCell(at);
    else if (HitsCheckBox(at.column, *cell, x, y))
    {
        cell->checked = !cell->checked;
        Invalidate(FALSE);
        PostToParent(GridEvent::CheckToggled);
    }
    PostToParent(GridEvent::StoredPressed);
    return beginsEdit;
}

void COwerDrawListView::EditStoredCell(const GridCell& at)
{
    CommitEdit();
    const OwerCell* cell = rows.Find(at.row, at.column); // anew: the parent may have changed rows
    if (!body || !cell)
        return;
    // From the body surface to the window by a row's height and not by the header's: this is meant.
    const RECT place = {cell->rect.left, Sum(cell->rect.top, body->rowHeight), cell->rect.right,
                        Sum(cell->rect.bottom, body->rowHeight)};
    OpenEdit(at.column, at.row, cell->text, place);
}

bool COwerDrawListView::HitsCheckBox(int column, const OwerCell& cell, int x, int y) const
{
    // From the window to the body surface by a row's height and not by the header's. This is meant.
    return column < static_cast<int>(columns.size()) && columns[column].type == kCheckColumn &&
           Contains(cell.checkRect, Difference(x, body->left),
                    Difference(Difference(y, body->top), body->rowHeight));
}

// ---- Release

void COwerDrawListView::OnButtonUp(char button, int x, int y)
{
    ReleaseCapture();
    downX = -1;
    downY = -1;
    if (!body)
        return;

    const int column = body->HitTestHeader(x, y);
    if (column < 0)
        ReleaseOnBody(button, x, y);
    else if (button == 'L' && body->resizeColumn == -1)
        ReleaseOnHeader(column);
    if (!body)
        return;
    body->resizing = false;
    body->resizeColumn = -1;
}

void COwerDrawListView::ReleaseOnBody(char button, int x, int y)
{
    const GridCell cell = body->HitTestCell(x, y);
    clickColumn = cell.column;
    clickRow = cell.row;
    const bool isPressed = mouseState == kMousePressed;
    if (mouseState == kMouseIdle || (isPressed && button != 'L')) // the left button's press goes on
        return;

    if (isPressed && cellOverlayProc && cell.IsValid())
    {
        mouseState = kMouseReleased;
        CallOverlay(x, y, cell);
        const bool sameCell = cell == GridCell{pressedColumn, pressedRow};
        if (sameCell && mouseState == kMouseReleased)
            SendToParent(GridEvent::CellReleased, reinterpret_cast<LPARAM>(this));
        ClearPressedCell();
    }
    else
        mouseState = kMouseIdle;
    if (body)
        Invalidate(FALSE);
}

void COwerDrawListView::ReleaseOnHeader(int column)
{
    headerClickColumn = column;
    PostToParent(GridEvent::HeaderClicked);
    if (mouseState == kMouseIdle)
        return;
    if (mouseState == kMousePressed)
    {
        mouseState = kMouseReleased;
        ClearPressedCell();
    }
    else
        mouseState = kMouseIdle;
    Invalidate(FALSE);
}

void COwerDrawListView::CallOverlay(int x, int y, const GridCell& cell)
{
    RECT rect;
    body->GetCellRect(&rect, cell.column, cell.row);
    cellOverlayProc(body->bodyDC, x, y, cell.column, cell.row, &rect, &mouseState, userData);
}

void COwerDrawListView::ClearPressedCell()
{
    pressedColumn = -1;
    pressedRow = -1;
    SetRectEmpty(&pressedRect);
}

// ---- In-place edit

void COwerDrawListView::BeginEdit(int column, int row, const char* text, int leftInset,
                                  int rightInset)
{
    const CString shown(text); // the parent, told of an edit's end, may free what it is from
    CommitEdit();
    if (!body || !body->HasCell(column, row))
        return;
    RECT place;
    body->GetCellRect(&place, column, row);
    place.left = Sum(place.left, leftInset);
    place.right = Sum(place.right, rightInset);
    OpenEdit(column, row, shown, place);
}

void COwerDrawListView::OpenEdit(int column, int row, const char* text, const RECT& place)
{
    editColumn = edit.column = column;
    editRow = edit.row = row;
    edit.SetWindowPos(nullptr, place.left, place.top, Difference(place.right, place.left),
                      Difference(place.bottom, place.top),
                      SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    edit.SetWindowText(text);
    edit.SetFocus();
    RepeatPress();
}

bool COwerDrawListView::IsEditing() const
{
    return edit.GetSafeHwnd() && edit.IsWindowVisible();
}

/// Whatever hides the page: what was typed there is not to be lost.
bool COwerDrawListView::IsEditShown() const
{
    return edit.GetSafeHwnd() && (edit.GetStyle() & WS_VISIBLE) != 0;
}

void COwerDrawListView::CommitEdit()
{
    // The edit loses the focus when it is hidden, and may lose it while the parent is told.
    if (committing || !IsEditShown())
        return;
    committing = true;
    if (!ownerData)
        StoreEditedText();
    SendToParent(ownerData ? GridEvent::OwnerEditEnded : GridEvent::EditEnded,
                 MAKELPARAM(editColumn, editRow));
    if (body)
        edit.ShowWindow(SW_HIDE);
    committing = false;
}

void COwerDrawListView::StoreEditedText()
{
    OwerCell* cell = rows.Find(editRow, static_cast<UINT>(editColumn));
    if (!cell || !cell->editable)
        return;
    char text[kCellTextCapacity];
    edit.GetWindowText(text, sizeof(text));
    CopyCellText(cell->text, text);
}

// ---- Parent

void COwerDrawListView::PostToParent(GridEvent event)
{
    // To no window it would go to the thread.
    if (const HWND window = ::GetParent(m_hWnd))
        ::PostMessage(window, kGridMessage, static_cast<WPARAM>(event),
                      reinterpret_cast<LPARAM>(this));
}

void COwerDrawListView::SendToParent(GridEvent event, LPARAM lParam)
{
    ::SendMessage(::GetParent(m_hWnd), kGridMessage, static_cast<WPARAM>(event), lParam);
}

void COwerDrawListView::NotifyParent(UINT code)
{
    NMHDR header = {m_hWnd, ctrlId, code};
    ::SendMessage(::GetParent(m_hWnd), WM_NOTIFY, ctrlId, reinterpret_cast<LPARAM>(&header));
}

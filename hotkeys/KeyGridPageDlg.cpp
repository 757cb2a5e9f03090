#include "hotkeys/KeyGridPageDlg.h"

#include "resources/resource.h"
#include "skin/SkinCache.h"

namespace
{

constexpr int kRowHeight = 26;
constexpr UINT kCentred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

bool IsPress(const MSG& message)
{
    return message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
}

bool IsRelease(const MSG& message)
{
    return message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
}

} // namespace

BEGIN_MESSAGE_MAP(CKeyGridPageDlg, CSheetPageDlg)
ON_WM_ERASEBKGND()
ON_MESSAGE(kGridMessage, &CKeyGridPageDlg::OnGridMessage)
ON_MESSAGE(kMsgMousePressed, &CKeyGridPageDlg::OnMousePressed)
END_MESSAGE_MAP()

CKeyGridPageDlg::CKeyGridPageDlg(UINT templateId, CWnd* parent)
    : CSheetPageDlg(templateId, parent)
{
}

CKeyGridPageDlg::~CKeyGridPageDlg()
{
    DestroySubclassedCtrls();
}

void CKeyGridPageDlg::CreateGrid(UINT before, const RECT& place, const std::vector<Column>& columns,
                                 OwnerCellPainter painter, CellTextSource texts)
{
    m_grid.Create(place, this, IDC_KEY_GRID);
    m_grid.ModifyStyle(0, WS_TABSTOP);
    m_grid.SetWindowPos(GetDlgItem(before), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    m_grid.ownerData = 1;
    m_grid.cellPaintProc = painter;
    m_grid.cellTextProc = texts;
    m_grid.userData = this;
    m_grid.body->SetHeaderHeight(Scaled(kRowHeight));
    m_grid.body->rowHeight = Scaled(kRowHeight);
    for (const Column& column : columns)
        m_grid.AddColumn(column.title, Scaled(column.width), kCentred, 0, nullptr, kTextColumn);

    m_edit.CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", WS_CHILD | ES_AUTOHSCROLL, CRect(0, 0, 0, 0),
                    &m_grid, IDC_CELL_EDIT);
    m_edit.SetFont(GetFont());
    m_grid.ShowWindow(SW_SHOW);
}

void CKeyGridPageDlg::ShowRows(int count)
{
    m_grid.body->SetRowCount(count);
    m_grid.UpdateScrollBars();
    m_grid.Invalidate(FALSE);
}

bool CKeyGridPageDlg::IsModifierKey(UINT virtualKey)
{
    return virtualKey == VK_SHIFT || virtualKey == VK_CONTROL || virtualKey == VK_MENU;
}

CRect CKeyGridPageDlg::EditedCell() const
{
    CRect cell;
    m_grid.body->GetCellRect(&cell, editColumn, editRow);
    return cell;
}

void CKeyGridPageDlg::OpenEdit(const char* text)
{
    m_edit.SetWindowText(text);
    m_edit.MoveWindow(EditedCell());
    m_edit.ShowWindow(SW_SHOW);
    m_edit.SetFocus();
    m_edit.SetSel(0, -1);
}

bool CKeyGridPageDlg::OpenControlHolds(CPoint point)
{
    CRect edit;
    m_edit.GetWindowRect(&edit);
    return !IsEditing() || edit.PtInRect(point);
}

void CKeyGridPageDlg::CloseCell()
{
    m_edit.ShowWindow(SW_HIDE);
}

void CKeyGridPageDlg::DrawCellText(HDC dc, const char* text, RECT cell, COLORREF color, UINT format)
{
    const COLORREF oldColor = SetTextColor(dc, color);
    DrawTextA(dc, text, -1, &cell, format | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    SetTextColor(dc, oldColor);
}

BOOL CKeyGridPageDlg::PreTranslateMessage(MSG* message)
{
    // Nothing ends up over another row than the one it edits.
    if (ScrollsGrid(*message))
        CloseCell();
    if (::IsChild(m_grid, message->hwnd) && WorksByAlt(*message))
        return TRUE;
    const bool isForEdit = m_edit.m_hWnd && message->hwnd == m_edit.m_hWnd;
    if (isForEdit && IsPress(*message) && !OnEditKey(static_cast<UINT>(message->wParam)))
        return TRUE;
    return CSheetPageDlg::PreTranslateMessage(message);
}

/// Alt by itself leaves an open cell, since any other key may be one that the field takes. Alt held
/// for another key does nothing, and the system must not open the window's menu when it is let go.
bool CKeyGridPageDlg::WorksByAlt(const MSG& message)
{
    const bool isAlt = message.wParam == VK_MENU && (IsPress(message) || IsRelease(message));
    if (isAlt && IsRelease(message) && m_isAltAlone)
        LeaveCell();
    if (isAlt || IsPress(message))
        m_isAltAlone = isAlt && IsPress(message);
    return isAlt;
}

void CKeyGridPageDlg::LeaveCell()
{
    m_grid.SetFocus();
    CloseCell();
    m_grid.keyColumn = editColumn;
    m_grid.Invalidate(FALSE);
}

bool CKeyGridPageDlg::ScrollsGrid(const MSG& message) const
{
    const bool isWheel = message.message == WM_MOUSEWHEEL;
    const bool isBarPress = message.message == WM_NCLBUTTONDOWN;
    const bool isEdit = m_edit.m_hWnd && message.hwnd == m_edit.m_hWnd;
    return (isWheel && isEdit) || ((isWheel || isBarPress) && message.hwnd == m_grid.m_hWnd);
}

BOOL CKeyGridPageDlg::OnEraseBkgnd(CDC* dc)
{
    CSheetPageDlg::OnEraseBkgnd(dc);
    m_grid.DrawOuterFrame(0);
    return TRUE;
}

LRESULT CKeyGridPageDlg::OnGridMessage(WPARAM event, LPARAM)
{
    if (static_cast<GridEvent>(event) != GridEvent::CellPressed || m_grid.columns.empty())
        return 0;
    CloseCell();
    editColumn = m_grid.clickColumn;
    editRow = m_grid.clickRow;
    if (editColumn >= 0 && editRow >= 0)
        OpenCell();
    return 0;
}

CPoint CKeyGridPageDlg::PointOf(WPARAM point)
{
    return {static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))};
}

LRESULT CKeyGridPageDlg::OnMousePressed(WPARAM point, LPARAM)
{
    if (!OpenControlHolds(PointOf(point)))
        CloseCell();
    return 0;
}

#include "hotkeys/CellCombo.h"

namespace
{

constexpr int kListHeight = 400; // room for all actions

} // namespace

BEGIN_MESSAGE_MAP(CCellCombo, CMyComboBox_MyCtrl)
ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &CCellCombo::OnDropDown)
ON_CONTROL_REFLECT_EX(CBN_SELENDOK, &CCellCombo::OnPicked)
ON_CONTROL_REFLECT_EX(CBN_SELENDCANCEL, &CCellCombo::OnPickCancelled)
END_MESSAGE_MAP()

BOOL CCellCombo::Create(CWnd* grid, UINT id, CFont* font)
{
    constexpr DWORD kStyle =
        WS_CHILD | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;
    if (!CMyComboBox_MyCtrl::Create(kStyle, CRect(0, 0, 0, 0), grid, id))
        return FALSE;
    SetFont(font);
    return TRUE;
}

void CCellCombo::PlaceOver(const RECT& cell)
{
    const CRect place(cell);
    MoveWindow(place.left, place.top, place.Width(), place.Height() + kListHeight);
    // The face has a border around its item, of which systems think differently.
    SetItemHeight(-1, place.Height());
    CRect face;
    GetWindowRect(&face);
    SetItemHeight(-1, 2 * place.Height() - face.Height());
    ShowWindow(SW_SHOW);
    SetFocus();
}

void CCellCombo::PutAway()
{
    ShowDropDown(FALSE);
    ShowWindow(SW_HIDE);
}

bool CCellCombo::Holds(CPoint point) const
{
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    CRect list(0, 0, 0, 0);
    if (GetDroppedState() && ::GetComboBoxInfo(m_hWnd, &info))
        ::GetWindowRect(info.hwndList, &list);
    CRect face;
    GetWindowRect(&face);
    return face.PtInRect(point) || list.PtInRect(point);
}

BOOL CCellCombo::OnDropDown()
{
    m_selectionAtDrop = GetCurSel();
    return CMyComboBox_MyCtrl::OnDropDown();
}

// Posted: the list is still open here, and what the page shows must not come under it.
BOOL CCellCombo::OnPicked()
{
    ::PostMessage(::GetParent(::GetParent(m_hWnd)), kMsgItemPicked, 0, 0);
    return FALSE;
}

// Also comes when a closed one loses the focus.
BOOL CCellCombo::OnPickCancelled()
{
    if (GetDroppedState())
        SetCurSel(m_selectionAtDrop);
    return FALSE;
}

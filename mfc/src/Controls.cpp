#include <afxwin.h>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

namespace
{
/// Hands the messages of owner drawing to the operations that a list or combo box overrides.
/// FALSE: it is another message.
template <typename T>
BOOL DispatchOwnerDraw(T& control, UINT message, LPARAM lParam, LRESULT* result)
{
    switch (message)
    {
    case WM_DRAWITEM:
        control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
        if (result)
        {
            *result = control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        }
        return TRUE;
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    default:
        return FALSE;
    }
}

/// Text of an item of a list or combo box; empty where there is no such item.
CString ItemText(const CWnd& control, UINT lengthMessage, UINT textMessage, int index)
{
    CString text;
    const LRESULT length = control.SendMessage(lengthMessage, static_cast<WPARAM>(index));
    if (length > 0)
    {
        LPSTR buffer = text.GetBufferSetLength(static_cast<int>(length));
        control.SendMessage(textMessage, static_cast<WPARAM>(index),
                            reinterpret_cast<LPARAM>(buffer));
        text.ReleaseBuffer();
    }
    return text;
}
} // namespace

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM)
    {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID)
{
    return CWnd::Create("BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM)
    {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
    if (!bNoScroll)
    {
        SendMessage(EM_SCROLLCARET);
    }
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&nStartChar),
                reinterpret_cast<LPARAM>(&nEndChar));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    if (!lpszBuffer || nMaxLength <= 0)
    {
        return 0;
    }
    // The control takes the capacity from the first word of the buffer, and never writes less
    // than that word: a buffer shorter than a word goes by way of another.
    CString line;
    const int capacity = nMaxLength < 2 ? 2 : nMaxLength;
    LPSTR buffer = line.GetBufferSetLength(capacity);
    *reinterpret_cast<WORD*>(buffer) = static_cast<WORD>(capacity > 0xFFFF ? 0xFFFF : capacity);
    const int copied = static_cast<int>(
        SendMessage(EM_GETLINE, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(buffer)));
    const int length = copied < nMaxLength ? copied : nMaxLength;
    CopyMemory(lpszBuffer, buffer, static_cast<size_t>(length));
    return length;
}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    rString = ItemText(*this, LB_GETTEXTLEN, LB_GETTEXT, nIndex);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    const LRESULT found = SendMessage(LB_ITEMFROMPOINT, 0, MAKELONG(pt.x, pt.y));
    bOutside = HIWORD(found);
    return LOWORD(found);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return DispatchOwnerDraw(*this, message, lParam, pResult) ||
           CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("COMBOBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    rString = ItemText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, nIndex);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return DispatchOwnerDraw(*this, message, lParam, pResult) ||
           CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("SCROLLBAR", nullptr, dwStyle, rect, pParentWnd, nID);
}

#include <afxcmn.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

BOOL CRichEditCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxInitRichEdit2() &&
           CWnd::Create("RichEdit20A", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CRichEditCtrl::GetSel(long& nStartChar, long& nEndChar) const
{
    CHARRANGE range = {};
    GetSel(range);
    nStartChar = range.cpMin;
    nEndChar = range.cpMax;
}

void CRichEditCtrl::SetSel(long nStartChar, long nEndChar)
{
    CHARRANGE range = {nStartChar, nEndChar};
    SetSel(range);
}

CString CRichEditCtrl::GetSelText() const
{
    CHARRANGE range = {};
    GetSel(range);
    CString text;
    // A character may take two bytes.
    const int capacity = static_cast<int>(std::max(range.cpMax - range.cpMin, 0L)) * 2;
    SendMessage(EM_GETSELTEXT, 0, Pointer(text.GetBufferSetLength(capacity)));
    text.ReleaseBuffer();
    return text;
}

int CRichEditCtrl::GetTextRange(int nFirst, int nLast, CString& refString) const
{
    const int end = nLast < 0 ? static_cast<int>(GetTextLength()) : nLast;
    const int capacity = std::max(end - nFirst, 0) * 2;
    TEXTRANGE range = {};
    range.chrg.cpMin = nFirst;
    range.chrg.cpMax = end;
    range.lpstrText = refString.GetBufferSetLength(capacity);
    SendMessage(EM_GETTEXTRANGE, 0, Pointer(&range));
    refString.ReleaseBuffer();
    return refString.GetLength();
}

CPoint CRichEditCtrl::GetCharPos(long lChar) const
{
    POINTL point = {};
    SendMessage(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&point), lChar);
    return CPoint(point.x, point.y);
}

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_UPDOWN_CLASS};
    return ::InitCommonControlsEx(&controls) &&
           CWnd::Create(UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    const LRESULT range = SendMessage(UDM_GETRANGE);
    upper = static_cast<short>(LOWORD(range));
    lower = static_cast<short>(HIWORD(range));
}

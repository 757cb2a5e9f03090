#pragma once

#include "mfc/parts/Wnd.h"

// The stock controls. Most operations are one message of the control; their meaning, ranges and
// errors are those of the message. Owner-drawn controls override the virtual operations that the
// parent's WM_DRAWITEM and its like end in.

class CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xFFFF);

    HBITMAP SetBitmap(HBITMAP hBitmap) { return Image<HBITMAP>(IMAGE_BITMAP, hBitmap); }
    HBITMAP GetBitmap() const
    {
        return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP));
    }
    HICON SetIcon(HICON hIcon) { return Image<HICON>(IMAGE_ICON, hIcon); }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(STM_GETIMAGE, IMAGE_ICON)); }

    /// SS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    template <typename T>
    T Image(WPARAM kind, T image)
    {
        return reinterpret_cast<T>(
            SendMessage(STM_SETIMAGE, kind, reinterpret_cast<LPARAM>(image)));
    }
};

class CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID);

    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, bHighlight); }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    UINT GetButtonStyle() const { return GetStyle() & 0xFFFF; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE)
    {
        SendMessage(BM_SETSTYLE, nStyle, bRedraw);
    }
    void Click() { SendMessage(BM_CLICK); }
    HBITMAP SetBitmap(HBITMAP hBitmap)
    {
        return reinterpret_cast<HBITMAP>(
            SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }
    HBITMAP GetBitmap() const
    {
        return reinterpret_cast<HBITMAP>(SendMessage(BM_GETIMAGE, IMAGE_BITMAP));
    }

    /// BS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE)
    {
        SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)),
               bNoScroll);
    }
    /// Start in the low word, end in the high word.
    DWORD GetSel() const { return static_cast<DWORD>(SendMessage(EM_GETSEL)); }
    void GetSel(int& nStartChar, int& nEndChar) const;
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE)
    {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo),
                    reinterpret_cast<LPARAM>(lpszNewText));
    }
    void SetLimitText(UINT nMax) { SendMessage(EM_SETLIMITTEXT, nMax); }
    void LimitText(int nChars = 0) { SetLimitText(static_cast<UINT>(nChars)); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE)
    {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(bReadOnly)));
    }
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE)
    {
        SendMessage(EM_SETMODIFY, static_cast<WPARAM>(bModified));
    }
    void GetRect(LPRECT lpRect) const
    {
        SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(lpRect));
    }
    void SetRect(LPCRECT lpRect) { SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(lpRect)); }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    /// Copies up to nMaxLength characters without a NUL at the end; returns their number.
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int LineFromChar(int nIndex = -1) const
    {
        return static_cast<int>(SendMessage(EM_LINEFROMCHAR, static_cast<WPARAM>(nIndex)));
    }
    int LineIndex(int nLine = -1) const
    {
        return static_cast<int>(SendMessage(EM_LINEINDEX, static_cast<WPARAM>(nLine)));
    }
    int LineLength(int nLine = -1) const
    {
        return static_cast<int>(SendMessage(EM_LINELENGTH, static_cast<WPARAM>(nLine)));
    }
    int GetFirstVisibleLine() const
    {
        return static_cast<int>(SendMessage(EM_GETFIRSTVISIBLELINE));
    }
    BOOL CanUndo() const { return static_cast<BOOL>(SendMessage(EM_CANUNDO)); }
    BOOL Undo() { return static_cast<BOOL>(SendMessage(EM_UNDO)); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Cut() { SendMessage(WM_CUT); }
};

class CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return Int(LB_GETCOUNT); }
    int AddString(LPCTSTR lpszItem) { return Int(LB_ADDSTRING, 0, lpszItem); }
    int InsertString(int nIndex, LPCTSTR lpszItem)
    {
        return Int(LB_INSERTSTRING, nIndex, lpszItem);
    }
    int DeleteString(UINT nIndex) { return Int(LB_DELETESTRING, static_cast<int>(nIndex)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCTSTR lpszItem) const
    {
        return Int(LB_FINDSTRING, nStartAfter, lpszItem);
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
    {
        return Int(LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }
    int SelectString(int nStartAfter, LPCTSTR lpszItem)
    {
        return Int(LB_SELECTSTRING, nStartAfter, lpszItem);
    }
    int GetText(int nIndex, LPTSTR lpszBuffer) const { return Int(LB_GETTEXT, nIndex, lpszBuffer); }
    /// Empty for an index that isn't there.
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const { return Int(LB_GETTEXTLEN, nIndex); }
    int GetCurSel() const { return Int(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Int(LB_SETCURSEL, nSelect); }
    int GetSel(int nIndex) const { return Int(LB_GETSEL, nIndex); }
    int SetSel(int nIndex, BOOL bSelect = TRUE)
    {
        return static_cast<int>(SendMessage(LB_SETSEL, static_cast<WPARAM>(bSelect), nIndex));
    }
    int GetSelCount() const { return Int(LB_GETSELCOUNT); }
    DWORD_PTR GetItemData(int nIndex) const
    {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return static_cast<int>(SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(nIndex),
                                            static_cast<LPARAM>(dwItemData)));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData)
    {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    int GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return static_cast<int>(SendMessage(LB_GETITEMRECT, static_cast<WPARAM>(nIndex),
                                            reinterpret_cast<LPARAM>(lpRect)));
    }
    int GetItemHeight(int nIndex) const { return Int(LB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight)
    {
        return static_cast<int>(
            SendMessage(LB_SETITEMHEIGHT, static_cast<WPARAM>(nIndex), MAKELONG(cyItemHeight, 0)));
    }
    int GetTopIndex() const { return Int(LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return Int(LB_SETTOPINDEX, nIndex); }
    /// The item nearest to a point in client coordinates; bOutside when it doesn't hold it.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Int(UINT message, int index = 0, LPCTSTR text = nullptr) const
    {
        return static_cast<int>(
            SendMessage(message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
    }
};

class CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return Int(CB_GETCOUNT); }
    int AddString(LPCTSTR lpszString) { return Int(CB_ADDSTRING, 0, lpszString); }
    int InsertString(int nIndex, LPCTSTR lpszString)
    {
        return Int(CB_INSERTSTRING, nIndex, lpszString);
    }
    int DeleteString(UINT nIndex) { return Int(CB_DELETESTRING, static_cast<int>(nIndex)); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCTSTR lpszString) const
    {
        return Int(CB_FINDSTRING, nStartAfter, lpszString);
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
    {
        return Int(CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }
    int SelectString(int nStartAfter, LPCTSTR lpszString)
    {
        return Int(CB_SELECTSTRING, nStartAfter, lpszString);
    }
    int GetLBText(int nIndex, LPTSTR lpszText) const { return Int(CB_GETLBTEXT, nIndex, lpszText); }
    /// Empty for an index that isn't there.
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const { return Int(CB_GETLBTEXTLEN, nIndex); }
    int GetCurSel() const { return Int(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Int(CB_SETCURSEL, nSelect); }
    DWORD_PTR GetItemData(int nIndex) const
    {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return static_cast<int>(SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(nIndex),
                                            static_cast<LPARAM>(dwItemData)));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData)
    {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    /// Item -1 is the closed face.
    int GetItemHeight(int nIndex) const { return Int(CB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight)
    {
        return static_cast<int>(
            SendMessage(CB_SETITEMHEIGHT, static_cast<WPARAM>(nIndex), MAKELONG(cyItemHeight, 0)));
    }
    BOOL GetDroppedState() const { return Int(CB_GETDROPPEDSTATE); }
    void ShowDropDown(BOOL bShowIt = TRUE) { Int(CB_SHOWDROPDOWN, bShowIt); }
    void GetDroppedControlRect(LPRECT lprect) const
    {
        SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(lprect));
    }
    int GetDroppedWidth() const { return Int(CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT nWidth) { return Int(CB_SETDROPPEDWIDTH, static_cast<int>(nWidth)); }
    int GetTopIndex() const { return Int(CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return Int(CB_SETTOPINDEX, nIndex); }
    BOOL LimitText(int nMaxChars) { return Int(CB_LIMITTEXT, nMaxChars); }
    DWORD GetEditSel() const { return static_cast<DWORD>(SendMessage(CB_GETEDITSEL)); }
    BOOL SetEditSel(int nStartChar, int nEndChar)
    {
        return static_cast<BOOL>(SendMessage(CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar)));
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Int(UINT message, int index = 0, LPCTSTR text = nullptr) const
    {
        return static_cast<int>(
            SendMessage(message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
    }
};

class CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // As the operations of CWnd, for the control itself.
    int GetScrollPos() const { return CWnd::GetScrollPos(SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE)
    {
        return CWnd::SetScrollPos(SB_CTL, nPos, bRedraw);
    }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const
    {
        CWnd::GetScrollRange(SB_CTL, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE)
    {
        CWnd::SetScrollRange(SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    void ShowScrollBar(BOOL bShow = TRUE) { CWnd::ShowScrollBar(SB_CTL, bShow); }
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH)
    {
        return CWnd::EnableScrollBar(SB_CTL, nArrowFlags);
    }
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL)
    {
        return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
    }
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE)
    {
        return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
    }
    int GetScrollLimit() { return CWnd::GetScrollLimit(SB_CTL); }
};

#pragma once

#include "mfc/parts/Wnd.h"

/// A rich edit of version 2.0. Its library is loaded by Create; for dialogs call AfxInitRichEdit2
/// before.
class CRichEditCtrl : public CWnd
{
    DECLARE_DYNAMIC(CRichEditCtrl)

public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Text and selection. -1 as the end means the end of the text.
    long GetTextLength() const { return static_cast<long>(SendMessage(WM_GETTEXTLENGTH)); }
    void GetSel(CHARRANGE& cr) const { SendMessage(EM_EXGETSEL, 0, Pointer(&cr)); }
    void GetSel(long& nStartChar, long& nEndChar) const;
    void SetSel(long nStartChar, long nEndChar);
    void SetSel(CHARRANGE& cr) { SendMessage(EM_EXSETSEL, 0, Pointer(&cr)); }
    CString GetSelText() const;
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE)
    {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), Pointer(lpszNewText));
    }
    /// Length without the NUL.
    int GetTextRange(int nFirst, int nLast, CString& refString) const;
    /// 0 means the greatest there is.
    void LimitText(long nChars = 0) { SendMessage(EM_EXLIMITTEXT, 0, nChars); }
    long GetLimitText() const { return static_cast<long>(SendMessage(EM_GETLIMITTEXT)); }
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE)
    {
        SendMessage(EM_SETMODIFY, static_cast<WPARAM>(bModified));
    }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE)
    {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(bReadOnly)));
    }

    // Look.
    /// Returns the colour that was; bSysColor takes the window colour of the system instead.
    COLORREF SetBackgroundColor(BOOL bSysColor, COLORREF cr)
    {
        return static_cast<COLORREF>(
            SendMessage(EM_SETBKGNDCOLOR, static_cast<WPARAM>(bSysColor), static_cast<LPARAM>(cr)));
    }
    // The structures' sizes are filled in; a getter returns the mask of what is set.
    DWORD GetDefaultCharFormat(CHARFORMAT& cf) const { return GetFormat(cf, SCF_DEFAULT); }
    DWORD GetDefaultCharFormat(CHARFORMAT2& cf) const { return GetFormat(cf, SCF_DEFAULT); }
    BOOL SetDefaultCharFormat(CHARFORMAT& cf) { return SetFormat(cf, SCF_DEFAULT); }
    BOOL SetDefaultCharFormat(CHARFORMAT2& cf) { return SetFormat(cf, SCF_DEFAULT); }
    DWORD GetParaFormat(PARAFORMAT& pf) const
    {
        pf.cbSize = sizeof(pf);
        return static_cast<DWORD>(SendMessage(EM_GETPARAFORMAT, 0, Pointer(&pf)));
    }
    BOOL SetParaFormat(PARAFORMAT& pf)
    {
        pf.cbSize = sizeof(pf);
        return static_cast<BOOL>(SendMessage(EM_SETPARAFORMAT, 0, Pointer(&pf)));
    }
    void GetRect(LPRECT lpRect) const { SendMessage(EM_GETRECT, 0, Pointer(lpRect)); }
    void SetRect(LPCRECT lpRect) { SendMessage(EM_SETRECT, 0, Pointer(lpRect)); }
    long GetEventMask() const { return static_cast<long>(SendMessage(EM_GETEVENTMASK)); }
    DWORD SetEventMask(DWORD dwEventMask)
    {
        return static_cast<DWORD>(
            SendMessage(EM_SETEVENTMASK, 0, static_cast<LPARAM>(dwEventMask)));
    }

    // Lines and positions.
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    int LineIndex(int nLine = -1) const
    {
        return static_cast<int>(SendMessage(EM_LINEINDEX, static_cast<WPARAM>(nLine)));
    }
    int LineLength(int nLine = -1) const
    {
        return static_cast<int>(SendMessage(EM_LINELENGTH, static_cast<WPARAM>(nLine)));
    }
    long LineFromChar(long nIndex) const
    {
        return static_cast<long>(SendMessage(EM_EXLINEFROMCHAR, 0, nIndex));
    }
    int GetFirstVisibleLine() const
    {
        return static_cast<int>(SendMessage(EM_GETFIRSTVISIBLELINE));
    }
    CPoint GetCharPos(long lChar) const;
    int CharFromPos(CPoint pt) const
    {
        POINTL point = {pt.x, pt.y};
        return static_cast<int>(SendMessage(EM_CHARFROMPOS, 0, Pointer(&point)));
    }
    long FindText(DWORD dwFlags, FINDTEXTEX* pFindText) const
    {
        return static_cast<long>(SendMessage(EM_FINDTEXTEX, dwFlags, Pointer(pFindText)));
    }

    // Clipboard and undoing.
    BOOL CanUndo() const { return static_cast<BOOL>(SendMessage(EM_CANUNDO)); }
    BOOL Undo() { return static_cast<BOOL>(SendMessage(EM_UNDO)); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Cut() { SendMessage(WM_CUT); }

private:
    static LPARAM Pointer(const void* pointer) { return reinterpret_cast<LPARAM>(pointer); }

    template <typename Format>
    DWORD GetFormat(Format& format, WPARAM where) const
    {
        format.cbSize = sizeof(format);
        return static_cast<DWORD>(SendMessage(EM_GETCHARFORMAT, where, Pointer(&format)));
    }
    template <typename Format>
    BOOL SetFormat(Format& format, WPARAM where)
    {
        format.cbSize = sizeof(format);
        return static_cast<BOOL>(SendMessage(EM_SETCHARFORMAT, where, Pointer(&format)));
    }
};

/// The up-down control.
class CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    CWnd* SetBuddy(CWnd* pWndBuddy)
    {
        return FromHandle(reinterpret_cast<HWND>(
            SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(CWnd::HandleOf(pWndBuddy)))));
    }
    CWnd* GetBuddy() const { return FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY))); }
    /// 16 bits, signed.
    void SetRange(short nLower, short nUpper)
    {
        SendMessage(UDM_SETRANGE, 0, MAKELONG(nUpper, nLower));
    }
    void GetRange(int& lower, int& upper) const;
    void SetRange32(int nLower, int nUpper)
    {
        SendMessage(UDM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    void GetRange32(int& lower, int& upper) const
    {
        SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower),
                    reinterpret_cast<LPARAM>(&upper));
    }
    int SetPos(int nPos)
    {
        return static_cast<short>(LOWORD(SendMessage(UDM_SETPOS, 0, MAKELONG(nPos, 0))));
    }
    /// Low word: the position; high word: not 0 on failure.
    int GetPos() const { return static_cast<int>(SendMessage(UDM_GETPOS)); }
    int SetPos32(int nPos) { return static_cast<int>(SendMessage(UDM_SETPOS32, 0, nPos)); }
    int GetPos32(LPBOOL lpbError = nullptr) const
    {
        return static_cast<int>(SendMessage(UDM_GETPOS32, 0, reinterpret_cast<LPARAM>(lpbError)));
    }
};

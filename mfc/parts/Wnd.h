#pragma once

#include "mfc/parts/CmdTarget.h"
#include "mfc/parts/DC.h"
#include "mfc/parts/Geometry.h"
#include "mfc/parts/String.h"

class CDataExchange;
struct CCreateContext;

/// Sent to a window that runs a modal loop while nothing else is to do; lParam counts up. A
/// result of 0 ends the idle work until the next message.
constexpr UINT WM_KICKIDLE = 0x036A;
/// Sent to the controls of a dialog after its initial data was loaded.
constexpr UINT WM_INITIALUPDATE = 0x0364;

// Flags of RunModalLoop.
constexpr DWORD MLF_NOIDLEMSG = 0x0001;  ///< no WM_ENTERIDLE to the parent
constexpr DWORD MLF_NOKICKIDLE = 0x0002; ///< no WM_KICKIDLE to the window
constexpr DWORD MLF_SHOWONIDLE = 0x0004; ///< show the window when nothing is left to do

/// A window's object.
///
/// An object becomes permanent for its window by Create, by SubclassWindow or by Attach, and stays
/// so until the window is destroyed or taken away from it; one window has at most one. FromHandle
/// and everything that returns a CWnd* gives the permanent object, or else a temporary one, which
/// must not be kept: it is deleted when the outermost message being handled is done, or when the
/// modal loop or the program's own loop in which it was made has nothing left to do.
///
/// Objects belong to the thread that made the window.
class CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd() = default;
    /// Destroys the window, should it still exist. A derived class whose handlers must see that
    /// calls DestroyWindow in its own destructor.
    ~CWnd() override;

    HWND m_hWnd = nullptr;

    // Places in the z-order, for SetWindowPos.
    static const CWnd wndTop, wndBottom, wndTopMost, wndNoTopMost;

    HWND GetSafeHwnd() const; ///< null for a null pointer, too
    /// For the framework itself: as above, without a call on a null pointer.
    static HWND HandleOf(const CWnd* pWnd) { return pWnd ? pWnd->m_hWnd : nullptr; }
    operator HWND() const { return GetSafeHwnd(); }
    BOOL operator==(const CWnd& wnd) const { return m_hWnd == wnd.m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return m_hWnd != wnd.m_hWnd; }

    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd);
    /// Deletes the temporary objects that no message at hand can be using.
    static void DeleteTempMap();

    /// Becomes the window's object without touching its procedure. FALSE: no window, the object
    /// has one already, or the window has another object.
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    /// Becomes the window's object and receives its messages; what it doesn't handle goes to the
    /// procedure it had. FALSE as with Attach: a window is never subclassed twice.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Gives the window its procedure back and returns its handle.
    HWND UnsubclassWindow();
    virtual void PreSubclassWindow() {}

    // The object receives the window's messages from the very first on.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    /// A child window. FALSE when it can't be made.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                        const RECT& rect, CWnd* pParentWnd, UINT nID,
                        CCreateContext* pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, int x, int y, int nWidth, int nHeight, HWND hWndParent,
                          HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                          LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();

    // Messages.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Offers a message to the window it is for and to its parents, up to hWndStop.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    static const MSG* GetCurrentMessage();
    /// The window's class procedure, or the one it had before it was subclassed.
    virtual WNDPROC* GetSuperWndProcAddr() { return &m_pfnSuper; }
    /// Offers the message at hand, which came to the parent, to this control.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);
    static BOOL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        // Without a window the message would go to the thread.
        return m_hWnd && ::PostMessage(m_hWnd, message, wParam, lParam);
    }
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
    }
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                                  BOOL bDeep = TRUE, BOOL bOnlyPerm = FALSE);
    BOOL IsDialogMessage(LPMSG lpMsg) { return ::IsDialogMessage(m_hWnd, lpMsg); }

    // Modal state.
    /// Pumps messages until ContinueModal says no. Returns what EndModalLoop was given; -1 when
    /// the thread was asked to quit, which its outer loops will see as well.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

    // Data of controls.
    /// Moves values between members and controls by DoDataExchange: into the members for TRUE.
    /// FALSE: a check failed and the user was told.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    // State.
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE)); }
    /// FALSE when nothing changes. With nFlags other than 0 SetWindowPos applies the new style.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int nID) { return ::SetWindowLong(m_hWnd, GWL_ID, nID); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE)
    {
        SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(CGdiObject::HandleOf(pFont)), bRedraw);
    }
    CFont* GetFont() const
    {
        return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    }
    HICON SetIcon(HICON hIcon, BOOL bBigIcon)
    {
        return reinterpret_cast<HICON>(
            SendMessage(WM_SETICON, bBigIcon, reinterpret_cast<LPARAM>(hIcon)));
    }

    // Text.
    void SetWindowText(LPCTSTR lpszString) { ::SetWindowText(m_hWnd, lpszString); }
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
    {
        return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
    }
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
    void SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemText(m_hWnd, nID, lpszString); }
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const
    {
        return ::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount);
    }
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE)
    {
        ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
    }
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const
    {
        return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
    }
    void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
    UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton)
    {
        ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
    }
    /// Id of the button that is checked; 0 for none.
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const;

    // Place and size.
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE)
    {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT r, BOOL bRepaint = TRUE)
    {
        MoveWindow(r->left, r->top, r->right - r->left, r->bottom - r->top, bRepaint);
    }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
    {
        return ::SetWindowPos(m_hWnd, HandleOf(pWndInsertAfter), x, y, cx, cy, nFlags);
    }
    /// Over the given window, or else over the owner; a child over its parent's client area. Never
    /// off the monitor.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
    {
        ::MapWindowPoints(m_hWnd, HandleOf(pwndTo), lpPoint, nCount);
    }
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const
    {
        MapWindowPoints(pwndTo, reinterpret_cast<LPPOINT>(lpRect), 2);
    }

    // Painting. Without a window nothing happens: Windows would take that for all windows.
    void Invalidate(BOOL bErase = TRUE) { InvalidateRect(nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE)
    {
        return ::GetUpdateRect(m_hWnd, lpRect, bErase);
    }
    void SetRedraw(BOOL bRedraw = TRUE) { SendMessage(WM_SETREDRAW, bRedraw); }
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    CDC* GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
    int ReleaseDC(CDC* pDC) { return ::ReleaseDC(m_hWnd, CDC::HandleOf(pDC)); }
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint)
    {
        return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
    }
    void EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
    void Print(CDC* pDC, DWORD dwFlags) const
    {
        SendMessage(WM_PRINT, reinterpret_cast<WPARAM>(CDC::HandleOf(pDC)),
                    static_cast<LPARAM>(dwFlags));
    }

    // Relations.
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* pWndNewParent)
    {
        return FromHandle(::SetParent(m_hWnd, HandleOf(pWndNewParent)));
    }
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const { return GetWindow(nFlag); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    /// The window set by SetOwner, or else the parent.
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = HandleOf(pOwnerWnd); }
    /// The first of this window and its parents that is no child.
    CWnd* GetTopLevelParent() const;
    BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, HandleOf(pWnd)); }
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const
    {
        return FromHandle(::GetNextDlgTabItem(m_hWnd, HandleOf(pWndCtl), bPrevious));
    }
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }

    // Input.
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    /// 0 without a window: Windows would make a timer of the thread.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer)
    {
        return m_hWnd ? ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer) : 0;
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }

    // Scroll bars.
    int GetScrollPos(int nBar) const { return ::GetScrollPos(m_hWnd, nBar); }
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE)
    {
        return ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw);
    }
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const
    {
        ::GetScrollRange(m_hWnd, nBar, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
    }
    /// The last position that the user can reach: the maximum, less a page if there is one.
    int GetScrollLimit(int nBar);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE)
    {
        ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
    }
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH)
    {
        return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
    }
    /// The scroll bar control that stands for a bar of this window; null for the window's own.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;

    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr,
                      LPCRECT lpClipRect = nullptr)
    {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
    }

    /// The caption is the name of the application when none is given.
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);

    /// Loads the initial data (resource type 240) of a dialog template into its controls.
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(const void* lpResource, DWORD nSize);

    /// For the handle map: the object is going, its handle lives on.
    static void ForgetHandle(CWnd& wnd) { wnd.m_hWnd = nullptr; }

protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// What the window does with a message of itself.
    virtual LRESULT DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam);
    /// DefWindowProc with the message at hand, as it came.
    LRESULT Default();

    /// Finds and calls the handler of a message. FALSE: there is none.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Offer a notification to the control that sent it, then to the message maps.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// A message that came to the parent of this control. TRUE: it is done with.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);

    virtual void DoDataExchange(CDataExchange*) {}
    /// Called last of all, when the window is gone and the object has let go of it. A class whose
    /// objects live on the heap may delete itself here.
    virtual void PostNcDestroy() {}

    // Handlers as the framework has them: all but a few just do the default.
    afx_msg int OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
    afx_msg int OnNcCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnNcDestroy();
    afx_msg void OnClose() { Default(); }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnMove(int, int) { Default(); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT);
    afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
    afx_msg void OnEnable(BOOL) { Default(); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    afx_msg void OnActivateApp(BOOL, DWORD) { Default(); }
    afx_msg BOOL OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
    afx_msg void OnCancelMode() { Default(); }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnMouseHover(UINT, CPoint) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
    afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
    afx_msg void OnNcPaint() { Default(); }
    afx_msg LRESULT OnNcHitTest(CPoint) { return Default(); }
    afx_msg BOOL OnNcActivate(BOOL) { return static_cast<BOOL>(Default()); }
    afx_msg void OnNcLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    afx_msg void OnHScroll(UINT, UINT, CScrollBar*);
    afx_msg void OnVScroll(UINT, UINT, CScrollBar*);
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT);
    afx_msg void OnMeasureItem(int, LPMEASUREITEMSTRUCT);
    afx_msg int OnCompareItem(int, LPCOMPAREITEMSTRUCT);
    afx_msg void OnDeleteItem(int, LPDELETEITEMSTRUCT);
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    afx_msg void OnSysCommand(UINT, LPARAM) { Default(); }
    afx_msg void OnParentNotify(UINT, LPARAM);
    afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }
    afx_msg void OnWindowPosChanging(WINDOWPOS*) { Default(); }
    afx_msg void OnWindowPosChanged(WINDOWPOS*) { Default(); }
    afx_msg void OnStyleChanging(int, LPSTYLESTRUCT) { Default(); }
    afx_msg void OnStyleChanged(int, LPSTYLESTRUCT) { Default(); }
    afx_msg void OnSettingChange(UINT, LPCTSTR) { Default(); }
    afx_msg void OnSysColorChange() { Default(); }

    /// Makes a dialog window of a template; its first messages reach this object.
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);

    bool m_modalLoop = false;     ///< RunModalLoop runs
    bool m_continueModal = false; ///< and shall go on
    int m_nModalResult = 0;
    HWND m_hWndOwner = nullptr;
    WNDPROC m_pfnSuper = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    friend LRESULT CALLBACK AfxWndProc(HWND, UINT, WPARAM, LPARAM);
    friend LRESULT AFXAPI AfxCallWndProc(CWnd*, HWND, UINT, WPARAM, LPARAM);
    friend LRESULT CALLBACK AfxCbtFilterHook(int, WPARAM, LPARAM);

    explicit CWnd(HWND hWnd)
        : m_hWnd(hWnd)
    {
    }

    void HookProcedure();
    BOOL HandleByMap(UINT key, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL CallHandler(const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam, LPARAM lParam,
                     LRESULT* pResult);
    bool DoIdleWork(DWORD flags, LONG count);
};

/// Window procedure of every window that has an object: makes the module state of this module
/// current, whoever sends the message, and hands the message to the object.
LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

/// From here on the next window that this thread creates becomes pWnd's.
void AFXAPI AfxHookWindowCreate(CWnd* pWnd);
/// FALSE: no window was created meanwhile.
BOOL AFXAPI AfxUnhookWindowCreate();

/// The window that shall own a message box or a modal dialog: the top-level window of the given
/// parent, or else of the main window, of which the last active popup counts. Null for none.
HWND AFXAPI AfxFindOwner(HWND hWndParent);

/// Registers a class for these arguments unless it is there; the same arguments give the same
/// name, valid as long as the module. Throws CResourceException on failure.
LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                   HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
/// Registers a class unless it is there. A DLL's classes go with the DLL.
BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);

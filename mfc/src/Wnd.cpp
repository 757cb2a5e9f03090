#include <afxwin.h>

#include <algorithm>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

namespace
{
CHandleMap<CWnd>& Windows()
{
    return *AfxGetModuleThreadState()->m_windows;
}

bool IsPlaceInOrder(HWND window)
{
    return window == HWND_BOTTOM || window == HWND_TOPMOST || window == HWND_NOTOPMOST;
}

BOOL ModifyStyleOf(HWND window, int index, DWORD remove, DWORD add, UINT flags)
{
    const DWORD style = static_cast<DWORD>(::GetWindowLong(window, index));
    const DWORD newStyle = (style & ~remove) | add;
    if (style == newStyle)
    {
        return FALSE;
    }
    ::SetWindowLong(window, index, static_cast<LONG>(newStyle));
    if (flags != 0)
    {
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
    return TRUE;
}

/// Moves an interval of a length into the limits; where it doesn't fit, its start counts.
LONG KeepWithin(LONG start, LONG length, LONG low, LONG high)
{
    return std::max(std::min(start, high - length), low);
}

/// The part of the screen, or of the parent, in which a window may be centred.
CRect AreaFor(HWND window, HWND over)
{
    if (::GetWindowLong(window, GWL_STYLE) & WS_CHILD)
    {
        CRect area;
        ::GetClientRect(::GetParent(window), &area);
        return area;
    }
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfo(::MonitorFromWindow(over ? over : window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor.rcWork;
}

void SendToDescendants(HWND parent, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                       BOOL onlyPermanent)
{
    HWND next = nullptr;
    for (HWND child = ::GetTopWindow(parent); child; child = next)
    {
        next = ::GetWindow(child, GW_HWNDNEXT);
        if (!onlyPermanent || CWnd::FromHandlePermanent(child))
        {
            ::SendMessage(child, message, wParam, lParam);
        }
        if (deep)
        {
            SendToDescendants(child, message, wParam, lParam, deep, onlyPermanent);
        }
    }
}
} // namespace

CWnd::~CWnd()
{
    if (!m_hWnd || IsPlaceInOrder(m_hWnd))
    {
        return;
    }
    if (::IsWindow(m_hWnd))
    {
        TRACE0("Warning: a window is destroyed by the destructor of CWnd.\n");
        CWnd::DestroyWindow();
    }
    Detach();
}

HWND CWnd::GetSafeHwnd() const
{
    return this ? m_hWnd : nullptr;
}

CWnd* CWnd::FromHandle(HWND hWnd)
{
    const int level = AfxGetModuleThreadState()->m_tempLevel;
    return Windows().FindOrMake(hWnd, level, [hWnd]() { return new CWnd(hWnd); });
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd)
{
    return hWnd ? Windows().FindPermanent(hWnd) : nullptr;
}

void CWnd::DeleteTempMap()
{
    AFX_MODULE_THREAD_STATE* state = AfxGetModuleThreadState();
    state->DeleteTempObjects(state->m_tempLevel);
}

BOOL CWnd::Attach(HWND hWndNew)
{
    if (!hWndNew || m_hWnd || FromHandlePermanent(hWndNew))
    {
        TRACE0("Warning: a window or an object that has its counterpart can't get another.\n");
        return FALSE;
    }
    m_hWnd = hWndNew;
    Windows().SetPermanent(hWndNew, this);
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND hWnd = m_hWnd;
    if (hWnd && FromHandlePermanent(hWnd) == this)
    {
        Windows().RemovePermanent(hWnd);
    }
    m_hWnd = nullptr;
    return hWnd;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!::IsWindow(hWnd) || !Attach(hWnd))
    {
        return FALSE;
    }
    PreSubclassWindow();
    HookProcedure();
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    return SubclassWindow(::GetDlgItem(HandleOf(pParent), static_cast<int>(nID)));
}

HWND CWnd::UnsubclassWindow()
{
    WNDPROC& super = *GetSuperWndProcAddr();
    if (m_hWnd && super)
    {
        ::SetWindowLong(m_hWnd, GWL_WNDPROC, reinterpret_cast<LONG>(super));
        super = nullptr;
    }
    return Detach();
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
    {
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW,
                                           ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), nullptr);
    }
    return TRUE;
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    ASSERT((dwStyle & WS_POPUP) == 0);
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID,
                    pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, HandleOf(pParentWnd),
                    reinterpret_cast<HMENU>(nID), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                    LPVOID lpParam)
{
    ASSERT(m_hWnd == nullptr);
    if (m_hWnd)
    {
        return FALSE;
    }
    CREATESTRUCT cs = {
        lpParam, AfxGetInstanceHandle(),     nIDorHMenu,     hWndParent,    nHeight,  nWidth, y,
        x,       static_cast<LONG>(dwStyle), lpszWindowName, lpszClassName, dwExStyle};
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND hWnd = ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName,
                                       static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx, cs.cy,
                                       cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    if (!AfxUnhookWindowCreate())
    {
        // No window ever was; otherwise its end has already told the object.
        PostNcDestroy();
    }
    return hWnd != nullptr;
}

BOOL CWnd::DestroyWindow()
{
    if (!m_hWnd)
    {
        return FALSE;
    }
    const HWND hWnd = m_hWnd;
    const bool permanent = FromHandlePermanent(hWnd) == this;
    const BOOL destroyed = ::DestroyWindow(hWnd);
    // The object may be gone. It is in the map only if the window's end did not reach it: when it
    // was attached without the procedure.
    if (destroyed && permanent && FromHandlePermanent(hWnd) == this)
    {
        Detach();
    }
    return destroyed;
}

void CWnd::OnNcDestroy()
{
    CWinThread* thread = AfxGetThread();
    if (thread && thread->m_pMainWnd == this)
    {
        thread->m_pMainWnd = nullptr;
        if (!AfxGetModuleState()->m_bDLL)
        {
            AfxPostQuitMessage(0);
        }
    }
    const LONG procedure = ::GetWindowLong(m_hWnd, GWL_WNDPROC);
    Default();
    WNDPROC& super = *GetSuperWndProcAddr();
    if (super && ::GetWindowLong(m_hWnd, GWL_WNDPROC) == procedure)
    {
        ::SetWindowLong(m_hWnd, GWL_WNDPROC, reinterpret_cast<LONG>(super));
    }
    super = nullptr;
    Detach();
    PostNcDestroy();
}

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    for (HWND hWnd = pMsg->hwnd; hWnd; hWnd = ::GetParent(hWnd))
    {
        CWnd* wnd = FromHandlePermanent(hWnd);
        if (wnd && wnd->PreTranslateMessage(pMsg))
        {
            return TRUE;
        }
        if (hWnd == hWndStop)
        {
            break;
        }
    }
    return FALSE;
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                    BOOL bOnlyPerm)
{
    if (m_hWnd)
    {
        SendToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
    }
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyStyleOf(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyStyleOf(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

void CWnd::GetWindowText(CString& rString) const
{
    // Rich edits count characters, of which each may take two bytes.
    const int capacity = 2 * ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, rString.GetBufferSetLength(capacity), capacity + 1);
    rString.ReleaseBuffer();
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    GetDlgItem(nID) ? GetDlgItem(nID)->GetWindowText(rString) : rString.Empty();
    return rString.GetLength();
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const
{
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id)
    {
        if (IsDlgButtonChecked(id))
        {
            return id;
        }
    }
    return 0;
}

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    const bool child = (GetStyle() & WS_CHILD) != 0;
    HWND over = HandleOf(pAlternateOwner);
    if (!over)
    {
        over = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    }
    if (over && !child && (!::IsWindowVisible(over) || ::IsIconic(over)))
    {
        over = nullptr;
    }
    const CRect area = AreaFor(m_hWnd, over);
    CRect target = area;
    if (over && !child)
    {
        ::GetWindowRect(over, &target);
    }
    else if (pAlternateOwner)
    {
        ::GetWindowRect(over, &target);
        ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&target), 2);
    }
    CRect window;
    GetWindowRect(&window);
    const CSize size = window.Size();
    const CPoint centre = target.CenterPoint();
    SetWindowPos(nullptr, KeepWithin(centre.x - size.cx / 2, size.cx, area.left, area.right),
                 KeepWithin(centre.y - size.cy / 2, size.cy, area.top, area.bottom), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase)
{
    if (m_hWnd)
    {
        ::InvalidateRect(m_hWnd, lpRect, bErase);
    }
}

void CWnd::ValidateRect(LPCRECT lpRect)
{
    if (m_hWnd)
    {
        ::ValidateRect(m_hWnd, lpRect);
    }
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase)
{
    if (m_hWnd)
    {
        ::InvalidateRgn(m_hWnd, static_cast<HRGN>(CGdiObject::HandleOf(pRgn)), bErase);
    }
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags)
{
    return m_hWnd && ::RedrawWindow(m_hWnd, lpRectUpdate,
                                    static_cast<HRGN>(CGdiObject::HandleOf(prgnUpdate)), flags);
}

CWnd* CWnd::GetOwner() const
{
    return m_hWndOwner ? FromHandle(m_hWndOwner) : GetParent();
}

CWnd* CWnd::GetTopLevelParent() const
{
    return m_hWnd ? FromHandle(::GetAncestor(m_hWnd, GA_ROOT)) : nullptr;
}

int CWnd::GetScrollLimit(int nBar)
{
    int minimum = 0;
    int maximum = 0;
    GetScrollRange(nBar, &minimum, &maximum);
    SCROLLINFO info = {};
    if (GetScrollInfo(nBar, &info, SIF_PAGE))
    {
        maximum -= std::max(static_cast<int>(info.nPage) - 1, 0);
    }
    return maximum;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return m_hWnd != nullptr;
}

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType)
{
    return ::MessageBox(m_hWnd, lpszText, lpszCaption ? lpszCaption : AfxGetAppName(), nType);
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    CDataExchange exchange(this, bSaveAndValidate);
    HWND& locked = AfxGetThreadState()->m_hLockoutNotifyWindow;
    const HWND outer = locked;
    // Values set by the program are no changes that the user made.
    locked = m_hWnd;
    BOOL valid = TRUE;
    try
    {
        DoDataExchange(&exchange);
    }
    catch (CUserException* e)
    {
        e->Delete();
        valid = FALSE;
    }
    locked = outer;
    return valid;
}

HWND AFXAPI AfxFindOwner(HWND hWndParent)
{
    HWND owner = hWndParent ? hWndParent : CWnd::HandleOf(AfxGetMainWnd());
    if (!owner)
    {
        owner = ::GetActiveWindow();
    }
    if (!owner)
    {
        return nullptr;
    }
    owner = ::GetAncestor(owner, GA_ROOT);
    return hWndParent ? owner : ::GetLastActivePopup(owner);
}

// How windows and objects come together: the window procedure, the hook that is there before a
// new window's first message, window classes.

#include <afxwin.h>

namespace
{
/// Keeps the message at hand for Default, also when messages nest.
class CCurrentMessage
{
public:
    CCurrentMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
        : m_current(AfxGetThreadState()->m_lastSentMsg)
        , m_outer(m_current)
    {
        m_current = {};
        m_current.hwnd = window;
        m_current.message = message;
        m_current.wParam = wParam;
        m_current.lParam = lParam;
    }
    ~CCurrentMessage() { m_current = m_outer; }
    CCurrentMessage(const CCurrentMessage&) = delete;
    CCurrentMessage& operator=(const CCurrentMessage&) = delete;

private:
    MSG& m_current;
    MSG m_outer;
};

/// What a window answers when its handler threw.
LRESULT AfterException(HWND window, UINT message, CException& exception)
{
    if (message == WM_PAINT)
    {
        // Else Windows would ask for the same painting for ever.
        ::ValidateRect(window, nullptr);
    }
    if (!exception.IsKindOf(RUNTIME_CLASS(CUserException)))
    {
        exception.ReportError(MB_ICONEXCLAMATION);
    }
    exception.Delete();
    return message == WM_CREATE ? -1 : 0;
}

bool IsInputMethodWindow(HWND window)
{
    return (::GetClassLong(window, GCL_STYLE) & CS_IME) != 0;
}
} // namespace

LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    const CCurrentMessage current(hWnd, nMsg, wParam, lParam);
    try
    {
        return pWnd->WindowProc(nMsg, wParam, lParam);
    }
    catch (CException* e)
    {
        return AfterException(hWnd, nMsg, *e);
    }
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    const CMessageScope scope;
    CWnd* wnd = CWnd::FromHandlePermanent(hWnd);
    return wnd ? AfxCallWndProc(wnd, hWnd, nMsg, wParam, lParam)
               : ::DefWindowProc(hWnd, nMsg, wParam, lParam);
}

void CWnd::HookProcedure()
{
    const LONG own = reinterpret_cast<LONG>(&AfxWndProc);
    const LONG previous = ::SetWindowLong(m_hWnd, GWL_WNDPROC, own);
    if (previous != own)
    {
        *GetSuperWndProcAddr() = reinterpret_cast<WNDPROC>(previous);
    }
}

LRESULT CALLBACK AfxCbtFilterHook(int code, WPARAM wParam, LPARAM lParam)
{
    AFX_THREAD_STATE* thread = AfxGetThreadState();
    const HWND window = reinterpret_cast<HWND>(wParam);
    // The first window of a thread brings one of the input method with it.
    if (code == HCBT_CREATEWND && thread->m_pWndInit && !IsInputMethodWindow(window))
    {
        CWnd* wnd = thread->m_pWndInit;
        thread->m_pWndInit = nullptr;
        wnd->Attach(window);
        wnd->PreSubclassWindow();
        wnd->HookProcedure();
    }
    return ::CallNextHookEx(thread->m_hHookOldCbtFilter, code, wParam, lParam);
}

void AFXAPI AfxHookWindowCreate(CWnd* pWnd)
{
    AFX_THREAD_STATE* thread = AfxGetThreadState();
    if (!thread->m_hHookOldCbtFilter)
    {
        thread->m_hHookOldCbtFilter =
            ::SetWindowsHookEx(WH_CBT, &AfxCbtFilterHook, nullptr, ::GetCurrentThreadId());
        if (!thread->m_hHookOldCbtFilter)
        {
            AfxThrowMemoryException();
        }
    }
    thread->m_pWndInit = pWnd;
}

BOOL AFXAPI AfxUnhookWindowCreate()
{
    AFX_THREAD_STATE* thread = AfxGetThreadState();
    if (thread->m_hHookOldCbtFilter)
    {
        ::UnhookWindowsHookEx(thread->m_hHookOldCbtFilter);
        thread->m_hHookOldCbtFilter = nullptr;
    }
    const bool created = thread->m_pWndInit == nullptr;
    thread->m_pWndInit = nullptr;
    return created;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground,
                                   HICON hIcon)
{
    AFX_MODULE_STATE* module = AfxGetModuleState();
    CString name;
    name.Format("Afx:%p:%x:%p:%p:%p", static_cast<void*>(module->m_hCurrentInstanceHandle),
                nClassStyle, static_cast<void*>(hCursor), static_cast<void*>(hbrBackground),
                static_cast<void*>(hIcon));
    LPCTSTR kept = module->m_classNames.insert(name.GetString()).first->c_str();

    WNDCLASS wndClass = {};
    wndClass.style = nClassStyle;
    wndClass.lpfnWndProc = ::DefWindowProc;
    wndClass.hInstance = module->m_hCurrentInstanceHandle;
    wndClass.hIcon = hIcon;
    wndClass.hCursor = hCursor;
    wndClass.hbrBackground = hbrBackground;
    wndClass.lpszClassName = kept;
    if (!AfxRegisterClass(&wndClass))
    {
        AfxThrowResourceException();
    }
    return kept;
}

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass)
{
    WNDCLASS existing;
    if (::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &existing))
    {
        return TRUE;
    }
    if (!::RegisterClass(lpWndClass))
    {
        return FALSE;
    }
    AFX_MODULE_STATE* module = AfxGetModuleState();
    if (module->m_bDLL && !IS_INTRESOURCE(lpWndClass->lpszClassName))
    {
        module->m_registeredClasses.insert(lpWndClass->lpszClassName);
    }
    return TRUE;
}

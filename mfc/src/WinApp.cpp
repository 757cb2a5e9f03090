#include <afxwin.h>

#include <afxres.h>

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace
{
/// File name of a module without its folder and its extension.
CString ModuleTitle(HINSTANCE module)
{
    char path[MAX_PATH] = "";
    ::GetModuleFileName(module, path, MAX_PATH);
    path[MAX_PATH - 1] = '\0';
    CString title(path);
    title = title.Mid(title.ReverseFind('\\') + 1);
    const int dot = title.ReverseFind('.');
    return dot < 0 ? title : title.Left(dot);
}

UINT IconFor(UINT type)
{
    if (type & MB_ICONMASK)
    {
        return 0;
    }
    switch (type & MB_TYPEMASK)
    {
    case MB_OK:
    case MB_OKCANCEL:
        return MB_ICONEXCLAMATION;
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return MB_ICONQUESTION;
    default:
        return 0;
    }
}

LRESULT CALLBACK MessageFilterHook(int code, WPARAM wParam, LPARAM lParam)
{
    CWinThread* thread = AfxGetThread();
    if (code >= 0 && thread && thread->ProcessMessageFilter(code, reinterpret_cast<LPMSG>(lParam)))
    {
        return 1;
    }
    return ::CallNextHookEx(AfxGetThreadState()->m_hHookOldMsgFilter, code, wParam, lParam);
}
} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName)
{
    AFX_MODULE_STATE* module = AfxGetModuleState();
    ASSERT(module->m_pCurrentWinApp == nullptr);
    module->m_pCurrentWinApp = this;
    AfxGetModuleThreadState()->m_pCurrentWinThread = this;
    if (lpszAppName)
    {
        m_appName = lpszAppName;
        m_pszAppName = m_appName;
        module->m_lpszCurrentAppName = m_pszAppName;
    }
}

CWinApp::~CWinApp()
{
    AFX_MODULE_STATE* module = AfxGetModuleState();
    if (module->m_pCurrentWinApp == this)
    {
        module->m_pCurrentWinApp = nullptr;
        module->m_lpszCurrentAppName = nullptr;
    }
}

void CWinApp::SetCurrentHandles(HINSTANCE hInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    m_hInstance = hInstance;
    m_lpCmdLine = lpCmdLine;
    m_nCmdShow = nCmdShow;
    m_exeName = ModuleTitle(hInstance);
    m_pszExeName = m_exeName;
    if (!m_pszAppName)
    {
        if (!m_appName.LoadString(AFX_IDS_APP_TITLE))
        {
            m_appName = m_exeName;
        }
        m_pszAppName = m_appName;
    }
    AfxGetModuleState()->m_lpszCurrentAppName = m_pszAppName;
}

int CWinApp::Run()
{
    if (!m_pMainWnd)
    {
        // Nothing would ever end the loop.
        AfxPostQuitMessage(0);
    }
    return CWinThread::Run();
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const
{
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const
{
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT)
{
    return ::MessageBox(AfxFindOwner(nullptr), lpszPrompt, AfxGetAppName(), nType | IconFor(nType));
}

CWinApp* AFXAPI AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp)
{
    CWinApp* app = AfxGetApp();
    return app ? app->DoMessageBox(lpszText, nType, nIDHelp)
               : ::MessageBox(AfxFindOwner(nullptr), lpszText, AfxGetAppName(),
                              nType | IconFor(nType));
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString text;
    text.LoadString(nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow)
{
    AFX_MODULE_STATE* module = AfxGetModuleState();
    module->m_hCurrentInstanceHandle = hInstance;
    module->m_hCurrentResourceHandle = hInstance;
    if (CWinApp* app = AfxGetApp())
    {
        app->SetCurrentHandles(hInstance, lpCmdLine, nCmdShow);
    }
    AFX_THREAD_STATE* thread = AfxGetThreadState();
    if (!module->m_bDLL && !thread->m_hHookOldMsgFilter)
    {
        thread->m_hHookOldMsgFilter =
            ::SetWindowsHookEx(WH_MSGFILTER, &MessageFilterHook, nullptr, ::GetCurrentThreadId());
    }
    return TRUE;
}

void AFXAPI AfxWinTerm()
{
    AFX_MODULE_STATE* module = AfxGetModuleState();
    for (const std::string& name : module->m_registeredClasses)
    {
        ::UnregisterClass(name.c_str(), module->m_hCurrentInstanceHandle);
    }
    module->m_registeredClasses.clear();
    AfxUnhookWindowCreate();
    AFX_THREAD_STATE* thread = AfxGetThreadState();
    if (thread->m_hHookOldMsgFilter)
    {
        ::UnhookWindowsHookEx(thread->m_hHookOldMsgFilter);
        thread->m_hHookOldMsgFilter = nullptr;
    }
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    CWinApp* app = AfxGetApp();
    if (!app || !AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow))
    {
        return -1;
    }
    int result = -1;
    if (app->InitApplication() && app->InitInstance())
    {
        result = app->Run();
    }
    else
    {
        if (app->m_pMainWnd)
        {
            app->m_pMainWnd->DestroyWindow();
        }
        result = app->ExitInstance();
    }
    AfxWinTerm();
    return result;
}

BOOL AFXAPI AfxInitRichEdit()
{
    static const HMODULE library = ::LoadLibrary("RICHED32.DLL");
    return library != nullptr;
}

BOOL AFXAPI AfxInitRichEdit2()
{
    static const HMODULE library = ::LoadLibrary("RICHED20.DLL");
    return library != nullptr;
}

// A DLL with an application object, as the product is one.

#include "tests/mfc/TestDll.h"

#include "tests/mfc/TestResources.h"

#include <afxcmn.h>

namespace
{
CString ReadLog()
{
    char log[512] = "";
    ::GetEnvironmentVariable(kDllLog, log, sizeof(log));
    return log;
}

void AppendLog(const char* text)
{
    ::SetEnvironmentVariable(kDllLog, ReadLog() + text);
}

constexpr UINT kEndByApplication = WM_APP + 9;

class CDllDlg : public CDialog
{
public:
    CDllDlg()
        : CDialog(IDD_PLAIN)
    {
    }

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        GetDlgItem(IDC_BUTTON)->PostMessage(kEndByApplication);
        return TRUE;
    }
};

CDllDlg* running = nullptr;

INT_PTR RunTheDialog()
{
    CDllDlg dialog;
    running = &dialog;
    const INT_PTR result = dialog.DoModal();
    running = nullptr;
    return result;
}

class CDllApp : public CWinApp
{
public:
    ~CDllApp() override { AppendLog("destroyed;"); }

    BOOL InitInstance() override
    {
        const CString wish = ReadLog();
        AppendLog("init;");
        if (wish.Find(kRefuse) >= 0)
        {
            return FALSE;
        }
        if (wish.Find(kModal) >= 0 && RunTheDialog() == 91)
        {
            AppendLog("dialog;");
        }
        return CWinApp::InitInstance();
    }
    int ExitInstance() override
    {
        AppendLog("exit;");
        return CWinApp::ExitInstance();
    }
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (pMsg->message == kEndByApplication && running)
        {
            running->EndDialog(91);
            return TRUE;
        }
        return CWinApp::PreTranslateMessage(pMsg);
    }
};

CDllApp theApp;

/// Answers a message with the number of the module that it runs in.
class CDllWnd : public CWnd
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP)
        {
            return reinterpret_cast<LRESULT>(AfxGetInstanceHandle());
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override { delete this; }
};
} // namespace

extern "C" __declspec(dllexport) INT_PTR WINAPI RunDialog()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return RunTheDialog();
}

extern "C" __declspec(dllexport) HWND WINAPI MakeWindow(HWND parent)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    auto* wnd = new CDllWnd;
    wnd->Create(nullptr, "", WS_VISIBLE, CRect(0, 0, 10, 10), CWnd::FromHandle(parent), 1);
    return wnd->m_hWnd;
}

extern "C" __declspec(dllexport) BOOL WINAPI IsStateUntouched()
{
    return AfxGetThreadState()->m_pModuleState == nullptr;
}

extern "C" __declspec(dllexport) LPCSTR WINAPI RegisteredClass()
{
    return AfxRegisterWndClass(CS_DBLCLKS);
}

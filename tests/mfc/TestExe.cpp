// A program whose entry point is the framework's. ProgramTest runs it.

#include <afxwin.h>

namespace
{
constexpr int kExitCode = 42;
constexpr int kRefusedExitCode = 7;

class CMainWnd : public CWnd
{
protected:
    void PostNcDestroy() override { delete this; }
};

class CExeApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        m_refuses = CString(m_lpCmdLine) == "refuse";
        auto* mainWnd = new CMainWnd;
        mainWnd->CreateEx(0, nullptr, m_pszAppName, WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr,
                          nullptr);
        m_pMainWnd = mainWnd;
        m_pMainWnd->PostMessage(WM_CLOSE);
        return !m_refuses;
    }
    int ExitInstance() override
    {
        const bool windowIsGone = m_pMainWnd == nullptr;
        const int code = m_refuses ? kRefusedExitCode : kExitCode + CWinApp::ExitInstance();
        return windowIsGone ? code : -1;
    }

private:
    bool m_refuses = false;
};

CExeApp theApp;
} // namespace

#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

/// The test program's application object. Tests look at what reaches it.
class CTestApp : public CWinApp
{
public:
    CTestApp()
        : CWinApp("mfc_tests")
    {
    }

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL ProcessMessageFilter(int code, LPMSG lpMsg) override;
    afx_msg void OnAppCommand() { ++commands; }

    std::function<bool(const MSG&)> onPreTranslate; ///< true eats the message
    int commands = 0;
    int filtered = 0;

    DECLARE_MESSAGE_MAP()
};

extern CTestApp theApp;

/// Command that only the application object handles.
constexpr UINT kAppCommand = 0x8001;

/// Dispatches what is in the queue, and then does the idle work as the framework's loop would.
void PumpPending();

/// A top-level window that tests put their children in.
class CTestFrame : public CWnd
{
public:
    explicit CTestFrame(bool visible = true);
    ~CTestFrame() override { DestroyWindow(); }
};

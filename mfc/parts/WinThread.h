#pragma once

#include "mfc/parts/Wnd.h"

/// A thread of windows: its message loop and what comes before a message is dispatched.
class CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread() = default;
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;

    virtual BOOL InitInstance() { return FALSE; }
    /// Runs the loop until WM_QUIT; returns ExitInstance's result.
    virtual int Run();
    virtual int ExitInstance();

    /// First of all for each message that a loop of the framework got: offers it to the window it
    /// is for and to its parents, and to the main window. TRUE: it shall not be dispatched.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Gets one message and dispatches it; FALSE on WM_QUIT.
    virtual BOOL PumpMessage();
    /// Work for a time without messages; ends temporary objects. TRUE: there is more to do.
    virtual BOOL OnIdle(LONG lCount);
    /// FALSE for messages after which no idle work is worth while.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// Sees the messages of the loops that Windows itself runs, of message boxes and menus.
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);

    /// m_pMainWnd, or else the thread's active window.
    virtual CWnd* GetMainWnd();
};

/// The thread's object; null in a thread that has none.
CWinThread* AFXAPI AfxGetThread();
MSG* AFXAPI AfxGetCurrentMessage();
CWnd* AFXAPI AfxGetMainWnd();

// What loops of the framework use: the thread's object, or the same without one.
BOOL AFXAPI AfxPumpMessage();
BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);
BOOL AFXAPI AfxIsIdleMessage(MSG* pMsg);
void AFXAPI AfxPostQuitMessage(int nExitCode);

#include <afxwin.h>

#include "mfc/src/MessageQueue.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

namespace
{
BOOL PumpOneMessage()
{
    MSG& message = AfxGetThreadState()->m_msgCur;
    if (::GetMessage(&message, nullptr, 0, 0) <= 0)
    {
        return FALSE;
    }
    // A copy: dispatching may run loops that get messages of their own.
    MSG current = message;
    if (current.message != WM_KICKIDLE && !AfxPreTranslateMessage(&current))
    {
        ::TranslateMessage(&current);
        ::DispatchMessage(&current);
    }
    AfxGetThreadState()->m_msgCur = current;
    return TRUE;
}

BOOL OfferToWindows(MSG* message)
{
    if (!message->hwnd)
    {
        return FALSE;
    }
    CWnd* mainWnd = AfxGetMainWnd();
    const HWND stop = CWnd::HandleOf(mainWnd);
    if (CWnd::WalkPreTranslateTree(stop, message))
    {
        return TRUE;
    }
    // Windows of a modeless dialog: the main window has not seen the message yet.
    return mainWnd && ::GetAncestor(message->hwnd, GA_ROOT) != stop &&
           mainWnd->PreTranslateMessage(message);
}

bool IsMouseMove(UINT message)
{
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE;
}
} // namespace

CWinThread::~CWinThread()
{
    AFX_MODULE_THREAD_STATE* state = AfxGetModuleThreadState();
    if (state->m_pCurrentWinThread == this)
    {
        state->m_pCurrentWinThread = nullptr;
    }
}

int CWinThread::Run()
{
    LONG idleCount = 0;
    bool idle = true;
    while (true)
    {
        if (idle && !IsMessageWaiting())
        {
            idle = OnIdle(idleCount++);
            continue;
        }
        if (!PumpMessage())
        {
            return ExitInstance();
        }
        if (IsIdleMessage(AfxGetCurrentMessage()))
        {
            idle = true;
            idleCount = 0;
        }
    }
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(AfxGetCurrentMessage()->wParam);
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    return OfferToWindows(pMsg);
}

BOOL CWinThread::PumpMessage()
{
    return PumpOneMessage();
}

BOOL CWinThread::OnIdle(LONG)
{
    CWnd::DeleteTempMap();
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    if (IsMouseMove(pMsg->message))
    {
        // Windows sends moves of a mouse that rests, whenever windows change.
        AFX_THREAD_STATE* thread = AfxGetThreadState();
        const bool rests =
            CPoint(thread->m_ptCursorLast) == pMsg->pt && thread->m_nMsgLast == pMsg->message;
        thread->m_ptCursorLast = pMsg->pt;
        thread->m_nMsgLast = pMsg->message;
        return !rests;
    }
    return pMsg->message != WM_PAINT && pMsg->message != kCaretBlink;
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG)
{
    return FALSE;
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pMainWnd ? m_pMainWnd : CWnd::GetActiveWindow();
}

CWinThread* AFXAPI AfxGetThread()
{
    return AfxGetModuleThreadState()->m_pCurrentWinThread;
}

MSG* AFXAPI AfxGetCurrentMessage()
{
    return &AfxGetThreadState()->m_msgCur;
}

CWnd* AFXAPI AfxGetMainWnd()
{
    CWinThread* thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : CWnd::GetActiveWindow();
}

BOOL AFXAPI AfxPumpMessage()
{
    CWinThread* thread = AfxGetThread();
    return thread ? thread->PumpMessage() : PumpOneMessage();
}

BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg)
{
    CWinThread* thread = AfxGetThread();
    return thread ? thread->PreTranslateMessage(pMsg) : OfferToWindows(pMsg);
}

BOOL AFXAPI AfxIsIdleMessage(MSG* pMsg)
{
    CWinThread* thread = AfxGetThread();
    return !thread || thread->IsIdleMessage(pMsg);
}

void AFXAPI AfxPostQuitMessage(int nExitCode)
{
    ::PostQuitMessage(nExitCode);
}

#include <afxwin.h>

#include "mfc/src/MessageQueue.h"

namespace
{
/// Messages that come only when the queue has no other, so that there is no time without any.
bool ComesWhenIdle(UINT message)
{
    return message == WM_PAINT || message == WM_TIMER || message == kCaretBlink;
}
} // namespace

BOOL CWnd::ContinueModal()
{
    return m_continueModal && m_hWnd;
}

void CWnd::EndModalLoop(int nResult)
{
    m_nModalResult = nResult;
    if (m_continueModal)
    {
        m_continueModal = false;
        // The loop may be waiting for a message.
        PostMessage(WM_NULL);
    }
}

/// FALSE: nothing is left to do until the next message.
bool CWnd::DoIdleWork(DWORD flags, LONG count)
{
    DeleteTempMap();
    const HWND parent = ::GetParent(m_hWnd);
    if (!(flags & MLF_NOIDLEMSG) && parent && count == 0)
    {
        ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
    }
    return !(flags & MLF_NOKICKIDLE) && SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, count) != 0;
}

int CWnd::RunModalLoop(DWORD dwFlags)
{
    const CTempScope scope;
    bool mustShow = (dwFlags & MLF_SHOWONIDLE) && !(GetStyle() & WS_VISIBLE);
    const auto show = [&]()
    {
        ShowWindow(SW_SHOWNORMAL);
        UpdateWindow();
        mustShow = false;
    };

    m_modalLoop = true;
    m_continueModal = true;
    LONG idleCount = 0;
    bool idle = true;
    while (ContinueModal())
    {
        if (idle && !IsMessageWaiting())
        {
            if (mustShow)
            {
                show();
            }
            idle = DoIdleWork(dwFlags, idleCount++);
            continue;
        }
        if (!AfxPumpMessage())
        {
            // The quit message is meant for the outermost loop.
            AfxPostQuitMessage(static_cast<int>(AfxGetCurrentMessage()->wParam));
            m_nModalResult = -1;
            break;
        }
        MSG current = *AfxGetCurrentMessage();
        if (mustShow && ComesWhenIdle(current.message) && ContinueModal())
        {
            show();
        }
        if (AfxIsIdleMessage(&current))
        {
            idle = true;
            idleCount = 0;
        }
    }
    m_modalLoop = m_continueModal = false;
    return m_nModalResult;
}

// What puts drawn scroll bars over a window class of the framework.
#pragma once

#include "skin/scroll/CoolSBWrapper.h"

#include <afxwin.h>

/// A window of the framework whose scroll operations mean the drawn bars, once Init has put them
/// there. It draws them itself: its parent must be a window of the framework, which hands
/// notifications back to their sender.
template <typename TWindow>
class CoolSBRouting : public TWindow, public CoolSBWrapper
{
public:
    using TWindow::TWindow;

    using CoolSBWrapper::GetScrollInfo;
    using CoolSBWrapper::GetScrollPos;
    using CoolSBWrapper::GetScrollRange;
    using CoolSBWrapper::SetScrollInfo;
    using CoolSBWrapper::SetScrollPos;
    using CoolSBWrapper::SetScrollRange;
    using CoolSBWrapper::ShowScrollBar;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        LRESULT result = 0;
        if (AnswerCustomDraw(message, lParam, &result))
            return result;
        return TWindow::WindowProc(message, wParam, lParam);
    }

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        return AnswerCustomDraw(message, lParam, result) ||
               TWindow::OnChildNotify(message, wParam, lParam, result);
    }

    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar)
    {
        if (bar) // a control, not the window's own
            TWindow::OnHScroll(code, pos, bar);
        else
            CoolSBWrapper::OnHScroll(code, pos);
    }

    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar)
    {
        if (bar)
            TWindow::OnVScroll(code, pos, bar);
        else
            CoolSBWrapper::OnVScroll(code, pos);
    }

    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_TEMPLATE_MESSAGE_MAP(CoolSBRouting, TWindow, TWindow)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()
// clang-format on

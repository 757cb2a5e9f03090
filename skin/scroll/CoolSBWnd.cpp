#include "skin/scroll/CoolSBWnd.h"

// clang-format off
BEGIN_MESSAGE_MAP(CoolSBWnd, CWnd)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()
// clang-format on

LRESULT CoolSBWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (AnswerCustomDraw(message, lParam, &result))
        return result;
    return CWnd::WindowProc(message, wParam, lParam);
}

BOOL CoolSBWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return AnswerCustomDraw(message, lParam, result) ||
           CWnd::OnChildNotify(message, wParam, lParam, result);
}

void CoolSBWnd::OnHScroll(UINT code, UINT pos, CScrollBar* bar)
{
    if (bar) // a control, not the window's own
        CWnd::OnHScroll(code, pos, bar);
    else
        CoolSBWrapper::OnHScroll(code, pos);
}

void CoolSBWnd::OnVScroll(UINT code, UINT pos, CScrollBar* bar)
{
    if (bar)
        CWnd::OnVScroll(code, pos, bar);
    else
        CoolSBWrapper::OnVScroll(code, pos);
}

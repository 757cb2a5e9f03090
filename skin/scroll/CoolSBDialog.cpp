#include "skin/scroll/CoolSBDialog.h"

// clang-format off
BEGIN_MESSAGE_MAP(CoolSBDialog, CDialog)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()
// clang-format on

CoolSBDialog::CoolSBDialog(UINT id, CWnd* parent)
    : CDialog(id, parent)
{
}

BOOL CoolSBDialog::Create(UINT id, CWnd* parent)
{
    return CDialog::Create(id, parent);
}

LRESULT CoolSBDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (AnswerCustomDraw(message, lParam, &result))
        return result;
    return CDialog::WindowProc(message, wParam, lParam);
}

BOOL CoolSBDialog::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return AnswerCustomDraw(message, lParam, result) ||
           CDialog::OnChildNotify(message, wParam, lParam, result);
}

void CoolSBDialog::OnHScroll(UINT code, UINT pos, CScrollBar* bar)
{
    if (bar) // a control, not the window's own
        CDialog::OnHScroll(code, pos, bar);
    else
        CoolSBWrapper::OnHScroll(code, pos);
}

void CoolSBDialog::OnVScroll(UINT code, UINT pos, CScrollBar* bar)
{
    if (bar)
        CDialog::OnVScroll(code, pos, bar);
    else
        CoolSBWrapper::OnVScroll(code, pos);
}

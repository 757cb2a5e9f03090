#include "frame/SubMainDlg.h"

CChildDlg::CChildDlg(UINT templateId, CWnd* parent)
    : CDialogEx(templateId, parent)
{
}

void CChildDlg::EnsureWindow(CWnd* parent)
{
    if (GetSafeHwnd())
        return;
    // A new dialog takes the focus. Who walks the list by keyboard must not lose it to a page that
    // is made on the way.
    const HWND focus = ::GetFocus();
    Create(m_lpszTemplateName, parent);
    ::SetFocus(focus);
}

BOOL CChildDlg::PreTranslateMessage(MSG* message)
{
    const bool isTab = message->message == WM_KEYDOWN && message->wParam == VK_TAB;
    return isTab ? FALSE : CDialogEx::PreTranslateMessage(message);
}

void CChildDlg::OnOK() {}

void CChildDlg::OnCancel() {}

CSubMainDlg::CSubMainDlg(UINT templateId, CWnd* parent)
    : CChildDlg(templateId, parent)
{
}

void CSubMainDlg::RestoreCurrentPage() {}

void CSubMainDlg::SelectPage(int) {}

void CSubMainDlg::SavePages() {}

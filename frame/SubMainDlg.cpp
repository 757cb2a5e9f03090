#include "frame/SubMainDlg.h"

CChildDlg::CChildDlg(UINT templateId, CWnd* parent)
    : CDialog(templateId, parent)
{
}

void CChildDlg::EnsureWindow(CWnd* parent)
{
    if (!GetSafeHwnd())
        Create(m_lpszTemplateName, parent);
}

BOOL CChildDlg::PreTranslateMessage(MSG* message)
{
    const bool isTab = message->message == WM_KEYDOWN && message->wParam == VK_TAB;
    return isTab ? FALSE : CDialog::PreTranslateMessage(message);
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

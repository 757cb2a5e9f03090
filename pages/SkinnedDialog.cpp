#include "pages/SkinnedDialog.h"

#include "pages/PageDlg.h"

BEGIN_MESSAGE_MAP(CSkinnedDialog, CDialogEx)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CSkinnedDialog::CSkinnedDialog(UINT templateId, CWnd* parent)
    : CDialogEx(templateId, parent)
{
}

CSkinnedDialog::~CSkinnedDialog()
{
    DestroySubclassedCtrls();
}

BOOL CSkinnedDialog::OnInitDialog()
{
    CDialogEx::OnInitDialog();
    SubclassChildren(m_hWnd);
    return TRUE;
}

HBRUSH CSkinnedDialog::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    const HBRUSH brush = CDialogEx::OnCtlColor(dc, control, type);
    return type == CTLCOLOR_DLG || type == CTLCOLOR_STATIC ? ColorStaticOnSheet(*dc) : brush;
}

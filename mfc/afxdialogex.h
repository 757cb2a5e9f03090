#pragma once

#include <afxwin.h>

/// A dialog as the wizards derive it. The subset adds nothing to CDialog.
class CDialogEx : public CDialog
{
    DECLARE_DYNAMIC(CDialogEx)

public:
    CDialogEx() = default;
    explicit CDialogEx(UINT nIDTemplate, CWnd* pParentWnd = nullptr)
        : CDialog(nIDTemplate, pParentWnd)
    {
    }
    explicit CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr)
        : CDialog(lpszTemplateName, pParentWnd)
    {
    }

protected:
    DECLARE_MESSAGE_MAP()
};

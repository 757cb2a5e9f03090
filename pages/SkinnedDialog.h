// The modal dialogs of the module beside the settings window.
#pragma once

#include "skin/SubclassWins.h"

#include <afxdialogex.h>

/// A modal dialog on white, with drawn controls.
class CSkinnedDialog : public CDialogEx, public CSubclassWins
{
public:
    explicit CSkinnedDialog(UINT templateId, CWnd* parent = nullptr);
    ~CSkinnedDialog() override;

protected:
    BOOL OnInitDialog() override;

    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    DECLARE_MESSAGE_MAP()
};

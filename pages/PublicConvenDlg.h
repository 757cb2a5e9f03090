// What all products share: how orders are entered, and what the client shows. The tab "常规".
#pragma once

#include "pages/PageDlg.h"

class CPublicConvenDlg : public CBoundPageDlg
{
public:
    explicit CPublicConvenDlg(CWnd* parent = nullptr);

    void RestoreDefaults() override;

protected:
    void SetUpControls() override;
    void DeclareBindings(CBindings& page) override;
    void LoadFromParam() override;

    afx_msg void EnableDependents();
    afx_msg void OnLockMinutesChanged();
    afx_msg void OnBrowseSound();
    DECLARE_MESSAGE_MAP()
};

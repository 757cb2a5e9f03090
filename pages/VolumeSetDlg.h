// The small box that asks for a quantity.
#pragma once

#include "pages/SkinnedDialog.h"

/// DoModal answers IDOK when the trader has given a quantity.
class CVolumeSetDlg : public CSkinnedDialog
{
public:
    /// @param volume what the box shows first
    CVolumeSetDlg(int volume, CWnd* parent);

    /// The quantity, which may be negative; what was typed once "确定" has been pressed.
    int Volume() const { return m_volume; }

protected:
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;
    void OnOK() override;

private:
    int m_volume;
};

// Where condition orders run, on the trader's machine or on a server: the tab "条件单模式".
#pragma once

#include "pages/PageDlg.h"

#include <cstdint>

/// What the trader decided about a change of mode.
enum class ModeSwitch
{
    None = 0,
    CancelSaving = 1,
    RestartNow = 2,
};

/// A change of mode takes effect when the client starts anew.
class CPublicConditionModeDlg : public CSheetPageDlg
{
public:
    explicit CPublicConditionModeDlg(CWnd* parent = nullptr);

    /// Nothing: the mode has no factory value.
    void RestoreDefaults() override;
    void SaveToParam() override;

    /// Whether the selected mode may stand. A move from cloud to local may not while the host says
    /// that condition orders run in the cloud: then the trader is told, and cloud mode is selected
    /// again.
    bool CheckModeSwitch();

    /// Asks the trader about a restart when another mode is selected than the window opened with. When
    /// the trader does not want it, the old mode is selected again.
    ModeSwitch ConfirmModeSwitch();

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnModeClicked();
    DECLARE_MESSAGE_MAP()

private:
    bool IsFeatureOn() const { return featureOn == 1; }
    uint32_t SelectedMode() const;
    void ShowMode(uint32_t mode);

    int featureOn = 0; // OpenSelectConditionOrderMode
    uint32_t modeAtOpen = 0;
};

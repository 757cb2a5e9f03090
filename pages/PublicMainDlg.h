// The entry "公共设置".
#pragma once

#include "pages/PublicConditionModeDlg.h"
#include "pages/PublicConvenDlg.h"
#include "pages/TabHostDlg.h"

class CPublicMainDlg : public CTabHostDlg
{
public:
    explicit CPublicMainDlg(CWnd* parent = nullptr);

    /// Whether the selected condition-order mode may stand; true without a window. See
    /// CPublicConditionModeDlg.
    bool CheckModeSwitch();

    /// Asks the trader about a change of the condition-order mode; ModeSwitch::None without a window.
    ModeSwitch ConfirmModeSwitch();

private:
    CPublicConvenDlg m_conventional;
    CPublicConditionModeDlg m_conditionMode;
};

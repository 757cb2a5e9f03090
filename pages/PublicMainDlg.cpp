#include "pages/PublicMainDlg.h"

#include "pages/ShippedSettings.h"
#include "resources/resource.h"

namespace
{

// The page is there without its tab, and does nothing then.
const char* ConditionModeTab()
{
    return OpenSelectConditionOrderMode() == 1 ? "条件单模式" : nullptr;
}

} // namespace

CPublicMainDlg::CPublicMainDlg(CWnd* parent)
    : CTabHostDlg(IDD_PUBLIC_HOST, PageCreation::WithTheHost, parent)
{
    SetPages({
        {ParamPagePublic, &m_conventional, "常规", false},
        {ParamPageConditionMode, &m_conditionMode, ConditionModeTab(), false},
    });
}

bool CPublicMainDlg::CheckModeSwitch()
{
    return !GetSafeHwnd() || m_conditionMode.CheckModeSwitch();
}

ModeSwitch CPublicMainDlg::ConfirmModeSwitch()
{
    return GetSafeHwnd() ? m_conditionMode.ConfirmModeSwitch() : ModeSwitch::None;
}

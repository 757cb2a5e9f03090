#include "pages/PublicConditionModeDlg.h"

#include "core/HostHooks.h"
#include "core/WorkingParam.h"
#include "pages/ConditionOrderPromptDlg.h"
#include "pages/ShippedSettings.h"
#include "resources/resource.h"
#include "skin/CachedIniString.h"

namespace
{

// Values of uUseCloudMode.
constexpr uint32_t kLocal = 0;
constexpr uint32_t kCloud = 1;

/// A text that a deployment may replace. `\n` is a line break in both.
struct Prompt
{
    const char* key;
    const char* builtIn;
};

constexpr Prompt kRefusal = {"切换条件单模式时检查提示",
                             "云账号有正在运行的条件单，不允许切换到本地条件单模式！\\n\\n"
                             "请删除或暂停正在执行中的云条件单后，再切换。"};
constexpr Prompt kToCloud = {
    "启用云条件单提示", "启动云条件单后，不能再使用本地条件单。已设置的本地条件单将失效！\\n\\n"
                        "客户端重启后启用云条件单。"};
constexpr Prompt kToLocal = {"启用本地条件单提示",
                             "启用本地条件单后，不能再使用云条件单，也不能查看云条件单相关信息；"
                             "如果您还有正在运行的云条件单，务必关注。\\n\\n"
                             "客户端重启后启用本地条件单。"};

const char* TextOf(const Prompt& prompt)
{
    return ReadCachedIniString("Zorvane", prompt.key, prompt.builtIn,
                               ".\\cfg\\system\\Resource.ini");
}

} // namespace

BEGIN_MESSAGE_MAP(CPublicConditionModeDlg, CSheetPageDlg)
ON_BN_CLICKED(IDC_LOCAL_MODE, &CPublicConditionModeDlg::OnModeClicked)
ON_BN_CLICKED(IDC_CLOUD_MODE, &CPublicConditionModeDlg::OnModeClicked)
END_MESSAGE_MAP()

CPublicConditionModeDlg::CPublicConditionModeDlg(CWnd* parent)
    : CSheetPageDlg(IDD_CONDITION_MODE, parent)
{
}

BOOL CPublicConditionModeDlg::OnInitDialog()
{
    CSheetPageDlg::OnInitDialog();
    modeAtOpen = WorkingParam().uUseCloudMode;
    ShowMode(modeAtOpen);

    featureOn = OpenSelectConditionOrderMode();
    if (featureOn == 0)
        for (UINT control : {IDC_MODE_LABEL, IDC_LOCAL_MODE, IDC_CLOUD_MODE})
            GetDlgItem(control)->ShowWindow(SW_HIDE);
    return TRUE;
}

void CPublicConditionModeDlg::ShowMode(uint32_t mode)
{
    CheckDlgButton(IDC_LOCAL_MODE, mode == kLocal);
    CheckDlgButton(IDC_CLOUD_MODE, mode == kCloud);
    SetDlgItemText(IDC_LOCAL_MODE, mode == kLocal ? "本地条件单(当前模式)" : "本地条件单");
    SetDlgItemText(IDC_CLOUD_MODE, mode == kCloud ? "云条件单(当前模式)" : "云条件单");
}

uint32_t CPublicConditionModeDlg::SelectedMode() const
{
    if (IsDlgButtonChecked(IDC_LOCAL_MODE) == BST_CHECKED)
        return kLocal;
    if (IsDlgButtonChecked(IDC_CLOUD_MODE) == BST_CHECKED)
        return kCloud;
    return WorkingParam().uUseCloudMode;
}

void CPublicConditionModeDlg::OnModeClicked()
{
    if (!CheckModeSwitch())
        ShowMode(WorkingParam().uUseCloudMode);
}

bool CPublicConditionModeDlg::CheckModeSwitch()
{
    if (!IsFeatureOn())
        return true;
    const uint32_t selected = SelectedMode();
    if (selected == WorkingParam().uUseCloudMode || selected != kLocal)
        return true;
    if (CallHost(ZorvaneHostCloudOrdersRunning) == 0)
        return true;

    MessageBox(TextOf(kRefusal), "提示", MB_TOPMOST);
    CheckDlgButton(IDC_CLOUD_MODE, BST_CHECKED);
    CheckDlgButton(IDC_LOCAL_MODE, BST_UNCHECKED);
    return false;
}

ModeSwitch CPublicConditionModeDlg::ConfirmModeSwitch()
{
    const uint32_t selected = SelectedMode();
    if (!IsFeatureOn() || selected == modeAtOpen)
        return ModeSwitch::None;

    CConditionOrderPromptDlg prompt(TextOf(selected == kCloud ? kToCloud : kToLocal), this);
    if (prompt.DoModal() == IDOK)
        return ModeSwitch::RestartNow;
    ShowMode(modeAtOpen);
    return ModeSwitch::CancelSaving;
}

void CPublicConditionModeDlg::SaveToParam()
{
    if (GetSafeHwnd() && IsFeatureOn())
        WorkingParam().uUseCloudMode = SelectedMode();
}

void CPublicConditionModeDlg::RestoreDefaults() {}

#include "pages/SelectConditionOrderMode.h"

#include "core/PackageFile.h"
#include "resources/resource.h"

CSelectConditionOrderMode::CSelectConditionOrderMode(CWnd* parent)
    : CSkinnedDialog(IDD_CONDITION_WIZARD, parent)
{
}

BOOL CSelectConditionOrderMode::OnInitDialog()
{
    CSkinnedDialog::OnInitDialog();
    CheckDlgButton(IDC_WIZARD_LOCAL, BST_CHECKED);
    CheckDlgButton(IDC_WIZARD_CLOUD, BST_UNCHECKED);
    return TRUE;
}

void CSelectConditionOrderMode::OnOK()
{
    const bool isCloud = IsDlgButtonChecked(IDC_WIZARD_CLOUD) == BST_CHECKED;
    StorePackageKey("uUseCloudMode", isCloud ? "1" : "0");
    CSkinnedDialog::OnOK();
}

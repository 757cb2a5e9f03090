#include "pages/PublicConvenDlg.h"

#include "pages/SoundFile.h"
#include "resources/resource.h"

BEGIN_MESSAGE_MAP(CPublicConvenDlg, CBoundPageDlg)
ON_BN_CLICKED(IDC_MANUAL_SHIFT, &CPublicConvenDlg::EnableDependents)
ON_BN_CLICKED(IDC_TRADED_SOUND, &CPublicConvenDlg::EnableDependents)
ON_EN_CHANGE(IDC_LOCK_MINUTES, &CPublicConvenDlg::OnLockMinutesChanged)
ON_BN_CLICKED(IDC_BROWSE_SOUND, &CPublicConvenDlg::OnBrowseSound)
END_MESSAGE_MAP()

CPublicConvenDlg::CPublicConvenDlg(CWnd* parent)
    : CBoundPageDlg(IDD_PUBLIC_CONVEN, parent)
{
}

void CPublicConvenDlg::SetUpControls()
{
    SetUpSpin(IDC_MANUAL_SHIFT_TICK, 1.0, 0, -kMostInField, kMostInField);
    SetUpSpin(IDC_LOCK_MINUTES, 1.0, 0, 0.0, kMostInField);
}

void CPublicConvenDlg::DeclareBindings(CBindings& page)
{
    page.Flag(IDC_INSERT_NO_CONFIRM, FIELD(bInsertNoConfirm));
    page.Flag(IDC_QUICK_NO_CONFIRM, FIELD(bQuickNoConfirm));
    page.Flag(IDC_CANCEL_NO_CONFIRM, FIELD(bCancelNoConfirm));
    page.Flag(IDC_ILLEGAL_PROMPT, FIELD(bIllegalPrompt));
    page.Flag(IDC_MANUAL_SHIFT, FIELD(bManualOpponentsPrice));
    page.Number(IDC_MANUAL_SHIFT_TICK, FIELD(imoPriceTick), kText63);
    page.Flag(IDC_RESET_PRICE, FIELD(bRestoreOpponentsPrice));
    page.Flag(IDC_RESET_VOLUME, FIELD(bRestoreVolume));
    page.Number(IDC_LOCK_MINUTES, FIELD(iLockScreen), kText63);
    page.Flag(IDC_POINT_ORDER, FIELD(bPointOrderInsert));
    // The template has none of these three, so every save turns the notices off. This is meant.
    page.Flag(IDC_ORDER_NOTICE, FIELD(bInsertOrderNotice));
    page.Flag(IDC_STOP_NOTICE, FIELD(bStopProfitLossNotice));
    page.Flag(IDC_WARNING_NOTICE, FIELD(bEarlyWarningNotice));
    page.OwnedFlag(IDC_POSITION_LINE, "bShowPositionLine");
    page.Flag(IDC_REPORT_POPUP, FIELD(bOrderPrompt));
    page.Flag(IDC_TRADED_SOUND, FIELD(bTradedPlaySound));
    page.OwnedText(IDC_SOUND_PATH, "szTradedPlaySoundPath", kText1023);
    page.OwnedFlag(IDC_CONDITION_ORDER_LINE, "bShowConditionOrder");
    page.Flag(IDC_CANCEL_ALL_NO_CONFIRM, FIELD(bCancelAllNoConfirm));
    page.Flag(IDC_LINKAGE, FIELD(bLinkage));
    page.Flag(IDC_HIDE_ACCOUNT, FIELD(bHideAccountInfo));
    page.Index(IDC_LIST_FONT, FIELD(enumListFontType), EmptySelection::StoresZero);
}

void CPublicConvenDlg::LoadFromParam()
{
    CBoundPageDlg::LoadFromParam();
    EnableDependents();
}

void CPublicConvenDlg::RestoreDefaults()
{
    CBoundPageDlg::RestoreDefaults();
    EnableDependents();
}

void CPublicConvenDlg::EnableDependents()
{
    if (!GetSafeHwnd())
        return;
    const auto follow = [this](UINT control, UINT check)
    {
        GetDlgItem(control)->EnableWindow(IsDlgButtonChecked(check) == BST_CHECKED);
    };
    follow(IDC_MANUAL_SHIFT_TICK, IDC_MANUAL_SHIFT);
    follow(IDC_BROWSE_SOUND, IDC_TRADED_SOUND);
}

void CPublicConvenDlg::OnLockMinutesChanged()
{
    // No minutes would lock the screen for good: a leading zero makes the whole text 1, whoever wrote
    // it, spin button and restore included.
    if (EditText(*this, IDC_LOCK_MINUTES, kText63).substr(0, 1) != "0")
        return;
    SetDlgItemText(IDC_LOCK_MINUTES, "1");
    SendDlgItemMessage(IDC_LOCK_MINUTES, EM_SETSEL, 1, 1);
}

void CPublicConvenDlg::OnBrowseSound()
{
    const std::string path = ChooseSoundFile(m_hWnd);
    if (!path.empty())
        SetDlgItemText(IDC_SOUND_PATH, path.c_str());
}

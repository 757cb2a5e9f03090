#include "pages/OptionsConventionalDlg.h"

#include "core/HostHooks.h"
#include "core/PackageFile.h"
#include "core/Text.h"
#include "core/WorkingParam.h"
#include "pages/OptionsRules.h"
#include "pages/OrderPriceList.h"
#include "resources/resource.h"
#include "skin/MyComboBox.h"
#include "skin/MyRichEdit.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

#include <cstdlib>

namespace
{

struct SpinEdit
{
    UINT edit;
    double step;
    int decimals;
    double minimum;
    double maximum;
    SpinInputMode mode;
};

const SpinEdit kSpinEdits[] = {
    {IDC_FAST_CLOSE_TICK, 1.0, 0, -kMostInField, kMostInField, kIntegerKeys},
    {IDC_PRICE_OUT, 1.0, 0, 1.0, kMostInField, kAnyKey},
    {IDC_EXPIRE_DAYS, 1.0, 0, 1.0, kMostInField, kAnyKey},
    {IDC_COMBINATION_DAYS, 1.0, 0, 1.0, kMostInField, kAnyKey},
    {IDC_HIGHER_RATIO, 1.0, 2, 1.01, kMostInField, kDecimalKeys},
    {IDC_LOWER_RATIO, 0.1, 2, 0.01, 0.99, kDecimalKeys},
};

// The rows of IDC_PRICE_OUT_MEASURE.
constexpr int kPremiumMeasure = 1;
constexpr const char* kMeasures[] = {"虚值度", "溢价率"};

const char kReminderHelp[] = "委托价格超限提醒功能，只应用于澜汀期权系统的单合约限价委托下单，\n"
                             "对双合约及多合约不起作用。\n"
                             "对市价无效。";

// Lengths of the scrolling page. Pixels on every screen; that is meant.
constexpr int kReminderHeight = 128;
constexpr int kLeastScrolled = 553; // a page less high than this does not scroll
constexpr int kScrollPage = 552;
constexpr int kFirstScrollPage = 20;
constexpr int kScrollBarWidth = 12;

const CoolSBColors kScrollColors = {kScrollBack,
                                    {kScrollArrowBack, kScrollArrowBack, kScrollArrowBack},
                                    {kScrollLine, kScrollLine, kScrollLine},
                                    {kScrollThumb, kScrollThumb, kScrollThumb},
                                    kScrollLine};

bool HasReminder()
{
    return GetSpecialUI(SpecialUILimitPrice);
}

/// A volume that the page shows signed.
ParamField Signed(ParamField field)
{
    field.type = FieldType::Int32;
    return field;
}

} // namespace

BEGIN_MESSAGE_MAP(COptionsConventionalDlg, CoolSBDialog<CBoundPageDlg>)
ON_WM_ERASEBKGND()
ON_WM_VSCROLL()
ON_WM_MOUSEWHEEL()
ON_CBN_SELCHANGE(IDC_PRICE_OUT_MEASURE, &COptionsConventionalDlg::OnMeasureSelected)
ON_CONTROL_RANGE(BN_CLICKED, IDC_HIGHER_NOTICE, IDC_FUSING_NOTICE,
                 &COptionsConventionalDlg::OnNoticeClicked)
END_MESSAGE_MAP()

COptionsConventionalDlg::COptionsConventionalDlg(CWnd* parent)
    : CoolSBDialog(IDD_OPTIONS_CONVEN, parent)
{
}

void COptionsConventionalDlg::SetUpControls()
{
    Drawn<CMyRichEdit_MyCtrl>(IDC_OPTIONS_VOLUME_LIMIT).SetSpinRange(1.0, 0, 0.0, kMostInField);
    for (const SpinEdit& spin : kSpinEdits)
        SetUpSpin(spin.edit, spin.step, spin.decimals, spin.minimum, spin.maximum, spin.mode);
    FillOrderPrices(Drawn<CMyComboBox_MyCtrl>(IDC_INSERT_PRICE), true);
}

void COptionsConventionalDlg::DeclareBindings(CBindings& page)
{
    page.Number(IDC_OPTIONS_VOLUME_LIMIT, Signed(FIELD(uOVolumeLimit)), kText63);
    page.ItemData(IDC_INSERT_PRICE, FIELD(cOInsertPrice));
    page.Flag(IDC_RESTORE_OPEN, FIELD(bORestoreOpenFlag));
    page.Index(IDC_FAST_CLOSE, FIELD(cOFastClosePrice), EmptySelection::StoresZero);
    page.Number(IDC_FAST_CLOSE_TICK, FIELD(iOfcPriceTick), kText63);
    page.Flag(IDC_AUTO_CANCEL, FIELD(bOAutoCancelOrder));
    // These keep no selection as it is: 255 in the record.
    page.Index(IDC_SUPER_BUY_1, FIELD(cOSuperBuy1), EmptySelection::StoredAsIs);
    page.Index(IDC_SUPER_BUY_2, FIELD(cOSuperBuy2), EmptySelection::StoredAsIs);
    page.Index(IDC_SUPER_SELL_1, FIELD(cOSuperSell1), EmptySelection::StoredAsIs);
    page.Index(IDC_SUPER_SELL_2, FIELD(cOSuperSell2), EmptySelection::StoredAsIs);
    // The threshold stands before its measure: it is restored within the limits of the measure that is
    // still selected. This is meant.
    page.Number(IDC_PRICE_OUT, FIELD(iPriceOut), kText63)
        .RestoredBy([this] { RestoreThreshold(); });
    page.Number(IDC_EXPIRE_DAYS, FIELD(iExpire), kText63);
    page.Index(IDC_PRICE_OUT_MEASURE, FIELD(iXZDLimit), EmptySelection::StoresZero);
    // Saved here, restored behind the switches. This is meant.
    page.Number(IDC_COMBINATION_DAYS, FIELD(uOCPositionPrompt), kText63).RestoredBy([] {});
    page.Flag(IDC_COST_PROMPT, FIELD(bOCostPrompt));
    page.OwnedFlag(IDC_PRICE_OUT_PROMPT, FIELD(iPriceOutPrompt));
    page.Flag(IDC_QUERY_MAX_OPEN, FIELD(bOQueryMaxOpen));
    page.OwnedFlag(IDC_SWAP_PRICE_AMOUNT, FIELD(iOptionPriceAmountLayout));
    page.OwnedFlag(IDC_SHOW_ZERO_POSITION, FIELD(iShowZeroPosition));
    page.Number(IDC_COMBINATION_DAYS, FIELD(uOCPositionPrompt), kText63);
    page.Flag(IDC_POSITION_STATISTICS, FIELD(bPositionStatistics));
    if (HasReminder())
    {
        page.Flag(IDC_HIGHER_NOTICE, FIELD(bHigherLimitPriceNotice));
        page.Flag(IDC_LOWER_NOTICE, FIELD(bLowerLimitPriceNotice));
        page.Flag(IDC_FUSING_NOTICE, FIELD(bOuterFusingLimitPriceNotice));
        page.Ratio(IDC_HIGHER_RATIO, FIELD(fMaxRatioHigherLimitPrice), kText127);
        page.Ratio(IDC_LOWER_RATIO, FIELD(fMinRatioLowerLimitPrice), kText127);
    }
    page.OnOffIndex(IDC_POSITION_RANK, FIELD(uPosExecPriceRank));
}

void COptionsConventionalDlg::LoadFromParam()
{
    CoolSBDialog::LoadFromParam();
    const ShippedLimits limits = ReadLimits();
    if (limits.AreEqual())
    {
        // A threshold that nobody may choose is in the record before anything is saved. This is meant.
        WorkingParam().iPriceOut = limits.minimum;
        SetDlgItemInt(IDC_PRICE_OUT, limits.minimum);
    }
    EnableByLimits(limits);
    ShowCostPrompt();
}

BOOL COptionsConventionalDlg::OnInitDialog()
{
    CoolSBDialog::OnInitDialog();
    if (!HasReminder())
        LeaveReminderOut();
    SetUpScrollBar();
    return TRUE;
}

// The threshold

int COptionsConventionalDlg::SelectedMeasure()
{
    return static_cast<CComboBox*>(GetDlgItem(IDC_PRICE_OUT_MEASURE))->GetCurSel();
}

ShippedLimits COptionsConventionalDlg::ReadLimits()
{
    return PriceOutLimits(SelectedMeasure() == kPremiumMeasure);
}

void COptionsConventionalDlg::EnableByLimits(const ShippedLimits& limits)
{
    // The position rank follows, though it has nothing to do with the limits. This is meant.
    GetDlgItem(IDC_PRICE_OUT)->EnableWindow(!limits.AreEqual());
    GetDlgItem(IDC_POSITION_RANK)->EnableWindow(!limits.AreEqual());
}

void COptionsConventionalDlg::OnMeasureSelected()
{
    const ShippedLimits limits = ReadLimits();
    EnableByLimits(limits);
    const int shown = ParseInt(EditText(*this, IDC_PRICE_OUT, kText63).c_str());
    if (limits.AreEqual() || !limits.Hold(shown))
        SetDlgItemInt(IDC_PRICE_OUT, MiddleThreshold(limits));
}

void COptionsConventionalDlg::RestoreThreshold()
{
    SetDlgItemInt(IDC_PRICE_OUT, ClampThreshold(ReadLimits(), PackagedInt(FIELD(iPriceOut).name)));
}

void COptionsConventionalDlg::ShowCostPrompt()
{
    CWnd* const box = GetDlgItem(IDC_COST_PROMPT);
    box->ShowWindow(IsCostPromptAvailable() ? SW_SHOW : SW_HIDE);
    box->EnableWindow(IsCostPromptOpen());
}

// The reminder

void COptionsConventionalDlg::LeaveReminderOut()
{
    for (UINT control = IDC_REMINDER_LABEL; control <= IDC_FUSING_NOTICE; ++control)
        GetDlgItem(control)->ShowWindow(SW_HIDE);
    CRect window;
    GetWindowRect(&window);
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - kReminderHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void COptionsConventionalDlg::OnNoticeClicked(UINT box)
{
    if (IsDlgButtonChecked(box) == BST_CHECKED)
        MessageBox(kReminderHelp, "提示", MB_OK);
}

// Scrolling

void COptionsConventionalDlg::SetUpScrollBar()
{
    CRect client;
    GetClientRect(&client);
    Init(m_hWnd, false, kFirstScrollPage, 0, 0, client.Height());
    SetWidth(kScrollBarWidth);
    ShowScrollBar(SB_HORZ, FALSE);
    SetColors(kScrollColors);

    m_scrolls = client.Height() >= kLeastScrolled;
    if (m_scrolls)
    {
        const SCROLLINFO info = {
            sizeof(info), SIF_RANGE | SIF_PAGE | SIF_POS, 0, client.Height(), kScrollPage, 0, 0};
        SetScrollInfo(SB_VERT, &info);
    }
    ShowScrollBar(SB_VERT, m_scrolls);
}

void COptionsConventionalDlg::OnVScroll(UINT code, UINT pos, CScrollBar* bar)
{
    if (!m_scrolls)
        return;
    const int oldPos = GetScrollPos(SB_VERT);
    CoolSBDialog::OnVScroll(code, pos, bar);
    ScrollContents(oldPos);
}

BOOL COptionsConventionalDlg::OnMouseWheel(UINT, short delta, CPoint)
{
    OnVScroll(delta < 1 ? SB_PAGEDOWN : SB_PAGEUP, 0, nullptr);
    return TRUE;
}

void COptionsConventionalDlg::ScrollContents(int oldPos)
{
    ScrollWindow(0, oldPos - GetScrollPos(SB_VERT));
}

void COptionsConventionalDlg::ScrollIntoView(const CWnd& control)
{
    if (!m_scrolls)
        return;
    CRect place;
    control.GetWindowRect(&place);
    ScreenToClient(&place);
    CRect client;
    GetClientRect(&client);
    const int oldPos = GetScrollPos(SB_VERT);
    if (place.top < client.top)
        SetScrollPos(SB_VERT, oldPos + place.top);
    else if (place.bottom > client.bottom)
        SetScrollPos(SB_VERT, oldPos + place.bottom - client.bottom);
    ScrollContents(oldPos);
}

BOOL COptionsConventionalDlg::OnEraseBkgnd(CDC* dc)
{
    // The sheet scrolls with what is on it.
    CRect area;
    GetClientRect(&area);
    area.top -= GetScrollPos(SB_VERT);
    FillPageBackground(*dc, area);
    return TRUE;
}

// The check

bool COptionsConventionalDlg::Validate()
{
    if (!GetSafeHwnd())
        return true;
    if (!ValidateThreshold())
        return false;
    return !HasReminder() ||
           (ValidateRatio(IDC_HIGHER_RATIO, IsHigherRatio,
                          "限价买入、买平和备兑平仓价格高于最新价倍率应当大于 1") &&
            ValidateRatio(IDC_LOWER_RATIO, IsLowerRatio,
                          "限价卖开、卖平和备兑开仓价格低于最新价倍率应当大于 0 并且小于 1"));
}

bool COptionsConventionalDlg::ValidateThreshold()
{
    const int measure = SelectedMeasure();
    const ShippedLimits limits = ReadLimits();
    if (measure < 0 || IsThreshold(limits, EditText(*this, IDC_PRICE_OUT, kText63)))
        return true;
    char message[256];
    PrintTo(message, sizeof(message), "%s的下限是%d,上限是 %d 之内。", kMeasures[measure],
            limits.minimum, limits.maximum);
    return RefuseField(IDC_PRICE_OUT, message);
}

bool COptionsConventionalDlg::ValidateRatio(UINT edit, bool (*isInRange)(double),
                                            const char* outOfRange)
{
    const std::string text = EditText(*this, edit, kText127);
    if (!IsRatioText(text))
        return RefuseField(edit, "单合约委托价格超限提醒倍率应当是 小数位数最多两位的数字");
    if (!isInRange(atof(text.c_str())))
        return RefuseField(edit, outOfRange);
    return true;
}

bool COptionsConventionalDlg::RefuseField(UINT field, const char* message)
{
    ScrollIntoView(*GetDlgItem(field));
    return Refuse(field, message);
}

BOOL COptionsConventionalDlg::PreTranslateMessage(MSG* message)
{
    // The Tab key has reached this control, perhaps out of sight.
    if (message->message == WM_KEYUP && message->wParam == VK_TAB && message->hwnd != m_hWnd)
        ScrollIntoView(*CWnd::FromHandle(message->hwnd));
    // No template has this field, so the filter never acts. This is meant.
    const CWnd* const field = GetDlgItem(IDC_DECIMAL_FIELD);
    if (field && message->hwnd == field->m_hWnd && message->message == WM_CHAR &&
        !NumEditTakesKey(static_cast<unsigned>(message->wParam)))
        return TRUE;
    return CoolSBDialog::PreTranslateMessage(message);
}

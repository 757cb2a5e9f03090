#include "pages/SplitOrderDlg.h"

#include "core/PackageFile.h"
#include "core/Text.h"
#include "core/WorkingParam.h"
#include "pages/ShippedSettings.h"
#include "resources/resource.h"
#include "skin/SkinCache.h"
#include "skin/SpinValue.h"

/// The fields of one order kind, limit or market, in the order of SplitInputs.
struct SplitControls
{
    UINT randomIf;
    UINT randomMinimum;
    UINT randomMaximum;
    UINT randomInterval;
    UINT fixedIf;
    UINT fixedVolume;
    UINT fixedInterval;
};

namespace
{

constexpr int kRandom = 1;
constexpr int kFixed = 2;
constexpr int kMarginTwin = 1; // the entry of TOParam::SplitOrder that is kept equal to margin's

constexpr double kLeastInterval = 0.01;

const SplitControls kLimit = {IDC_RANDOM_IF,       IDC_RANDOM_MIN, IDC_RANDOM_MAX,
                              IDC_RANDOM_INTERVAL, IDC_FIXED_IF,   IDC_FIXED_VOLUME,
                              IDC_FIXED_INTERVAL};
const SplitControls kMarket = {IDC_RANDOM_IF_MARKET,     IDC_RANDOM_MIN_MARKET,
                               IDC_RANDOM_MAX_MARKET,    IDC_RANDOM_INTERVAL_MARKET,
                               IDC_FIXED_IF_MARKET,      IDC_FIXED_VOLUME_MARKET,
                               IDC_FIXED_INTERVAL_MARKET};

// Every edit with its field, the random method's first, in the order of the page.
struct SplitEdit
{
    int group;
    UINT edit;
    ParamField field;
};

const SplitEdit kEdits[] = {
    {kRandom, IDC_RANDOM_IF, SPLIT_FIELD(uIfVolume1)},
    {kRandom, IDC_RANDOM_MIN, SPLIT_FIELD(uMinVolume1)},
    {kRandom, IDC_RANDOM_MAX, SPLIT_FIELD(uMaxVolume1)},
    {kRandom, IDC_RANDOM_INTERVAL, SPLIT_FIELD(fInterval1)},
    {kRandom, IDC_RANDOM_IF_MARKET, SPLIT_FIELD(uIfVolume1_Market)},
    {kRandom, IDC_RANDOM_MIN_MARKET, SPLIT_FIELD(uMinVolume1_Market)},
    {kRandom, IDC_RANDOM_MAX_MARKET, SPLIT_FIELD(uMaxVolume1_Market)},
    {kRandom, IDC_RANDOM_INTERVAL_MARKET, SPLIT_FIELD(fInterval1_Market)},
    {kFixed, IDC_FIXED_IF, SPLIT_FIELD(uIfVolume2)},
    {kFixed, IDC_FIXED_VOLUME, SPLIT_FIELD(uVolume2)},
    {kFixed, IDC_FIXED_INTERVAL, SPLIT_FIELD(fInterval2)},
    {kFixed, IDC_FIXED_IF_MARKET, SPLIT_FIELD(uIfVolume2_Market)},
    {kFixed, IDC_FIXED_VOLUME_MARKET, SPLIT_FIELD(uVolume2_Market)},
    {kFixed, IDC_FIXED_INTERVAL_MARKET, SPLIT_FIELD(fInterval2_Market)},
};

bool IsInterval(const SplitEdit& edit)
{
    return edit.field.type == FieldType::Float;
}

// Shows entry 3 but restores from the keys of entry 1: the two are kept equal by every save. This is
// meant.
const SplitOrderFacts kMargin = {IDD_MARGIN_SPLIT,
                                 3,
                                 "_1",
                                 "在随机拆单中，下单手数必须大于 0 !",
                                 "在随机拆单中，最小手数必需小于下单张数!",
                                 "在随机拆单中，最多手数必须大于最小张数!"};

const SplitOrderFacts kOptions = {IDD_OPTIONS_SPLIT,
                                  2,
                                  "_2",
                                  "在随机拆单中，下单张数必须大于 0 !",
                                  "在随机拆单中，最小张数必需小于下单张数!",
                                  "在随机拆单中，最多张数必须大于最小张数!"};

} // namespace

BEGIN_MESSAGE_MAP(CSplitOrderDlg, CBoundPageDlg)
ON_BN_CLICKED(IDC_SPLIT_RANDOM, &CSplitOrderDlg::OnRandom)
ON_BN_CLICKED(IDC_SPLIT_FIXED, &CSplitOrderDlg::OnFixed)
END_MESSAGE_MAP()

CSplitOrderDlg::CSplitOrderDlg(const SplitOrderFacts& facts, CWnd* parent)
    : CBoundPageDlg(facts.templateId, parent)
    , m_facts(facts)
{
}

void CSplitOrderDlg::SetUpControls()
{
    for (const SplitEdit& edit : kEdits)
    {
        if (IsInterval(edit))
            SetUpSpin(edit.edit, 0.01, 2, 0.0, kMostInField, kDecimalKeys);
        else
            SetUpSpin(edit.edit, 1.0, 0, 1.0, kMostInField);
    }
    for (UINT label : {IDC_SPLIT_RANDOM_LIMIT, IDC_SPLIT_RANDOM_MARKET, IDC_SPLIT_FIXED_LIMIT,
                       IDC_SPLIT_FIXED_MARKET})
        GetDlgItem(label)->SendMessage(
            WM_SETFONT, reinterpret_cast<WPARAM>(GetCachedFont("黑体", 20, 500)), TRUE);
}

void CSplitOrderDlg::DeclareBindings(CBindings& page)
{
    for (const SplitEdit& edit : kEdits)
    {
        ParamField field = InSplitOrder(m_facts.shown, edit.field);
        if (!IsInterval(edit))
            field.type = FieldType::Int32; // shown signed, as the file writes volumes
        CBinding& line = IsInterval(edit) ? page.Ratio(edit.edit, field, kText255, kLeastInterval)
                                          : page.Number(edit.edit, field, kText255);
        line.RestoredFrom(std::string(field.name) + m_facts.suffix);
    }
}

void CSplitOrderDlg::LoadFromParam()
{
    CBoundPageDlg::LoadFromParam();
    ShowType(WorkingParam().SplitOrder[m_facts.shown].cSplitOrderType);
}

void CSplitOrderDlg::RestoreDefaults()
{
    if (!GetSafeHwnd())
        return;
    CBoundPageDlg::RestoreDefaults();
    ShowType(PackagedInt(std::string("cSplitOrderType") + m_facts.suffix));
}

void CSplitOrderDlg::SaveToParam()
{
    if (!GetSafeHwnd())
        return;
    CBoundPageDlg::SaveToParam();
    uint8_t type = 0;
    if (IsDlgButtonChecked(IDC_SPLIT_RANDOM))
        type = kRandom;
    if (IsDlgButtonChecked(IDC_SPLIT_FIXED))
        type = kFixed;
    WorkingParam().SplitOrder[m_facts.shown].cSplitOrderType = type;
}

void CSplitOrderDlg::ShowType(int type)
{
    CheckDlgButton(IDC_SPLIT_RANDOM, type == kRandom);
    CheckDlgButton(IDC_SPLIT_FIXED, type == kFixed);
    EnableGroups();
}

void CSplitOrderDlg::OnRandom()
{
    CheckDlgButton(IDC_SPLIT_FIXED, BST_UNCHECKED);
    EnableGroups();
}

void CSplitOrderDlg::OnFixed()
{
    CheckDlgButton(IDC_SPLIT_RANDOM, BST_UNCHECKED);
    EnableGroups();
}

void CSplitOrderDlg::EnableGroups()
{
    GetDlgItem(IDC_SPLIT_RANDOM)->Invalidate();
    GetDlgItem(IDC_SPLIT_FIXED)->Invalidate();
    EnableGroup(kRandom, IsDlgButtonChecked(IDC_SPLIT_RANDOM) == BST_CHECKED);
    EnableGroup(kFixed, IsDlgButtonChecked(IDC_SPLIT_FIXED) == BST_CHECKED);
}

void CSplitOrderDlg::EnableGroup(int group, bool enable)
{
    for (const SplitEdit& edit : kEdits)
        if (edit.group == group)
            GetDlgItem(edit.edit)->EnableWindow(enable);
}

TSplitOrder CSplitOrderDlg::ReadInputs()
{
    TOParam shown = {};
    m_bindings.Save(shown);
    return shown.SplitOrder[m_facts.shown];
}

SplitInputs CSplitOrderDlg::ReadLimitInputs()
{
    const TSplitOrder order = ReadInputs();
    return {order.uIfVolume1, order.uMinVolume1, order.uMaxVolume1, order.fInterval1,
            order.uIfVolume2, order.uVolume2,    order.fInterval2};
}

SplitInputs CSplitOrderDlg::ReadMarketInputs()
{
    const TSplitOrder order = ReadInputs();
    return {order.uIfVolume1_Market, order.uMinVolume1_Market, order.uMaxVolume1_Market,
            order.fInterval1_Market, order.uIfVolume2_Market,  order.uVolume2_Market,
            order.fInterval2_Market};
}

bool CSplitOrderDlg::Validate()
{
    if (!GetSafeHwnd())
        return true;
    return ValidateInputs(ReadLimitInputs(), kLimit) && ValidateInputs(ReadMarketInputs(), kMarket);
}

bool CSplitOrderDlg::ValidateInputs(const SplitInputs& inputs, const SplitControls& controls)
{
    // A minimum equal to the volume or to the maximum passes, stricter as the messages sound, and the
    // fields of a method that is off are checked too. Both are meant.
    if (inputs.randomIf == 0)
        return Refuse(controls.randomIf, m_facts.zeroVolume);
    if (inputs.randomMinimum == 0)
        return Refuse(controls.randomMinimum, m_facts.zeroVolume);
    if (inputs.randomMaximum == 0)
        return Refuse(controls.randomMaximum, m_facts.zeroVolume);
    if (inputs.randomMinimum > inputs.randomIf)
        return Refuse(controls.randomMinimum, m_facts.minimumAboveVolume);
    if (inputs.randomMinimum > inputs.randomMaximum)
        return Refuse(controls.randomMaximum, m_facts.minimumAboveMaximum);

    // The tolerance lets 0.30 pass a minimum of 0.3, though the float widened is not that double.
    const double least = LeastSplitInterval();
    constexpr double kTolerance = 0.0000001;
    if (least > static_cast<double>(inputs.randomInterval) + kTolerance)
        return RefuseInterval(controls.randomInterval, least);
    if (least > static_cast<double>(inputs.fixedInterval) + kTolerance)
        return RefuseInterval(controls.fixedInterval, least);
    return true;
}

bool CSplitOrderDlg::RefuseInterval(UINT field, double least)
{
    return Refuse(field, ("拆单间隔必须大于等于 " + FormatDecimal(least)).c_str());
}

COptionsSplitOrderDlg::COptionsSplitOrderDlg(CWnd* parent)
    : CSplitOrderDlg(kOptions, parent)
{
}

CMarginSplitOrderDlg::CMarginSplitOrderDlg(CWnd* parent)
    : CSplitOrderDlg(kMargin, parent)
{
}

void CMarginSplitOrderDlg::SaveToParam()
{
    if (!GetSafeHwnd())
        return;
    CSplitOrderDlg::SaveToParam();
    WorkingParam().SplitOrder[kMarginTwin] = WorkingParam().SplitOrder[kMargin.shown];
}

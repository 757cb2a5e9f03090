#include "pages/OtherParamModifyDlg.h"

#include "core/Text.h"
#include "pages/Bindings.h"
#include "resources/resource.h"

namespace
{

/// Shown in the host's units: percent, but plain numbers for futures.
struct Setting
{
    UINT field;
    UINT percentSign;
    double StopDefaultValues::*value;
};

constexpr Setting kSettings[] = {
    {IDC_MODIFY_STOP_PROFIT, IDC_MODIFY_STOP_PROFIT_PERCENT, &StopDefaultValues::stopProfit},
    {IDC_MODIFY_MAX_FALLBACK, IDC_MODIFY_MAX_FALLBACK_PERCENT, &StopDefaultValues::maxFallback},
    {IDC_MODIFY_STOP_LOSS, IDC_MODIFY_STOP_LOSS_PERCENT, &StopDefaultValues::stopLoss},
    {IDC_MODIFY_FLOAT_RANGE, IDC_MODIFY_FLOAT_RANGE_PERCENT, &StopDefaultValues::floatRange},
};

} // namespace

COtherParamModifyDlg::COtherParamModifyDlg(StopProduct product, StopDefaultValues& values,
                                           CWnd* parent)
    : CSkinnedDialog(IDD_OTHER_MODIFY, parent)
    , m_product(product)
    , m_values(values)
{
}

BOOL COtherParamModifyDlg::OnInitDialog()
{
    CSkinnedDialog::OnInitDialog();
    SetDlgItemInt(IDC_MODIFY_VOLUME, m_values.defaultVolume);
    SetDlgItemInt(IDC_MODIFY_TICK, m_values.tickVolume);
    const double factor = FactsOf(m_product).exposedFactor;
    for (const Setting& setting : kSettings)
    {
        char text[kText63 + 1];
        PrintTo(text, sizeof(text), "%.0lf", m_values.*setting.value * factor);
        SetDlgItemText(setting.field, text);
        GetDlgItem(setting.field)->EnableWindow(FALSE);
        if (m_product == StopProduct::Future)
            SetDlgItemText(setting.percentSign, "");
    }
    if (m_product == StopProduct::Future && m_values.dailyMax > 0)
        SetDlgItemInt(IDC_MODIFY_DAILY_MAX, m_values.dailyMax);
    GetDlgItem(IDC_MODIFY_TICK)->EnableWindow(FALSE);
    GetDlgItem(IDC_MODIFY_DAILY_MAX)->EnableWindow(FALSE);
    return TRUE;
}

void COtherParamModifyDlg::OnOK()
{
    // Whole numbers only, and no daily maximum where the field is empty, as it always is for
    // securities and options. This is meant.
    m_values.defaultVolume = ReadNumber(IDC_MODIFY_VOLUME);
    m_values.tickVolume = ReadNumber(IDC_MODIFY_TICK);
    const double factor = FactsOf(m_product).exposedFactor;
    for (const Setting& setting : kSettings)
        m_values.*setting.value = ReadNumber(setting.field) / factor;
    m_values.dailyMax = ReadNumber(IDC_MODIFY_DAILY_MAX);
    CSkinnedDialog::OnOK();
}

int COtherParamModifyDlg::ReadNumber(UINT field) const
{
    char text[kText63 + 1] = "";
    GetDlgItemText(field, text, sizeof(text));
    return ParseInt(text);
}

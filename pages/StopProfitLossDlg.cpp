#include "pages/StopProfitLossDlg.h"

#include "core/Text.h"
#include "core/WorkingParam.h"
#include "resources/resource.h"
#include "skin/SpinValue.h"

#include <algorithm>
#include <climits>

namespace
{

#define STOP_FIELDS(product)                                                                       \
    {                                                                                              \
        FIELD(i##product##StopContinuousTimesLoss), FIELD(c##product##StopPriceLoss),              \
            FIELD(i##product##StopContinuousTimesProfit), FIELD(c##product##StopPriceProfit),      \
            FIELD(c##product##StopInsertPriceLoss), FIELD(c##product##StopInsertPriceProfit),      \
            FIELD(c##product##StopLossPriceTick), FIELD(c##product##StopProfitPriceTick),          \
            FIELD(b##product##UseChasePrice), FIELD(b##product##Forever)                           \
    }

const StopFields kFuture = STOP_FIELDS(F);
const StopFields kStock = STOP_FIELDS(S);
const StopFields kOptions = STOP_FIELDS(O);

#undef STOP_FIELDS

// The spin controls of the plain page, the edits they stand beside, and the least they step to.
struct SpinPair
{
    UINT spin;
    UINT edit;
    int least;
};

const SpinPair kStockSpins[] = {
    {IDC_STOP_LOSS_TIMES_SPIN, IDC_STOP_LOSS_TIMES, 1},
    {IDC_STOP_PROFIT_TIMES_SPIN, IDC_STOP_PROFIT_TIMES, 1},
    {IDC_STOP_PROFIT_TICK_SPIN, IDC_STOP_PROFIT_TICK, INT_MIN},
    {IDC_STOP_LOSS_TICK_SPIN, IDC_STOP_LOSS_TICK, INT_MIN},
};

void BindTimes(CBindings& page, UINT edit, const ParamField& field, StopTimes times)
{
    if (times == StopTimes::AlwaysOne)
        page.ShownOnly(edit, field, 1);
    else
        page.Number(edit, field, kText63);
}

} // namespace

void BindStops(CBindings& page, const StopFields& fields, StopTimes times)
{
    BindTimes(page, IDC_STOP_LOSS_TIMES, fields.lossTimes, times);
    page.Index(IDC_STOP_LOSS_TRIGGER, fields.lossTrigger, EmptySelection::StoresZero);
    BindTimes(page, IDC_STOP_PROFIT_TIMES, fields.profitTimes, times);
    page.Index(IDC_STOP_PROFIT_TRIGGER, fields.profitTrigger, EmptySelection::StoresZero);
    page.Index(IDC_STOP_LOSS_PRICE, fields.lossPrice, EmptySelection::StoresZero);
    page.Index(IDC_STOP_PROFIT_PRICE, fields.profitPrice, EmptySelection::StoresZero);
    page.Number(IDC_STOP_LOSS_TICK, fields.lossTick, kText63);
    page.Number(IDC_STOP_PROFIT_TICK, fields.profitTick, kText63);
    page.Flag(IDC_STOP_CHASE, fields.chase);
    page.OnOffIndex(IDC_STOP_VALIDITY, fields.forever);
}

CFutureStopProfitLossDlg::CFutureStopProfitLossDlg(CWnd* parent)
    : CBoundPageDlg(IDD_FUTURE_STOP, parent)
{
}

void CFutureStopProfitLossDlg::SetUpControls()
{
    SetUpSpin(IDC_STOP_LOSS_TIMES, 1.0, 0, -kMostInField, kMostInField);
    SetUpSpin(IDC_STOP_PROFIT_TIMES, 1.0, 0, -kMostInField, kMostInField);
    SetUpSpin(IDC_STOP_PROFIT_TICK, 1.0, 0, -kMostInField, kMostInField, kIntegerKeys);
    SetUpSpin(IDC_STOP_LOSS_TICK, 1.0, 0, -kMostInField, kMostInField, kIntegerKeys);
}

void CFutureStopProfitLossDlg::DeclareBindings(CBindings& page)
{
    BindStops(page, kFuture, StopTimes::AlwaysOne);
}

COptionsStopProfitLossDlg::COptionsStopProfitLossDlg(CWnd* parent)
    : CBoundPageDlg(IDD_OPTIONS_STOP, parent)
{
}

void COptionsStopProfitLossDlg::SetUpControls()
{
    SetUpSpin(IDC_STOP_LOSS_TIMES, 1.0, 0, 1.0, kMostInField);
    SetUpSpin(IDC_STOP_PROFIT_TIMES, 1.0, 0, 1.0, kMostInField);
    // One nine less below than on the page of futures. This is meant.
    SetUpSpin(IDC_STOP_PROFIT_TICK, 1.0, 0, -999999.0, kMostInField, kIntegerKeys);
    SetUpSpin(IDC_STOP_LOSS_TICK, 1.0, 0, -999999.0, kMostInField, kIntegerKeys);
}

void COptionsStopProfitLossDlg::DeclareBindings(CBindings& page)
{
    BindStops(page, kOptions, StopTimes::AlwaysOne);
}

BOOL COptionsStopProfitLossDlg::OnInitDialog()
{
    CBoundPageDlg::OnInitDialog();
    if (WorkingParam().uUseCloudMode != 1)
        return TRUE;

    // Local stops do not run in cloud mode.
    for (UINT control :
         {IDC_STOP_CHASE, IDC_STOP_LOSS_TIMES, IDC_STOP_PROFIT_TIMES, IDC_STOP_LOSS_TRIGGER,
          IDC_STOP_PROFIT_TRIGGER, IDC_STOP_LOSS_PRICE, IDC_STOP_PROFIT_PRICE, IDC_STOP_PROFIT_TICK,
          IDC_STOP_LOSS_TICK, IDC_STOP_VALIDITY})
        GetDlgItem(control)->EnableWindow(FALSE);
    return TRUE;
}

BEGIN_MESSAGE_MAP(CStockStopProfitLossDlg, CPageDlg)
ON_NOTIFY_RANGE(UDN_DELTAPOS, IDC_STOP_LOSS_TIMES_SPIN, IDC_STOP_LOSS_TICK_SPIN,
                &CStockStopProfitLossDlg::OnSpin)
END_MESSAGE_MAP()

CStockStopProfitLossDlg::CStockStopProfitLossDlg(CWnd* parent)
    : CPageDlg(IDD_STOCK_STOP, parent)
    , m_bindings(*this)
{
    BindStops(m_bindings, kStock, StopTimes::Taken);
}

BOOL CStockStopProfitLossDlg::OnInitDialog()
{
    CPageDlg::OnInitDialog();
    m_bindings.Load(WorkingParam());
    return TRUE;
}

void CStockStopProfitLossDlg::SaveToParam()
{
    m_bindings.Save(WorkingParam());
}

void CStockStopProfitLossDlg::RestoreDefaults()
{
    m_bindings.Restore();
}

void CStockStopProfitLossDlg::OnSpin(UINT spin, NMHDR* header, LRESULT* result)
{
    *result = 0;
    for (const SpinPair& pair : kStockSpins)
    {
        if (pair.spin != spin)
            continue;
        const auto* const change = reinterpret_cast<const NMUPDOWN*>(header);
        const double value =
            static_cast<double>(ParseInt(EditText(*this, pair.edit, kText31).c_str())) -
            change->iDelta;
        SetDlgItemText(pair.edit,
                       std::to_string(std::max(TruncateToInt(value), pair.least)).c_str());
    }
}

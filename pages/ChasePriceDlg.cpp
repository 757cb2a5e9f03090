#include "pages/ChasePriceDlg.h"

#include "core/PackageFile.h"
#include "core/Text.h"
#include "iniwarden/IniWarden.h"
#include "pages/ShippedSettings.h"
#include "resources/resource.h"
#include "skin/SpinValue.h"

#include <algorithm>
#include <climits>

namespace
{

constexpr int kNoLeast = INT_MIN;

const ChasePriceFacts kFuture = {IDD_FUTURE_CHASE,
                                 IDC_CHASE_TICK,
                                 IDC_CHASE_REPEAT,
                                 FIELD(cFAutoChasePriceFlag),
                                 FIELD(iFacPriceTick),
                                 FIELD(iFAutoCancelOrderDelay),
                                 FIELD(iFRepeatTimes),
                                 FIELD(bFManualOrderByChasePrice),
                                 FIELD(bFLastOrderCancel),
                                 1,
                                 false};

const ChasePriceFacts kStock = {IDD_STOCK_CHASE,
                                IDC_STOCK_CHASE_TICK,
                                IDC_STOCK_CHASE_REPEAT,
                                FIELD(cSAutoChasePriceFlag),
                                FIELD(iSacPriceTick),
                                FIELD(iSAutoCancelOrderDelay),
                                FIELD(iSRepeatTimes),
                                FIELD(bSManualOrderByChasePrice),
                                FIELD(bSLastOrderCancel),
                                kNoLeast,
                                true};

const ChasePriceFacts kOptions = {IDD_OPTIONS_CHASE,
                                  IDC_CHASE_TICK,
                                  IDC_CHASE_REPEAT,
                                  FIELD(cOAutoChasePriceFlag),
                                  FIELD(iOacPriceTick),
                                  FIELD(iOAutoCancelOrderDelay),
                                  FIELD(iORepeatTimes),
                                  FIELD(bOManualOrderByChasePrice),
                                  FIELD(bOLastOrderCancel),
                                  kNoLeast,
                                  true};

std::string OutOfRange(const char* format, const ShippedLimits& limits)
{
    char text[256];
    PrintTo(text, sizeof(text), format, limits.minimum, limits.maximum);
    return text;
}

} // namespace

CChasePriceDlg::CChasePriceDlg(const ChasePriceFacts& facts, CWnd* parent)
    : CBoundPageDlg(facts.templateId, parent)
    , m_facts(facts)
{
}

void CChasePriceDlg::SetUpControls()
{
    SetUpSpin(m_facts.tickEdit, 1.0, 0, -kMostInField, kMostInField, kIntegerKeys);
    SetUpSpin(IDC_CHASE_INTERVAL, 0.01, 2, 0.01, kMostInField, kDecimalKeys);
    SetUpSpin(m_facts.repeatEdit, 1.0, 0, 1.0, kMostInField);
}

void CChasePriceDlg::DeclareBindings(CBindings& page)
{
    page.Index(IDC_CHASE_PRICE, m_facts.priceKind, EmptySelection::StoresZero);
    page.Number(m_facts.tickEdit, m_facts.tick, kText63);
    page.Seconds(IDC_CHASE_INTERVAL, m_facts.interval, kText63)
        .RestoredBy([this] { RestoreInterval(); });
    CBinding& repeat =
        page.Number(m_facts.repeatEdit, m_facts.repeat, kText63, m_facts.leastRepeat);
    if (m_facts.restoresWithinLimits)
        repeat.RestoredBy([this] { RestoreRepeat(); });
    page.Flag(IDC_CHASE_MANUAL, m_facts.manual);
    page.Flag(IDC_CHASE_LAST_CANCEL, m_facts.lastCancel);
}

bool CChasePriceDlg::Validate()
{
    const ShippedLimits interval = ChaseIntervalLimits(0);
    // Whole seconds only are compared, so that 30.99 passes a maximum of 30. This is meant.
    const int seconds = ParseInt(EditText(*this, IDC_CHASE_INTERVAL, kText63).c_str());
    if (interval.AreUsable() && !interval.Hold(seconds))
        return Refuse(
            IDC_CHASE_INTERVAL,
            OutOfRange("追价时间间隔不在设定区间，间隔区间为 %d 到 %d 之间", interval).c_str());

    const ShippedLimits repeat = ChaseRepeatLimits();
    const int times = ParseInt(EditText(*this, m_facts.repeatEdit, kText63).c_str());
    if (repeat.AreUsable() && !repeat.Hold(times))
        return Refuse(
            m_facts.repeatEdit,
            OutOfRange("追价重复次数不在设定区间，追价重复次数区间为 %d 到 %d 之间", repeat)
                .c_str());
    return true;
}

void CChasePriceDlg::RestoreInterval()
{
    if (!m_facts.restoresWithinLimits)
    {
        // Futures take the interval from the key of a quick sell button, with a default of their own,
        // and show it as it is read. Odd, and meant.
        const std::string text = IniWarden::ReadSysConfigWithDefault(
            kPackageSection, FIELD(cFSuperSell2).name, "5", kPackageFile);
        ShowText(*this, IDC_CHASE_INTERVAL, text);
        return;
    }
    // Without limits both are 5 here, though a check without limits does not run. This is meant.
    const ShippedLimits limits = ChaseIntervalLimits(5);
    const double value = std::max<double>(limits.minimum, PackagedReal(m_facts.interval.name));
    SetDlgItemText(IDC_CHASE_INTERVAL,
                   FormatDecimal(std::min<double>(value, limits.maximum)).c_str());
}

void CChasePriceDlg::RestoreRepeat()
{
    // Without limits both are 0 here, and so is the count. This is meant.
    const ShippedLimits limits = ChaseRepeatLimits();
    const int value = std::max(PackagedInt(m_facts.repeat.name), limits.minimum);
    SetDlgItemInt(m_facts.repeatEdit, std::min(value, limits.maximum));
}

CFutureChasePriceDlg::CFutureChasePriceDlg(CWnd* parent)
    : CChasePriceDlg(kFuture, parent)
{
}

CStockChasePriceDlg::CStockChasePriceDlg(CWnd* parent)
    : CChasePriceDlg(kStock, parent)
{
}

COptionsChasePriceDlg::COptionsChasePriceDlg(CWnd* parent)
    : CChasePriceDlg(kOptions, parent)
{
}

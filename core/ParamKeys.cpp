#include "core/ParamKeys.h"

#include "core/Text.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <limits>

namespace
{

constexpr bool kLimitPriceOnly = true;
constexpr ParamDefault kNoDefault = {DefaultRead::None, ""};

constexpr ParamDefault Int(const char* text)
{
    return {DefaultRead::Int, text};
}

constexpr ParamDefault Text(const char* text)
{
    return {DefaultRead::Text, text};
}

constexpr ParamDefault Real(const char* text)
{
    return {DefaultRead::Real, text};
}

struct PlainKey
{
    ParamField field;
    TextForm form;
    ParamDefault factory;
    bool limitPriceOnly = false;
};

const PlainKey kKeysBeforeSplitOrder[] = {
    {FIELD(bInsertNoConfirm), TextForm::Decimal, Int("0")},
    {FIELD(bCancelNoConfirm), TextForm::Decimal, Int("0")},
    {FIELD(bIllegalPrompt), TextForm::Decimal, Int("1")},
    {FIELD(bManualOpponentsPrice), TextForm::Decimal, Int("0")},
    {FIELD(imoPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(bRestoreOpponentsPrice), TextForm::Decimal, Int("1")},
    {FIELD(iLockScreen), TextForm::Decimal, Text("10")},
    {FIELD(bPointOrderInsert), TextForm::Decimal, Int("0")},
    {FIELD(bInsertOrderNotice), TextForm::Decimal, Int("1")},
    {FIELD(bStopProfitLossNotice), TextForm::Decimal, Int("1")},
    {FIELD(bEarlyWarningNotice), TextForm::Decimal, Int("1")},
    {FIELD(enumListFontType), TextForm::Decimal, Int("0")},
    {FIELD(cFSpeculationHedge), TextForm::Decimal, Int("49")},
    {FIELD(cFInsertPrice), TextForm::Decimal, Int("0")},
    {FIELD(bFRestoreOpenFlag), TextForm::Decimal, Int("1")},
    {FIELD(cFFastClosePrice), TextForm::Decimal, Int("0")},
    {FIELD(iFfcPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(bFAutoCancelOrder), TextForm::Decimal, Int("0")},
    {FIELD(cFSuperBuy1), TextForm::Decimal, Int("0")},
    {FIELD(cFSuperBuy2), TextForm::Decimal, Int("1")},
    {FIELD(cFSuperSell1), TextForm::Decimal, Int("0")},
    {FIELD(cFSuperSell2), TextForm::Decimal, Int("1")},
    {FIELD(cFCloseTodayPriority), TextForm::Decimal, Int("0")},
    {FIELD(cFAutoChasePriceFlag), TextForm::Decimal, Int("0")},
    {FIELD(iFacPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(iFAutoCancelOrderDelay), TextForm::Seconds, kNoDefault},
    {FIELD(iFRepeatTimes), TextForm::Decimal, Text("2")},
    {FIELD(bFManualOrderByChasePrice), TextForm::Decimal, Int("0")},
    {FIELD(bFLastOrderCancel), TextForm::Decimal, Int("0")},
    {FIELD(iFStopContinuousTimesLoss), TextForm::Decimal, Text("1")},
    {FIELD(cFStopPriceLoss), TextForm::Decimal, Int("0")},
    {FIELD(iFStopContinuousTimesProfit), TextForm::Decimal, Text("1")},
    {FIELD(cFStopPriceProfit), TextForm::Decimal, Int("0")},
    {FIELD(cFStopInsertPriceLoss), TextForm::Decimal, Int("0")},
    {FIELD(cFStopInsertPriceProfit), TextForm::Decimal, Int("0")},
    {FIELD(cFStopProfitPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(cFStopLossPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(bFUseChasePrice), TextForm::Decimal, Int("0")},
    {FIELD(bFForever), TextForm::Decimal, Int("0")},
    {FIELD(cSInsertPrice), TextForm::Decimal, Int("0")},
    {FIELD(uSVolumeLimit), TextForm::Unsigned, Text("999900")},
    {FIELD(cSFastClosePrice), TextForm::Decimal, Int("0")},
    {FIELD(iSfcPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(cSSuperBuy1), TextForm::Decimal, kNoDefault},
    {FIELD(cSSuperBuy2), TextForm::Decimal, kNoDefault},
    {FIELD(cSSuperSell1), TextForm::Decimal, kNoDefault},
    {FIELD(cSSuperSell2), TextForm::Decimal, kNoDefault},
    {FIELD(cSAutoChasePriceFlag), TextForm::Decimal, Int("0")},
    {FIELD(iSacPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(iSAutoCancelOrderDelay), TextForm::Seconds, Real("5.0")},
    {FIELD(iSRepeatTimes), TextForm::Decimal, Int("2")},
    {FIELD(bSManualOrderByChasePrice), TextForm::Decimal, Int("0")},
    {FIELD(bSLastOrderCancel), TextForm::Decimal, Int("0")},
    {FIELD(iSStopContinuousTimesLoss), TextForm::Decimal, Text("1")},
    {FIELD(cSStopPriceLoss), TextForm::Decimal, Int("1")},
    {FIELD(iSStopContinuousTimesProfit), TextForm::Decimal, Text("1")},
    {FIELD(cSStopPriceProfit), TextForm::Decimal, Int("1")},
    {FIELD(cSStopInsertPriceLoss), TextForm::Decimal, Int("0")},
    {FIELD(cSStopInsertPriceProfit), TextForm::Decimal, Int("0")},
    {FIELD(cSStopProfitPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(cSStopLossPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(bSUseChasePrice), TextForm::Decimal, Int("0")},
    {FIELD(bSForever), TextForm::Decimal, Int("0")},
    {FIELD(cOSpeculationHedge), TextForm::Decimal, kNoDefault},
    {FIELD(cOInsertPrice), TextForm::Decimal, Int("0")},
    {FIELD(bORestoreOpenFlag), TextForm::Decimal, Int("1")},
    {FIELD(cOFastClosePrice), TextForm::Decimal, Int("0")},
    {FIELD(iOfcPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(bOAutoCancelOrder), TextForm::Decimal, Int("0")},
    {FIELD(cOSuperBuy1), TextForm::Decimal, Int("0")},
    {FIELD(cOSuperBuy2), TextForm::Decimal, Int("1")},
    {FIELD(cOSuperSell1), TextForm::Decimal, Int("0")},
    {FIELD(cOSuperSell2), TextForm::Decimal, Int("1")},
    {FIELD(iPriceOut), TextForm::Decimal, Int("10")},
    {FIELD(iExpire), TextForm::Decimal, Text("7")},
    {FIELD(iXZDLimit), TextForm::Decimal, Int("0")},
    {FIELD(iLevel), TextForm::Decimal, kNoDefault},
    {FIELD(bOCostPrompt), TextForm::Decimal, Int("0")},
    {FIELD(cOAutoChasePriceFlag), TextForm::Decimal, Int("0")},
    {FIELD(iOacPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(iOAutoCancelOrderDelay), TextForm::GuardedSeconds, Real("5.0")},
    {FIELD(iORepeatTimes), TextForm::Decimal, Int("2")},
    {FIELD(bOManualOrderByChasePrice), TextForm::Decimal, Int("0")},
    {FIELD(bOLastOrderCancel), TextForm::Decimal, Int("0")},
    {FIELD(iOStopContinuousTimesLoss), TextForm::Decimal, Text("1")},
    {FIELD(cOStopPriceLoss), TextForm::Decimal, Int("1")},
    {FIELD(iOStopContinuousTimesProfit), TextForm::Decimal, Text("1")},
    {FIELD(cOStopPriceProfit), TextForm::Decimal, Int("1")},
    {FIELD(cOStopInsertPriceLoss), TextForm::Decimal, Int("0")},
    {FIELD(cOStopInsertPriceProfit), TextForm::Decimal, Int("0")},
    {FIELD(cOStopProfitPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(cOStopLossPriceTick), TextForm::Decimal, Text("0")},
    {FIELD(bOUseChasePrice), TextForm::Decimal, Int("0")},
    {FIELD(bOForever), TextForm::Decimal, Int("0")},
    {FIELD(bOneOpen), TextForm::Decimal, Int("1")},
    {FIELD(bOpenPrompt), TextForm::Decimal, Int("0")},
    {FIELD(bStockAutoOpen), TextForm::Decimal, kNoDefault},
    {FIELD(bFutureAutoOpen), TextForm::Decimal, kNoDefault},
    {FIELD(bDerivativeAutoOpen), TextForm::Decimal, kNoDefault},
    {FIELD(bGoldAutoOpen), TextForm::Decimal, kNoDefault},
    {FIELD(bQuickNoConfirm), TextForm::Decimal, Int("0")},
    {FIELD(bOrderPrompt), TextForm::Decimal, Int("0")},
    {FIELD(uOVolumeLimit), TextForm::Unsigned, Text("1000")},
};

const PlainKey kKeysAfterSplitOrder[] = {
    {FIELD(bRestoreVolume), TextForm::Decimal, Int("0")},
    {FIELD(bTradedPlaySound), TextForm::Decimal, Int("0")},
    {FIELD(bOQueryMaxOpen), TextForm::Decimal, Int("1")},
    {FIELD(bCancelAllNoConfirm), TextForm::Decimal, Int("0")},
    {FIELD(bLinkage), TextForm::Decimal, Int("1")},
    {FIELD(bHideAccountInfo), TextForm::Decimal, Int("0")},
    {FIELD(uOCPositionPrompt), TextForm::Unsigned, Text("3")},
    {FIELD(uUseCloudMode), TextForm::Switch, kNoDefault},
    {FIELD(bPositionStatistics), TextForm::Decimal, Int("0")},
    {FIELD(fMaxRatioHigherLimitPrice), TextForm::Ratio, Text("8.00"), kLimitPriceOnly},
    {FIELD(fMinRatioLowerLimitPrice), TextForm::Ratio, Text("0.20"), kLimitPriceOnly},
    {FIELD(bHigherLimitPriceNotice), TextForm::Decimal, Int("1"), kLimitPriceOnly},
    {FIELD(bLowerLimitPriceNotice), TextForm::Decimal, Int("1"), kLimitPriceOnly},
    {FIELD(bOuterFusingLimitPriceNotice), TextForm::Decimal, Int("1"), kLimitPriceOnly},
    {FIELD(uPosExecPriceRank), TextForm::Unsigned, Int("1")},
    {FIELD(uMarginBuyStrategy), TextForm::Unsigned, Int("3")},
};

struct SplitKey
{
    ParamField field;
    ParamDefault margin;  ///< factory default of entry 1
    ParamDefault options; ///< factory default of entry 2
};

const SplitKey kSplitOrderKeys[] = {
    {SPLIT_FIELD(cSplitOrderType), Int("0"), Int("0")},
    {SPLIT_FIELD(uIfVolume1), Text("10000"), Text("50")},
    {SPLIT_FIELD(uMinVolume1), Text("1000"), Text("1")},
    {SPLIT_FIELD(uMaxVolume1), Text("2000"), Text("50")},
    {SPLIT_FIELD(fInterval1), Text("5.00"), Text("0.30")},
    {SPLIT_FIELD(uIfVolume2), Text("10000"), Text("50")},
    {SPLIT_FIELD(uVolume2), Text("1000"), Text("50")},
    {SPLIT_FIELD(fInterval2), Text("5.00"), Text("0.30")},
    {SPLIT_FIELD(uIfVolume1_Market), Text("10000"), Text("10")},
    {SPLIT_FIELD(uMinVolume1_Market), Text("1000"), Text("1")},
    {SPLIT_FIELD(uMaxVolume1_Market), Text("2000"), Text("10")},
    {SPLIT_FIELD(fInterval1_Market), Text("5.00"), Text("0.30")},
    {SPLIT_FIELD(uIfVolume2_Market), Text("10000"), Text("10")},
    {SPLIT_FIELD(uVolume2_Market), Text("1000"), Text("10")},
    {SPLIT_FIELD(fInterval2_Market), Text("5.00"), Text("0.30")},
};

// Margin buys, options, margin sells. Entries 0 and 4 of the record have no keys.
constexpr int kStoredSplitOrders[] = {1, 2, 3};

ParamKey MakeKey(const PlainKey& row)
{
    return {row.field.name, row.field, row.form, row.factory, row.limitPriceOnly};
}

ParamDefault SplitDefault(const SplitKey& row, int index)
{
    switch (index)
    {
    case 1:
        return row.margin;
    case 2:
        return row.options;
    default:
        return kNoDefault; // entry 3 follows entry 1, nothing restores it by its own keys
    }
}

ParamKey MakeSplitKey(const SplitKey& row, int index)
{
    // Volumes are unsigned in the record but written signed: above 2147483647 they come out
    // negative. This is meant, readers of the file expect it.
    const bool isFloat = row.field.type == FieldType::Float;
    return {std::string(row.field.name) + "_" + std::to_string(index),
            InSplitOrder(index, row.field), isFloat ? TextForm::Ratio : TextForm::Decimal,
            SplitDefault(row, index), false};
}

std::vector<ParamKey> BuildKeys()
{
    std::vector<ParamKey> keys;
    for (const PlainKey& row : kKeysBeforeSplitOrder)
        keys.push_back(MakeKey(row));
    for (int index : kStoredSplitOrders)
        for (const SplitKey& row : kSplitOrderKeys)
            keys.push_back(MakeSplitKey(row, index));
    for (const PlainKey& row : kKeysAfterSplitOrder)
        keys.push_back(MakeKey(row));
    return keys;
}

template <typename T>
T Clamped(double value)
{
    constexpr double low = std::numeric_limits<T>::lowest();
    constexpr double high = std::numeric_limits<T>::max();
    return static_cast<T>(std::max(low, std::min(high, value)));
}

int32_t ParseWhole(double value, const ParamField& field)
{
    switch (field.type)
    {
    case FieldType::UInt32:
        // A negative number is a large one that was written signed.
        return value < 0 ? Clamped<int32_t>(value) : static_cast<int32_t>(Clamped<uint32_t>(value));
    case FieldType::Byte:
        return Clamped<uint8_t>(value);
    case FieldType::Char:
        return Clamped<signed char>(value);
    default:
        return Clamped<int32_t>(value);
    }
}

} // namespace

const std::vector<ParamKey>& ParamKeys()
{
    static const std::vector<ParamKey> keys = BuildKeys();
    return keys;
}

const std::vector<PageOwnedKey>& PageOwnedKeys()
{
    static const std::vector<PageOwnedKey> keys = {
        {"iPriceOutPrompt", Int("1"),
         "deep out-of-the-money warning only on the first order of the day", ParamPageOptions},
        {"iOptionPriceAmountLayout", Int("0"), "swap price and volume on the options order panel",
         ParamPageOptions},
        {"iShowZeroPosition", Int("0"), "show positions of volume 0", ParamPageOptions},
        {"iOptionQuickBSMode", Int("0"),
         "what the Return key walks through on order entry: 0 price, volume, order; "
         "1 volume, price, order; 2 price, order; 3 volume, order",
         ParamPageOptionsQuickKeys},
        {"bShowPositionLine", Int("1"), "show position lines in charts", ParamPagePublic},
        {"bShowConditionOrder", Int("1"), "show condition orders in charts", ParamPagePublic},
        {"szTradedPlaySoundPath", Text(".\\TradedSound.wav"), "sound file played on a fill",
         ParamPagePublic},
    };
    return keys;
}

ParamDefault FactoryDefault(const std::string& key)
{
    for (const ParamKey& row : ParamKeys())
        if (row.key == key)
            return row.factory;
    for (const PageOwnedKey& row : PageOwnedKeys())
        if (row.key == key)
            return row.factory;
    return kNoDefault;
}

std::string FormatParam(const TOParam& record, const ParamKey& key)
{
    const int32_t value = GetInt(record, key.field);
    switch (key.form)
    {
    case TextForm::Unsigned:
        return std::to_string(static_cast<uint32_t>(value));
    case TextForm::Seconds:
        return FormatDecimal(value / 1000.0);
    case TextForm::GuardedSeconds:
        return FormatDecimal((value < 10 ? 5000 : value) / 1000.0);
    case TextForm::Ratio:
        return FormatDecimal(GetFloat(record, key.field));
    case TextForm::Switch:
        return value != 0 ? "1" : "0";
    case TextForm::Decimal:
        break;
    }
    return std::to_string(value);
}

void ParseParam(TOParam& record, const ParamKey& key, const std::string& text)
{
    double value = strtod(text.c_str(), nullptr);
    if (std::isnan(value))
        value = 0;

    switch (key.form)
    {
    case TextForm::Ratio:
        return SetFloat(record, key.field, Clamped<float>(value));
    case TextForm::Seconds:
    case TextForm::GuardedSeconds:
        return SetInt(record, key.field, Clamped<int32_t>(std::round(value * 1000.0)));
    default:
        return SetInt(record, key.field, ParseWhole(value, key.field));
    }
}

std::vector<StoredText> StoredTexts(const TOParam& record, bool withLimitPrice)
{
    std::vector<StoredText> texts;
    for (const ParamKey& key : ParamKeys())
        if (withLimitPrice || !key.limitPriceOnly)
            texts.push_back({key.key, FormatParam(record, key)});
    return texts;
}

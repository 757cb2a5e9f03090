// Every key has its line here: the module writes the whole record, so that a field which its client
// forgets becomes 0 in the trader's file.
#include "Record.h"

#include <windows.h>

#include <stdlib.h>
#include <string.h>

static const char kTradersFile[] = ".\\Cfg\\Trade\\TradePackageConfig.ini";
static const char kPackagedFile[] = ".\\Sys\\Cfg\\Trade\\TradePackageConfig.ini";

enum Form
{
    Whole,
    Seconds, // milliseconds in the record
    Real,
};

struct Key
{
    const char* name;
    size_t offset;
    size_t size;
    Form form;
};

// clang-format off
#define KEY_OF(name, field, form) {name, offsetof(TOParam, field), sizeof(TOParam::field), form}
#define KEY(field) KEY_OF(#field, field, Whole)
#define SECONDS(field) KEY_OF(#field, field, Seconds)
#define REAL(field) KEY_OF(#field, field, Real)
#define SPLIT_KEY(field, n, form)                                                                  \
    {#field "_" #n, offsetof(TOParam, SplitOrder[n].field), sizeof(TSplitOrder::field), form}
#define SPLIT_KEYS(n)                                                                              \
    SPLIT_KEY(cSplitOrderType, n, Whole),                                                          \
    SPLIT_KEY(uIfVolume1, n, Whole), SPLIT_KEY(uIfVolume1_Market, n, Whole),                       \
    SPLIT_KEY(uMinVolume1, n, Whole), SPLIT_KEY(uMinVolume1_Market, n, Whole),                     \
    SPLIT_KEY(uMaxVolume1, n, Whole), SPLIT_KEY(uMaxVolume1_Market, n, Whole),                     \
    SPLIT_KEY(fInterval1, n, Real), SPLIT_KEY(fInterval1_Market, n, Real),                         \
    SPLIT_KEY(uIfVolume2, n, Whole), SPLIT_KEY(uIfVolume2_Market, n, Whole),                       \
    SPLIT_KEY(uVolume2, n, Whole), SPLIT_KEY(uVolume2_Market, n, Whole),                           \
    SPLIT_KEY(fInterval2, n, Real), SPLIT_KEY(fInterval2_Market, n, Real)

static const Key kKeys[] = {
    KEY(bInsertNoConfirm), KEY(bCancelNoConfirm), KEY(bIllegalPrompt), KEY(bManualOpponentsPrice),
    KEY(imoPriceTick), KEY(bRestoreOpponentsPrice), KEY(iLockScreen), KEY(bPointOrderInsert),
    KEY(bInsertOrderNotice), KEY(bStopProfitLossNotice), KEY(bEarlyWarningNotice),
    KEY(enumListFontType), KEY(cFSpeculationHedge), KEY(cFInsertPrice), KEY(bFRestoreOpenFlag),
    KEY(cFFastClosePrice), KEY(iFfcPriceTick), KEY(bFAutoCancelOrder), KEY(cFSuperBuy1),
    KEY(cFSuperBuy2), KEY(cFSuperSell1), KEY(cFSuperSell2), KEY(cFCloseTodayPriority),
    KEY(cFAutoChasePriceFlag), KEY(iFacPriceTick), SECONDS(iFAutoCancelOrderDelay),
    KEY(iFRepeatTimes), KEY(bFManualOrderByChasePrice), KEY(bFLastOrderCancel),
    KEY(iFStopContinuousTimesLoss), KEY(cFStopPriceLoss), KEY(iFStopContinuousTimesProfit),
    KEY(cFStopPriceProfit), KEY(cFStopInsertPriceLoss), KEY(cFStopInsertPriceProfit),
    KEY(cFStopProfitPriceTick), KEY(cFStopLossPriceTick), KEY(bFUseChasePrice), KEY(bFForever),
    KEY(cSInsertPrice), KEY(uSVolumeLimit), KEY(cSFastClosePrice), KEY(iSfcPriceTick),
    KEY(cSSuperBuy1), KEY(cSSuperBuy2), KEY(cSSuperSell1), KEY(cSSuperSell2),
    KEY(cSAutoChasePriceFlag), KEY(iSacPriceTick), SECONDS(iSAutoCancelOrderDelay),
    KEY(iSRepeatTimes), KEY(bSManualOrderByChasePrice), KEY(bSLastOrderCancel),
    KEY(iSStopContinuousTimesLoss), KEY(cSStopPriceLoss), KEY(iSStopContinuousTimesProfit),
    KEY(cSStopPriceProfit), KEY(cSStopInsertPriceLoss), KEY(cSStopInsertPriceProfit),
    KEY(cSStopProfitPriceTick), KEY(cSStopLossPriceTick), KEY(bSUseChasePrice), KEY(bSForever),
    KEY(cOSpeculationHedge), KEY(cOInsertPrice), KEY(bORestoreOpenFlag), KEY(cOFastClosePrice),
    KEY(iOfcPriceTick), KEY(bOAutoCancelOrder), KEY(cOSuperBuy1), KEY(cOSuperBuy2),
    KEY(cOSuperSell1), KEY(cOSuperSell2), KEY(iPriceOut), KEY(iExpire), KEY(iXZDLimit), KEY(iLevel),
    KEY(bOCostPrompt), KEY(cOAutoChasePriceFlag), KEY(iOacPriceTick),
    SECONDS(iOAutoCancelOrderDelay), KEY(iORepeatTimes), KEY(bOManualOrderByChasePrice),
    KEY(bOLastOrderCancel), KEY(iOStopContinuousTimesLoss), KEY(cOStopPriceLoss),
    KEY(iOStopContinuousTimesProfit), KEY(cOStopPriceProfit), KEY(cOStopInsertPriceLoss),
    KEY(cOStopInsertPriceProfit), KEY(cOStopProfitPriceTick), KEY(cOStopLossPriceTick),
    KEY(bOUseChasePrice), KEY(bOForever), KEY(bOneOpen), KEY(bOpenPrompt), KEY(bStockAutoOpen),
    KEY(bFutureAutoOpen), KEY(bDerivativeAutoOpen), KEY(bGoldAutoOpen), KEY(bQuickNoConfirm),
    KEY(bOrderPrompt), KEY(uOVolumeLimit), SPLIT_KEYS(1), SPLIT_KEYS(2), SPLIT_KEYS(3),
    KEY(bRestoreVolume), KEY(bTradedPlaySound), KEY(bOQueryMaxOpen), KEY(bCancelAllNoConfirm),
    KEY(bLinkage), KEY(bHideAccountInfo), KEY(uOCPositionPrompt), KEY(uUseCloudMode),
    KEY(bPositionStatistics), REAL(fMaxRatioHigherLimitPrice), REAL(fMinRatioLowerLimitPrice),
    KEY(bHigherLimitPriceNotice), KEY(bLowerLimitPriceNotice), KEY(bOuterFusingLimitPriceNotice),
    KEY(uPosExecPriceRank), KEY(uMarginBuyStrategy), KEY(iPriceOutPrompt),
    KEY(iOptionPriceAmountLayout), KEY(iShowZeroPosition), KEY(iOptionQuickBSMode),
};
// clang-format on

static double ReadNumber(const char* key)
{
    char packaged[32];
    GetPrivateProfileStringA("TradeConfig", key, "0", packaged, sizeof(packaged), kPackagedFile);
    char text[32];
    GetPrivateProfileStringA("TradeConfig", key, packaged, text, sizeof(text), kTradersFile);
    return atof(text);
}

static void Store(TOParam& record, const Key& key, double number)
{
    const float real = static_cast<float>(number);
    const long long whole =
        static_cast<long long>(key.form == Seconds ? number * 1000 + 0.5 : number);
    const void* const value = key.form == Real ? static_cast<const void*>(&real) : &whole;
    // Little-endian: a number begins with its low bytes, however many the field has.
    memcpy(reinterpret_cast<char*>(&record) + key.offset, value, key.size);
}

TOParam LoadRecord()
{
    TOParam record = {};
    for (const Key& key : kKeys)
        Store(record, key, ReadNumber(key.name));
    // The two defaults that no file has before the first save.
    if (record.iFAutoCancelOrderDelay == 0)
        record.iFAutoCancelOrderDelay = 5000;
    if (record.SplitOrder[3].uIfVolume1 == 0)
        record.SplitOrder[3] = record.SplitOrder[1];
    return record;
}

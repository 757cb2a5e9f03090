// The trading parameters that the host and Zorvane.dll share. Needs no framework and no other header
// of the module.
#pragma once

#include <stddef.h>
#include <stdint.h>

/// A 32-bit flag. Zorvane writes exactly 0 or 1 and reads any non-zero value as set.
typedef int32_t TBool32;

/// The price a user picks from a five-row list; the value is the row.
enum PriceKind
{
    PriceOpposite = 0,   ///< "对手价", the best price of the other side
    PriceLast = 1,       ///< "最新价", the last traded price
    PriceQueue = 2,      ///< "挂单价", the best price of the own side
    PriceUpperLimit = 3, ///< "涨停价"
    PriceLowerLimit = 4, ///< "跌停价"
};

/// PriceKind for the default order price, with one more. 5 and 6 have no meaning.
enum InsertPriceKind
{
    InsertPriceOpposite = 0,         ///< "对手价"
    InsertPriceLast = 1,             ///< "最新价"
    InsertPriceQueue = 2,            ///< "挂单价"
    InsertPriceUpperLimit = 3,       ///< "涨停价"
    InsertPriceLowerLimit = 4,       ///< "跌停价"
    InsertPriceQueuePlusOneTick = 7, ///< "挂单价超一个价位"
};

/// The price that sets off a stop.
enum TriggerPriceKind
{
    TriggerPriceOpposite = 0, ///< "对手价"
    TriggerPriceLast = 1,     ///< "最新价"
    TriggerPriceQueue = 2,    ///< "挂单价"
};

/// The price of a quick buy or sell button; the value is the row in a ten-row list.
enum SuperPriceKind
{
    SuperPriceBeyond1 =
        0, ///< "超一价": one tick beyond the opposite side; 1 to 4: two to five ticks
    SuperPriceBeyond5 = 4, ///< "超五价"
    SuperPriceQueue1 =
        5, ///< "挂一价": the first level of the own side; 6 to 9: the second to fifth
    SuperPriceQueue5 = 9, ///< "挂五价"
};

/// The page that ZorvaneInterface::DoModal opens. A value without a page opens the first one.
enum TParamSetPage
{
    ParamPagePublic = 0,             ///< "公共设置", "常规"
    ParamPageConditionMode = 1,      ///< "公共设置", "条件单模式"
    ParamPageIndicator = 2,          ///< "指标策略交易", listed under SpecialUIIndicator only
    ParamPageOptions = 100,          ///< "期权设置", "常规"
    ParamPageOptionsChase = 101,     ///< "期权设置", "自动追价"
    ParamPageOptionsStop = 102,      ///< "期权设置", "本地止盈止损"
    ParamPageOptionsSplit = 103,     ///< "期权设置", "自动拆单"
    ParamPageOptionsKeys = 104,      ///< "期权设置", "键盘下单"
    ParamPageOptionsQuickKeys = 105, ///< "期权设置", "快键下单"
    ParamPageOtherOptions = 106,     ///< "其它", options
    ParamPageFuture = 200,           ///< "期货/黄金设置", "常规"
    ParamPageFutureChase = 201,      ///< "期货/黄金设置", "自动追价"
    ParamPageFutureStop = 202,       ///< "期货/黄金设置", "止盈止损"
    ParamPageOtherFuture = 203,      ///< "其它", futures
    ParamPageStock = 300,            ///< "证券/融资融券设置", "常规"
    ParamPageStockChase = 301,       ///< "证券/融资融券设置", "自动追价"
    ParamPageStockSplit = 302,       ///< "证券/融资融券设置", "自动拆单"
    ParamPageMarginBuy = 303,        ///< "证券/融资融券设置", "两融买入方式"
    ParamPageOtherStock = 304,       ///< "其它", securities
};

/// What ZorvaneInterface::SetSpecialUI turns on. Every key is off until it is set.
enum SpecialUI
{
    SpecialUILimitPrice =
        0,                  ///< the limit-price reminders of options: their controls and their keys
    SpecialUIIndicator = 1, ///< the page "指标策略交易"
};

#pragma pack(push, 1)

/// How large orders of one product kind are split. 57 bytes, packed. Volumes are in shares or
/// contracts. Names without _Market are for limit orders, those with it for market orders.
struct TSplitOrder
{
    /// 0 no splitting, 1 random slices ("随机拆单"), 2 fixed slices ("固定拆单")
    uint8_t cSplitOrderType;
    /// Random slices: split above this volume, 1 and up
    uint32_t uIfVolume1;
    /// Smallest slice, 1 and up
    uint32_t uMinVolume1;
    /// Largest slice, 1 and up
    uint32_t uMaxVolume1;
    /// Seconds between slices, 0.01 and up
    float fInterval1;
    /// Fixed slices: split above this volume, 1 and up
    uint32_t uIfVolume2;
    /// Slice size, 1 and up
    uint32_t uVolume2;
    /// Seconds between slices, 0.01 and up
    float fInterval2;
    /// Random slices: split above this volume, 1 and up, market orders
    uint32_t uIfVolume1_Market;
    /// Smallest slice, 1 and up, market orders
    uint32_t uMinVolume1_Market;
    /// Largest slice, 1 and up, market orders
    uint32_t uMaxVolume1_Market;
    /// Seconds between slices, 0.01 and up, market orders
    float fInterval1_Market;
    /// Fixed slices: split above this volume, 1 and up, market orders
    uint32_t uIfVolume2_Market;
    /// Slice size, 1 and up, market orders
    uint32_t uVolume2_Market;
    /// Seconds between slices, 0.01 and up, market orders
    float fInterval2_Market;
};

/// Every trading parameter that the settings window edits. 811 bytes, packed, little-endian: a binary
/// contract between host and module. Field names are the keys of the package file. The second letter
/// tells the product: F futures and gold, S securities, O exchange-traded options. The first letter
/// hints at the type and may mislead.
struct TOParam
{
    /// 0 or 1: ordinary order entry needs no confirmation ("普通下单无需确认")
    TBool32 bInsertNoConfirm;
    /// 0 or 1: cancelling needs no confirmation ("撤单无需确认")
    TBool32 bCancelNoConfirm;
    /// 0 or 1: prompt on invalid data ("不合法数据提示")
    TBool32 bIllegalPrompt;
    /// 0 or 1: on manual order entry shift the price by imoPriceTick ticks
    TBool32 bManualOpponentsPrice;
    /// Price ticks for bManualOpponentsPrice; the page's arrows stay within -9999999 to 9999999
    int32_t imoPriceTick;
    /// 0 or 1: after an order set the price back to the default price ("下单后将价格设置为默认价格")
    TBool32 bRestoreOpponentsPrice;
    /// Minutes without user action before the trading screen locks; the page's arrows stay within
    /// 0 to 9999999
    int32_t iLockScreen;
    /// 0 or 1: enable click-on-price order entry in the market view ("启用行情界面点价下单")
    TBool32 bPointOrderInsert;
    /// 0 or 1: notice on orders; the public page stores 0
    TBool32 bInsertOrderNotice;
    /// 0 or 1: notice on stop-profit and stop-loss; the public page stores 0
    TBool32 bStopProfitLossNotice;
    /// 0 or 1: notice on early warnings; the public page stores 0
    TBool32 bEarlyWarningNotice;
    /// List font: 0 "正常字体" (normal), 1 "较大字体" (larger)
    int32_t enumListFontType;
    /// Futures hedge flag as an ASCII digit: '1' (49) "投机" (speculation), '3' (51) "保值" (hedge)
    char cFSpeculationHedge;
    /// Default futures order price, InsertPriceKind
    uint8_t cFInsertPrice;
    /// 0 or 1: after closing return to open state ("平仓后恢复为开仓状态。")
    TBool32 bFRestoreOpenFlag;
    /// Quick-close price, PriceKind
    uint8_t cFFastClosePrice;
    /// Quick-close price shift in ticks; the page's arrows stay within -9999999 to 9999999
    int32_t iFfcPriceTick;
    /// 0 or 1: cancel resting close orders when the close volume exceeds what is available
    TBool32 bFAutoCancelOrder;
    /// Quick buy button one, SuperPriceKind
    uint8_t cFSuperBuy1;
    /// Quick buy button two, SuperPriceKind
    uint8_t cFSuperBuy2;
    /// Quick sell button one, SuperPriceKind
    uint8_t cFSuperSell1;
    /// Quick sell button two, SuperPriceKind
    uint8_t cFSuperSell2;
    /// Close priority: 0 "平今优先" (today first), 1 "平昨优先" (yesterday first)
    uint8_t cFCloseTodayPriority;
    /// Chase price base, PriceKind
    uint8_t cFAutoChasePriceFlag;
    /// Chase price shift in ticks; the page's arrows stay within -9999999 to 9999999
    int32_t iFacPriceTick;
    /// Chase interval in milliseconds; page and file show seconds
    int32_t iFAutoCancelOrderDelay;
    /// Most chase repetitions, 1 and up
    int32_t iFRepeatTimes;
    /// 0 or 1: chase on manual orders too
    TBool32 bFManualOrderByChasePrice;
    /// 0 or 1: cancel the order when chasing did not finish
    TBool32 bFLastOrderCancel;
    /// Stop-loss: trigger after this many ticks in a row, 1 and up
    int32_t iFStopContinuousTimesLoss;
    /// Stop-loss trigger price, TriggerPriceKind
    uint8_t cFStopPriceLoss;
    /// Stop-profit: trigger after this many ticks in a row, 1 and up
    int32_t iFStopContinuousTimesProfit;
    /// Stop-profit trigger price, TriggerPriceKind
    uint8_t cFStopPriceProfit;
    /// Stop-loss order price, PriceKind
    uint8_t cFStopInsertPriceLoss;
    /// Stop-profit order price, PriceKind
    uint8_t cFStopInsertPriceProfit;
    /// Stop-profit order price shift in ticks, -9999999 to 9999999
    int32_t cFStopProfitPriceTick;
    /// Stop-loss order price shift in ticks, -9999999 to 9999999
    int32_t cFStopLossPriceTick;
    /// 0 or 1: stop orders start the automatic chase
    TBool32 bFUseChasePrice;
    /// 0 or 1: stop validity: 0 "当日有效" (today), 1 "永久有效" (permanent)
    TBool32 bFForever;
    /// Default securities order price, InsertPriceKind
    uint8_t cSInsertPrice;
    /// Single order limit ("单笔上限") in shares, 0 and up
    uint32_t uSVolumeLimit;
    /// Quick-close price, PriceKind, securities
    uint8_t cSFastClosePrice;
    /// Quick-close price shift in ticks; the page's arrows stay within
    /// -999999 to 9999999, securities
    int32_t iSfcPriceTick;
    /// No page edits it; carried and saved only
    uint8_t cSSuperBuy1;
    /// No page edits it; carried and saved only
    uint8_t cSSuperBuy2;
    /// No page edits it; carried and saved only
    uint8_t cSSuperSell1;
    /// No page edits it; carried and saved only
    uint8_t cSSuperSell2;
    /// Chase price base, PriceKind, securities
    uint8_t cSAutoChasePriceFlag;
    /// Chase price shift in ticks, -9999999 to 9999999, securities
    int32_t iSacPriceTick;
    /// Chase interval in milliseconds; page and file show seconds, securities
    int32_t iSAutoCancelOrderDelay;
    /// Most chase repetitions, 1 and up, securities
    int32_t iSRepeatTimes;
    /// 0 or 1: chase on manual orders too, securities
    TBool32 bSManualOrderByChasePrice;
    /// 0 or 1: cancel the order when chasing did not finish, securities
    TBool32 bSLastOrderCancel;
    /// Stop-loss: trigger after this many ticks in a row, 1 and up, securities
    int32_t iSStopContinuousTimesLoss;
    /// Stop-loss trigger price, TriggerPriceKind, securities
    uint8_t cSStopPriceLoss;
    /// Stop-profit: trigger after this many ticks in a row, 1 and up, securities
    int32_t iSStopContinuousTimesProfit;
    /// Stop-profit trigger price, TriggerPriceKind, securities
    uint8_t cSStopPriceProfit;
    /// Stop-loss order price, PriceKind, securities
    uint8_t cSStopInsertPriceLoss;
    /// Stop-profit order price, PriceKind, securities
    uint8_t cSStopInsertPriceProfit;
    /// Stop-profit order price shift in ticks, -9999999 to 9999999, securities
    int32_t cSStopProfitPriceTick;
    /// Stop-loss order price shift in ticks, -9999999 to 9999999, securities
    int32_t cSStopLossPriceTick;
    /// 0 or 1: stop orders start the automatic chase, securities
    TBool32 bSUseChasePrice;
    /// 0 or 1: stop validity: 0 "当日有效" (today), 1 "永久有效" (permanent), securities
    TBool32 bSForever;
    /// No page edits it; carried and saved only
    char cOSpeculationHedge;
    /// Default options order price, InsertPriceKind
    uint8_t cOInsertPrice;
    /// 0 or 1: after closing return to open state ("平仓后恢复为开仓状态。"), options
    TBool32 bORestoreOpenFlag;
    /// Quick-close price, PriceKind, options
    uint8_t cOFastClosePrice;
    /// Quick-close price shift in ticks, -9999999 to 9999999, options
    int32_t iOfcPriceTick;
    /// 0 or 1: cancel resting close orders when the close volume exceeds what is available, options
    TBool32 bOAutoCancelOrder;
    /// Quick buy button one, SuperPriceKind, options
    uint8_t cOSuperBuy1;
    /// Quick buy button two, SuperPriceKind, options
    uint8_t cOSuperBuy2;
    /// Quick sell button one, SuperPriceKind, options
    uint8_t cOSuperSell1;
    /// Quick sell button two, SuperPriceKind, options
    uint8_t cOSuperSell2;
    /// Deep out-of-the-money threshold in percent ("严重价外提醒"), 1 and up,
    /// within the limits that the installation sets for what iXZDLimit says
    int32_t iPriceOut;
    /// Warn when the contract expires within this many days, 1 and up
    int32_t iExpire;
    /// What iPriceOut measures: 0 "虚值度" (degree out of the money), 1 "溢价率" (premium rate)
    int32_t iXZDLimit;
    /// No page edits it; carried and saved only
    int32_t iLevel;
    /// Travels unchanged, is not stored
    uint8_t reserved1[1];
    /// 0 or 1: warn when a closing sale cannot cover trading cost
    TBool32 bOCostPrompt;
    /// Chase price base, PriceKind, options
    uint8_t cOAutoChasePriceFlag;
    /// Chase price shift in ticks, -9999999 to 9999999, options
    int32_t iOacPriceTick;
    /// Chase interval in milliseconds; page and file show seconds, options
    int32_t iOAutoCancelOrderDelay;
    /// Most chase repetitions, 1 and up, options
    int32_t iORepeatTimes;
    /// 0 or 1: chase on manual orders too, options
    TBool32 bOManualOrderByChasePrice;
    /// 0 or 1: cancel the order when chasing did not finish, options
    TBool32 bOLastOrderCancel;
    /// Stop-loss: trigger after this many ticks in a row, 1 and up, options
    int32_t iOStopContinuousTimesLoss;
    /// Stop-loss trigger price, TriggerPriceKind, options
    uint8_t cOStopPriceLoss;
    /// Stop-profit: trigger after this many ticks in a row, 1 and up, options
    int32_t iOStopContinuousTimesProfit;
    /// Stop-profit trigger price, TriggerPriceKind, options
    uint8_t cOStopPriceProfit;
    /// Stop-loss order price, PriceKind, options
    uint8_t cOStopInsertPriceLoss;
    /// Stop-profit order price, PriceKind, options
    uint8_t cOStopInsertPriceProfit;
    /// Stop-profit order price shift in ticks; the page's arrows stay within
    /// -999999 to 9999999, options
    int32_t cOStopProfitPriceTick;
    /// Stop-loss order price shift in ticks; the page's arrows stay within
    /// -999999 to 9999999, options
    int32_t cOStopLossPriceTick;
    /// 0 or 1: stop orders start the automatic chase, options
    TBool32 bOUseChasePrice;
    /// 0 or 1: stop validity: 0 "当日有效" (today), 1 "永久有效" (permanent), options
    TBool32 bOForever;
    /// 0 or 1: indicator strategy: one opening order per bar
    TBool32 bOneOpen;
    /// 0 or 1: indicator strategy: show an order prompt
    TBool32 bOpenPrompt;
    /// 0 or 1: allow indicator strategy orders for securities
    TBool32 bStockAutoOpen;
    /// 0 or 1: allow them for futures
    TBool32 bFutureAutoOpen;
    /// 0 or 1: allow them for options
    TBool32 bDerivativeAutoOpen;
    /// 0 or 1: allow them for gold
    TBool32 bGoldAutoOpen;
    /// Travels unchanged, is not stored
    uint8_t reserved2[11];
    /// 0 or 1: quick orders need no confirmation ("快捷下单无需确认")
    TBool32 bQuickNoConfirm;
    /// 0 or 1: floating notice for order and trade reports ("委托与成交回报浮窗提示")
    TBool32 bOrderPrompt;
    /// Single order limit in contracts, 0 and up, options
    uint32_t uOVolumeLimit;
    /// 0 or 1: after an order set the volume back to the default
    TBool32 bRestoreVolume;
    /// 0 or 1: play a sound on a fill
    TBool32 bTradedPlaySound;
    /// 0 or 1: the open-volume query shows the quantity by funds
    TBool32 bOQueryMaxOpen;
    /// 0 or 1: cancel-all needs no confirmation ("全撤无需确认")
    TBool32 bCancelAllNoConfirm;
    /// Order splitting by product kind. 1 and 3 serve securities margin accounts and are kept equal,
    /// 2 serves options; 0 and 4 travel unchanged and are not stored
    TSplitOrder SplitOrder[5];
    /// Warn when a combination is undone automatically within this many days, 1 and up
    uint32_t uOCPositionPrompt;
    /// Condition order mode: 0 local ("本地模式"), non-zero cloud ("云模式")
    uint32_t uUseCloudMode;
    /// Travels unchanged, is not stored
    uint8_t reserved3[88];
    /// 0 or 1: show the Greeks summed over different underlyings
    TBool32 bPositionStatistics;
    /// 0 or 1: clicking a position, order, trade or combination links to the market view
    TBool32 bLinkage;
    /// 0 or 1: hide account information
    TBool32 bHideAccountInfo;
    /// 0 or 1: warn when a limit buy is above last price times fMaxRatioHigherLimitPrice
    TBool32 bHigherLimitPriceNotice;
    /// Ratio, above 1
    float fMaxRatioHigherLimitPrice;
    /// 0 or 1: warn when a limit sell is below last price times fMinRatioLowerLimitPrice
    TBool32 bLowerLimitPriceNotice;
    /// Ratio, between 0 and 1
    float fMinRatioLowerLimitPrice;
    /// 0 or 1: warn when a limit price may trip the circuit breaker
    TBool32 bOuterFusingLimitPriceNotice;
    /// Position ranks: 0 "混合显示" (mixed), 1 "分类显示" (by class)
    uint32_t uPosExecPriceRank;
    /// Margin buy strategy, 3 financing first, 1 financing only, 0 ordinary buy
    uint32_t uMarginBuyStrategy;
    /// Shown, never assigned here (the page writes the file): swap price and volume on the order panel
    int32_t iOptionPriceAmountLayout;
    /// Shown, never assigned here (the page writes the file): show rows with zero position
    int32_t iShowZeroPosition;
    /// Shown, never assigned here (the page writes the file): quick-key mode, 0 to 3
    int32_t iOptionQuickBSMode;
    /// Shown, never assigned here (the page writes the file): deep out-of-the-money warning only on
    /// the first order of the day ("当日首单提醒。")
    int32_t iPriceOutPrompt;
    /// Travels unchanged, is not stored
    uint8_t reserved4[42];
};

#pragma pack(pop)

#define ZORVANE_OFFSET(record, field, offset)                                                      \
    static_assert(offsetof(record, field) == offset, #field " lies elsewhere")

static_assert(sizeof(TSplitOrder) == 57, "hosts rely on the size");
ZORVANE_OFFSET(TSplitOrder, cSplitOrderType, 0);
ZORVANE_OFFSET(TSplitOrder, uIfVolume1, 1);
ZORVANE_OFFSET(TSplitOrder, uMinVolume1, 5);
ZORVANE_OFFSET(TSplitOrder, uMaxVolume1, 9);
ZORVANE_OFFSET(TSplitOrder, fInterval1, 13);
ZORVANE_OFFSET(TSplitOrder, uIfVolume2, 17);
ZORVANE_OFFSET(TSplitOrder, uVolume2, 21);
ZORVANE_OFFSET(TSplitOrder, fInterval2, 25);
ZORVANE_OFFSET(TSplitOrder, uIfVolume1_Market, 29);
ZORVANE_OFFSET(TSplitOrder, uMinVolume1_Market, 33);
ZORVANE_OFFSET(TSplitOrder, uMaxVolume1_Market, 37);
ZORVANE_OFFSET(TSplitOrder, fInterval1_Market, 41);
ZORVANE_OFFSET(TSplitOrder, uIfVolume2_Market, 45);
ZORVANE_OFFSET(TSplitOrder, uVolume2_Market, 49);
ZORVANE_OFFSET(TSplitOrder, fInterval2_Market, 53);

static_assert(sizeof(TOParam) == 811, "hosts rely on the size");
ZORVANE_OFFSET(TOParam, bInsertNoConfirm, 0);
ZORVANE_OFFSET(TOParam, bCancelNoConfirm, 4);
ZORVANE_OFFSET(TOParam, bIllegalPrompt, 8);
ZORVANE_OFFSET(TOParam, bManualOpponentsPrice, 12);
ZORVANE_OFFSET(TOParam, imoPriceTick, 16);
ZORVANE_OFFSET(TOParam, bRestoreOpponentsPrice, 20);
ZORVANE_OFFSET(TOParam, iLockScreen, 24);
ZORVANE_OFFSET(TOParam, bPointOrderInsert, 28);
ZORVANE_OFFSET(TOParam, bInsertOrderNotice, 32);
ZORVANE_OFFSET(TOParam, bStopProfitLossNotice, 36);
ZORVANE_OFFSET(TOParam, bEarlyWarningNotice, 40);
ZORVANE_OFFSET(TOParam, enumListFontType, 44);
ZORVANE_OFFSET(TOParam, cFSpeculationHedge, 48);
ZORVANE_OFFSET(TOParam, cFInsertPrice, 49);
ZORVANE_OFFSET(TOParam, bFRestoreOpenFlag, 50);
ZORVANE_OFFSET(TOParam, cFFastClosePrice, 54);
ZORVANE_OFFSET(TOParam, iFfcPriceTick, 55);
ZORVANE_OFFSET(TOParam, bFAutoCancelOrder, 59);
ZORVANE_OFFSET(TOParam, cFSuperBuy1, 63);
ZORVANE_OFFSET(TOParam, cFSuperBuy2, 64);
ZORVANE_OFFSET(TOParam, cFSuperSell1, 65);
ZORVANE_OFFSET(TOParam, cFSuperSell2, 66);
ZORVANE_OFFSET(TOParam, cFCloseTodayPriority, 67);
ZORVANE_OFFSET(TOParam, cFAutoChasePriceFlag, 68);
ZORVANE_OFFSET(TOParam, iFacPriceTick, 69);
ZORVANE_OFFSET(TOParam, iFAutoCancelOrderDelay, 73);
ZORVANE_OFFSET(TOParam, iFRepeatTimes, 77);
ZORVANE_OFFSET(TOParam, bFManualOrderByChasePrice, 81);
ZORVANE_OFFSET(TOParam, bFLastOrderCancel, 85);
ZORVANE_OFFSET(TOParam, iFStopContinuousTimesLoss, 89);
ZORVANE_OFFSET(TOParam, cFStopPriceLoss, 93);
ZORVANE_OFFSET(TOParam, iFStopContinuousTimesProfit, 94);
ZORVANE_OFFSET(TOParam, cFStopPriceProfit, 98);
ZORVANE_OFFSET(TOParam, cFStopInsertPriceLoss, 99);
ZORVANE_OFFSET(TOParam, cFStopInsertPriceProfit, 100);
ZORVANE_OFFSET(TOParam, cFStopProfitPriceTick, 101);
ZORVANE_OFFSET(TOParam, cFStopLossPriceTick, 105);
ZORVANE_OFFSET(TOParam, bFUseChasePrice, 109);
ZORVANE_OFFSET(TOParam, bFForever, 113);
ZORVANE_OFFSET(TOParam, cSInsertPrice, 117);
ZORVANE_OFFSET(TOParam, uSVolumeLimit, 118);
ZORVANE_OFFSET(TOParam, cSFastClosePrice, 122);
ZORVANE_OFFSET(TOParam, iSfcPriceTick, 123);
ZORVANE_OFFSET(TOParam, cSSuperBuy1, 127);
ZORVANE_OFFSET(TOParam, cSSuperBuy2, 128);
ZORVANE_OFFSET(TOParam, cSSuperSell1, 129);
ZORVANE_OFFSET(TOParam, cSSuperSell2, 130);
ZORVANE_OFFSET(TOParam, cSAutoChasePriceFlag, 131);
ZORVANE_OFFSET(TOParam, iSacPriceTick, 132);
ZORVANE_OFFSET(TOParam, iSAutoCancelOrderDelay, 136);
ZORVANE_OFFSET(TOParam, iSRepeatTimes, 140);
ZORVANE_OFFSET(TOParam, bSManualOrderByChasePrice, 144);
ZORVANE_OFFSET(TOParam, bSLastOrderCancel, 148);
ZORVANE_OFFSET(TOParam, iSStopContinuousTimesLoss, 152);
ZORVANE_OFFSET(TOParam, cSStopPriceLoss, 156);
ZORVANE_OFFSET(TOParam, iSStopContinuousTimesProfit, 157);
ZORVANE_OFFSET(TOParam, cSStopPriceProfit, 161);
ZORVANE_OFFSET(TOParam, cSStopInsertPriceLoss, 162);
ZORVANE_OFFSET(TOParam, cSStopInsertPriceProfit, 163);
ZORVANE_OFFSET(TOParam, cSStopProfitPriceTick, 164);
ZORVANE_OFFSET(TOParam, cSStopLossPriceTick, 168);
ZORVANE_OFFSET(TOParam, bSUseChasePrice, 172);
ZORVANE_OFFSET(TOParam, bSForever, 176);
ZORVANE_OFFSET(TOParam, cOSpeculationHedge, 180);
ZORVANE_OFFSET(TOParam, cOInsertPrice, 181);
ZORVANE_OFFSET(TOParam, bORestoreOpenFlag, 182);
ZORVANE_OFFSET(TOParam, cOFastClosePrice, 186);
ZORVANE_OFFSET(TOParam, iOfcPriceTick, 187);
ZORVANE_OFFSET(TOParam, bOAutoCancelOrder, 191);
ZORVANE_OFFSET(TOParam, cOSuperBuy1, 195);
ZORVANE_OFFSET(TOParam, cOSuperBuy2, 196);
ZORVANE_OFFSET(TOParam, cOSuperSell1, 197);
ZORVANE_OFFSET(TOParam, cOSuperSell2, 198);
ZORVANE_OFFSET(TOParam, iPriceOut, 199);
ZORVANE_OFFSET(TOParam, iExpire, 203);
ZORVANE_OFFSET(TOParam, iXZDLimit, 207);
ZORVANE_OFFSET(TOParam, iLevel, 211);
ZORVANE_OFFSET(TOParam, reserved1, 215);
ZORVANE_OFFSET(TOParam, bOCostPrompt, 216);
ZORVANE_OFFSET(TOParam, cOAutoChasePriceFlag, 220);
ZORVANE_OFFSET(TOParam, iOacPriceTick, 221);
ZORVANE_OFFSET(TOParam, iOAutoCancelOrderDelay, 225);
ZORVANE_OFFSET(TOParam, iORepeatTimes, 229);
ZORVANE_OFFSET(TOParam, bOManualOrderByChasePrice, 233);
ZORVANE_OFFSET(TOParam, bOLastOrderCancel, 237);
ZORVANE_OFFSET(TOParam, iOStopContinuousTimesLoss, 241);
ZORVANE_OFFSET(TOParam, cOStopPriceLoss, 245);
ZORVANE_OFFSET(TOParam, iOStopContinuousTimesProfit, 246);
ZORVANE_OFFSET(TOParam, cOStopPriceProfit, 250);
ZORVANE_OFFSET(TOParam, cOStopInsertPriceLoss, 251);
ZORVANE_OFFSET(TOParam, cOStopInsertPriceProfit, 252);
ZORVANE_OFFSET(TOParam, cOStopProfitPriceTick, 253);
ZORVANE_OFFSET(TOParam, cOStopLossPriceTick, 257);
ZORVANE_OFFSET(TOParam, bOUseChasePrice, 261);
ZORVANE_OFFSET(TOParam, bOForever, 265);
ZORVANE_OFFSET(TOParam, bOneOpen, 269);
ZORVANE_OFFSET(TOParam, bOpenPrompt, 273);
ZORVANE_OFFSET(TOParam, bStockAutoOpen, 277);
ZORVANE_OFFSET(TOParam, bFutureAutoOpen, 281);
ZORVANE_OFFSET(TOParam, bDerivativeAutoOpen, 285);
ZORVANE_OFFSET(TOParam, bGoldAutoOpen, 289);
ZORVANE_OFFSET(TOParam, reserved2, 293);
ZORVANE_OFFSET(TOParam, bQuickNoConfirm, 304);
ZORVANE_OFFSET(TOParam, bOrderPrompt, 308);
ZORVANE_OFFSET(TOParam, uOVolumeLimit, 312);
ZORVANE_OFFSET(TOParam, bRestoreVolume, 316);
ZORVANE_OFFSET(TOParam, bTradedPlaySound, 320);
ZORVANE_OFFSET(TOParam, bOQueryMaxOpen, 324);
ZORVANE_OFFSET(TOParam, bCancelAllNoConfirm, 328);
ZORVANE_OFFSET(TOParam, SplitOrder, 332);
ZORVANE_OFFSET(TOParam, uOCPositionPrompt, 617);
ZORVANE_OFFSET(TOParam, uUseCloudMode, 621);
ZORVANE_OFFSET(TOParam, reserved3, 625);
ZORVANE_OFFSET(TOParam, bPositionStatistics, 713);
ZORVANE_OFFSET(TOParam, bLinkage, 717);
ZORVANE_OFFSET(TOParam, bHideAccountInfo, 721);
ZORVANE_OFFSET(TOParam, bHigherLimitPriceNotice, 725);
ZORVANE_OFFSET(TOParam, fMaxRatioHigherLimitPrice, 729);
ZORVANE_OFFSET(TOParam, bLowerLimitPriceNotice, 733);
ZORVANE_OFFSET(TOParam, fMinRatioLowerLimitPrice, 737);
ZORVANE_OFFSET(TOParam, bOuterFusingLimitPriceNotice, 741);
ZORVANE_OFFSET(TOParam, uPosExecPriceRank, 745);
ZORVANE_OFFSET(TOParam, uMarginBuyStrategy, 749);
ZORVANE_OFFSET(TOParam, iOptionPriceAmountLayout, 753);
ZORVANE_OFFSET(TOParam, iShowZeroPosition, 757);
ZORVANE_OFFSET(TOParam, iOptionQuickBSMode, 761);
ZORVANE_OFFSET(TOParam, iPriceOutPrompt, 765);
ZORVANE_OFFSET(TOParam, reserved4, 769);

#undef ZORVANE_OFFSET

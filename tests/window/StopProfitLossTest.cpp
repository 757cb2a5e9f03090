// The tabs "止盈止损" and "本地止盈止损", and the page of securities that nothing leads to.
#include "tests/window/ModuleTest.h"

#include <commctrl.h>

namespace
{

constexpr int kRestoreDefaults = 3;
constexpr int kChase = 6002;
constexpr int kLossTimes = 6006;
constexpr int kProfitTimes = 6008;
constexpr int kLossTrigger = 6009;
constexpr int kProfitTrigger = 6011;
constexpr int kLossPrice = 6012;
constexpr int kProfitPrice = 6013;
constexpr int kProfitTick = 6014;
constexpr int kLossTick = 6016;
constexpr int kValidity = 6018;

class Stops : public ModuleTest
{
protected:
    static TOParam Record()
    {
        TOParam record = {};
        record.iFStopContinuousTimesLoss = record.iSStopContinuousTimesLoss =
            record.iOStopContinuousTimesLoss = 5;
        record.cFStopPriceLoss = record.cSStopPriceLoss = record.cOStopPriceLoss = 2;
        record.iFStopContinuousTimesProfit = record.iSStopContinuousTimesProfit =
            record.iOStopContinuousTimesProfit = 6;
        record.cFStopPriceProfit = record.cSStopPriceProfit = record.cOStopPriceProfit = 1;
        record.cFStopInsertPriceLoss = record.cSStopInsertPriceLoss = record.cOStopInsertPriceLoss =
            3;
        record.cFStopInsertPriceProfit = record.cSStopInsertPriceProfit =
            record.cOStopInsertPriceProfit = 4;
        record.cFStopProfitPriceTick = record.cSStopProfitPriceTick = record.cOStopProfitPriceTick =
            -7;
        record.cFStopLossPriceTick = record.cSStopLossPriceTick = record.cOStopLossPriceTick = 8;
        record.bFUseChasePrice = record.bSUseChasePrice = record.bOUseChasePrice = 1;
        record.bFForever = record.bSForever = record.bOForever = 7;
        return record;
    }

    static void ExpectRecordShown(Trader& trader)
    {
        EXPECT_EQ("5", trader.Text(trader.Beside(kValidity, kLossTimes)));
        EXPECT_EQ("6", trader.Text(trader.Beside(kValidity, kProfitTimes)));
        EXPECT_EQ(2, trader.Picked(kLossTrigger));
        EXPECT_EQ(1, trader.Picked(kProfitTrigger));
        EXPECT_EQ(3, trader.Picked(kLossPrice));
        EXPECT_EQ(4, trader.Picked(kProfitPrice));
        EXPECT_EQ("8", trader.Text(kLossTick));
        EXPECT_EQ("-7", trader.Text(kProfitTick));
        EXPECT_TRUE(trader.IsChecked(kChase));
        EXPECT_EQ(1, trader.Picked(kValidity));
        EXPECT_EQ("启动自动追价。(连续交易状态下有效)", trader.Text(kChase));
        const char* const prices[] = {"对手价", "最新价", "挂单价", "涨停价", "跌停价"};
        for (int combo : {kLossTrigger, kProfitTrigger, kLossPrice, kProfitPrice})
        {
            const int count = combo <= kProfitTrigger ? 3 : 5;
            EXPECT_EQ(count, trader.ItemCount(combo));
            for (int row = 0; row < count; ++row)
                EXPECT_EQ(prices[row], trader.Item(combo, row)) << combo;
        }
        EXPECT_EQ("当日有效", trader.Item(kValidity, 0));
        EXPECT_EQ("永久有效", trader.Item(kValidity, 1));
    }
};

} // namespace

TEST_F(Stops, FuturesShowTheRecordAndHideTheTimes)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageFutureStop,
                      [](Trader& trader)
                      {
                          ExpectRecordShown(trader);
                          EXPECT_FALSE(IsWindowVisible(trader.Beside(kValidity, kLossTimes)));
                          EXPECT_FALSE(trader.ShowsLabel("连续"));
                          EXPECT_FALSE(trader.ShowsLabel("笔，"));
                          for (const char* label :
                               {"当", "价达到或超过指定价位时，触发止损。",
                                "价达到或超过指定价位时，触发止盈。", "止损时，按照",
                                "止盈时，按照", "调整", "个价位发出委托。", "止盈止损"})
                              EXPECT_TRUE(trader.ShowsLabel(label)) << label;
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(Stops, FuturesStoreWhatTheTraderSetAndOneForTheTimes)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageFutureStop,
                      [](Trader& trader)
                      {
                          trader.Pick(kLossTrigger, 0);
                          trader.Pick(kProfitTrigger, 2);
                          trader.Pick(kLossPrice, 1);
                          trader.Pick(kProfitPrice, 2);
                          trader.Type(kLossTick, "-3");
                          trader.Type(kProfitTick, "4");
                          trader.Click(kChase);
                          trader.Pick(kValidity, 0);
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("1", Stored("iFStopContinuousTimesLoss"));
    EXPECT_EQ("1", Stored("iFStopContinuousTimesProfit"));
    EXPECT_EQ("0", Stored("cFStopPriceLoss"));
    EXPECT_EQ("2", Stored("cFStopPriceProfit"));
    EXPECT_EQ("1", Stored("cFStopInsertPriceLoss"));
    EXPECT_EQ("2", Stored("cFStopInsertPriceProfit"));
    EXPECT_EQ("-3", Stored("cFStopLossPriceTick"));
    EXPECT_EQ("4", Stored("cFStopProfitPriceTick"));
    EXPECT_EQ("0", Stored("bFUseChasePrice"));
    EXPECT_EQ("0", Stored("bFForever"));
}

TEST_F(Stops, AForeignValidityIsStoredAsOne)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageFutureStop, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("1", Stored("bFForever"));
}

TEST_F(Stops, OptionsShowTheirOwnWords)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageOptionsStop,
                      [](Trader& trader)
                      {
                          ExpectRecordShown(trader);
                          for (const char* label :
                               {"达到或超过指定价位时，触发止损。",
                                "达到或超过指定价位时，触发止盈。", "止损调整", "止盈调整",
                                "(止盈止损只有在交易与行情登录的条件下才有效)"})
                              EXPECT_TRUE(trader.ShowsLabel(label)) << label;
                          EXPECT_TRUE(trader.IsEnabled(kLossTrigger));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("1", Stored("iOStopContinuousTimesLoss"));
    EXPECT_EQ("2", Stored("cOStopPriceLoss"));
    EXPECT_EQ("1", Stored("bOForever"));
}

TEST_F(Stops, CloudModeDisablesThePageOfOptions)
{
    TOParam record = Record();
    record.uUseCloudMode = 1;
    RunSettingsWindow(
        record, ParamPageOptionsStop,
        [](Trader& trader)
        {
            for (int control : {kChase, kLossTimes, kProfitTimes, kLossTrigger, kProfitTrigger,
                                kLossPrice, kProfitPrice, kProfitTick, kLossTick, kValidity})
                EXPECT_FALSE(IsWindowEnabled(trader.Beside(kValidity, control))) << control;
            trader.Click(IDCANCEL);
        });
}

TEST_F(Stops, AnyOtherCloudValueLeavesThePageOn)
{
    TOParam record = Record();
    record.uUseCloudMode = 2;
    RunSettingsWindow(record, ParamPageOptionsStop,
                      [](Trader& trader)
                      {
                          EXPECT_TRUE(trader.IsEnabled(kLossTrigger));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(Stops, FuturesRestoreTheOppositePrice)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageFutureStop,
                      [](Trader& trader)
                      {
                          trader.Click(kRestoreDefaults);
                          EXPECT_EQ("1", trader.Text(trader.Beside(kValidity, kLossTimes)));
                          EXPECT_EQ(0, trader.Picked(kLossTrigger));
                          EXPECT_EQ(0, trader.Picked(kProfitTrigger));
                          EXPECT_EQ(0, trader.Picked(kLossPrice));
                          EXPECT_EQ(0, trader.Picked(kProfitPrice));
                          EXPECT_EQ("0", trader.Text(kLossTick));
                          EXPECT_EQ("0", trader.Text(kProfitTick));
                          EXPECT_FALSE(trader.IsChecked(kChase));
                          EXPECT_EQ(0, trader.Picked(kValidity));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(Stops, OptionsRestoreTheLastPrice)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOptionsStop,
                      [](Trader& trader)
                      {
                          trader.Click(kRestoreDefaults);
                          EXPECT_EQ(1, trader.Picked(kLossTrigger));
                          EXPECT_EQ(1, trader.Picked(kProfitTrigger));
                          EXPECT_EQ(0, trader.Picked(kLossPrice));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(Stops, SecuritiesAreSavedThoughNeverShown)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageStock,
                      [](Trader& trader)
                      {
                          EXPECT_FALSE(trader.ShowsLabel("价发出委托。"));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("5", Stored("iSStopContinuousTimesLoss"));
    EXPECT_EQ("2", Stored("cSStopPriceLoss"));
    EXPECT_EQ("8", Stored("cSStopLossPriceTick"));
    EXPECT_EQ("1", Stored("bSForever"));
}

TEST_F(Stops, TheSpinsOfSecuritiesHaveAFloorForTheTimesOnly)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageStock,
                      [](Trader& trader)
                      {
                          // Nothing shows the page: its spin controls are reached by their notification.
                          const HWND spin = trader.Control(6017);
                          const HWND page = GetParent(spin);
                          const auto turn = [page](int id, int delta)
                          {
                              NMUPDOWN change = {};
                              change.hdr.hwndFrom = GetDlgItem(page, id);
                              change.hdr.idFrom = id;
                              change.hdr.code = static_cast<UINT>(UDN_DELTAPOS);
                              change.iDelta = delta;
                              return SendMessageA(page, WM_NOTIFY, id,
                                                  reinterpret_cast<LPARAM>(&change));
                          };
                          const auto text = [page](int id)
                          {
                              char buffer[64] = "";
                              GetDlgItemTextA(page, id, buffer, sizeof(buffer));
                              return std::string(buffer);
                          };
                          EXPECT_EQ(0, turn(6007, 1));
                          EXPECT_EQ("4", text(kLossTimes));
                          turn(6007, 100);
                          EXPECT_EQ("1", text(kLossTimes));
                          turn(6007, 1);
                          EXPECT_EQ("1", text(kLossTimes));
                          turn(6010, -2);
                          EXPECT_EQ("8", text(kProfitTimes));
                          turn(6015, 100);
                          EXPECT_EQ("-107", text(kProfitTick));
                          turn(6017, -1);
                          EXPECT_EQ("9", text(kLossTick));
                          trader.Click(IDCANCEL);
                      });
}

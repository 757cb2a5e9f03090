// The tabs "止盈止损" and "本地止盈止损", and the page of securities that nothing leads to.
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"

#include <commctrl.h>

namespace
{

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
        EXPECT_EQ("5", trader.Text(trader.Beside(IDC_STOP_VALIDITY, IDC_STOP_LOSS_TIMES)));
        EXPECT_EQ("6", trader.Text(trader.Beside(IDC_STOP_VALIDITY, IDC_STOP_PROFIT_TIMES)));
        EXPECT_EQ(2, trader.Picked(IDC_STOP_LOSS_TRIGGER));
        EXPECT_EQ(1, trader.Picked(IDC_STOP_PROFIT_TRIGGER));
        EXPECT_EQ(3, trader.Picked(IDC_STOP_LOSS_PRICE));
        EXPECT_EQ(4, trader.Picked(IDC_STOP_PROFIT_PRICE));
        EXPECT_EQ("8", trader.Text(IDC_STOP_LOSS_TICK));
        EXPECT_EQ("-7", trader.Text(IDC_STOP_PROFIT_TICK));
        EXPECT_TRUE(trader.IsChecked(IDC_STOP_CHASE));
        EXPECT_EQ(1, trader.Picked(IDC_STOP_VALIDITY));
        EXPECT_EQ("启动自动追价。(连续交易状态下有效)", trader.Text(IDC_STOP_CHASE));
        const char* const prices[] = {"对手价", "最新价", "挂单价", "涨停价", "跌停价"};
        for (int combo : {IDC_STOP_LOSS_TRIGGER, IDC_STOP_PROFIT_TRIGGER, IDC_STOP_LOSS_PRICE,
                          IDC_STOP_PROFIT_PRICE})
        {
            const int count = combo <= IDC_STOP_PROFIT_TRIGGER ? 3 : 5;
            EXPECT_EQ(count, trader.ItemCount(combo));
            for (int row = 0; row < count; ++row)
                EXPECT_EQ(prices[row], trader.Item(combo, row)) << combo;
        }
        EXPECT_EQ("当日有效", trader.Item(IDC_STOP_VALIDITY, 0));
        EXPECT_EQ("永久有效", trader.Item(IDC_STOP_VALIDITY, 1));
    }
};

} // namespace

TEST_F(Stops, FuturesShowTheRecordAndHideTheTimes)
{
    TOParam record = Record();
    RunSettingsWindow(
        record, ParamPageFutureStop,
        [](Trader& trader)
        {
            ExpectRecordShown(trader);
            EXPECT_FALSE(IsWindowVisible(trader.Beside(IDC_STOP_VALIDITY, IDC_STOP_LOSS_TIMES)));
            EXPECT_FALSE(trader.ShowsLabel("连续"));
            EXPECT_FALSE(trader.ShowsLabel("笔，"));
            for (const char* label :
                 {"当", "价达到或超过指定价位时，触发止损。", "价达到或超过指定价位时，触发止盈。",
                  "止损时，按照", "止盈时，按照", "调整", "个价位发出委托。", "止盈止损"})
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
                          trader.Pick(IDC_STOP_LOSS_TRIGGER, 0);
                          trader.Pick(IDC_STOP_PROFIT_TRIGGER, 2);
                          trader.Pick(IDC_STOP_LOSS_PRICE, 1);
                          trader.Pick(IDC_STOP_PROFIT_PRICE, 2);
                          trader.Type(IDC_STOP_LOSS_TICK, "-3");
                          trader.Type(IDC_STOP_PROFIT_TICK, "4");
                          trader.Click(IDC_STOP_CHASE);
                          trader.Pick(IDC_STOP_VALIDITY, 0);
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
                          EXPECT_TRUE(trader.IsEnabled(IDC_STOP_LOSS_TRIGGER));
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
            for (int control :
                 {IDC_STOP_CHASE, IDC_STOP_LOSS_TIMES, IDC_STOP_PROFIT_TIMES, IDC_STOP_LOSS_TRIGGER,
                  IDC_STOP_PROFIT_TRIGGER, IDC_STOP_LOSS_PRICE, IDC_STOP_PROFIT_PRICE,
                  IDC_STOP_PROFIT_TICK, IDC_STOP_LOSS_TICK, IDC_STOP_VALIDITY})
                EXPECT_FALSE(IsWindowEnabled(trader.Beside(IDC_STOP_VALIDITY, control))) << control;
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
                          EXPECT_TRUE(trader.IsEnabled(IDC_STOP_LOSS_TRIGGER));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(Stops, FuturesRestoreTheOppositePrice)
{
    TOParam record = Record();
    RunSettingsWindow(
        record, ParamPageFutureStop,
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_EQ("1", trader.Text(trader.Beside(IDC_STOP_VALIDITY, IDC_STOP_LOSS_TIMES)));
            EXPECT_EQ(0, trader.Picked(IDC_STOP_LOSS_TRIGGER));
            EXPECT_EQ(0, trader.Picked(IDC_STOP_PROFIT_TRIGGER));
            EXPECT_EQ(0, trader.Picked(IDC_STOP_LOSS_PRICE));
            EXPECT_EQ(0, trader.Picked(IDC_STOP_PROFIT_PRICE));
            EXPECT_EQ("0", trader.Text(IDC_STOP_LOSS_TICK));
            EXPECT_EQ("0", trader.Text(IDC_STOP_PROFIT_TICK));
            EXPECT_FALSE(trader.IsChecked(IDC_STOP_CHASE));
            EXPECT_EQ(0, trader.Picked(IDC_STOP_VALIDITY));
            trader.Click(IDCANCEL);
        });
}

TEST_F(Stops, OptionsRestoreTheLastPrice)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOptionsStop,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          EXPECT_EQ(1, trader.Picked(IDC_STOP_LOSS_TRIGGER));
                          EXPECT_EQ(1, trader.Picked(IDC_STOP_PROFIT_TRIGGER));
                          EXPECT_EQ(0, trader.Picked(IDC_STOP_LOSS_PRICE));
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
                          const HWND spin = trader.Control(IDC_STOP_LOSS_TICK_SPIN);
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
                          EXPECT_EQ(0, turn(IDC_STOP_LOSS_TIMES_SPIN, 1));
                          EXPECT_EQ("4", text(IDC_STOP_LOSS_TIMES));
                          turn(IDC_STOP_LOSS_TIMES_SPIN, 100);
                          EXPECT_EQ("1", text(IDC_STOP_LOSS_TIMES));
                          turn(IDC_STOP_LOSS_TIMES_SPIN, 1);
                          EXPECT_EQ("1", text(IDC_STOP_LOSS_TIMES));
                          turn(IDC_STOP_PROFIT_TIMES_SPIN, -2);
                          EXPECT_EQ("8", text(IDC_STOP_PROFIT_TIMES));
                          turn(IDC_STOP_PROFIT_TICK_SPIN, 100);
                          EXPECT_EQ("-107", text(IDC_STOP_PROFIT_TICK));
                          turn(IDC_STOP_LOSS_TICK_SPIN, -1);
                          EXPECT_EQ("9", text(IDC_STOP_LOSS_TICK));
                          trader.Click(IDCANCEL);
                      });
}

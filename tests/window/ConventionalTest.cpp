// The tab "常规" of futures and of securities.
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"
#include "tests/window/PriceItems.h"

namespace
{

// Futures

// Securities

class FutureConventional : public ModuleTest
{
protected:
    static TOParam Record()
    {
        TOParam record = {};
        record.cFSpeculationHedge = '3';
        record.cFInsertPrice = 7;
        record.bFAutoCancelOrder = 1;
        record.cFFastClosePrice = 2;
        record.iFfcPriceTick = -3;
        record.cFSuperBuy1 = 9;
        record.cFSuperBuy2 = 8;
        record.cFSuperSell1 = 5;
        record.cFSuperSell2 = 4;
        record.cFCloseTodayPriority = 1;
        return record;
    }
};

class StockConventional : public ModuleTest
{
};

} // namespace

TEST_F(FutureConventional, ShowsTheRecordAndItsWords)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageFuture,
                      [](Trader& trader)
                      {
                          EXPECT_EQ("平仓后恢复为开仓状态。", trader.Text(IDC_RESTORE_OPEN));
                          EXPECT_EQ("平仓数量超过可用时自动撤销已有平仓委托。",
                                    trader.Text(IDC_AUTO_CANCEL));
                          for (const char* label :
                               {"快捷平仓时使用：", "调整", "个价位下单。", "默认下单价格：",
                                "投保类别", "(仅期货有效)", "快捷买按钮一：", "快捷买按钮二：",
                                "快捷卖按钮一：", "快捷卖按钮二：", "平仓优先级："})
                              EXPECT_TRUE(trader.ShowsLabel(label)) << label;

                          EXPECT_FALSE(trader.IsChecked(IDC_RESTORE_OPEN));
                          EXPECT_TRUE(trader.IsChecked(IDC_AUTO_CANCEL));
                          EXPECT_EQ(1, trader.Picked(IDC_HEDGE));
                          EXPECT_EQ(5, trader.Picked(IDC_INSERT_PRICE));
                          EXPECT_EQ(2, trader.Picked(IDC_FAST_CLOSE));
                          EXPECT_EQ("-3", trader.Text(IDC_FAST_CLOSE_TICK));
                          EXPECT_EQ(9, trader.Picked(IDC_SUPER_BUY_1));
                          EXPECT_EQ(8, trader.Picked(IDC_SUPER_BUY_2));
                          EXPECT_EQ(5, trader.Picked(IDC_SUPER_SELL_1));
                          EXPECT_EQ(4, trader.Picked(IDC_SUPER_SELL_2));
                          EXPECT_EQ(1, trader.Picked(IDC_CLOSE_PRIORITY));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(FutureConventional, ListsItsItems)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageFuture,
                      [](Trader& trader)
                      {
                          ExpectPriceItems(trader, IDC_INSERT_PRICE, IDC_FAST_CLOSE);
                          for (int combo : {IDC_SUPER_BUY_1, IDC_SUPER_BUY_2})
                              ExpectQuickButtonItems(trader, combo, "买");
                          for (int combo : {IDC_SUPER_SELL_1, IDC_SUPER_SELL_2})
                              ExpectQuickButtonItems(trader, combo, "卖");
                          EXPECT_EQ("投机", trader.Item(IDC_HEDGE, 0));
                          EXPECT_EQ("保值", trader.Item(IDC_HEDGE, 1));
                          EXPECT_EQ("平今优先", trader.Item(IDC_CLOSE_PRIORITY, 0));
                          EXPECT_EQ("平昨优先", trader.Item(IDC_CLOSE_PRIORITY, 1));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(FutureConventional, StoresWhatTheTraderSet)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageFuture,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_RESTORE_OPEN);
                          trader.Click(IDC_AUTO_CANCEL);
                          trader.Pick(IDC_FAST_CLOSE, 4);
                          trader.Type(IDC_FAST_CLOSE_TICK, "15");
                          trader.Pick(IDC_INSERT_PRICE, 3);
                          trader.Pick(IDC_HEDGE, 0);
                          trader.Pick(IDC_SUPER_BUY_1, 1);
                          trader.Pick(IDC_SUPER_BUY_2, 2);
                          trader.Pick(IDC_SUPER_SELL_1, 3);
                          trader.Pick(IDC_SUPER_SELL_2, 6);
                          trader.Pick(IDC_CLOSE_PRIORITY, 0);
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("1", Stored("bFRestoreOpenFlag"));
    EXPECT_EQ("0", Stored("bFAutoCancelOrder"));
    EXPECT_EQ("4", Stored("cFFastClosePrice"));
    EXPECT_EQ("15", Stored("iFfcPriceTick"));
    EXPECT_EQ("3", Stored("cFInsertPrice"));
    EXPECT_EQ("49", Stored("cFSpeculationHedge"));
    EXPECT_EQ("1", Stored("cFSuperBuy1"));
    EXPECT_EQ("2", Stored("cFSuperBuy2"));
    EXPECT_EQ("3", Stored("cFSuperSell1"));
    EXPECT_EQ("6", Stored("cFSuperSell2"));
    EXPECT_EQ("0", Stored("cFCloseTodayPriority"));
}

TEST_F(FutureConventional, KeepsUntouchedValuesAsTheyAre)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageFuture, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("51", Stored("cFSpeculationHedge"));
    EXPECT_EQ("7", Stored("cFInsertPrice"));
    EXPECT_EQ("9", Stored("cFSuperBuy1"));
}

TEST_F(FutureConventional, ForeignValuesSelectNothing)
{
    TOParam record = Record();
    record.cFSpeculationHedge = '2';
    record.cFInsertPrice = 6;
    record.cFFastClosePrice = 200;
    record.cFSuperBuy1 = 10;
    RunSettingsWindow(record, ParamPageFuture,
                      [](Trader& trader)
                      {
                          EXPECT_EQ(-1, trader.Picked(IDC_HEDGE));
                          EXPECT_EQ(-1, trader.Picked(IDC_INSERT_PRICE));
                          EXPECT_EQ(-1, trader.Picked(IDC_FAST_CLOSE));
                          EXPECT_EQ(-1, trader.Picked(IDC_SUPER_BUY_1));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("49", Stored("cFSpeculationHedge"));
    EXPECT_EQ("0", Stored("cFInsertPrice"));
    EXPECT_EQ("0", Stored("cFFastClosePrice"));
    EXPECT_EQ("255", Stored("cFSuperBuy1"));
}

TEST_F(FutureConventional, RestoresBuiltInDefaults)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageFuture,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          EXPECT_EQ(0, trader.Picked(IDC_HEDGE));
                          EXPECT_EQ(0, trader.Picked(IDC_INSERT_PRICE));
                          EXPECT_TRUE(trader.IsChecked(IDC_RESTORE_OPEN));
                          EXPECT_EQ(0, trader.Picked(IDC_FAST_CLOSE));
                          EXPECT_EQ("0", trader.Text(IDC_FAST_CLOSE_TICK));
                          EXPECT_FALSE(trader.IsChecked(IDC_AUTO_CANCEL));
                          EXPECT_EQ(0, trader.Picked(IDC_SUPER_BUY_1));
                          EXPECT_EQ(1, trader.Picked(IDC_SUPER_BUY_2));
                          EXPECT_EQ(0, trader.Picked(IDC_SUPER_SELL_1));
                          EXPECT_EQ(1, trader.Picked(IDC_SUPER_SELL_2));
                          EXPECT_EQ(0, trader.Picked(IDC_CLOSE_PRIORITY));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(FutureConventional, RestoresPackagedValues)
{
    WriteBytes(kPackagedFile,
               "[TradeConfig]\r\ncFSpeculationHedge=50\r\ncFInsertPrice=5\r\niFfcPriceTick= 8 x\r\n"
               "cFSuperBuy2=3\r\nbFRestoreOpenFlag=0\r\n");
    TOParam record = Record();
    RunSettingsWindow(
        record, ParamPageFuture,
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_EQ(1, trader.Picked(IDC_HEDGE));              // 50 is no hedge class: left alone
            EXPECT_EQ(5, trader.Picked(IDC_INSERT_PRICE));       // no item for 5: left alone
            EXPECT_EQ(" 8 x", trader.Text(IDC_FAST_CLOSE_TICK)); // as it is read
            EXPECT_EQ(3, trader.Picked(IDC_SUPER_BUY_2));
            EXPECT_FALSE(trader.IsChecked(IDC_RESTORE_OPEN));
            trader.Click(IDCANCEL);
        });
}

TEST_F(FutureConventional, OnlyThirtyOneCharactersOfTheTicksCount)
{
    TOParam record = Record();
    RunSettingsWindow(record, ParamPageFuture,
                      [](Trader& trader)
                      {
                          trader.SetText(IDC_FAST_CLOSE_TICK, std::string(29, '0') + "123");
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("12", Stored("iFfcPriceTick"));
}

TEST_F(StockConventional, ShowsTheRecordAndItsWords)
{
    TOParam record = {};
    record.cSInsertPrice = 4;
    record.uSVolumeLimit = 4000000000u;
    record.cSFastClosePrice = 1;
    record.iSfcPriceTick = 6;
    RunSettingsWindow(
        record, ParamPageStock,
        [](Trader& trader)
        {
            for (const char* label :
                 {"默认下单价格：", "单笔上限：", "快捷平仓时使用：", "并调整", "个价位下单。",
                  "说明：融券卖出默认价格数值不使用当前设置，自动填入首次关联的最新价"})
                EXPECT_TRUE(trader.ShowsLabel(label)) << label;
            EXPECT_EQ(5, trader.ItemCount(IDC_STOCK_INSERT_PRICE));
            EXPECT_EQ(4, trader.Picked(IDC_STOCK_INSERT_PRICE));
            EXPECT_EQ("4000000000", trader.Text(IDC_STOCK_VOLUME_LIMIT));
            EXPECT_EQ(1, trader.Picked(IDC_FAST_CLOSE));
            EXPECT_EQ("6", trader.Text(IDC_STOCK_FAST_CLOSE_TICK));
            trader.Click(IDCANCEL);
        });
}

TEST_F(StockConventional, StoresWhatTheTraderSet)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageStock,
                      [](Trader& trader)
                      {
                          trader.Pick(IDC_STOCK_INSERT_PRICE, 2);
                          trader.Type(IDC_STOCK_VOLUME_LIMIT, "a-12300");
                          trader.Pick(IDC_FAST_CLOSE, 3);
                          trader.Type(IDC_STOCK_FAST_CLOSE_TICK, "-9");
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("2", Stored("cSInsertPrice"));
    EXPECT_EQ("12300", Stored("uSVolumeLimit"));
    EXPECT_EQ("3", Stored("cSFastClosePrice"));
    EXPECT_EQ("-9", Stored("iSfcPriceTick"));
}

TEST_F(StockConventional, ALimitOfZeroIsStored)
{
    TOParam record = {};
    record.uSVolumeLimit = 100;
    RunSettingsWindow(record, ParamPageStock,
                      [](Trader& trader)
                      {
                          trader.Type(IDC_STOCK_VOLUME_LIMIT, "0");
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("0", Stored("uSVolumeLimit"));
}

TEST_F(StockConventional, DoesNotOfferThePriceBeyondTheQueue)
{
    TOParam record = {};
    record.cSInsertPrice = 7;
    RunSettingsWindow(record, ParamPageStock,
                      [](Trader& trader)
                      {
                          EXPECT_EQ(-1, trader.Picked(IDC_STOCK_INSERT_PRICE));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("0", Stored("cSInsertPrice"));
}

TEST_F(StockConventional, CarriesTheQuickButtonsThatNoPageEdits)
{
    TOParam record = {};
    record.cSSuperBuy1 = 3;
    record.cSSuperSell2 = 200;
    RunSettingsWindow(record, ParamPageStock, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("3", Stored("cSSuperBuy1"));
    EXPECT_EQ("200", Stored("cSSuperSell2"));
}

TEST_F(StockConventional, RestoresBuiltInDefaults)
{
    TOParam record = {};
    record.cSInsertPrice = 3;
    RunSettingsWindow(record, ParamPageStock,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          EXPECT_EQ(0, trader.Picked(IDC_STOCK_INSERT_PRICE));
                          EXPECT_EQ("999900", trader.Text(IDC_STOCK_VOLUME_LIMIT));
                          EXPECT_EQ(0, trader.Picked(IDC_FAST_CLOSE));
                          EXPECT_EQ("0", trader.Text(IDC_STOCK_FAST_CLOSE_TICK));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(StockConventional, ALargeLimitThatIsLeftAloneSurvives)
{
    TOParam record = {};
    record.uSVolumeLimit = 4000000000u;
    RunSettingsWindow(record, ParamPageStock, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("4000000000", Stored("uSVolumeLimit"));
}

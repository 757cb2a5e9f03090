// Which entry, tab and page open, and how the hosts pass checks, restores and saves on.
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"

namespace
{

class Hosts : public ModuleTest
{
};

struct Opening
{
    TParamSetPage page;
    int row;
    const char* label; // a text that only this page shows
};

} // namespace

TEST_F(Hosts, EachStartValueOpensItsPage)
{
    const Opening starts[] = {
        {ParamPagePublic, 0, "普通下单无需确认"},
        {ParamPageOptions, 1, "严重价外提醒："},
        {ParamPageOptionsChase, 1, "未完成追价则自动撤单。(连续交易状态有效)"},
        {ParamPageOptionsStop, 1, "(止盈止损只有在交易与行情登录的条件下才有效)"},
        {ParamPageOptionsSplit, 1, "如果下单张数大于"},
        {ParamPageOptionsKeys, 1, "添加"},
        {ParamPageOptionsQuickKeys, 1, "快捷键设置"},
        {ParamPageFuture, 2, "投保类别"},
        {ParamPageFutureChase, 2, "未完成追价则自动撤单。"},
        {ParamPageFutureStop, 2, "价达到或超过指定价位时，触发止损。"},
        {ParamPageStock, 3, "单笔上限："},
        {ParamPageStockChase, 3, "自动追价时使用"},
        {ParamPageStockSplit, 3, "如果下单股数大于"},
        {ParamPageMarginBuy, 3, "仅融资买入"},
        {ParamPageIndicator, 4, "指标策略下单时，一根K棒上只能下一次开仓单。"},
    };
    for (const Opening& start : starts)
    {
        TOParam record = {};
        RunSettingsWindow(
            record, start.page,
            [&start](Trader& trader)
            {
                EXPECT_EQ(start.row, trader.SelectedRow()) << start.page;
                EXPECT_TRUE(trader.ShowsLabel(start.label)) << start.page;
                for (const char* other : {"单笔上限：", "如果下单张数大于", "投保类别"})
                {
                    if (strcmp(other, start.label) != 0)
                    {
                        EXPECT_FALSE(trader.ShowsLabel(other)) << start.page;
                    }
                }
                // The marked tab is the one that leads to the page.
                const int tab = trader.MarkedTab();
                if (start.page == ParamPageIndicator)
                {
                    EXPECT_EQ(-1, tab);
                }
                else if (start.page != ParamPagePublic)
                {
                    trader.SelectTab(tab ? 0 : 1);
                    EXPECT_FALSE(trader.ShowsLabel(start.label)) << start.page;
                    trader.SelectTab(tab);
                    EXPECT_TRUE(trader.ShowsLabel(start.label)) << start.page;
                    EXPECT_EQ(tab, trader.MarkedTab()) << start.page;
                }
                trader.Click(IDCANCEL);
            });
    }
}

TEST_F(Hosts, TheTabsHaveTheirTitles)
{
    using Titles = std::vector<std::string>;
    const std::pair<int, Titles> sameInEachMode[] = {
        {0, {"常规"}},
        {2, {"常规", "自动追价", "止盈止损"}},
        {3, {"常规", "自动追价", "自动拆单", "两融买入方式"}},
        {5, {"期权"}},
    };
    const Titles local = {"常规", "自动追价", "本地止盈止损", "自动拆单", "键盘下单", "快键下单"};
    const Titles cloud = {"常规", "自动追价", "自动拆单", "键盘下单", "快键下单"};
    for (const uint32_t mode : {0, 1, 2})
    {
        TOParam record = {};
        record.uUseCloudMode = mode;
        RunSettingsWindow(record, ParamPageOptions,
                          [&](Trader& trader)
                          {
                              EXPECT_EQ(mode == 1 ? cloud : local, trader.TabTitles()) << mode;
                              for (const auto& [row, titles] : sameInEachMode)
                              {
                                  trader.SelectRow(row);
                                  EXPECT_EQ(titles, trader.TabTitles()) << mode << ' ' << row;
                              }
                              trader.Click(IDCANCEL);
                          });
    }
}

TEST_F(Hosts, CloudModeLeavesTheStopTabOutButNotThePage)
{
    TOParam record = {};
    record.uUseCloudMode = 1;
    RunSettingsWindow(record, ParamPageOptionsSplit,
                      [](Trader& trader)
                      {
                          // The split tab stands third from the left.
                          EXPECT_TRUE(trader.ShowsLabel("如果下单张数大于"));
                          trader.SelectTab(0);
                          EXPECT_TRUE(trader.ShowsLabel("严重价外提醒："));
                          trader.SelectTab(1);
                          EXPECT_TRUE(trader.ShowsLabel("自动追价时间间隔"));
                          trader.SelectTab(3);
                          EXPECT_TRUE(trader.ShowsLabel("添加"));
                          trader.SelectTab(4);
                          EXPECT_TRUE(trader.ShowsLabel("快捷键设置"));
                          trader.SelectTab(2);
                          EXPECT_TRUE(trader.ShowsLabel("如果下单张数大于"));
                          trader.Click(IDCANCEL);
                      });
    RunSettingsWindow(record, ParamPageOptionsStop,
                      [](Trader& trader)
                      {
                          EXPECT_TRUE(
                              trader.ShowsLabel("(止盈止损只有在交易与行情登录的条件下才有效)"));
                          // Not its own: the strip goes on marking the tab from before.
                          EXPECT_EQ(0, trader.MarkedTab());
                          EXPECT_FALSE(trader.ShowsLabel("严重价外提醒："));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(Hosts, CloudModeKeepsTheStopsOfOptionsAndRestoresTheSplitPage)
{
    TOParam record = {};
    record.uUseCloudMode = 1;
    record.SplitOrder[2].uIfVolume1 = 7;
    // What the page would mend, had it a window.
    record.iOStopContinuousTimesLoss = 5;
    record.cOStopPriceLoss = 99;
    record.bOForever = 7;
    RunSettingsWindow(record, ParamPageOptionsSplit, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("5", Stored("iOStopContinuousTimesLoss"));
    EXPECT_EQ("99", Stored("cOStopPriceLoss"));
    EXPECT_EQ("7", Stored("bOForever"));

    RunSettingsWindow(record, ParamPageOptionsSplit,
                      [](Trader& trader)
                      {
                          EXPECT_EQ("7", trader.Text(IDC_RANDOM_IF));
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          EXPECT_EQ("50", trader.Text(IDC_RANDOM_IF));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(Hosts, RestoreReachesTheCurrentTabOfEveryHost)
{
    TOParam record = {};
    record.cFFastClosePrice = 3;
    record.iFacPriceTick = 9;
    record.uSVolumeLimit = 5;
    record.iSacPriceTick = 9;
    record.uOVolumeLimit = 5;
    record.iOacPriceTick = 9;
    RunSettingsWindow(record, ParamPageFutureChase,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          trader.Click(IDOK);
                      });
    // Futures: the tab on show. Securities and options: their first tab.
    EXPECT_EQ("0", Stored("iFacPriceTick"));
    EXPECT_EQ("3", Stored("cFFastClosePrice"));
    EXPECT_EQ("999900", Stored("uSVolumeLimit"));
    EXPECT_EQ("9", Stored("iSacPriceTick"));
    EXPECT_EQ("1000", Stored("uOVolumeLimit"));
    EXPECT_EQ("9", Stored("iOacPriceTick"));
}

TEST_F(Hosts, RestoreShowsNoSecondPage)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageFutureChase,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          EXPECT_TRUE(trader.ShowsLabel("自动追价时间间隔"));
                          EXPECT_FALSE(trader.ShowsLabel("快捷买按钮一："));
                          EXPECT_FALSE(trader.ShowsLabel("价达到或超过指定价位时，触发止损。"));
                          EXPECT_FALSE(trader.ShowsLabel("单笔上限："));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(Hosts, RestoreThenCancelLeavesTheFile)
{
    const std::string before = "[TradeConfig]\r\niFacPriceTick=3\r\n; note\r\n";
    WriteBytes(kUserFile, before);
    TOParam record = {};
    RunSettingsWindow(record, ParamPageFutureChase,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          trader.Click(IDCANCEL);
                      });
    EXPECT_EQ(before, ReadBytes(kUserFile));
}

TEST_F(Hosts, PagesNeverOpenedKeepTheHostsValues)
{
    TOParam record = {};
    record.iFacPriceTick = 77;
    record.iFRepeatTimes = -5;
    record.cFStopPriceLoss = 99;
    record.iSRepeatTimes = -6;
    RunSettingsWindow(record, ParamPageIndicator, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("77", Stored("iFacPriceTick"));
    EXPECT_EQ("-5", Stored("iFRepeatTimes"));
    EXPECT_EQ("99", Stored("cFStopPriceLoss"));
    EXPECT_EQ("-6", Stored("iSRepeatTimes"));
}

TEST_F(Hosts, SecuritiesSaveAllTheirPagesOnceShown)
{
    TOParam record = {};
    record.cSStopPriceLoss = 99; // no row: stored as 0 by the page that is never shown
    record.SplitOrder[3].uIfVolume1 = 12;
    RunSettingsWindow(record, ParamPageStock, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("0", Stored("cSStopPriceLoss"));
    EXPECT_EQ("12", Stored("uIfVolume1_1"));
}

TEST_F(Hosts, ACheckLooksAtTheAcceptedTabNotAtTheOneThatOpened)
{
    WriteBytes("cfg\\Trade\\TradeParam.ini",
               "[TradeConfig]\r\niOAutoCancelOrderDelayMin=1\r\niOAutoCancelOrderDelayMax=9\r\n");
    TOParam record = {};
    record.iSAutoCancelOrderDelay = 20000;
    EXPECT_EQ(IDOK, RunSettingsWindow(record, ParamPageStockChase,
                                      [](Trader& trader) { trader.Click(IDOK); }));
    EXPECT_EQ("20.00", Stored("iSAutoCancelOrderDelay"));
}

TEST_F(Hosts, TabWalksOutOfThePageAgain)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageIndicator,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_ONE_OPEN);
                          // Two visible boxes, then the buttons below, and the list again: no dead end.
                          bool reachedOk = false;
                          for (int i = 0; i < 8 && !reachedOk; ++i)
                          {
                              trader.Key(VK_TAB);
                              reachedOk = trader.Focus() == GetDlgItem(trader.Window(), IDOK);
                          }
                          EXPECT_TRUE(reachedOk);
                          trader.Click(IDCANCEL);
                      });
}

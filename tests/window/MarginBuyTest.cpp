// The tab "两融买入方式".
#include "tests/window/ModuleTest.h"

namespace
{

constexpr int kRestoreDefaults = 3;
constexpr int kFirst = 6002;
const char kExplanation[] = "融资优先：优先下单融资，剩余数量（买入数量 - "
                            "最大可融资数量）下单担保品买入";

class MarginBuy : public ModuleTest
{
protected:
    static void Offer(const std::string& items)
    {
        WriteBytes("cfg\\Trade\\TradeParam.ini",
                   "[Zorvane]\r\nMarginBuyStrategyItems=" + items + "\r\n");
    }

    static TOParam Record(uint32_t strategy)
    {
        TOParam record = {};
        record.uMarginBuyStrategy = strategy;
        return record;
    }
};

} // namespace

TEST_F(MarginBuy, OffersThreeByDefault)
{
    TOParam record = Record(1);
    RunSettingsWindow(record, ParamPageMarginBuy,
                      [](Trader& trader)
                      {
                          EXPECT_EQ("融资优先", trader.Text(kFirst));
                          EXPECT_EQ("仅融资买入", trader.Text(kFirst + 1));
                          EXPECT_EQ("仅普通买入", trader.Text(kFirst + 2));
                          EXPECT_EQ(nullptr, trader.Control(6005));
                          EXPECT_FALSE(trader.IsChecked(kFirst));
                          EXPECT_TRUE(trader.IsChecked(kFirst + 1));
                          EXPECT_TRUE(trader.ShowsLabel(kExplanation));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(MarginBuy, StandsOnOneRow)
{
    TOParam record = Record(3);
    RunSettingsWindow(record, ParamPageMarginBuy,
                      [](Trader& trader)
                      {
                          for (int i = 0; i < 3; ++i)
                          {
                              RECT box;
                              GetWindowRect(trader.Control(kFirst + i), &box);
                              MapWindowPoints(nullptr, GetParent(trader.Control(kFirst)),
                                              reinterpret_cast<POINT*>(&box), 2);
                              EXPECT_EQ(32 + 160 * i, box.left);
                              EXPECT_EQ(32, box.top);
                              EXPECT_EQ(140, box.right - box.left);
                              EXPECT_EQ(20, box.bottom - box.top);
                          }
                          const HWND page = GetParent(trader.Control(kFirst));
                          RECT explanation;
                          GetWindowRect(GetDlgItem(page, 0xffff), &explanation);
                          MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&explanation), 2);
                          EXPECT_EQ(32, explanation.left);
                          EXPECT_EQ(32 + 20 + 32, explanation.top);
                          EXPECT_EQ(800, explanation.right - explanation.left);
                          EXPECT_EQ(20, explanation.bottom - explanation.top);
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(MarginBuy, ActsAsRadioButtonsAndStoresTheChoice)
{
    TOParam record = Record(3);
    RunSettingsWindow(record, ParamPageMarginBuy,
                      [](Trader& trader)
                      {
                          trader.Click(kFirst + 2);
                          EXPECT_FALSE(trader.IsChecked(kFirst));
                          EXPECT_TRUE(trader.IsChecked(kFirst + 2));
                          trader.Click(kFirst + 2);
                          EXPECT_TRUE(trader.IsChecked(kFirst + 2));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("0", Stored("uMarginBuyStrategy"));
}

TEST_F(MarginBuy, OffersWhatTheInstallationLists)
{
    Offer("1|0");
    TOParam record = Record(0);
    RunSettingsWindow(record, ParamPageMarginBuy,
                      [](Trader& trader)
                      {
                          EXPECT_EQ("仅融资买入", trader.Text(kFirst));
                          EXPECT_EQ("仅普通买入", trader.Text(kFirst + 1));
                          EXPECT_EQ(nullptr, trader.Control(kFirst + 2));
                          EXPECT_FALSE(trader.ShowsLabel(kExplanation));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(MarginBuy, AFifthItemIsLeftOut)
{
    Offer("0|1|0|1|3");
    TOParam record = Record(3);
    RunSettingsWindow(record, ParamPageMarginBuy,
                      [](Trader& trader)
                      {
                          for (int i = 0; i < 4; ++i)
                              EXPECT_EQ(i % 2 ? "仅融资买入" : "仅普通买入",
                                        trader.Text(kFirst + i));
                          EXPECT_EQ(nullptr, trader.Beside(kFirst, kFirst + 4));
                          EXPECT_FALSE(trader.ShowsLabel(kExplanation));
                          trader.Click(kFirst + 3);
                          EXPECT_FALSE(trader.IsChecked(kFirst + 1));
                          EXPECT_TRUE(trader.IsChecked(kFirst + 3));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("1", Stored("uMarginBuyStrategy"));
}

TEST_F(MarginBuy, UnknownItemsGiveTheStandardThree)
{
    Offer("9|x");
    TOParam record = Record(0);
    RunSettingsWindow(record, ParamPageMarginBuy,
                      [](Trader& trader)
                      {
                          EXPECT_EQ("融资优先", trader.Text(kFirst));
                          EXPECT_TRUE(trader.IsChecked(kFirst + 2));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(MarginBuy, AValueThatIsNotOfferedSurvives)
{
    Offer("3|0");
    TOParam record = Record(1);
    RunSettingsWindow(record, ParamPageMarginBuy,
                      [](Trader& trader)
                      {
                          EXPECT_FALSE(trader.IsChecked(kFirst));
                          EXPECT_FALSE(trader.IsChecked(kFirst + 1));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("1", Stored("uMarginBuyStrategy"));
}

TEST_F(MarginBuy, RestoresTheFirstOfTheListWhateverIsPackaged)
{
    Offer("0|3");
    for (const char* packaged : {"3", "1", "0", "", "x"})
    {
        WriteBytes(kPackagedFile,
                   std::string("[TradeConfig]\r\nuMarginBuyStrategy=") + packaged + "\r\n");
        TOParam record = Record(3);
        RunSettingsWindow(record, ParamPageMarginBuy,
                          [](Trader& trader)
                          {
                              EXPECT_TRUE(trader.IsChecked(kFirst + 1));
                              trader.Click(kRestoreDefaults);
                              EXPECT_EQ("仅普通买入", trader.Text(kFirst));
                              EXPECT_TRUE(trader.IsChecked(kFirst));
                              EXPECT_FALSE(trader.IsChecked(kFirst + 1));
                              trader.Click(IDCANCEL);
                          });
    }
}

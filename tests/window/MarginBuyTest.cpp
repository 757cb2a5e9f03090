// The tab "两融买入方式".
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"

namespace
{

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
                          EXPECT_EQ("融资优先", trader.Text(IDC_MARGIN_CHOICE_1));
                          EXPECT_EQ("仅融资买入", trader.Text(IDC_MARGIN_CHOICE_2));
                          EXPECT_EQ("仅普通买入", trader.Text(IDC_MARGIN_CHOICE_3));
                          EXPECT_EQ(nullptr, trader.Control(IDC_MARGIN_CHOICE_4));
                          EXPECT_FALSE(trader.IsChecked(IDC_MARGIN_CHOICE_1));
                          EXPECT_TRUE(trader.IsChecked(IDC_MARGIN_CHOICE_2));
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
                              GetWindowRect(trader.Control(IDC_MARGIN_CHOICE_1 + i), &box);
                              MapWindowPoints(nullptr,
                                              GetParent(trader.Control(IDC_MARGIN_CHOICE_1)),
                                              reinterpret_cast<POINT*>(&box), 2);
                              EXPECT_EQ(32 + 160 * i, box.left);
                              EXPECT_EQ(32, box.top);
                              EXPECT_EQ(140, box.right - box.left);
                              EXPECT_EQ(20, box.bottom - box.top);
                          }
                          const HWND page = GetParent(trader.Control(IDC_MARGIN_CHOICE_1));
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
                          trader.Click(IDC_MARGIN_CHOICE_3);
                          EXPECT_FALSE(trader.IsChecked(IDC_MARGIN_CHOICE_1));
                          EXPECT_TRUE(trader.IsChecked(IDC_MARGIN_CHOICE_3));
                          trader.Click(IDC_MARGIN_CHOICE_3);
                          EXPECT_TRUE(trader.IsChecked(IDC_MARGIN_CHOICE_3));
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
                          EXPECT_EQ("仅融资买入", trader.Text(IDC_MARGIN_CHOICE_1));
                          EXPECT_EQ("仅普通买入", trader.Text(IDC_MARGIN_CHOICE_2));
                          EXPECT_EQ(nullptr, trader.Control(IDC_MARGIN_CHOICE_3));
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
                                        trader.Text(IDC_MARGIN_CHOICE_1 + i));
                          EXPECT_EQ(nullptr,
                                    trader.Beside(IDC_MARGIN_CHOICE_1, IDC_MARGIN_CHOICE_1 + 4));
                          EXPECT_FALSE(trader.ShowsLabel(kExplanation));
                          trader.Click(IDC_MARGIN_CHOICE_4);
                          EXPECT_FALSE(trader.IsChecked(IDC_MARGIN_CHOICE_2));
                          EXPECT_TRUE(trader.IsChecked(IDC_MARGIN_CHOICE_4));
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
                          EXPECT_EQ("融资优先", trader.Text(IDC_MARGIN_CHOICE_1));
                          EXPECT_TRUE(trader.IsChecked(IDC_MARGIN_CHOICE_3));
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
                          EXPECT_FALSE(trader.IsChecked(IDC_MARGIN_CHOICE_1));
                          EXPECT_FALSE(trader.IsChecked(IDC_MARGIN_CHOICE_2));
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
                              EXPECT_TRUE(trader.IsChecked(IDC_MARGIN_CHOICE_2));
                              trader.Click(IDC_RESTORE_DEFAULTS);
                              EXPECT_EQ("仅普通买入", trader.Text(IDC_MARGIN_CHOICE_1));
                              EXPECT_TRUE(trader.IsChecked(IDC_MARGIN_CHOICE_1));
                              EXPECT_FALSE(trader.IsChecked(IDC_MARGIN_CHOICE_2));
                              trader.Click(IDCANCEL);
                          });
    }
}

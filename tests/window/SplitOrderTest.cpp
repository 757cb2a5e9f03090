// The tab "自动拆单" of options and of margin accounts.
#include "core/ParamKeys.h"
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"

namespace
{

constexpr int kFutureRow = 2;
const char kOther[] = "cfg\\system\\other.ini";

struct Product
{
    const char* name;
    TParamSetPage page;
    int entry;          // shown and saved
    const char* suffix; // of the restored keys
    int tab;
    int neutralTab;
    const char* zeroVolume;
    const char* minimumAboveVolume;
    const char* minimumAboveMaximum;
    const char* unitLabel;
};

const Product kProducts[] = {
    {"Options", ParamPageOptionsSplit, 2, "_2", 3, 0, "在随机拆单中，下单张数必须大于 0 !",
     "在随机拆单中，最小张数必需小于下单张数!", "在随机拆单中，最多张数必须大于最小张数!",
     "如果下单张数大于"},
    {"Margin", ParamPageStockSplit, 3, "_1", 2, 0, "在随机拆单中，下单手数必须大于 0 !",
     "在随机拆单中，最小手数必需小于下单张数!", "在随机拆单中，最多手数必须大于最小张数!",
     "如果下单股数大于"},
};

// The edits in the order of the page: the random method, then the fixed one.
constexpr int kRandomEdits[] = {
    IDC_RANDOM_IF,        IDC_RANDOM_MIN,        IDC_RANDOM_MAX,        IDC_RANDOM_INTERVAL,
    IDC_RANDOM_IF_MARKET, IDC_RANDOM_MIN_MARKET, IDC_RANDOM_MAX_MARKET, IDC_RANDOM_INTERVAL_MARKET};
constexpr int kFixedEdits[] = {
    IDC_FIXED_IF,        IDC_FIXED_VOLUME,        IDC_FIXED_INTERVAL,
    IDC_FIXED_IF_MARKET, IDC_FIXED_VOLUME_MARKET, IDC_FIXED_INTERVAL_MARKET};

class SplitOrder : public ModuleTest, public testing::WithParamInterface<Product>
{
protected:
    static TOParam Record(uint8_t type)
    {
        TOParam record = {};
        for (int entry = 0; entry < 5; ++entry)
        {
            TSplitOrder order = {};
            order.cSplitOrderType = entry == GetParam().entry ? type : 0;
            order.uIfVolume1 = 1000 + entry;
            order.uMinVolume1 = 10 + entry;
            order.uMaxVolume1 = 20 + entry;
            order.fInterval1 = 1.5f;
            order.uIfVolume2 = 2000 + entry;
            order.uVolume2 = 30 + entry;
            order.fInterval2 = 2.5f;
            order.uIfVolume1_Market = 3000 + entry;
            order.uMinVolume1_Market = 40 + entry;
            order.uMaxVolume1_Market = 50 + entry;
            order.fInterval1_Market = 3.5f;
            order.uIfVolume2_Market = 4000 + entry;
            order.uVolume2_Market = 60 + entry;
            order.fInterval2_Market = 4.5f;
            record.SplitOrder[entry] = order;
        }
        return record;
    }

    static void OpenByTab(Trader& trader)
    {
        trader.SelectTab(GetParam().neutralTab);
        trader.SelectTab(GetParam().tab);
    }

    static std::string StoredSplit(const char* stem)
    {
        return Stored((stem + ("_" + std::to_string(GetParam().entry))).c_str());
    }

    static void ExpectRefused(Trader& trader, const std::string& message)
    {
        trader.SelectTab(GetParam().neutralTab);
        EXPECT_EQ(message, trader.AnswerMessage());
        EXPECT_TRUE(trader.ShowsLabel(GetParam().unitLabel));
    }
};

INSTANTIATE_TEST_SUITE_P(Products, SplitOrder, testing::ValuesIn(kProducts),
                         [](const auto& product) { return product.param.name; });

} // namespace

TEST_P(SplitOrder, ShowsTheRecordAndItsWords)
{
    TOParam record = Record(1);
    RunSettingsWindow(
        record, GetParam().page,
        [](Trader& trader)
        {
            const std::string entry = std::to_string(GetParam().entry);
            const std::string random[] = {"100" + entry, "1" + entry, "2" + entry, "1.50",
                                          "300" + entry, "4" + entry, "5" + entry, "3.50"};
            const std::string fixed[] = {"200" + entry, "3" + entry, "2.50",
                                         "400" + entry, "6" + entry, "4.50"};
            for (int i = 0; i < 8; ++i)
                EXPECT_EQ(random[i], trader.Text(kRandomEdits[i])) << kRandomEdits[i];
            for (int i = 0; i < 6; ++i)
                EXPECT_EQ(fixed[i], trader.Text(kFixedEdits[i])) << kFixedEdits[i];
            EXPECT_EQ("随机拆单", trader.Text(IDC_SPLIT_RANDOM));
            EXPECT_EQ("固定拆单", trader.Text(IDC_SPLIT_FIXED));
            EXPECT_EQ("限价：", trader.Text(IDC_SPLIT_RANDOM_LIMIT));
            EXPECT_EQ("市价：", trader.Text(IDC_SPLIT_RANDOM_MARKET));
            EXPECT_EQ("限价：", trader.Text(IDC_SPLIT_FIXED_LIMIT));
            EXPECT_EQ("市价：", trader.Text(IDC_SPLIT_FIXED_MARKET));
            const std::string unit = GetParam().entry == 2 ? "张" : "股";
            for (const std::string& label :
                 {"如果下单" + unit + "数大于", unit + "时，以最少", unit + "，最多", unit,
                  std::string("随机拆分，并以间隔"), std::string("秒的频率发出指令。"),
                  unit + "时，以每次", unit + "，间隔"})
                EXPECT_TRUE(trader.ShowsLabel(label)) << label;
            trader.Click(IDCANCEL);
        });
}

TEST_P(SplitOrder, TheMethodsExcludeEachOther)
{
    TOParam record = Record(1);
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          const auto enabled = [&trader](bool random, bool fixed)
                          {
                              for (int edit : kRandomEdits)
                                  EXPECT_EQ(random, trader.IsEnabled(edit)) << edit;
                              for (int edit : kFixedEdits)
                                  EXPECT_EQ(fixed, trader.IsEnabled(edit)) << edit;
                          };
                          EXPECT_TRUE(trader.IsChecked(IDC_SPLIT_RANDOM));
                          enabled(true, false);
                          trader.Click(IDC_SPLIT_FIXED);
                          EXPECT_FALSE(trader.IsChecked(IDC_SPLIT_RANDOM));
                          EXPECT_TRUE(trader.IsChecked(IDC_SPLIT_FIXED));
                          enabled(false, true);
                          Sleep(GetDoubleClickTime() + 50); // a second click, not a double one
                          trader.Click(IDC_SPLIT_FIXED);
                          EXPECT_FALSE(trader.IsChecked(IDC_SPLIT_FIXED));
                          enabled(false, false);
                          trader.Click(IDC_SPLIT_RANDOM);
                          enabled(true, false);
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("1", StoredSplit("cSplitOrderType"));
}

TEST_P(SplitOrder, AnyOtherTypeIsNoSplitting)
{
    TOParam record = Record(9);
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          EXPECT_FALSE(trader.IsChecked(IDC_SPLIT_RANDOM));
                          EXPECT_FALSE(trader.IsChecked(IDC_SPLIT_FIXED));
                          EXPECT_FALSE(trader.IsEnabled(IDC_RANDOM_IF));
                          EXPECT_FALSE(trader.IsEnabled(IDC_FIXED_IF));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("0", StoredSplit("cSplitOrderType"));
}

TEST_P(SplitOrder, StoresWhatTheTraderSet)
{
    TOParam record = Record(1);
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          const char* const random[] = {"900", "11", "22", "0.35",
                                                        "800", "12", "23", "0.45"};
                          for (int i = 0; i < 8; ++i)
                              trader.Type(kRandomEdits[i], random[i]);
                          trader.Click(IDC_SPLIT_FIXED);
                          const char* const fixed[] = {"700", "33", "0", "600", "44", "7.126"};
                          for (int i = 0; i < 6; ++i)
                              trader.Type(kFixedEdits[i], fixed[i]);
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("2", StoredSplit("cSplitOrderType"));
    EXPECT_EQ("900", StoredSplit("uIfVolume1"));
    EXPECT_EQ("11", StoredSplit("uMinVolume1"));
    EXPECT_EQ("22", StoredSplit("uMaxVolume1"));
    EXPECT_EQ("0.35", StoredSplit("fInterval1"));
    EXPECT_EQ("800", StoredSplit("uIfVolume1_Market"));
    EXPECT_EQ("12", StoredSplit("uMinVolume1_Market"));
    EXPECT_EQ("23", StoredSplit("uMaxVolume1_Market"));
    EXPECT_EQ("0.45", StoredSplit("fInterval1_Market"));
    EXPECT_EQ("700", StoredSplit("uIfVolume2"));
    EXPECT_EQ("33", StoredSplit("uVolume2"));
    EXPECT_EQ("0.01", StoredSplit("fInterval2"));
    EXPECT_EQ("600", StoredSplit("uIfVolume2_Market"));
    EXPECT_EQ("44", StoredSplit("uVolume2_Market"));
    EXPECT_EQ("7.13", StoredSplit("fInterval2_Market"));
    if (GetParam().entry != 3)
        return;
    // Margin buys are kept equal to margin sells.
    int kept = 0;
    for (const ParamKey& key : ParamKeys())
    {
        const size_t stem = key.key.size() - 2;
        if (key.key.substr(stem) != "_1")
            continue;
        EXPECT_EQ(StoredSplit(key.key.substr(0, stem).c_str()), Stored(key.key.c_str())) << key.key;
        ++kept;
    }
    EXPECT_EQ(15, kept);
}

TEST_P(SplitOrder, RefusesInTheOrderOfItsChecks)
{
    const Product& words = GetParam();
    const char kInterval[] = "拆单间隔必须大于等于 0.30";
    struct Step
    {
        int wrong; // the field that the message is about, and that gets the cursor
        const char* message;
        const char* next; // what it gets then
    };
    // Everything is wrong, and mended one by one. Market orders come last, and the messages do not
    // say which kind failed.
    const Step steps[] = {
        {IDC_RANDOM_IF, words.zeroVolume, "100"},
        {IDC_RANDOM_MIN, words.zeroVolume, "101"},
        {IDC_RANDOM_MAX, words.zeroVolume, "99"},
        {IDC_RANDOM_MIN, words.minimumAboveVolume, "100"},
        {IDC_RANDOM_MAX, words.minimumAboveMaximum, "100"},
        {IDC_RANDOM_INTERVAL, kInterval, "0"},
        {IDC_RANDOM_INTERVAL, kInterval, "rubbish"},
        {IDC_RANDOM_INTERVAL, kInterval, "0.30"},
        {IDC_FIXED_INTERVAL, kInterval, "0.30"},
        {IDC_RANDOM_IF_MARKET, words.zeroVolume, "1"},
        {IDC_RANDOM_MIN_MARKET, words.zeroVolume, "2"},
        {IDC_RANDOM_MAX_MARKET, words.zeroVolume, "0x"},
        {IDC_RANDOM_MAX_MARKET, words.zeroVolume, "1"},
        {IDC_RANDOM_MIN_MARKET, words.minimumAboveVolume, "1"},
        {IDC_RANDOM_IF_MARKET, nullptr, "2"},
        {IDC_RANDOM_MIN_MARKET, nullptr, "2"},
        {IDC_RANDOM_MAX_MARKET, words.minimumAboveMaximum, "2"},
        {IDC_RANDOM_INTERVAL_MARKET, kInterval, "0.30"},
        {IDC_FIXED_INTERVAL_MARKET, kInterval, "0.30"},
    };
    TOParam record = Record(1);
    RunSettingsWindow(record, words.page,
                      [&](Trader& trader)
                      {
                          OpenByTab(trader);
                          const int tab = trader.MarkedTab();
                          for (int edit :
                               {IDC_RANDOM_IF, IDC_RANDOM_MIN, IDC_RANDOM_MAX, IDC_RANDOM_IF_MARKET,
                                IDC_RANDOM_MIN_MARKET, IDC_RANDOM_MAX_MARKET})
                              trader.SetText(edit, "0");
                          for (int edit : {IDC_RANDOM_INTERVAL, IDC_FIXED_INTERVAL,
                                           IDC_RANDOM_INTERVAL_MARKET, IDC_FIXED_INTERVAL_MARKET})
                              trader.SetText(edit, "0.29");
                          for (const Step& step : steps)
                          {
                              if (step.message)
                              {
                                  SCOPED_TRACE(step.wrong);
                                  ExpectRefused(trader, step.message);
                                  EXPECT_EQ(trader.IsEnabled(step.wrong),
                                            trader.Focus() == trader.Control(step.wrong));
                              }
                              trader.SetText(step.wrong, step.next);
                          }
                          EXPECT_EQ(tab, trader.MarkedTab());
                          trader.SelectTab(words.neutralTab);
                          EXPECT_FALSE(trader.ShowsLabel(words.unitLabel));
                          trader.Click(IDCANCEL);
                      });
}

TEST_P(SplitOrder, ChecksTheIdleMethodToo)
{
    TOParam record = Record(0);
    record.SplitOrder[GetParam().entry].uMinVolume1 = 0;
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          OpenByTab(trader);
                          ExpectRefused(trader, GetParam().zeroVolume);
                          trader.SelectRow(kFutureRow);
                          EXPECT_EQ(GetParam().zeroVolume, trader.AnswerMessage());
                          EXPECT_EQ(0, trader.SelectedRow());
                          EXPECT_TRUE(trader.ShowsLabel(GetParam().unitLabel));
                          trader.Click(IDOK);
                          EXPECT_EQ(GetParam().zeroVolume, trader.AnswerMessage());
                          EXPECT_TRUE(trader.IsOpen());
                          trader.Click(IDCANCEL);
                      });
    EXPECT_EQ("", ReadBytes(kUserFile));
}

TEST_P(SplitOrder, TakesTheLeastIntervalFromTheInstallation)
{
    WriteBytes(kOther, "[TradeConfig]\r\nfMinOIntervalBetweenOrder=0.01\r\n");
    TOParam record = Record(1);
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          OpenByTab(trader);
                          trader.Type(IDC_RANDOM_INTERVAL, "0");
                          trader.SelectTab(GetParam().neutralTab);
                          EXPECT_FALSE(trader.ShowsLabel(GetParam().unitLabel));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("0.01", StoredSplit("fInterval1"));
}

TEST_P(SplitOrder, ComparesSinglePrecisionAsItIsWritten)
{
    WriteBytes(kOther, "[TradeConfig]\r\nfMinOIntervalBetweenOrder=100.7\r\n");
    TOParam record = Record(1);
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          OpenByTab(trader);
                          trader.Type(IDC_RANDOM_INTERVAL, "100.70");
                          ExpectRefused(trader, "拆单间隔必须大于等于 100.70");
                          trader.Click(IDCANCEL);
                      });
}

TEST_P(SplitOrder, RestoresBuiltInDefaults)
{
    TOParam record = Record(2);
    RunSettingsWindow(
        record, GetParam().page,
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            const bool options = GetParam().entry == 2;
            const char* const optionTexts[] = {"50", "1", "50", "0.30", "10", "1", "10", "0.30"};
            const char* const marginTexts[] = {"10000", "1000", "2000", "5.00",
                                               "10000", "1000", "2000", "5.00"};
            for (int i = 0; i < 8; ++i)
                EXPECT_EQ(options ? optionTexts[i] : marginTexts[i], trader.Text(kRandomEdits[i]));
            const char* const optionFixed[] = {"50", "50", "0.30", "10", "10", "0.30"};
            const char* const marginFixed[] = {"10000", "1000", "5.00", "10000", "1000", "5.00"};
            for (int i = 0; i < 6; ++i)
                EXPECT_EQ(options ? optionFixed[i] : marginFixed[i], trader.Text(kFixedEdits[i]));
            EXPECT_FALSE(trader.IsChecked(IDC_SPLIT_FIXED));
            EXPECT_FALSE(trader.IsEnabled(IDC_FIXED_IF));
            trader.Click(IDCANCEL);
        });
}

TEST_P(SplitOrder, RestoresPackagedTextsAsRead)
{
    WriteBytes(kPackagedFile, std::string("[TradeConfig]\r\ncSplitOrderType") + GetParam().suffix +
                                  "=2\r\nuVolume2" + GetParam().suffix + "=12abc\r\n");
    TOParam record = Record(1);
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          EXPECT_TRUE(trader.IsChecked(IDC_SPLIT_FIXED));
                          EXPECT_TRUE(trader.IsEnabled(IDC_FIXED_IF));
                          EXPECT_FALSE(trader.IsEnabled(IDC_RANDOM_IF));
                          EXPECT_EQ("12abc", trader.Text(IDC_FIXED_VOLUME));
                          trader.Click(IDCANCEL);
                      });
}

TEST_P(SplitOrder, Only255CharactersOfATextCount)
{
    TOParam record = Record(1);
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          trader.SetText(IDC_RANDOM_IF, std::string(253, '0') + "123");
                          trader.SetText(IDC_RANDOM_INTERVAL, std::string(254, '0') + "12.5");
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("12", StoredSplit("uIfVolume1"));
    EXPECT_EQ("1.00", StoredSplit("fInterval1"));
}

TEST_P(SplitOrder, AVolumeBeyond31BitsIsSignedAndSurvives)
{
    TOParam record = Record(1);
    record.SplitOrder[GetParam().entry].uIfVolume2 = 4294967295u;
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          EXPECT_EQ("-1", trader.Text(IDC_FIXED_IF));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("-1", StoredSplit("uIfVolume2"));
}

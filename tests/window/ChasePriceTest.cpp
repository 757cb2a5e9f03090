// The tab "自动追价" of the three products.
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"
#include "tests/window/Records.h"

#include <atomic>

namespace
{

const char kTradeParam[] = "cfg\\Trade\\TradeParam.ini";
const char kLimits[] = "[TradeConfig]\r\niOAutoCancelOrderDelayMin=1\r\niOAutoCancelOrderDelayMax="
                       "30\r\niORepeatTimesMin=2\r\niORepeatTimesMax=9\r\n";

struct Product
{
    const char* name;
    char letter; // in the keys
    TParamSetPage page;
    TParamSetPage otherPage; // a page of the same host
    int tab;
    int neutralTab; // of a page without checks
    int tick;
    int repeat;
    int32_t TOParam::*interval;
    const char* label;
    const char* adjust;
    const char* lastCancel;
};

const Product kProducts[] = {
    {"Future", 'F', ParamPageFutureChase, ParamPageFuture, 1, 0, IDC_CHASE_TICK, IDC_CHASE_REPEAT,
     &TOParam::iFAutoCancelOrderDelay, "自动追价时，使用", "调整", "未完成追价则自动撤单。"},
    {"Stock", 'S', ParamPageStockChase, ParamPageStock, 1, 0, IDC_STOCK_CHASE_TICK,
     IDC_STOCK_CHASE_REPEAT, &TOParam::iSAutoCancelOrderDelay, "自动追价时使用", "并调整",
     "未完成追价则自动撤单。"},
    {"Options", 'O', ParamPageOptionsChase, ParamPageOptions, 1, 2, IDC_CHASE_TICK,
     IDC_CHASE_REPEAT, &TOParam::iOAutoCancelOrderDelay, "自动追价时，使用", "调整",
     "未完成追价则自动撤单。(连续交易状态有效)"},
};

/// Counts what a window of this thread is told of being shown, hidden or moved.
class ShowWatch
{
public:
    ShowWatch()
        : m_hook(SetWindowsHookExA(WH_CALLWNDPROC, Count, nullptr, GetCurrentThreadId()))
    {
        EXPECT_NE(nullptr, m_hook);
    }
    ~ShowWatch()
    {
        UnhookWindowsHookEx(m_hook);
        watched = nullptr;
    }
    ShowWatch(const ShowWatch&) = delete;
    ShowWatch& operator=(const ShowWatch&) = delete;

    static void Begin(HWND window)
    {
        count = 0;
        watched = window;
    }

    static inline std::atomic<int> count;

private:
    static LRESULT CALLBACK Count(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (call.hwnd == watched &&
            (call.message == WM_SHOWWINDOW || call.message == WM_WINDOWPOSCHANGING))
            ++count;
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline std::atomic<HWND> watched;
    const HHOOK m_hook;
};

class ChasePrice : public ModuleTest, public testing::WithParamInterface<Product>
{
protected:
    static std::string Key(const char* pattern)
    {
        std::string key = pattern;
        for (char& character : key)
            if (character == '?')
                character = GetParam().letter;
        return key;
    }

    static std::string StoredChase(const char* pattern) { return Stored(Key(pattern).c_str()); }

    static std::string TickKey() { return Key("i?acPriceTick"); }

    /// Changes the tab to the page by the mouse, so that it becomes the accepted one.
    static void OpenByTab(Trader& trader)
    {
        trader.SelectTab(GetParam().neutralTab);
        trader.SelectTab(GetParam().tab);
    }

    static TOParam Record()
    {
        TOParam record = {};
        record.cFAutoChasePriceFlag = record.cSAutoChasePriceFlag = record.cOAutoChasePriceFlag = 3;
        record.iFacPriceTick = record.iSacPriceTick = record.iOacPriceTick = -12;
        record.iFAutoCancelOrderDelay = record.iSAutoCancelOrderDelay =
            record.iOAutoCancelOrderDelay = 2340;
        record.iFRepeatTimes = record.iSRepeatTimes = record.iORepeatTimes = 4;
        record.bFLastOrderCancel = record.bSLastOrderCancel = record.bOLastOrderCancel = 1;
        return record;
    }
};

INSTANTIATE_TEST_SUITE_P(Products, ChasePrice, testing::ValuesIn(kProducts),
                         [](const auto& product) { return product.param.name; });

} // namespace

TEST_P(ChasePrice, ShowsTheRecordAndItsWords)
{
    TOParam record = Record();
    RunSettingsWindow(
        record, GetParam().page,
        [](Trader& trader)
        {
            EXPECT_EQ(5, trader.ItemCount(IDC_CHASE_PRICE));
            const char* const items[] = {"对手价", "最新价", "挂单价", "涨停价", "跌停价"};
            for (int row = 0; row < 5; ++row)
                EXPECT_EQ(items[row], trader.Item(IDC_CHASE_PRICE, row));
            EXPECT_EQ(3, trader.Picked(IDC_CHASE_PRICE));
            EXPECT_EQ("-12", trader.Text(GetParam().tick));
            EXPECT_EQ("2.34", trader.Text(IDC_CHASE_INTERVAL));
            EXPECT_EQ("4", trader.Text(GetParam().repeat));
            EXPECT_FALSE(trader.IsChecked(IDC_CHASE_MANUAL));
            EXPECT_TRUE(trader.IsChecked(IDC_CHASE_LAST_CANCEL));

            EXPECT_EQ("手动下单时启用自动追价。(连续交易状态下有效)",
                      trader.Text(IDC_CHASE_MANUAL));
            EXPECT_EQ(GetParam().lastCancel, trader.Text(IDC_CHASE_LAST_CANCEL));
            for (const char* label : {GetParam().label, GetParam().adjust, "个价位下单。",
                                      "自动追价时间间隔", "秒，最多重复", "次，"})
                EXPECT_TRUE(trader.ShowsLabel(label)) << label;
            trader.Click(IDCANCEL);
        });
}

TEST_P(ChasePrice, StoresWhatTheTraderSet)
{
    TOParam record = Record();
    EXPECT_EQ(IDOK, RunSettingsWindow(record, GetParam().page,
                                      [](Trader& trader)
                                      {
                                          trader.Pick(IDC_CHASE_PRICE, 1);
                                          trader.Type(GetParam().tick, "-7");
                                          // Cut, not rounded.
                                          trader.Type(IDC_CHASE_INTERVAL, "1.2349");
                                          trader.Type(GetParam().repeat, "5");
                                          trader.Click(IDC_CHASE_MANUAL);
                                          trader.Click(IDC_CHASE_LAST_CANCEL);
                                          trader.Click(IDOK);
                                      }));
    EXPECT_EQ("1", StoredChase("c?AutoChasePriceFlag"));
    EXPECT_EQ("-7", Stored(TickKey().c_str()));
    EXPECT_EQ("1.23", StoredChase("i?AutoCancelOrderDelay"));
    EXPECT_EQ("5", StoredChase("i?RepeatTimes"));
    EXPECT_EQ("1", StoredChase("b?ManualOrderByChasePrice"));
    EXPECT_EQ("0", StoredChase("b?LastOrderCancel"));
}

TEST_P(ChasePrice, AThirdDecimalIsKeptAndShownRounded)
{
    TOParam record = Record();
    const TOParam pattern = PatternRecord();
    memcpy(record.reserved3, pattern.reserved3, sizeof(record.reserved3));
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          trader.Type(IDC_CHASE_INTERVAL, "1.239");
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("1.24", StoredChase("i?AutoCancelOrderDelay"));
    const TOParam* const working = FindWorkingRecord(record);
    ASSERT_NE(nullptr, working);
    EXPECT_EQ(1239, working->*GetParam().interval);

    TOParam kept = *working;
    RunSettingsWindow(kept, GetParam().page,
                      [](Trader& trader)
                      {
                          EXPECT_EQ("1.24", trader.Text(IDC_CHASE_INTERVAL));
                          trader.Click(IDCANCEL);
                      });
}

TEST_P(ChasePrice, AnEmptiedRepeatCount)
{
    TOParam record = Record();
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          trader.Type(GetParam().repeat, "");
                          trader.Click(IDOK);
                      });
    EXPECT_EQ(GetParam().letter == 'F' ? "1" : "0", StoredChase("i?RepeatTimes"));
}

TEST_P(ChasePrice, TheSpinStepsAndTheKeysAreFiltered)
{
    TOParam record = Record();
    RunSettingsWindow(record, GetParam().page,
                      [](Trader& trader)
                      {
                          trader.SpinUp(IDC_CHASE_INTERVAL);
                          EXPECT_EQ("2.35", trader.Text(IDC_CHASE_INTERVAL));
                          trader.SpinDown(GetParam().tick);
                          EXPECT_EQ("-13", trader.Text(GetParam().tick));
                          trader.Type(GetParam().tick, "a1.2");
                          EXPECT_EQ("12", trader.Text(GetParam().tick));
                          trader.Type(IDC_CHASE_INTERVAL, "a1.2");
                          EXPECT_EQ("1.2", trader.Text(IDC_CHASE_INTERVAL));
                          trader.Type(GetParam().repeat, "-a3");
                          EXPECT_EQ("3", trader.Text(GetParam().repeat));
                          trader.Type(GetParam().repeat, "1");
                          trader.SpinDown(GetParam().repeat);
                          EXPECT_EQ("1", trader.Text(GetParam().repeat));
                          trader.Click(IDCANCEL);
                      });
}

TEST_P(ChasePrice, ABadIntervalKeepsTheTabAndShowsWhere)
{
    WriteBytes(kTradeParam, kLimits);
    TOParam record = Record();
    RunSettingsWindow(record, GetParam().otherPage,
                      [](Trader& trader)
                      {
                          OpenByTab(trader);
                          const int tab = trader.MarkedTab();
                          trader.Type(IDC_CHASE_INTERVAL, "0.5");
                          trader.SelectTab(GetParam().neutralTab);
                          EXPECT_EQ("追价时间间隔不在设定区间，间隔区间为 1 到 30 之间",
                                    trader.AnswerMessage());
                          EXPECT_TRUE(trader.ShowsLabel("自动追价时间间隔"));
                          EXPECT_EQ(tab, trader.MarkedTab());
                          // The cursor stands in the field with its text selected: typing replaces it.
                          trader.Key('3');
                          EXPECT_EQ("3", trader.Text(IDC_CHASE_INTERVAL));
                          trader.Type(IDC_CHASE_INTERVAL, "30.99");
                          trader.SelectTab(GetParam().neutralTab);
                          EXPECT_FALSE(trader.ShowsLabel("自动追价时间间隔"));
                          trader.Click(IDCANCEL);
                      });
}

TEST_P(ChasePrice, ABadIntervalDoesNotHideAndShowThePage)
{
    WriteBytes(kTradeParam, kLimits);
    const ShowWatch watch;
    TOParam record = Record();
    RunSettingsWindow(record, GetParam().otherPage,
                      [](Trader& trader)
                      {
                          OpenByTab(trader);
                          trader.Type(IDC_CHASE_INTERVAL, "0.5");
                          ShowWatch::Begin(GetParent(trader.Control(IDC_CHASE_INTERVAL)));
                          trader.SelectTab(GetParam().neutralTab);
                          EXPECT_NE("", trader.AnswerMessage());
                          EXPECT_EQ(0, ShowWatch::count);
                          trader.Type(IDC_CHASE_INTERVAL, "3");
                          trader.SelectTab(GetParam().neutralTab);
                          EXPECT_LT(0, ShowWatch::count);
                          trader.Click(IDCANCEL);
                      });
}

TEST_P(ChasePrice, ABadRepeatCountKeepsTheEntry)
{
    WriteBytes(kTradeParam, kLimits);
    TOParam record = Record();
    RunSettingsWindow(record, GetParam().otherPage,
                      [](Trader& trader)
                      {
                          const int row = trader.SelectedRow();
                          OpenByTab(trader);
                          trader.Type(GetParam().repeat, "10");
                          trader.SelectRow(3);
                          EXPECT_EQ("追价重复次数不在设定区间，追价重复次数区间为 2 到 9 之间",
                                    trader.AnswerMessage());
                          // No entry was accepted yet, so the selection goes back to the first; the page stays.
                          EXPECT_EQ(0, trader.SelectedRow());
                          EXPECT_TRUE(trader.ShowsLabel("自动追价时间间隔"));
                          // The cursor stands in the field with its text selected.
                          trader.Key('9');
                          EXPECT_EQ("9", trader.Text(GetParam().repeat));
                          trader.SelectRow(row);
                          EXPECT_EQ(row, trader.SelectedRow());
                          EXPECT_TRUE(trader.ShowsLabel("自动追价时间间隔"));
                          // Now it is the accepted one.
                          trader.Type(GetParam().repeat, "1");
                          trader.SelectRow(0);
                          EXPECT_NE("", trader.AnswerMessage());
                          EXPECT_EQ(row, trader.SelectedRow());
                          trader.Click(IDCANCEL);
                      });
}

TEST_P(ChasePrice, ConfirmingChecksAllButFutures)
{
    WriteBytes(kTradeParam, kLimits);
    TOParam record = Record();
    RunSettingsWindow(record, GetParam().otherPage,
                      [](Trader& trader)
                      {
                          OpenByTab(trader);
                          trader.Type(IDC_CHASE_INTERVAL, "31");
                          trader.Click(IDOK);
                          if (GetParam().letter == 'F')
                              return;
                          EXPECT_EQ("追价时间间隔不在设定区间，间隔区间为 1 到 30 之间",
                                    trader.AnswerMessage());
                          EXPECT_TRUE(trader.IsOpen());
                          trader.Click(IDCANCEL);
                      });
    EXPECT_EQ(GetParam().letter == 'F' ? "31.00" : "<absent>",
              StoredChase("i?AutoCancelOrderDelay"));
}

TEST_P(ChasePrice, CrossedOrAbsentLimitsCheckNothing)
{
    for (const char* limits : {"", "iOAutoCancelOrderDelayMin=10\r\niOAutoCancelOrderDelayMax=5\r\n"
                                   "iORepeatTimesMin=0\r\niORepeatTimesMax=3\r\n"})
    {
        if (*limits)
            WriteBytes(kTradeParam, std::string("[TradeConfig]\r\n") + limits);
        TOParam record = Record();
        RunSettingsWindow(record, GetParam().otherPage,
                          [](Trader& trader)
                          {
                              OpenByTab(trader);
                              trader.Type(IDC_CHASE_INTERVAL, "0");
                              trader.Type(GetParam().repeat, "77");
                              trader.SelectTab(GetParam().neutralTab);
                              EXPECT_FALSE(trader.ShowsLabel("自动追价时间间隔"));
                              trader.Click(IDCANCEL);
                          });
    }
}

TEST_P(ChasePrice, RestoresWithoutAnyFile)
{
    TOParam record = Record();
    RunSettingsWindow(
        record, GetParam().page,
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_EQ(0, trader.Picked(IDC_CHASE_PRICE));
            EXPECT_EQ("0", trader.Text(GetParam().tick));
            EXPECT_EQ(GetParam().letter == 'F' ? "5" : "5.00", trader.Text(IDC_CHASE_INTERVAL));
            EXPECT_EQ(GetParam().letter == 'F' ? "2" : "0", trader.Text(GetParam().repeat));
            EXPECT_FALSE(trader.IsChecked(IDC_CHASE_MANUAL));
            EXPECT_FALSE(trader.IsChecked(IDC_CHASE_LAST_CANCEL));
            trader.Click(IDCANCEL);
        });
}

TEST_P(ChasePrice, RestoresPackagedValuesWithinTheLimits)
{
    WriteBytes(kTradeParam, kLimits);
    WriteBytes(kPackagedFile, "[TradeConfig]\r\n" + Key("c?AutoChasePriceFlag") + "=4\r\n" +
                                  TickKey() + "=x9\r\n" + Key("i?AutoCancelOrderDelay") +
                                  "=45.5\r\n" + Key("i?RepeatTimes") + "=1\r\ncFSuperSell2=1\r\n" +
                                  Key("b?LastOrderCancel") + "=1\r\n");
    TOParam record = {};
    RunSettingsWindow(
        record, GetParam().page,
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_EQ(4, trader.Picked(IDC_CHASE_PRICE));
            EXPECT_EQ("x9", trader.Text(GetParam().tick));
            EXPECT_EQ(GetParam().letter == 'F' ? "1" : "30.00", trader.Text(IDC_CHASE_INTERVAL));
            EXPECT_EQ(GetParam().letter == 'F' ? "1" : "2", trader.Text(GetParam().repeat));
            EXPECT_TRUE(trader.IsChecked(IDC_CHASE_LAST_CANCEL));
            trader.Click(IDCANCEL);
        });
}

TEST_P(ChasePrice, CrossedLimitsRestoreTheMaximum)
{
    WriteBytes(kTradeParam, "[TradeConfig]\r\niOAutoCancelOrderDelayMin=10\r\n"
                            "iOAutoCancelOrderDelayMax=5\r\niORepeatTimesMin=9\r\n"
                            "iORepeatTimesMax=3\r\n");
    TOParam record = {};
    RunSettingsWindow(
        record, GetParam().page,
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            // Those of futures know no limits.
            EXPECT_EQ(GetParam().letter == 'F' ? "5" : "5.00", trader.Text(IDC_CHASE_INTERVAL));
            EXPECT_EQ(GetParam().letter == 'F' ? "2" : "3", trader.Text(GetParam().repeat));
            trader.Click(IDCANCEL);
        });
}

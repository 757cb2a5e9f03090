// The entry "其它": default volumes by contract and product, and the dialog that changes a row.
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"

#include <vector>

namespace
{

constexpr char kStopFile[] = "Cfg\\Trade\\StopProfitLoss.ini";
constexpr char kPackagedStopFile[] = "Sys\\Cfg\\Trade\\StopProfitLoss.ini";

constexpr int kOtherRow = 5;
constexpr size_t kContractSize = 416;

constexpr int kHeaderHeight = 26;
constexpr int kRowHeight = 26;
constexpr int kMargin = 16;

// The grids, in the order in which their pages are made.
enum GridNumber
{
    kFutureGrid,
    kStockGrid,
    kOptionsGrid,
    kGridCount
};

// The dialog "修改"
constexpr int kHiddenFields[] = {IDC_MODIFY_TICK,         IDC_MODIFY_STOP_PROFIT,
                                 IDC_MODIFY_MAX_FALLBACK, IDC_MODIFY_STOP_LOSS,
                                 IDC_MODIFY_FLOAT_RANGE,  IDC_MODIFY_DAILY_MAX};
constexpr int kPercentSigns[] = {IDC_MODIFY_STOP_PROFIT_PERCENT, IDC_MODIFY_MAX_FALLBACK_PERCENT,
                                 IDC_MODIFY_STOP_LOSS_PERCENT, IDC_MODIFY_FLOAT_RANGE_PERCENT};

BOOL CALLBACK CollectGrid(HWND child, LPARAM grids)
{
    char className[32] = "";
    GetClassNameA(child, className, sizeof(className));
    if (strcmp(className, "OWERLISTVIEW") == 0)
        reinterpret_cast<std::vector<HWND>*>(grids)->push_back(child);
    return TRUE;
}

std::vector<HWND> Grids(const Trader& trader)
{
    std::vector<HWND> grids;
    EnumChildWindows(trader.Window(), CollectGrid, reinterpret_cast<LPARAM>(&grids));
    return grids;
}

/// The one grid on show, -1 for none or several.
int ShownGrid(const Trader& trader)
{
    int shown = -1;
    int number = 0;
    for (HWND grid : Grids(trader))
    {
        if (IsWindowVisible(grid))
            shown = shown == -1 ? number : -2;
        ++number;
    }
    return shown < 0 ? -1 : shown;
}

/// A double click on the grid on show.
void DoubleClickAt(Trader& trader, int x, int y)
{
    const std::vector<HWND> grids = Grids(trader);
    const int shown = ShownGrid(trader);
    ASSERT_NE(-1, shown);
    trader.DoubleClickAt(grids[shown], x, y);
}

void DoubleClickRow(Trader& trader, int row)
{
    DoubleClickAt(trader, 40, kHeaderHeight + row * kRowHeight + kRowHeight / 2);
}

/// Opens the dialog on a row by a double click and lets `work` use it.
void EditRow(Trader& trader, int row, const std::function<void(Trader&)>& work)
{
    DoubleClickRow(trader, row);
    const HWND popup = WaitForPopup(trader.Window());
    ASSERT_TRUE(popup) << "row " << row << " did not open";
    Trader editor(popup);
    editor.Settle();
    work(editor);
    EXPECT_TRUE(WaitUntil([&editor] { return !editor.IsOpen(); }));
    trader.Settle();
}

void SetVolume(Trader& trader, int row, const std::string& volume)
{
    EditRow(trader, row,
            [&volume](Trader& editor)
            {
                editor.Type(IDC_MODIFY_VOLUME, volume);
                editor.Click(IDOK);
            });
}

void ExpectNothingOpens(Trader& trader, int row)
{
    DoubleClickRow(trader, row);
    Sleep(300);
    EXPECT_EQ(trader.Window(), GetLastActivePopup(trader.Window())) << "row " << row;
}

void LoadFutures(const std::vector<std::pair<std::string, std::string>>& codes)
{
    std::vector<char> records(codes.size() * kContractSize);
    char* record = records.data();
    for (const auto& [exchange, product] : codes)
    {
        memcpy(record, exchange.c_str(), exchange.size());
        memcpy(record + 12, product.c_str(), product.size());
        record += kContractSize;
    }
    ZorvaneInterface::LoadFuture(reinterpret_cast<CPtkContract*>(records.data()),
                                 static_cast<int>(codes.size()));
}

/// A line of the file; "<absent>" when it is not there.
std::string StoredLine(const char* section, const char* key)
{
    char text[512];
    GetPrivateProfileStringA(section, key, "<absent>", text, sizeof(text),
                             (std::string(".\\") + kStopFile).c_str());
    return text;
}

int OptionsVolume()
{
    int volume = -1;
    ZorvaneInterface::GetStopProfitLossDefSetingOptions(0, &volume, nullptr, nullptr, nullptr,
                                                        nullptr, nullptr, nullptr);
    return volume;
}

/// In percent.
double OptionsStopProfit()
{
    double profit = -1;
    ZorvaneInterface::GetStopProfitLossDefSetingOptions(0, nullptr, nullptr, &profit, nullptr,
                                                        nullptr, nullptr, nullptr);
    return profit;
}

int FutureVolume(const char* exchange, const char* contract)
{
    int volume = -1;
    ZorvaneInterface::GetStopProfitLossDefSetingFuture(exchange, contract, &volume, nullptr,
                                                       nullptr, nullptr, nullptr, nullptr, nullptr);
    return volume;
}

class OtherPages : public ModuleTest
{
protected:
    void SetUp() override
    {
        ModuleTest::SetUp();
        LoadFutures({});
        int volume = 100;
        int tick = 100;
        double profit = 10;
        double fallback = 1;
        for (int id = 0; id < 3; ++id)
            ZorvaneInterface::SetStopProfitLossDefSetingStock(id, &volume, &tick, &profit,
                                                              &fallback, &profit, &fallback);
        RemoveTree("cfg");
    }
};

const char kTwoFutures[] = "[SHFE]\r\n"
                           "cu=3,2,0.000,20.000000,4.000000,0.000,20.000000,4.000000,10\r\n"
                           "al=5,1,1.250,30.500000,6.000000,2.500,25.000000,7.000000,0\r\n";

} // namespace

TEST_F(OtherPages, TheEntryIsTheLastRow)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherOptions,
                      [](Trader& trader)
                      {
                          EXPECT_EQ(kOtherRow + 1, trader.ListCount());
                          EXPECT_EQ(kOtherRow, trader.SelectedRow());
                          trader.Click(IDCANCEL);
                      });
    ZorvaneInterface::SetSpecialUI(SpecialUIIndicator, false);
    RunSettingsWindow(record, ParamPageOtherOptions,
                      [](Trader& trader)
                      {
                          EXPECT_EQ(kOtherRow, trader.ListCount());
                          EXPECT_EQ(kOtherRow - 1, trader.SelectedRow());
                          EXPECT_EQ(kOptionsGrid, ShownGrid(trader));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(OtherPages, EachStartPageShowsItsGridUnderTheOneTab)
{
    struct
    {
        TParamSetPage page;
        int grid;
    } const starts[] = {{ParamPageOtherOptions, kOptionsGrid},
                        {ParamPageOtherFuture, kFutureGrid},
                        {ParamPageOtherStock, kStockGrid}};
    for (const auto& start : starts)
    {
        TOParam record = {};
        RunSettingsWindow(record, start.page,
                          [&start](Trader& trader)
                          {
                              EXPECT_EQ(kOtherRow, trader.SelectedRow());
                              EXPECT_EQ(static_cast<size_t>(kGridCount), Grids(trader).size());
                              EXPECT_EQ(start.grid, ShownGrid(trader));
                              // "期权" is the current tab already, and there is no other.
                              trader.SelectTab(0);
                              EXPECT_EQ(start.grid, ShownGrid(trader));
                              trader.SelectTab(1);
                              EXPECT_EQ(start.grid, ShownGrid(trader));
                              trader.Click(IDCANCEL);
                          });
    }
}

TEST_F(OtherPages, TheListShowsTheOptionsFirst)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPagePublic,
                      [](Trader& trader)
                      {
                          EXPECT_TRUE(Grids(trader).empty());
                          trader.SelectRow(kOtherRow);
                          EXPECT_EQ(kOptionsGrid, ShownGrid(trader));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(OtherPages, TheGridFillsItsPageInsideAFrame)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherStock,
                      [](Trader& trader)
                      {
                          const HWND grid = Grids(trader)[kStockGrid];
                          const HWND page = GetParent(grid);
                          RECT place, client;
                          GetWindowRect(grid, &place);
                          MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&place), 2);
                          GetClientRect(page, &client);
                          EXPECT_EQ(kMargin, place.left);
                          EXPECT_EQ(kMargin, place.top);
                          EXPECT_EQ(client.right - kMargin, place.right);
                          EXPECT_EQ(client.bottom, place.bottom);

                          const HDC dc = GetDC(page);
                          const COLORREF frame = RGB(178, 178, 178);
                          EXPECT_EQ(frame, GetPixel(dc, kMargin - 1, kMargin + 200));
                          EXPECT_EQ(frame, GetPixel(dc, kMargin + 300, kMargin - 1));
                          EXPECT_EQ(frame, GetPixel(dc, client.right - kMargin, kMargin + 200));
                          EXPECT_EQ(RGB(239, 243, 246), GetPixel(dc, kMargin - 2, kMargin + 200));
                          ReleaseDC(page, dc);
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(OtherPages, TheDialogShowsTheVolumeAndHidesTheRest)
{
    WriteBytes(kStopFile, kTwoFutures);
    LoadFutures({{"SHFE", "cu"}, {"SHFE", "al"}});
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherFuture,
                      [](Trader& trader)
                      {
                          EditRow(trader, 0,
                                  [](Trader& editor)
                                  {
                                      EXPECT_EQ("修改", editor.Text(editor.Window()));
                                      EXPECT_EQ("确定", editor.Text(IDOK));
                                      EXPECT_EQ("取消", editor.Text(IDCANCEL));
                                      EXPECT_TRUE(editor.ShowsLabel("默认下单手数:"));
                                      EXPECT_TRUE(editor.IsShown(IDC_MODIFY_VOLUME));
                                      EXPECT_TRUE(editor.IsEnabled(IDC_MODIFY_VOLUME));
                                      EXPECT_EQ("3", editor.Text(IDC_MODIFY_VOLUME));
                                      EXPECT_EQ("2", editor.Text(IDC_MODIFY_TICK));
                                      EXPECT_EQ("20", editor.Text(IDC_MODIFY_STOP_PROFIT));
                                      EXPECT_EQ("4", editor.Text(IDC_MODIFY_MAX_FALLBACK));
                                      EXPECT_EQ("20", editor.Text(IDC_MODIFY_STOP_LOSS));
                                      EXPECT_EQ("4", editor.Text(IDC_MODIFY_FLOAT_RANGE));
                                      EXPECT_EQ("10", editor.Text(IDC_MODIFY_DAILY_MAX));
                                      for (int field : kHiddenFields)
                                      {
                                          EXPECT_FALSE(editor.IsShown(field)) << field;
                                          EXPECT_FALSE(editor.IsEnabled(field)) << field;
                                      }
                                      for (int sign : kPercentSigns)
                                      {
                                          EXPECT_FALSE(editor.IsShown(sign)) << sign;
                                          EXPECT_EQ("", editor.Text(sign)) << sign;
                                      }
                                      EXPECT_EQ("默认下单手数:最小变动量:止盈:最大回落:止损:浮动:"
                                                "指标策略下单日内最大手(股)数:",
                                                editor.Message());
                                      editor.Click(IDCANCEL);
                                  });
                          // A daily maximum of 0 is not shown.
                          EditRow(trader, 1,
                                  [](Trader& editor)
                                  {
                                      EXPECT_EQ("5", editor.Text(IDC_MODIFY_VOLUME));
                                      EXPECT_EQ("30", editor.Text(IDC_MODIFY_STOP_PROFIT));
                                      EXPECT_EQ("", editor.Text(IDC_MODIFY_DAILY_MAX));
                                      editor.Click(IDCANCEL);
                                  });
                          trader.Click(IDCANCEL);
                      });
    EXPECT_EQ(kTwoFutures, ReadBytes(kStopFile));
}

TEST_F(OtherPages, SecuritiesAndOptionsShowPercent)
{
    double profit = 12.5;
    ZorvaneInterface::SetStopProfitLossDefSetingStock(2, nullptr, nullptr, &profit, nullptr,
                                                      nullptr, nullptr);
    WriteBytes(kStopFile, "[期权]\r\n个股期权=7,8,0.000,0.250,0.100,0.000,0.300,0.050,9\r\n");
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherStock,
                      [](Trader& trader)
                      {
                          EditRow(trader, 2,
                                  [](Trader& editor)
                                  {
                                      EXPECT_EQ("100", editor.Text(IDC_MODIFY_VOLUME));
                                      EXPECT_EQ("12", editor.Text(IDC_MODIFY_STOP_PROFIT));
                                      EXPECT_EQ("1", editor.Text(IDC_MODIFY_MAX_FALLBACK));
                                      EXPECT_EQ("", editor.Text(IDC_MODIFY_DAILY_MAX));
                                      for (int sign : kPercentSigns)
                                          EXPECT_EQ("%", editor.Text(sign));
                                      editor.Click(IDCANCEL);
                                  });
                          trader.Click(IDCANCEL);
                      });
    RunSettingsWindow(record, ParamPageOtherOptions,
                      [](Trader& trader)
                      {
                          EditRow(trader, 0,
                                  [](Trader& editor)
                                  {
                                      EXPECT_EQ("7", editor.Text(IDC_MODIFY_VOLUME));
                                      EXPECT_EQ("8", editor.Text(IDC_MODIFY_TICK));
                                      EXPECT_EQ("25", editor.Text(IDC_MODIFY_STOP_PROFIT));
                                      EXPECT_EQ("10", editor.Text(IDC_MODIFY_MAX_FALLBACK));
                                      EXPECT_EQ("30", editor.Text(IDC_MODIFY_STOP_LOSS));
                                      EXPECT_EQ("5", editor.Text(IDC_MODIFY_FLOAT_RANGE));
                                      EXPECT_EQ("", editor.Text(IDC_MODIFY_DAILY_MAX));
                                      editor.Click(IDCANCEL);
                                  });
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(OtherPages, AFutureRowIsWrittenAtOnceThoughTheWindowIsCancelled)
{
    WriteBytes(kStopFile, kTwoFutures);
    LoadFutures({{"SHFE", "cu"}, {"SHFE", "al"}});
    // What the trader did not see goes through whole numbers; the reserved ones stay.
    const std::string after = "[SHFE]\r\n"
                              "cu=3,2,0.000,20.000000,4.000000,0.000,20.000000,4.000000,10\r\n"
                              "al=25,1,1.250,30.000000,6.000000,2.500,25.000000,7.000000,0\r\n";
    TOParam record = {};
    EXPECT_EQ(IDCANCEL, RunSettingsWindow(record, ParamPageOtherFuture,
                                          [&after](Trader& trader)
                                          {
                                              SetVolume(trader, 1, "25");
                                              EXPECT_EQ(after, ReadBytes(kStopFile));
                                              trader.Click(IDCANCEL);
                                          }));
    EXPECT_EQ(after, ReadBytes(kStopFile));
    EXPECT_EQ(25, FutureVolume("SHFE", "al2412"));
    EXPECT_EQ(3, FutureVolume("SHFE", "cu2412"));
}

TEST_F(OtherPages, ACancelledDialogChangesNothing)
{
    WriteBytes(kStopFile, kTwoFutures);
    LoadFutures({{"SHFE", "cu"}, {"SHFE", "al"}});
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherFuture,
                      [](Trader& trader)
                      {
                          EditRow(trader, 0,
                                  [](Trader& editor)
                                  {
                                      editor.Type(IDC_MODIFY_VOLUME, "77");
                                      editor.Click(IDCANCEL);
                                  });
                          EditRow(trader, 0,
                                  [](Trader& editor)
                                  {
                                      EXPECT_EQ("3", editor.Text(IDC_MODIFY_VOLUME));
                                      editor.Key(VK_ESCAPE);
                                  });
                          trader.Click(IDCANCEL);
                      });
    EXPECT_EQ(kTwoFutures, ReadBytes(kStopFile));
    EXPECT_EQ(3, FutureVolume("SHFE", "cu"));
}

TEST_F(OtherPages, ATraderTypesTheVolumeAndPressesReturn)
{
    WriteBytes(kStopFile, kTwoFutures);
    LoadFutures({{"SHFE", "cu"}, {"SHFE", "al"}});
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherFuture,
                      [](Trader& trader)
                      {
                          EditRow(trader, 0,
                                  [](Trader& editor)
                                  {
                                      editor.Key('4');
                                      editor.Key('2');
                                      EXPECT_EQ("42", editor.Text(IDC_MODIFY_VOLUME));
                                      editor.Key(VK_RETURN);
                                  });
                          trader.Click(IDCANCEL);
                      });
    EXPECT_EQ(42, FutureVolume("SHFE", "cu"));
    EXPECT_EQ("42,2,0.000,20.000000,4.000000,0.000,20.000000,4.000000,10",
              StoredLine("SHFE", "cu"));
}

TEST_F(OtherPages, AnOptionsRowIsLostOnCancel)
{
    const std::string before = "[期权]\r\n个股期权=7,8,1.500,0.250,0.100,2.500,0.300,0.050,9\r\n";
    WriteBytes(kStopFile, before);
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherOptions,
                      [&before](Trader& trader)
                      {
                          SetVolume(trader, 0, "12");
                          EXPECT_EQ(before, ReadBytes(kStopFile));
                          EXPECT_EQ(12, OptionsVolume());
                          trader.Click(IDCANCEL);
                      });
    EXPECT_EQ(before, ReadBytes(kStopFile));
    // The next window reads the file again.
    RunSettingsWindow(record, ParamPageOtherOptions,
                      [](Trader& trader)
                      {
                          EXPECT_EQ(7, OptionsVolume());
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(OtherPages, AnOptionsRowIsWrittenOnConfirm)
{
    WriteBytes(kStopFile, "[期权]\r\n个股期权=7,8,1.500,0.250,0.100,2.500,0.300,0.050,9\r\n");
    TOParam record = {};
    EXPECT_EQ(IDOK, RunSettingsWindow(record, ParamPageOtherOptions,
                                      [](Trader& trader)
                                      {
                                          SetVolume(trader, 0, "12");
                                          trader.Click(IDOK);
                                      }));
    EXPECT_EQ("[期权]\r\n个股期权=12,8,1.500,0.250,0.100,2.500,0.300,0.050,0\r\n",
              ReadBytes(kStopFile));
}

TEST_F(OtherPages, ConfirmWritesTheOptionsRowWhicheverPageIsOnShow)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherStock, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("[期权]\r\n个股期权=1,1,0.000,0.200,0.100,0.000,0.200,0.100,0\r\n",
              ReadBytes(kStopFile));
}

TEST_F(OtherPages, AnEntryNeverOpenedWritesNothing)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPagePublic, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("", ReadBytes(kStopFile));
}

TEST_F(OtherPages, AStockRowIsWrittenAtOnce)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherStock,
                      [](Trader& trader)
                      {
                          SetVolume(trader, 1, "300");
                          trader.Click(IDCANCEL);
                      });
    EXPECT_EQ("[证券]\r\n"
              "基金=300,100,0.000,0.100000,0.010000,0.000,0.100000,0.010000,0,0\r\n",
              ReadBytes(kStopFile));
}

TEST_F(OtherPages, TheFirstEditTakesFractionsAway)
{
    double fraction = 12.7;
    ZorvaneInterface::SetStopProfitLossDefSetingStock(0, nullptr, nullptr, &fraction, nullptr,
                                                      nullptr, nullptr);
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherStock,
                      [](Trader& trader)
                      {
                          EditRow(trader, 0, [](Trader& editor) { editor.Click(IDOK); });
                          trader.Click(IDCANCEL);
                      });
    EXPECT_EQ("100,100,0.000,0.130000,0.010000,0.000,0.100000,0.010000,0,0",
              StoredLine("证券", "股票"));
}

TEST_F(OtherPages, AnyTextIsReadAsANumber)
{
    struct
    {
        std::string text;
        std::string stored;
    } const cases[] = {
        {"", "0"},
        {"-5", "-5"},
        {"12 lots", "12"},
        {"lots", "0"},
        {"99999999999", "2147483647"},
        // The text is cut to 63 characters.
        {std::string(62, '0') + "15", "1"},
    };
    LoadFutures({{"SHFE", "cu"}});
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherFuture,
                      [&cases](Trader& trader)
                      {
                          for (const auto& one : cases)
                          {
                              EditRow(trader, 0,
                                      [&one](Trader& editor)
                                      {
                                          editor.SetText(IDC_MODIFY_VOLUME, one.text);
                                          editor.Click(IDOK);
                                      });
                              EXPECT_EQ(one.stored +
                                            ",1,0.000,20.000000,4.000000,0.000,20.000000,4.000000,"
                                            "10",
                                        StoredLine("SHFE", "cu"))
                                  << one.text;
                          }
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(OtherPages, AnEmptyListOpensNothing)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherFuture,
                      [](Trader& trader)
                      {
                          ExpectNothingOpens(trader, 0);
                          ExpectNothingOpens(trader, 1);
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(OtherPages, NothingOpensBesideTheRows)
{
    LoadFutures({{"SHFE", "cu"}});
    struct
    {
        TParamSetPage page;
        int rows;
    } const pages[] = {
        {ParamPageOtherFuture, 1}, {ParamPageOtherStock, 3}, {ParamPageOtherOptions, 1}};
    for (const auto& one : pages)
    {
        TOParam record = {};
        RunSettingsWindow(record, one.page,
                          [&one](Trader& trader)
                          {
                              ExpectNothingOpens(trader, -1); // the header
                              ExpectNothingOpens(trader, one.rows);
                              ExpectNothingOpens(trader, one.rows + 1);
                              EditRow(trader, one.rows - 1,
                                      [](Trader& editor) { editor.Click(IDCANCEL); });
                              trader.Click(IDCANCEL);
                          });
    }
}

TEST_F(OtherPages, RestoreReachesTheOptionsWhicheverPageIsOnShow)
{
    WriteBytes(kStopFile, kTwoFutures);
    LoadFutures({{"SHFE", "cu"}, {"SHFE", "al"}});
    TOParam record = {};
    for (TParamSetPage page : {ParamPageOtherFuture, ParamPageOtherStock, ParamPageOtherOptions})
        RunSettingsWindow(record, page,
                          [](Trader& trader)
                          {
                              const int shown = ShownGrid(trader);
                              EXPECT_EQ(20, OptionsStopProfit());
                              trader.Click(IDC_RESTORE_DEFAULTS);
                              EXPECT_EQ(shown, ShownGrid(trader));
                              EXPECT_EQ(10, OptionsStopProfit());
                              trader.Click(IDCANCEL);
                          });
    EXPECT_EQ(kTwoFutures, ReadBytes(kStopFile));
    EXPECT_EQ(3, FutureVolume("SHFE", "cu"));
}

TEST_F(OtherPages, RestoredOptionsAreWrittenOnConfirm)
{
    // Only the two reserved numbers of the packaged line come through.
    WriteBytes(kPackagedStopFile,
               "[期权]\r\n个股期权=50,60,1.500,0.700,0.600,2.500,0.500,0.400,9\r\n");
    WriteBytes(kStopFile, "[期权]\r\n个股期权=7,8,3.500,0.250,0.100,4.500,0.300,0.050,9\r\n");
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherOptions,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          EditRow(trader, 0,
                                  [](Trader& editor)
                                  {
                                      EXPECT_EQ("1", editor.Text(IDC_MODIFY_VOLUME));
                                      EXPECT_EQ("1", editor.Text(IDC_MODIFY_TICK));
                                      EXPECT_EQ("10", editor.Text(IDC_MODIFY_STOP_PROFIT));
                                      EXPECT_EQ("1", editor.Text(IDC_MODIFY_MAX_FALLBACK));
                                      EXPECT_EQ("10", editor.Text(IDC_MODIFY_STOP_LOSS));
                                      EXPECT_EQ("1", editor.Text(IDC_MODIFY_FLOAT_RANGE));
                                      editor.Click(IDCANCEL);
                                  });
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("[期权]\r\n个股期权=1,1,1.500,0.100,0.010,2.500,0.100,0.010,0\r\n",
              ReadBytes(kStopFile));
}

TEST_F(OtherPages, RestoreReachesAnEntryNeverOpened)
{
    WriteBytes(kStopFile, "[期权]\r\n个股期权=7,8,0.000,0.250,0.100,0.000,0.300,0.050,9\r\n");
    TOParam record = {};
    RunSettingsWindow(record, ParamPageIndicator,
                      [](Trader& trader)
                      {
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          EXPECT_EQ(-1, ShownGrid(trader));
                          trader.Click(IDOK);
                      });
    EXPECT_EQ("[期权]\r\n个股期权=1,1,0.000,0.100,0.010,0.000,0.100,0.010,0\r\n",
              ReadBytes(kStopFile));
}

TEST_F(OtherPages, AThousandFuturesScrollToTheirEnd)
{
    std::vector<std::pair<std::string, std::string>> codes;
    for (int i = 0; i < 1000; ++i)
        codes.push_back({"DCE", "p" + std::string(1, static_cast<char>('a' + i / 26 % 26)) +
                                    std::string(1, static_cast<char>('a' + i % 26)) +
                                    std::string(1, static_cast<char>('a' + i / 676))});
    LoadFutures(codes);
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherFuture,
                      [](Trader& trader)
                      {
                          const HWND grid = Grids(trader)[kFutureGrid];
                          SendMessageA(grid, WM_VSCROLL, SB_BOTTOM, 0);
                          trader.Settle();
                          // The last position shows the last row at the bottom or above it.
                          const int first = GetScrollPos(grid, SB_VERT);
                          EXPECT_GT(first, 900);
                          SetVolume(trader, 999 - first, "17");
                          trader.Click(IDCANCEL);
                      });
    EXPECT_EQ(17, FutureVolume("DCE", codes[999].second.c_str()));
    EXPECT_EQ(1, FutureVolume("DCE", codes[998].second.c_str()));
    EXPECT_EQ("[DCE]\r\n" + codes[999].second +
                  "=17,1,0.000,20.000000,4.000000,0.000,20.000000,4.000000,10\r\n",
              ReadBytes(kStopFile));
}

TEST_F(OtherPages, TheKeyboardLeavesAGrid)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOtherStock,
                      [](Trader& trader)
                      {
                          const HWND grid = Grids(trader)[kStockGrid];
                          trader.ClickAt(grid, 300, 300);
                          trader.Key(VK_RETURN);
                          trader.Key(VK_ESCAPE);
                          ASSERT_TRUE(trader.IsOpen());
                          const DWORD thread = GetWindowThreadProcessId(trader.Window(), nullptr);
                          bool reachedOk = false;
                          for (int i = 0; i < 4 && !reachedOk; ++i)
                          {
                              trader.Key(VK_TAB);
                              GUITHREADINFO info = {};
                              info.cbSize = sizeof(info);
                              GetGUIThreadInfo(thread, &info);
                              reachedOk = info.hwndFocus == GetDlgItem(trader.Window(), IDOK);
                          }
                          EXPECT_TRUE(reachedOk);
                          trader.Click(IDCANCEL);
                      });
}

// The pages of default volumes by themselves, with tables that the client can't bring about or no
// button reaches.
#include "core/DefaultTables.h"
#include "pages/OtherListDlg.h"
#include "resources/resource.h"
#include "tests/core/TempWorkingFolder.h"
#include "tests/skin/KitWindow.h"
#include "tests/window/Trader.h"

#include <atomic>
#include <climits>
#include <cmath>
#include <functional>
#include <thread>

namespace
{

const char kFile[] = "cfg\\Trade\\StopProfitLoss.ini";
constexpr int kWidth = 600;
constexpr int kHeight = 400;
constexpr int kRowHeight = 26;

const StopDefaultValues kOdd = {9, 8, 1.5, 0.77, 0.66, 2.5, 0.55, 0.44, 33, 1};

/// A page on the screen with its grid at hand.
template <class Page>
class Opened : public Page
{
public:
    using Page::m_grid;

    Opened()
    {
        m_frame.CreateEx(0, AfxRegisterWndClass(0), "client", WS_POPUP | WS_VISIBLE, 40, 40, kWidth,
                         kHeight, nullptr, nullptr);
        Page::EnsureWindow(&m_frame);
        Page::MoveWindow(0, 0, kWidth, kHeight);
        Page::ShowWindow(SW_SHOW);
        PumpFor(50);
    }

    ~Opened() override
    {
        Page::DestroyWindow();
        m_frame.DestroyWindow();
    }

    std::string Cell(int row, UINT column)
    {
        const OwerCell* cell = m_grid.GetCell(row, column);
        return cell ? cell->text : "<none>";
    }

    LRESULT Tell(GridEvent event)
    {
        return Page::SendMessage(kGridMessage, static_cast<WPARAM>(event),
                                 reinterpret_cast<LPARAM>(&m_grid));
    }

    /// Lets a trader work on a thread of its own while this one handles messages.
    void Work(const std::function<void(Trader&)>& work)
    {
        std::atomic<bool> done{false};
        std::thread driver(
            [&]
            {
                Trader trader(m_frame.m_hWnd);
                work(trader);
                done = true;
            });
        while (!done)
            PumpFor(5);
        driver.join();
        PumpFor(20);
    }

    void DoubleClick(Trader& trader, int row)
    {
        trader.DoubleClickAt(m_grid.m_hWnd, 40, kRowHeight * (row + 1) + kRowHeight / 2);
    }

private:
    CWnd m_frame;
};

using OpenedFuture = Opened<COtherFutureDlg>;
using OpenedStock = Opened<COtherStockDlg>;
using OpenedOptions = Opened<COtherOptionsDlg>;

FutureDefault Future(const char* exchange, const char* name, const StopDefaultValues& values)
{
    FutureDefault row = {};
    strcpy(row.exchange, exchange);
    strcpy(row.name, name);
    static_cast<StopDefaultValues&>(row) = values;
    return row;
}

class OtherLists : public TempWorkingFolder
{
protected:
    void SetUp() override
    {
        TempWorkingFolder::SetUp();
        FutureDefaults.assign({Future("SHFE", "cu", kOdd), Future("DCE", "m", kOdd)});
        StockDefaults.assign({{{0}, kOdd}, {{1}, kOdd}, {{2}, kOdd}});
        OptionsDefaults.clear();
    }
};

} // namespace

TEST_F(OtherLists, ColumnsAndRowHeight)
{
    OpenedFuture future;
    OpenedStock stock;
    OpenedOptions options;
    COwerDrawListView* const grids[] = {&future.m_grid, &stock.m_grid, &options.m_grid};
    const char* const volumes[] = {"默认手数", "默认数量", "默认数量"};
    for (int i = 0; i < 3; ++i)
    {
        const COwerDrawListView& grid = *grids[i];
        ASSERT_EQ(2u, grid.columns.size());
        EXPECT_STREQ("合约", grid.columns[0].title);
        EXPECT_STREQ(volumes[i], grid.columns[1].title);
        EXPECT_EQ(80, grid.columns[0].width);
        EXPECT_EQ(100, grid.columns[1].width);
        for (const OwerColumn& column : grid.columns)
        {
            EXPECT_EQ(37u, column.headerFormat);
            EXPECT_EQ(37u, column.cellFormat);
            EXPECT_EQ(kTextColumn, column.type);
        }
        EXPECT_EQ(26, grid.body->rowHeight);
        EXPECT_EQ(26, grid.body->headerHeight);
    }
}

TEST_F(OtherLists, EachRowOfTheFuturesTable)
{
    OpenedFuture page;
    ASSERT_EQ(2, page.m_grid.GetRowCount());
    EXPECT_EQ("cu", page.Cell(0, 0));
    EXPECT_EQ("m", page.Cell(1, 0));
    EXPECT_EQ("9", page.Cell(1, 1));
    EXPECT_EQ("8", page.Cell(1, 2));
    EXPECT_EQ("<none>", page.Cell(1, 3));
}

TEST_F(OtherLists, ThreeClassesOfSecuritiesWithTheirFlags)
{
    StockDefaults[1].flag = 0;
    OpenedStock page;
    ASSERT_EQ(3, page.m_grid.GetRowCount());
    EXPECT_EQ("股票", page.Cell(0, 0));
    EXPECT_EQ("基金", page.Cell(1, 0));
    EXPECT_EQ("债券", page.Cell(2, 0));
    EXPECT_EQ("9", page.Cell(2, 1));
    EXPECT_EQ("8", page.Cell(2, 2));
    EXPECT_EQ(1, page.m_grid.GetCellCheck(0, 3));
    EXPECT_EQ(0, page.m_grid.GetCellCheck(1, 3));
}

TEST_F(OtherLists, RowsBeyondTheLabelsNeverShowOrOpen)
{
    StockDefaults.push_back({{3}, kOdd});
    StockDefaults.push_back({{4}, kOdd});
    OpenedStock page;
    EXPECT_EQ(3, page.m_grid.GetRowCount());
    page.Work(
        [&page](Trader& trader)
        {
            page.DoubleClick(trader, 3);
            EXPECT_TRUE(WaitUntil([&page] { return page.m_grid.body->currentRow == 3; }));
            Sleep(300);
            EXPECT_EQ(trader.Window(), GetLastActivePopup(trader.Window()));
        });
    page.RestoreDefaults();
    EXPECT_EQ(3, page.m_grid.GetRowCount());
    EXPECT_EQ(100, StockDefaults[2].defaultVolume);
    EXPECT_EQ(9, StockDefaults[3].defaultVolume);
    EXPECT_EQ(9, StockDefaults[4].defaultVolume);
}

TEST_F(OtherLists, AShorterTableShowsLess)
{
    StockDefaults.resize(1);
    OpenedStock page;
    EXPECT_EQ(1, page.m_grid.GetRowCount());
}

TEST_F(OtherLists, RestoredFuturesAreWrittenAtOnce)
{
    OpenedFuture page;
    page.RestoreDefaults();
    EXPECT_EQ("1", page.Cell(0, 1));
    EXPECT_EQ("1", page.Cell(1, 2));
    EXPECT_EQ(10, FutureDefaults[1].dailyMax);
    EXPECT_EQ("[SHFE]\r\n"
              "cu=1,1,1.500,20.000000,4.000000,2.500,20.000000,4.000000,10\r\n"
              "[DCE]\r\n"
              "m=1,1,1.500,20.000000,4.000000,2.500,20.000000,4.000000,10\r\n",
              ReadBytes(kFile));
}

TEST_F(OtherLists, RestoredSecuritiesAreWrittenAtOnce)
{
    OpenedStock page;
    page.RestoreDefaults();
    EXPECT_EQ("100", page.Cell(2, 1));
    EXPECT_EQ(0, page.m_grid.GetCellCheck(2, 3));
    const std::string line = "=100,100,1.500,0.100000,0.010000,2.500,0.100000,0.010000,33,0\r\n";
    EXPECT_EQ("[证券]\r\n股票" + line + "基金" + line + "债券" + line, ReadBytes(kFile));
}

TEST_F(OtherLists, RestoredOptionsWaitForTheSave)
{
    OpenedOptions page;
    EXPECT_EQ("期权", page.Cell(0, 0));
    OptionsDefaults[0].defaultVolume = 50;
    page.RestoreDefaults();
    EXPECT_EQ("1", page.Cell(0, 1));
    EXPECT_EQ(0.1, OptionsDefaults[0].stopProfit);
    EXPECT_EQ(0.01, OptionsDefaults[0].maxFallback);
    EXPECT_FALSE(IsThere(kFile));
    // The folder is the writer's to find, not to make.
    CreateDirectoryA("cfg", nullptr);
    CreateDirectoryA("cfg\\Trade", nullptr);
    page.SaveToParam();
    EXPECT_EQ("[期权]\r\n个股期权=1,1,0.000,0.100,0.010,0.000,0.100,0.010,0\r\n", ReadBytes(kFile));
}

TEST_F(OtherLists, AnEmptyOptionsTableIsNotSaved)
{
    OpenedOptions page;
    OptionsDefaults.clear();
    page.SaveToParam();
    EXPECT_FALSE(IsThere(kFile));
}

TEST_F(OtherLists, APageWithoutAWindowDoesNothing)
{
    OptionsDefaults.assign(1, {{0}, kOdd});
    COtherFutureDlg future;
    COtherStockDlg stock;
    COtherOptionsDlg options;
    COtherListDlg* const pages[] = {&future, &stock, &options};
    for (COtherListDlg* page : pages)
    {
        page->RestoreDefaults();
        page->SaveToParam();
    }
    EXPECT_EQ(9, FutureDefaults[0].defaultVolume);
    EXPECT_EQ(9, StockDefaults[0].defaultVolume);
    EXPECT_EQ(9, OptionsDefaults[0].defaultVolume);
    EXPECT_FALSE(IsThere(kFile));
}

TEST_F(OtherLists, ATickedFlagIsWrittenAtOnce)
{
    StockDefaults[1].flag = 0;
    OpenedStock page;
    page.m_grid.SetCellCheck(1, 3, 1);
    page.Tell(GridEvent::CheckToggled); // no row is selected
    page.m_grid.body->currentRow = 3;   // right below the last one
    page.Tell(GridEvent::CheckToggled);
    page.m_grid.body->currentRow = 1;
    page.Tell(GridEvent::StoredPressed);
    EXPECT_EQ(0, StockDefaults[1].flag);
    EXPECT_FALSE(IsThere(kFile));

    page.Tell(GridEvent::CheckToggled);
    EXPECT_EQ(1, StockDefaults[1].flag);
    EXPECT_EQ("[证券]\r\n基金=9,8,1.500,0.770000,0.660000,2.500,0.550000,0.440000,33,1\r\n",
              ReadBytes(kFile));
}

TEST_F(OtherLists, AnEditedRowKeepsItsFlag)
{
    OpenedStock page;
    page.Work(
        [&page](Trader& trader)
        {
            page.DoubleClick(trader, 1);
            Trader editor(WaitForPopup(trader.Window()));
            editor.Type(IDC_MODIFY_VOLUME, "700");
            editor.Click(IDOK);
        });
    EXPECT_EQ("700", page.Cell(1, 1));
    EXPECT_EQ("9", page.Cell(0, 1));
    EXPECT_EQ(1, page.m_grid.GetCellCheck(1, 3));
    // The daily maximum has no field that shows it, and is gone.
    EXPECT_EQ("[证券]\r\n基金=700,8,1.500,0.770000,0.660000,2.500,0.550000,0.440000,0,1\r\n",
              ReadBytes(kFile));
}

TEST_F(OtherLists, ATableThatBecameShorterOpensNoRowBehindItsEnd)
{
    OpenedFuture page;
    page.Work(
        [&page](Trader& trader)
        {
            page.DoubleClick(trader, 1);
            Trader editor(WaitForPopup(trader.Window()));
            FutureDefaults.resize(1);
            editor.Type(IDC_MODIFY_VOLUME, "700");
            editor.Click(IDOK);
            EXPECT_TRUE(WaitUntil([&editor] { return !editor.IsOpen(); }));
            page.DoubleClick(trader, 0);
            Trader other(WaitForPopup(trader.Window()));
            other.Click(IDCANCEL);
            EXPECT_TRUE(WaitUntil([&other] { return !other.IsOpen(); }));
            page.DoubleClick(trader, 1);
            EXPECT_TRUE(WaitUntil([&page] { return page.m_grid.body->currentRow == 1; }));
            Sleep(300);
            EXPECT_EQ(trader.Window(), GetLastActivePopup(trader.Window()));
        });
    EXPECT_EQ(9, FutureDefaults[0].defaultVolume);
    EXPECT_FALSE(IsThere(kFile));
}

TEST_F(OtherLists, AnySizeOfThePage)
{
    OpenedFuture page;
    for (int size : {0, 1, 16, 32, 33, 60, 3000})
    {
        page.MoveWindow(0, 0, size, size);
        Paint(page.m_hWnd);
        CRect grid;
        page.m_grid.GetWindowRect(&grid);
        EXPECT_EQ(std::max(size - 32, 0), grid.Width());
        EXPECT_EQ(std::max(size - 16, 0), grid.Height());
    }
}

TEST_F(OtherLists, AbsurdNumbersDoNoHarm)
{
    static_cast<StopDefaultValues&>(FutureDefaults[0]) = {INT_MAX, INT_MIN, 1e300, 1e300,   -1e300,
                                                          1e300,   NAN,     1e18,  INT_MAX, 0};
    OpenedFuture page;
    page.Work(
        [&page](Trader& trader)
        {
            page.DoubleClick(trader, 0);
            Trader editor(WaitForPopup(trader.Window()));
            EXPECT_EQ("2147483647", editor.Text(IDC_MODIFY_VOLUME));
            EXPECT_EQ("-2147483648", editor.Text(IDC_MODIFY_TICK));
            EXPECT_EQ(63u, editor.Text(IDC_MODIFY_STOP_PROFIT).size());
            EXPECT_EQ("1000000000000000000", editor.Text(IDC_MODIFY_FLOAT_RANGE));
            editor.Click(IDOK);
        });
    const FutureDefault& row = FutureDefaults[0];
    EXPECT_EQ(INT_MAX, row.defaultVolume);
    EXPECT_EQ(INT_MIN, row.tickVolume);
    EXPECT_EQ(INT_MAX, row.stopProfit);
    EXPECT_EQ(INT_MIN, row.maxFallback);
    EXPECT_EQ(0, row.stopLoss);
    EXPECT_EQ(INT_MAX, row.floatRange);
    EXPECT_EQ(INT_MAX, row.dailyMax);
}

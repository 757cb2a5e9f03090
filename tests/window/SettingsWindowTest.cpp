// The window "参数设置" itself: list, buttons, keys, closing.
#include "resources/resource.h"
#include "tests/window/InsideWindow.h"
#include "tests/window/ModuleTest.h"
#include "tests/window/Records.h"
#include "tests/window/ScreenPicture.h"

#include <climits>

namespace
{

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kSurround = RGB(239, 243, 246);

class SettingsWindow : public ModuleTest
{
};

int refusedWindows = 0;

LRESULT CALLBACK RefuseWindows(int code, WPARAM wParam, LPARAM lParam)
{
    if (code != HCBT_CREATEWND)
        return CallNextHookEx(nullptr, code, wParam, lParam);
    ++refusedWindows;
    return 1;
}

int DoModalWhereNoWindowCanBeMade(TOParam& record)
{
    const HHOOK hook = SetWindowsHookExA(WH_CBT, RefuseWindows, nullptr, GetCurrentThreadId());
    const int result = ZorvaneInterface::DoModal(&record, ParamPageIndicator);
    UnhookWindowsHookEx(hook);
    return result;
}

} // namespace

TEST_F(SettingsWindow, OpensWithItsTitleListAndButtons)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageIndicator,
                      [](Trader& trader)
                      {
                          EXPECT_EQ("参数设置", trader.Text(trader.Window()));
                          EXPECT_EQ("确定", trader.Text(GetDlgItem(trader.Window(), IDOK)));
                          EXPECT_EQ("取消", trader.Text(GetDlgItem(trader.Window(), IDCANCEL)));
                          EXPECT_EQ("恢复默认",
                                    trader.Text(GetDlgItem(trader.Window(), IDC_RESTORE_DEFAULTS)));
                          EXPECT_EQ(6, trader.ListCount());
                          EXPECT_EQ(4, trader.SelectedRow());
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(SettingsWindow, TheListStandsTopLeftAndIsAsHighAsItsRows)
{
    TOParam record = {};
    RunSettingsWindow(
        record, ParamPageIndicator,
        [](Trader& trader)
        {
            const HWND list = GetDlgItem(trader.Window(), IDC_PAGE_LIST);
            RECT area;
            GetWindowRect(list, &area);
            MapWindowPoints(nullptr, trader.Window(), reinterpret_cast<POINT*>(&area), 2);
            EXPECT_EQ(0, area.left);
            EXPECT_EQ(0, area.top);
            EXPECT_EQ(40, SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
            EXPECT_EQ(40 * trader.ListCount(), area.bottom);

            // The host stands right of the list and leaves 56 below for the buttons.
            RECT host, client;
            GetWindowRect(GetParent(trader.Control(IDC_ONE_OPEN)), &host);
            MapWindowPoints(nullptr, trader.Window(), reinterpret_cast<POINT*>(&host), 2);
            GetClientRect(trader.Window(), &client);
            EXPECT_EQ(area.right + 1, host.left);
            EXPECT_EQ(0, host.top);
            EXPECT_EQ(client.right, host.right);
            EXPECT_EQ(client.bottom - 56, host.bottom);
            trader.Click(IDCANCEL);
        });
}

TEST_F(SettingsWindow, OkAnswersOneAndSaves)
{
    TOParam record = {};
    EXPECT_EQ(IDOK, RunSettingsWindow(record, ParamPageIndicator,
                                      [](Trader& trader) { trader.Click(IDOK); }));
    EXPECT_EQ("0", Stored("bOneOpen"));
    EXPECT_EQ("0", Stored("uMarginBuyStrategy"));
}

TEST_F(SettingsWindow, CancelAnswersTwoAndLeavesTheFile)
{
    WriteBytes(kUserFile, "[TradeConfig]\r\nbOneOpen=1\r\n");
    TOParam record = {};
    EXPECT_EQ(IDCANCEL, RunSettingsWindow(record, ParamPageIndicator,
                                          [](Trader& trader)
                                          {
                                              trader.Click(IDC_ONE_OPEN);
                                              trader.Click(IDCANCEL);
                                          }));
    EXPECT_EQ("[TradeConfig]\r\nbOneOpen=1\r\n", ReadBytes(kUserFile));
}

TEST_F(SettingsWindow, CancelLeavesTheWorkingCopyAsItWasGiven)
{
    TOParam record = SampleRecord(Sample::First);
    const TOParam pattern = PatternRecord();
    memcpy(record.reserved3, pattern.reserved3, sizeof(record.reserved3));
    RunSettingsWindow(record, ParamPageIndicator,
                      [](Trader& trader)
                      {
                          // Makes every page, with values that differ.
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          trader.Click(IDCANCEL);
                      });
    const TOParam* const working = FindWorkingRecord(record);
    ASSERT_NE(nullptr, working);
    EXPECT_EQ(0, memcmp(&record, working, sizeof(record)));
}

TEST_F(SettingsWindow, ReturnOnTheListConfirmsAndEscapeCancels)
{
    TOParam record = {};
    EXPECT_EQ(IDOK, RunSettingsWindow(record, ParamPageIndicator,
                                      [](Trader& trader)
                                      {
                                          trader.SelectRow(0);
                                          trader.Key(VK_RETURN);
                                      }));
    EXPECT_EQ(IDCANCEL, RunSettingsWindow(record, ParamPageIndicator,
                                          [](Trader& trader)
                                          {
                                              trader.SelectRow(0);
                                              trader.Key(VK_ESCAPE);
                                          }));
}

TEST_F(SettingsWindow, ReturnAndEscapeInAPageDoNothing)
{
    TOParam record = {};
    EXPECT_EQ(IDCANCEL, RunSettingsWindow(record, ParamPageIndicator,
                                          [](Trader& trader)
                                          {
                                              trader.Click(IDC_ONE_OPEN);
                                              EXPECT_TRUE(trader.IsChecked(IDC_ONE_OPEN));
                                              trader.Key(VK_RETURN);
                                              EXPECT_TRUE(trader.IsOpen());
                                              trader.Key(VK_ESCAPE);
                                              EXPECT_TRUE(trader.IsOpen());
                                              trader.Click(IDCANCEL);
                                          }));
    EXPECT_EQ("", ReadBytes(kUserFile));
}

TEST_F(SettingsWindow, TheCloseBoxCancels)
{
    TOParam record = {};
    EXPECT_EQ(IDCANCEL,
              RunSettingsWindow(record, ParamPageIndicator,
                                [](Trader& trader)
                                { PostMessageA(trader.Window(), WM_SYSCOMMAND, SC_CLOSE, 0); }));
}

TEST_F(SettingsWindow, APageWithoutARowOpensTheFirst)
{
    for (int page : {12345, 3, 99, 107, 204, 305, -1, INT_MIN})
    {
        TOParam record = {};
        RunSettingsWindow(record, static_cast<TParamSetPage>(page),
                          [page](Trader& trader)
                          {
                              EXPECT_EQ(0, trader.SelectedRow()) << page;
                              EXPECT_TRUE(trader.ShowsLabel("普通下单无需确认")) << page;
                              trader.Click(IDCANCEL);
                          });
    }
}

TEST_F(SettingsWindow, TheIndicatorEntryNeedsItsFlag)
{
    ZorvaneInterface::SetSpecialUI(SpecialUIIndicator, false);
    TOParam record = {};
    RunSettingsWindow(record, ParamPageIndicator,
                      [](Trader& trader)
                      {
                          EXPECT_EQ(5, trader.ListCount());
                          EXPECT_EQ(0, trader.SelectedRow());
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(SettingsWindow, TheHostsWindowIsUsableAgainAfterwards)
{
    const HWND owner = CreateWindowExA(0, "STATIC", "client", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                       nullptr, nullptr, nullptr, nullptr);
    TOParam record = {};
    RunSettingsWindow(record, ParamPageIndicator, [](Trader& trader) { trader.Click(IDCANCEL); });
    EXPECT_TRUE(IsWindowEnabled(owner));
    DestroyWindow(owner);
}

TEST_F(SettingsWindow, NoRecordOpensNothing)
{
    EXPECT_EQ(-1, ZorvaneInterface::DoModal(nullptr, ParamPageIndicator));
}

TEST_F(SettingsWindow, AWindowThatCannotBeMadeIsAnswered)
{
    TOParam record = {};
    EXPECT_EQ(-1, DoModalWhereNoWindowCanBeMade(record));
    EXPECT_EQ("", ReadBytes(kUserFile));
    // The next one opens.
    EXPECT_EQ(IDCANCEL, RunSettingsWindow(record, ParamPageIndicator,
                                          [](Trader& trader) { trader.Click(IDCANCEL); }));
}

TEST_F(SettingsWindow, ASecondOneIsRefusedAndLeavesTheFirstAlone)
{
    TOParam record = {};
    record.iLockScreen = 5;
    RunInsideSettingsWindow(record, ParamPageIndicator,
                            [](HWND window)
                            {
                                TOParam other = {};
                                refusedWindows = 0;
                                EXPECT_EQ(-1, DoModalWhereNoWindowCanBeMade(other));
                                EXPECT_EQ(0, refusedWindows) << "it was tried";
                                SendMessageA(window, WM_COMMAND, IDOK, 0);
                            });
    EXPECT_EQ("5", Stored("iLockScreen"));
    // The next one opens.
    EXPECT_EQ(IDCANCEL, RunSettingsWindow(record, ParamPageIndicator,
                                          [](Trader& trader) { trader.Click(IDCANCEL); }));
}

TEST_F(SettingsWindow, ReservedBytesTravelThroughItUnchanged)
{
    TOParam record = SampleRecord(Sample::First);
    const TOParam pattern = PatternRecord();
    const auto keepsPattern = [&pattern](const TOParam& checked)
    {
        const auto same = [&](const void* run, size_t size)
        {
            const auto offset =
                static_cast<const char*>(run) - reinterpret_cast<const char*>(&checked);
            return memcmp(run, reinterpret_cast<const char*>(&pattern) + offset, size) == 0;
        };
        return same(checked.reserved1, sizeof(checked.reserved1)) &&
               same(checked.reserved2, sizeof(checked.reserved2)) &&
               same(checked.reserved3, sizeof(checked.reserved3)) &&
               same(checked.reserved4, sizeof(checked.reserved4)) &&
               same(&checked.SplitOrder[0], sizeof(TSplitOrder)) &&
               same(&checked.SplitOrder[4], sizeof(TSplitOrder)) &&
               same(&checked.iOptionPriceAmountLayout, 4 * sizeof(int32_t));
    };
    memcpy(record.reserved1, pattern.reserved1, sizeof(record.reserved1));
    memcpy(record.reserved2, pattern.reserved2, sizeof(record.reserved2));
    memcpy(record.reserved3, pattern.reserved3, sizeof(record.reserved3));
    memcpy(record.reserved4, pattern.reserved4, sizeof(record.reserved4));
    record.SplitOrder[0] = pattern.SplitOrder[0];
    record.SplitOrder[4] = pattern.SplitOrder[4];
    memcpy(&record.iOptionPriceAmountLayout, &pattern.iOptionPriceAmountLayout,
           4 * sizeof(int32_t));
    ASSERT_TRUE(keepsPattern(record));

    RunSettingsWindow(record, ParamPageFutureChase,
                      [](Trader& trader)
                      {
                          // Makes every page, so that every page saves.
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          trader.Click(IDOK);
                      });
    const TOParam* const working = FindWorkingRecord(record);
    ASSERT_NE(nullptr, working);
    EXPECT_TRUE(keepsPattern(*working));
    EXPECT_EQ("", Differences(FileOf(*working), WithoutPageKeys(ReadBytes(kUserFile))));
    EXPECT_TRUE(keepsPattern(record));
}

TEST_F(SettingsWindow, TheListStandsOnAWhiteStripThatEndsAboveTheBottom)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageIndicator,
                      [](Trader& trader)
                      {
                          RECT client, list;
                          GetClientRect(trader.Window(), &client);
                          GetClientRect(GetDlgItem(trader.Window(), IDC_PAGE_LIST), &list);
                          const auto color = [&](int x, int y)
                          {
                              return PixelAt(trader.Window(), x, y);
                          };
                          EXPECT_EQ(kWhite, color(0, list.bottom));
                          EXPECT_EQ(kWhite, color(list.right - 1, list.bottom));
                          EXPECT_EQ(kWhite, color(0, client.bottom - 9));
                          EXPECT_EQ(kWhite, color(list.right - 1, client.bottom - 9));
                          EXPECT_EQ(kSurround, color(0, client.bottom - 8));
                          EXPECT_EQ(kSurround, color(list.right, client.bottom - 9));
                          EXPECT_EQ(kSurround, color(client.right - 1, client.bottom - 1));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(SettingsWindow, TheRowsShowTheirTextsAndImages)
{
    const struct
    {
        const char* text;
        int image;
    } rows[] = {{"公共设置", 0},           {"期权设置", 8},      {"期货/黄金设置", 9},
                {"证券/融资融券设置", 10}, {"指标策略交易", 12}, {"其它", 11}};
    const HBITMAP strip = static_cast<HBITMAP>(
        LoadImageA(nullptr, ".\\skin\\ctrl\\ListBoxItem.bmp", IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
    ASSERT_NE(nullptr, strip);
    TOParam record = {};
    RunSettingsWindow(
        record, ParamPageIndicator,
        [&](Trader& trader)
        {
            const HWND list = GetDlgItem(trader.Window(), IDC_PAGE_LIST);
            const auto font =
                reinterpret_cast<HFONT>(SendMessageA(trader.Window(), WM_GETFONT, 0, 0));
            // A selected row has other colours, so each is looked at while another one is selected.
            for (int row = 0; row < static_cast<int>(std::size(rows)); ++row)
            {
                trader.SelectRow(row ? 0 : 1);
                RECT item;
                SendMessageA(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&item));
                const CPicture shown = CPicture::OfWindow(list, item);
                for (const auto& other : rows)
                {
                    const bool own = &other == &rows[row];
                    EXPECT_EQ(own, shown.Holds(CPicture::OfText(other.text, font)))
                        << other.text << " in row " << row;
                    EXPECT_EQ(own, shown.Holds(CPicture::OfListImage(strip, other.image)))
                        << other.image << " in row " << row;
                }
            }
            trader.Click(IDCANCEL);
        });
    DeleteObject(strip);
}

TEST_F(SettingsWindow, ArrowKeysWalkTheListThroughPagesThatAreMadeOnTheWay)
{
    TOParam record = {};
    RunSettingsWindow(record, ParamPageIndicator,
                      [](Trader& trader)
                      {
                          trader.SelectRow(0);
                          for (int row = 1; row < trader.ListCount(); ++row)
                          {
                              trader.Key(VK_DOWN);
                              EXPECT_EQ(row, trader.SelectedRow());
                          }
                          trader.Key(VK_UP);
                          EXPECT_TRUE(
                              trader.ShowsLabel("指标策略下单时，一根K棒上只能下一次开仓单。"));
                          trader.Click(IDCANCEL);
                      });
}

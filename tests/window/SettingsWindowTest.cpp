// The window "参数设置" itself: list, buttons, keys, closing.
#include "tests/window/ModuleTest.h"

namespace
{

constexpr int kRestoreDefaults = 3;
constexpr int kPageList = 6001;
constexpr int kOneOpen = 6002;

class SettingsWindow : public ModuleTest
{
};

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
                                    trader.Text(GetDlgItem(trader.Window(), kRestoreDefaults)));
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
            const HWND list = GetDlgItem(trader.Window(), kPageList);
            RECT area;
            GetWindowRect(list, &area);
            MapWindowPoints(nullptr, trader.Window(), reinterpret_cast<POINT*>(&area), 2);
            EXPECT_EQ(0, area.left);
            EXPECT_EQ(0, area.top);
            EXPECT_EQ(40, SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
            EXPECT_EQ(40 * trader.ListCount(), area.bottom);

            // The host stands right of the list and leaves 56 below for the buttons.
            RECT host, client;
            GetWindowRect(GetParent(trader.Control(kOneOpen)), &host);
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
                                              trader.Click(kOneOpen);
                                              trader.Click(IDCANCEL);
                                          }));
    EXPECT_EQ("[TradeConfig]\r\nbOneOpen=1\r\n", ReadBytes(kUserFile));
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
                                              trader.Click(kOneOpen);
                                              EXPECT_TRUE(trader.IsChecked(kOneOpen));
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
    TOParam record = {};
    RunSettingsWindow(record, static_cast<TParamSetPage>(12345),
                      [](Trader& trader)
                      {
                          EXPECT_EQ(0, trader.SelectedRow());
                          trader.Click(IDCANCEL);
                      });
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

// The entry "公共设置", tab "条件单模式", and what a change of mode leads to.
#include "resources/resource.h"
#include "tests/window/Child.h"
#include "tests/window/ConditionModeClient.h"
#include "tests/window/Process.h"

namespace
{

constexpr int kStockRow = 3;

constexpr char kRefusal[] = "云账号有正在运行的条件单，不允许切换到本地条件单模式！\n\n"
                            "请删除或暂停正在执行中的云条件单后，再切换。";
constexpr char kToCloud[] = "启动云条件单后，不能再使用本地条件单。已设置的本地条件单将失效！\n\n"
                            "客户端重启后启用云条件单。";
constexpr char kToLocal[] = "启用本地条件单后，不能再使用云条件单，也不能查看云条件单相关信息；"
                            "如果您还有正在运行的云条件单，务必关注。\n\n"
                            "客户端重启后启用本地条件单。";

void ExpectLocalShown(const Trader& trader)
{
    EXPECT_TRUE(trader.IsChecked(IDC_LOCAL_MODE));
    EXPECT_FALSE(trader.IsChecked(IDC_CLOUD_MODE));
}

void ExpectCloudShown(const Trader& trader)
{
    EXPECT_FALSE(trader.IsChecked(IDC_LOCAL_MODE));
    EXPECT_TRUE(trader.IsChecked(IDC_CLOUD_MODE));
}

void ExpectNoneShown(const Trader& trader)
{
    EXPECT_FALSE(trader.IsChecked(IDC_LOCAL_MODE));
    EXPECT_FALSE(trader.IsChecked(IDC_CLOUD_MODE));
}

class ConditionMode : public ConditionModeTest
{
};

} // namespace

TEST_F(ConditionMode, NamesTheCurrentModeOnce)
{
    Run(0,
        [](Trader& trader)
        {
            EXPECT_EQ("条件单模式：", trader.Text(IDC_MODE_LABEL));
            for (int selected : {IDC_LOCAL_MODE, IDC_CLOUD_MODE})
            {
                trader.Click(selected);
                EXPECT_TRUE(trader.IsChecked(selected));
                EXPECT_EQ("本地条件单(当前模式)", trader.Text(IDC_LOCAL_MODE));
                EXPECT_EQ("云条件单", trader.Text(IDC_CLOUD_MODE));
            }
            trader.Click(IDCANCEL);
        });
    Run(1,
        [](Trader& trader)
        {
            ExpectCloudShown(trader);
            EXPECT_EQ("本地条件单", trader.Text(IDC_LOCAL_MODE));
            EXPECT_EQ("云条件单(当前模式)", trader.Text(IDC_CLOUD_MODE));
            trader.Click(IDCANCEL);
        });
}

TEST_F(ConditionMode, ItsTabLeadsToIt)
{
    TOParam record = {};
    RunSettingsWindow(
        record, ParamPagePublic,
        [](Trader& trader)
        {
            EXPECT_EQ((std::vector<std::string>{"常规", "条件单模式"}), trader.TabTitles());
            EXPECT_TRUE(trader.IsShown(IDC_INSERT_NO_CONFIRM));
            EXPECT_FALSE(trader.IsShown(IDC_LOCAL_MODE));
            trader.SelectTab(1);
            EXPECT_FALSE(trader.IsShown(IDC_INSERT_NO_CONFIRM));
            EXPECT_TRUE(trader.IsShown(IDC_LOCAL_MODE));
            trader.SelectTab(0);
            EXPECT_TRUE(trader.IsShown(IDC_INSERT_NO_CONFIRM));
            EXPECT_FALSE(trader.IsShown(IDC_LOCAL_MODE));
            trader.Click(IDCANCEL);
        });
}

TEST_F(ConditionMode, CloudToLocalBouncesBackWhileOrdersRun)
{
    cloudOrdersRun = true;
    Run(1,
        [](Trader& trader)
        {
            trader.Click(IDC_LOCAL_MODE);
            EXPECT_EQ(kRefusal, LeavePopup(trader, IDOK));
            ExpectCloudShown(trader);
            EXPECT_EQ(1, timesAsked);
            trader.Click(IDOK);
            EXPECT_FALSE(trader.IsOpen());
        });
    EXPECT_EQ(1, timesAsked);
    EXPECT_EQ("1", Stored("uUseCloudMode"));
}

TEST_F(ConditionMode, TheGuardStandsAgainAtOk)
{
    Run(1,
        [](Trader& trader)
        {
            trader.Click(IDC_LOCAL_MODE);
            EXPECT_FALSE(HasPopup(trader));
            EXPECT_EQ(1, timesAsked);
            cloudOrdersRun = true; // started meanwhile
            trader.Click(IDOK);
            EXPECT_EQ(kRefusal, LeavePopup(trader, IDOK));
            EXPECT_TRUE(trader.IsOpen());
            EXPECT_EQ(2, timesAsked);
            ExpectCloudShown(trader);
            EXPECT_EQ("", ReadBytes(kUserFile));
            trader.Click(IDCANCEL);
        });
    EXPECT_EQ("", ReadBytes(kUserFile));
}

TEST_F(ConditionMode, TheGuardComesBeforeTheCheckOfStock)
{
    WriteBytes(kTradeParamFile, "[Zorvane]\r\nOpenSelectConditionOrderMode=1\r\n[TradeConfig]\r\n"
                                "iOAutoCancelOrderDelayMin=2\r\niOAutoCancelOrderDelayMax=9\r\n");
    Run(1,
        [](Trader& trader)
        {
            trader.Click(IDC_LOCAL_MODE);
            trader.SelectRow(kStockRow);
            trader.SelectTab(1);
            trader.SetText(IDC_CHASE_INTERVAL, "1");
            cloudOrdersRun = true;
            trader.Click(IDOK);
            EXPECT_EQ(kRefusal, LeavePopup(trader, IDOK));
            EXPECT_FALSE(HasPopup(trader));
            // Now that cloud mode is selected again the turn is the stock page's.
            trader.Click(IDOK);
            EXPECT_NE(std::string::npos, LeavePopup(trader, IDOK).find("追价时间间隔"));
            trader.Click(IDCANCEL);
        });
}

TEST_F(ConditionMode, CloudToLocalWithoutOrdersAsksAtOkOnly)
{
    Run(1,
        [](Trader& trader)
        {
            trader.Click(IDC_LOCAL_MODE);
            EXPECT_FALSE(HasPopup(trader));
            ExpectLocalShown(trader);
            trader.Click(IDOK);
            EXPECT_EQ(kToLocal, LeavePopup(trader, IDCANCEL));
            EXPECT_TRUE(trader.IsOpen());
            ExpectCloudShown(trader);
            EXPECT_EQ("云条件单(当前模式)", trader.Text(IDC_CLOUD_MODE));
            // No page has saved: not even the keys that a page owns are there.
            EXPECT_EQ("", ReadBytes(kUserFile));
            trader.Click(IDOK);
            EXPECT_FALSE(trader.IsOpen());
        });
    EXPECT_EQ("1", Stored("uUseCloudMode"));
}

TEST_F(ConditionMode, LocalToCloudNeverCallsTheHost)
{
    cloudOrdersRun = true;
    Run(0,
        [](Trader& trader)
        {
            trader.Click(IDC_CLOUD_MODE);
            EXPECT_FALSE(HasPopup(trader));
            trader.Click(IDOK);
            EXPECT_EQ(kToCloud, LeavePopup(trader, IDCANCEL));
            ExpectLocalShown(trader);
            EXPECT_EQ("本地条件单(当前模式)", trader.Text(IDC_LOCAL_MODE));
            EXPECT_EQ("", ReadBytes(kUserFile));
            trader.Click(IDCANCEL);
        });
    EXPECT_EQ(0, timesAsked);
}

TEST_F(ConditionMode, LeavingThePromptByItsCloseBoxOrEscapeIsNoRestart)
{
    Run(0,
        [](Trader& trader)
        {
            for (bool byKey : {false, true})
            {
                trader.Click(IDC_CLOUD_MODE);
                trader.Click(IDOK);
                const HWND prompt = WaitForPopup(trader.Window());
                ASSERT_TRUE(prompt);
                EXPECT_EQ("立即重启", trader.Text(GetDlgItem(prompt, IDOK)));
                EXPECT_EQ("取消保存", trader.Text(GetDlgItem(prompt, IDCANCEL)));
                if (byKey)
                    trader.Key(VK_ESCAPE);
                else
                    PostMessageA(prompt, WM_SYSCOMMAND, SC_CLOSE, 0);
                EXPECT_TRUE(WaitUntil([&] { return !IsWindow(prompt); }));
                trader.Settle();
                EXPECT_TRUE(trader.IsOpen());
                ExpectLocalShown(trader);
            }
            trader.Click(IDCANCEL);
        });
    EXPECT_EQ("", ReadBytes(kUserFile));
}

TEST_F(ConditionMode, GoingThereAndBackChangesNothing)
{
    Run(0,
        [](Trader& trader)
        {
            trader.Click(IDC_CLOUD_MODE);
            trader.Click(IDC_LOCAL_MODE);
            trader.Click(IDOK);
            EXPECT_FALSE(trader.IsOpen());
        });
    EXPECT_EQ(0, timesAsked);
    EXPECT_EQ("0", Stored("uUseCloudMode"));
}

TEST_F(ConditionMode, CancellingTheWindowDropsTheSelection)
{
    WriteBytes(kUserFile, "[TradeConfig]\r\nuUseCloudMode=0\r\n");
    EXPECT_EQ(IDCANCEL, Run(0,
                            [](Trader& trader)
                            {
                                trader.Click(IDC_CLOUD_MODE);
                                trader.Click(IDCANCEL);
                            }));
    EXPECT_EQ("[TradeConfig]\r\nuUseCloudMode=0\r\n", ReadBytes(kUserFile));
}

TEST_F(ConditionMode, AThirdModeIsKeptAndSavedAsCloud)
{
    Run(2,
        [](Trader& trader)
        {
            ExpectNoneShown(trader);
            EXPECT_EQ("本地条件单", trader.Text(IDC_LOCAL_MODE));
            EXPECT_EQ("云条件单", trader.Text(IDC_CLOUD_MODE));
            trader.Click(IDOK);
            EXPECT_FALSE(trader.IsOpen());
        });
    EXPECT_EQ(0, timesAsked);
    EXPECT_EQ("1", Stored("uUseCloudMode"));
}

TEST_F(ConditionMode, AThirdModeIsGuardedLikeCloud)
{
    cloudOrdersRun = true;
    Run(2,
        [](Trader& trader)
        {
            trader.Click(IDC_LOCAL_MODE);
            EXPECT_EQ(kRefusal, LeavePopup(trader, IDOK));
            ExpectNoneShown(trader);
            trader.Click(IDCANCEL);
        });
}

TEST_F(ConditionMode, RestoringDefaultsLeavesTheMode)
{
    WriteBytes(kPackagedFile, "[TradeConfig]\r\nuUseCloudMode=0\r\nbInsertNoConfirm=1\r\n");
    Run(1,
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            ExpectCloudShown(trader);
            // The other tab is not restored either: only the current one of each host is.
            trader.SelectTab(0);
            EXPECT_FALSE(trader.IsChecked(IDC_INSERT_NO_CONFIRM));
            trader.Click(IDOK);
        });
    EXPECT_EQ("1", Stored("uUseCloudMode"));
}

TEST_F(ConditionMode, WithoutTheFeatureNothingOfThePageActs)
{
    for (const char* value : {"0", "2", ""})
    {
        OfferModes(value);
        cloudOrdersRun = true;
        Run(1,
            [value](Trader& trader)
            {
                // A start page without a tab is shown all the same.
                EXPECT_FALSE(trader.IsShown(IDC_INSERT_NO_CONFIRM));
                EXPECT_EQ(std::string(value) == "2", trader.IsShown(IDC_LOCAL_MODE));
                EXPECT_EQ(std::string(value) == "2", trader.IsShown(IDC_CLOUD_MODE));
                EXPECT_EQ(std::string(value) == "2", trader.IsShown(IDC_MODE_LABEL));
                SendMessageA(trader.Control(IDC_LOCAL_MODE), BM_CLICK, 0, 0);
                trader.Settle();
                EXPECT_FALSE(HasPopup(trader));
                trader.Click(IDOK);
                EXPECT_FALSE(trader.IsOpen());
            });
        EXPECT_EQ("1", Stored("uUseCloudMode"));
    }
    EXPECT_EQ(0, timesAsked);
}

TEST_F(ConditionMode, WithoutTheFeatureThereIsOneTab)
{
    RemoveTree("cfg");
    TOParam record = {};
    RunSettingsWindow(record, ParamPagePublic,
                      [](Trader& trader)
                      {
                          EXPECT_EQ(std::vector<std::string>{"常规"}, trader.TabTitles());
                          trader.SelectTab(1);
                          EXPECT_TRUE(trader.IsShown(IDC_INSERT_NO_CONFIRM));
                          // The strip's one tab is still the current one: restore reaches its page.
                          trader.Click(IDC_INSERT_NO_CONFIRM);
                          trader.Click(IDC_RESTORE_DEFAULTS);
                          EXPECT_FALSE(trader.IsChecked(IDC_INSERT_NO_CONFIRM));
                          trader.Click(IDCANCEL);
                      });
}

TEST_F(ConditionMode, APageNeverMadeAsksNothing)
{
    TOParam record = {};
    record.uUseCloudMode = 2;
    RunSettingsWindow(record, ParamPageFuture, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ(0, timesAsked);
    EXPECT_EQ("1", Stored("uUseCloudMode"));
}

TEST_F(ConditionMode, RestartingEndsTheClientAndStartsItAnew)
{
    const std::string again = OwnPath() + " -AlreadyRunNoPrompt";
    const RestartedClient restarted;
    ASSERT_EQ(0u, FindProcess(again));

    ChildProcess client(OwnPath(), kShowSettings);
    Trader trader(WaitForWindow("参数设置"));
    trader.Settle();
    trader.Click(IDC_CLOUD_MODE);
    trader.SelectTab(0);
    trader.Click(IDC_INSERT_NO_CONFIRM);
    trader.Click(IDOK);
    EXPECT_EQ(kToCloud, LeavePopup(trader, IDOK));
    // The client's own end has another code: it was ended from within, on the spot.
    EXPECT_EQ(0, client.WaitForEnd());

    EXPECT_EQ("1", Stored("uUseCloudMode"));
    EXPECT_EQ("1", Stored("bInsertNoConfirm"));
    EXPECT_EQ("0", Stored("uMarginBuyStrategy")); // the last of all keys

    DWORD started = 0;
    EXPECT_TRUE(WaitUntil([&] { return (started = FindProcess(again)) != 0; }));
    EXPECT_NE(client.Id(), started);
    restarted.LetEnd();
    EXPECT_TRUE(WaitUntil([&] { return FindProcess(again) == 0; }));
}

TEST_F(ConditionMode, ARestartWhoseStartFailsEndsTheClientAllTheSame)
{
    const std::string folder = OwnFolder() + "\\moved";
    RemoveTree(folder);
    const std::string program = CopyProgramTo(folder);
    for (const char* file : {kTradeParamFile, kOtherFile})
        WriteBytes(folder + "\\" + file, ReadBytes(file));
    {
        ChildProcess client(program, kShowSettings);
        Trader trader(WaitForWindow("参数设置"));
        trader.Settle();
        trader.Click(IDC_CLOUD_MODE);
        // Nothing stands at its path any more.
        ASSERT_TRUE(MoveFileA(program.c_str(), (program + ".away").c_str()));
        trader.Click(IDOK);
        EXPECT_EQ(kToCloud, LeavePopup(trader, IDOK));
        EXPECT_EQ(0, client.WaitForEnd());
    }
    EXPECT_EQ(0u, FindProcess(program + " -AlreadyRunNoPrompt"));
    EXPECT_NE(std::string::npos,
              ReadBytes(folder + "\\" + kUserFile).find("\r\nuUseCloudMode=1\r\n"));
    RemoveTree(folder);
}

TEST_F(ConditionMode, AClientWithoutAChangeOfModeEndsByItself)
{
    ChildProcess client(OwnPath(), kShowSettings);
    Trader trader(WaitForWindow("参数设置"));
    trader.Settle();
    trader.Click(IDOK);
    EXPECT_EQ(kSettingsShown + IDOK, client.WaitForEnd());
}

TEST_F(ConditionMode, AClientThatLinksTheModuleStartsWithTheWizard)
{
    RemoveTree(kOtherFile);
    ChildProcess client(OwnPath(), kShowSettings);
    Trader wizard(WaitForWindow("条件单使用向导"));
    wizard.Settle();
    EXPECT_EQ(nullptr, FindWindowA(nullptr, "参数设置"));
    wizard.Click(IDOK);

    Trader trader(WaitForWindow("参数设置"));
    EXPECT_EQ("0", Stored("uUseCloudMode"));
    trader.Settle();
    trader.Click(IDCANCEL);
    EXPECT_EQ(kSettingsShown + IDCANCEL, client.WaitForEnd());
}

TEST_F(ConditionMode, ACancelledWizardLeavesTheClientTheModeOfTheFileOrItsDefault)
{
    RemoveTree(kOtherFile);
    for (const std::string& file :
         {std::string(), std::string("[TradeConfig]\r\nuUseCloudMode=1\r\n")})
    {
        WriteBytes(kUserFile, file);
        ChildProcess client(OwnPath(), kShowSettings);
        Trader wizard(WaitForWindow("条件单使用向导"));
        wizard.Settle();
        wizard.Click(IDC_WIZARD_CLOUD);
        wizard.Click(IDCANCEL);

        Trader trader(WaitForWindow("参数设置"));
        trader.Settle();
        if (file.empty())
            ExpectLocalShown(trader);
        else
            ExpectCloudShown(trader);
        EXPECT_EQ(file, ReadBytes(kUserFile));
        trader.Click(IDCANCEL);
        EXPECT_EQ(kSettingsShown + IDCANCEL, client.WaitForEnd());
    }
}

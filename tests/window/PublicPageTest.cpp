// The entry "公共设置", tab "常规".
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"
#include "tests/window/Records.h"

namespace
{

constexpr char kDefaultSound[] = ".\\TradedSound.wav";

struct Box
{
    int id;
    const char* label;
    ParamField field;
};

const Box kBoxes[] = {
    {IDC_INSERT_NO_CONFIRM, "普通下单无需确认", FIELD(bInsertNoConfirm)},
    {IDC_QUICK_NO_CONFIRM, "快捷下单无需确认", FIELD(bQuickNoConfirm)},
    {IDC_CANCEL_NO_CONFIRM, "撤单无需确认", FIELD(bCancelNoConfirm)},
    {IDC_CANCEL_ALL_NO_CONFIRM, "全撤无需确认", FIELD(bCancelAllNoConfirm)},
    {IDC_ILLEGAL_PROMPT, "不合法数据提示", FIELD(bIllegalPrompt)},
    {IDC_MANUAL_SHIFT, "手动下单时，调整", FIELD(bManualOpponentsPrice)},
    {IDC_RESET_PRICE, "下单后将价格设置为默认价格", FIELD(bRestoreOpponentsPrice)},
    {IDC_RESET_VOLUME, "下单后将数量设置为默认数量（黄金无效）", FIELD(bRestoreVolume)},
    {IDC_POINT_ORDER, "启用行情界面点价下单", FIELD(bPointOrderInsert)},
    {IDC_REPORT_POPUP, "委托与成交回报浮窗提示", FIELD(bOrderPrompt)},
    {IDC_TRADED_SOUND, "委托成交时，发出", FIELD(bTradedPlaySound)},
    {IDC_LINKAGE, "点击持仓、委托、成交、组合联动行情", FIELD(bLinkage)},
    {IDC_HIDE_ACCOUNT, "隐藏账户信息", FIELD(bHideAccountInfo)},
};

/// A record in which the flag of box i is bit `bit` of i: four of them tell all boxes apart.
TOParam RecordWithBit(int bit)
{
    TOParam record = {};
    for (int i = 0; i < static_cast<int>(std::size(kBoxes)); ++i)
        SetInt(record, kBoxes[i].field, i >> bit & 1);
    record.iLockScreen = 10;
    return record;
}

/// The page's own button 3; the window has one with the same id.
HWND BrowseButton(const Trader& trader)
{
    return GetDlgItem(GetParent(trader.Control(IDC_SOUND_PATH)), IDC_BROWSE_SOUND);
}

std::string WorkingDirectory()
{
    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof(folder), folder);
    return folder;
}

void ChooseFile(HWND chooser, const std::string& path)
{
    constexpr int kFileName = 0x47C;
    Trader trader(chooser);
    trader.SetText(kFileName, path);
    trader.ClickWindow(GetDlgItem(chooser, IDOK));
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(chooser); }));
}

class PublicPage : public ModuleTest
{
protected:
    void TearDown() override { RemoveTree("sounds"); }

    int Run(const std::function<void(Trader&)>& work)
    {
        return RunSettingsWindow(m_record, ParamPagePublic, work);
    }

    TOParam m_record = RecordWithBit(0);
};

} // namespace

TEST_F(PublicPage, IsTheFirstRowAndItsStartPages)
{
    for (TParamSetPage page : {ParamPagePublic, ParamPageConditionMode})
        RunSettingsWindow(m_record, page,
                          [](Trader& trader)
                          {
                              EXPECT_EQ(0, trader.SelectedRow());
                              trader.Click(IDCANCEL);
                          });
}

TEST_F(PublicPage, NamesItsControls)
{
    Run(
        [](Trader& trader)
        {
            for (const Box& box : kBoxes)
                EXPECT_EQ(box.label, trader.Text(box.id));
            EXPECT_EQ("在走势与K线图上显示持仓线(必须重启系统才能生效！)（证券无效）",
                      trader.Text(IDC_POSITION_LINE));
            EXPECT_EQ("在走势图上显示条件单(必须重启系统才能生效！)",
                      trader.Text(IDC_CONDITION_ORDER_LINE));
            EXPECT_EQ("浏览", trader.Text(BrowseButton(trader)));
            EXPECT_EQ("个价位发出委托在用户没有作出任何操作分钟后锁住交易界面（条件单在锁屏后仍然"
                      "生效）提示音。字体大小：",
                      Trader(GetParent(trader.Control(IDC_SOUND_PATH))).Message());
            trader.Click(IDCANCEL);
        });
}

TEST_F(PublicPage, EachBoxIsItsOwnField)
{
    for (int bit = 0; bit < 4; ++bit)
    {
        m_record = RecordWithBit(bit);
        Run(
            [this](Trader& trader)
            {
                for (const Box& box : kBoxes)
                    EXPECT_EQ(GetInt(m_record, box.field), trader.IsChecked(box.id)) << box.label;
                trader.Click(IDOK);
            });
        for (const Box& box : kBoxes)
            EXPECT_EQ(std::to_string(GetInt(m_record, box.field)), Stored(box.field.name));
    }
}

TEST_F(PublicPage, StoresWhatTheTraderClicked)
{
    m_record = {};
    Run(
        [](Trader& trader)
        {
            for (const Box& box : kBoxes)
                trader.Click(box.id);
            trader.Click(IDC_POSITION_LINE);
            trader.Click(IDC_CONDITION_ORDER_LINE);
            trader.Click(IDOK);
        });
    for (const Box& box : kBoxes)
        EXPECT_EQ("1", Stored(box.field.name));
    EXPECT_EQ("0", Stored("bShowPositionLine"));
    EXPECT_EQ("0", Stored("bShowConditionOrder"));
}

TEST_F(PublicPage, AnyFlagIsStoredAsOne)
{
    m_record.bLinkage = 7;
    m_record.bHideAccountInfo = -1;
    Run([](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("1", Stored("bLinkage"));
    EXPECT_EQ("1", Stored("bHideAccountInfo"));
}

TEST_F(PublicPage, ASaveTurnsTheThreeNoticesOff)
{
    m_record.bInsertOrderNotice = 1;
    m_record.bStopProfitLossNotice = 1;
    m_record.bEarlyWarningNotice = 1;
    Run(
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            trader.Click(IDOK);
        });
    EXPECT_EQ("0", Stored("bInsertOrderNotice"));
    EXPECT_EQ("0", Stored("bStopProfitLossNotice"));
    EXPECT_EQ("0", Stored("bEarlyWarningNotice"));
}

TEST_F(PublicPage, APageNeverShownKeepsTheNoticesAndItsKeys)
{
    m_record.bEarlyWarningNotice = 1;
    m_record.iLockScreen = 0;
    RunSettingsWindow(m_record, ParamPageIndicator, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ("1", Stored("bEarlyWarningNotice"));
    EXPECT_EQ("0", Stored("iLockScreen"));
    EXPECT_EQ("<absent>", Stored("bShowPositionLine"));
    EXPECT_EQ("<absent>", Stored("szTradedPlaySoundPath"));
}

TEST_F(PublicPage, PagesNeverOpenedGoToTheFileAsTheHostHandedThemIn)
{
    // What stands in the other fields no page would leave so.
    m_record = PatternRecord();
    m_record.imoPriceTick = -5;
    m_record.iLockScreen = 12;
    m_record.enumListFontType = 1;
    for (const Box& box : kBoxes)
        SetInt(m_record, box.field, 1);
    Run([](Trader& trader) { trader.Click(IDOK); });
    TOParam expected = m_record;
    expected.bInsertOrderNotice = expected.bStopProfitLossNotice = expected.bEarlyWarningNotice = 0;
    EXPECT_EQ("", Differences(FileOf(expected), WithoutPageKeys(ReadBytes(kUserFile))));
}

TEST_F(PublicPage, ShowsAndStoresTheDefaultsOfItsOwnKeys)
{
    Run(
        [](Trader& trader)
        {
            EXPECT_TRUE(trader.IsChecked(IDC_POSITION_LINE));
            EXPECT_TRUE(trader.IsChecked(IDC_CONDITION_ORDER_LINE));
            EXPECT_EQ(kDefaultSound, trader.Text(IDC_SOUND_PATH));
            trader.Click(IDOK);
        });
    // Its own keys go to the file in their order and before all others.
    EXPECT_EQ(0u, ReadBytes(kUserFile).find(
                      "[TradeConfig]\r\nbShowPositionLine=1\r\n"
                      "szTradedPlaySoundPath=.\\TradedSound.wav\r\nbShowConditionOrder=1\r\n"
                      "bInsertNoConfirm="));
}

TEST_F(PublicPage, ShowsItsOwnKeysFromTheUsersFile)
{
    WriteBytes(kPackagedFile, "[TradeConfig]\r\nbShowPositionLine=1\r\nbShowConditionOrder=1\r\n"
                              "szTradedPlaySoundPath=.\\Packaged.wav\r\n");
    WriteBytes(kUserFile, "[TradeConfig]\r\nbShowPositionLine=0\r\nbShowConditionOrder=2\r\n"
                          "szTradedPlaySoundPath=D:\\声音\\成交.wav\r\n");
    Run(
        [](Trader& trader)
        {
            EXPECT_FALSE(trader.IsChecked(IDC_POSITION_LINE));
            EXPECT_TRUE(trader.IsChecked(IDC_CONDITION_ORDER_LINE));
            EXPECT_EQ("D:\\声音\\成交.wav", trader.Text(IDC_SOUND_PATH));
            trader.Click(IDOK);
        });
    EXPECT_EQ("0", Stored("bShowPositionLine"));
    EXPECT_EQ("1", Stored("bShowConditionOrder"));
    EXPECT_EQ("D:\\声音\\成交.wav", Stored("szTradedPlaySoundPath"));
}

TEST_F(PublicPage, RestoresBuiltInDefaultsWithoutAPackagedFile)
{
    WriteBytes(kUserFile, "[TradeConfig]\r\nbShowPositionLine=0\r\nbShowConditionOrder=0\r\n"
                          "szTradedPlaySoundPath=.\\Mine.wav\r\n");
    const std::string before = ReadBytes(kUserFile);
    m_record = {};
    for (const Box& box : kBoxes)
        SetInt(m_record, box.field, FactoryDefault(box.field.name).text[0] == '0');
    m_record.imoPriceTick = 5;
    m_record.enumListFontType = 1;
    Run(
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            for (const Box& box : kBoxes)
                EXPECT_EQ(FactoryDefault(box.field.name).text[0] == '1', trader.IsChecked(box.id))
                    << box.label;
            EXPECT_TRUE(trader.IsChecked(IDC_POSITION_LINE));
            EXPECT_TRUE(trader.IsChecked(IDC_CONDITION_ORDER_LINE));
            EXPECT_EQ("0", trader.Text(IDC_MANUAL_SHIFT_TICK));
            EXPECT_EQ("10", trader.Text(IDC_LOCK_MINUTES));
            EXPECT_EQ(kDefaultSound, trader.Text(IDC_SOUND_PATH));
            EXPECT_EQ(0, trader.Picked(IDC_LIST_FONT));
            trader.Click(IDCANCEL);
        });
    EXPECT_EQ(before, ReadBytes(kUserFile));
}

TEST_F(PublicPage, RestoresThePackagedValues)
{
    std::string packaged = "[TradeConfig]\r\n";
    for (const Box& box : kBoxes)
        packaged += std::string(box.field.name) +
                    (FactoryDefault(box.field.name).text[0] == '1' ? "=0\r\n" : "=1\r\n");
    WriteBytes(kPackagedFile, packaged + "bShowPositionLine=0\r\nbShowConditionOrder=0\r\n"
                                         "szTradedPlaySoundPath=.\\Packaged.wav\r\n"
                                         "imoPriceTick=-3\r\niLockScreen=25\r\n"
                                         "enumListFontType=1\r\n");
    m_record = {};
    Run(
        [](Trader& trader)
        {
            trader.Click(IDC_RESTORE_DEFAULTS);
            for (const Box& box : kBoxes)
                EXPECT_EQ(FactoryDefault(box.field.name).text[0] == '0', trader.IsChecked(box.id))
                    << box.label;
            EXPECT_FALSE(trader.IsChecked(IDC_POSITION_LINE));
            EXPECT_FALSE(trader.IsChecked(IDC_CONDITION_ORDER_LINE));
            EXPECT_EQ("-3", trader.Text(IDC_MANUAL_SHIFT_TICK));
            EXPECT_EQ("25", trader.Text(IDC_LOCK_MINUTES));
            EXPECT_EQ(".\\Packaged.wav", trader.Text(IDC_SOUND_PATH));
            EXPECT_EQ(1, trader.Picked(IDC_LIST_FONT));
            trader.Click(IDOK);
        });
    EXPECT_EQ("-3", Stored("imoPriceTick"));
    EXPECT_EQ("25", Stored("iLockScreen"));
    EXPECT_EQ("0", Stored("bShowConditionOrder"));
    EXPECT_EQ("1", Stored("enumListFontType"));
}

TEST_F(PublicPage, TheTickFollowsItsBox)
{
    m_record.bManualOpponentsPrice = 1;
    Run(
        [](Trader& trader)
        {
            EXPECT_TRUE(trader.IsEnabled(IDC_MANUAL_SHIFT_TICK));
            trader.Click(IDC_MANUAL_SHIFT);
            EXPECT_FALSE(trader.IsEnabled(IDC_MANUAL_SHIFT_TICK));
            trader.Click(IDC_MANUAL_SHIFT);
            EXPECT_TRUE(trader.IsEnabled(IDC_MANUAL_SHIFT_TICK));
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_FALSE(trader.IsEnabled(IDC_MANUAL_SHIFT_TICK));
            trader.Click(IDCANCEL);
        });
    m_record.bManualOpponentsPrice = 0;
    WriteBytes(kPackagedFile, "[TradeConfig]\r\nbManualOpponentsPrice=1\r\n");
    Run(
        [](Trader& trader)
        {
            EXPECT_FALSE(trader.IsEnabled(IDC_MANUAL_SHIFT_TICK));
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_TRUE(trader.IsEnabled(IDC_MANUAL_SHIFT_TICK));
            trader.Click(IDCANCEL);
        });
}

TEST_F(PublicPage, BrowsingFollowsItsBoxAndThePathIsNeverTyped)
{
    m_record.bTradedPlaySound = 1;
    Run(
        [](Trader& trader)
        {
            EXPECT_TRUE(IsWindowEnabled(BrowseButton(trader)));
            EXPECT_FALSE(trader.IsEnabled(IDC_SOUND_PATH));
            trader.Click(IDC_TRADED_SOUND);
            EXPECT_FALSE(IsWindowEnabled(BrowseButton(trader)));
            EXPECT_FALSE(trader.IsEnabled(IDC_SOUND_PATH));
            trader.Click(IDC_TRADED_SOUND);
            EXPECT_TRUE(IsWindowEnabled(BrowseButton(trader)));
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_FALSE(IsWindowEnabled(BrowseButton(trader)));
            trader.Click(IDCANCEL);
        });
}

TEST_F(PublicPage, ThePathIsStoredWithoutTheSoundToo)
{
    WriteBytes(kUserFile, "[TradeConfig]\r\nszTradedPlaySoundPath=.\\Mine.wav\r\n");
    m_record.bTradedPlaySound = 1;
    Run(
        [](Trader& trader)
        {
            trader.Click(IDC_TRADED_SOUND);
            trader.Click(IDOK);
        });
    EXPECT_EQ("0", Stored("bTradedPlaySound"));
    EXPECT_EQ(".\\Mine.wav", Stored("szTradedPlaySoundPath"));
}

TEST_F(PublicPage, AnEmptyPathIsStoredEmpty)
{
    WriteBytes(kUserFile, "[TradeConfig]\r\nszTradedPlaySoundPath=\r\n");
    Run(
        [](Trader& trader)
        {
            EXPECT_EQ("", trader.Text(IDC_SOUND_PATH));
            trader.Click(IDOK);
        });
    EXPECT_EQ("", Stored("szTradedPlaySoundPath"));
}

TEST_F(PublicPage, APathIsTakenAsItIs)
{
    // What a rich edit would read as formatted text is a path like any other.
    WriteBytes(kUserFile, "[TradeConfig]\r\nszTradedPlaySoundPath={\\rtf1 odd}\\sound.wav\r\n");
    Run(
        [](Trader& trader)
        {
            EXPECT_EQ("{\\rtf1 odd}\\sound.wav", trader.Text(IDC_SOUND_PATH));
            trader.Click(IDOK);
        });
    EXPECT_EQ("{\\rtf1 odd}\\sound.wav", Stored("szTradedPlaySoundPath"));
}

TEST_F(PublicPage, ALongPathIsCutAtAWholeCharacter)
{
    // A character stands across the limit of 1023 bytes.
    const std::string whole(1022, 'a');
    Run(
        [&whole](Trader& trader)
        {
            trader.SetText(IDC_SOUND_PATH, whole + "声音.wav");
            trader.Click(IDOK);
        });
    EXPECT_NE(std::string::npos,
              ReadBytes(kUserFile).find("\r\nszTradedPlaySoundPath=" + whole + "\r\n"));
}

TEST_F(PublicPage, ALeadingZeroMakesTheLockTimeOne)
{
    Run(
        [](Trader& trader)
        {
            EXPECT_EQ("10", trader.Text(IDC_LOCK_MINUTES));
            for (const char* text : {"05", "0", "007", "0.5", "0x"})
            {
                trader.SetText(IDC_LOCK_MINUTES, text);
                EXPECT_EQ("1", trader.Text(IDC_LOCK_MINUTES)) << text;
            }
            for (const char* text : {"30", "105", "-5", " 0", ""})
            {
                trader.SetText(IDC_LOCK_MINUTES, text);
                EXPECT_EQ(text, trader.Text(IDC_LOCK_MINUTES));
            }
            trader.SetText(IDC_LOCK_MINUTES, "05");
            trader.Click(IDOK);
        });
    EXPECT_EQ("1", Stored("iLockScreen"));
}

TEST_F(PublicPage, AZeroTypedIntoTheLockTimeBecomesOne)
{
    Run(
        [](Trader& trader)
        {
            trader.SetText(IDC_LOCK_MINUTES, "");
            trader.Click(IDC_LOCK_MINUTES);
            trader.Key('0');
            EXPECT_EQ("1", trader.Text(IDC_LOCK_MINUTES));
            // The next digit goes behind it, as for any number.
            trader.Key('5');
            EXPECT_EQ("15", trader.Text(IDC_LOCK_MINUTES));
            // Typed before another digit, the zero makes the whole text 1 as well.
            trader.SetText(IDC_LOCK_MINUTES, "5");
            trader.Key(VK_HOME);
            trader.Key('0');
            EXPECT_EQ("1", trader.Text(IDC_LOCK_MINUTES));
            trader.Click(IDOK);
        });
    EXPECT_EQ("1", Stored("iLockScreen"));
}

TEST_F(PublicPage, TheLockTimeIsNeverZeroWhoeverWritesIt)
{
    WriteBytes(kPackagedFile, "[TradeConfig]\r\niLockScreen=0\r\n");
    m_record.iLockScreen = 0;
    Run(
        [](Trader& trader)
        {
            EXPECT_EQ("1", trader.Text(IDC_LOCK_MINUTES));
            trader.SetText(IDC_LOCK_MINUTES, "12");
            trader.Click(IDC_RESTORE_DEFAULTS);
            EXPECT_EQ("1", trader.Text(IDC_LOCK_MINUTES));

            trader.SetText(IDC_LOCK_MINUTES, "2");
            trader.SpinDown(IDC_LOCK_MINUTES);
            EXPECT_EQ("1", trader.Text(IDC_LOCK_MINUTES));
            trader.SpinDown(IDC_LOCK_MINUTES);
            EXPECT_EQ("1", trader.Text(IDC_LOCK_MINUTES));
            trader.SpinUp(IDC_LOCK_MINUTES);
            EXPECT_EQ("2", trader.Text(IDC_LOCK_MINUTES));
            trader.Click(IDOK);
        });
    EXPECT_EQ("2", Stored("iLockScreen"));
}

TEST_F(PublicPage, TheTickStepsBothWaysBetweenItsBounds)
{
    m_record.bManualOpponentsPrice = 1;
    Run(
        [](Trader& trader)
        {
            trader.SpinDown(IDC_MANUAL_SHIFT_TICK);
            EXPECT_EQ("-1", trader.Text(IDC_MANUAL_SHIFT_TICK));
            trader.SetText(IDC_MANUAL_SHIFT_TICK, "-9999999");
            trader.SpinDown(IDC_MANUAL_SHIFT_TICK);
            EXPECT_EQ("-9999999", trader.Text(IDC_MANUAL_SHIFT_TICK));
            trader.SetText(IDC_MANUAL_SHIFT_TICK, "9999998");
            trader.SpinUp(IDC_MANUAL_SHIFT_TICK);
            trader.SpinUp(IDC_MANUAL_SHIFT_TICK);
            EXPECT_EQ("9999999", trader.Text(IDC_MANUAL_SHIFT_TICK));
            trader.Click(IDOK);
        });
    EXPECT_EQ("9999999", Stored("imoPriceTick"));
}

TEST_F(PublicPage, NumbersAreReadAsFarAsTheyGo)
{
    m_record.bManualOpponentsPrice = 1;
    Run(
        [](Trader& trader)
        {
            trader.SetText(IDC_MANUAL_SHIFT_TICK, "-12 ticks");
            trader.SetText(IDC_LOCK_MINUTES, "rubbish");
            trader.Click(IDOK);
        });
    EXPECT_EQ("-12", Stored("imoPriceTick"));
    EXPECT_EQ("0", Stored("iLockScreen"));
}

TEST_F(PublicPage, OnlySixtyThreeCharactersOfANumberCount)
{
    m_record.bManualOpponentsPrice = 1;
    Run(
        [](Trader& trader)
        {
            trader.SetText(IDC_MANUAL_SHIFT_TICK, std::string(61, '0') + "123");
            trader.Click(IDOK);
        });
    EXPECT_EQ("12", Stored("imoPriceTick"));
}

TEST_F(PublicPage, ShowsAndStoresTheFont)
{
    for (int font : {0, 1})
    {
        m_record.enumListFontType = font;
        Run(
            [font](Trader& trader)
            {
                EXPECT_EQ(font, trader.Picked(IDC_LIST_FONT));
                trader.Click(IDOK);
            });
        EXPECT_EQ(std::to_string(font), Stored("enumListFontType"));
    }
    Run(
        [](Trader& trader)
        {
            trader.Pick(IDC_LIST_FONT, 0);
            EXPECT_EQ(0, trader.Picked(IDC_LIST_FONT));
            trader.Click(IDOK);
        });
    EXPECT_EQ("0", Stored("enumListFontType"));
}

TEST_F(PublicPage, AnUnknownFontSelectsNothingAndIsStoredAsNormal)
{
    for (int font : {2, -1, -7, 0x7fffffff})
    {
        m_record.enumListFontType = font;
        Run(
            [](Trader& trader)
            {
                EXPECT_EQ(-1, trader.Picked(IDC_LIST_FONT));
                trader.Click(IDOK);
            });
        EXPECT_EQ("0", Stored("enumListFontType"));
    }
}

TEST_F(PublicPage, ChoosingASoundKeepsTheWorkingDirectory)
{
    WriteBytes("sounds\\成交.wav", "RIFF");
    const std::string chosen = WorkingDirectory() + "\\sounds\\成交.wav";
    const std::string before = WorkingDirectory();
    m_record.bTradedPlaySound = 1;
    Run(
        [&](Trader& trader)
        {
            trader.ClickWindow(BrowseButton(trader));
            const HWND chooser = WaitForPopup(trader.Window());
            ASSERT_TRUE(chooser);
            ChooseFile(chooser, chosen);
            trader.Settle();
            EXPECT_EQ(chosen, trader.Text(IDC_SOUND_PATH));
            EXPECT_EQ(before, WorkingDirectory());
            trader.Click(IDOK);
        });
    EXPECT_EQ(chosen, Stored("szTradedPlaySoundPath"));
    EXPECT_EQ("1", Stored("bTradedPlaySound"));
}

TEST_F(PublicPage, CancellingTheChooserChangesNothing)
{
    const std::string before = WorkingDirectory();
    m_record.bTradedPlaySound = 1;
    Run(
        [&](Trader& trader)
        {
            trader.ClickWindow(BrowseButton(trader));
            const HWND chooser = WaitForPopup(trader.Window());
            ASSERT_TRUE(chooser);
            // Gone elsewhere first: to the folder above.
            SetCurrentDirectoryA("..");
            Trader(chooser).ClickWindow(GetDlgItem(chooser, IDCANCEL));
            EXPECT_TRUE(WaitUntil([&] { return !IsWindow(chooser); }));
            trader.Settle();
            EXPECT_EQ(kDefaultSound, trader.Text(IDC_SOUND_PATH));
            EXPECT_EQ(before, WorkingDirectory());
            trader.Click(IDOK);
        });
    EXPECT_EQ(kDefaultSound, Stored("szTradedPlaySoundPath"));
}

TEST_F(PublicPage, ReturnAndEscapeInThePageDoNothing)
{
    EXPECT_EQ(IDCANCEL, Run(
                            [](Trader& trader)
                            {
                                trader.Click(IDC_POSITION_LINE);
                                trader.Key(VK_RETURN);
                                trader.Key(VK_ESCAPE);
                                EXPECT_TRUE(trader.IsOpen());
                                trader.Click(IDCANCEL);
                            }));
    EXPECT_EQ("", ReadBytes(kUserFile));
}

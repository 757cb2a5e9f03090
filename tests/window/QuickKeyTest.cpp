// The tab "快键下单".
#include "resources/resource.h"
#include "tests/hotkeys/HotKeyBytes.h"
#include "tests/window/KeyPage.h"

namespace
{

// The value in the record is the place here.
constexpr int kCycle[] = {IDC_PRICE_VOLUME_ORDER, IDC_VOLUME_PRICE_ORDER, IDC_PRICE_ORDER,
                          IDC_VOLUME_ORDER};

constexpr int kFunction = 0;
constexpr int kQuickKey = 1;

const char kKeyFile[] = "cfg\\trade\\HotV1Key2.dat";
const char kDuplicate[] = "快捷键重复，请重新设置";
const char kRestored[] = "快捷键设置恢复为上次保存的设置 (information)";

class QuickKey : public ModuleTest
{
protected:
    void SetUp() override
    {
        ModuleTest::SetUp();
        WriteBytes(kKeyFile, DefaultQuickKeyFile());
    }

    void TearDown() override { RemoveTree("cfg"); }

    static void Run(int button, const std::function<void(Trader&, KeyPage&)>& work, int mode = 0)
    {
        TOParam record = {};
        record.iOptionQuickBSMode = mode;
        RunSettingsWindow(record, ParamPageOptionsQuickKeys,
                          [&](Trader& trader)
                          {
                              KeyPage page(trader, {140, 100});
                              if (page.Grid())
                                  work(trader, page);
                              trader.ClickWindow(GetDlgItem(trader.Window(), button));
                          });
    }

    /// The box that is on; -1 unless it is exactly one.
    static int Cycle(const KeyPage& page)
    {
        int checked = -1;
        for (int i = 0; i < 4; ++i)
        {
            if (IsDlgButtonChecked(page.Page(), kCycle[i]) != BST_CHECKED)
                continue;
            if (checked >= 0)
                return -1;
            checked = i;
        }
        return checked;
    }

    static std::string NameOf(KeyPage& page, int row)
    {
        page.ClickCell(kQuickKey, row);
        return page.EditText();
    }
};

/// The default file with one row's key changed.
std::string FileWithKey(size_t row, int vk)
{
    std::string bytes = DefaultQuickKeyFile();
    bytes[4 + 84 * row + 5] = static_cast<char>(vk);
    return bytes;
}

/// The default file in net mode.
std::string NetFile()
{
    std::string bytes = DefaultQuickKeyFile();
    for (int row = 0; row < 8; ++row)
        bytes[4 + 84 * row + 53] = row >= 4;
    return bytes;
}

} // namespace

TEST_F(QuickKey, ShowsItsControlsAndRows)
{
    Run(IDCANCEL,
        [](Trader& trader, KeyPage& page)
        {
            EXPECT_TRUE(trader.ShowsLabel("快捷键设置"));
            EXPECT_EQ("启用净仓", trader.Text(IDC_NET_POSITION));
            EXPECT_EQ("回车下单光标循环设置", trader.Text(IDC_CYCLE_FRAME));
            EXPECT_EQ("价格-->数量-->下单",
                      trader.Text(GetDlgItem(page.Page(), IDC_PRICE_VOLUME_ORDER)));
            EXPECT_EQ("数量-->价格-->下单",
                      trader.Text(GetDlgItem(page.Page(), IDC_VOLUME_PRICE_ORDER)));
            EXPECT_EQ("价格-->下单", trader.Text(GetDlgItem(page.Page(), IDC_PRICE_ORDER)));
            EXPECT_EQ("数量-->下单", trader.Text(GetDlgItem(page.Page(), IDC_VOLUME_ORDER)));
            EXPECT_FALSE(trader.IsChecked(IDC_NET_POSITION));
            EXPECT_EQ(6, page.RowsOfBar());
            const char* const names[] = {"F1", "F2", "F3", "F4", "A", "Z"};
            for (int row = 0; row < 6; ++row)
            {
                EXPECT_GT(page.Ink(kFunction, row), 0);
                EXPECT_EQ(names[row], NameOf(page, row));
            }
            page.ClickElsewhere();
            EXPECT_FALSE(page.IsEditOpen());
            for (int row = 0; row < 6; ++row)
                EXPECT_GT(page.Ink(kQuickKey, row), 0);
        });
}

TEST_F(QuickKey, TheGridStandsBelowItsLabel)
{
    Run(IDCANCEL,
        [](Trader&, KeyPage& page)
        {
            RECT label, grid, client;
            GetWindowRect(FindWindowExA(page.Page(), nullptr, "Static", "快捷键设置"), &label);
            GetWindowRect(page.Grid(), &grid);
            GetClientRect(page.Page(), &client);
            EXPECT_EQ(label.left, grid.left);
            EXPECT_EQ(label.bottom + 12, grid.top);
            EXPECT_EQ(client.right - 64, grid.right - grid.left);
            EXPECT_EQ(200, grid.bottom - grid.top);
        });
}

TEST_F(QuickKey, OnlyTheKeyOpens)
{
    Run(IDCANCEL,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kFunction, 2);
            EXPECT_FALSE(page.IsEditOpen());
            page.ClickCell(kQuickKey, 2);
            EXPECT_TRUE(page.IsEditOpen());
            RECT edit;
            GetWindowRect(page.Edit(), &edit);
            MapWindowPoints(nullptr, page.Grid(), reinterpret_cast<POINT*>(&edit), 2);
            const RECT cell = page.Cell(kQuickKey, 2);
            EXPECT_TRUE(EqualRect(&cell, &edit));
            trader.ClickAt(page.Edit(), 20, 10);
            EXPECT_TRUE(page.IsEditOpen()) << "a press inside is none outside";
            page.ClickCell(kFunction, 3);
            EXPECT_FALSE(page.IsEditOpen());
        });
}

// ---- Capturing keys

TEST_F(QuickKey, TakesAKey)
{
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kQuickKey, 1);
            page.Press({}, 'B');
            EXPECT_EQ("B", page.EditText());
            EXPECT_TRUE(trader.IsOpen());
        });
    EXPECT_EQ(FileWithKey(1, 'B'), ReadBytes(kKeyFile));
}

TEST_F(QuickKey, TakesAKeyWithoutTheMouse)
{
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            for (int i = 0; i < 20 && trader.Focus() != page.Grid(); ++i)
                trader.Key(VK_TAB);
            trader.Key(VK_HOME);
            trader.Key(VK_DOWN);
            trader.Key(VK_RIGHT);
            trader.Key(VK_SPACE);
            trader.Key('B');
            EXPECT_EQ("B", page.EditText());
            trader.Key(VK_MENU);
            EXPECT_FALSE(page.IsEditOpen());
            EXPECT_EQ(page.Grid(), trader.Focus());
        });
    EXPECT_EQ(FileWithKey(1, 'B'), ReadBytes(kKeyFile));
}

TEST_F(QuickKey, AChangeIsLostOnCancel)
{
    const std::string bytes = DefaultQuickKeyFile() + "piece";
    WriteBytes(kKeyFile, bytes);
    Run(IDCANCEL,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kQuickKey, 1);
            page.Press({}, 'B');
            trader.Click(IDC_NET_POSITION);
            EXPECT_TRUE(trader.IsChecked(IDC_NET_POSITION));
        });
    EXPECT_EQ(bytes, ReadBytes(kKeyFile));
    EXPECT_EQ("<absent>", Stored("iOptionQuickBSMode"));
}

TEST_F(QuickKey, ARowsOwnKeyIsADuplicateToo)
{
    Run(IDOK,
        [](Trader&, KeyPage& page)
        {
            page.ClickCell(kQuickKey, 0);
            page.Press({}, VK_F1);
            EXPECT_EQ(kDuplicate, page.AnswerBox());
            EXPECT_EQ("F1", page.EditText());
            page.Press({}, 'Z');
            EXPECT_EQ(kDuplicate, page.AnswerBox());
            EXPECT_EQ("F1", page.EditText()) << "the row keeps its key";
        });
    EXPECT_EQ(DefaultQuickKeyFile(), ReadBytes(kKeyFile));
}

TEST_F(QuickKey, KeysOfTheOrderPanelDoNothing)
{
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kQuickKey, 0);
            for (WORD key : {WORD(VK_RETURN), WORD('0'), WORD('9'), WORD(VK_NUMPAD0),
                             WORD(VK_NUMPAD9), WORD(VK_DELETE), WORD(VK_LEFT), WORD(VK_UP),
                             WORD(VK_RIGHT), WORD(VK_DOWN), WORD(VK_SHIFT), WORD(VK_CONTROL)})
            {
                trader.Key(key);
                EXPECT_EQ("F1", page.EditText()) << key;
                EXPECT_FALSE(page.IsMenuOpen()) << key;
            }
            EXPECT_TRUE(page.IsEditOpen());
            EXPECT_FALSE(FindWindowA("#32770", "提示"));
        });
    EXPECT_EQ(DefaultQuickKeyFile(), ReadBytes(kKeyFile));
}

TEST_F(QuickKey, KeysOfTheDialogAreCapturedAndCloseNothing)
{
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            const struct
            {
                std::vector<WORD> modifiers;
                WORD key;
                const char* name;
            } keys[] = {
                {{}, VK_ESCAPE, ""},         {{}, VK_TAB, ""},      {{VK_MENU}, VK_SPACE, ""},
                {{VK_MENU}, VK_F4, nullptr}, {{VK_MENU}, 'Q', "Q"}, {{}, VK_F10, "F10"},
            };
            for (const auto& key : keys)
            {
                page.ClickCell(kQuickKey, 0);
                page.Press(key.modifiers, key.key);
                // F4 is the key of another row, but with Alt held that row is not found.
                EXPECT_EQ(key.name ? key.name : "F4", page.EditText());
                EXPECT_FALSE(page.IsMenuOpen());
                EXPECT_TRUE(trader.IsOpen());
            }
            page.ClickElsewhere();
            trader.Key(VK_RETURN);
            trader.Key(VK_ESCAPE);
            EXPECT_TRUE(trader.IsOpen());
        });
    EXPECT_EQ(FileWithKey(0, VK_F10), ReadBytes(kKeyFile));
}

TEST_F(QuickKey, HeldModifiersCountInTheSearchAndAreNotStored)
{
    Run(IDOK,
        [](Trader&, KeyPage& page)
        {
            page.ClickCell(kQuickKey, 0);
            page.Press({VK_CONTROL}, 'A');
            EXPECT_EQ("A", page.EditText()) << "row 4 holds A without Ctrl";
        });
    EXPECT_EQ(FileWithKey(0, 'A'), ReadBytes(kKeyFile));
}

TEST_F(QuickKey, ARowKeepsTheModifiersThatItCameWith)
{
    const std::string rows[] = {QuickKeyBytes(18, 4, 'S', 1), QuickKeyBytes(19, 1, 'C', 1)};
    WriteBytes(kKeyFile, Word(2) + rows[0] + rows[1]);
    Run(IDOK,
        [](Trader&, KeyPage& page)
        {
            EXPECT_EQ("Shift + S", NameOf(page, 0));
            page.ClickCell(kQuickKey, 1);
            page.Press({}, 'S');
            EXPECT_EQ(kDuplicate, page.AnswerBox()) << "a row with Shift answers to the plain key";
            page.Press({}, 'D');
            EXPECT_EQ("Ctrl + D", page.EditText());
        });
    EXPECT_EQ(Word(2) + rows[0] + QuickKeyBytes(19, 1, 'D', 1), ReadBytes(kKeyFile));
}

// ---- Net position

TEST_F(QuickKey, NetPositionsSwapTheRows)
{
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            trader.Click(IDC_NET_POSITION);
            EXPECT_EQ(4, page.RowsOfBar());
            const char* const names[] = {"F5", "F6", "A", "Z"};
            for (int row = 0; row < 4; ++row)
                EXPECT_EQ(names[row], NameOf(page, row));
            page.ClickElsewhere();
            EXPECT_EQ(0, page.Ink(kFunction, 4));
        });
    EXPECT_EQ(NetFile(), ReadBytes(kKeyFile));
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            EXPECT_TRUE(trader.IsChecked(IDC_NET_POSITION));
            EXPECT_EQ(4, page.RowsOfBar());
            trader.Click(IDC_NET_POSITION);
            EXPECT_EQ(6, page.RowsOfBar());
        });
    EXPECT_EQ(DefaultQuickKeyFile(), ReadBytes(kKeyFile));
}

TEST_F(QuickKey, AHiddenRowMayHoldTheSameKey)
{
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            trader.Click(IDC_NET_POSITION);
            page.ClickCell(kQuickKey, 0);
            page.Press({}, VK_F1);
            EXPECT_EQ("F1", page.EditText());
        });
    std::string bytes = NetFile();
    bytes[4 + 84 * 6 + 5] = VK_F1;
    EXPECT_EQ(bytes, ReadBytes(kKeyFile));
}

TEST_F(QuickKey, SwitchingKeepsWhatWasEdited)
{
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kQuickKey, 0);
            page.Press({}, 'B');
            trader.Click(IDC_NET_POSITION);
            EXPECT_FALSE(page.IsEditOpen());
            page.ClickCell(kQuickKey, 1);
            page.Press({}, 'C');
            trader.Click(IDC_NET_POSITION);
            EXPECT_EQ("B", NameOf(page, 0));
            trader.Click(IDC_NET_POSITION);
            EXPECT_EQ("C", NameOf(page, 1));
            trader.Click(IDC_NET_POSITION);
        });
    std::string bytes = FileWithKey(0, 'B');
    bytes[4 + 84 * 7 + 5] = 'C';
    EXPECT_EQ(bytes, ReadBytes(kKeyFile));
}

// ---- Files

TEST_F(QuickKey, WithoutAFileTheDefaultsCome)
{
    for (const std::string& bytes : {std::string(), Word(1), Word(7) + std::string(84, 'x')})
    {
        WriteBytes(kKeyFile, bytes);
        Run(IDOK,
            [](Trader&, KeyPage& page)
            {
                EXPECT_EQ(6, page.RowsOfBar());
                EXPECT_EQ("F1", NameOf(page, 0));
            });
        EXPECT_EQ(DefaultQuickKeyFile(), ReadBytes(kKeyFile));
    }
}

TEST_F(QuickKey, AnOldFileIsBroughtUpToDate)
{
    WriteBytes(kKeyFile, Word(1) + QuickKeyBytes(18, 0, 'M', 0) + QuickKeyBytes(22, 0, 'N', 0));
    Run(IDOK, [](Trader&, KeyPage& page) { EXPECT_EQ(2, page.RowsOfBar()); });
    EXPECT_EQ(Word(2) + QuickKeyBytes(18, 0, 'M', 1) + QuickKeyBytes(22, 0, 'N', 1) +
                  QuickKeyBytes(24, 0, 116, 0) + QuickKeyBytes(25, 0, 117, 0),
              ReadBytes(kKeyFile));
}

// ---- What the Return key walks through

TEST_F(QuickKey, TheRecordSaysWhichCycleIsOn)
{
    for (const auto& [mode, box] : {std::pair(0, 0), {1, 1}, {2, 2}, {3, 3}, {4, 0}, {-1, 0}})
    {
        const int expected = box;
        Run(
            IDOK, [expected](Trader&, KeyPage& page) { EXPECT_EQ(expected, Cycle(page)); }, mode);
        EXPECT_EQ(std::to_string(expected), Stored("iOptionQuickBSMode"));
    }
}

TEST_F(QuickKey, TheCyclesExcludeEachOther)
{
    for (int mode : {1, 2, 3, 0})
    {
        Run(IDOK,
            [mode](Trader& trader, KeyPage& page)
            {
                trader.ClickWindow(GetDlgItem(page.Page(), kCycle[mode]));
                EXPECT_EQ(mode, Cycle(page));
                trader.ClickWindow(GetDlgItem(page.Page(), kCycle[mode]));
                EXPECT_EQ(mode, Cycle(page)) << "a second click does not put it out";
            });
        EXPECT_EQ(std::to_string(mode), Stored("iOptionQuickBSMode"));
    }
}

// ---- Restore

TEST_F(QuickKey, RestoreGoesBackToWhatWasSaved)
{
    const std::string saved = FileWithKey(0, 'S');
    WriteBytes(kKeyFile, saved);
    WriteBytes(kPackagedFile, "[TradeConfig]\r\niOptionQuickBSMode=2\r\n");
    Run(
        IDOK,
        [](Trader& trader, KeyPage& page)
        {
            trader.Click(IDC_NET_POSITION);
            page.ClickCell(kQuickKey, 0);
            page.Press({}, 'B');
            trader.ClickWindow(GetDlgItem(trader.Window(), IDC_RESTORE_DEFAULTS));
            EXPECT_EQ(kRestored, page.AnswerBox());
            EXPECT_FALSE(trader.IsChecked(IDC_NET_POSITION));
            EXPECT_EQ(6, page.RowsOfBar());
            EXPECT_EQ("S", NameOf(page, 0));
            EXPECT_EQ(2, Cycle(page));
        },
        3);
    EXPECT_EQ(saved, ReadBytes(kKeyFile));
    EXPECT_EQ("2", Stored("iOptionQuickBSMode"));
}

TEST_F(QuickKey, RestoreWithoutFilesGivesTheDefaults)
{
    RemoveTree(kKeyFile);
    Run(
        IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kQuickKey, 0);
            page.Press({}, 'B');
            trader.ClickWindow(GetDlgItem(trader.Window(), IDC_RESTORE_DEFAULTS));
            EXPECT_EQ(kRestored, page.AnswerBox());
            EXPECT_EQ("F1", NameOf(page, 0));
            EXPECT_EQ(0, Cycle(page));
        },
        3);
    EXPECT_EQ(DefaultQuickKeyFile(), ReadBytes(kKeyFile));
    EXPECT_EQ("0", Stored("iOptionQuickBSMode"));
}

TEST_F(QuickKey, RestoreOfAnotherTabLeavesThisOne)
{
    TOParam record = {};
    record.iOptionQuickBSMode = 3;
    WriteBytes(kKeyFile, FileWithKey(0, 'S'));
    RunSettingsWindow(record, ParamPageOptionsChase,
                      [](Trader& trader)
                      {
                          trader.ClickWindow(GetDlgItem(trader.Window(), IDC_RESTORE_DEFAULTS));
                          trader.Settle();
                          EXPECT_FALSE(FindWindowA("#32770", "提示"));
                          trader.Click(IDOK);
                      });
    // The restore has made the page, so it is saved: as it came.
    EXPECT_EQ("3", Stored("iOptionQuickBSMode"));
    EXPECT_EQ(FileWithKey(0, 'S'), ReadBytes(kKeyFile));
}

TEST_F(QuickKey, APageNeverShownWritesNothing)
{
    const std::string bytes = DefaultQuickKeyFile() + "piece";
    WriteBytes(kKeyFile, bytes);
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOptionsChase, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ(bytes, ReadBytes(kKeyFile));
    EXPECT_EQ("<absent>", Stored("iOptionQuickBSMode"));
}

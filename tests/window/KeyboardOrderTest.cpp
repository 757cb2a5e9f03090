// The tab "键盘下单".
#include "resources/resource.h"
#include "tests/hotkeys/HotKeyBytes.h"
#include "tests/window/KeyPage.h"

namespace
{

constexpr int kKey = 0;
constexpr int kSide = 1;
constexpr int kOpenClose = 2;
constexpr int kPrice = 3;
constexpr int kTicks = 4;
constexpr int kCovered = 5;
constexpr int kAction = 6;

// Items of the action column.
constexpr int kRaiseItem = 3;
constexpr int kLowerItem = 4;
constexpr int kCancelAllItem = 6;

const char kKeyFile[] = "cfg\\trade\\HotKey2.dat";
const char kToggleFile[] = "cfg\\trade\\HotKey.ini";
const char kDuplicate[] = "快捷键重复! (no owner)";
const char kClash[] = "与开启/关闭键盘下单快捷键冲突，请重新设置！";

using Rows = std::vector<OrderKey>;

OrderKey Action(uint32_t action)
{
    OrderKey row;
    row.action = action;
    return row;
}

OrderKey Key(int modifiers, int vk)
{
    OrderKey row;
    row.modifiers = modifiers;
    row.vk = vk;
    return row;
}

class KeyboardOrder : public ModuleTest
{
protected:
    void SetUp() override
    {
        ModuleTest::SetUp();
        ZorvaneInterface::Init(Answer);
        WriteBytes(kKeyFile, OrderKeyFile({}));
    }

    void TearDown() override { RemoveTree("cfg"); }

    static void Given(const Rows& rows) { WriteBytes(kKeyFile, OrderKeyFile(rows)); }

    static void GivenToggleKey(const std::string& setting)
    {
        WriteBytes(kToggleFile, "[Hot]\r\n124_0=" + setting + "\r\n");
    }

    /// Opens the page, lets `work` use it and leaves by a button.
    static void Run(int button, const std::function<void(Trader&, KeyPage&)>& work)
    {
        TOParam record = {};
        RunSettingsWindow(record, ParamPageOptionsKeys,
                          [&](Trader& trader)
                          {
                              KeyPage page(trader, {140, 60, 60, 80, 40, 80, 220});
                              if (page.Grid())
                                  work(trader, page);
                              trader.ClickWindow(GetDlgItem(trader.Window(), button));
                          });
    }

    static void Click(Trader& trader, const KeyPage& page, int button)
    {
        trader.ClickWindow(GetDlgItem(page.Page(), button));
    }

    /// From the list of entries to the grid, by Tab alone.
    static void TabToGrid(Trader& trader, const KeyPage& page)
    {
        for (int i = 0; i < 20 && trader.Focus() != page.Grid(); ++i)
            trader.Key(VK_TAB);
        ASSERT_EQ(page.Grid(), trader.Focus());
    }

    static void WheelDown(Trader& trader)
    {
        mouse_event(MOUSEEVENTF_WHEEL, 0, 0, static_cast<DWORD>(-120), 0);
        trader.Settle();
    }

    /// Types a quantity into the volume box that has come up, and leaves the box.
    static void AnswerVolume(Trader& trader, const std::string& text, int button)
    {
        const HWND window = WaitForPopup(trader.Window());
        ASSERT_TRUE(window);
        Trader box(window);
        box.Settle();
        EXPECT_EQ("数量设置", box.Text(window));
        EXPECT_EQ("1", box.Text(IDC_VOLUME));
        box.Type(IDC_VOLUME, text);
        if (button == IDOK)
            box.Click(IDOK);
        else
            box.Key(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return !IsWindow(window); }));
        trader.Settle();
    }

private:
    static unsigned long ZORVANE_CALL Answer(unsigned int request, unsigned int argument, long)
    {
        if (request == ZorvaneHostHotKeyFolder)
            strcpy(reinterpret_cast<char*>(argument), ".\\cfg\\trade");
        return 0;
    }
};

} // namespace

// ---- The page

TEST_F(KeyboardOrder, ShowsItsControlsAndRows)
{
    Given({Key(0, 'A'), Key(1, 'B'), Action(9)});
    Run(IDCANCEL,
        [](Trader& trader, KeyPage& page)
        {
            EXPECT_EQ("Ctrl + X 切换键盘下单", trader.Text(IDC_KEY_FRAME));
            EXPECT_EQ("添加", trader.Text(GetDlgItem(page.Page(), IDC_ADD_KEY)));
            EXPECT_EQ("删除", trader.Text(IDC_REMOVE_KEY));
            EXPECT_EQ(3, page.RowsOfBar());
            EXPECT_FALSE(page.IsEditOpen());
            EXPECT_FALSE(page.IsComboOpen());
            EXPECT_EQ(IDC_KEY_GRID, GetDlgCtrlID(page.Grid()));
            EXPECT_TRUE(GetWindowLongA(page.Edit(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE);

            RECT frame, grid;
            GetWindowRect(trader.Control(IDC_KEY_FRAME), &frame);
            GetWindowRect(page.Grid(), &grid);
            RECT common;
            IntersectRect(&common, &frame, &grid);
            EXPECT_TRUE(EqualRect(&common, &grid)) << "the grid stands in the frame";
        });
}

TEST_F(KeyboardOrder, CellsInUseShowTextAndArrow)
{
    OrderKey sell = Key(0, 'A');
    sell.side = '1';
    Given({Key(0, 'B'), sell, Action(9), Action(16)});
    Run(IDCANCEL,
        [](Trader&, KeyPage& page)
        {
            for (int column : {kSide, kOpenClose, kPrice, kCovered, kAction})
            {
                EXPECT_GT(page.Ink(column, 0), 0) << column;
                // The arrow is 14 wide and ends 4 before the cell.
                const RECT cell = page.Cell(column, 0);
                const double width = cell.right - cell.left;
                EXPECT_GT(page.Ink(column, 0, 1 - 18 / width, 1 - 4 / width), 20) << column;
                EXPECT_EQ(0, page.Ink(column, 0, 1 - 4 / width, 1)) << column;
            }
            EXPECT_GT(page.Ink(kKey, 0, 0, 0.2), 0);
            EXPECT_EQ(0, page.Ink(kKey, 0, 0.5, 1));
            EXPECT_EQ(0, page.Ink(kTicks, 0, 0, 0.4)) << "the number stands at the right";
            EXPECT_GT(page.Ink(kTicks, 0, 0.5, 1), 0);
            // Buy stands at the left, sell a character further.
            EXPECT_GT(page.Ink(kSide, 0, 0, 0.25), 0);
            EXPECT_EQ(0, page.Ink(kSide, 1, 0, 0.25));
            EXPECT_GT(page.Ink(kSide, 1, 0.25, 0.6), 0);

            for (int row : {2, 3})
            {
                for (int column = kSide; column <= kCovered; ++column)
                    EXPECT_EQ(0, page.Ink(column, row)) << row << " " << column;
                EXPECT_GT(page.Ink(kAction, row), 0);
            }
            EXPECT_EQ(0, page.Ink(kAction, 4)) << "below the last row";
        });
}

TEST_F(KeyboardOrder, WithoutTheArrowsFileThereAreTextsOnly)
{
    const std::string file = "skin\\经典黑色\\Trade\\kbo.bmp";
    const std::string bytes = ReadBytes(file);
    ASSERT_FALSE(bytes.empty());
    Given({Key(0, 'A')});
    // In a process that has shown the page before, the bitmap is kept: the file must not be needed.
    RemoveTree(file);
    Run(IDCANCEL, [](Trader&, KeyPage& page) { EXPECT_GT(page.Ink(kAction, 0, 0, 0.5), 0); });
    WriteBytes(file, bytes);
}

TEST_F(KeyboardOrder, TheFrameNamesTheClientsKey)
{
    const struct
    {
        const char* setting;
        const char* title;
    } cases[] = {
        {"[Alt]+[65]", "Alt + A 切换键盘下单"},       {"[Ctrl]+[112]", "Ctrl + p 切换键盘下单"},
        {"[Ctrl]+[Alt]+[88]", "Alt +  切换键盘下单"}, {"[Alt]+[Ctrl]+[88]", "Ctrl +  切换键盘下单"},
        {"[CTRL]+[8]+[90]", "CTRL + Z 切换键盘下单"}, {"none", " 切换键盘下单"},
    };
    for (const auto& c : cases)
    {
        GivenToggleKey(c.setting);
        Run(IDCANCEL,
            [&c](Trader& trader, KeyPage&) { EXPECT_EQ(c.title, trader.Text(IDC_KEY_FRAME)); });
    }
    // 123 bytes are read: the last bracket of this one is the 124th.
    GivenToggleKey(std::string(119, ' ') + "[65]");
    Run(IDCANCEL,
        [](Trader& trader, KeyPage&) { EXPECT_EQ("A 切换键盘下单", trader.Text(IDC_KEY_FRAME)); });
    GivenToggleKey("x" + std::string(119, '-') + "[65]");
    Run(IDCANCEL,
        [](Trader& trader, KeyPage&) { EXPECT_EQ(" 切换键盘下单", trader.Text(IDC_KEY_FRAME)); });
}

// ---- Files

TEST_F(KeyboardOrder, WhatIsNotTouchedStaysByteForByte)
{
    OrderKey odd;
    odd.action = 99;
    odd.modifiers = 0xFF;
    odd.vk = 220;
    odd.side = 'x';
    odd.price = std::string(33, 'p');
    odd.ticks = -2147483647;
    odd.covered = 7;
    odd.multiple = -1;
    odd.openClose = '2';
    odd.rest = std::string(31, '\x5A');
    const std::string bytes = OrderKeyFile({Key(0, 'A'), odd, Action(5), Action(16)});
    WriteBytes(kKeyFile, bytes);
    for (int button : {IDCANCEL, IDOK})
    {
        Run(button,
            [](Trader&, KeyPage& page)
            {
                // Each cell is opened and left again.
                for (int column = kKey; column <= kAction; ++column)
                {
                    page.ClickCell(column, 1);
                    EXPECT_TRUE(page.IsEditOpen() || page.IsComboOpen()) << column;
                    EXPECT_EQ(-1, page.IsComboOpen() ? page.ComboItem() : -1) << column;
                    page.ClickElsewhere();
                    EXPECT_FALSE(page.IsEditOpen() || page.IsComboOpen()) << column;
                }
            });
        EXPECT_EQ(bytes, ReadBytes(kKeyFile));
    }
}

TEST_F(KeyboardOrder, APieceOfARowIsDroppedAndAForeignFileIsEmpty)
{
    WriteBytes(kKeyFile, OrderKeyFile({Key(0, 'A')}) + "piece");
    Run(IDOK, [](Trader&, KeyPage& page) { EXPECT_EQ(1, page.RowsOfBar()); });
    EXPECT_EQ(OrderKeyFile({Key(0, 'A')}), ReadBytes(kKeyFile));

    WriteBytes(kKeyFile, Word(2) + Key(0, 'A').Bytes());
    Run(IDOK, [](Trader&, KeyPage& page) { EXPECT_EQ(0, page.RowsOfBar()); });
    EXPECT_EQ(OrderKeyFile({}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, AChangeIsLostOnCancelAndAPageNeverShownWritesNothing)
{
    const std::string bytes = OrderKeyFile({Key(0, 'A')}) + "piece";
    WriteBytes(kKeyFile, bytes);
    Run(IDCANCEL,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kKey, 0);
            page.Press({}, 'B');
            Click(trader, page, IDC_ADD_KEY);
            EXPECT_EQ(2, page.RowsOfBar());
        });
    EXPECT_EQ(bytes, ReadBytes(kKeyFile));

    TOParam record = {};
    RunSettingsWindow(record, ParamPageOptionsChase, [](Trader& trader) { trader.Click(IDOK); });
    EXPECT_EQ(bytes, ReadBytes(kKeyFile));
}

// ---- Every column

TEST_F(KeyboardOrder, EveryColumnIsEditedByMouse)
{
    Given({Key(0, 'A'), Key(0, 'B')});
    Run(IDOK,
        [](Trader&, KeyPage& page)
        {
            page.ClickCell(kSide, 1);
            EXPECT_EQ((std::vector<std::string>{"买", "卖"}), page.ComboItems());
            EXPECT_EQ(0, page.ComboItem());
            page.PickByMouse(1);
            EXPECT_TRUE(page.IsComboOpen()) << "the list belongs to the combo box";
            page.ClickCell(kOpenClose, 1);
            EXPECT_EQ((std::vector<std::string>{"开仓", "平仓", "自动"}), page.ComboItems());
            EXPECT_EQ(0, page.ComboItem());
            page.PickByMouse(2);
            page.ClickCell(kPrice, 1);
            EXPECT_EQ((std::vector<std::string>{"最新价", "对手价", "挂单价"}), page.ComboItems());
            EXPECT_EQ(1, page.ComboItem());
            page.PickByMouse(2);
            page.ClickCell(kCovered, 1);
            EXPECT_EQ((std::vector<std::string>{"非备兑", "备兑"}), page.ComboItems());
            EXPECT_EQ(0, page.ComboItem());
            page.PickByMouse(1);
            page.ClickCell(kAction, 1);
            EXPECT_EQ((std::vector<std::string>{"无", "发出报单(带确认)", "发出报单(不带确认)",
                                                "增下单倍数", "减下单倍数", "撤最近一条可撤委托",
                                                "撤所有可撤委托", "认购认沽切换", "合约月份切换",
                                                "行权价变大切换", "行权价变小切换"}),
                      page.ComboItems());
            EXPECT_EQ(2, page.ComboItem());
            page.PickByMouse(1);
            // "确定" is a press elsewhere as well.
        });
    OrderKey changed = Key(0, 'B');
    changed.side = '1';
    changed.openClose = '3';
    changed.price = "挂单价";
    changed.covered = 1;
    changed.action = 1;
    EXPECT_EQ(OrderKeyFile({Key(0, 'A'), changed}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, EveryColumnIsEditedByKeyboard)
{
    Given({Key(0, 'A')});
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kKey, 0);
            EXPECT_EQ("A", page.EditText());
            page.Press({VK_CONTROL}, 'K');
            EXPECT_EQ("Ctrl + K", page.EditText());
            page.ClickCell(kSide, 0);
            trader.Key(VK_DOWN);
            page.ClickCell(kOpenClose, 0);
            trader.Key(VK_DOWN);
            page.ClickCell(kPrice, 0);
            trader.Key(VK_UP);
            page.ClickCell(kTicks, 0);
            EXPECT_EQ("0", page.EditText());
            for (WORD key : {WORD(VK_OEM_MINUS), WORD('1'), WORD('2')})
                trader.Key(key);
            EXPECT_EQ("-12", page.EditText());
            page.ClickCell(kCovered, 0);
            trader.Key(VK_DOWN);
            page.ClickCell(kAction, 0);
            trader.Key(VK_END);
            page.ClickElsewhere();
        });
    OrderKey changed = Key(1, 'K');
    changed.side = '1';
    changed.openClose = '1';
    changed.price = "最新价";
    changed.ticks = -12;
    changed.covered = 1;
    changed.action = 16;
    EXPECT_EQ(OrderKeyFile({changed}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, EveryColumnIsEditedWithoutTheMouse)
{
    Given({Key(0, 'A'), Key(0, 'B')});
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            // Alt by itself leaves a cell and gives the keyboard back to the grid.
            const auto leave = [&]
            {
                trader.Key(VK_MENU);
                EXPECT_FALSE(page.IsEditOpen() || page.IsComboOpen());
                EXPECT_EQ(page.Grid(), trader.Focus());
                EXPECT_FALSE(page.IsMenuOpen());
            };
            const auto change = [&](WORD key)
            {
                trader.Key(VK_RIGHT);
                trader.Key(VK_F2);
                EXPECT_TRUE(page.IsComboOpen());
                trader.Key(key);
                leave();
            };
            TabToGrid(trader, page);
            trader.Key(VK_HOME);
            trader.Key(VK_DOWN);
            trader.Key(VK_SPACE);
            EXPECT_EQ("B", page.EditText());
            page.Press({VK_MENU}, 'K');
            EXPECT_EQ("Alt + K", page.EditText());
            EXPECT_TRUE(page.IsEditOpen()) << "Alt was held for another key";
            leave();
            change(VK_DOWN);
            change(VK_END);
            change(VK_UP);
            trader.Key(VK_RIGHT);
            trader.Key(VK_SPACE);
            EXPECT_EQ("0", page.EditText());
            trader.Key('7');
            leave();
            change(VK_DOWN);
            change(VK_END);
        });
    OrderKey changed = Key(2, 'K');
    changed.side = '1';
    changed.openClose = '3';
    changed.price = "最新价";
    changed.ticks = 7;
    changed.covered = 1;
    changed.action = 16;
    EXPECT_EQ(OrderKeyFile({Key(0, 'A'), changed}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, OpensOverTheCell)
{
    Given({Key(0, 'A'), Key(0, 'B')});
    Run(IDCANCEL,
        [](Trader&, KeyPage& page)
        {
            for (int column = kKey; column <= kAction; ++column)
            {
                page.ClickCell(column, 1);
                RECT control;
                GetWindowRect(page.IsEditOpen() ? page.Edit() : page.Combo(), &control);
                MapWindowPoints(nullptr, page.Grid(), reinterpret_cast<POINT*>(&control), 2);
                RECT cell = page.Cell(column, 1);
                const bool isEdit = column == kKey || column == kTicks;
                EXPECT_EQ(isEdit, page.IsEditOpen()) << column;
                EXPECT_EQ(!isEdit, page.IsComboOpen()) << column;
                cell.left += !isEdit;
                cell.right -= column == kSide || column == kOpenClose;
                EXPECT_TRUE(EqualRect(&cell, &control))
                    << column << ": " << control.left << "," << control.top << "," << control.right
                    << "," << control.bottom;
            }
        });
}

TEST_F(KeyboardOrder, CellsThatAreNotInUseStayClickable)
{
    Given({Action(9)});
    Run(IDOK,
        [](Trader&, KeyPage& page)
        {
            page.ClickCell(kPrice, 0);
            EXPECT_EQ(1, page.ComboItem());
            page.PickByMouse(0);
            page.ClickElsewhere();
            EXPECT_EQ(0, page.Ink(kPrice, 0));
        });
    OrderKey changed = Action(9);
    changed.price = "最新价";
    EXPECT_EQ(OrderKeyFile({changed}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, AnItemThatTheMousePassedOverIsNotPicked)
{
    Given({Key(0, 'A')});
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kAction, 0);
            RECT face;
            GetClientRect(page.Combo(), &face);
            trader.ClickAt(page.Combo(), face.right - 8, face.bottom / 2);
            COMBOBOXINFO info = {};
            info.cbSize = sizeof(info);
            GetComboBoxInfo(page.Combo(), &info);
            POINT over = {12, 20};
            ClientToScreen(info.hwndList, &over);
            SetCursorPos(over.x, over.y);
            trader.Settle();
            EXPECT_TRUE(IsWindowVisible(info.hwndList));
            page.ClickElsewhere();
            EXPECT_FALSE(page.IsComboOpen());
            EXPECT_FALSE(IsWindowVisible(info.hwndList));
        });
    EXPECT_EQ(OrderKeyFile({Key(0, 'A')}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, AnActionThatIsNotOnOfferIsKept)
{
    Given({Action(5)});
    Run(IDOK,
        [](Trader&, KeyPage& page)
        {
            EXPECT_GT(page.Ink(kAction, 0, 0, 0.5), 0);
            page.ClickCell(kAction, 0);
            EXPECT_EQ(-1, page.ComboItem());
            page.ClickElsewhere();
        });
    EXPECT_EQ(OrderKeyFile({Action(5)}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, ScrollingClosesTheOpenCell)
{
    Given(Rows(40));
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kTicks, 0);
            trader.Key('7');
            WheelDown(trader);
            EXPECT_FALSE(page.IsEditOpen());
            WheelDown(trader);
            // There are systems whose edits keep the first notch for themselves.
            const int scrolled = page.FirstRow();
            EXPECT_GE(scrolled, 1);
            page.ClickCell(kTicks, 2);
            trader.Key('8');
            RECT grid;
            GetWindowRect(page.Grid(), &grid);
            trader.ClickAt(nullptr, grid.right - 8, grid.bottom - 8);
            EXPECT_FALSE(page.IsEditOpen());
            EXPECT_EQ(scrolled + 1, page.FirstRow());
        });
    Rows rows(40);
    rows[0].ticks = 7;
    rows[2].ticks = 8;
    EXPECT_EQ(OrderKeyFile(rows), ReadBytes(kKeyFile));
}

// ---- Capturing keys

TEST_F(KeyboardOrder, CapturesKeysWithTheModifiersHeld)
{
    Given(Rows(6));
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            const struct
            {
                std::vector<WORD> modifiers;
                WORD key;
                const char* name;
            } keys[] = {
                {{}, VK_F5, "F5"},
                {{VK_MENU}, 'X', "Alt + X"},
                {{VK_CONTROL, VK_MENU, VK_SHIFT}, VK_NEXT, "Ctrl + Alt + Shift + Page Down"},
                {{VK_SHIFT}, VK_OEM_1, "Shift + ;"},
                {{VK_MENU}, VK_F4, "Alt + F4"},
                {{}, VK_F10, "F10"},
            };
            int row = 0;
            for (const auto& key : keys)
            {
                page.ClickCell(kKey, row++);
                page.Press(key.modifiers, key.key);
                EXPECT_EQ(key.name, page.EditText());
                EXPECT_FALSE(page.IsMenuOpen()) << key.name;
                EXPECT_TRUE(trader.IsOpen()) << key.name;
            }
        });
    EXPECT_EQ(OrderKeyFile({Key(0, VK_F5), Key(2, 'X'), Key(7, VK_NEXT), Key(4, VK_OEM_1),
                            Key(2, VK_F4), Key(0, VK_F10)}),
              ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, KeysOfTheDialogAreCapturedAndCloseNothing)
{
    Given({Key(0, 'A'), Key(0, 'B'), Key(0, 'C'), Key(0, 'D'), Key(0, 'E')});
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            const struct
            {
                std::vector<WORD> modifiers;
                WORD key;
                const char* name;
            } keys[] = {
                {{}, VK_RETURN, "回车"},   {{}, VK_ESCAPE, ""},     {{}, VK_TAB, ""},
                {{VK_MENU}, VK_SPACE, ""}, {{}, VK_LEFT, "向左键"},
            };
            int row = 0;
            for (const auto& key : keys)
            {
                page.ClickCell(kKey, row++);
                page.Press(key.modifiers, key.key);
                EXPECT_EQ(key.name, page.EditText());
                EXPECT_TRUE(page.IsEditOpen());
                EXPECT_FALSE(page.IsMenuOpen());
                EXPECT_TRUE(trader.IsOpen());
            }
            page.ClickElsewhere();
            trader.Key(VK_RETURN);
            trader.Key(VK_ESCAPE);
            EXPECT_TRUE(trader.IsOpen());
        });
    // Keys without a name leave the row without a key.
    EXPECT_EQ(OrderKeyFile({Key(0, VK_RETURN), Key(0, 0), Key(0, 0), Key(0, 0), Key(0, VK_LEFT)}),
              ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, ModifiersAloneChangeNothing)
{
    Given({Key(1, 'A')});
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kKey, 0);
            for (WORD key : {VK_CONTROL, VK_SHIFT, VK_MENU})
            {
                trader.Key(key);
                EXPECT_EQ("Ctrl + A", page.EditText()) << key;
                EXPECT_FALSE(page.IsMenuOpen()) << key;
            }
        });
    EXPECT_EQ(OrderKeyFile({Key(1, 'A')}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, ADuplicateClearsTheRow)
{
    Given({Key(1, 'A'), Key(0, 'B'), Key(0, 'C')});
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kKey, 1);
            page.Press({}, 'A');
            EXPECT_EQ("A", page.EditText()) << "without Ctrl it is another key";
            page.Press({VK_CONTROL}, 'A');
            EXPECT_EQ(kDuplicate, page.AnswerBox());
            EXPECT_EQ("", page.EditText());
            EXPECT_FALSE(FindWindowA("#32770", "提示")) << "and no clash is told";
            EXPECT_TRUE(trader.IsOpen());
            page.ClickCell(kKey, 2);
            page.Press({}, 'C');
            EXPECT_EQ("C", page.EditText()) << "the row's own key is no duplicate";
        });
    EXPECT_EQ(OrderKeyFile({Key(1, 'A'), Key(0, 0), Key(0, 'C')}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, TheTogglesKeyClearsTheRow)
{
    Given({Key(0, 'A')});
    Run(IDOK,
        [](Trader&, KeyPage& page)
        {
            page.ClickCell(kKey, 0);
            page.Press({VK_CONTROL}, 'X');
            EXPECT_EQ(kClash, page.AnswerBox());
            EXPECT_EQ("", page.EditText());
        });
    EXPECT_EQ(OrderKeyFile({Key(0, 0)}), ReadBytes(kKeyFile));

    GivenToggleKey("[SHIFT]+[122]"); // reads "SHIFT + z"
    Run(IDOK,
        [](Trader&, KeyPage& page)
        {
            page.ClickCell(kKey, 0);
            page.Press({VK_SHIFT}, 'Z');
            EXPECT_EQ(kClash, page.AnswerBox());
            page.Press({VK_CONTROL}, 'X');
            EXPECT_EQ("Ctrl + X", page.EditText());
        });
    EXPECT_EQ(OrderKeyFile({Key(1, 'X')}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, WithoutAToggleKeyNothingClashesWithIt)
{
    GivenToggleKey("none");
    Given({Key(0, 'A'), Key(0, 'B')});
    Run(IDOK,
        [](Trader&, KeyPage& page)
        {
            page.ClickCell(kKey, 1);
            page.Press({}, 'A');
            EXPECT_NE(kClash, page.AnswerBox());
            EXPECT_EQ("", page.EditText());
            EXPECT_EQ("", page.AnswerBox());
        });
    EXPECT_EQ(OrderKeyFile({Key(0, 'A'), Key(0, 0)}), ReadBytes(kKeyFile));
}

// ---- Ticks

TEST_F(KeyboardOrder, TicksTakeNumbersOnly)
{
    Rows rows(5);
    rows[2].ticks = 9;
    Given(rows);
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kTicks, 0);
            for (WORD key : {WORD(VK_OEM_MINUS), WORD('5')})
                trader.Key(key);
            EXPECT_EQ("-5", page.EditText());
            page.ClickCell(kTicks, 1);
            for (WORD key : {WORD('A'), WORD(VK_RETURN), WORD(VK_ESCAPE), WORD(VK_TAB), WORD('7'),
                             WORD(VK_OEM_PERIOD), WORD(VK_SUBTRACT), WORD('3'), WORD(VK_BACK),
                             WORD(VK_BACK), WORD('9')})
                trader.Key(key);
            EXPECT_EQ("79", page.EditText());
            EXPECT_TRUE(trader.IsOpen());
            page.ClickCell(kTicks, 2);
            trader.Key(VK_DELETE);
            EXPECT_EQ("", page.EditText());
            page.ClickCell(kTicks, 3);
            SetWindowTextA(page.Edit(), "99999999999999999999999999999999999");
            page.ClickCell(kTicks, 4);
            SetWindowTextA(page.Edit(), (std::string(30, '0') + "15").c_str());
            page.ClickElsewhere();
        });
    rows[0].ticks = -5;
    rows[1].ticks = 79;
    rows[2].ticks = 0;
    rows[4].ticks = 1; // of more than 31 characters the rest does not count
    rows[3].ticks = 2147483647;
    EXPECT_EQ(OrderKeyFile(rows), ReadBytes(kKeyFile));
}

// ---- The volume box

TEST_F(KeyboardOrder, TheMultipleIsAskedForWhenItsActionIsPicked)
{
    OrderKey first = Action(2);
    first.multiple = 77;
    Given({first, Action(2), Action(2)});
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kAction, 0);
            page.PickByMouse(kRaiseItem);
            AnswerVolume(trader, "12", IDOK);
            page.ClickCell(kAction, 1);
            page.PickByMouse(kLowerItem);
            AnswerVolume(trader, "12", IDCANCEL);
            page.ClickCell(kAction, 2);
            page.PickByMouse(kCancelAllItem);
            EXPECT_EQ(trader.Window(), GetLastActivePopup(trader.Window()));
            page.ClickElsewhere();
        });
    OrderKey raise = Action(9), lower = Action(10);
    raise.multiple = 12;
    EXPECT_EQ(OrderKeyFile({raise, lower, Action(12)}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, AnActionWithAMultipleIsPickedWithoutTheMouse)
{
    for (const int item : {kRaiseItem, kLowerItem})
    {
        Given({Key(0, 'A')});
        Run(IDOK,
            [item](Trader& trader, KeyPage& page)
            {
                TabToGrid(trader, page);
                trader.Key(VK_DOWN);
                for (int column = kKey; column < kAction; ++column)
                    trader.Key(VK_RIGHT);
                trader.Key(VK_SPACE);
                page.Press({VK_MENU}, VK_DOWN);
                EXPECT_TRUE(SendMessageA(page.Combo(), CB_GETDROPPEDSTATE, 0, 0));
                EXPECT_TRUE(page.IsComboOpen()) << "Alt was held for another key";
                for (int i = page.ComboItem(); i < item; ++i)
                    trader.Key(VK_DOWN);
                trader.Key(VK_RETURN);
                AnswerVolume(trader, "5", IDOK);
                trader.Key(VK_MENU);
                EXPECT_FALSE(page.IsComboOpen());
            });
        OrderKey changed = Key(0, 'A');
        changed.action = item == kRaiseItem ? 9 : 10;
        changed.multiple = 5;
        EXPECT_EQ(OrderKeyFile({changed}), ReadBytes(kKeyFile));
    }
}

TEST_F(KeyboardOrder, OtherColumnsAskForNoMultiple)
{
    Given({Action(2)});
    Run(IDCANCEL,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kPrice, 0);
            page.PickByMouse(2);
            EXPECT_EQ(trader.Window(), GetLastActivePopup(trader.Window()));
        });
}

TEST_F(KeyboardOrder, TheVolumeBoxTakesASignedNumber)
{
    Given({Action(2), Action(2), Action(2)});
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            const struct
            {
                std::vector<WORD> keys;
                const char* text;
            } typed[] = {
                {{'0', '5'}, "5"},
                {{VK_OEM_MINUS, '5', '0'}, "-50"},
                {{'A', '7', VK_OEM_PERIOD, '8', VK_BACK, '0'}, "70"},
            };
            int row = 0;
            for (const auto& t : typed)
            {
                page.ClickCell(kAction, row++);
                page.PickByMouse(kRaiseItem);
                const HWND window = WaitForPopup(trader.Window());
                ASSERT_TRUE(window);
                Trader box(window);
                box.Settle();
                EXPECT_TRUE(box.ShowsLabel("数量："));
                EXPECT_EQ("确定", box.Text(IDOK));
                box.Type(IDC_VOLUME, "");
                for (WORD key : t.keys)
                    box.Key(key);
                EXPECT_EQ(t.text, box.Text(IDC_VOLUME));
                box.Key(VK_RETURN);
                EXPECT_TRUE(WaitUntil([window] { return !IsWindow(window); }));
                trader.Settle();
            }
        });
    Rows rows(3, Action(9));
    rows[0].multiple = 5;
    rows[1].multiple = -50;
    rows[2].multiple = 70;
    EXPECT_EQ(OrderKeyFile(rows), ReadBytes(kKeyFile));
}

// ---- Rows

TEST_F(KeyboardOrder, AddsARowAtTheEndInView)
{
    Given(Rows(30));
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            Click(trader, page, IDC_ADD_KEY);
            EXPECT_EQ(31, page.RowsOfBar());
            EXPECT_TRUE(page.IsHighlighted(30));
            RECT client;
            GetClientRect(page.Grid(), &client);
            EXPECT_LE(page.Cell(kKey, 30).bottom, client.bottom) << "in view as a whole";
            page.ClickCell(kKey, 30);
            page.Press({}, 'Q');
            Click(trader, page, IDC_ADD_KEY);
            EXPECT_TRUE(page.IsHighlighted(31));
            EXPECT_FALSE(page.IsHighlighted(30));
        });
    Rows rows(32);
    rows[30].vk = 'Q';
    EXPECT_EQ(OrderKeyFile(rows), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, RemovesTheSelectedRow)
{
    Given({Key(0, 'A'), Key(0, 'B'), Key(0, 'C')});
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            Click(trader, page, IDC_REMOVE_KEY);
            EXPECT_EQ(3, page.RowsOfBar()) << "no row is selected yet";
            page.ClickCell(kTicks, 1);
            trader.Key('4');
            Click(trader, page, IDC_REMOVE_KEY);
            EXPECT_EQ(2, page.RowsOfBar());
            EXPECT_TRUE(page.IsHighlighted(1));
            EXPECT_FALSE(page.IsEditOpen());
            Click(trader, page, IDC_REMOVE_KEY);
            EXPECT_EQ(1, page.RowsOfBar());
            Click(trader, page, IDC_REMOVE_KEY);
            EXPECT_EQ(1, page.RowsOfBar()) << "the selected row is gone";
            page.ClickCell(kKey, 0);
            Click(trader, page, IDC_REMOVE_KEY);
            EXPECT_EQ(0, page.RowsOfBar());
            Click(trader, page, IDC_REMOVE_KEY);
            Click(trader, page, IDC_ADD_KEY);
            EXPECT_EQ(1, page.RowsOfBar());
        });
    EXPECT_EQ(OrderKeyFile({OrderKey()}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, ARemovedRowIsBackAfterCancel)
{
    const std::string bytes = OrderKeyFile({Key(0, 'A'), Key(0, 'B')});
    WriteBytes(kKeyFile, bytes);
    Run(IDCANCEL,
        [](Trader& trader, KeyPage& page)
        {
            page.ClickCell(kKey, 0);
            Click(trader, page, IDC_REMOVE_KEY);
            EXPECT_EQ(1, page.RowsOfBar());
        });
    EXPECT_EQ(bytes, ReadBytes(kKeyFile));
    Run(IDOK, [](Trader&, KeyPage& page) { EXPECT_EQ(2, page.RowsOfBar()); });
    EXPECT_EQ(bytes, ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, AnOpenCellIsTakenOverBeforeTheKeyboardConfirms)
{
    Given({Key(0, 'A')});
    TOParam record = {};
    RunSettingsWindow(record, ParamPageOptionsKeys,
                      [](Trader& trader)
                      {
                          KeyPage page(trader, {140, 60, 60, 80, 40, 80, 220});
                          page.ClickCell(kSide, 0);
                          trader.Key(VK_DOWN);
                          // Out of the page by Tab, to the button, without a press of the mouse.
                          const HWND ok = GetDlgItem(trader.Window(), IDOK);
                          GUITHREADINFO info = {};
                          info.cbSize = sizeof(info);
                          for (int i = 0; i < 12 && info.hwndFocus != ok; ++i)
                          {
                              trader.Key(VK_TAB);
                              GetGUIThreadInfo(GetWindowThreadProcessId(ok, nullptr), &info);
                          }
                          EXPECT_EQ(ok, info.hwndFocus);
                          trader.Key(VK_SPACE);
                      });
    OrderKey sell = Key(0, 'A');
    sell.side = '1';
    EXPECT_EQ(OrderKeyFile({sell}), ReadBytes(kKeyFile));
}

TEST_F(KeyboardOrder, ThereAreNoDefaults)
{
    const std::string bytes = OrderKeyFile({Key(0, 'A'), Key(0, 'B')});
    WriteBytes(kKeyFile, bytes);
    Run(IDOK,
        [](Trader& trader, KeyPage& page)
        {
            trader.ClickWindow(GetDlgItem(trader.Window(), IDC_RESTORE_DEFAULTS));
            EXPECT_EQ("键盘下单无默认设置! (information)", page.AnswerBox());
            EXPECT_EQ(2, page.RowsOfBar());
        });
    EXPECT_EQ(bytes, ReadBytes(kKeyFile));
    // The general page was made on the way, but is not the current one: it keeps what it has.
    EXPECT_EQ("0", Stored("uOVolumeLimit"));
}

namespace
{

/// How long the page takes to open, and to scroll through the rows of one view, in milliseconds.
struct Delays
{
    DWORD opening = 0;
    DWORD scrolling = 0;
};

} // namespace

TEST_F(KeyboardOrder, FiveHundredRowsOpenAndScrollAsFewDo)
{
    constexpr int kSteps = 20;
    Delays few, many;
    Rows rows;
    for (Delays* delays : {&few, &many})
    {
        rows.assign(delays == &few ? 40 : 500, OrderKey());
        for (size_t i = 0; i < rows.size(); ++i)
            rows[i].ticks = static_cast<int>(i);
        Given(rows);
        const int last = static_cast<int>(rows.size()) - 1;
        const DWORD start = GetTickCount();
        Run(IDOK,
            [=](Trader& trader, KeyPage& page)
            {
                const DWORD opened = GetTickCount();
                delays->opening = opened - start;
                EXPECT_EQ(last + 1, page.RowsOfBar());
                for (int i = 0; i < kSteps; ++i)
                    SendMessageA(page.Grid(), WM_VSCROLL, SB_LINEDOWN, 0);
                delays->scrolling = GetTickCount() - opened;
                EXPECT_EQ(kSteps, page.FirstRow());

                SendMessageA(page.Grid(), WM_VSCROLL, SB_RIGHT, 0);
                RECT client;
                GetClientRect(page.Grid(), &client);
                EXPECT_LE(page.Cell(kKey, last).bottom, client.bottom);
                page.ClickCell(kTicks, last);
                EXPECT_EQ(std::to_string(last), page.EditText());
                trader.Key('3');
            });
        rows[last].ticks = 3;
        EXPECT_EQ(OrderKeyFile(rows), ReadBytes(kKeyFile));
    }
    EXPECT_LT(many.opening, 3 * few.opening + 500);
    EXPECT_LT(many.scrolling, 3 * few.scrolling + 500);
}

// The window without a mouse: Tab walks every page as one reads it, and each control does its work by
// keyboard. The tests know no page by name, so they hold for those to come.
#include "resources/resource.h"
#include "tests/window/FactoryRecord.h"
#include "tests/window/ModuleTest.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <vector>

namespace
{

constexpr int kMostControls = 100; // of a page
constexpr int kSpinColumn = 20;    // at least so wide
const char kGridClass[] = "OWERLISTVIEW";

std::string ClassOf(HWND window)
{
    char name[64] = "";
    GetClassNameA(window, name, sizeof(name));
    return name;
}

bool IsClass(HWND window, const char* name)
{
    return _stricmp(ClassOf(window).c_str(), name) == 0;
}

bool IsField(HWND window)
{
    return IsClass(window, "Edit") || ClassOf(window).find("RichEdit") == 0;
}

bool IsButton(HWND window, LONG type)
{
    return IsClass(window, "Button") && (GetWindowLongA(window, GWL_STYLE) & BS_TYPEMASK) == type;
}

bool IsCheckBox(HWND window)
{
    return IsButton(window, BS_AUTOCHECKBOX);
}

bool IsRadio(HWND window)
{
    return IsButton(window, BS_AUTORADIOBUTTON);
}

bool TakesInput(HWND window)
{
    if (!IsWindowVisible(window) || !IsWindowEnabled(window))
        return false;
    return IsField(window) || IsClass(window, "ComboBox") || IsClass(window, "ListBox") ||
           IsClass(window, kGridClass) ||
           (IsClass(window, "Button") && !IsButton(window, BS_GROUPBOX));
}

std::string TextOf(HWND window)
{
    char text[512] = "";
    SendMessageA(window, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
    return text;
}

std::string Describe(HWND window)
{
    return ClassOf(window) + " " + std::to_string(GetDlgCtrlID(window)) + " '" + TextOf(window) +
           "'";
}

BOOL CALLBACK AddInput(HWND window, LPARAM list)
{
    if (TakesInput(window))
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

/// All controls of a page that take input.
std::vector<HWND> InputsOf(HWND page)
{
    std::vector<HWND> inputs;
    EnumChildWindows(page, AddInput, reinterpret_cast<LPARAM>(&inputs));
    return inputs;
}

/// The dialog on show in a window; null when there is none.
HWND DialogOnShow(HWND window)
{
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (IsClass(child, "#32770") && IsWindowVisible(child))
            return child;
    return nullptr;
}

HWND FocusIn(HWND window)
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

/// The trader at the keyboard.
class Typist
{
public:
    explicit Typist(Trader& trader)
        : trader(trader)
    {
    }

    HWND Focus() const { return FocusIn(trader.Window()); }

    void Key(WORD key) { trader.Key(key); }

    void KeyWith(WORD held, WORD key)
    {
        keybd_event(static_cast<BYTE>(held), 0, 0, 0);
        Key(key);
        keybd_event(static_cast<BYTE>(held), 0, KEYEVENTF_KEYUP, 0);
        trader.Settle();
    }

    void Tab() { Key(VK_TAB); }
    void TabBack() { KeyWith(VK_SHIFT, VK_TAB); }

    /// Walks on by Tab until a control has the focus. @return whether it came to that
    bool WalkTo(HWND control)
    {
        for (int i = 0; i < kMostControls; ++i)
        {
            if (Focus() == control)
                return true;
            Tab();
        }
        return false;
    }

    HWND List() const { return GetDlgItem(trader.Window(), IDC_PAGE_LIST); }
    HWND Host() const { return DialogOnShow(trader.Window()); }

    /// Null in a host that is its only page.
    HWND Strip() const { return GetDlgItem(Host(), IDC_TAB_STRIP); }
    HWND Page() const { return Strip() ? DialogOnShow(Host()) : Host(); }

    /// Opens each page by keyboard: rows of the list by the arrow down, tabs by the arrow right.
    /// @return how many there are
    int VisitPages(const std::function<void(HWND page)>& visit)
    {
        int pages = 0;
        for (int row = 0; row < trader.ListCount(); ++row)
        {
            EXPECT_TRUE(WalkTo(List()));
            if (row > 0)
                Key(VK_DOWN);
            EXPECT_EQ(row, trader.SelectedRow());
            pages += VisitTabs(visit);
        }
        return pages;
    }

private:
    int VisitTabs(const std::function<void(HWND page)>& visit)
    {
        int pages = 0;
        HWND last = nullptr;
        while (Page() && Page() != last)
        {
            last = Page();
            visit(last);
            ++pages;
            if (!Strip())
                break;
            EXPECT_TRUE(WalkTo(Strip()));
            Key(VK_RIGHT);
        }
        return pages;
    }

    Trader& trader;
};

void AtTheKeyboard(const std::function<void(Typist&)>& work)
{
    TOParam record = FactoryRecord();
    RunSettingsWindow(record, ParamPagePublic,
                      [&](Trader& trader)
                      {
                          Typist typist(trader);
                          SetForegroundWindow(trader.Window());
                          trader.Settle();
                          work(typist);
                          EXPECT_TRUE(typist.WalkTo(GetDlgItem(trader.Window(), IDCANCEL)));
                          typist.Key(VK_SPACE);
                      });
}

/// What has the focus, step by step, as long as it is inside a page.
std::vector<HWND> Walk(Typist& typist, HWND page, const std::function<void()>& step)
{
    std::vector<HWND> walked;
    for (int i = 0; i < kMostControls; ++i)
    {
        step();
        if (!IsChild(page, typist.Focus()))
            break;
        walked.push_back(typist.Focus());
    }
    return walked;
}

RECT PlaceOf(HWND window)
{
    RECT place;
    GetWindowRect(window, &place);
    return place;
}

/// Two controls on one line of a page need not have one height.
bool IsReadBefore(HWND first, HWND second)
{
    const RECT a = PlaceOf(first);
    const RECT b = PlaceOf(second);
    const LONG apart = (b.top + b.bottom) / 2 - (a.top + a.bottom) / 2;
    const LONG lineHeight = std::min(a.bottom - a.top, b.bottom - b.top);
    return std::abs(apart) < lineHeight ? a.left < b.left : apart > 0;
}

void ExpectReadingOrder(const std::vector<HWND>& walked)
{
    for (size_t i = 1; i < walked.size(); ++i)
        EXPECT_TRUE(IsReadBefore(walked[i - 1], walked[i]))
            << Describe(walked[i - 1]) << " comes before " << Describe(walked[i]);
}

/// Tab leads to one radio button of a group, the arrows to the others.
bool IsReached(HWND input, const std::vector<HWND>& walked)
{
    if (std::find(walked.begin(), walked.end(), input) != walked.end())
        return true;
    return IsRadio(input) &&
           std::any_of(walked.begin(), walked.end(),
                       [input](HWND other)
                       { return IsRadio(other) && GetParent(other) == GetParent(input); });
}

void ExpectTheWholePageIsWalked(Typist& typist, HWND page)
{
    const HWND before = typist.Strip() ? typist.Strip() : typist.List();
    ASSERT_TRUE(typist.WalkTo(before));
    const std::vector<HWND> walked = Walk(typist, page, [&] { typist.Tab(); });
    for (HWND input : InputsOf(page))
        EXPECT_TRUE(IsReached(input, walked)) << "Tab never comes to " << Describe(input);
    ExpectReadingOrder(walked);

    std::vector<HWND> back = Walk(typist, page, [&] { typist.TabBack(); });
    EXPECT_EQ(before, typist.Focus());
    std::reverse(back.begin(), back.end());
    EXPECT_EQ(walked, back);
}

bool HasSpin(HWND field)
{
    RECT client;
    GetClientRect(field, &client);
    const RECT place = PlaceOf(field);
    return place.right - place.left - client.right > kSpinColumn;
}

LRESULT Ask(HWND control, UINT message)
{
    return SendMessageA(control, message, 0, 0);
}

/// The page may keep boxes exclusive: then one that is checked stays so.
void ExpectCheckBoxWorks(Typist& typist, HWND box)
{
    const LRESULT first = Ask(box, BM_GETCHECK);
    SendMessageA(box, BM_SETCHECK, BST_UNCHECKED, 0);
    typist.Key(VK_SPACE);
    EXPECT_EQ(BST_CHECKED, Ask(box, BM_GETCHECK)) << Describe(box);
    if (first == BST_UNCHECKED)
        typist.Key(VK_SPACE);
}

void ExpectComboWorks(Typist& typist, HWND combo)
{
    if (Ask(combo, CB_GETCOUNT) < 2)
        return;
    typist.Key(VK_HOME);
    EXPECT_EQ(0, Ask(combo, CB_GETCURSEL)) << Describe(combo);
    typist.Key(VK_DOWN);
    EXPECT_EQ(1, Ask(combo, CB_GETCURSEL)) << Describe(combo);
    typist.Key(VK_UP);
    EXPECT_EQ(0, Ask(combo, CB_GETCURSEL)) << Describe(combo);
}

void ExpectFieldWorks(Typist& typist, HWND field)
{
    const std::string first = TextOf(field);
    if (HasSpin(field))
    {
        // One of the two may stand at its end.
        typist.Key(VK_UP);
        typist.Key(VK_UP);
        const std::string up = TextOf(field);
        typist.Key(VK_DOWN);
        EXPECT_FALSE(first == up && up == TextOf(field)) << Describe(field);
    }
    SetWindowTextA(field, "");
    typist.Key('7');
    EXPECT_EQ("7", TextOf(field)) << Describe(field);
    SetWindowTextA(field, first.c_str());
}

void ExpectWorksByKeyboard(Typist& typist, HWND control)
{
    if (IsCheckBox(control))
        ExpectCheckBoxWorks(typist, control);
    else if (IsClass(control, "ComboBox"))
        ExpectComboWorks(typist, control);
    else if (IsField(control) && !(GetWindowLongA(control, GWL_STYLE) & ES_READONLY))
        ExpectFieldWorks(typist, control);
}

/// A label, or the check box whose sentence the control stands in.
bool IsLabel(HWND window)
{
    return window && IsWindowVisible(window) && !TextOf(window).empty() &&
           (IsClass(window, "Static") || IsCheckBox(window));
}

class Keyboard : public ModuleTest
{
};

} // namespace

TEST_F(Keyboard, TabWalksTheWindowRoundAndRound)
{
    AtTheKeyboard(
        [](Typist& typist)
        {
            const HWND window = GetParent(typist.List());
            ASSERT_TRUE(typist.WalkTo(typist.List()));
            typist.Tab();
            EXPECT_EQ(typist.Strip(), typist.Focus());
            typist.Tab();
            EXPECT_TRUE(IsChild(typist.Page(), typist.Focus()));
            Walk(typist, typist.Page(), [&] { typist.Tab(); });
            EXPECT_EQ(GetDlgItem(window, IDC_RESTORE_DEFAULTS), typist.Focus());
            typist.Tab();
            EXPECT_EQ(GetDlgItem(window, IDOK), typist.Focus());
            typist.Tab();
            EXPECT_EQ(GetDlgItem(window, IDCANCEL), typist.Focus());
            typist.Tab();
            EXPECT_EQ(typist.List(), typist.Focus());
            typist.TabBack();
            EXPECT_EQ(GetDlgItem(window, IDCANCEL), typist.Focus());
        });
}

TEST_F(Keyboard, TabWalksEveryPageAsOneReadsIt)
{
    AtTheKeyboard(
        [](Typist& typist)
        {
            const int pages = typist.VisitPages(
                [&](HWND page)
                {
                    SCOPED_TRACE(TextOf(typist.List()) + std::to_string(GetDlgCtrlID(page)));
                    ExpectTheWholePageIsWalked(typist, page);
                });
            EXPECT_GE(pages, 12);
        });
}

TEST_F(Keyboard, EveryControlDoesItsWork)
{
    AtTheKeyboard(
        [](Typist& typist)
        {
            int worked = 0;
            typist.VisitPages(
                [&](HWND page)
                {
                    ASSERT_TRUE(typist.WalkTo(typist.Strip() ? typist.Strip() : typist.List()));
                    Walk(typist, page,
                         [&]
                         {
                             typist.Tab();
                             const HWND control = typist.Focus();
                             if (!IsChild(page, control))
                                 return;
                             ExpectWorksByKeyboard(typist, control);
                             ++worked;
                         });
                });
            EXPECT_GE(worked, 60);
        });
}

TEST_F(Keyboard, TheKeysOfTabbedWindowsSwitchTabs)
{
    AtTheKeyboard(
        [](Typist& typist)
        {
            ASSERT_TRUE(typist.WalkTo(typist.List()));
            typist.Key(VK_DOWN);
            ASSERT_TRUE(typist.WalkTo(typist.Strip()));
            typist.Tab();
            const HWND first = typist.Page();
            const HWND control = typist.Focus();
            ASSERT_TRUE(IsChild(first, control));

            typist.KeyWith(VK_CONTROL, VK_TAB);
            const HWND second = typist.Page();
            EXPECT_NE(first, second);
            // What is hidden does not go on taking keys.
            EXPECT_EQ(typist.Strip(), typist.Focus());
            typist.KeyWith(VK_CONTROL, VK_PRIOR);
            EXPECT_EQ(first, typist.Page());
            typist.KeyWith(VK_CONTROL, VK_PRIOR);
            EXPECT_NE(first, typist.Page());
            EXPECT_NE(second, typist.Page());
            typist.KeyWith(VK_CONTROL, VK_NEXT);
            EXPECT_EQ(first, typist.Page());
            typist.Key(VK_END);
            typist.Key(VK_HOME);
            EXPECT_EQ(first, typist.Page());
            EXPECT_EQ(typist.Strip(), typist.Focus());
        });
}

TEST_F(Keyboard, ARowOfAGridIsOpenedByKeyboard)
{
    AtTheKeyboard(
        [](Typist& typist)
        {
            // The last entry of the list holds a grid whose rows a dialog changes.
            ASSERT_TRUE(typist.WalkTo(typist.List()));
            typist.Key(VK_END);
            const HWND grid = FindWindowExA(typist.Page(), nullptr, kGridClass, nullptr);
            ASSERT_NE(nullptr, grid);
            ASSERT_TRUE(typist.WalkTo(grid));
            typist.Key(VK_RETURN);
            EXPECT_EQ(grid, typist.Focus()); // no row yet
            typist.Key(VK_DOWN);
            typist.Key(VK_RETURN);
            const HWND window = GetParent(typist.List());
            const HWND dialog = WaitForPopup(window);
            ASSERT_NE(nullptr, dialog);
            EXPECT_EQ("修改", TextOf(dialog));
            typist.Key(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([&] { return GetLastActivePopup(window) == window; }));
            EXPECT_TRUE(typist.WalkTo(typist.List()));
        });
}

TEST_F(Keyboard, EachFieldStandsBehindItsLabel)
{
    AtTheKeyboard(
        [](Typist& typist)
        {
            typist.VisitPages(
                [](HWND page)
                {
                    for (HWND input : InputsOf(page))
                    {
                        if (!IsField(input) && !IsClass(input, "ComboBox"))
                            continue;
                        EXPECT_TRUE(IsLabel(GetWindow(input, GW_HWNDPREV))) << Describe(input);
                    }
                });
        });
}

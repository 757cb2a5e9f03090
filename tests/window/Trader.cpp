#include "tests/window/Trader.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <thread>

namespace
{

constexpr int kPageList = 6001;
constexpr int kTabStrip = 6000;

// Another process of the same display may show such a window too.
BOOL CALLBACK MatchOwnWindow(HWND window, LPARAM parameter)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    char title[64] = "";
    GetWindowTextA(window, title, sizeof(title));
    const bool isOurs = process == GetCurrentProcessId() && IsWindowVisible(window) &&
                        strcmp(title, "参数设置") == 0;
    if (isOurs)
        *reinterpret_cast<HWND*>(parameter) = window;
    return !isOurs;
}

HWND WaitForWindow()
{
    for (int i = 0; i < 500; ++i)
    {
        HWND window = nullptr;
        EnumWindows(MatchOwnWindow, reinterpret_cast<LPARAM>(&window));
        if (window)
            return window;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return nullptr;
}

struct Search
{
    int id;
    bool visibleOnly;
    HWND found;
};

BOOL CALLBACK Match(HWND child, LPARAM parameter)
{
    auto* search = reinterpret_cast<Search*>(parameter);
    if (GetDlgCtrlID(child) == search->id && (!search->visibleOnly || IsWindowVisible(child)))
        search->found = child;
    return !search->found;
}

HWND FindControl(HWND window, int id, bool visibleOnly)
{
    Search search = {id, visibleOnly, nullptr};
    EnumChildWindows(window, Match, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace

HWND Trader::Control(int id) const
{
    const HWND visible = FindControl(m_window, id, true);
    return visible ? visible : FindControl(m_window, id, false);
}

void Trader::Settle() const
{
    // Input on its way from the display first, then whatever it posted.
    for (int i = 0; i < 3; ++i)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(15));
        if (IsWindow(m_window))
            SendMessageTimeoutA(m_window, WM_NULL, 0, 0, SMTO_NORMAL, 5000, nullptr);
    }
}

void Trader::ClickAt(HWND window, int x, int y)
{
    POINT point = {x, y};
    if (window)
        ClientToScreen(window, &point);
    SetCursorPos(point.x, point.y);
    Settle();
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    Settle();
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    Settle();
}

void Trader::Click(int id)
{
    const HWND control = Control(id);
    RECT client = {};
    GetClientRect(control, &client);
    ClickAt(control, 8, client.bottom / 2);
}

void Trader::Key(WORD virtualKey)
{
    keybd_event(static_cast<BYTE>(virtualKey), 0, 0, 0);
    keybd_event(static_cast<BYTE>(virtualKey), 0, KEYEVENTF_KEYUP, 0);
    Settle();
}

void Trader::Type(int id, const std::string& text)
{
    const HWND field = Control(id);
    ClickAt(field, 6, 10);
    Key(VK_HOME);
    keybd_event(VK_SHIFT, 0, 0, 0);
    Key(VK_END);
    keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
    Key(VK_DELETE);
    for (char character : text)
        Key(static_cast<WORD>(LOBYTE(VkKeyScanA(character))));
}

void Trader::Pick(int id, int row)
{
    Click(id);
    Key(VK_HOME);
    for (int i = 0; i < row; ++i)
        Key(VK_DOWN);
    Key(VK_RETURN);
}

void Trader::SpinUp(int id)
{
    RECT window;
    GetWindowRect(Control(id), &window);
    ClickAt(nullptr, window.right - 12, window.top + (window.bottom - window.top) / 4);
}

void Trader::SpinDown(int id)
{
    RECT window;
    GetWindowRect(Control(id), &window);
    ClickAt(nullptr, window.right - 12, window.bottom - (window.bottom - window.top) / 4);
}

void Trader::SelectTab(int index)
{
    ClickAt(Control(kTabStrip), index * 100 + 50, 20);
}

std::string Trader::AnswerMessage()
{
    HWND box = nullptr;
    for (int i = 0; i < 200 && !box; ++i)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        box = FindWindowA("#32770", "提示");
    }
    if (!box)
        return "";
    Settle();
    const std::string text = Text(GetDlgItem(box, 0xFFFF));
    Key(VK_RETURN);
    return text;
}

bool Trader::IsShown(int id) const
{
    return IsWindowVisible(Control(id));
}

int Trader::Picked(int id) const
{
    return static_cast<int>(SendMessageA(Control(id), CB_GETCURSEL, 0, 0));
}

std::string Trader::Item(int id, int row) const
{
    char text[256] = "";
    SendMessageA(Control(id), CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text));
    return text;
}

int Trader::ItemCount(int id) const
{
    return static_cast<int>(SendMessageA(Control(id), CB_GETCOUNT, 0, 0));
}

namespace
{

struct LabelSearch
{
    const std::string& text;
    bool found;
};

BOOL CALLBACK MatchLabel(HWND child, LPARAM parameter)
{
    auto* const search = reinterpret_cast<LabelSearch*>(parameter);
    char text[256] = "";
    SendMessageA(child, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
    search->found = search->text == text && IsWindowVisible(child);
    return !search->found;
}

} // namespace

bool Trader::ShowsLabel(const std::string& text) const
{
    LabelSearch search = {text, false};
    EnumChildWindows(m_window, MatchLabel, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool Trader::IsChecked(int id) const
{
    return SendMessageA(Control(id), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

std::string Trader::Text(HWND window) const
{
    char text[256] = "";
    SendMessageA(window, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
    return text;
}

int Trader::ListCount() const
{
    return static_cast<int>(SendMessageA(Control(kPageList), LB_GETCOUNT, 0, 0));
}

int Trader::SelectedRow() const
{
    return static_cast<int>(SendMessageA(Control(kPageList), LB_GETCURSEL, 0, 0));
}

void Trader::SelectRow(int row)
{
    const HWND list = Control(kPageList);
    RECT item = {};
    SendMessageA(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&item));
    ClickAt(list, item.right / 2, (item.top + item.bottom) / 2);
}

namespace
{

// Whatever a failed test left open, boxes first: the test's thread waits in their loops.
void CloseAll(HWND window)
{
    for (int i = 0; i < 100 && IsWindow(window); ++i)
    {
        if (const HWND box = FindWindowA("#32770", "提示"))
            PostMessageA(box, WM_COMMAND, IDOK, 0);
        else
            PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
}

} // namespace

int RunSettingsWindow(TOParam& record, TParamSetPage page, const std::function<void(Trader&)>& work)
{
    std::thread driver(
        [&work]
        {
            const HWND window = WaitForWindow();
            if (!window)
            {
                ADD_FAILURE() << "the window did not open";
                return;
            }
            Trader trader(window);
            trader.Settle();
            work(trader);
            trader.Settle();
            if (trader.IsOpen())
            {
                ADD_FAILURE() << "the window is still open";
                CloseAll(window);
            }
        });
    const int result = ZorvaneInterface::DoModal(&record, page);
    driver.join();
    return result;
}

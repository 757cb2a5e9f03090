#include "tests/window/Trader.h"

#include "resources/resource.h"

#include <objbase.h>
#include <oleacc.h>

#include <chrono>
#include <thread>

namespace
{

constexpr int kTabWidth = 100;
constexpr COLORREF kTabMark = RGB(56, 125, 255);

struct Search
{
    int id;
    bool visibleOnly;
    HWND found;
};

// The last press of the left button.
POINT pressed;
DWORD pressedAt;

/// Two clicks on one place are two clicks, not a double click.
void AvoidDoubleClick(POINT point)
{
    const DWORD passed = GetTickCount() - pressedAt;
    if (point.x == pressed.x && point.y == pressed.y && passed <= GetDoubleClickTime())
        Sleep(GetDoubleClickTime() - passed + 50);
}

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

std::string NameOf(IAccessible& object, long child)
{
    VARIANT part = {};
    part.vt = VT_I4;
    part.lVal = child;
    BSTR name = nullptr;
    object.get_accName(part, &name);
    char narrow[256] = "";
    if (name)
        WideCharToMultiByte(CP_ACP, 0, name, -1, narrow, sizeof(narrow), nullptr, nullptr);
    SysFreeString(name);
    return narrow;
}

} // namespace

bool WaitUntil(const std::function<bool()>& condition)
{
    for (int i = 0; i < 500; ++i)
    {
        if (condition())
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

COLORREF PixelAt(HWND window, int x, int y)
{
    const HDC dc = GetDC(window);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(window, dc);
    return color;
}

HWND WaitForWindow(const char* title)
{
    HWND window = nullptr;
    const auto isThere = [&]
    {
        window = FindWindowA(nullptr, title);
        return window && IsWindowVisible(window);
    };
    return WaitUntil(isThere) ? window : nullptr;
}

HWND WaitForPopup(HWND window)
{
    HWND popup = nullptr;
    const auto isThere = [&]
    {
        popup = GetLastActivePopup(window);
        return popup != window && IsWindowVisible(popup);
    };
    return WaitUntil(isThere) ? popup : nullptr;
}

HWND Trader::Control(int id) const
{
    // The window's own buttons share ids with buttons of pages.
    const HWND own = GetDlgItem(m_window, id);
    if (own && IsWindowVisible(own))
        return own;
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

void Trader::PointAt(HWND window, int x, int y) const
{
    POINT point = {x, y};
    if (window)
        ClientToScreen(window, &point);
    AvoidDoubleClick(point);
    SetCursorPos(point.x, point.y);
    Settle();
    pressed = point;
}

void Trader::ClickAt(HWND window, int x, int y)
{
    PointAt(window, x, y);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    Settle();
    pressedAt = GetTickCount();
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    Settle();
}

void Trader::RightClickAt(HWND window, int x, int y)
{
    PointAt(window, x, y);
    mouse_event(MOUSEEVENTF_RIGHTDOWN, 0, 0, 0, 0);
    mouse_event(MOUSEEVENTF_RIGHTUP, 0, 0, 0, 0);
    Settle();
}

void Trader::DoubleClickAt(HWND window, int x, int y)
{
    PointAt(window, x, y);
    for (int i = 0; i < 2; ++i)
    {
        mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
        mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    }
    pressedAt = GetTickCount();
    Settle();
}

void Trader::Click(int id)
{
    ClickWindow(Control(id));
}

void Trader::ClickWindow(HWND window)
{
    RECT client = {};
    GetClientRect(window, &client);
    ClickAt(window, 8, client.bottom / 2);
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
    ClickAt(Control(IDC_TAB_STRIP), index * kTabWidth + kTabWidth / 2, 20);
}

int Trader::MarkedTab() const
{
    const HWND strip = Control(IDC_TAB_STRIP);
    RECT area = {};
    GetClientRect(strip, &area);
    for (int tab = 0; tab * kTabWidth < area.right; ++tab)
        if (PixelAt(strip, tab * kTabWidth + kTabWidth / 2, area.bottom - 1) == kTabMark)
            return tab;
    return -1;
}

std::vector<std::string> Trader::TabTitles() const
{
    // Takes the window's thread in, which has told COM nothing: so the strip answers without a proxy.
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    std::vector<std::string> titles;
    IAccessible* strip = nullptr;
    if (AccessibleObjectFromWindow(Control(IDC_TAB_STRIP), static_cast<DWORD>(OBJID_CLIENT),
                                   __uuidof(IAccessible), reinterpret_cast<void**>(&strip)) == S_OK)
    {
        long count = 0;
        strip->get_accChildCount(&count);
        for (long tab = 1; tab <= count; ++tab)
            titles.push_back(NameOf(*strip, tab));
        strip->Release();
    }
    CoUninitialize();
    return titles;
}

HWND Trader::Focus() const
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(m_window, nullptr), &info);
    return info.hwndFocus;
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

void Trader::SetText(int id, const std::string& text)
{
    SendMessageA(Control(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    Settle();
}

std::string Trader::Message() const
{
    std::string message;
    for (HWND child = GetWindow(m_window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        char className[32] = "";
        GetClassNameA(child, className, sizeof(className));
        if (_stricmp(className, "Static") == 0)
            message += Text(child);
    }
    return message;
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
    char text[2048] = "";
    SendMessageA(window, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
    return text;
}

int Trader::ListCount() const
{
    return static_cast<int>(SendMessageA(Control(IDC_PAGE_LIST), LB_GETCOUNT, 0, 0));
}

int Trader::SelectedRow() const
{
    return static_cast<int>(SendMessageA(Control(IDC_PAGE_LIST), LB_GETCURSEL, 0, 0));
}

void Trader::SelectRow(int row)
{
    const HWND list = Control(IDC_PAGE_LIST);
    RECT item = {};
    SendMessageA(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&item));
    ClickAt(list, item.right / 2, (item.top + item.bottom) / 2);
}

#include "tests/window/KeyPage.h"

namespace
{

constexpr int kRowHeight = 26;
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kHighlight = RGB(216, 237, 242);

BOOL CALLBACK MatchGrid(HWND child, LPARAM parameter)
{
    char className[32] = "";
    GetClassNameA(child, className, sizeof(className));
    if (strcmp(className, "OWERLISTVIEW") != 0 || !IsWindowVisible(child))
        return TRUE;
    *reinterpret_cast<HWND*>(parameter) = child;
    return FALSE;
}

BOOL CALLBACK MatchIcon(HWND child, LPARAM parameter)
{
    char className[32] = "";
    GetClassNameA(child, className, sizeof(className));
    const LONG style = GetWindowLongA(child, GWL_STYLE);
    if (_stricmp(className, "Static") == 0 && (style & SS_TYPEMASK) == SS_ICON &&
        (style & WS_VISIBLE) && SendMessageA(child, STM_GETICON, 0, 0))
        *reinterpret_cast<bool*>(parameter) = true;
    return TRUE;
}

/// Pixels at 96 dots an inch on this screen.
int Scaled(int length)
{
    const HDC screen = GetDC(nullptr);
    const int scaled = length * GetDeviceCaps(screen, LOGPIXELSY) / 96;
    ReleaseDC(nullptr, screen);
    return scaled;
}

SCROLLINFO VerticalBar(HWND grid)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    GetScrollInfo(grid, SB_VERT, &info);
    return info;
}

} // namespace

KeyPage::KeyPage(Trader& trader, std::vector<int> widths)
    : m_trader(trader)
    , m_widths(std::move(widths))
    , m_grid(nullptr)
{
    EnumChildWindows(trader.Window(), MatchGrid, reinterpret_cast<LPARAM>(&m_grid));
    EXPECT_TRUE(m_grid) << "no grid on show";
}

RECT KeyPage::Cell(int column, int row) const
{
    RECT cell = {};
    for (int i = 0; i < column; ++i)
        cell.left += Scaled(m_widths[i]);
    cell.right = cell.left + Scaled(m_widths[column]);
    cell.top = Scaled(kRowHeight) * (row + 1 - FirstRow());
    cell.bottom = cell.top + Scaled(kRowHeight);
    return cell;
}

void KeyPage::ClickCell(int column, int row)
{
    const RECT cell = Cell(column, row);
    m_trader.ClickAt(m_grid, cell.left + 12, (cell.top + cell.bottom) / 2);
}

void KeyPage::ClickElsewhere()
{
    RECT page;
    GetClientRect(Page(), &page);
    m_trader.ClickAt(Page(), page.right - 22, page.bottom - 6);
}

void KeyPage::PickByMouse(int item)
{
    RECT face;
    GetClientRect(Combo(), &face);
    m_trader.ClickAt(Combo(), face.right - 8, face.bottom / 2);
    ASSERT_TRUE(WaitUntil([&] { return SendMessageA(Combo(), CB_GETDROPPEDSTATE, 0, 0) != 0; }));
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    GetComboBoxInfo(Combo(), &info);
    RECT row = {};
    SendMessageA(info.hwndList, LB_GETITEMRECT, item, reinterpret_cast<LPARAM>(&row));
    m_trader.ClickAt(info.hwndList, 12, (row.top + row.bottom) / 2);
}

std::vector<std::string> KeyPage::ComboItems() const
{
    std::vector<std::string> items;
    const LRESULT count = SendMessageA(Combo(), CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i)
    {
        char text[256] = "";
        SendMessageA(Combo(), CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
        items.push_back(text);
    }
    return items;
}

int KeyPage::Ink(int column, int row, double from, double to) const
{
    RECT cell = Cell(column, row);
    const int width = cell.right - cell.left;
    cell.right = cell.left + static_cast<int>(width * to);
    cell.left += static_cast<int>(width * from);
    MapWindowPoints(m_grid, nullptr, reinterpret_cast<POINT*>(&cell), 2);
    const HDC screen = GetDC(nullptr);
    int ink = 0;
    for (int y = cell.top + 1; y < cell.bottom - 1; ++y)
        for (int x = cell.left; x < cell.right; ++x)
        {
            const COLORREF color = GetPixel(screen, x, y);
            ink += color != kWhite && color != kHighlight;
        }
    ReleaseDC(nullptr, screen);
    return ink;
}

bool KeyPage::IsHighlighted(int row) const
{
    const RECT cell = Cell(0, row);
    POINT corner = {cell.left + 1, cell.top + 2};
    ClientToScreen(m_grid, &corner);
    const HDC screen = GetDC(nullptr);
    const COLORREF color = GetPixel(screen, corner.x, corner.y);
    ReleaseDC(nullptr, screen);
    return color == kHighlight;
}

int KeyPage::RowsOfBar() const
{
    return VerticalBar(m_grid).nMax;
}

int KeyPage::FirstRow() const
{
    return VerticalBar(m_grid).nPos;
}

void KeyPage::Press(const std::vector<WORD>& modifiers, WORD key)
{
    for (WORD modifier : modifiers)
        keybd_event(static_cast<BYTE>(modifier), 0, 0, 0);
    m_trader.Settle();
    m_trader.Key(key);
    for (WORD modifier : modifiers)
        keybd_event(static_cast<BYTE>(modifier), 0, KEYEVENTF_KEYUP, 0);
    m_trader.Settle();
}

std::string KeyPage::AnswerBox()
{
    HWND box = nullptr;
    const auto isThere = [&box]
    {
        box = FindWindowA("#32770", "提示");
        return box && IsWindowVisible(box);
    };
    if (!WaitUntil(isThere))
        return "";
    m_trader.Settle();
    std::string text = m_trader.Text(GetDlgItem(box, 0xFFFF));
    bool hasIcon = false;
    EnumChildWindows(box, MatchIcon, reinterpret_cast<LPARAM>(&hasIcon));
    if (hasIcon)
        text += " (information)";
    if (!GetWindow(box, GW_OWNER))
        text += " (no owner)";
    m_trader.Key(VK_RETURN);
    EXPECT_TRUE(WaitUntil([box] { return !IsWindow(box); }));
    m_trader.Settle();
    return text;
}

bool KeyPage::IsMenuOpen() const
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(m_grid, nullptr), &info);
    return (info.flags & (GUI_INMENUMODE | GUI_SYSTEMMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

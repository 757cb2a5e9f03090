// How long the page of keyboard orders takes with five hundred rows: until the window is open on it and
// painted, and to scroll through them. Against stock dialogs of the same templates with a
// stock list view that shows the same texts.
#include "bench/Timing.h"
#include "hotkeys/HotKeyFile.h"
#include "hotkeys/OrderKeyCells.h"
#include "resources/resource.h"
#include "tests/window/FactoryRecord.h"
#include "tests/window/Files.h"
#include "tests/window/InsideWindow.h"

#include <commctrl.h>

#include <cstdio>
#include <iterator>
#include <vector>

namespace
{

constexpr int kRows = 500;
constexpr int kRounds = 9;
constexpr int kSteps = 100;
constexpr int kRowHeight = 26;
constexpr int kColumnWidths[] = {140, 60, 60, 80, 40, 80, 220};
const char kKeyFile[] = "cfg\\trade\\HotKey2.dat";

HotKeyList Rows()
{
    HotKeyList rows(kRows, MakeDefaultHotKey());
    for (int i = 0; i < kRows; ++i)
        rows[i].overTicks = i;
    return rows;
}

void ScrollDown(HWND list)
{
    for (int i = 0; i < kSteps; ++i)
    {
        SendMessageA(list, WM_VSCROLL, SB_LINEDOWN, 0);
        RedrawWindow(list, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
}

struct Times
{
    std::vector<double> open;
    std::vector<double> scroll;
};

void TimeModule(Times& times)
{
    TOParam record = FactoryRecord();
    const Stopwatch opening;
    RunInsideSettingsWindow(record, ParamPageOptionsKeys,
                            [&](HWND window)
                            {
                                PaintNow(window);
                                times.open.push_back(opening.Milliseconds());
                                const HWND grid = GetDlgItem(PageOnShow(window), IDC_KEY_GRID);
                                times.scroll.push_back(Milliseconds([grid] { ScrollDown(grid); }));
                            });
}

/// Gives the list view its texts.
INT_PTR CALLBACK ShowRows(HWND, UINT message, WPARAM, LPARAM lParam)
{
    static const HotKeyList rows = Rows();
    if (message != WM_NOTIFY || reinterpret_cast<NMHDR*>(lParam)->code != LVN_GETDISPINFOA)
        return FALSE;
    LVITEMA& item = reinterpret_cast<NMLVDISPINFOA*>(lParam)->item;
    if (item.mask & LVIF_TEXT)
        snprintf(item.pszText, item.cchTextMax, "%s",
                 OrderKeyCellText(rows[item.iItem], item.iSubItem).c_str());
    return TRUE;
}

HWND CreateListView(HINSTANCE module, HWND page)
{
    RECT frame;
    GetWindowRect(GetDlgItem(page, IDC_KEY_FRAME), &frame);
    const HWND list = CreateWindowA(
        WC_LISTVIEWA, "", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 8, 22,
        frame.right - frame.left, frame.bottom - frame.top - 22, page, nullptr, module, nullptr);
    for (int i = 0; i < static_cast<int>(std::size(kColumnWidths)); ++i)
    {
        LVCOLUMNA column = {};
        column.mask = LVCF_WIDTH;
        column.cx = kColumnWidths[i];
        SendMessageA(list, LVM_INSERTCOLUMNA, i, reinterpret_cast<LPARAM>(&column));
    }
    const HIMAGELIST height = ImageList_Create(1, kRowHeight - 1, ILC_COLOR, 1, 0);
    SendMessageA(list, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(height));
    SendMessageA(list, LVM_SETITEMCOUNT, kRows, 0);
    return list;
}

void TimeStock(HINSTANCE module, Times& times)
{
    const auto create = [module](UINT dialog, HWND parent)
    {
        return CreateDialogParamA(module, MAKEINTRESOURCEA(dialog), parent, ShowRows, 0);
    };
    const Stopwatch opening;
    const HWND window = create(IDD_MAIN, nullptr);
    const HWND host = create(IDD_OPTIONS_HOST, window);
    const HWND page = create(IDD_KEY_ORDER, host);
    const HWND list = CreateListView(module, page);
    for (HWND part : {page, host, window})
        ShowWindow(part, SW_SHOW);
    PaintNow(window);
    times.open.push_back(opening.Milliseconds());
    times.scroll.push_back(Milliseconds([list] { ScrollDown(list); }));
    DestroyWindow(window);
}

} // namespace

int main()
{
    LoadLibraryA("riched20.dll");
    InitCommonControls();
    const HINSTANCE module = GetModuleHandleA("Zorvane.dll");
    ZorvaneInterface::Init([](unsigned int, unsigned int, long) { return 0ul; });
    WriteBytes(kKeyFile, EncodeHotKeys(Rows(), kOrderKeysVersion));
    Times ours, stock;
    // The first round fills caches on both sides and is not counted.
    for (int round = 0; round <= kRounds; ++round)
    {
        if (round == 1)
            ours = stock = {};
        TimeModule(ours);
        TimeStock(module, stock);
    }
    const std::string page = "page of " + std::to_string(kRows) + " keys, ";
    Report(page + "open until painted", Median(ours.open), "list view", Median(stock.open));
    Report(page + "a hundred rows down", Median(ours.scroll), "list view", Median(stock.scroll));
    return 0;
}

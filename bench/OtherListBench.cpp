// How long the page of default volumes takes with a thousand futures products: to open, to scroll to
// its end and paint, and to restore all rows, which writes each of them. Against a stock list view
// with the same texts, and against the plain profile calls that the writing can't do without. In its
// own folder of the temporary files.
#include "bench/Timing.h"
#include "core/DefaultTables.h"
#include "core/Directory.h"
#include "pages/OtherListDlg.h"

#include <afxcmn.h>
#include <commctrl.h>

#include <algorithm>
#include <cfloat>
#include <cstdio>
#include <filesystem>
#include <string>

namespace
{

constexpr int kProducts = 1000;
constexpr int kRounds = 5;
constexpr int kWidth = 800;
constexpr int kHeight = 600;
const char kFile[] = ".\\cfg\\Trade\\StopProfitLoss.ini";

void FillTable()
{
    FutureDefaults.clear();
    for (int i = 0; i < kProducts; ++i)
    {
        FutureDefault row = {};
        static_cast<StopDefaultValues&>(row) = FactsOf(StopProduct::Future).builtIn;
        snprintf(row.exchange, sizeof(row.exchange), "EX%d", i % 6);
        snprintf(row.name, sizeof(row.name), "p%c%c%c", 'a' + i / 676, 'a' + i / 26 % 26,
                 'a' + i % 26);
        FutureDefaults.push_back(row);
    }
}

void PaintNow(HWND window)
{
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

class BenchPage : public COtherFutureDlg
{
public:
    void Open(CWnd& host)
    {
        EnsureWindow(&host);
        MoveWindow(0, 0, kWidth, kHeight);
        ShowWindow(SW_SHOW);
        PaintNow(m_hWnd);
    }

    void ScrollToEnd()
    {
        m_grid.SendMessage(WM_VSCROLL, SB_BOTTOM, 0);
        PaintNow(m_hWnd);
    }
};

HWND OpenListView(CWnd& host)
{
    const HWND list =
        CreateWindowExA(0, WC_LISTVIEWA, "", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, kWidth,
                        kHeight, host.m_hWnd, nullptr, AfxGetInstanceHandle(), nullptr);
    for (int column = 0; column < 2; ++column)
    {
        char title[] = "column";
        LVCOLUMNA shape = {};
        shape.mask = LVCF_TEXT | LVCF_WIDTH;
        shape.cx = 100;
        shape.pszText = title;
        SendMessageA(list, LVM_INSERTCOLUMNA, column, reinterpret_cast<LPARAM>(&shape));
    }
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    for (int row = 0; row < kProducts; ++row)
    {
        LVITEMA item = {};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = FutureDefaults[row].name;
        SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
        char volume[] = "1";
        item.iSubItem = 1;
        item.pszText = volume;
        SendMessageA(list, LVM_SETITEMTEXTA, row, reinterpret_cast<LPARAM>(&item));
    }
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    PaintNow(list);
    return list;
}

void WritePlainly()
{
    CreateDirectoryPath(".\\cfg\\Trade\\");
    for (const FutureDefault& row : FutureDefaults)
        WritePrivateProfileStringA(row.exchange, row.name,
                                   FormatStopLine(StopProduct::Future, row).c_str(), kFile);
}

struct Times
{
    double open = DBL_MAX;
    double scroll = DBL_MAX;
};

void Keep(double& least, double time)
{
    least = std::min(least, time);
}

void MeasureOpening(CWnd& host, Times& ours, Times& stock)
{
    BenchPage page;
    Keep(ours.open, Milliseconds([&] { page.Open(host); }));
    Keep(ours.scroll, Milliseconds([&] { page.ScrollToEnd(); }));
    page.DestroyWindow();

    HWND list = nullptr;
    Keep(stock.open, Milliseconds([&] { list = OpenListView(host); }));
    Keep(stock.scroll, Milliseconds(
                           [&]
                           {
                               SendMessageA(list, WM_VSCROLL, SB_BOTTOM, 0);
                               PaintNow(list);
                           }));
    DestroyWindow(list);
}

} // namespace

int main()
{
    if (!AfxWinInit(GetModuleHandleA(nullptr), nullptr, GetCommandLineA(), SW_SHOW))
        return 1;
    const auto folder = std::filesystem::temp_directory_path() /
                        ("other_list_bench" + std::to_string(GetCurrentProcessId()));
    std::filesystem::create_directories(folder);
    std::filesystem::current_path(folder);

    CWnd host;
    host.CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE, 20, 20, kWidth,
                  kHeight, nullptr, nullptr);
    FillTable();
    Times ours, stock;
    for (int round = 0; round < kRounds; ++round)
        MeasureOpening(host, ours, stock);
    BenchPage list;
    list.Open(host);
    const double restore = Milliseconds([&] { list.RestoreDefaults(); });
    std::filesystem::remove_all("cfg"); // unchanged lines are not written again
    const double plainWrites = Milliseconds(WritePlainly);
    list.DestroyWindow();
    host.DestroyWindow();

    const std::string page = "page of " + std::to_string(kProducts) + " products, ";
    Report(page + "open until painted", ours.open, "list view", stock.open);
    Report(page + "scroll to the end", ours.scroll, "list view", stock.scroll);
    Report(page + "restore all rows", restore, "profile functions", plainWrites);

    std::filesystem::current_path(folder.parent_path());
    std::filesystem::remove_all(folder);
    return 0;
}

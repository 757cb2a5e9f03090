// How long the grid takes for a frame, against a stock list view that shows the same texts in rows of
// the same height and the same font, and how long stored rows take to add, sort and scroll.
#include "bench/Timing.h"
#include "skin/grid/OwerDrawListView.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace
{

constexpr int kWidth = 700;
constexpr int kHeight = 600;
constexpr int kColumnWidths[] = {140, 60, 60, 80, 40, 80, 220};
constexpr int kColumns = static_cast<int>(std::size(kColumnWidths));
constexpr int kRowCounts[] = {100, 10000, 1000000};
constexpr int kStoredRows = 10000;
constexpr int kRounds = 41;

void PumpPending()
{
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessage(&message);
}

void TextOf(int row, int column, char* text, size_t capacity)
{
    static const char* const kWords[] = {"买入", "卖出", "平仓", "动作", "价格", "合约"};
    snprintf(text, capacity, "%s %06d", kWords[(row + column) % std::size(kWords)], row);
}

/// A window that gives its children a font and a list view its texts.
class BenchHost : public CWnd
{
public:
    BenchHost()
    {
        font.CreateFont(12, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0,
                        "宋体");
        CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE, 20, 20, kWidth, kHeight,
                 nullptr, nullptr);
    }
    ~BenchHost() override { DestroyWindow(); }

    CFont font;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_GETFONT)
            return reinterpret_cast<LRESULT>(static_cast<HFONT>(font));
        if (message == WM_NOTIFY && reinterpret_cast<NMHDR*>(lParam)->code == LVN_GETDISPINFOA)
        {
            auto& item = reinterpret_cast<NMLVDISPINFOA*>(lParam)->item;
            if (item.mask & LVIF_TEXT)
                TextOf(item.iItem, item.iSubItem, item.pszText, item.cchTextMax);
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

/// Either of the two views.
struct View
{
    HWND window;
    std::function<void(int rows)> setRows;
    std::function<void(int row)> showFromRow;
};

double FrameTime(const View& view)
{
    return Milliseconds(
        [&]
        {
            RedrawWindow(view.window, nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            GdiFlush();
        });
}

void PaintOwnerCell(HDC dc, int row, int column, RECT* rect, HFONT, CWnd*, void*,
                    COwerDrawListView*)
{
    char text[64];
    TextOf(row, column, text, sizeof(text));
    DrawTextA(dc, text, -1, rect, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
}

void AddGridColumns(COwerDrawListView& grid)
{
    for (const int width : kColumnWidths)
        grid.AddColumn("合约", width, DT_CENTER | DT_VCENTER | DT_SINGLELINE,
                       DT_CENTER | DT_VCENTER | DT_SINGLELINE, nullptr, kTextColumn);
}

View MakeGridView(COwerDrawListView& grid, BenchHost& host, int rowHeight, int headerHeight)
{
    grid.Create(CRect(0, 0, kWidth, kHeight), &host, 1);
    grid.ownerData = 1;
    grid.cellPaintProc = PaintOwnerCell;
    grid.body->SetHeaderHeight(headerHeight);
    grid.body->rowHeight = rowHeight;
    AddGridColumns(grid);
    return {grid.m_hWnd,
            [&grid](int rows)
            {
                grid.body->SetRowCount(rows);
                grid.UpdateScrollBars();
            },
            [&grid](int row)
            {
                grid.body->SetScrollY(row * grid.body->rowHeight);
                grid.SetScrollPos(SB_VERT, row);
            }};
}

View MakeListView(BenchHost& host)
{
    const HWND list =
        CreateWindowA(WC_LISTVIEWA, "", WS_CHILD | LVS_REPORT | LVS_OWNERDATA, 0, 0, kWidth,
                      kHeight, host, nullptr, AfxGetInstanceHandle(), nullptr);
    SendMessageA(list, WM_SETFONT, reinterpret_cast<WPARAM>(static_cast<HFONT>(host.font)), 0);
    for (int column = 0; column < kColumns; ++column)
    {
        char title[] = "合约";
        LVCOLUMNA shape = {};
        shape.mask = LVCF_TEXT | LVCF_WIDTH;
        shape.cx = kColumnWidths[column];
        shape.pszText = title;
        SendMessageA(list, LVM_INSERTCOLUMNA, column, reinterpret_cast<LPARAM>(&shape));
    }
    return {list, [list](int rows) { SendMessageA(list, LVM_SETITEMCOUNT, rows, 0); },
            [list](int row)
            {
                // Going there from the end brings the row to the top.
                const LRESULT last = SendMessageA(list, LVM_GETITEMCOUNT, 0, 0) - 1;
                SendMessageA(list, LVM_ENSUREVISIBLE, last, FALSE);
                SendMessageA(list, LVM_ENSUREVISIBLE, row, FALSE);
            }};
}

int ListRowHeight(const View& list)
{
    RECT item = {LVIR_BOUNDS, 0, 0, 0};
    list.setRows(1);
    SendMessageA(list.window, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&item));
    return item.bottom - item.top;
}

int ListHeaderHeight(const View& list)
{
    RECT header;
    GetWindowRect(reinterpret_cast<HWND>(SendMessageA(list.window, LVM_GETHEADER, 0, 0)), &header);
    return header.bottom - header.top;
}

/// What is in view, and how long its frames took.
struct Scene
{
    const char* place;
    int rows;
    int topRow;
    std::vector<double> times;
};

std::vector<Scene> MakeScenes(const View& view, int rowHeight)
{
    RECT client;
    GetClientRect(view.window, &client);
    const int rowsInView = client.bottom / rowHeight;
    std::vector<Scene> scenes;
    for (const int rows : kRowCounts)
    {
        scenes.push_back({"top", rows, 0, {}});
        scenes.push_back({"middle", rows, rows / 2, {}});
        scenes.push_back({"end", rows, rows - rowsInView, {}});
    }
    return scenes;
}

/// Every scene once a round, so that what else the machine does falls on all of them alike.
std::vector<Scene> MeasureScenes(const View& view, int rowHeight)
{
    std::vector<Scene> scenes = MakeScenes(view, rowHeight);
    ShowWindow(view.window, SW_SHOW);
    for (int round = 0; round < kRounds; ++round)
        for (Scene& scene : scenes)
        {
            view.setRows(scene.rows);
            view.showFromRow(scene.topRow);
            PumpPending();
            scene.times.push_back(FrameTime(view));
        }
    ShowWindow(view.window, SW_HIDE);
    return scenes;
}

void CompareFrames()
{
    BenchHost host;
    COwerDrawListView grid;
    const View list = MakeListView(host);
    const int rowHeight = ListRowHeight(list);
    const View view = MakeGridView(grid, host, rowHeight, ListHeaderHeight(list));
    std::vector<Scene> listScenes = MeasureScenes(list, rowHeight);
    std::vector<Scene> gridScenes = MeasureScenes(view, rowHeight);

    std::vector<double> gridTimes;
    for (size_t i = 0; i < gridScenes.size(); ++i)
    {
        Scene& scene = gridScenes[i];
        const double gridTime = Median(scene.times);
        const double listTime = Median(listScenes[i].times);
        gridTimes.push_back(gridTime);
        Report("frame of a grid, " + std::to_string(scene.rows) + " rows, " + scene.place, gridTime,
               "list view", listTime, "below 1");
    }
    const auto [fastest, slowest] = std::minmax_element(gridTimes.begin(), gridTimes.end());
    Report("slowest frame of the grid", *slowest, "its fastest", *fastest, "1.2");
    grid.DestroyWindow();
}

void FillStored(COwerDrawListView& grid)
{
    char text[64];
    for (int row = 0; row < kStoredRows; ++row)
    {
        TextOf(row, 0, text, sizeof(text));
        grid.AddRow(text);
        snprintf(text, sizeof(text), "%d.5", row * 7919 % kStoredRows);
        for (int column = 1; column < kColumns; ++column)
            grid.SetCellText(row, column, text);
    }
}

void MeasureStored()
{
    BenchHost host;
    COwerDrawListView grid;
    grid.Create(CRect(0, 0, kWidth, kHeight), &host, 1);
    grid.ShowWindow(SW_SHOW);
    AddGridColumns(grid);

    const std::string rows = std::to_string(kStoredRows) + " stored rows, ";
    grid.SetRedraw(FALSE);
    Report(rows + "add, without redraw", Milliseconds([&] { FillStored(grid); }));
    grid.SetRedraw(TRUE);
    Report(rows + "delete all", Milliseconds([&] { grid.DeleteAllRows(); }));
    Report(rows + "add, on show", Milliseconds([&] { FillStored(grid); }));
    Report(rows + "sort by number", Milliseconds([&] { grid.SortByNumber(1, true); }));
    Report(rows + "sort by integer, down", Milliseconds([&] { grid.SortByInteger(1, false); }));
    Report(rows + "sort by text", Milliseconds([&] { grid.SortByText(0, true); }));

    constexpr int kScrolls = 100;
    const double scrolling = Milliseconds(
        [&]
        {
            for (int i = 0; i < kScrolls; ++i)
                grid.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
        });
    Report(rows + "scroll by a page", scrolling / kScrolls);
    grid.DestroyWindow();
}

} // namespace

int main()
{
    if (!AfxWinInit(GetModuleHandleA(nullptr), nullptr, GetCommandLineA(), SW_SHOW))
        return 1;
    InitCommonControls();
    CompareFrames();
    MeasureStored();
    AfxWinTerm();
    return 0;
}

// How long a trader waits for the settings window: until it is open and painted, at the first and at
// each further change of entry, and for "恢复默认". Each against stock dialogs made from the same
// templates, in the same number, whose fields are filled by the profile functions.
#include "bench/Timing.h"
#include "resources/resource.h"
#include "tests/window/FactoryRecord.h"
#include "tests/window/InsideWindow.h"

#include <commctrl.h>

#include <cstdio>
#include <string>
#include <vector>

namespace
{

constexpr int kRounds = 15;
constexpr int kSwitches = 20;
constexpr int kTabTop = 42;
const char kPackageFile[] = ".\\Sys\\Cfg\\Trade\\TradePackageConfig.ini";

/// An entry of the list: its host, the pages that are made when it is opened, and those that are made
/// at the latest when defaults are restored.
struct Entry
{
    UINT host;
    std::vector<UINT> pages; // the first is shown
    std::vector<UINT> laterPages;
};

const Entry kEntries[] = {
    {IDD_PUBLIC_HOST, {IDD_PUBLIC_CONVEN, IDD_CONDITION_MODE}, {}},
    {IDD_OPTIONS_HOST,
     {IDD_OPTIONS_CONVEN},
     {IDD_OPTIONS_CHASE, IDD_OPTIONS_STOP, IDD_KEY_ORDER, IDD_OPTIONS_SPLIT, IDD_QUICK_KEYS}},
    {IDD_FUTURE_HOST, {IDD_FUTURE_CONVEN}, {IDD_FUTURE_CHASE, IDD_FUTURE_STOP}},
    {IDD_STOCK_HOST,
     {IDD_STOCK_CHASE, IDD_STOCK_CONVEN, IDD_STOCK_STOP, IDD_MARGIN_SPLIT, IDD_MARGIN_BUY},
     {}},
    {IDD_INDICATOR, {}, {}},
    {IDD_OTHER_HOST, {IDD_OTHER_OPTIONS, IDD_OTHER_FUTURE, IDD_OTHER_STOCK}, {}},
};

INT_PTR CALLBACK DoNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

BOOL CALLBACK FillField(HWND field, LPARAM)
{
    char className[32] = "";
    GetClassNameA(field, className, sizeof(className));
    const std::string key = "field" + std::to_string(GetDlgCtrlID(field));
    char text[256] = "";
    GetPrivateProfileStringA("TradeConfig", key.c_str(), "1", text, sizeof(text), kPackageFile);
    if (_stricmp(className, "RichEdit20A") == 0 || _stricmp(className, "Edit") == 0)
        SetWindowTextA(field, text);
    else if (_stricmp(className, "Button") == 0)
        SendMessageA(field, BM_SETCHECK, atoi(text), 0);
    else if (_stricmp(className, "ComboBox") == 0)
        SendMessageA(field, CB_SETCURSEL, atoi(text), 0);
    return TRUE;
}

/// The window as an ordinary program would have it: the same templates and the system's controls.
class StockWindow
{
public:
    explicit StockWindow(HINSTANCE module)
        : m_module(module)
        , m_window(Create(IDD_MAIN, nullptr))
        , m_hosts(std::size(kEntries))
    {
        for (const char* row : {"公共设置", "期权设置", "期货", "证券", "指标", "其它"})
            SendDlgItemMessageA(m_window, IDC_PAGE_LIST, LB_ADDSTRING, 0,
                                reinterpret_cast<LPARAM>(row));
        Open(0);
        ShowWindow(m_window, SW_SHOW);
        PaintNow(m_window);
    }
    ~StockWindow() { DestroyWindow(m_window); }
    StockWindow(const StockWindow&) = delete;
    StockWindow& operator=(const StockWindow&) = delete;

    void Open(size_t entry)
    {
        if (m_hosts[m_current])
            ShowWindow(m_hosts[m_current], SW_HIDE);
        m_current = entry;
        if (!m_hosts[entry])
            m_hosts[entry] = CreateEntry(kEntries[entry]);
        ShowWindow(m_hosts[entry], SW_SHOW);
        PaintNow(m_window);
    }

    void Restore()
    {
        for (size_t entry = 0; entry < m_hosts.size(); ++entry)
            MakeLaterPages(entry);
        for (HWND host : m_hosts)
            EnumChildWindows(GetWindow(host, GW_CHILD), FillField, 0);
        PaintNow(m_window);
    }

private:
    HWND Create(UINT dialog, HWND parent)
    {
        return CreateDialogParamA(m_module, MAKEINTRESOURCEA(dialog), parent, DoNothing, 0);
    }

    HWND CreateEntry(const Entry& entry)
    {
        RECT list, client;
        GetWindowRect(GetDlgItem(m_window, IDC_PAGE_LIST), &list);
        GetClientRect(m_window, &client);
        const int left = list.right - list.left + 1;
        const int width = client.right - left;
        const int height = client.bottom - 56;
        const HWND host = Create(entry.host, m_window);
        MoveWindow(host, left, 0, width, height, FALSE);
        MakePages(host, entry.pages);
        if (!entry.pages.empty())
        {
            ShowWindow(GetWindow(host, GW_CHILD), SW_SHOW);
            AddTabs(host, width, static_cast<int>(entry.pages.size()));
        }
        EnumChildWindows(host, FillField, 0);
        return host;
    }

    void MakePages(HWND host, const std::vector<UINT>& pages)
    {
        RECT client;
        GetClientRect(host, &client);
        for (UINT page : pages)
            MoveWindow(Create(page, host), 0, kTabTop, client.right, client.bottom - kTabTop,
                       FALSE);
    }

    void MakeLaterPages(size_t entry)
    {
        if (m_hasLaterPages[entry])
            return;
        m_hasLaterPages[entry] = true;
        MakePages(m_hosts[entry], kEntries[entry].laterPages);
    }

    void AddTabs(HWND host, int width, int count)
    {
        const HWND strip = CreateWindowA(WC_TABCONTROLA, "", WS_CHILD | WS_VISIBLE, 0, 2, width,
                                         kTabTop - 2, host, nullptr, m_module, nullptr);
        TCITEMA tab = {};
        tab.mask = TCIF_TEXT;
        tab.pszText = const_cast<char*>("常规");
        for (int i = 0; i < count; ++i)
            SendMessageA(strip, TCM_INSERTITEMA, i, reinterpret_cast<LPARAM>(&tab));
    }

    const HINSTANCE m_module;
    const HWND m_window;
    std::vector<HWND> m_hosts;
    bool m_hasLaterPages[std::size(kEntries)] = {};
    size_t m_current = 0;
};

/// The times of one way to have the window, in milliseconds, a value a round.
struct Times
{
    std::vector<double> open;
    std::vector<double> firstSwitch;  // of all entries but the first, together
    std::vector<double> switchBack;   // of kSwitches, together
    std::vector<double> firstRestore; // makes the pages that nobody has visited
    std::vector<double> restore;
};

void TimeModule(Times& times)
{
    TOParam record = FactoryRecord();
    Stopwatch opening;
    RunInsideSettingsWindow(record, ParamPagePublic,
                            [&](HWND window)
                            {
                                PaintNow(window);
                                times.open.push_back(opening.Milliseconds());
                                const int rows = RowCount(window);
                                const auto openRow = [window](int row)
                                {
                                    OpenRow(window, row);
                                    PaintNow(window);
                                };
                                times.firstSwitch.push_back(Milliseconds(
                                    [&]
                                    {
                                        for (int row = 1; row < rows; ++row)
                                            openRow(row);
                                    }));
                                times.switchBack.push_back(Milliseconds(
                                    [&]
                                    {
                                        for (int i = 0; i < kSwitches; ++i)
                                            openRow(i % rows);
                                    }));
                                const auto restore = [window]
                                {
                                    SendMessageA(window, WM_COMMAND, IDC_RESTORE_DEFAULTS, 0);
                                    PaintNow(window);
                                };
                                times.firstRestore.push_back(Milliseconds(restore));
                                times.restore.push_back(Milliseconds(restore));
                            });
}

void TimeStock(HINSTANCE module, Times& times)
{
    Stopwatch opening;
    StockWindow window(module);
    times.open.push_back(opening.Milliseconds());
    times.firstSwitch.push_back(Milliseconds(
        [&]
        {
            for (size_t entry = 1; entry < std::size(kEntries); ++entry)
                window.Open(entry);
        }));
    times.switchBack.push_back(Milliseconds(
        [&]
        {
            for (int i = 0; i < kSwitches; ++i)
                window.Open(i % std::size(kEntries));
        }));
    const auto restore = [&]
    {
        window.Restore();
    };
    times.firstRestore.push_back(Milliseconds(restore));
    times.restore.push_back(Milliseconds(restore));
}

void Compare(const char* what, const std::vector<double>& ours, const std::vector<double>& stock,
             const char* goal = "")
{
    Report(what, Median(ours), "stock dialogs", Median(stock), goal);
}

} // namespace

int main()
{
    LoadLibraryA("riched20.dll");
    InitCommonControls();
    ZorvaneInterface::Init([](unsigned int, unsigned int, long) { return 0ul; });
    ZorvaneInterface::SetSpecialUI(SpecialUIIndicator, true);
    const HINSTANCE module = GetModuleHandleA("Zorvane.dll");
    Times ours, stock;
    // The first round fills caches on both sides and is not counted.
    for (int round = 0; round <= kRounds; ++round)
    {
        if (round == 1)
            ours = stock = {};
        TimeModule(ours);
        TimeStock(module, stock);
    }
    Compare("window open until painted", ours.open, stock.open, "1.5");
    Compare("first visit of all other entries", ours.firstSwitch, stock.firstSwitch, "1.5");
    Compare("twenty more changes of entry", ours.switchBack, stock.switchBack, "1.2");
    Compare("restore defaults, pages left to make", ours.firstRestore, stock.firstRestore);
    Compare("restore defaults, pages made", ours.restore, stock.restore);
    return 0;
}

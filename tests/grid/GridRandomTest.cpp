// Sends a grid any number of random messages and calls, so that a build that traps on undefined
// behaviour can show that none comes: grid_random_tests messages seed
//
// The window is hidden now and then for long, since most of the time goes into showing frames.
#include "tests/grid/GridTestSupport.h"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <vector>

namespace
{

constexpr int kMostRows = 200;
constexpr int kMostColumns = 20;

class RandomUser
{
public:
    RandomUser(COwerDrawListView& grid, GridHost& host, HBITMAP strip, unsigned seed)
        : grid(grid)
        , host(host)
        , strip(strip)
        , random(seed)
    {
    }

    bool CreateGrid()
    {
        if (!grid.Create(CRect(10, 10, 310, 210), &host, 6000))
            return false;
        grid.ShowWindow(SW_SHOW);
        return true;
    }

    /// Act makes the window anew before long.
    void EndGrid()
    {
        host.font = nullptr; // it may be the grid's
        grid.DestroyWindow();
    }

    void Act()
    {
        if (!grid.m_hWnd && Below(3) == 0)
            CreateGrid();
        const int kind = Below(100);
        if (kind < 60)
            SendMouseMessage();
        else if (kind < 66)
            SendScrollMessage();
        else if (kind < 70)
            SendOtherMessage();
        else if (kind < 71)
            Resize();
        else if (kind < 95)
            ChangeRows();
        else
            ChangeShape();
    }

    int Below(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }

private:
    /// Mostly one of `count` numbers from `least` on, now and then an extreme one.
    int Number(int count, int least = 0)
    {
        constexpr int kExtremes[] = {INT_MIN, INT_MIN + 1, -32768, -1, 0, 32767, 65535, INT_MAX};
        if (Below(40) == 0)
            return kExtremes[Below(std::size(kExtremes))];
        return least + Below(count);
    }

    /// Any bytes but NUL: letters, Chinese characters, halves of them, control characters.
    std::string Text()
    {
        std::string text;
        for (int length = Below(5) ? Below(8) : Below(300); length > 0; --length)
            text += static_cast<char>(1 + Below(255));
        return text;
    }

    void SendMouseMessage()
    {
        constexpr UINT kMessages[] = {WM_LBUTTONDOWN, WM_LBUTTONUP,     WM_RBUTTONDOWN,
                                      WM_RBUTTONUP,   WM_LBUTTONDBLCLK, WM_MOUSEMOVE};
        const UINT message = kMessages[Below(std::size(kMessages))];
        grid.SendMessage(message, 0, MAKELPARAM(Number(320, -10), Number(220, -10)));
    }

    void SendScrollMessage()
    {
        const int kind = Below(3);
        if (kind == 0)
            grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, Number(400, -200)), 0);
        else
            grid.SendMessage(kind == 1 ? WM_HSCROLL : WM_VSCROLL,
                             MAKEWPARAM(Number(10), Number(300)), 0);
    }

    /// An edit that begins presses the real button. A press that reached a scroll bar would keep it
    /// waiting for a release.
    static void PumpAllButTheMouse()
    {
        MSG message;
        while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        {
            const UINT number = message.message;
            const bool isOfMouse = (number >= WM_MOUSEFIRST && number <= WM_MOUSELAST) ||
                                   (number >= WM_NCMOUSEMOVE && number <= WM_NCMBUTTONDBLCLK);
            if (!isOfMouse)
                DispatchMessage(&message);
        }
    }

    void SendOtherMessage()
    {
        switch (Below(10))
        {
        case 0:
            grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
            break;
        case 1:
            grid.SendMessage(WM_NCLBUTTONDOWN, HTBORDER, 0);
            break;
        case 2:
            grid.SendMessage(WM_TIMER, Number(10), 0);
            break;
        case 3:
            host.SetFocus();
            break;
        case 4:
            // Not by WM_CHAR: thousands of these crash even a plain edit of Wine.
            grid.edit.SetWindowText(Text().c_str());
            break;
        case 5:
            grid.SendMessage(WM_USER + static_cast<UINT>(Below(0x1000)), random(), 0);
            break;
        case 6:
            grid.SendMessage(WM_CAPTURECHANGED);
            break;
        case 7:
            PumpAllButTheMouse();
            break;
        case 8:
            if (Below(20) == 0)
                host.ShowWindow(host.IsWindowVisible() ? SW_HIDE : SW_SHOW);
            break;
        case 9:
            if (Below(5) == 0)
                EndGrid();
            break;
        }
    }

    void Resize()
    {
        constexpr int kLong = 65535;
        switch (Below(5))
        {
        case 0:
            grid.SendMessage(WM_SIZE, 0, MAKELPARAM(kLong, kLong));
            break;
        case 1:
            grid.SendMessage(WM_SIZE, 0, MAKELPARAM(Below(40), Below(40)));
            break;
        default:
            grid.SetWindowPos(nullptr, 0, 0, Below(320), Below(220), SWP_NOMOVE);
            return;
        }
        CRect client;
        grid.GetClientRect(&client);
        grid.SendMessage(WM_SIZE, 0, MAKELPARAM(client.right, client.bottom));
    }

    void ChangeRows()
    {
        const int row = Number(kMostRows);
        const UINT column = static_cast<UINT>(Number(kMostColumns));
        const size_t kind = Below(24);
        if (kind < rowChanges.size())
            rowChanges[kind](row, column);
        else if (grid.rows.Count() < kMostRows)
            grid.AddRow(Text().c_str());
    }

    void ChangeShape()
    {
        if (grid.body)
            shapeChanges[Below(static_cast<int>(shapeChanges.size()))]();
    }

    void AddColumn()
    {
        if (grid.columns.size() < kMostColumns)
            grid.AddColumn(Text().c_str(), Number(120), random() & 0x3F, random() & 0x3F,
                           Below(3) ? strip : nullptr, Below(2));
    }

    void SetRowCount()
    {
        if (grid.ownerData)
            grid.body->SetRowCount(Number(2000));
        grid.UpdateScrollBars();
    }

    void SetRowHeight()
    {
        // Rows of few pixels would only make the painting long.
        int& height = grid.body->rowHeight;
        height = Below(8) ? 20 : Number(30, -2);
        if (height > 0 && height < 5)
            height = 20;
    }

    void SetColumnWidth()
    {
        EArray<int>& widths = grid.body->columnWidths;
        if (widths.count > 0)
            widths[Below(widths.count)] = Number(150, -5);
    }

    void SetRowPainter()
    {
        grid.body->paintRowBack = Below(2) ? COwerDrawListView::PaintRowBack : nullptr;
        grid.rowPaintProc = Below(3) ? ScrambleRow : nullptr;
        // It is called for every row, which is slow with very many.
        if (grid.body->rowCount > 2000)
            grid.body->paintRowBack = nullptr;
    }

    void SetCellPainter() { grid.cellPaintProc = Below(2) ? ScrambleCell : nullptr; }

    static void ScrambleState(HDC, int, int, int, int, RECT* rect, int* state, void* userData)
    {
        auto& user = *static_cast<RandomUser*>(userData);
        *state = 1 + user.Below(5);
        user.Scramble(*rect);
    }

    static void ScrambleCell(HDC dc, int, int, RECT* rect, HFONT boldFont, CWnd*, void* userData,
                             COwerDrawListView*)
    {
        auto& user = *static_cast<RandomUser*>(userData);
        const HGDIOBJ oldFont = SelectObject(dc, boldFont);
        DrawTextA(dc, user.Text().c_str(), -1, rect, user.random() & 0x3F);
        SelectObject(dc, oldFont);
        user.Scramble(*rect);
    }

    static void ScrambleRow(int, HDC dc, RECT* rect, CWnd*)
    {
        FillRect(dc, rect, static_cast<HBRUSH>(GetStockObject(LTGRAY_BRUSH)));
        rect->left = INT_MIN;
        rect->right = INT_MAX;
    }

    /// Painters may change what they are given.
    void Scramble(RECT& rect)
    {
        if (Below(20) == 0)
            rect.left = Number(300);
        if (Below(20) == 0)
            rect.right = Number(300);
    }

    COwerDrawListView& grid;
    GridHost& host;
    HBITMAP strip;
    std::mt19937 random;

    const std::vector<std::function<void(int row, UINT column)>> rowChanges = {
        [this](int row, UINT) { grid.DeleteRow(row); },
        [this](int, UINT)
        {
            if (Below(20) == 0)
                grid.DeleteAllRows();
        },
        [this](int row, UINT column) { grid.SetCellText(row, column, Text().c_str()); },
        [this](int row, UINT column) { grid.SetCellSubText(row, column, Text().c_str()); },
        [this](int row, UINT column) { grid.SetCellBackColor(row, column, random()); },
        [this](int row, UINT column) { grid.SetCellTextColor(row, column, random()); },
        [this](int row, UINT column) { grid.SetCellEditable(row, column, Below(2)); },
        [this](int row, UINT column)
        { grid.SetCellMark(row, column, static_cast<BYTE>(random())); },
        [this](int row, UINT column)
        { grid.SetCellCheck(row, column, static_cast<int>(random())); },
        [this](int, UINT column) { grid.SortByNumber(static_cast<int>(column), Below(2)); },
        [this](int, UINT column) { grid.SortByInteger(static_cast<int>(column), Below(2)); },
        [this](int, UINT column) { grid.SortByText(static_cast<int>(column), Below(2)); },
        [this](int row, UINT column)
        { grid.BeginEdit(static_cast<int>(column), row, Text().c_str(), Number(9), -Below(9)); },
        [this](int, UINT) { grid.CommitEdit(); },
    };

    /// What stands here twice comes twice as often.
    const std::vector<std::function<void()>> shapeChanges = {
        [this] { AddColumn(); },
        [this] { AddColumn(); },
        [this]
        {
            if (Below(20) == 0)
                grid.ClearColumns();
        },
        [this] { grid.ownerData = Below(2); },
        [this] { SetRowCount(); },
        [this] { SetRowHeight(); },
        [this] { grid.body->SetHeaderHeight(Below(4) ? 22 : Number(40)); },
        [this] { grid.body->SetScrollY(Number(3000, -100)); },
        [this] { grid.body->SetScrollX(Number(500, -100)); },
        [this] { grid.body->widthMode = 1 + Below(2); },
        [this] { grid.body->gridLines = Below(2); },
        [this] { SetColumnWidth(); },
        [this] { grid.body->EnsureRowVisible(Number(kMostRows)); },
        [this] { grid.ScrollToEnd(); },
        [this] { grid.body->currentRow = Number(kMostRows); },
        [this] { grid.cellOverlayProc = Below(2) ? ScrambleState : nullptr; },
        [this] { SetRowPainter(); },
        [this] { grid.body->SetFonts("Tahoma", Number(30), 400, "", 0, 0); },
        [this] { host.font = Below(2) ? grid.body->boldFont : nullptr; },
        [this] { grid.DrawOuterFrame(0); },
        [this] { SetCellPainter(); },
        [this] { SetCellPainter(); },
        [this] { grid.body->left = Number(60, -20); },
        [this] { grid.body->top = Number(60, -20); },
    };
};

/// Does as it is told by the random user in the midst of what the grid tells it.
class MeddlingHost : public GridHost
{
public:
    RandomUser* user = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == kGridMessage && user && !meddling && user->Below(4) == 0)
        {
            meddling = true;
            if (user->Below(20) == 0)
                user->EndGrid();
            else
                user->Act();
            meddling = false;
        }
        return message == kGridMessage || message == WM_NOTIFY
                   ? 0
                   : GridHost::WindowProc(message, wParam, lParam);
    }

private:
    bool meddling = false;
};

/// Ends the program at a trap, where a debugger would start and wait.
LONG WINAPI ReportTrap(EXCEPTION_POINTERS* exception)
{
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    printf("exception %08lx at %p\n", record.ExceptionCode, record.ExceptionAddress);
    fflush(stdout);
    _exit(1);
}

} // namespace

int main(int argc, char** argv)
{
    const int messages = argc > 1 ? atoi(argv[1]) : 20000;
    const unsigned seed = argc > 2 ? strtoul(argv[2], nullptr, 10) : 1;
    SetUnhandledExceptionFilter(ReportTrap);
    if (!AfxWinInit(GetModuleHandleA(nullptr), nullptr, GetCommandLineA(), SW_SHOW))
        return 1;
    {
        MeddlingHost host;
        COwerDrawListView grid;
        const HBITMAP strip = MakeCheckStrip(12, 10, 0, 0xFFFFFF);
        RandomUser user(grid, host, strip, seed);
        if (!user.CreateGrid())
            return 1;
        PointAt(grid, 150, 100);
        grid.userData = &user;
        host.user = &user;
        for (int i = 0; i < messages; ++i)
            user.Act();

        host.user = nullptr;
        host.font = nullptr;
        grid.DestroyWindow();
        DeleteObject(strip);
        ReleaseRealButton();
    }
    printf("%d random messages with seed %u: no crash\n", messages, seed);
    AfxWinTerm();
    return 0;
}

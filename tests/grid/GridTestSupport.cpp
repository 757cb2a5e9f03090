#include "tests/grid/GridTestSupport.h"

#include <cstdio>

LRESULT CountingGrid::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    ++received[message];
    return COwerDrawListView::WindowProc(message, wParam, lParam);
}

GridHost::GridHost()
{
    const char* windowClass = AfxRegisterWndClass(0, LoadCursor(nullptr, IDC_ARROW),
                                                  GetSysColorBrush(COLOR_WINDOW), nullptr);
    EXPECT_TRUE(CreateEx(0, windowClass, "grid host", WS_POPUP | WS_VISIBLE, 50, 50, 600, 400,
                         nullptr, nullptr));
    // The end of an earlier window may still take the focus away.
    SetForegroundWindow();
    PumpPending();
}

GridHost::~GridHost()
{
    DestroyWindow();
}

LRESULT GridHost::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_GETFONT)
        return reinterpret_cast<LRESULT>(font);
    if (message == kGridMessage)
        sent.push_back({message, wParam, lParam, {}});
    if (message == WM_NOTIFY)
        sent.push_back({message, wParam, lParam, *reinterpret_cast<NMHDR*>(lParam)});
    return CWnd::WindowProc(message, wParam, lParam);
}

std::string GridHost::Describe(const Message& message, bool sent, COwerDrawListView& grid)
{
    char text[64];
    bool isRight = true;
    if (message.number == WM_NOTIFY)
    {
        isRight = message.wParam == grid.ctrlId && message.header.hwndFrom == grid.m_hWnd &&
                  message.header.idFrom == grid.ctrlId;
        snprintf(text, sizeof(text), "notify %d", static_cast<int>(message.header.code));
    }
    else if (message.wParam == 2 || message.wParam == 6)
        snprintf(text, sizeof(text), "%s %d (%d,%d)", sent ? "send" : "post",
                 static_cast<int>(message.wParam), static_cast<short>(LOWORD(message.lParam)),
                 static_cast<short>(HIWORD(message.lParam)));
    else
    {
        isRight = message.lParam == reinterpret_cast<LPARAM>(&grid);
        snprintf(text, sizeof(text), "%s %d", sent ? "send" : "post",
                 static_cast<int>(message.wParam));
    }
    return text + std::string(isRight ? "" : "?");
}

std::vector<std::string> GridHost::Take(COwerDrawListView& grid)
{
    std::vector<std::string> told;
    for (const Message& message : sent)
        told.push_back(Describe(message, true, grid));
    sent.clear();

    MSG posted;
    while (PeekMessage(&posted, m_hWnd, kGridMessage, kGridMessage, PM_REMOVE))
        told.push_back(Describe({posted.message, posted.wParam, posted.lParam, {}}, false, grid));
    return told;
}

GridTest::GridTest()
{
    EXPECT_TRUE(grid.Create(CRect(10, 10, 310, 210), &host, 6000));
    grid.ShowWindow(SW_SHOW);
    grid.body->rowHeight = 20;
    PointAt(grid, 150, 100);
}

GridTest::~GridTest()
{
    grid.DestroyWindow();
    ReleaseRealButton();
}

void GridTest::AddColumns(const std::vector<int>& widths)
{
    for (const int width : widths)
        grid.AddColumn(std::to_string(grid.columns.size()).c_str(), width, kCentred, kCentred,
                       nullptr, kTextColumn);
}

void GridTest::FillStored(const std::vector<int>& widths, int rows)
{
    AddColumns(widths);
    for (int row = 0; row < rows; ++row)
    {
        grid.AddRow("");
        for (UINT column = 0; column < widths.size(); ++column)
            grid.SetCellText(row, column,
                             (std::to_string(row) + "," + std::to_string(column)).c_str());
    }
    PaintNow();
}

void GridTest::FillOwnerData(const std::vector<int>& widths, int rows)
{
    grid.ownerData = 1;
    AddColumns(widths);
    grid.body->SetRowCount(rows);
    grid.UpdateScrollBars();
    PaintNow();
}

void GridTest::SendMouse(UINT message, int x, int y)
{
    grid.SendMessage(message, 0, MAKELPARAM(x, y));
}

void GridTest::Click(int x, int y)
{
    SendMouse(WM_LBUTTONDOWN, x, y);
    SendMouse(WM_LBUTTONUP, x, y);
}

void GridTest::PaintNow()
{
    grid.RedrawWindow();
}

COLORREF GridTest::PixelAt(int x, int y)
{
    PaintNow();
    CClientDC dc(&grid);
    return dc.GetPixel(x, y);
}

SCROLLINFO GridTest::Bar(int bar)
{
    SCROLLINFO info = {};
    EXPECT_TRUE(grid.GetScrollInfo(bar, &info));
    return info;
}

void PumpPending()
{
    MSG message;
    while (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
    {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
}

void PointAt(const CWnd& window, int x, int y)
{
    POINT point = {x, y};
    window.ClientToScreen(&point);
    SetCursorPos(point.x, point.y);
}

void ReleaseRealButton()
{
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    PumpPending();
}

HBITMAP MakeCheckStrip(int cellWidth, int height, COLORREF left, COLORREF right)
{
    CClientDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    const HBITMAP strip = CreateCompatibleBitmap(screen, 2 * cellWidth, height);
    const HGDIOBJ old = SelectObject(dc, strip);
    dc.FillSolidRect(0, 0, cellWidth, height, left);
    dc.FillSolidRect(cellWidth, 0, cellWidth, height, right);
    SelectObject(dc, old);
    return strip;
}

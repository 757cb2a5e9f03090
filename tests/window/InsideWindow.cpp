#include "tests/window/InsideWindow.h"

#include "resources/resource.h"

#include <cstring>

namespace
{

constexpr int kPressDistance = 50; // half a tab, or less
constexpr UINT kMsgWork = WM_APP + 1;
const char kDriverClass[] = "ZorvaneInsideDriver";

const std::function<void(HWND)>* workInside = nullptr;
HWND driver = nullptr;

LRESULT CALLBACK WorkOnce(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kMsgWork || !workInside)
        return DefWindowProcA(window, message, wParam, lParam);
    const HWND settings = reinterpret_cast<HWND>(lParam);
    const std::function<void(HWND)> work = *workInside;
    workInside = nullptr;
    // The loop shows the window as soon as no message waits: this one may be ahead of that.
    ShowWindow(settings, SW_SHOW);
    work(settings);
    if (IsWindow(settings))
        SendMessageA(settings, WM_COMMAND, IDCANCEL, 0);
    return 0;
}

/// The window is activated when it is ready: then the work begins with the next message, which comes
/// ahead of any painting.
LRESULT CALLBACK NoticeActivation(int code, WPARAM wParam, LPARAM lParam)
{
    char title[32] = "";
    const HWND window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && workInside && GetWindowTextA(window, title, sizeof(title)) &&
        strcmp(title, "参数设置") == 0)
        PostMessageA(driver, kMsgWork, 0, reinterpret_cast<LPARAM>(window));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

HWND CreateDriver()
{
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = WorkOnce;
    windowClass.lpszClassName = kDriverClass;
    RegisterClassA(&windowClass);
    return CreateWindowExA(0, kDriverClass, "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                           nullptr);
}

/// The dialog on show in a window; null when there is none.
HWND DialogOnShow(HWND window)
{
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        char className[32] = "";
        GetClassNameA(child, className, sizeof(className));
        if (strcmp(className, "#32770") == 0 && IsWindowVisible(child))
            return child;
    }
    return nullptr;
}

void PressStrip(HWND strip, int x)
{
    const LPARAM point = MAKELPARAM(x, 20);
    SendMessageA(strip, WM_LBUTTONDOWN, MK_LBUTTON, point);
    SendMessageA(strip, WM_LBUTTONUP, 0, point);
}

/// A host without a strip is its only page.
void WalkTabs(HWND host, const std::function<void(HWND)>& visit)
{
    const HWND strip = GetDlgItem(host, IDC_TAB_STRIP);
    if (!strip)
        return visit(host);
    RECT area;
    GetClientRect(strip, &area);
    HWND last = nullptr;
    for (int x = kPressDistance / 2; x < area.right; x += kPressDistance)
    {
        PressStrip(strip, x);
        const HWND page = DialogOnShow(host);
        if (page != last)
            visit(page);
        last = page;
    }
}

} // namespace

int RunInsideSettingsWindow(TOParam& record, TParamSetPage page,
                            const std::function<void(HWND)>& work)
{
    driver = CreateDriver();
    workInside = &work;
    const HHOOK hook = SetWindowsHookExA(WH_CBT, NoticeActivation, nullptr, GetCurrentThreadId());
    const int result = ZorvaneInterface::DoModal(&record, page);
    UnhookWindowsHookEx(hook);
    workInside = nullptr;
    DestroyWindow(driver);
    return result;
}

int RowCount(HWND window)
{
    return static_cast<int>(SendMessageA(GetDlgItem(window, IDC_PAGE_LIST), LB_GETCOUNT, 0, 0));
}

void OpenRow(HWND window, int row)
{
    const HWND list = GetDlgItem(window, IDC_PAGE_LIST);
    SendMessageA(list, LB_SETCURSEL, row, 0);
    SendMessageA(window, WM_COMMAND, MAKEWPARAM(IDC_PAGE_LIST, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

HWND PageOnShow(HWND window)
{
    const HWND host = DialogOnShow(window);
    const HWND page = DialogOnShow(host);
    return page ? page : host;
}

void WalkPages(HWND window, const std::function<void(HWND)>& visit)
{
    const int rows = RowCount(window);
    for (int row = 0; row < rows; ++row)
    {
        OpenRow(window, row);
        WalkTabs(DialogOnShow(window), visit);
    }
}

void PaintNow(HWND window)
{
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

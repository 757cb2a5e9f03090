// The procedure of subclassed windows: translates messages into calls.
#include "skin/scroll/CoolSBPaint.h"
#include "skin/scroll/CoolSBTracking.h"

#include <windowsx.h>

namespace
{

constexpr DWORD kBarStyles = WS_HSCROLL | WS_VSCROLL;

ScrollPoint PointOf(LPARAM lParam)
{
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

ScrollPoint ScreenPointOf(HWND hwnd, LPARAM clientPoint)
{
    POINT point = {GET_X_LPARAM(clientPoint), GET_Y_LPARAM(clientPoint)};
    ClientToScreen(hwnd, &point);
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

bool IsBarHit(WPARAM hitCode)
{
    return hitCode == HTHSCROLL || hitCode == HTVSCROLL;
}

int BarOfHit(WPARAM hitCode)
{
    return hitCode == HTVSCROLL ? SB_VERT : SB_HORZ;
}

/// Hides the scroll style bits from the window's own procedure, which would lay out and paint bars of
/// its own.
class HiddenBarStyles
{
public:
    explicit HiddenBarStyles(HWND hwnd)
        : hwnd(hwnd)
        , quiet(hwnd)
        , hidden(Style() & kBarStyles)
    {
        if (hidden)
            SetWindowLongA(hwnd, GWL_STYLE, Style() & ~hidden);
    }
    ~HiddenBarStyles()
    {
        if (hidden)
            SetWindowLongA(hwnd, GWL_STYLE, Style() | hidden);
    }
    HiddenBarStyles(const HiddenBarStyles&) = delete;
    HiddenBarStyles& operator=(const HiddenBarStyles&) = delete;

private:
    LONG Style() const { return GetWindowLongA(hwnd, GWL_STYLE); }

    HWND hwnd;
    QuietStyleChanges quiet;
    LONG hidden;
};

LRESULT CallOld(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallWindowProcA(GetCoolSBWindow(hwnd)->oldWndProc, hwnd, message, wParam, lParam);
}

LRESULT CallOldWithoutBars(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HiddenBarStyles hidden(hwnd);
    return CallOld(hwnd, message, wParam, lParam);
}

void StoreEdges(CoolSBWindow& window, const RECT& whole, const RECT& client)
{
    window.leftEdge = client.left - whole.left;
    window.topEdge = client.top - whole.top;
    window.rightEdge = whole.right - client.right;
    window.bottomEdge = whole.bottom - client.bottom;
}

void FitDraggableButtons(const FrameShape& frame, CoolSBBar& bar)
{
    const bool vertical = bar.barType == SB_VERT;
    ButtonRow row = ButtonsOf(bar);
    row.FitDraggable(SpanLength(AxisSpan(GetBarRect(frame, vertical), vertical)));
    StoreButtons(bar, row);
}

WantedBar WantedOf(const CoolSBBar& bar)
{
    return {(bar.flags & kBarWanted) != 0, BarWidth(bar)};
}

LRESULT OnNcCalcSize(HWND hwnd, WPARAM wParam, LPARAM lParam)
{
    // The rectangle comes first in NCCALCSIZE_PARAMS, too.
    RECT& rect = *reinterpret_cast<RECT*>(lParam);
    const RECT whole = rect;
    const LRESULT result = CallOldWithoutBars(hwnd, WM_NCCALCSIZE, wParam, lParam);
    CoolSBWindow* window = GetCoolSBWindow(hwnd);
    if (!window)
        return result;

    StoreEdges(*window, whole, rect);
    ScrollBox client = ScrollBoxOf(rect);
    const ShownBars shown =
        ReserveBars(client, WantedOf(window->horz), WantedOf(window->vert), window->leftScrollBar);
    window->horz.shown = shown.horz;
    window->vert.shown = shown.vert;
    rect = RectOf(client);
    const FrameShape frame = FrameAt(whole, *window);
    FitDraggableButtons(frame, window->horz);
    FitDraggableButtons(frame, window->vert);
    return result;
}

LRESULT OnNcPaint(HWND hwnd, WPARAM wParam, LPARAM lParam)
{
    PaintBars(hwnd);
    if (!GetCoolSBWindow(hwnd))
        return 0;
    const LRESULT result = CallOldWithoutBars(hwnd, WM_NCPAINT, wParam, lParam);
    PaintCorner(hwnd);
    return result;
}

LRESULT OnNcHitTest(HWND hwnd, LPARAM lParam)
{
    const CoolSBWindow& window = *GetCoolSBWindow(hwnd);
    const FrameShape frame = FrameOf(hwnd, window);
    if (window.horz.shown && Contains(GetBarRect(frame, false), PointOf(lParam)))
        return HTHSCROLL;
    if (window.vert.shown && Contains(GetBarRect(frame, true), PointOf(lParam)))
        return HTVSCROLL;
    return CallOld(hwnd, WM_NCHITTEST, 0, lParam);
}

LRESULT OnStyleChanged(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    CoolSBWindow& window = *GetCoolSBWindow(hwnd);
    if (window.preventStyleChange)
        return 0;
    if (message == WM_STYLECHANGED && static_cast<int>(wParam) == GWL_EXSTYLE)
    {
        const STYLESTRUCT& change = *reinterpret_cast<const STYLESTRUCT*>(lParam);
        window.leftScrollBar = (change.styleNew & WS_EX_LEFTSCROLLBAR) != 0;
    }
    return CallOld(hwnd, message, wParam, lParam);
}

/// The cursor of an inserted button under the mouse, if it has one.
HCURSOR ButtonCursor(HWND hwnd, WORD hitCode)
{
    if (!IsBarHit(hitCode))
        return nullptr;
    POINT cursor = {};
    GetCursorPos(&cursor);
    const int bar = BarOfHit(hitCode);
    const int index =
        HitButton(hwnd, bar, {static_cast<int>(cursor.x), static_cast<int>(cursor.y)});
    return index < 0 ? nullptr : GetShownBar(hwnd, bar)->buttons[index].cursor;
}

LRESULT OnNcDestroy(HWND hwnd, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC oldWndProc = GetCoolSBWindow(hwnd)->oldWndProc;
    AbandonTracking(hwnd);
    DetachCoolSBWindow(hwnd);
    return CallWindowProcA(oldWndProc, hwnd, WM_NCDESTROY, wParam, lParam);
}

} // namespace

LRESULT CALLBACK CoolSBWndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    // Without a record somebody still calls this procedure after the subclass has ended.
    if (!GetCoolSBWindow(hwnd))
        return DefWindowProcA(hwnd, message, wParam, lParam);

    switch (message)
    {
    case WM_NCDESTROY:
        return OnNcDestroy(hwnd, wParam, lParam);
    case WM_NCCALCSIZE:
        return OnNcCalcSize(hwnd, wParam, lParam);
    case WM_NCPAINT:
        return OnNcPaint(hwnd, wParam, lParam);
    case WM_NCACTIVATE:
    case WM_SETTEXT:
        // These paint the frame, too.
        return CallOldWithoutBars(hwnd, message, wParam, lParam);
    case WM_NCHITTEST:
        return OnNcHitTest(hwnd, lParam);
    case WM_STYLECHANGING:
    case WM_STYLECHANGED:
        return OnStyleChanged(hwnd, message, wParam, lParam);

    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
        if (!IsBarHit(wParam))
            break;
        BeginPress(hwnd, BarOfHit(wParam), PointOf(lParam));
        return 0;
    case WM_NCMOUSEMOVE:
        if (!IsBarHit(wParam))
            break;
        // Goes no further: the system would paint a hot bar of its own.
        BeginHover(hwnd, BarOfHit(wParam), PointOf(lParam));
        return 0;
    case WM_MOUSEMOVE:
        if (!IsPressed(hwnd))
            break;
        MovePress(hwnd, ScreenPointOf(hwnd, lParam));
        return 0;
    case WM_LBUTTONUP:
        if (!IsPressed(hwnd))
            break;
        ReleasePress(hwnd, ScreenPointOf(hwnd, lParam));
        return 0;
    case WM_CAPTURECHANGED:
    case WM_CANCELMODE:
        // A message box opened by the window, say: no release will come.
        if (IsPressed(hwnd) && reinterpret_cast<HWND>(lParam) != hwnd)
            LosePress(hwnd);
        break;
    case WM_TIMER:
        if (HandleTimer(hwnd, wParam))
            return 0;
        break;
    case WM_SETCURSOR:
        if (const HCURSOR cursor = ButtonCursor(hwnd, LOWORD(lParam)))
        {
            SetCursor(cursor);
            return TRUE;
        }
        break;
    }
    // What was done above may have ended the subclass.
    const CoolSBWindow* window = GetCoolSBWindow(hwnd);
    return window ? CallWindowProcA(window->oldWndProc, hwnd, message, wParam, lParam)
                  : DefWindowProcA(hwnd, message, wParam, lParam);
}

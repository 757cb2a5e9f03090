#include "skin/scroll/CoolSBWindow.h"

#include <memory>
#include <new>

namespace
{

constexpr char kRecordProperty[] = "CoolSBSubclassPtr";

ButtonExtent ExtentOf(const CoolSBButton& button)
{
    ButtonExtent extent;
    extent.placement = static_cast<int>(button.placement);
    extent.size = button.size;
    extent.defaultSize = button.defaultSize;
    extent.minSize = button.minSize;
    extent.maxSize = button.maxSize;
    extent.draggable = (button.type & kCoolSBDraggable) != 0;
    return extent;
}

WNDPROC ReplaceWndProc(HWND hwnd, WNDPROC procedure)
{
    const LONG old = SetWindowLongA(hwnd, GWL_WNDPROC, reinterpret_cast<LONG>(procedure));
    return reinterpret_cast<WNDPROC>(old);
}

} // namespace

CoolSBTracking coolSBTracking;

CoolSBWindow* GetCoolSBWindow(HWND hwnd)
{
    return static_cast<CoolSBWindow*>(GetPropA(hwnd, kRecordProperty));
}

CoolSBWindow* AttachCoolSBWindow(HWND hwnd)
{
    std::unique_ptr<CoolSBWindow> window(new (std::nothrow) CoolSBWindow());
    if (!window || !SetPropA(hwnd, kRecordProperty, window.get()))
        return nullptr;
    window->oldWndProc = ReplaceWndProc(hwnd, CoolSBWndProc);
    if (!window->oldWndProc) // a window of another process
    {
        RemovePropA(hwnd, kRecordProperty);
        return nullptr;
    }
    return window.release();
}

void DetachCoolSBWindow(HWND hwnd)
{
    const std::unique_ptr<CoolSBWindow> window(GetCoolSBWindow(hwnd));
    ReplaceWndProc(hwnd, window->oldWndProc);
    RemovePropA(hwnd, kRecordProperty);
}

CoolSBBar& BarOf(CoolSBWindow& window, int bar)
{
    return bar == SB_VERT ? window.vert : window.horz;
}

CoolSBBar* GetShownBar(HWND hwnd, int bar)
{
    CoolSBWindow* window = GetCoolSBWindow(hwnd);
    if (!window || !BarOf(*window, bar).shown)
        return nullptr;
    return &BarOf(*window, bar);
}

ScrollValues ValuesOf(const CoolSBBar& bar)
{
    return {bar.info.nMin, bar.info.nMax, bar.info.nPage, bar.info.nPos};
}

bool BarCanScroll(const CoolSBBar& bar)
{
    const bool isEnabled = (bar.flags & kBarArrowsDisabled) != kBarArrowsDisabled;
    return isEnabled && ((bar.flags & kBarThumbAlways) || CanScroll(ValuesOf(bar)));
}

int BarWidth(const CoolSBBar& bar)
{
    const int metric = bar.barType == SB_VERT ? SM_CXVSCROLL : SM_CYHSCROLL;
    return ResolveLength(bar.barWidth, GetSystemMetrics(metric));
}

ButtonRow ButtonsOf(const CoolSBBar& bar)
{
    ButtonRow row;
    for (int i = 0; i < bar.buttonCount; ++i)
        row.Add(ExtentOf(bar.buttons[i]));
    return row;
}

void StoreButtons(CoolSBBar& bar, const ButtonRow& row)
{
    for (int i = 0; i < bar.buttonCount; ++i)
        bar.buttons[i].size = row[i].size;
    bar.sizeBefore = row.Length(kButtonBefore);
    bar.sizeAfter = row.Length(kButtonAfter);
}

FrameShape FrameOf(HWND hwnd, const CoolSBWindow& window)
{
    RECT place = {};
    GetWindowRect(hwnd, &place);
    return FrameAt(place, window);
}

FrameShape FrameAt(const RECT& place, const CoolSBWindow& window)
{
    FrameShape frame;
    frame.window = ScrollBoxOf(place);
    frame.edges = {window.leftEdge, window.topEdge, window.rightEdge, window.bottomEdge};
    frame.horzHeight = window.horz.shown ? BarWidth(window.horz) : 0;
    frame.vertWidth = window.vert.shown ? BarWidth(window.vert) : 0;
    frame.vertLeft = window.leftScrollBar;
    return frame;
}

BarShape ShapeOf(HWND hwnd, const CoolSBWindow& window, const CoolSBBar& bar)
{
    const bool vertical = bar.barType == SB_VERT;
    const int arrowMetric = GetSystemMetrics(vertical ? SM_CYVSCROLL : SM_CXHSCROLL);
    BarShape shape;
    shape.box = GetBarRect(FrameOf(hwnd, window), vertical);
    shape.vertical = vertical;
    shape.buttonsBefore = bar.buttonsBeforeShown ? bar.sizeBefore : 0;
    shape.buttonsAfter = bar.buttonsAfterShown ? bar.sizeAfter : 0;
    shape.arrow = ResolveLength(bar.arrowLength, arrowMetric);
    shape.minThumb = bar.minThumb;
    shape.values = ValuesOf(bar);
    shape.canScroll = BarCanScroll(bar);
    shape.thumbAlways = (bar.flags & kBarThumbAlways) != 0;
    return shape;
}

ScrollPart HitBar(HWND hwnd, int bar, ScrollPoint point)
{
    const CoolSBBar* shown = GetShownBar(hwnd, bar);
    return shown ? HitTest(ShapeOf(hwnd, *GetCoolSBWindow(hwnd), *shown), point) : kPartNone;
}

int HitButton(HWND hwnd, int bar, ScrollPoint point)
{
    if (HitBar(hwnd, bar, point) != kPartButton)
        return -1;
    const CoolSBWindow& window = *GetCoolSBWindow(hwnd);
    const CoolSBBar& shown = *GetShownBar(hwnd, bar);
    const BarShape shape = ShapeOf(hwnd, window, shown);
    return ButtonsOf(shown).At(AxisPlace(point, shape.vertical),
                               AxisSpan(shape.box, shape.vertical), shown.buttonsBeforeShown,
                               shown.buttonsAfterShown);
}

QuietStyleChanges::QuietStyleChanges(HWND hwnd)
    : hwnd(hwnd)
    , wasQuiet(GetCoolSBWindow(hwnd)->preventStyleChange)
{
    GetCoolSBWindow(hwnd)->preventStyleChange = true;
}

QuietStyleChanges::~QuietStyleChanges()
{
    if (CoolSBWindow* window = GetCoolSBWindow(hwnd))
        window->preventStyleChange = wasQuiet;
}

bool IsFrameStale(const CoolSBWindow& window)
{
    const auto isStale = [](const CoolSBBar& bar)
    {
        return bar.shown != ((bar.flags & kBarWanted) != 0);
    };
    return isStale(window.horz) || isStale(window.vert);
}

void ForceFrame(HWND hwnd)
{
    SetWindowPos(hwnd, nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void PaintFrame(HWND hwnd)
{
    SendMessageA(hwnd, WM_NCPAINT, 1, 0);
}

LRESULT NotifyParent(NMHDR& header)
{
    const HWND parent = GetParent(header.hwndFrom);
    return SendMessageA(parent ? parent : header.hwndFrom, WM_NOTIFY, header.idFrom,
                        reinterpret_cast<LPARAM>(&header));
}

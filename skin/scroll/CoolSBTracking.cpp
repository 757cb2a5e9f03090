#include "skin/scroll/CoolSBTracking.h"

#include "skin/scroll/CoolSBPaint.h"

#include <utility>

namespace
{

constexpr UINT_PTR kFirstRepeatTimer = 65533;
constexpr UINT_PTR kRepeatTimer = 65534;
constexpr UINT_PTR kHoverTimer = static_cast<UINT_PTR>(-14);

constexpr UINT kFirstRepeatDelay = 300; // milliseconds
constexpr UINT kRepeatDelay = 55;
constexpr UINT kHoverDelay = 20;

constexpr WORD kButtonClicked = 1;

CoolSBPress& Press()
{
    return coolSBTracking.press;
}

CoolSBHover& Hover()
{
    return coolSBTracking.hover;
}

ScrollPoint CursorPoint()
{
    POINT cursor = {};
    GetCursorPos(&cursor);
    return {static_cast<int>(cursor.x), static_cast<int>(cursor.y)};
}

/// The bar of the press, or null when it is gone or the press is over.
CoolSBBar* PressedBar(HWND hwnd)
{
    return IsPressed(hwnd) ? GetShownBar(hwnd, Press().trackBar) : nullptr;
}

void SendScroll(HWND hwnd, UINT message, int code, int pos = 0)
{
    SendMessageA(hwnd, message, MAKEWPARAM(code, pos), 0);
}

void SendClick(HWND hwnd, const CoolSBButton& button)
{
    NMHDR click = {hwnd, button.id, static_cast<UINT>(NM_CLICK)};
    NotifyParent(click);
}

bool IsArrowDisabled(const CoolSBBar& bar, int part)
{
    return (part == kPartArrowBack && (bar.flags & ESB_DISABLE_LEFT)) ||
           (part == kPartArrowForward && (bar.flags & ESB_DISABLE_RIGHT));
}

/// Draws the pressed part as the mouse has it: pressed on it, released off it.
void ShowPressAt(HWND hwnd, ScrollPoint point)
{
    if (!IsPressed(hwnd))
        return;
    CoolSBPress& press = Press();
    const CoolSBBar* bar = PressedBar(hwnd);
    const bool isOnPart = HitBar(hwnd, press.trackBar, point) == press.capturedPart;
    const bool works = bar && BarCanScroll(*bar) && !IsArrowDisabled(*bar, press.capturedPart);
    const int pressedPart = isOnPart && works ? press.capturedPart : kPartNone;
    if (pressedPart == press.pressedPart)
        return;
    press.pressedPart = pressedPart;
    PaintBar(hwnd, press.trackBar);
}

/// Takes the mouse, unless what was sent or painted has ended the press.
void CaptureMouse(HWND hwnd)
{
    if (IsPressed(hwnd))
        SetCapture(hwnd);
}

// Arrows and page areas

void PressLineOrPage(HWND hwnd, const CoolSBBar& bar, ScrollPoint point)
{
    if (IsArrowDisabled(bar, Press().capturedPart))
    {
        Press() = {};
        return;
    }
    if (BarCanScroll(bar))
    {
        SendScroll(hwnd, Press().scrollMessage, Press().capturedPart);
        ShowPressAt(hwnd, point);
        if (!IsPressed(hwnd))
            return;
        Press().repeatTimer = SetTimer(hwnd, kFirstRepeatTimer, kFirstRepeatDelay, nullptr);
    }
    CaptureMouse(hwnd);
}

void RepeatPress(HWND hwnd)
{
    ShowPressAt(hwnd, CursorPoint());
    if (IsPressed(hwnd) && Press().pressedPart != kPartNone)
        SendScroll(hwnd, Press().scrollMessage, Press().pressedPart);
}

// The thumb

void PressThumb(HWND hwnd, CoolSBBar& bar, ScrollPoint point)
{
    if (!BarCanScroll(bar))
    {
        Press() = {};
        return;
    }
    CoolSBWindow& window = *GetCoolSBWindow(hwnd);
    window.thumbTracking = true;
    bar.info.nTrackPos = bar.info.nPos;
    Press().thumb = StartDrag(ShapeOf(hwnd, window, bar), point);
    Press().pressedPart = kPartThumb;
    PaintBar(hwnd, Press().trackBar);
    CaptureMouse(hwnd);
}

void TrackThumb(HWND hwnd, ScrollPoint point)
{
    Press().thumb.thumbPos = DraggedThumbPos(Press().thumb, point);
    PaintTrack(hwnd, Press().trackBar);
    CoolSBBar* bar = PressedBar(hwnd);
    if (!bar)
        return;
    ThumbDrag& thumb = Press().thumb;
    const auto pos = DraggedScrollPos(thumb, ValuesOf(*bar), thumb.thumbPos);
    if (!pos || *pos == thumb.trackedPos)
        return;
    thumb.trackedPos = *pos;
    bar->info.nTrackPos = *pos;
    SendScroll(hwnd, Press().scrollMessage, SB_THUMBTRACK, *pos);
}

void DropThumb(HWND hwnd, const CoolSBPress& ended)
{
    SendScroll(hwnd, ended.scrollMessage, SB_THUMBPOSITION, ended.thumb.trackedPos);
    CoolSBWindow* window = GetCoolSBWindow(hwnd);
    if (!window)
        return;
    window->thumbTracking = false;
    // A bar that came or went during the drag was left as it was.
    if (IsFrameStale(*window))
        ForceFrame(hwnd);
}

// Inserted buttons

void EndHover()
{
    const CoolSBHover ended = std::exchange(Hover(), {});
    if (!ended.window)
        return;
    KillTimer(ended.window, ended.hoverTimer);
    PaintFrame(ended.window);
}

void PressButton(HWND hwnd, ScrollPoint point)
{
    EndHover();
    const int index = HitButton(hwnd, Press().trackBar, point);
    const CoolSBBar* bar = PressedBar(hwnd);
    if (!bar || index < 0)
    {
        Press() = {};
        return;
    }
    Press().pressedButton = index;
    Press().buttonClickPlace = AxisPlace(point, bar->barType == SB_VERT);
    Press().buttonStartSize = bar->buttons[index].size;
    SendClick(hwnd, bar->buttons[index]);
    if (!PressedBar(hwnd))
        return;
    Press().pressedPart = kPartButton;
    Press().lastHitPart = kPartButton;
    PaintBar(hwnd, Press().trackBar);
    CaptureMouse(hwnd);
}

/// The pressed button, or null when it is gone.
CoolSBButton* PressedButton(HWND hwnd)
{
    CoolSBBar* bar = PressedBar(hwnd);
    const int index = Press().pressedButton;
    return bar && index >= 0 && index < bar->buttonCount ? &bar->buttons[index] : nullptr;
}

void PullButton(HWND hwnd, CoolSBButton& button, ScrollPoint point)
{
    CoolSBBar& bar = *PressedBar(hwnd);
    const BarShape shape = ShapeOf(hwnd, *GetCoolSBWindow(hwnd), bar);
    const int moved = AxisPlace(point, shape.vertical) - Press().buttonClickPlace;
    button.size = Press().buttonStartSize;
    const int pulled = button.placement == kButtonBefore ? moved : -moved;
    button.defaultSize = ButtonsOf(bar).PulledSize(Press().pressedButton, pulled,
                                                   SpanLength(AxisSpan(shape.box, shape.vertical)));
    button.size = button.defaultSize;
    StoreButtons(bar, ButtonsOf(bar));
    PaintBar(hwnd, Press().trackBar);
}

void MoveOnButton(HWND hwnd, ScrollPoint point)
{
    CoolSBButton* button = PressedButton(hwnd);
    if (!button)
        return;
    if (button->type & kCoolSBDraggable)
        return PullButton(hwnd, *button, point);

    const bool isOn = HitButton(hwnd, Press().trackBar, point) == Press().pressedButton;
    const int hitPart = isOn ? kPartButton : kPartNone;
    if (hitPart == Press().lastHitPart)
        return;
    Press().lastHitPart = hitPart;
    Press().pressedPart = hitPart;
    PaintBar(hwnd, Press().trackBar);
}

void ClickButton(HWND hwnd, const CoolSBPress& ended, ScrollPoint point)
{
    if (HitButton(hwnd, ended.trackBar, point) != ended.pressedButton || ended.pressedButton < 0)
        return;
    CoolSBButton& button = GetShownBar(hwnd, ended.trackBar)->buttons[ended.pressedButton];
    const UINT type = button.type & kCoolSBTypeMask;
    if (type == kCoolSBToggle || type == kCoolSBToggleNotHot)
        button.state = !button.state;
    SendMessageA(hwnd, WM_COMMAND, MAKEWPARAM(button.id, kButtonClicked), 0);
    PaintBar(hwnd, ended.trackBar);
}

// Ends

/// Takes the press out of the state before anything is sent: giving up the capture and the messages
/// may lead back here.
CoolSBPress EndPress(HWND hwnd)
{
    const CoolSBPress ended = std::exchange(Press(), {});
    if (GetCapture() == hwnd)
        ReleaseCapture();
    if (ended.repeatTimer)
        KillTimer(hwnd, ended.repeatTimer);
    return ended;
}

void FinishPress(HWND hwnd, const CoolSBPress& ended)
{
    const CoolSBWindow* window = GetCoolSBWindow(hwnd);
    if (window && window->thumbTracking)
        DropThumb(hwnd, ended);
    SendScroll(hwnd, ended.scrollMessage, SB_ENDSCROLL);
    PaintBar(hwnd, ended.trackBar);
}

// The mouse above a bar

void FollowHover(HWND hwnd)
{
    CoolSBHover& hover = Hover();
    const CoolSBWindow* window = GetCoolSBWindow(hwnd);
    if (!window || window->thumbTracking)
        return;
    const ScrollPoint cursor = CursorPoint();
    if (!Contains(hover.hoverRect, cursor))
        return EndHover();

    hover.hoverPart = HitBar(hwnd, hover.hoverBar, cursor);
    const int button = HitButton(hwnd, hover.hoverBar, cursor);
    if (hover.hoverPart == hover.lastHoverPart && button == hover.hoverButton)
        return;
    hover.lastHoverPart = hover.hoverPart;
    hover.hoverButton = button;
    PaintBar(hwnd, hover.hoverBar);
}

} // namespace

void BeginPress(HWND hwnd, int bar, ScrollPoint point)
{
    if (IsPressed(Press().window))
        LosePress(Press().window);
    CoolSBBar* shown = GetShownBar(hwnd, bar);
    if (!shown)
        return;
    Press().window = hwnd;
    Press().trackBar = bar;
    Press().scrollMessage = bar == SB_VERT ? WM_VSCROLL : WM_HSCROLL;
    Press().capturedPart = HitBar(hwnd, bar, point);
    switch (Press().capturedPart)
    {
    case kPartNone:
        Press() = {};
        break;
    case kPartThumb:
        PressThumb(hwnd, *shown, point);
        break;
    case kPartButton:
        PressButton(hwnd, point);
        break;
    default:
        PressLineOrPage(hwnd, *shown, point);
    }
}

bool IsPressed(HWND hwnd)
{
    return Press().window == hwnd && Press().capturedPart != kPartNone;
}

void MovePress(HWND hwnd, ScrollPoint point)
{
    const CoolSBWindow* window = GetCoolSBWindow(hwnd);
    if (window && window->thumbTracking)
        TrackThumb(hwnd, point);
    else if (Press().capturedPart == kPartButton)
        MoveOnButton(hwnd, point);
    else
        ShowPressAt(hwnd, point);
}

void ReleasePress(HWND hwnd, ScrollPoint point)
{
    const CoolSBPress ended = EndPress(hwnd);
    FinishPress(hwnd, ended);
    if (ended.capturedPart == kPartButton)
        ClickButton(hwnd, ended, point);
}

void LosePress(HWND hwnd)
{
    FinishPress(hwnd, EndPress(hwnd));
}

void BeginHover(HWND hwnd, int bar, ScrollPoint point)
{
    if (Hover().window == hwnd && Hover().hoverBar == bar)
        return;
    EndHover();
    const CoolSBBar* shown = GetShownBar(hwnd, bar);
    if (!shown)
        return;
    CoolSBHover& hover = Hover();
    hover.window = hwnd;
    hover.hoverBar = bar;
    hover.hoverPart = HitBar(hwnd, bar, point);
    hover.lastHoverPart = hover.hoverPart;
    hover.hoverButton = HitButton(hwnd, bar, point);
    hover.hoverRect = ShapeOf(hwnd, *GetCoolSBWindow(hwnd), *shown).box;
    hover.hoverTimer = SetTimer(hwnd, kHoverTimer, kHoverDelay, nullptr);
    PaintBar(hwnd, bar);
}

bool HandleTimer(HWND hwnd, UINT_PTR id)
{
    if (id == kHoverTimer && Hover().window == hwnd)
    {
        FollowHover(hwnd);
        return true;
    }
    if (!IsPressed(hwnd) || id != Press().repeatTimer)
        return false;
    if (id == kFirstRepeatTimer)
    {
        KillTimer(hwnd, id);
        Press().repeatTimer = SetTimer(hwnd, kRepeatTimer, kRepeatDelay, nullptr);
    }
    else
        RepeatPress(hwnd);
    return true;
}

void AbandonTracking(HWND hwnd)
{
    if (IsPressed(hwnd))
        EndPress(hwnd);
    if (Hover().window == hwnd)
        KillTimer(hwnd, std::exchange(Hover(), {}).hoverTimer);
}

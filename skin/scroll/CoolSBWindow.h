// What is kept of each subclassed window and of the one bar that the mouse is at.
#pragma once

#include "skin/scroll/ButtonLayout.h"
#include "skin/scroll/CoolSB.h"

constexpr int kMostButtons = ButtonRow::kCapacity;

/// Bits of CoolSBBar::flags; the two low ones are the ESB_ values of the disabled arrows.
constexpr UINT kBarArrowsDisabled = ESB_DISABLE_BOTH;
constexpr UINT kBarThumbAlways = 4;
constexpr UINT kBarWanted = 8;

struct CoolSBBar
{
    UINT flags;
    bool shown; // it fits and is drawn
    SCROLLINFO info;
    int arrowLength; // below 0: in units of the system's
    int barWidth;    // likewise
    CoolSBButton buttons[kMostButtons];
    int buttonCount;
    int sizeBefore; // pixels of the inserted buttons at each end
    int sizeAfter;
    bool buttonsBeforeShown; // they fit
    bool buttonsAfterShown;
    int barType; // SB_HORZ or SB_VERT
    int style;   // CoolSBStyle
    int minThumb;
};

struct CoolSBWindow
{
    WNDPROC oldWndProc;
    CoolSBBar horz;
    CoolSBBar vert;
    bool thumbTracking;
    bool leftScrollBar; // the vertical bar stands at the left
    HWND toolTip;       // set by nothing
    int leftEdge;       // the window's own borders
    int rightEdge;
    int topEdge;
    int bottomEdge;
    bool preventStyleChange; // the scroll style bits are being hidden: tell nobody
};

/// The press of a mouse button on a bar.
struct CoolSBPress
{
    HWND window = nullptr;
    int trackBar = -1;
    int capturedPart = kPartNone; // the part pressed
    int pressedPart = kPartNone;  // the part drawn pressed now
    UINT scrollMessage = 0;
    UINT_PTR repeatTimer = 0;
    ThumbDrag thumb;
    int pressedButton = -1;
    int buttonClickPlace = 0; // along the bar, at the press on a button
    int buttonStartSize = 0;
    int lastHitPart = kPartNone; // the last move's, to draw a button on a change only
};

/// The mouse above a bar.
struct CoolSBHover
{
    HWND window = nullptr;
    UINT_PTR hoverTimer = 0;
    int hoverBar = -1;
    int hoverPart = kPartNone;
    int lastHoverPart = kPartNone;
    int hoverButton = -1;
    ScrollBox hoverRect; // on the screen
};

/// There is one mouse, so there is one of each in the process.
struct CoolSBTracking
{
    CoolSBPress press;
    CoolSBHover hover;
};

extern CoolSBTracking coolSBTracking;

/// The record of a subclassed window, or null. Whatever sends a message may destroy the window or
/// end its subclass: ask again after it.
CoolSBWindow* GetCoolSBWindow(HWND hwnd);

/// Makes the record of a window and puts CoolSBWndProc over its procedure; null when that fails.
CoolSBWindow* AttachCoolSBWindow(HWND hwnd);

/// Undoes AttachCoolSBWindow and frees the record.
void DetachCoolSBWindow(HWND hwnd);

CoolSBBar& BarOf(CoolSBWindow& window, int bar);

/// A bar of a subclassed window that is drawn, or null.
CoolSBBar* GetShownBar(HWND hwnd, int bar);

ScrollValues ValuesOf(const CoolSBBar& bar);

/// Whether a press on the bar scrolls.
bool BarCanScroll(const CoolSBBar& bar);

/// Pixels across a bar.
int BarWidth(const CoolSBBar& bar);

ButtonRow ButtonsOf(const CoolSBBar& bar);

/// Takes the sizes that a row has given its buttons.
void StoreButtons(CoolSBBar& bar, const ButtonRow& row);

/// The frame on the screen.
FrameShape FrameOf(HWND hwnd, const CoolSBWindow& window);

/// The frame of a window that is going to have this place.
FrameShape FrameAt(const RECT& place, const CoolSBWindow& window);

/// The bar on the screen.
BarShape ShapeOf(HWND hwnd, const CoolSBWindow& window, const CoolSBBar& bar);

/// The part of a window's bar at a point of the screen; kPartNone for a bar that is not shown.
ScrollPart HitBar(HWND hwnd, int bar, ScrollPoint point);

/// The inserted button of a window's bar at a point of the screen, or -1.
int HitButton(HWND hwnd, int bar, ScrollPoint point);

/// While it lives, style changes of a window are told to nobody.
class QuietStyleChanges
{
public:
    explicit QuietStyleChanges(HWND hwnd);
    ~QuietStyleChanges();
    QuietStyleChanges(const QuietStyleChanges&) = delete;
    QuietStyleChanges& operator=(const QuietStyleChanges&) = delete;

private:
    HWND hwnd;
    bool wasQuiet;
};

/// Whether a bar is wanted and not shown, or the other way round: the frame was not computed since,
/// or there is no room.
bool IsFrameStale(const CoolSBWindow& window);

/// Has the window compute and paint its frame anew.
void ForceFrame(HWND hwnd);

/// Paints the whole frame.
void PaintFrame(HWND hwnd);

/// Sends WM_NOTIFY to the parent of the window that the header names, or to that window itself.
LRESULT NotifyParent(NMHDR& header);

LRESULT CALLBACK CoolSBWndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

inline ScrollBox ScrollBoxOf(const RECT& rect)
{
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

inline RECT RectOf(const ScrollBox& box)
{
    return {box.left, box.top, box.right, box.bottom};
}

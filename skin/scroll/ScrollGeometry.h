// Where everything of a scroll bar lies. Free of windows.h.
//
// A vertical bar is a horizontal one with x and y swapped: what lies along the bar is told in spans
// of its axis, and only PartBox and HitTest know which axis that is.
#pragma once

#include "skin/scroll/ScrollValues.h"

#include <array>
#include <optional>

struct ScrollPoint
{
    int x = 0;
    int y = 0;
};

/// Pixels from `left` and `top` up to, not including, `right` and `bottom`.
struct ScrollBox
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// Pixels along the bar from `from` up to, not including, `to`.
struct ScrollSpan
{
    int from = 0;
    int to = 0;
};

/// The parts of a bar. The first four are the SB_ codes that a press on them sends.
enum ScrollPart
{
    kPartNone = -1,
    kPartArrowBack = 0,    // left or up
    kPartArrowForward = 1, // right or down
    kPartPageBack = 2,
    kPartPageForward = 3,
    kPartThumb = 5,
    kPartButton = 128 // an inserted button
};

/// What the geometry needs to know of a bar.
struct BarShape
{
    ScrollBox box; // with the inserted buttons
    bool vertical = false;
    int buttonsBefore = 0; // pixels of the inserted buttons shown at each end
    int buttonsAfter = 0;
    int arrow = 0; // pixels of one arrow
    int minThumb = 0;
    ScrollValues values;
    bool canScroll = true;
    bool thumbAlways = false;
};

struct Thumb
{
    int pos = 0;
    int length = 0;
};

struct PartSpan
{
    ScrollPart part = kPartNone;
    ScrollSpan span;
};

/// The parts to be drawn, in the order of drawing.
class BarParts
{
public:
    void Add(ScrollPart part, ScrollSpan span) { parts[count++] = {part, span}; }
    const PartSpan* begin() const { return parts.data(); }
    const PartSpan* end() const { return parts.data() + count; }

private:
    std::array<PartSpan, 5> parts;
    int count = 0;
};

/// A dragged thumb.
struct ThumbDrag
{
    ScrollBox trackRect; // the bar at the press, less its inserted buttons
    bool vertical = false;
    int arrow = 0;
    int thumbLength = 0;
    int thumbPos = 0;
    int thumbClickOffset = 0; // from the thumb's start to the mouse
    int thumbOriginalPos = 0;
    int startPos = 0;   // scroll position at the press
    int trackedPos = 0; // last scroll position reported
};

/// The frame of a window with bars.
struct FrameShape
{
    ScrollBox window;
    ScrollBox edges;       // widths of the window's own borders
    int horzHeight = 0;    // of the horizontal bar; 0 when it is not shown
    int vertWidth = 0;     // of the vertical bar; 0 when it is not shown
    bool vertLeft = false; // the vertical bar stands at the left
};

/// A bar that wants a place in a frame.
struct WantedBar
{
    bool wanted = false;
    int width = 0;
};

struct ShownBars
{
    bool horz = false;
    bool vert = false;
};

/// A length in pixels: a negative one counts in units of a system metric.
int ResolveLength(int length, int metric);

/// Pixels of a span; 0 for one upside down.
int SpanLength(ScrollSpan span);

/// The whole of a box along an axis.
ScrollSpan AxisSpan(const ScrollBox& box, bool vertical);

/// A point's place on an axis.
int AxisPlace(ScrollPoint point, bool vertical);

bool Contains(const ScrollBox& box, ScrollPoint point);

/// The part of a box that a span of its axis cuts out.
ScrollBox PartBox(const ScrollBox& box, bool vertical, ScrollSpan span);

/// The bar along its axis without the inserted buttons.
ScrollSpan BarSpan(const BarShape& shape);

/// Where the thumb of a bar lies: always between its arrows. Length 0 when there is no room or
/// nothing to show.
Thumb CalcThumb(ScrollSpan bar, int arrow, const ScrollValues& values, int minThumb);

/// The part of a bar at a point.
ScrollPart HitTest(const BarShape& shape, ScrollPoint point);

/// The parts of a bar as they are drawn, with the thumb where the position has it, or at `thumbPos`.
BarParts LayOutParts(const BarShape& shape, std::optional<int> thumbPos = std::nullopt);

/// Begins the drag of a thumb that `mouse` has pressed.
ThumbDrag StartDrag(const BarShape& shape, ScrollPoint mouse);

/// Where the dragged thumb follows the mouse to. Off the bar by more than 48 pixels at its ends or
/// 24 at its sides it is back where it began.
int DraggedThumbPos(const ThumbDrag& drag, ScrollPoint mouse);

/// The scroll position of a dragged thumb; nothing when there is no range.
std::optional<int> DraggedScrollPos(const ThumbDrag& drag, const ScrollValues& values,
                                    int thumbPos);

/// Takes the room of the wanted bars out of a client area; a bar without room is not shown.
ShownBars ReserveBars(ScrollBox& client, WantedBar horz, WantedBar vert, bool vertLeft);

/// The place of a bar within its window's frame; the horizontal one leaves the corner to the vertical
/// one.
ScrollBox GetBarRect(const FrameShape& frame, bool vertical);

/// The square between two shown bars.
ScrollBox GetCornerRect(const FrameShape& frame);

/// The triangle on an arrow whose box is `box`: tip first.
std::array<ScrollPoint, 3> ArrowTriangle(const ScrollBox& box, bool vertical, bool forward);

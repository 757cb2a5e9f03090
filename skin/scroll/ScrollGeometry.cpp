#include "skin/scroll/ScrollGeometry.h"

#include <algorithm>
#include <climits>

namespace
{

constexpr int kDragBeyondEnds = 48;
constexpr int kDragBeyondSides = 24;

constexpr int kTriangleBase = 8;

ScrollSpan AcrossSpan(const ScrollBox& box, bool vertical)
{
    return AxisSpan(box, !vertical);
}

bool Contains(ScrollSpan span, int64_t place)
{
    return place >= span.from && place < span.to;
}

bool ContainsWidened(ScrollSpan span, int place, int margin)
{
    return place >= int64_t{span.from} - margin && place < int64_t{span.to} + margin;
}

/// A bar shorter than two arrows gives half of itself to each.
int FittingArrow(ScrollSpan bar, int arrow)
{
    return std::clamp(arrow, 0, SpanLength(bar) / 2);
}

ScrollSpan TrackSpan(ScrollSpan bar, int arrow)
{
    const int fitting = FittingArrow(bar, arrow);
    return {bar.from + fitting, bar.from + SpanLength(bar) - fitting};
}

bool HasTrack(ScrollSpan bar, int arrow)
{
    return SpanLength(bar) > int64_t{arrow} * 2;
}

int64_t ThumbLength(int working, int arrow, const ScrollValues& values, int minThumb)
{
    if (values.page == 0)
        return arrow;
    const int64_t count = PositionCount(values);
    if (count < 1)
        return 0;
    return std::max<int64_t>(MulDivRounded(values.page, working, count), minThumb);
}

int ThumbOffset(int room, const ScrollValues& values)
{
    const int64_t count = PositionCount(values);
    if (count < 1)
        return 0;
    const int64_t steps = count - std::max<int64_t>(values.page, 1);
    const int64_t offset = MulDivRounded(int64_t{values.pos} - values.min, room, steps);
    return static_cast<int>(std::clamp<int64_t>(offset, 0, room));
}

/// What lies between the arrows.
void AddTrack(BarParts& parts, const BarShape& shape, ScrollSpan track, Thumb thumb)
{
    const int working = SpanLength(track);
    const bool pageFillsRange = shape.values.page >= PositionCount(shape.values);
    if (shape.canScroll && thumb.length < working)
    {
        parts.Add(kPartPageBack, {track.from, thumb.pos});
        parts.Add(kPartPageForward, {thumb.pos + thumb.length, track.to});
        parts.Add(kPartThumb, {thumb.pos, thumb.pos + thumb.length});
    }
    else if (shape.thumbAlways && shape.values.page > 0 && pageFillsRange)
        parts.Add(kPartThumb, track);
    else
        parts.Add(kPartPageBack, track);
}

ScrollBox InsideEdges(const FrameShape& frame)
{
    return {frame.window.left + frame.edges.left, frame.window.top + frame.edges.top,
            frame.window.right - frame.edges.right, frame.window.bottom - frame.edges.bottom};
}

ScrollPoint OnAxis(int64_t along, int64_t across, bool vertical)
{
    const int x = SaturatedInt(vertical ? across : along);
    const int y = SaturatedInt(vertical ? along : across);
    return {x, y};
}

/// How far the triangle's base lies from the middle of its arrow, and the tip from the base. The four
/// arrows differ by a pixel: that is how they look even.
struct TriangleOffsets
{
    int base;
    int tip;
};

TriangleOffsets OffsetsOf(bool vertical, bool forward)
{
    if (vertical)
        return forward ? TriangleOffsets{0, 4} : TriangleOffsets{4, -5};
    return forward ? TriangleOffsets{1, 4} : TriangleOffsets{3, -4};
}

} // namespace

int ResolveLength(int length, int metric)
{
    return length < 0 ? SaturatedInt(-int64_t{length} * metric) : length;
}

int SpanLength(ScrollSpan span)
{
    return static_cast<int>(std::clamp<int64_t>(int64_t{span.to} - span.from, 0, INT_MAX));
}

ScrollSpan AxisSpan(const ScrollBox& box, bool vertical)
{
    return vertical ? ScrollSpan{box.top, box.bottom} : ScrollSpan{box.left, box.right};
}

int AxisPlace(ScrollPoint point, bool vertical)
{
    return vertical ? point.y : point.x;
}

bool Contains(const ScrollBox& box, ScrollPoint point)
{
    return Contains(AxisSpan(box, false), point.x) && Contains(AxisSpan(box, true), point.y);
}

ScrollBox PartBox(const ScrollBox& box, bool vertical, ScrollSpan span)
{
    if (vertical)
        return {box.left, span.from, box.right, span.to};
    return {span.from, box.top, span.to, box.bottom};
}

ScrollSpan BarSpan(const BarShape& shape)
{
    const ScrollSpan whole = AxisSpan(shape.box, shape.vertical);
    const int length = SpanLength(whole);
    const int before = std::clamp(shape.buttonsBefore, 0, length);
    const int after = std::clamp(shape.buttonsAfter, 0, length - before);
    return {whole.from + before, whole.from + length - after};
}

Thumb CalcThumb(ScrollSpan bar, int arrow, const ScrollValues& values, int minThumb)
{
    const ScrollSpan track = TrackSpan(bar, arrow);
    const int working = SpanLength(track);
    const int64_t wanted = ThumbLength(working, arrow, values, minThumb);
    const int length = static_cast<int>(std::clamp<int64_t>(wanted, 0, working));
    if (length == 0)
        return {track.from, 0};
    return {track.from + ThumbOffset(working - length, values), length};
}

ScrollPart HitTest(const BarShape& shape, ScrollPoint point)
{
    if (!Contains(shape.box, point))
        return kPartNone;
    const int place = AxisPlace(point, shape.vertical);
    const ScrollSpan bar = BarSpan(shape);
    if (!Contains(bar, place))
        return kPartButton;

    const ScrollSpan track = TrackSpan(bar, shape.arrow);
    if (place < track.from)
        return kPartArrowBack;
    if (place >= track.to || !HasTrack(bar, shape.arrow))
        return kPartArrowForward;

    const Thumb thumb = CalcThumb(bar, shape.arrow, shape.values, shape.minThumb);
    if (thumb.length >= SpanLength(track))
        return kPartNone;
    if (place < thumb.pos)
        return kPartPageBack;
    return place < thumb.pos + thumb.length ? kPartThumb : kPartPageForward;
}

BarParts LayOutParts(const BarShape& shape, std::optional<int> thumbPos)
{
    const ScrollSpan bar = BarSpan(shape);
    const ScrollSpan track = TrackSpan(bar, shape.arrow);
    BarParts parts;
    parts.Add(kPartArrowBack, {bar.from, track.from});
    if (!HasTrack(bar, shape.arrow))
    {
        parts.Add(kPartArrowForward, {track.from, bar.to});
        return parts;
    }
    Thumb thumb = CalcThumb(bar, shape.arrow, shape.values, shape.minThumb);
    if (thumbPos)
        thumb.pos = std::clamp(*thumbPos, track.from, track.to - thumb.length);
    AddTrack(parts, shape, track, thumb);
    parts.Add(kPartArrowForward, {track.to, bar.to});
    return parts;
}

ThumbDrag StartDrag(const BarShape& shape, ScrollPoint mouse)
{
    const ScrollSpan bar = BarSpan(shape);
    const Thumb thumb = CalcThumb(bar, shape.arrow, shape.values, shape.minThumb);
    ThumbDrag drag;
    drag.trackRect = PartBox(shape.box, shape.vertical, bar);
    drag.vertical = shape.vertical;
    drag.arrow = shape.arrow;
    drag.thumbLength = thumb.length;
    drag.thumbPos = thumb.pos;
    drag.thumbClickOffset = SaturatedInt(int64_t{AxisPlace(mouse, shape.vertical)} - thumb.pos);
    drag.thumbOriginalPos = thumb.pos;
    drag.startPos = shape.values.pos;
    // Unlike any position, so that the first move reports whatever it finds. A release before the
    // first move reports it as it stands. That is meant.
    drag.trackedPos = SaturatedInt(-int64_t{shape.values.pos});
    return drag;
}

int DraggedThumbPos(const ThumbDrag& drag, ScrollPoint mouse)
{
    const ScrollSpan bar = AxisSpan(drag.trackRect, drag.vertical);
    const int along = AxisPlace(mouse, drag.vertical);
    const int across = AxisPlace(mouse, !drag.vertical);
    if (!ContainsWidened(bar, along, kDragBeyondEnds) ||
        !ContainsWidened(AcrossSpan(drag.trackRect, drag.vertical), across, kDragBeyondSides))
        return drag.thumbOriginalPos;

    const ScrollSpan track = TrackSpan(bar, drag.arrow);
    const int last = track.to - std::min(drag.thumbLength, SpanLength(track));
    const int64_t wanted = int64_t{along} - drag.thumbClickOffset;
    return static_cast<int>(std::clamp<int64_t>(wanted, track.from, last));
}

std::optional<int> DraggedScrollPos(const ThumbDrag& drag, const ScrollValues& values, int thumbPos)
{
    if (values.max <= values.min)
        return std::nullopt;
    // Pixels are coarser than positions: the way back through them may miss the start by one.
    if (thumbPos == drag.thumbOriginalPos)
        return drag.startPos;

    const ScrollSpan track = TrackSpan(AxisSpan(drag.trackRect, drag.vertical), drag.arrow);
    const int64_t room = int64_t{SpanLength(track)} - drag.thumbLength;
    const int64_t way = std::clamp<int64_t>(int64_t{thumbPos} - track.from, 0, INT_MAX);
    const int64_t steps = PositionCount(values) - values.page;
    return SaturatedInt(MulDivRounded(way, steps, room) + values.min);
}

ShownBars ReserveBars(ScrollBox& client, WantedBar horz, WantedBar vert, bool vertLeft)
{
    // A horizontal bar needs a pixel more than its own room, a vertical one does not. That is meant.
    const int width = SpanLength(AxisSpan(client, false));
    const int height = SpanLength(AxisSpan(client, true));
    const ShownBars shown = {horz.wanted && height > horz.width,
                             vert.wanted && width >= vert.width};
    if (shown.horz)
        client.bottom -= horz.width;
    if (shown.vert && vertLeft)
        client.left += vert.width;
    else if (shown.vert)
        client.right -= vert.width;
    return shown;
}

ScrollBox GetBarRect(const FrameShape& frame, bool vertical)
{
    ScrollBox bar = InsideEdges(frame);
    if (vertical)
    {
        bar.bottom -= frame.horzHeight;
        if (frame.vertLeft)
            bar.right = bar.left + frame.vertWidth;
        else
            bar.left = bar.right - frame.vertWidth;
        return bar;
    }
    bar.top = bar.bottom - frame.horzHeight;
    if (frame.vertLeft)
        bar.left += frame.vertWidth;
    else
        bar.right -= frame.vertWidth;
    return bar;
}

ScrollBox GetCornerRect(const FrameShape& frame)
{
    const ScrollBox horz = GetBarRect(frame, false);
    const ScrollBox vert = GetBarRect(frame, true);
    return {vert.left, horz.top, vert.right, horz.bottom};
}

std::array<ScrollPoint, 3> ArrowTriangle(const ScrollBox& box, bool vertical, bool forward)
{
    const ScrollSpan along = AxisSpan(box, vertical);
    const ScrollSpan across = AcrossSpan(box, vertical);
    const int length = SpanLength(along);
    const int width = SpanLength(across);
    const TriangleOffsets offsets = OffsetsOf(vertical, forward);

    const int64_t base = int64_t{along.from} + offsets.base + (length - 4) / 2;
    const int64_t side = int64_t{across.from} + (width - kTriangleBase) / 2;
    const int64_t middle = int64_t{across.from} + width / 2;
    return {OnAxis(base + offsets.tip, middle, vertical), OnAxis(base, side, vertical),
            OnAxis(base, side + kTriangleBase, vertical)};
}

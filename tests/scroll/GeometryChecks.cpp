#include "tests/scroll/GeometryChecks.h"

#include <algorithm>
#include <vector>

namespace
{

/// A number of any size: as many low bits of a random one as another random one says.
int AnyInt(const std::function<uint32_t()>& random)
{
    const uint32_t bits = random() % 33;
    const uint32_t value = random();
    const uint32_t kept = bits == 32 ? value : value & ((1u << bits) - 1);
    return static_cast<int>(random() % 2 ? kept : 0 - kept);
}

int Below(const std::function<uint32_t()>& random, int limit)
{
    return static_cast<int>(random() % static_cast<uint32_t>(limit));
}

bool IsInside(int from, int to, ScrollSpan outer)
{
    return outer.from <= from && from <= to && to <= outer.to;
}

ScrollSpan Track(const BarShape& shape)
{
    const ScrollSpan bar = BarSpan(shape);
    const int arrow = std::min(shape.arrow, SpanLength(bar) / 2);
    return {bar.from + arrow, bar.to - arrow};
}

bool ThumbIsInside(const BarShape& shape)
{
    const Thumb thumb = CalcThumb(BarSpan(shape), shape.arrow, shape.values, shape.minThumb);
    return thumb.length >= 0 && IsInside(thumb.pos, thumb.pos + thumb.length, Track(shape));
}

/// The parts cover the bar without a gap.
bool PartsTile(const BarShape& shape, const BarParts& parts)
{
    std::vector<PartSpan> sorted(parts.begin(), parts.end());
    std::sort(sorted.begin(), sorted.end(),
              [](const PartSpan& a, const PartSpan& b) {
                  return a.span.from != b.span.from ? a.span.from < b.span.from
                                                    : a.span.to < b.span.to;
              });
    const ScrollSpan bar = BarSpan(shape);
    int place = bar.from;
    for (const PartSpan& item : sorted)
    {
        if (item.span.from != place || item.span.to < place)
            return false;
        place = item.span.to;
    }
    return place == bar.to;
}

/// What is drawn at a place is what a press there hits.
bool HitAgreesWithDrawing(const BarShape& shape, ScrollPoint point)
{
    const ScrollPart hit = HitTest(shape, point);
    if (hit == kPartNone || hit == kPartButton)
        return true;
    const int place = AxisPlace(point, shape.vertical);
    for (const PartSpan& item : LayOutParts(shape))
        if (place >= item.span.from && place < item.span.to)
            return item.part == hit;
    return false;
}

const char* CheckDrag(const GeometryInput& input)
{
    const ThumbDrag drag = StartDrag(input.shape, input.mouse);
    const int thumbPos = DraggedThumbPos(drag, input.moved);
    if (!IsInside(thumbPos, thumbPos + drag.thumbLength, Track(input.shape)))
        return "the dragged thumb leaves its track";
    if (!PartsTile(input.shape, LayOutParts(input.shape, thumbPos)))
        return "the parts around a dragged thumb do not tile the bar";

    const ScrollValues& values = input.shape.values;
    const std::optional<int> position = DraggedScrollPos(drag, values, thumbPos);
    if (position.has_value() != (values.max > values.min))
        return "a position is reported without a range";
    if (DraggedScrollPos(drag, values, drag.thumbOriginalPos).value_or(values.pos) != values.pos)
        return "the thumb where it began reports another position";
    const int64_t last = int64_t{values.max} - values.page + 1;
    if (position && thumbPos != drag.thumbOriginalPos && last >= values.min &&
        (*position < values.min || *position > last))
        return "the reported position lies outside the range";
    return nullptr;
}

bool HasArea(const ScrollBox& box)
{
    return box.left < box.right && box.top < box.bottom;
}

bool Overlap(const ScrollBox& a, const ScrollBox& b)
{
    return HasArea({std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                    std::min(a.bottom, b.bottom)});
}

/// The shown bars, the corner and the client area lie side by side within the window.
const char* CheckFrame(const GeometryInput& input)
{
    FrameShape frame = input.frame;
    const ScrollBox& window = frame.window;
    ScrollBox client = {window.left + frame.edges.left, window.top + frame.edges.top,
                        window.right - frame.edges.right, window.bottom - frame.edges.bottom};
    const ShownBars shown =
        ReserveBars(client, {true, frame.horzHeight}, {true, frame.vertWidth}, frame.vertLeft);
    frame.horzHeight = shown.horz ? frame.horzHeight : 0;
    frame.vertWidth = shown.vert ? frame.vertWidth : 0;
    const ScrollBox boxes[] = {client, GetBarRect(frame, false), GetBarRect(frame, true),
                               GetCornerRect(frame)};
    for (const ScrollBox& box : boxes)
        if (HasArea(box) && (box.left < window.left || box.top < window.top ||
                             box.right > window.right || box.bottom > window.bottom))
            return "a bar leaves its window";
    for (const ScrollBox& box : boxes)
        for (const ScrollBox& other : boxes)
            if (&box != &other && Overlap(box, other))
                return "a bar covers another part of the window";
    return nullptr;
}

const char* CheckValues(const GeometryInput& input)
{
    ScrollValues values = input.shape.values;
    StorePage(values, values.page);
    if (values.page > std::max<int64_t>(PositionCount(values), 0))
        return "the page is longer than the range";
    StorePos(values, input.mouse.x);
    if (values.max > values.min &&
        (values.pos < values.min || values.pos > values.max + int64_t{1}))
        return "the position lies outside the range";
    if (int64_t{values.max} + 1 >= values.page &&
        ScrolledPosition(values, input.code, input.moved.x) < 0)
        return "a message leads to a negative position";
    return nullptr;
}

const char* CheckButtons(const GeometryInput& input)
{
    ButtonRow row = input.row;
    const ScrollSpan whole = AxisSpan(input.shape.box, input.shape.vertical);
    const int length = SpanLength(whole);
    row.FitDraggable(length);
    for (int i = 0; i < row.Count(); ++i)
    {
        if (row[i].size < 0 || (row[i].draggable && row[i].size < row[i].minSize))
            return "a button is shorter than its least size";
        if (row.PulledSize(i, input.moved.y, length) < row[i].minSize)
            return "a pulled button is shorter than its least size";
    }
    const ShownButtons shown = FitButtons(row, length);
    const int index = row.At(input.mouse.x, whole, shown.before, shown.after);
    if (index >= 0 && !IsInside(row.Place(index, whole).from, row.Place(index, whole).to, whole))
        return "a shown button leaves the bar";
    return nullptr;
}

} // namespace

GeometryInput MakeGeometryInput(const std::function<uint32_t()>& random)
{
    const bool wild = random() % 4 == 0;
    const auto pixels = [&](int limit)
    {
        return wild ? AnyInt(random) : Below(random, limit);
    };

    GeometryInput input;
    BarShape& shape = input.shape;
    shape.box.left = pixels(2000);
    shape.box.top = pixels(2000);
    shape.box.right = wild ? AnyInt(random) : shape.box.left + Below(random, 800);
    shape.box.bottom = wild ? AnyInt(random) : shape.box.top + Below(random, 800);
    shape.vertical = random() % 2 == 0;
    shape.buttonsBefore = pixels(60);
    shape.buttonsAfter = pixels(60);
    shape.arrow = wild ? std::abs(AnyInt(random) / 2) : Below(random, 40);
    shape.minThumb = pixels(40);
    shape.values = {AnyInt(random), AnyInt(random), static_cast<unsigned>(AnyInt(random)),
                    AnyInt(random)};
    shape.canScroll = random() % 8 != 0;
    shape.thumbAlways = random() % 8 == 0;
    input.mouse = {pixels(2800), pixels(2800)};
    input.moved = {pixels(2800), pixels(2800)};
    input.code = static_cast<int>(random() % 12);
    for (uint32_t count = random() % 4; count > 0; --count)
        input.row.Add({1 + Below(random, 2), pixels(50), pixels(50), pixels(20), pixels(80),
                       random() % 2 == 0});
    FrameShape& frame = input.frame;
    frame.window = {Below(random, 50), Below(random, 50), 0, 0};
    frame.edges = {Below(random, 6), Below(random, 30), Below(random, 6), Below(random, 6)};
    frame.window.right = frame.window.left + frame.edges.left + frame.edges.right;
    frame.window.right += Below(random, 60);
    frame.window.bottom = frame.window.top + frame.edges.top + frame.edges.bottom;
    frame.window.bottom += Below(random, 60);
    frame.horzHeight = 1 + Below(random, 40);
    frame.vertWidth = 1 + Below(random, 40);
    frame.vertLeft = random() % 2 == 0;
    return input;
}

const char* CheckGeometry(const GeometryInput& input)
{
    const BarShape& shape = input.shape;
    if (!ThumbIsInside(shape))
        return "the thumb leaves its track";
    if (!PartsTile(shape, LayOutParts(shape)))
        return "the parts do not tile the bar";
    if (shape.canScroll && !HitAgreesWithDrawing(shape, input.mouse))
        return "a press hits another part than is drawn";
    ArrowTriangle(shape.box, shape.vertical, input.code % 2 == 0);
    for (const auto check : {CheckDrag, CheckFrame, CheckValues, CheckButtons})
        if (const char* broken = check(input))
            return broken;
    return nullptr;
}

#include "skin/scroll/ScrollGeometry.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

bool operator==(const ScrollPoint& a, const ScrollPoint& b)
{
    return a.x == b.x && a.y == b.y;
}

bool operator==(const ScrollBox& a, const ScrollBox& b)
{
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

void PrintTo(const ScrollPoint& point, std::ostream* out)
{
    *out << "(" << point.x << "," << point.y << ")";
}

void PrintTo(const ScrollBox& box, std::ostream* out)
{
    *out << box.left << "," << box.top << " to " << box.right << "," << box.bottom;
}

namespace
{

/// A horizontal bar of 200 pixels at (1000, 500), 16 high, arrows 20, range 0 to 99, page 25: the
/// track is 160 long, the thumb 40.
BarShape Bar(int pos)
{
    BarShape shape;
    shape.box = {1000, 500, 1200, 516};
    shape.arrow = 20;
    shape.minThumb = 6;
    shape.values = {0, 99, 25, pos};
    return shape;
}

ScrollBox Turned(const ScrollBox& box)
{
    return {box.top, box.left, box.bottom, box.right};
}

/// The same bar standing upright, with x and y swapped.
BarShape Upright(BarShape shape)
{
    shape.vertical = true;
    shape.box = Turned(shape.box);
    return shape;
}

std::string Describe(const BarParts& parts)
{
    std::string text;
    for (const PartSpan& item : parts)
        text += std::to_string(item.part) + ":" + std::to_string(item.span.from) + "-" +
                std::to_string(item.span.to) + " ";
    return text;
}

TEST(ScrollGeometry, NegativeLengthsCountInUnitsOfTheMetric)
{
    EXPECT_EQ(ResolveLength(12, 17), 12);
    EXPECT_EQ(ResolveLength(-1, 17), 17);
    EXPECT_EQ(ResolveLength(-8, 17), 136);
}

TEST(ScrollGeometry, ThumbStandsWhereThePositionIs)
{
    const ScrollSpan bar = {1000, 1200};
    const auto thumb = [&bar](int pos)
    {
        return CalcThumb(bar, 20, {0, 99, 25, pos}, 6);
    };
    EXPECT_EQ(thumb(0).length, 40);
    EXPECT_EQ(thumb(0).pos, 1020);
    EXPECT_EQ(thumb(75).pos, 1140) << "the last page ends at the arrow";
    EXPECT_EQ(thumb(37).pos, 1020 + 59) << "59.2 pixels";
    EXPECT_EQ(thumb(-50).pos, 1020);
    EXPECT_EQ(thumb(5000).pos, 1140);
}

TEST(ScrollGeometry, RangeNeedNotBeginAtZero)
{
    const Thumb thumb = CalcThumb({1000, 1200}, 20, {100, 199, 25, 175}, 6);
    EXPECT_EQ(thumb.pos, 1140);
    EXPECT_EQ(thumb.length, 40);
}

TEST(ScrollGeometry, ThumbWithoutAPageIsAsLongAsAnArrow)
{
    const Thumb thumb = CalcThumb({0, 300}, 17, {0, 100, 0, 100}, 6);
    EXPECT_EQ(thumb.length, 17);
    EXPECT_EQ(thumb.pos, 300 - 17 - 17) << "the last position is at the end";
}

TEST(ScrollGeometry, ThumbIsNeverShorterThanItsMinimum)
{
    EXPECT_EQ(CalcThumb({0, 200}, 20, {0, 9999, 1, 0}, 6).length, 6);
    EXPECT_EQ(CalcThumb({0, 200}, 20, {0, 9999, 1, 0}, 30).length, 30);
    EXPECT_EQ(CalcThumb({0, 200}, 20, {0, 9999, 1, 0}, 1000).length, 160) << "nor than its track";
}

TEST(ScrollGeometry, RangeUpsideDownHasNoThumb)
{
    const Thumb thumb = CalcThumb({0, 200}, 20, {10, 5, 3, 7}, 6);
    EXPECT_EQ(thumb.pos, 20);
    EXPECT_EQ(thumb.length, 0);
}

TEST(ScrollGeometry, HitTestFindsEachPart)
{
    // Track 1020 to 1180; position 37 puts the thumb at 1079.
    const struct
    {
        int along;
        ScrollPart part;
    } cases[] = {{1000, kPartArrowBack},    {1019, kPartArrowBack},   {1020, kPartPageBack},
                 {1078, kPartPageBack},     {1079, kPartThumb},       {1118, kPartThumb},
                 {1119, kPartPageForward},  {1179, kPartPageForward}, {1180, kPartArrowForward},
                 {1199, kPartArrowForward}, {999, kPartNone},         {1200, kPartNone}};
    for (const auto& [along, part] : cases)
    {
        EXPECT_EQ(HitTest(Bar(37), {along, 508}), part) << along;
        EXPECT_EQ(HitTest(Upright(Bar(37)), {508, along}), part) << along << " upright";
    }
}

TEST(ScrollGeometry, HitTestOutsideAcrossTheBarFindsNothing)
{
    EXPECT_EQ(HitTest(Bar(0), {1005, 499}), kPartNone);
    EXPECT_EQ(HitTest(Bar(0), {1005, 500}), kPartArrowBack);
    EXPECT_EQ(HitTest(Bar(0), {1005, 515}), kPartArrowBack);
    EXPECT_EQ(HitTest(Bar(0), {1005, 516}), kPartNone);
}

TEST(ScrollGeometry, HitTestOfAFullTrackFindsNothing)
{
    BarShape shape = Bar(0);
    shape.values = {0, 99, 100, 0};
    EXPECT_EQ(HitTest(shape, {1100, 508}), kPartNone);
    EXPECT_EQ(HitTest(shape, {1010, 508}), kPartArrowBack);
}

TEST(ScrollGeometry, ArrowsOfAShortBarShareIt)
{
    BarShape shape = Bar(37);
    shape.box.right = 1035;
    EXPECT_EQ(HitTest(shape, {1016, 508}), kPartArrowBack);
    EXPECT_EQ(HitTest(shape, {1017, 508}), kPartArrowForward);
    EXPECT_EQ(HitTest(shape, {1034, 508}), kPartArrowForward);
    EXPECT_EQ(Describe(LayOutParts(shape)), "0:1000-1017 1:1017-1035 ");

    shape.box.right = 1040;
    EXPECT_EQ(Describe(LayOutParts(shape)), "0:1000-1020 1:1020-1040 ")
        << "no track when there is just room for two arrows";
}

TEST(ScrollGeometry, InsertedButtonsAreAtTheEnds)
{
    BarShape shape = Bar(0);
    shape.buttonsBefore = 18;
    shape.buttonsAfter = 30;
    EXPECT_EQ(HitTest(shape, {1000, 508}), kPartButton);
    EXPECT_EQ(HitTest(shape, {1017, 508}), kPartButton);
    EXPECT_EQ(HitTest(shape, {1018, 508}), kPartArrowBack);
    EXPECT_EQ(HitTest(shape, {1169, 508}), kPartArrowForward);
    EXPECT_EQ(HitTest(shape, {1170, 508}), kPartButton);
    EXPECT_EQ(HitTest(shape, {1199, 508}), kPartButton);
}

TEST(ScrollGeometry, PartsAreLaidOutInTheOrderOfDrawing)
{
    const char* expected = "0:1000-1020 2:1020-1079 3:1119-1180 5:1079-1119 1:1180-1200 ";
    EXPECT_EQ(Describe(LayOutParts(Bar(37))), expected);
    EXPECT_EQ(Describe(LayOutParts(Upright(Bar(37)))), expected);
}

TEST(ScrollGeometry, DraggedThumbIsLaidOutWhereItIs)
{
    EXPECT_EQ(Describe(LayOutParts(Bar(37), 1030)),
              "0:1000-1020 2:1020-1030 3:1070-1180 5:1030-1070 1:1180-1200 ");
    EXPECT_EQ(Describe(LayOutParts(Bar(37), 9000)),
              "0:1000-1020 2:1020-1140 3:1180-1180 5:1140-1180 1:1180-1200 ");
}

TEST(ScrollGeometry, OnePageAreaStandsInForAThumbThatIsNotThere)
{
    BarShape shape = Bar(37);
    shape.canScroll = false;
    EXPECT_EQ(Describe(LayOutParts(shape)), "0:1000-1020 2:1020-1180 1:1180-1200 ");

    shape = Bar(0);
    shape.values.page = 100;
    EXPECT_EQ(Describe(LayOutParts(shape)), "0:1000-1020 2:1020-1180 1:1180-1200 ");
    shape.thumbAlways = true;
    EXPECT_EQ(Describe(LayOutParts(shape)), "0:1000-1020 5:1020-1180 1:1180-1200 ");
}

TEST(ScrollGeometry, ThumbFollowsTheMouseBetweenTheArrows)
{
    const ThumbDrag drag = StartDrag(Bar(37), {1090, 508});
    EXPECT_EQ(drag.thumbOriginalPos, 1079);
    EXPECT_EQ(drag.thumbClickOffset, 11);
    EXPECT_EQ(DraggedThumbPos(drag, {1090, 508}), 1079);
    EXPECT_EQ(DraggedThumbPos(drag, {1100, 508}), 1089);
    EXPECT_EQ(DraggedThumbPos(drag, {1001, 508}), 1020);
    EXPECT_EQ(DraggedThumbPos(drag, {1240, 508}), 1140);
}

TEST(ScrollGeometry, ThumbPulledOffTheBarIsBackWhereItBegan)
{
    const struct
    {
        ScrollPoint mouse;
        bool back;
    } cases[] = {{{1150, 476}, false}, {{1150, 475}, true}, {{1150, 539}, false},
                 {{1150, 540}, true},  {{952, 508}, false}, {{951, 508}, true},
                 {{1247, 508}, false}, {{1248, 508}, true}};
    const ThumbDrag drag = StartDrag(Bar(37), {1090, 508});
    const ThumbDrag upright = StartDrag(Upright(Bar(37)), {508, 1090});
    for (const auto& [mouse, back] : cases)
    {
        EXPECT_EQ(DraggedThumbPos(drag, mouse) == 1079, back) << mouse.x << "," << mouse.y;
        EXPECT_EQ(DraggedThumbPos(upright, {mouse.y, mouse.x}) == 1079, back)
            << mouse.x << "," << mouse.y << " upright";
    }
}

TEST(ScrollGeometry, DraggedThumbReportsEveryPositionOfTheRange)
{
    const BarShape shape = Bar(37);
    const ThumbDrag drag = StartDrag(shape, {1090, 508});
    EXPECT_EQ(DraggedScrollPos(drag, shape.values, 1020), 0);
    EXPECT_EQ(DraggedScrollPos(drag, shape.values, 1140), 75);
    EXPECT_EQ(DraggedScrollPos(drag, shape.values, 1080), 38) << "37.5";
    const ScrollValues shifted = {1000, 1099, 25, 1037};
    EXPECT_EQ(DraggedScrollPos(drag, shifted, 1140), 1075);
}

TEST(ScrollGeometry, ThumbWhereItBeganReportsThePositionWhereItBegan)
{
    // Far more positions than pixels, so that most would be missed on the way back through them.
    for (int pos = 0; pos <= 9000; pos += 7)
    {
        BarShape shape = Bar(pos);
        shape.values = {0, 9999, 1000, pos};
        const ThumbDrag drag = StartDrag(shape, {1100, 508});
        EXPECT_EQ(DraggedScrollPos(drag, shape.values, drag.thumbOriginalPos), pos);
    }
}

TEST(ScrollGeometry, ThumbWithoutARangeReportsNothing)
{
    const ThumbDrag drag = StartDrag(Bar(0), {1025, 508});
    EXPECT_FALSE(DraggedScrollPos(drag, {5, 5, 0, 5}, 1030));
    EXPECT_FALSE(DraggedScrollPos(drag, {5, 1, 0, 5}, 1030));
}

TEST(ScrollGeometry, NothingIsReportedAtThePressItself)
{
    EXPECT_EQ(StartDrag(Bar(37), {1090, 508}).trackedPos, -37);
}

TEST(ScrollGeometry, BarsTakeTheirRoomFromTheClientArea)
{
    ScrollBox client = {10, 20, 110, 220};
    ShownBars shown = ReserveBars(client, {true, 12}, {true, 17}, false);
    EXPECT_TRUE(shown.horz && shown.vert);
    EXPECT_EQ(client, (ScrollBox{10, 20, 93, 208}));

    client = {10, 20, 110, 220};
    shown = ReserveBars(client, {false, 12}, {true, 17}, true);
    EXPECT_TRUE(!shown.horz && shown.vert);
    EXPECT_EQ(client, (ScrollBox{27, 20, 110, 220}));
}

TEST(ScrollGeometry, BarWithoutRoomIsNotShown)
{
    ScrollBox client = {0, 0, 17, 12};
    ShownBars shown = ReserveBars(client, {true, 12}, {true, 17}, false);
    EXPECT_FALSE(shown.horz) << "a horizontal bar must leave a pixel";
    EXPECT_TRUE(shown.vert) << "a vertical bar need not";
    EXPECT_EQ(client, (ScrollBox{0, 0, 0, 12}));

    client = {0, 0, 16, 13};
    shown = ReserveBars(client, {true, 12}, {true, 17}, false);
    EXPECT_TRUE(shown.horz);
    EXPECT_FALSE(shown.vert);
    EXPECT_EQ(client, (ScrollBox{0, 0, 16, 1}));
}

TEST(ScrollGeometry, BarsLieInsideTheEdgesAndLeaveTheCornerFree)
{
    FrameShape frame;
    frame.window = {100, 100, 400, 300};
    frame.edges = {3, 25, 4, 5};
    frame.horzHeight = 16;
    frame.vertWidth = 18;
    EXPECT_EQ(GetBarRect(frame, false), (ScrollBox{103, 279, 378, 295}));
    EXPECT_EQ(GetBarRect(frame, true), (ScrollBox{378, 125, 396, 279}));
    EXPECT_EQ(GetCornerRect(frame), (ScrollBox{378, 279, 396, 295}));

    frame.vertLeft = true;
    EXPECT_EQ(GetBarRect(frame, false), (ScrollBox{121, 279, 396, 295}));
    EXPECT_EQ(GetBarRect(frame, true), (ScrollBox{103, 125, 121, 279}));
    EXPECT_EQ(GetCornerRect(frame), (ScrollBox{103, 279, 121, 295}));

    frame.vertWidth = 0;
    EXPECT_EQ(GetBarRect(frame, false), (ScrollBox{103, 279, 396, 295}));
}

TEST(ScrollGeometry, TrianglesPointOutOfTheirArrows)
{
    using Triangle = std::array<ScrollPoint, 3>;
    const ScrollBox wide = {100, 200, 116, 220}; // 16 wide, 20 high
    EXPECT_EQ(ArrowTriangle(wide, false, false), (Triangle{{{105, 210}, {109, 206}, {109, 214}}}));
    EXPECT_EQ(ArrowTriangle(wide, false, true), (Triangle{{{111, 210}, {107, 206}, {107, 214}}}));
    const ScrollBox high = {200, 100, 220, 116}; // 20 wide, 16 high
    EXPECT_EQ(ArrowTriangle(high, true, false), (Triangle{{{210, 105}, {206, 110}, {214, 110}}}));
    EXPECT_EQ(ArrowTriangle(high, true, true), (Triangle{{{210, 110}, {206, 106}, {214, 106}}}));
}

} // namespace

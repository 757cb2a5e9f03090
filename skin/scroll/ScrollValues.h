// What a scroll bar scrolls over, and how its values change. Free of windows.h.
#pragma once

#include <cstdint>

/// The values of a bar, as SCROLLINFO has them: positions run from `min` to `max`, and `page` of them
/// are seen at once.
struct ScrollValues
{
    int min = 0;
    int max = 0;
    unsigned page = 0;
    int pos = 0;
};

/// What a scroll message tells its window: the SB_ codes.
enum ScrollCode
{
    kLineBack = 0,
    kLineForward = 1,
    kPageBack = 2,
    kPageForward = 3,
    kThumbPosition = 4,
    kThumbTrack = 5,
    kToStart = 6,
    kToEnd = 7,
    kEndScroll = 8,
};

/// The nearest int.
int SaturatedInt(int64_t value);

/// `value * multiplier / divisor`, rounded to the nearest, halves away from zero; -1 for a divisor of
/// 0. The product of the first two, and half the divisor more, must fit into 63 bits.
int64_t MulDivRounded(int64_t value, int64_t multiplier, int64_t divisor);

/// How many positions there are; 0 or less for a range upside down.
int64_t PositionCount(const ScrollValues& values);

/// Stores a page, cut to the number of positions.
void StorePage(ScrollValues& values, unsigned page);

/// Stores a position, at least `min`, and then at most where the last page begins.
void StorePos(ScrollValues& values, int pos);

/// Whether there is anything to scroll.
bool CanScroll(const ScrollValues& values);

/// Where a scroll message leads.
/// @param code     a ScrollCode; any other leaves the position
/// @param thumbPos the position under the dragged thumb
int ScrolledPosition(const ScrollValues& values, int code, int thumbPos);

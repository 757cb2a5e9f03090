#include "skin/scroll/ScrollValues.h"

#include <algorithm>
#include <climits>

namespace
{

int64_t LastPagePosition(const ScrollValues& values)
{
    return int64_t{values.max} - values.page + 1;
}

int64_t WantedPosition(const ScrollValues& values, int code, int thumbPos)
{
    const int64_t pos = values.pos;
    switch (code)
    {
    case kLineBack:
        return pos - 1;
    case kLineForward:
        return pos + 1;
    case kPageBack:
        return pos - values.page;
    case kPageForward:
        return pos + values.page;
    case kThumbPosition:
    case kThumbTrack:
        return thumbPos;
    case kToStart:
        return 0;
    case kToEnd:
        return int64_t{values.max} - 1;
    default:
        return pos;
    }
}

} // namespace

int SaturatedInt(int64_t value)
{
    return static_cast<int>(std::clamp<int64_t>(value, INT_MIN, INT_MAX));
}

int64_t MulDivRounded(int64_t value, int64_t multiplier, int64_t divisor)
{
    if (divisor == 0)
        return -1;
    const int64_t product = value * multiplier;
    const int64_t half = (divisor < 0 ? -divisor : divisor) / 2;
    return (product < 0 ? product - half : product + half) / divisor;
}

int64_t PositionCount(const ScrollValues& values)
{
    return int64_t{values.max} - values.min + 1;
}

void StorePage(ScrollValues& values, unsigned page)
{
    const int64_t most = std::max<int64_t>(PositionCount(values), 0);
    values.page = static_cast<unsigned>(std::min<int64_t>(page, most));
}

void StorePos(ScrollValues& values, int pos)
{
    // Without a page the last position is one behind `max`. That is meant.
    const int64_t wanted = std::max(pos, values.min);
    values.pos = SaturatedInt(std::min(wanted, LastPagePosition(values)));
}

bool CanScroll(const ScrollValues& values)
{
    const int64_t page = values.page;
    return page <= values.max && values.max > values.min && !(page == values.max && page == 0);
}

int ScrolledPosition(const ScrollValues& values, int code, int thumbPos)
{
    const int64_t wanted = std::max<int64_t>(WantedPosition(values, code, thumbPos), 0);
    return SaturatedInt(std::min(wanted, LastPagePosition(values)));
}

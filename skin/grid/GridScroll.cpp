#include "skin/grid/GridScroll.h"

#include "skin/grid/GridArithmetic.h"

#include <algorithm>

namespace
{

int Back(const ScrollState& state, int distance)
{
    if (state.position <= state.minimum)
        return state.position;
    return std::max(state.minimum, Difference(state.position, distance));
}

int Forward(const ScrollState& state, int distance)
{
    if (state.position >= state.limit)
        return state.position;
    return std::min(state.limit, Sum(state.position, distance));
}

} // namespace

int NextScrollPosition(ScrollStep step, const ScrollState& state, int thumb)
{
    switch (step)
    {
    case ScrollStep::LineBack:
        return Back(state, 1);
    case ScrollStep::LineForward:
        return Forward(state, 1);
    case ScrollStep::PageBack:
        return Back(state, state.page);
    case ScrollStep::PageForward:
        return Forward(state, state.page);
    case ScrollStep::ThumbPosition:
    case ScrollStep::ThumbTrack:
        return thumb;
    case ScrollStep::First:
        return state.minimum;
    case ScrollStep::Last:
        return state.limit;
    }
    return state.position;
}

int NextWheelPosition(int delta, const ScrollState& state)
{
    if (delta < 0)
        return Forward(state, 1);
    return delta > 0 ? Back(state, 1) : state.position;
}

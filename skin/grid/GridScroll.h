// What the grid's scroll bars show and where a scroll message leads. Free of windows.h.
#pragma once

/// A scroll bar's range, which begins at 0.
struct ScrollRange
{
    int maximum = 0;
    int page = 0;
};

/// What a scroll bar asks for; the values are those of the SB_ codes.
enum class ScrollStep
{
    LineBack = 0,
    LineForward = 1,
    PageBack = 2,
    PageForward = 3,
    ThumbPosition = 4,
    ThumbTrack = 5,
    First = 6,
    Last = 7
};

struct ScrollState
{
    int position = 0;
    int minimum = 0;
    int limit = 0; ///< the last position that can be reached: the maximum less a page
    int page = 0;
};

/// The position after a step; any other step leaves the position.
/// @param thumb the position in the message
int NextScrollPosition(ScrollStep step, const ScrollState& state, int thumb);

/// The position after a turn of the wheel: one row, whatever the delta.
int NextWheelPosition(int delta, const ScrollState& state);

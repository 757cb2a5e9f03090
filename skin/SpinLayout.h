// Where the parts of a numeric field lie. Free of windows.h.
#pragma once

#include "skin/SkinLayout.h"
#include "skin/SpinValue.h"

/// The column at the right of a numeric field that holds the spin button, in the coordinates of the
/// field's client area: the up arrow above `middle`, the down arrow from it on.
struct SpinColumn
{
    int left;   ///< the client area's right edge
    int right;  ///< the window's right edge
    int middle; ///< half of `bottom`
    int bottom; ///< the window's bottom edge; the column begins at 0
};

/// What the frame keeps of a numeric field's window before the stock frame is taken off: the spin
/// column at the right, and one pixel more on the other sides, which the stock frame takes.
Box ReserveSpinColumn(const Box& window);

/// @param clientRight  right edge of the client area
/// @param windowRight  right edge of the window, in client coordinates
/// @param windowBottom bottom edge of the window, in client coordinates
SpinColumn LayOutSpinColumn(int clientRight, int windowRight, int windowBottom);

/// The arrow under a point in client coordinates.
SpinButton HitSpin(const SpinColumn& column, int x, int y);

/// An arrow of the column, filled by its cell of the spin bitmap: two columns, normal and pressed, by
/// two rows, up and down.
BitmapPart SpinArrowPart(const SpinColumn& column, SpinButton arrow, int bitmapWidth,
                         int bitmapHeight, bool pressed);

/// A rectangle as wide as the client area and as tall as a line of text, in its vertical centre.
Box CentredLine(int clientWidth, int clientHeight, int lineHeight);

#include "skin/SpinLayout.h"

namespace
{
constexpr int kSpinWidth = 24;
constexpr int kStockFrame = 1;
} // namespace

Box ReserveSpinColumn(const Box& window)
{
    return {window.left - kStockFrame, window.top - kStockFrame,
            window.width + kStockFrame - kSpinWidth, window.height + 2 * kStockFrame};
}

SpinColumn LayOutSpinColumn(int clientRight, int windowRight, int windowBottom)
{
    return {clientRight, windowRight, windowBottom / 2, windowBottom};
}

SpinButton HitSpin(const SpinColumn& column, int x, int y)
{
    if (x < column.left || x >= column.right || y < 0 || y >= column.bottom)
        return SpinButton::kNone;
    return y >= column.middle ? SpinButton::kDown : SpinButton::kUp;
}

BitmapPart SpinArrowPart(const SpinColumn& column, SpinButton arrow, int bitmapWidth,
                         int bitmapHeight, bool pressed)
{
    const bool isDown = arrow == SpinButton::kDown;
    const int cellWidth = bitmapWidth / 2;
    const int cellHeight = bitmapHeight / 2;
    const int top = isDown ? column.middle : 0;
    const int bottom = isDown ? column.bottom : column.middle;
    return {{pressed ? cellWidth : 0, isDown ? cellHeight : 0, cellWidth, cellHeight},
            {column.left, top, column.right - column.left, bottom - top}};
}

Box CentredLine(int clientWidth, int clientHeight, int lineHeight)
{
    return {0, (clientHeight - lineHeight) / 2, clientWidth, lineHeight};
}

#include "skin/SpinLayout.h"

namespace
{
constexpr int kSpinWidth = 24;
constexpr int kStockFrame = 1;
} // namespace

SpinRect ReserveSpinColumn(const SpinRect& window)
{
    return {window.left - kStockFrame, window.top - kStockFrame, window.right - kSpinWidth,
            window.bottom + kStockFrame};
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

SpinRect SpinCell(int width, int height, SpinButton arrow, bool pressed)
{
    const int cellWidth = width / 2;
    const int cellHeight = height / 2;
    const int left = pressed ? cellWidth : 0;
    const int top = arrow == SpinButton::kDown ? cellHeight : 0;
    return {left, top, left + cellWidth, top + cellHeight};
}

SpinRect CentredLine(int clientWidth, int clientHeight, int lineHeight)
{
    const int top = (clientHeight - lineHeight) / 2;
    return {0, top, clientWidth, top + lineHeight};
}

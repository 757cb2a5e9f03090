#include "skin/scroll/ButtonLayout.h"

#include <algorithm>

namespace
{

constexpr int kLeastDrawnBar = 24;
constexpr int kLeastBarBesideDraggable = 50;
constexpr int kMostPixels = 32767;

int Bounded(const ButtonExtent& button, int size)
{
    return std::max(std::min(size, button.maxSize), button.minSize);
}

} // namespace

void ButtonRow::Add(ButtonExtent button)
{
    for (int* length : {&button.size, &button.defaultSize, &button.minSize, &button.maxSize})
        *length = std::clamp(*length, 0, kMostPixels);
    buttons[count++] = button;
}

int ButtonRow::Length(int placement) const
{
    int length = 0;
    for (int i = 0; i < count; ++i)
        if (buttons[i].placement == placement)
            length += buttons[i].size;
    return length;
}

void ButtonRow::FitDraggable(int length)
{
    for (int i = 0; i < count; ++i)
        if (buttons[i].draggable)
            buttons[i].size = Bounded(buttons[i], buttons[i].defaultSize);

    int excess = SaturatedInt(int64_t{Total()} + kLeastBarBesideDraggable - length);
    for (int i = count - 1; i >= 0 && excess > 0; --i)
    {
        if (!buttons[i].draggable)
            continue;
        const int given = std::min(excess, buttons[i].size - buttons[i].minSize);
        buttons[i].size -= given;
        excess -= given;
    }
}

int ButtonRow::PulledSize(int index, int pulled, int length) const
{
    const ButtonExtent& button = buttons[index];
    const int64_t room = int64_t{length} - kLeastBarBesideDraggable - Total();
    const int64_t growth = std::min<int64_t>(pulled, std::max<int64_t>(room, 0));
    return Bounded(button, SaturatedInt(button.size + growth));
}

ScrollSpan ButtonRow::Place(int index, ScrollSpan whole) const
{
    const int placement = buttons[index].placement;
    int64_t from =
        placement == kButtonBefore ? whole.from : int64_t{whole.to} - Length(kButtonAfter);
    for (int i = 0; i < index; ++i)
        if (buttons[i].placement == placement)
            from += buttons[i].size;
    return {SaturatedInt(from), SaturatedInt(from + buttons[index].size)};
}

int ButtonRow::At(int place, ScrollSpan whole, bool beforeShown, bool afterShown) const
{
    for (int i = 0; i < count; ++i)
    {
        const ScrollSpan span = Place(i, whole);
        const bool shown = buttons[i].placement == kButtonBefore ? beforeShown : afterShown;
        if (shown && place >= span.from && place < span.to)
            return i;
    }
    return -1;
}

ShownButtons FitButtons(const ButtonRow& row, int length)
{
    const int64_t room = int64_t{length} - kLeastDrawnBar;
    const int before = row.Length(kButtonBefore);
    const int after = row.Length(kButtonAfter);
    ShownButtons shown;
    shown.before = before <= room;
    shown.after = (shown.before ? before : 0) + after <= room;
    return shown;
}

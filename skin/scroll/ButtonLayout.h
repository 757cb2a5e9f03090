// Lengths and places of the buttons inserted at the ends of a scroll bar. Free of windows.h.
#pragma once

#include "skin/scroll/ScrollGeometry.h"

enum ButtonPlacement
{
    kButtonBefore = 1, // left of the bar or above it
    kButtonAfter = 2
};

/// One button along the bar.
struct ButtonExtent
{
    int placement = kButtonBefore;
    int size = 0;        // pixels it has
    int defaultSize = 0; // pixels a draggable one takes where there is room
    int minSize = 0;
    int maxSize = 0;
    bool draggable = false;
};

/// The buttons of one bar, in the order in which they stand.
class ButtonRow
{
public:
    static constexpr int kCapacity = 16;

    /// Adds a button behind the others; there must be room. Lengths are brought into 0 to 32767.
    void Add(ButtonExtent button);
    int Count() const { return count; }
    const ButtonExtent& operator[](int index) const { return buttons[index]; }

    /// Pixels of all buttons at one end.
    int Length(int placement) const;

    /// Gives the draggable buttons their default size, or so much less of it as the bar needs to keep
    /// 50 pixels of `length` for itself.
    void FitDraggable(int length);

    /// How long a draggable button becomes when the mouse has pulled its edge `pulled` pixels toward
    /// the bar's middle.
    int PulledSize(int index, int pulled, int length) const;

    /// The place of a button in a bar whose whole span, buttons included, is `whole`.
    ScrollSpan Place(int index, ScrollSpan whole) const;

    /// The button at a place, or -1. The buttons of an end that is not shown are nowhere.
    int At(int place, ScrollSpan whole, bool beforeShown, bool afterShown) const;

private:
    int Total() const { return Length(kButtonBefore) + Length(kButtonAfter); }

    std::array<ButtonExtent, kCapacity> buttons;
    int count = 0;
};

struct ShownButtons
{
    bool before = false;
    bool after = false;
};

/// Which end's buttons have room beside the 24 pixels that the bar itself needs.
ShownButtons FitButtons(const ButtonRow& row, int length);

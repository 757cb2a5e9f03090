// What a numeric field does with its text: which keys it takes, and what a press of its spin button
// makes of it. Free of windows.h.
#pragma once

#include <string>

/// What of the spin button is meant or held down.
enum class SpinButton
{
    kNone,
    kUp,
    kDown,
};

/// How a numeric field steps.
struct SpinRange
{
    double step = 1.0;
    int decimals = 0; ///< digits behind the point
    double minValue = 0.0;
    double maxValue = 4294967295.0;
};

/// Which typed characters a numeric field takes.
enum SpinInputMode
{
    kAnyKey = 0,
    kDecimalKeys = 1, ///< digits, point, minus, backspace
    kIntegerKeys = 2, ///< digits, minus, backspace
};

/// The text of a field after one press of its spin button. Text that is no number counts as 0. The
/// step comes first and the clamp after it, so that a value above the range ends at the maximum
/// whichever way it is pressed.
std::string StepSpinText(const char* text, SpinButton button, const SpinRange& range);

/// Whether the field takes a typed character. A mode that is none of SpinInputMode takes all.
/// @param key the character of a WM_CHAR
bool SpinTakesKey(int inputMode, unsigned key);

/// Whether a plain numeric edit takes a typed character: digits, point and backspace.
bool NumEditTakesKey(unsigned key);

/// Whether a typed character is one of 0 to 9.
bool IsDigitKey(unsigned key);

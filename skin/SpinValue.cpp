#include "skin/SpinValue.h"

#include "core/Text.h"

#include <cmath>
#include <cstdlib>

namespace
{

constexpr unsigned kBackspace = 8;

double NumberOf(const char* text)
{
    const double value = atof(text);
    // Some C libraries read "nan" as a number that no clamp would ever catch.
    return std::isnan(value) ? 0.0 : value;
}

double Clamped(double value, const SpinRange& range)
{
    if (range.minValue > value)
        value = range.minValue;
    if (value > range.maxValue)
        value = range.maxValue;
    return value;
}

} // namespace

std::string StepSpinText(const char* text, SpinButton button, const SpinRange& range)
{
    const double step = button == SpinButton::kDown ? -range.step : range.step;
    const double value = Clamped(NumberOf(text) + step, range);
    // As long as the longest double, so that only a senseless number of decimals is ever cut.
    char stepped[512];
    PrintTo(stepped, sizeof(stepped), "%.*lf", range.decimals, value);
    return stepped;
}

bool SpinTakesKey(int inputMode, unsigned key)
{
    switch (inputMode)
    {
    case kDecimalKeys:
        return IsDigitKey(key) || key == '.' || key == '-' || key == kBackspace;
    case kIntegerKeys:
        return IsDigitKey(key) || key == '-' || key == kBackspace;
    default:
        return true;
    }
}

bool NumEditTakesKey(unsigned key)
{
    return IsDigitKey(key) || key == '.' || key == kBackspace;
}

bool IsDigitKey(unsigned key)
{
    return key >= '0' && key <= '9';
}

// Any text in a numeric field, a tool tip or a message: a step stays in its range, and nothing is
// read past the end.
#include "skin/ColorMarkup.h"
#include "skin/SpinValue.h"
#include "skin/TipText.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{

constexpr SpinRange kRanges[] = {
    {1.0, 0, -9999999.0, 9999999.0},
    {0.01, 2, 0.01, 9999999.0},
    {1.0, 0, 0.0, 4294967295.0},
};

void Require(bool holds)
{
    if (!holds)
        abort();
}

void CheckSteps(const char* text)
{
    for (const SpinRange& range : kRanges)
        for (const SpinButton button : {SpinButton::kUp, SpinButton::kDown})
        {
            const double value = atof(StepSpinText(text, button, range).c_str());
            Require(value >= range.minValue && value <= range.maxValue);
        }
}

void CheckTag(const char* text)
{
    constexpr unsigned long kUntouched = 0xFFFFFFFF;
    unsigned long color = kUntouched;
    const bool found = ParseColorMarkup(text, &color);
    Require(found ? color <= 0xFFFFFF : color == kUntouched);
}

void CheckLines(const std::string& text)
{
    size_t bytes = 0;
    for (const std::string& line : TipLines(text.c_str()))
    {
        Require(line.find("\r\n") == std::string::npos);
        bytes += line.size() + 2;
    }
    Require(bytes <= text.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    CheckSteps(text.c_str());
    CheckTag(text.c_str());
    CheckLines(text);
    return 0;
}

#include "pages/OptionsRules.h"

#include "core/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <regex>

int MiddleThreshold(const ShippedLimits& limits)
{
    return static_cast<int>((int64_t{limits.minimum} + limits.maximum) / 2);
}

int ClampThreshold(const ShippedLimits& limits, int value)
{
    return std::min(std::max(value, limits.minimum), limits.maximum);
}

bool IsThreshold(const ShippedLimits& limits, const std::string& text)
{
    return limits.AreEqual() || limits.Hold(TruncateToInt(atof(text.c_str())));
}

bool IsRatioText(const std::string& text)
{
    static const std::regex decimal(R"(-?(0|[1-9][0-9]*)(\.[0-9]{1,2})?)");
    return std::regex_match(text, decimal);
}

bool IsHigherRatio(double ratio)
{
    return ratio > 1.0;
}

bool IsLowerRatio(double ratio)
{
    return ratio > 0.0 && ratio < 1.0;
}

// What the general page of options accepts. Free of windows.h.
#pragma once

#include "pages/ShippedSettings.h"

#include <string>

/// What the threshold becomes where new limits do not hold it: half their sum, cut to a whole number.
int MiddleThreshold(const ShippedLimits& limits);

/// A threshold brought into its limits; the maximum wins where they are crossed.
int ClampThreshold(const ShippedLimits& limits, int value);

/// Whether a text is a threshold within its limits. Its fraction does not count, and text that is no
/// number counts as 0. Limits that are equal leave nothing to check.
bool IsThreshold(const ShippedLimits& limits, const std::string& text);

/// Whether a text is a decimal number as a ratio is written: without leading zeros, with one or two
/// digits behind a point, if there is one.
bool IsRatioText(const std::string& text);

/// Whether a limit buy may be warned about above this many times the last price: more than 1.
bool IsHigherRatio(double ratio);

/// Whether a limit sell may be warned about below this many times the last price: between 0 and 1.
bool IsLowerRatio(double ratio);

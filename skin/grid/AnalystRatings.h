// The rating words of analysts. Free of windows.h.
#pragma once

#include <map>
#include <string>

/// Score of each rating word (code page 936), from 5 for "buy" down to 1 for "sell".
extern const std::map<std::string, int> kAnalystRatings;

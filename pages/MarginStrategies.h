// Which margin buy strategies a page offers. Free of windows.h.
#pragma once

#include <string>
#include <vector>

/// The label of a strategy value, such as "3"; null for a value that is none.
const char* MarginStrategyLabel(const std::string& value);

/// The values of a list split by "|", in its order: those that have a label, the first four of them.
/// The standard three when none is left.
std::vector<std::string> OfferedStrategies(const std::string& items);

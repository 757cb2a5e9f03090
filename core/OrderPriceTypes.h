// The names of the default order prices. Free of windows.h.
#pragma once

#include <cstddef>

constexpr size_t kOrderPriceTypeCount = 8;

/// Names in code page 936, indexed by InsertPriceKind. A row with an empty name has no meaning and is
/// left out of lists.
extern const char OrderPriceTypes[kOrderPriceTypeCount][32];

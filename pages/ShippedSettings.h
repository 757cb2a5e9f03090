// Settings that the installation ships and the trader does not edit. Read anew at each call.
#pragma once

#include <string>

/// A pair of bounds.
struct ShippedLimits
{
    int minimum;
    int maximum;

    /// Both bounds are at least 1 and not crossed: only then a check uses them.
    bool AreUsable() const { return minimum >= 1 && maximum >= 1 && minimum <= maximum; }
    bool AreEqual() const { return minimum == maximum; }
    bool Hold(int value) const { return value >= minimum && value <= maximum; }
};

/// Bounds of the chase interval in whole seconds. The keys carry an O but serve every product.
ShippedLimits ChaseIntervalLimits(int absent);
/// Bounds of the chase repeat count, for every product.
ShippedLimits ChaseRepeatLimits();
/// The least interval between the slices of a split order, in seconds.
double LeastSplitInterval();
/// Bounds in percent of the threshold for options far out of the money.
/// @param byPremium whether it measures the premium rate, else the degree out of the money
ShippedLimits PriceOutLimits(bool byPremium);
/// Whether the warning of a sale that does not cover its cost is offered, and whether the trader may
/// change it.
bool IsCostPromptAvailable();
bool IsCostPromptOpen();
/// Whether the trader may choose where condition orders run: 1 for yes.
int OpenSelectConditionOrderMode();
/// Whether the client has run on this machine; the client writes it down.
bool HasRunBefore();
/// The margin buy strategies to offer, split by "|".
std::string MarginBuyStrategyItems();

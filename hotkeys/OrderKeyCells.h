// What the cells of a keyboard-order row say and offer. Free of windows.h.
#pragma once

#include "hotkeys/HotKeyRecord.h"

#include <string>
#include <vector>

/// The columns of the page, from left to right.
enum OrderKeyColumn
{
    kKeyColumn,
    kSideColumn,
    kOpenCloseColumn,
    kPriceColumn,
    kOverTicksColumn,
    kCoveredColumn,
    kActionColumn,
};

/// Whether the column means anything for the row's action: the actions that place no order use
/// nothing but the key and the action.
bool UsesOrderKeyColumn(const HotKeyRecord& record, int column);

/// The text of a cell beside the key's; empty where the column is not in use and for an action that
/// is not known.
std::string OrderKeyCellText(const HotKeyRecord& record, int column);

/// One of the values that a column offers.
struct OrderKeyItem
{
    const char* text;
    int value; ///< of the record's field; the price type is its text
};

/// What a column offers, in order; nothing for the columns that are typed into.
const std::vector<OrderKeyItem>& OrderKeyItems(int column);

/// Which item the row has, or -1 for a value that is not on offer.
int FindOrderKeyItem(const HotKeyRecord& record, int column);

/// Whether an action raises or lowers the order multiple, so that it needs a number.
bool NeedsMultiple(int action);

// The rules of the quick-key list: what a file holds, which rows are on show, and the switch between
// classic and net-position rows. Free of windows.h.
#pragma once

#include "hotkeys/HotKeyRecord.h"

#include <string>

enum QuickKeyAction : uint32_t
{
    kBuyOpenPanel = 18,
    kSellClosePanel = 19,
    kSellOpenPanel = 20,
    kBuyClosePanel = 21,
    kCancelAll = 22,
    kReset = 23,
    kNetBuyPanel = 24,
    kNetSellPanel = 25,
};

/// The full list from the bytes of its file. A file of the keyboard-order format is migrated: it gets
/// the two net-position rows, hidden. Without a row of either format the eight defaults are returned.
HotKeyList DecodeQuickKeys(const std::string& bytes);

/// Copies of the rows on show, in order. Four rows of net mode stand with the panels first.
HotKeyList VisibleQuickKeys(const HotKeyList& list);

/// Takes the net-position rows out of a visible list that has classic ones too.
void PurgeQuickKeys(HotKeyList& visible);

/// Takes over into the full list what was edited in the visible one, row by row of the same action,
/// then purges the visible list.
void MergeQuickKeys(HotKeyList& list, HotKeyList& visible);

/// Marks the rows of the full list as shown or hidden: with `net` the classic rows are hidden, else
/// the net-position rows.
void ShowQuickKeys(HotKeyList& list, bool net);

bool HasNetQuickKeys(const HotKeyList& list);

/// What a quick key does, as the trader reads it; empty for an action that is none.
const char* QuickKeyText(uint32_t action);

/// Whether a key may become a quick key. Digits, Return, Delete and the arrows may not: the trader
/// needs them to type prices and to move about in the order panel.
bool CanBeQuickKey(unsigned int vk);

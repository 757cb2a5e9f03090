// Which row holds a key: assigning one, and finding the row that is held. Free of windows.h.
#pragma once

#include "hotkeys/HotKeyRecord.h"

enum class KeyAssignment
{
    Stands,
    Cleared,   ///< the key has no name, so the row has no key now
    Duplicate, ///< another row has the same key, so this row has no key now
};

/// Gives a row of the list a key.
/// @param row       a valid row number
/// @param modifiers HotKeyModifier bits
/// @param vk        virtual key code, of which the low byte is stored
/// @param name      receives the name of the key, `kKeyNameSize` bytes; an empty text unless it
///                  stands
KeyAssignment AssignKey(HotKeyList& list, size_t row, uint8_t modifiers, unsigned int vk,
                        char* name);

/// The first row that answers to the key with these modifiers held. Ctrl and Alt must agree with the
/// row; a row with Shift answers to the plain key as well. Null when there is none.
HotKeyRecord* FindHeldRow(HotKeyList& list, uint8_t modifiers, unsigned int vk);

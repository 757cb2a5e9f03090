// The text that a key event shows to the user. Free of windows.h.
#pragma once

#include <cstddef>

/// Bytes that MakeKeyName writes.
const size_t kKeyNameSize = 32;

/// Writes the name of a key with its modifiers, such as "Ctrl + Page Up", in code page 936.
/// @param modifiers HotKeyModifier bits; others are ignored
/// @param vk        virtual key code; one without a name gives an empty text
/// @param out       receives exactly `kKeyNameSize` bytes, the text ended by a NUL
void MakeKeyName(unsigned int modifiers, unsigned int vk, char* out);

// The client's own key that switches keyboard ordering on and off. Free of windows.h.
#pragma once

#include <string>

/// What the client's setting, such as "[Ctrl]+[88]", reads like to the trader: "Ctrl + X".
///
/// One modifier and one key come out right. A second modifier takes the place of the first, and what
/// stands behind the gap that it leaves is lost. A key is the character of its code, so a function
/// key comes out as a letter. All this is meant.
/// @param setting names of modifiers and decimal key codes in brackets; of each at most 24 bytes
///                count, and those of less than 2 bytes do not count at all
std::string ToggleKeyText(const std::string& setting);

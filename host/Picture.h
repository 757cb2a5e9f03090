// Pictures of windows as they stand on the screen.
#pragma once

#include <windows.h>

#include <string>

/// Stores a window with its frame as a 24-bit BMP file.
/// @return false when the window or the file could not be read or made
bool SavePicture(HWND window, const std::string& file);

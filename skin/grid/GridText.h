// Texts in cells. Free of windows.h.
#pragma once

#include <cstddef>

/// Bytes of a text in the grid, its NUL included.
constexpr size_t kCellTextCapacity = 256;

/// Copies a text (code page 936; null is empty), cut at the last whole character that fits.
void CopyCellText(char (&buffer)[kCellTextCapacity], const char* text);

/// How many characters of a text too wide for its cell are shown in front of "...".
/// @param cellWidth   pixels for the text, may be negative
/// @param sampleWidth pixels of a wide character
int KeptCharacters(int cellWidth, int sampleWidth);

// Walking texts of code page 936 by characters: the second byte of a character may be a backslash
// or a letter. Free of windows.h.
#pragma once

#include <cstddef>

/// Bytes of the character that `text` begins with: 2 for a double-byte character, 1 for any other
/// and for a first byte whose second one is missing. `text` must not be empty.
size_t GbkCharLength(const char* text);

/// Length of the longest beginning of `text` that has at most `limit` bytes and does not end within
/// a double-byte character. `text` needs no NUL when it is at least `limit` bytes long.
size_t GbkPrefixLength(const char* text, size_t limit);

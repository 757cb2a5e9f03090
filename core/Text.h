// Small text helpers that every part of the module shares. Free of windows.h.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <string>

/// Prints as printf does into `buffer` of `capacity` bytes and always ends it with a NUL, so that
/// overlong output is cut.
/// @return the number of characters the text has, or -1 when it is longer than the capacity; 0 for a
///         capacity of 0, which leaves the buffer alone. A text exactly as long as the capacity loses
///         its last character to the NUL and still counts as whole.
int PrintTo(char* buffer, size_t capacity, const char* format, ...);

/// PrintTo with the arguments as a list.
int PrintToList(char* buffer, size_t capacity, const char* format, va_list arguments);

/// Reads the next field of a comma-separated line.
/// @param rest     the line, or what an earlier call returned; may be null
/// @param token    receives the field without its comma and ended by a NUL; empty on failure
/// @param capacity bytes of `token`; a field of that length or more is refused
/// @return where the next field begins: behind the comma, or the line's closing NUL after the last
///         field. Null when `rest` is null or empty, or the field does not fit.
const char* ReadCsvToken(const char* rest, char* token, size_t capacity);

/// The whole number that a text begins with, as atoi reads it; 0 for none. One beyond 32 bits is
/// brought into range.
int ParseInt(const char* text);

/// The same for an unsigned number: up to 4294967295. A negative one is what its 32 bits are.
unsigned int ParseUInt(const char* text);

/// A number without its fraction; one beyond 32 bits is brought into range, and no number is 0.
int TruncateToInt(double value);

/// A number with two decimals, "%.02lf".
std::string FormatDecimal(double value);

// Texts that a deployment may replace, read once from an INI file.
#pragma once

/// A text of an INI file, with each backslash-n as a line feed, as it was when it was first asked
/// for. The pointer stays valid for the life of the process.
/// @param file path as the profile functions take it
/// @return `defaultValue` itself when section and key together have 255 characters or more, the
///         stored copy otherwise
const char* ReadCachedIniString(const char* section, const char* key, const char* defaultValue,
                                const char* file);

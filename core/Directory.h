// Creation of folders. Windows only.
#pragma once

/// Creates the folder `path` and the folders above it that are missing. A failure on the way is
/// ignored: whoever writes a file there finds out.
/// @param path in code page 936, parts separated by backslashes, with or without one at the end
/// @return false for a missing path that is null or has 1020 bytes or more, which is not tried;
///         else true
bool CreateDirectoryPath(const char* path);

// Where the host's executable lies.
#pragma once

#include <string>

/// The path up to its last backslash, without it; the whole path when there is none. Walks by
/// characters: in code page 936 the second byte of a character may be a backslash too.
std::string FolderOf(const std::string& path);

/// The folder of the running executable.
std::string HostFolder();

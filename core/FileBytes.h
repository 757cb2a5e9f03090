// Small binary files, read and replaced as a whole. Windows only.
#pragma once

#include <string>

/// Reads the whole file into `bytes`.
/// @return false when it can't be opened; `bytes` is then empty
bool ReadFileBytes(const char* path, std::string& bytes);

/// Makes `bytes` the content of the file, which is created if missing; its folder is not. Whatever
/// happens meanwhile, the file holds either its former content or all of the new one.
/// @return false when it could not be written; the file is then as it was
bool ReplaceFileBytes(const char* path, const std::string& bytes);

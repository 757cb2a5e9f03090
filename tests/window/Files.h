// Files below the test's working directory.
#pragma once

#include <string>

/// The bytes of a file; empty when it is missing.
std::string ReadBytes(const std::string& path);
/// Makes a file and the folders above it.
void WriteBytes(const std::string& path, const std::string& bytes);
/// Removes a folder and what is in it, or a file.
void RemoveTree(const std::string& path);

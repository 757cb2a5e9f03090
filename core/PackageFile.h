// The package file and its keys, as pages and save-all reach them. Defaults come from the key table.
#pragma once

#include <zorvane/TOParam.h>

#include <string>

/// The package file below the working directory, and the section that holds every key.
extern const char kPackageFile[];
extern const char kPackageSection[];

/// Writes every key of `record` to the user's package file, one call of the configuration library a
/// key, in the order of the key table. A write that fails goes unnoticed, the next keys follow.
void SaveAllParams(const TOParam& record);

/// Writes one key of the user's package file; the result is ignored, as everywhere.
void StorePackageKey(const char* key, const std::string& text);

/// The user's value of a key that a page owns; the key's factory default when it is absent.
int UserInt(const char* key);
std::string UserText(const char* key);

/// The packaged, that is the factory value of a key; the key table's default when it is absent.
int PackagedInt(const std::string& key);
std::string PackagedText(const std::string& key);
double PackagedReal(const std::string& key);

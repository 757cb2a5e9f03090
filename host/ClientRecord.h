// The sample client's own record: read from the package file as a client does at its start.
#pragma once

#include <zorvane/TOParam.h>

#include <string>
#include <vector>

/// Reads every key from the user's package file below the working directory; a key that is absent
/// there comes from the packaged file, or is the factory default.
TOParam LoadClientRecord();

/// One line a key whose text differs: "key: old -> new".
std::vector<std::string> ChangedKeys(const TOParam& before, const TOParam& after);

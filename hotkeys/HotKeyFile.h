// The bytes of the key files: a version word, then records to the end. Free of windows.h.
#pragma once

#include "hotkeys/HotKeyRecord.h"

#include <string>

/// Version words.
const uint32_t kOrderKeysVersion = 1;
const uint32_t kQuickKeysVersion = 2;

/// The records of a file of that version; none from a file of any other. A piece of a record at the
/// end is left out.
HotKeyList DecodeHotKeys(const std::string& bytes, uint32_t version);

std::string EncodeHotKeys(const HotKeyList& list, uint32_t version);

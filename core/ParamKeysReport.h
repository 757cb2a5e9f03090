// Files made from the key table: the packaged defaults and the list of keys. Free of windows.h.
#pragma once

#include <string>

/// The packaged file: every key that has a factory default, with CRLF line ends. The keys under
/// SpecialUILimitPrice are among them, since a restore reads them when it is on.
std::string PackagedFileText();

/// docs/keys.md: every key, its type, form, meaning, default and writer, as Markdown in UTF-8.
/// @param header the text of TOParam.h, whose comments tell what the fields mean
std::string KeysDocumentText(const std::string& header);

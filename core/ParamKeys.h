// The key table: every key of the package file, its text form, its place in the record and its
// factory default. Saving, restoring, the packaged file and docs/keys.md all come from here.
// Free of windows.h.
#pragma once

#include "core/ParamField.h"

#include <string>
#include <vector>

/// How a field is written in the file.
enum class TextForm
{
    Decimal,        ///< signed, no padding; a byte gives its number
    Unsigned,       ///< unsigned, no padding
    Seconds,        ///< milliseconds in the record, seconds with two decimals in the file
    GuardedSeconds, ///< as Seconds, but anything below 10 milliseconds is written as "5.00"
    Ratio,          ///< a float with two decimals
    Switch,         ///< "1" for any non-zero value, else "0"
};

/// How a page's restore reads the factory value.
enum class DefaultRead
{
    None, ///< no restore reads the key
    Int,
    Text,
    Real,
};

struct ParamDefault
{
    DefaultRead read;
    const char* text; ///< the value when the packaged file lacks the key; empty for None
};

struct ParamKey
{
    std::string key;
    ParamField field;
    TextForm form;
    ParamDefault factory;
    bool limitPriceOnly; ///< written only while SpecialUILimitPrice is on
};

/// A key that save-all leaves alone, because a page writes it itself.
struct PageOwnedKey
{
    const char* key;
    ParamDefault factory;
    const char* meaning;
    TParamSetPage page; ///< the one that writes it
};

/// All keys that save-all writes, in the order of writing.
const std::vector<ParamKey>& ParamKeys();

/// The keys that pages write themselves.
const std::vector<PageOwnedKey>& PageOwnedKeys();

/// The factory default of a key of either table; DefaultRead::None for an unknown key.
ParamDefault FactoryDefault(const std::string& key);

/// The text that save-all writes for a key of `record`.
std::string FormatParam(const TOParam& record, const ParamKey& key);

/// The inverse of FormatParam, as a client reads the file at its start: stores what `text` says.
/// Text that is no number counts as 0; a number beyond the field's range is brought into it.
void ParseParam(TOParam& record, const ParamKey& key, const std::string& text);

struct StoredText
{
    std::string key;
    std::string text;
};

/// What save-all writes, in its order. The limit-price keys are left out unless asked for.
std::vector<StoredText> StoredTexts(const TOParam& record, bool withLimitPrice);

#include "core/ParamKeysReport.h"

#include "core/HeaderNotes.h"
#include "core/ParamKeys.h"

namespace
{

const char* FormWords(TextForm form)
{
    switch (form)
    {
    case TextForm::Decimal:
        return "signed decimal";
    case TextForm::Unsigned:
        return "unsigned decimal";
    case TextForm::Seconds:
        return "seconds, two decimals";
    case TextForm::GuardedSeconds:
        return "seconds, two decimals, below 0.01 stored as 5.00";
    case TextForm::Ratio:
        return "two decimals";
    case TextForm::Switch:
        return "0 or 1";
    }
    return "";
}

const char* TypeWords(FieldType type)
{
    switch (type)
    {
    case FieldType::Int32:
        return "i32";
    case FieldType::UInt32:
        return "u32";
    case FieldType::Byte:
        return "u8";
    case FieldType::Char:
        return "char";
    case FieldType::Float:
        return "f32";
    }
    return "";
}

// How a default stands in files: a delay is 5.0 in the table and 5.00 there.
std::string WrittenDefault(const ParamKey& key)
{
    TOParam record = {};
    ParseParam(record, key, key.factory.text);
    return FormatParam(record, key);
}

std::string DefaultWords(const ParamDefault& factory)
{
    return factory.read == DefaultRead::None ? "none" : "`" + std::string(factory.text) + "`";
}

constexpr char kIntroduction[] = u8R"(# Keys of the package file

`Cfg\Trade\TradePackageConfig.ini`, section `TradeConfig`, in the order of writing. Made by
`tools/update-keys.sh` from the key table and from the comments of `include/zorvane/TOParam.h`; a
test holds them equal.

A range tells which values mean something to a client; the record is not checked against it. A
default is the factory value that "恢复默认" takes when the packaged file lacks the key; "none" means
that no restore reads it.

## Keys that every save writes

By "确定" and by `SaveParam`. The number at the end of a key is an entry of `SplitOrder`.

| key | type | form in the file | meaning and range | default |
|---|---|---|---|---|
)";

constexpr char kPageKeysHead[] = u8R"(
## Keys that a page writes itself

By "确定", when the page was opened or "恢复默认" was pressed on any page. `SaveParam` leaves them
alone.

| key | meaning | default | page |
|---|---|---|---|
)";

constexpr char kNumberingsHead[] = u8R"(
## Numbers of the prices

| kind | number | means |
|---|---|---|
)";

std::string SavedKeys(const HeaderNotes& notes)
{
    std::string text;
    for (const ParamKey& key : ParamKeys())
        text += "| `" + key.key + "` | " + TypeWords(key.field.type) + " | " + FormWords(key.form) +
                " | " + notes.fields.at(key.field.name) +
                (key.limitPriceOnly ? "; written with `SpecialUILimitPrice` on only" : "") + " | " +
                DefaultWords(key.factory) + " |\n";
    return text;
}

std::string PageWords(TParamSetPage page, const HeaderNotes& notes)
{
    for (const EnumeratorNote& known : notes.enums.at("TParamSetPage"))
        if (known.value == page)
            return known.note;
    return "";
}

std::string PageKeys(const HeaderNotes& notes)
{
    std::string text;
    for (const PageOwnedKey& key : PageOwnedKeys())
        text += "| `" + std::string(key.key) + "` | " + key.meaning + " | " +
                DefaultWords(key.factory) + " | " + PageWords(key.page, notes) + " |\n";
    return text;
}

std::string Numberings(const HeaderNotes& notes)
{
    std::string text;
    for (const char* kind : {"PriceKind", "InsertPriceKind", "TriggerPriceKind", "SuperPriceKind"})
        for (const EnumeratorNote& price : notes.enums.at(kind))
            text += "| " + std::string(kind) + " | " + std::to_string(price.value) + " | " +
                    price.note + " |\n";
    return text;
}

} // namespace

std::string PackagedFileText()
{
    std::string text = "[TradeConfig]\r\n";
    for (const ParamKey& key : ParamKeys())
        if (key.factory.read != DefaultRead::None)
            text += key.key + "=" + WrittenDefault(key) + "\r\n";
    for (const PageOwnedKey& key : PageOwnedKeys())
        text += std::string(key.key) + "=" + key.factory.text + "\r\n";
    return text;
}

std::string KeysDocumentText(const std::string& header)
{
    const HeaderNotes notes = ReadHeaderNotes(header);
    return kIntroduction + SavedKeys(notes) + kPageKeysHead + PageKeys(notes) + kNumberingsHead +
           Numberings(notes);
}

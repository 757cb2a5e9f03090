#include "core/ParamKeysReport.h"

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

// The packaged text of a default: a delay is kept as 5.0 but stands in files as 5.00.
std::string PackagedText(const ParamKey& key)
{
    TOParam record = {};
    ParseParam(record, key, key.factory.text);
    return FormatParam(record, key);
}

std::string DefaultWords(const ParamDefault& factory)
{
    return factory.read == DefaultRead::None ? "none" : "`" + std::string(factory.text) + "`";
}

} // namespace

std::string PackagedFileText()
{
    std::string text = "[TradeConfig]\r\n";
    for (const ParamKey& key : ParamKeys())
        if (key.factory.read != DefaultRead::None)
            text += key.key + "=" + PackagedText(key) + "\r\n";
    for (const PageOwnedKey& key : PageOwnedKeys())
        text += std::string(key.key) + "=" + key.factory.text + "\r\n";
    return text;
}

std::string KeysDocumentText()
{
    std::string text =
        "# Keys of the package file\n\n"
        "`Cfg\\Trade\\TradePackageConfig.ini`, section `TradeConfig`, in the order of writing. "
        "Made "
        "from the key table by `tools/update-keys.sh`; a test holds them equal. The meaning of "
        "each "
        "key stands beside the field of the same name in `include/zorvane/TOParam.h`.\n\n"
        u8"A default is the factory value that \"恢复默认\" takes when the packaged file lacks the "
        "key; "
        "\"none\" means that no restore reads it.\n\n"
        "| key | type | form | default | written |\n|---|---|---|---|---|\n";
    for (const ParamKey& key : ParamKeys())
        text += "| `" + key.key + "` | " + TypeWords(key.field.type) + " | " + FormWords(key.form) +
                " | " + DefaultWords(key.factory) + " | " +
                (key.limitPriceOnly ? "with `SpecialUI` 0 on" : "always") + " |\n";
    text += "\nKeys that a page writes itself when it is saved:\n\n"
            "| key | default | meaning |\n|---|---|---|\n";
    for (const PageOwnedKey& key : PageOwnedKeys())
        text += "| `" + std::string(key.key) + "` | " + DefaultWords(key.factory) + " | " +
                key.meaning + " |\n";
    return text;
}

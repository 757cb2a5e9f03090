#include "host/ClientRecord.h"

#include "core/ParamKeys.h"

#include <windows.h>

#include <cstdlib>

namespace
{

// Fields that save-all leaves alone: the pages write their keys themselves.
const ParamField kPageOwnedFields[] = {FIELD(iPriceOutPrompt), FIELD(iOptionPriceAmountLayout),
                                       FIELD(iShowZeroPosition), FIELD(iOptionQuickBSMode)};

const char kUserFile[] = ".\\Cfg\\Trade\\TradePackageConfig.ini";
const char kPackagedFile[] = ".\\Sys\\Cfg\\Trade\\TradePackageConfig.ini";

std::string ReadText(const char* key, const std::string& defaultText, const char* file)
{
    char text[256];
    GetPrivateProfileStringA("TradeConfig", key, defaultText.c_str(), text, sizeof(text), file);
    return text;
}

/// The user's text of a key, else the packaged one, else the default.
std::string ReadCurrent(const char* key, const char* defaultText)
{
    return ReadText(key, ReadText(key, defaultText, kPackagedFile), kUserFile);
}

} // namespace

TOParam LoadClientRecord()
{
    TOParam record = {};
    record.iFAutoCancelOrderDelay = 5000; // the one interval that has no factory default
    for (const ParamKey& key : ParamKeys())
    {
        const std::string text = ReadCurrent(key.key.c_str(), key.factory.text);
        if (!text.empty())
            ParseParam(record, key, text);
    }
    for (const ParamField& field : kPageOwnedFields)
        SetInt(record, field,
               atoi(ReadCurrent(field.name, FactoryDefault(field.name).text).c_str()));
    // Margin buys and sells are split alike; before the first save only the buys have values.
    if (ReadText("cSplitOrderType_3", "", kUserFile).empty())
        record.SplitOrder[3] = record.SplitOrder[1];
    return record;
}

std::vector<std::string> ChangedKeys(const TOParam& before, const TOParam& after)
{
    std::vector<std::string> lines;
    for (const ParamKey& key : ParamKeys())
    {
        const std::string old = FormatParam(before, key);
        const std::string now = FormatParam(after, key);
        if (old != now)
            lines.push_back(key.key + ": " + old + " -> " + now);
    }
    return lines;
}

#include "host/ClientRecord.h"

#include "core/ParamKeys.h"

#include <windows.h>

namespace
{

const char kUserFile[] = ".\\Cfg\\Trade\\TradePackageConfig.ini";
const char kPackagedFile[] = ".\\Sys\\Cfg\\Trade\\TradePackageConfig.ini";

std::string ReadText(const char* key, const std::string& defaultText, const char* file)
{
    char text[256];
    GetPrivateProfileStringA("TradeConfig", key, defaultText.c_str(), text, sizeof(text), file);
    return text;
}

} // namespace

TOParam LoadClientRecord()
{
    TOParam record = {};
    record.iFAutoCancelOrderDelay = 5000; // the one interval that has no factory default
    for (const ParamKey& key : ParamKeys())
    {
        const char* name = key.key.c_str();
        const std::string packaged = ReadText(name, key.factory.text, kPackagedFile);
        const std::string text = ReadText(name, packaged, kUserFile);
        if (!text.empty())
            ParseParam(record, key, text);
    }
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

#include "pages/ShippedSettings.h"

#include <windows.h>

#include <cstdlib>

namespace
{

constexpr char kTradeParamFile[] = ".\\cfg\\Trade\\TradeParam.ini";
constexpr char kOtherFile[] = ".\\cfg\\system\\other.ini";

constexpr char kLimitSection[] = "TradeConfig";
constexpr char kModuleSection[] = "Zorvane";
constexpr char kOtherSection[] = "Other";

int ReadInt(const char* section, const char* key, int absent, const char* file)
{
    return static_cast<int>(GetPrivateProfileIntA(section, key, absent, file));
}

int ReadLimit(const char* key, int absent)
{
    return ReadInt(kLimitSection, key, absent, kTradeParamFile);
}

std::string ReadText(const char* section, const char* key, const char* absent, const char* file)
{
    char text[256];
    GetPrivateProfileStringA(section, key, absent, text, sizeof(text), file);
    return text;
}

} // namespace

ShippedLimits ChaseIntervalLimits(int absent)
{
    return {ReadLimit("iOAutoCancelOrderDelayMin", absent),
            ReadLimit("iOAutoCancelOrderDelayMax", absent)};
}

ShippedLimits ChaseRepeatLimits()
{
    return {ReadLimit("iORepeatTimesMin", 0), ReadLimit("iORepeatTimesMax", 0)};
}

double LeastSplitInterval()
{
    return atof(ReadText(kLimitSection, "fMinOIntervalBetweenOrder", "0.3", kOtherFile).c_str());
}

ShippedLimits PriceOutLimits(bool byPremium)
{
    const char* const minimum = byPremium ? "yjrMin" : "xzdMin";
    const char* const maximum = byPremium ? "yjrMax" : "xzdMax";
    return {ReadInt(kLimitSection, minimum, 0, kOtherFile),
            ReadInt(kLimitSection, maximum, 100, kOtherFile)};
}

bool IsCostPromptAvailable()
{
    return ReadInt(kOtherSection, "OCostPromptAvailability", 1, kTradeParamFile) == 1;
}

bool IsCostPromptOpen()
{
    return ReadInt(kOtherSection, "CostPromptShow", 1, kTradeParamFile) != 0;
}

int OpenSelectConditionOrderMode()
{
    return ReadInt(kModuleSection, "OpenSelectConditionOrderMode", 0, kTradeParamFile);
}

bool HasRunBefore()
{
    return ReadInt(kOtherSection, "FirstRun", 0, kOtherFile) != 0;
}

std::string MarginBuyStrategyItems()
{
    return ReadText(kModuleSection, "MarginBuyStrategyItems", "3|1|0", kTradeParamFile);
}

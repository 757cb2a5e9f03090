#include "pages/ShippedSettings.h"

#include <windows.h>

#include <cstdlib>

const char kTradeParamFile[] = ".\\cfg\\Trade\\TradeParam.ini";
const char kOtherFile[] = ".\\cfg\\system\\other.ini";

namespace
{

constexpr char kLimitSection[] = "TradeConfig";

int ReadInt(const char* key, int absent)
{
    return static_cast<int>(GetPrivateProfileIntA(kLimitSection, key, absent, kTradeParamFile));
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
    return {ReadInt("iOAutoCancelOrderDelayMin", absent),
            ReadInt("iOAutoCancelOrderDelayMax", absent)};
}

ShippedLimits ChaseRepeatLimits()
{
    return {ReadInt("iORepeatTimesMin", 0), ReadInt("iORepeatTimesMax", 0)};
}

double LeastSplitInterval()
{
    return atof(ReadText(kLimitSection, "fMinOIntervalBetweenOrder", "0.3", kOtherFile).c_str());
}

std::string MarginBuyStrategyItems()
{
    return ReadText("Zorvane", "MarginBuyStrategyItems", "3|1|0", kTradeParamFile);
}

// The sample trading client: loads the module as a real client does, shows its settings window and
// prints what the trader changed.
//
//   ZorvaneHost [--page N] [--limit-price] [--condition-mode on|off] [--first-run]
//               [--cloud-orders-running] [--session <picture folder>]
//
// --condition-mode       lets the trader choose where condition orders run, or ends that, in the
//                        settings that the installation ships: it stays so for later starts
// --first-run            the next start counts as the first: with --condition-mode on it begins with
//                        the wizard
// --cloud-orders-running condition orders run in the cloud, so that the way back to local is refused
#include "host/ClientRecord.h"
#include "host/Products.h"
#include "host/Session.h"

#include <zorvane/ZorvaneInterface.h>

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{

const char kTradeParamFile[] = ".\\cfg\\Trade\\TradeParam.ini";
const char kOtherFile[] = ".\\cfg\\system\\other.ini";

bool cloudOrdersRunning = false; // what the callback answers

struct Options
{
    TParamSetPage page = ParamPageIndicator;
    bool limitPrice = false;
    const char* conditionMode = nullptr; // "on", "off" or null to leave it
    bool firstRunNext = false;
    const char* pictureFolder = nullptr;
};

Options ParseOptions(int count, char** arguments)
{
    Options options;
    for (int i = 1; i < count; ++i)
    {
        if (strcmp(arguments[i], "--page") == 0 && i + 1 < count)
            options.page = static_cast<TParamSetPage>(atoi(arguments[++i]));
        else if (strcmp(arguments[i], "--limit-price") == 0)
            options.limitPrice = true;
        else if (strcmp(arguments[i], "--condition-mode") == 0 && i + 1 < count)
            options.conditionMode = arguments[++i];
        else if (strcmp(arguments[i], "--first-run") == 0)
            options.firstRunNext = true;
        else if (strcmp(arguments[i], "--cloud-orders-running") == 0)
            cloudOrdersRunning = true;
        else if (strcmp(arguments[i], "--session") == 0 && i + 1 < count)
            options.pictureFolder = arguments[++i];
    }
    return options;
}

unsigned long __cdecl AnswerModule(unsigned int request, unsigned int argument, long)
{
    if (request == ZorvaneHostHotKeyFolder)
        strcpy(reinterpret_cast<char*>(argument), ".\\cfg\\trade");
    return request == ZorvaneHostCloudOrdersRunning && cloudOrdersRunning;
}

void WriteSettings(const Options& options)
{
    if (options.conditionMode)
        WritePrivateProfileStringA("Zorvane", "OpenSelectConditionOrderMode",
                                   strcmp(options.conditionMode, "on") == 0 ? "1" : "0",
                                   kTradeParamFile);
    // From here on the client has run, as the module's wizard sees it at the next start.
    WritePrivateProfileStringA("Other", "FirstRun", options.firstRunNext ? "0" : "1", kOtherFile);
}

void PrintChanges(const TOParam& before)
{
    const std::vector<std::string> lines = ChangedKeys(before, LoadClientRecord());
    printf("%u of the keys in Cfg\\Trade\\TradePackageConfig.ini changed\n",
           static_cast<unsigned>(lines.size()));
    for (const std::string& line : lines)
        printf("  %s\n", line.c_str());
}

} // namespace

int main(int count, char** arguments)
{
    const Options options = ParseOptions(count, arguments);
    WriteSettings(options);

    ZorvaneInterface::Init(AnswerModule);
    ZorvaneInterface::SetSpecialUI(SpecialUILimitPrice, options.limitPrice);
    ZorvaneInterface::SetSpecialUI(SpecialUIIndicator, true);
    std::vector<CPtkContract> contracts = AllProducts();
    ZorvaneInterface::LoadFuture(contracts.data(), static_cast<int>(contracts.size()));

    TOParam record = LoadClientRecord();
    if (options.pictureFolder)
        StartSession(options.pictureFolder);
    switch (ZorvaneInterface::DoModal(&record, options.page))
    {
    case IDOK:
        PrintChanges(record);
        return 0;
    case IDCANCEL:
        puts("cancelled: nothing was saved");
        return 0;
    default:
        puts("the settings window could not be opened");
        return 1;
    }
}

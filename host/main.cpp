// The sample trading client: loads the module as a real client does, shows its settings window, and
// prints what the trader changed and what the package file holds then.
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
#include <fstream>

namespace
{

const char kTradeParamFile[] = ".\\cfg\\Trade\\TradeParam.ini";
const char kOtherFile[] = ".\\cfg\\system\\other.ini";
const char kPackageFile[] = "Cfg\\Trade\\TradePackageConfig.ini";

const std::pair<TParamSetPage, const char*> kPagesWithoutTab[] = {
    {ParamPageOtherFuture, "other-future"},
    {ParamPageOtherStock, "other-stock"},
};

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

void OfferConditionModes(bool offer)
{
    WritePrivateProfileStringA("Zorvane", "OpenSelectConditionOrderMode", offer ? "1" : "0",
                               kTradeParamFile);
}

void WriteSettings(const Options& options)
{
    if (options.conditionMode)
        OfferConditionModes(strcmp(options.conditionMode, "on") == 0);
    // From here on the client has run, as the module's wizard sees it at the next start.
    WritePrivateProfileStringA("Other", "FirstRun", options.firstRunNext ? "0" : "1", kOtherFile);
}

void PrintChanges(const TOParam& before)
{
    const std::vector<std::string> lines = ChangedKeys(before, LoadClientRecord());
    printf("%u of the record's keys changed\n", static_cast<unsigned>(lines.size()));
    for (const std::string& line : lines)
        printf("  %s\n", line.c_str());
}

void PrintPackageFile()
{
    printf("%s now holds\n", kPackageFile);
    std::ifstream file(kPackageFile);
    for (std::string line; std::getline(file, line);)
        printf("  %s\n", line.c_str());
}

/// Opens the window on every page that there is, works it and confirms.
int RunSession(const Options& options, TOParam& record)
{
    // A page that no tab leads to shows itself when the window starts with it.
    for (const auto& [page, name] : kPagesWithoutTab)
    {
        StartPicture(options.pictureFolder, name);
        ZorvaneInterface::DoModal(&record, page);
    }
    const bool wereOffered =
        GetPrivateProfileIntA("Zorvane", "OpenSelectConditionOrderMode", 0, kTradeParamFile) != 0;
    OfferConditionModes(true);
    StartSession(options.pictureFolder);
    const int result = ZorvaneInterface::DoModal(&record, options.page);
    OfferConditionModes(wereOffered);
    return result;
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
    const int result = options.pictureFolder ? RunSession(options, record)
                                             : ZorvaneInterface::DoModal(&record, options.page);
    if (result == IDOK)
        PrintChanges(record);
    else
        puts(result == IDCANCEL ? "cancelled: nothing was saved"
                                : "the settings window could not be opened");
    PrintPackageFile();
    return result == IDOK || result == IDCANCEL ? 0 : 1;
}

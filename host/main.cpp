// The sample trading client: loads the module as a real client does, shows its settings window and
// prints what the trader changed.
//
//   ZorvaneHost [--page N] [--limit-price] [--session <picture folder>]
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

struct Options
{
    TParamSetPage page = ParamPageIndicator;
    bool limitPrice = false;
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
        else if (strcmp(arguments[i], "--session") == 0 && i + 1 < count)
            options.pictureFolder = arguments[++i];
    }
    return options;
}

unsigned long __cdecl AnswerModule(unsigned int request, unsigned int argument, long)
{
    if (request == ZorvaneHostHotKeyFolder)
        strcpy(reinterpret_cast<char*>(argument), ".\\cfg\\trade");
    return 0; // no condition orders run in the cloud
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

#include "tests/window/Child.h"

#include <zorvane/ZorvaneInterface.h>

#include <cstdio>
#include <cstring>

namespace
{

const char kMayEndEvent[] = "zorvane-tests-restarted-client-may-end";

int PrintFolder()
{
    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof(folder), folder);
    puts(folder);
    return 0;
}

int PrintDefaults()
{
    int stockVolume = -1, optionsVolume = -1, futureVolume = -1;
    double stockProfit = -1, stockFallback = -1, optionsProfit = -1, optionsFallback = -1;
    ZorvaneInterface::GetStopProfitLossDefSetingStock(1, &stockVolume, nullptr, &stockProfit,
                                                      &stockFallback, nullptr, nullptr, nullptr);
    ZorvaneInterface::GetStopProfitLossDefSetingOptions(
        0, &optionsVolume, nullptr, &optionsProfit, &optionsFallback, nullptr, nullptr, nullptr);
    const int hasFuture = ZorvaneInterface::GetStopProfitLossDefSetingFuture(
        "SHFE", "ag", &futureVolume, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    printf("stock 1: %d %.1f %.1f, options: %d %.1f %.1f, future: %s\n", stockVolume, stockProfit,
           stockFallback, optionsVolume, optionsProfit, optionsFallback,
           hasFuture ? "some" : "none");
    return 0;
}

int ShowSettings()
{
    TOParam record = {};
    record.uUseCloudMode = GetPrivateProfileIntA("TradeConfig", "uUseCloudMode", 0,
                                                 ".\\Cfg\\Trade\\TradePackageConfig.ini");
    ZorvaneInterface::Init([](unsigned int, unsigned int, long) { return 0ul; });
    return kSettingsShown + ZorvaneInterface::DoModal(&record, ParamPageConditionMode);
}

int SaveParam()
{
    TOParam record = {};
    ZorvaneInterface::SaveParam(&record);
    return 0;
}

int WaitToBeSeen()
{
    const HANDLE mayEnd = OpenEventA(SYNCHRONIZE, FALSE, kMayEndEvent);
    WaitForSingleObject(mayEnd, 20000);
    return 0;
}

} // namespace

std::string OwnPath()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof(path));
    return path;
}

std::string OwnFolder()
{
    const std::string path = OwnPath();
    return path.substr(0, path.size() - strlen("\\window_tests.exe"));
}

std::string CopyProgramTo(const std::string& folder)
{
    CreateDirectoryA(folder.c_str(), nullptr);
    const std::string program = OwnPath().substr(OwnFolder().size());
    for (const std::string& file :
         {program, std::string("\\Zorvane.dll"), std::string("\\IniWarden.dll")})
        if (!CopyFileA((OwnFolder() + file).c_str(), (folder + file).c_str(), FALSE))
            return "";
    return folder + program;
}

RestartedClient::RestartedClient()
    : m_mayEnd(CreateEventA(nullptr, TRUE, FALSE, kMayEndEvent))
{
}

RestartedClient::~RestartedClient()
{
    LetEnd();
    CloseHandle(m_mayEnd);
}

std::optional<int> RunAsChild(int count, char** arguments)
{
    const std::pair<const char*, int (*)()> roles[] = {
        {"--print-folder", PrintFolder},       {"--print-defaults", PrintDefaults},
        {kShowSettings, ShowSettings},         {kSaveParam, SaveParam},
        {"-AlreadyRunNoPrompt", WaitToBeSeen},
    };
    for (const auto& [argument, run] : roles)
        if (count == 2 && strcmp(arguments[1], argument) == 0)
            return run();
    return std::nullopt;
}

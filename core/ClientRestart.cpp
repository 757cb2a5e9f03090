#include "core/ClientRestart.h"

#include "core/Text.h"

#include <windows.h>

namespace
{

void StartAnew()
{
    char program[MAX_PATH] = "";
    if (GetModuleFileNameA(nullptr, program, sizeof(program)) == 0)
        return;
    // The path stands without quotes, also when it has blanks: clients know their command line so.
    char commandLine[512] = "";
    PrintTo(commandLine, sizeof(commandLine), "%s -AlreadyRunNoPrompt", program);

    STARTUPINFOA start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION started = {};
    CreateProcessA(nullptr, commandLine, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                   &started);
}

void EndThisProcess()
{
    const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, GetCurrentProcessId());
    TerminateProcess(process, 0);
    CloseHandle(process);
}

} // namespace

void RestartClient()
{
    StartAnew();
    EndThisProcess();
}

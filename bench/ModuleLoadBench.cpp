// How long a client waits for the module to be loaded, against a DLL with nothing in it, and how large
// the module is. This program has the system's DLLs loaded that any client has.
#include "bench/Timing.h"

#include <windows.h>

#include <commctrl.h>

#include <vector>

namespace
{

constexpr int kRounds = 41;

double TimeLoad(const char* module)
{
    const Stopwatch watch;
    const HMODULE loaded = LoadLibraryA(module);
    const double time = watch.Milliseconds();
    FreeLibrary(loaded);
    return time;
}

double Mebibytes(const char* file)
{
    WIN32_FILE_ATTRIBUTE_DATA facts = {};
    GetFileAttributesExA(file, GetFileExInfoStandard, &facts);
    return facts.nFileSizeLow / 1048576.0;
}

} // namespace

int main()
{
    InitCommonControls();
    for (const char* library : {"comdlg32.dll", "msimg32.dll", "oleacc.dll", "uxtheme.dll",
                                "riched20.dll", "shell32.dll", "ole32.dll"})
        LoadLibraryA(library);
    std::vector<double> ours, empty;
    for (int round = 0; round < kRounds; ++round)
    {
        ours.push_back(TimeLoad("Zorvane.dll"));
        empty.push_back(TimeLoad("empty.dll"));
    }
    Report("load the module", Median(ours), "empty DLL", Median(empty), "2");
    Report("size of the module, MiB", Mebibytes("Zorvane.dll"), "goal", 2.0, "1");
    return 0;
}

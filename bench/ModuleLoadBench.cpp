// How long a client waits for the module to be loaded, against a DLL with nothing in it and against the
// least that its start needs, and how large the module is. This program has the system's DLLs loaded
// that any client has.
#include "bench/Timing.h"

#include <windows.h>

#include <commctrl.h>

#include <string>
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

/// Reads what the module has to read before its client goes on: six texts and three bitmaps.
void ReadFilesOfStart()
{
    char text[64];
    for (const char* file : {".\\cfg\\Trade\\TradeParam.ini", ".\\cfg\\System\\other.ini"})
        GetPrivateProfileStringA("Other", "FirstRun", "", text, sizeof(text), file);
    for (int row = 0; row < 4; ++row)
        GetPrivateProfileStringA("证券", "股票", "", text, sizeof(text),
                                 ".\\cfg\\Trade\\StopProfitLoss.ini");
    for (const char* bitmap : {"6.bmp", "7.bmp", "p11.bmp"})
        DeleteObject(LoadImageA(nullptr,
                                (std::string(".\\skin\\蓝色空间\\Trade\\") + bitmap).c_str(),
                                IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
}

/// The module brings a second DLL with it.
double TimeLeast()
{
    const Stopwatch watch;
    const HMODULE first = LoadLibraryA("empty.dll");
    const HMODULE second = LoadLibraryA("empty2.dll");
    ReadFilesOfStart();
    const double time = watch.Milliseconds();
    FreeLibrary(second);
    FreeLibrary(first);
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
    CopyFileA("empty.dll", "empty2.dll", FALSE);
    std::vector<double> ours, empty, least;
    for (int round = 0; round < kRounds; ++round)
    {
        ours.push_back(TimeLoad("Zorvane.dll"));
        empty.push_back(TimeLoad("empty.dll"));
        least.push_back(TimeLeast());
    }
    Report("load the module", Median(ours), "empty DLL", Median(empty), "2");
    Report("load the module", Median(ours), "two empty DLLs and the start's files", Median(least));
    Report("size of the module, MiB", Mebibytes("Zorvane.dll"), "goal", 2.0, "1");
    return 0;
}

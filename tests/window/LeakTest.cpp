// A client that runs for weeks opens the window many times: nothing of it may stay behind.
#include "tests/skin/LeftBehind.h"
#include "tests/window/FactoryRecord.h"
#include "tests/window/InsideWindow.h"
#include "tests/window/ModuleTest.h"

#include <psapi.h>

#include <cstdlib>

namespace
{

constexpr int kWarmUp = 10;

struct Held
{
    int gdiObjects;
    DWORD handles;
    SIZE_T memory; // bytes of the process's own
};

Held CountHeld()
{
    Held held = {};
    held.gdiObjects = CountGdiObjects();
    GetProcessHandleCount(GetCurrentProcess(), &held.handles);
    PROCESS_MEMORY_COUNTERS_EX memory = {};
    memory.cb = sizeof(memory);
    GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                         sizeof(memory));
    held.memory = memory.PrivateUsage;
    return held;
}

/// How often the window is opened: more by hand than in every run.
int Openings()
{
    const char* const wanted = getenv("ZORVANE_OPENINGS");
    return wanted ? atoi(wanted) : 50;
}

void OpenAndWalk(int times)
{
    TOParam record = FactoryRecord();
    for (int i = 0; i < times; ++i)
    {
        int pages = 0;
        RunInsideSettingsWindow(record, ParamPagePublic,
                                [&pages](HWND window)
                                {
                                    PaintNow(window);
                                    WalkPages(window,
                                              [&pages, window](HWND)
                                              {
                                                  ++pages;
                                                  PaintNow(window);
                                              });
                                });
        ASSERT_GE(pages, 12);
    }
}

class Leak : public ModuleTest
{
};

} // namespace

TEST_F(Leak, NothingGrowsWithOpeningsAndWalksOverAllPages)
{
    OpenAndWalk(kWarmUp);
    const Held before = CountHeld();
    const int windows = CountWindows();
    const int openings = Openings();
    OpenAndWalk(openings);
    const Held after = CountHeld();

    EXPECT_EQ(before.gdiObjects, after.gdiObjects);
    EXPECT_EQ(before.handles, after.handles);
    EXPECT_EQ(windows, CountWindows());
    // The heap settles late, and a page's controls weigh more than this an opening.
    const SIZE_T grown = after.memory > before.memory ? after.memory - before.memory : 0;
    EXPECT_LE(grown / openings, 512u) << before.memory << " grew to " << after.memory;
}

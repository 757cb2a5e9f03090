#include "tests/window/Trader.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

// Whatever a failed test left open, boxes first: the test's thread waits in their loops.
void CloseAll(HWND window)
{
    for (int i = 0; i < 100 && IsWindow(window); ++i)
    {
        PostMessageA(GetLastActivePopup(window), WM_COMMAND, IDCANCEL, 0);
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
}

} // namespace

int RunSettingsWindow(TOParam& record, TParamSetPage page, const std::function<void(Trader&)>& work)
{
    std::thread driver(
        [&work]
        {
            const HWND window = WaitForWindow("参数设置");
            if (!window)
            {
                ADD_FAILURE() << "the window did not open";
                return;
            }
            Trader trader(window);
            trader.Settle();
            work(trader);
            trader.Settle();
            if (trader.IsOpen())
            {
                ADD_FAILURE() << "the window is still open";
                CloseAll(window);
            }
        });
    const int result = ZorvaneInterface::DoModal(&record, page);
    driver.join();
    return result;
}

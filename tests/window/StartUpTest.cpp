// What stands when the module is loaded, and what it relays while its window runs.
#include "tests/window/ModuleTest.h"

#include "tests/window/Child.h"

namespace
{

class StartUp : public ModuleTest
{
protected:
    // A folder name whose second byte is a backslash in code page 936.
    static std::string OddFolder() { return OwnFolder() + "\\odd\x95\x5c"; }

    static std::string BareFolder() { return OwnFolder() + "\\bare"; }

    /// Makes a folder with the module and this program, and nothing else in it.
    static void CopyModuleTo(const std::string& folder)
    {
        RemoveTree(folder);
        CreateDirectoryA(folder.c_str(), nullptr);
        for (const char* file : {"\\window_tests.exe", "\\Zorvane.dll", "\\IniWarden.dll"})
            ASSERT_TRUE(CopyFileA((OwnFolder() + file).c_str(), (folder + file).c_str(), FALSE));
    }

    void TearDown() override
    {
        RemoveTree(OddFolder());
        RemoveTree(BareFolder());
    }
};

} // namespace

TEST_F(StartUp, TheHostsFolderIsTheWorkingDirectory)
{
    // Started in another folder, and asked which one it is in after loading the module.
    EXPECT_EQ(OwnFolder(), OutputOfChild(OwnPath(), "--print-folder", "C:\\"));
}

TEST_F(StartUp, AFolderNameMayHoldABackslashAsASecondByte)
{
    CopyModuleTo(OddFolder());
    EXPECT_EQ(OddFolder(),
              OutputOfChild(OddFolder() + "\\window_tests.exe", "--print-folder", "C:\\"));
}

TEST_F(StartUp, WithoutAnyFileTheTablesHoldBuiltInDefaults)
{
    CopyModuleTo(OddFolder());
    EXPECT_EQ("stock 1: 0 15.0 5.0, options: 1 20.0 10.0, future: none",
              OutputOfChild(OddFolder() + "\\window_tests.exe", "--print-defaults", "C:\\"));
}

TEST_F(StartUp, StockAndOptionsAreLoadedWithTheModule)
{
    const char stopFile[] = "cfg\\Trade\\StopProfitLoss.ini";
    WriteBytes(stopFile, "[证券]\r\n基金=300,1,0,0.25,0.07,0,0.1,0.1,9,1\r\n"
                         "[期权]\r\n个股期权=7,1,0,0.3,0.125,0,0.1,0.1,9\r\n");
    EXPECT_EQ("stock 1: 300 25.0 7.0, options: 7 30.0 12.5, future: none",
              OutputOfChild(OwnPath(), "--print-defaults", "C:\\"));
}

TEST_F(StartUp, ACutBitmapOfTheSkinIsNoDanger)
{
    CopyModuleTo(BareFolder());
    // The heads of a large bitmap whose pixels are missing.
    const char head[] = "BM\x36\x00\x30\x00\x00\x00\x00\x00\x36\x00\x00\x00\x28\x00\x00\x00"
                        "\x00\x04\x00\x00\x00\x04\x00\x00\x01\x00\x18\x00";
    std::string cut(head, sizeof(head) - 1);
    cut.resize(60);
    for (const char* file : {"6.bmp", "7.bmp", "p11.bmp"})
        WriteBytes(BareFolder() + "\\skin\\蓝色空间\\Trade\\" + file, cut);
    EXPECT_EQ(BareFolder(),
              OutputOfChild(BareFolder() + "\\window_tests.exe", "--print-folder", "C:\\"));
}

namespace
{

constexpr UINT kMousePressed = WM_USER + 4;

std::vector<CWPSTRUCT> relayed;

LRESULT CALLBACK RecordRelay(int code, WPARAM wParam, LPARAM lParam)
{
    const auto* const call = reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && call->message == kMousePressed)
        relayed.push_back(*call);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace

TEST_F(StartUp, APressAnywhereIsRelayedToTheHostOnShow)
{
    relayed.clear();
    const HHOOK hook =
        SetWindowsHookExA(WH_CALLWNDPROC, RecordRelay, nullptr, GetCurrentThreadId());
    ASSERT_NE(nullptr, hook);
    TOParam record = {};
    POINT pressed = {};
    HWND host = nullptr;
    RunSettingsWindow(record, ParamPageIndicator,
                      [&](Trader& trader)
                      {
                          host = GetParent(trader.Control(6002));
                          RECT window;
                          GetWindowRect(host, &window);
                          pressed = {window.left + 300, window.top + 300};
                          trader.ClickAt(nullptr, pressed.x, pressed.y);
                          trader.Click(IDCANCEL);
                      });
    UnhookWindowsHookEx(hook);

    ASSERT_FALSE(relayed.empty());
    EXPECT_EQ(host, relayed[0].hwnd);
    EXPECT_EQ(static_cast<WPARAM>(pressed.y) << 16 | LOWORD(pressed.x), relayed[0].wParam);
    EXPECT_EQ(0, relayed[0].lParam);
}

TEST_F(StartUp, WithoutTheWindowNothingIsRelayed)
{
    relayed.clear();
    const HHOOK hook =
        SetWindowsHookExA(WH_CALLWNDPROC, RecordRelay, nullptr, GetCurrentThreadId());
    const HWND window = CreateWindowExA(0, "STATIC", "client", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                        nullptr, nullptr, nullptr, nullptr);
    PostMessageA(window, WM_LBUTTONDOWN, 0, MAKELPARAM(5, 5));
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageA(&message);
    DestroyWindow(window);
    UnhookWindowsHookEx(hook);
    EXPECT_TRUE(relayed.empty());
}

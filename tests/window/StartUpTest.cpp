// What stands when the module is loaded, and what it relays while its window runs.
#include "resources/resource.h"
#include "tests/window/ModuleTest.h"

#include "tests/window/Child.h"
#include "tests/window/Process.h"
#include "tests/window/Records.h"

#include <vector>

namespace
{

class StartUp : public ModuleTest
{
protected:
    // A folder name whose second byte is a backslash in code page 936.
    static std::string OddFolder() { return OwnFolder() + "\\odd\x95\x5c"; }

    static std::string BareFolder() { return OwnFolder() + "\\bare"; }

    void SetUp() override
    {
        ModuleTest::SetUp();
        RemoveTree(OddFolder());
        m_program = CopyProgramTo(OddFolder());
        ASSERT_NE("", m_program);
    }

    void TearDown() override
    {
        RemoveTree(OddFolder());
        RemoveTree(BareFolder());
    }

    std::string m_program; // alone in its folder
};

} // namespace

TEST_F(StartUp, TheHostsFolderIsTheWorkingDirectory)
{
    // Started in another folder, and asked which one it is in after loading the module.
    EXPECT_EQ(OwnFolder(), OutputOfChild(OwnPath(), "--print-folder", "C:\\"));
}

TEST_F(StartUp, AFolderNameMayHoldABackslashAsASecondByte)
{
    EXPECT_EQ(OddFolder(), OutputOfChild(m_program, "--print-folder", "C:\\"));
}

TEST_F(StartUp, WithoutAnyFileTheTablesHoldBuiltInDefaults)
{
    EXPECT_EQ("stock 1: 0 15.0 5.0, options: 1 20.0 10.0, future: none",
              OutputOfChild(m_program, "--print-defaults", "C:\\"));
}

TEST_F(StartUp, SavingNeedsNoSkinNoWindowAndNoCallback)
{
    // Nor any flag of an optional feature: those never set are off.
    EXPECT_EQ("", OutputOfChild(m_program, kSaveParam, "C:\\"));
    EXPECT_EQ(FileOf({}), ReadBytes(OddFolder() + "\\" + kUserFile));
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
    RemoveTree(BareFolder());
    const std::string program = CopyProgramTo(BareFolder());
    // The heads of a large bitmap whose pixels are missing.
    const char head[] = "BM\x36\x00\x30\x00\x00\x00\x00\x00\x36\x00\x00\x00\x28\x00\x00\x00"
                        "\x00\x04\x00\x00\x00\x04\x00\x00\x01\x00\x18\x00";
    std::string cut(head, sizeof(head) - 1);
    cut.resize(60);
    for (const char* file : {"6.bmp", "7.bmp", "p11.bmp"})
        WriteBytes(BareFolder() + "\\skin\\蓝色空间\\Trade\\" + file, cut);
    EXPECT_EQ(BareFolder(), OutputOfChild(program, "--print-folder", "C:\\"));
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

class Relay : public ModuleTest
{
protected:
    void SetUp() override
    {
        ModuleTest::SetUp();
        relayed.clear();
        m_hook = SetWindowsHookExA(WH_CALLWNDPROC, RecordRelay, nullptr, GetCurrentThreadId());
        ASSERT_NE(nullptr, m_hook);
    }

    void TearDown() override { UnhookWindowsHookEx(m_hook); }

    HHOOK m_hook = nullptr;
};

} // namespace

TEST_F(Relay, APressOfEitherButtonAnywhereReachesTheHostOnShow)
{
    TOParam record = {};
    POINT pressed[2] = {};
    HWND host = nullptr;
    RunSettingsWindow(record, ParamPageIndicator,
                      [&](Trader& trader)
                      {
                          host = GetParent(trader.Control(IDC_ONE_OPEN));
                          RECT window;
                          GetWindowRect(host, &window);
                          pressed[0] = {window.left + 300, window.top + 300};
                          pressed[1] = {window.left + 310, window.top + 320};
                          trader.ClickAt(nullptr, pressed[0].x, pressed[0].y);
                          trader.RightClickAt(nullptr, pressed[1].x, pressed[1].y);
                          trader.Click(IDCANCEL);
                      });

    ASSERT_LE(2u, relayed.size());
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_EQ(host, relayed[i].hwnd);
        EXPECT_EQ(static_cast<WPARAM>(pressed[i].y) << 16 | LOWORD(pressed[i].x),
                  relayed[i].wParam);
        EXPECT_EQ(0, relayed[i].lParam);
    }
}

TEST_F(Relay, TheHostOfOptionsPassesItOnToItsPage)
{
    TOParam record = {};
    HWND host = nullptr, page = nullptr;
    RunSettingsWindow(record, ParamPageOptionsChase,
                      [&](Trader& trader)
                      {
                          page = GetParent(trader.Control(IDC_CHASE_PRICE));
                          host = GetParent(page);
                          EXPECT_EQ(0, SendMessageA(host, kMousePressed, 0x12345678, 77));
                          SendMessageA(trader.Window(), WM_COMMAND, IDCANCEL, 0);
                      });
    ASSERT_EQ(2u, relayed.size());
    EXPECT_EQ(host, relayed[0].hwnd);
    EXPECT_EQ(page, relayed[1].hwnd);
    for (const CWPSTRUCT& call : relayed)
    {
        EXPECT_EQ(0x12345678u, call.wParam);
        EXPECT_EQ(77, call.lParam);
    }
}

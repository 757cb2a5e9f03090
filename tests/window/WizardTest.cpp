// The wizard of the first run, inside the load of the module. This program does not link the module: it
// loads it as a client does that calls LoadLibrary, again for each test.
#include "resources/resource.h"
#include "tests/mfc/GdiCount.h"
#include "tests/skin/TestBitmap.h"
#include "tests/window/Files.h"
#include "tests/window/LayoutChecks.h"
#include "tests/window/Trader.h"

#include <zorvane/TOParam.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <thread>

namespace
{

constexpr char kTitle[] = "条件单使用向导";

const char kTradeParamFile[] = "cfg\\Trade\\TradeParam.ini";
const char kUserFile[] = "Cfg\\Trade\\TradePackageConfig.ini";
const char kOffered[] = "[Zorvane]\r\nOpenSelectConditionOrderMode=1\r\n";

class Wizard : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        ASSERT_EQ(936u, GetACP());
        // Where the module will look for its files.
        char path[MAX_PATH] = "";
        GetModuleFileNameA(nullptr, path, sizeof(path));
        *strrchr(path, '\\') = '\0';
        SetCurrentDirectoryA(path);
    }

    void SetUp() override
    {
        RemoveTree("cfg");
        RemoveTree("Sys");
        WriteBytes(kTradeParamFile, kOffered);
    }

    void TearDown() override
    {
        Unload();
        RemoveTree("cfg");
    }

    /// Loads the module. Its wizard is answered by `work`, which is not called when none comes up.
    /// @return whether a wizard came up
    bool Load(const std::function<void(Trader&)>& work)
    {
        std::atomic<bool> ready(false), loaded(false), shown(false);
        // A thread that starts while the module loads waits until the load is done.
        std::thread trader(
            [&]
            {
                ready = true;
                HWND window = nullptr;
                while (!loaded && !(window && IsWindowVisible(window)))
                {
                    Sleep(10);
                    window = FindWindowA(nullptr, kTitle);
                }
                if (loaded)
                    return;
                shown = true;
                Trader wizard(window);
                wizard.Settle();
                work(wizard);
            });
        while (!ready)
            Sleep(1);
        m_module = LoadLibraryA("Zorvane.dll");
        loaded = true;
        trader.join();
        EXPECT_TRUE(m_module);
        return shown;
    }

    bool LoadWithoutWizard()
    {
        return !Load([](Trader& wizard) { wizard.Click(IDCANCEL); });
    }

    void Unload()
    {
        if (m_module)
            FreeLibrary(m_module);
        m_module = nullptr;
    }

    HMODULE m_module = nullptr;
};

} // namespace

TEST_F(Wizard, OffersLocalFirst)
{
    EXPECT_TRUE(Load(
        [](Trader& wizard)
        {
            EXPECT_EQ("请选择条件单模式（如果您未使用条件单功能，建议选择本地条件单）：",
                      wizard.Message());
            EXPECT_EQ("本地条件单", wizard.Text(IDC_WIZARD_LOCAL));
            EXPECT_EQ("云条件单", wizard.Text(IDC_WIZARD_CLOUD));
            EXPECT_EQ("确定", wizard.Text(IDOK));
            EXPECT_EQ("取消", wizard.Text(IDCANCEL));
            EXPECT_TRUE(wizard.IsChecked(IDC_WIZARD_LOCAL));
            EXPECT_FALSE(wizard.IsChecked(IDC_WIZARD_CLOUD));
            CheckLayout(wizard.Window());
            LeavePicture(wizard.Window(), "wizard");
            wizard.Click(IDCANCEL);
        }));
}

TEST_F(Wizard, OkWritesLocal)
{
    EXPECT_TRUE(Load([](Trader& wizard) { wizard.Click(IDOK); }));
    EXPECT_EQ("[TradeConfig]\r\nuUseCloudMode=0\r\n", ReadBytes(kUserFile));
}

TEST_F(Wizard, OkWritesCloud)
{
    WriteBytes(kUserFile, "[TradeConfig]\r\nbOneOpen=1\r\nuUseCloudMode=0\r\n");
    EXPECT_TRUE(Load(
        [](Trader& wizard)
        {
            wizard.Click(IDC_WIZARD_CLOUD);
            EXPECT_FALSE(wizard.IsChecked(IDC_WIZARD_LOCAL));
            wizard.Click(IDOK);
        }));
    EXPECT_EQ("[TradeConfig]\r\nbOneOpen=1\r\nuUseCloudMode=1\r\n", ReadBytes(kUserFile));
}

TEST_F(Wizard, CancelWritesNothing)
{
    EXPECT_TRUE(Load(
        [](Trader& wizard)
        {
            wizard.Click(IDC_WIZARD_CLOUD);
            wizard.Click(IDCANCEL);
        }));
    EXPECT_EQ("", ReadBytes(kUserFile));
}

TEST_F(Wizard, ReturnConfirmsAndEscapeCancels)
{
    EXPECT_TRUE(Load(
        [](Trader& wizard)
        {
            wizard.Click(IDC_WIZARD_CLOUD);
            wizard.Key(VK_ESCAPE);
        }));
    EXPECT_EQ("", ReadBytes(kUserFile));
    Unload();
    EXPECT_TRUE(Load(
        [](Trader& wizard)
        {
            wizard.Click(IDC_WIZARD_CLOUD);
            wizard.Key(VK_RETURN);
        }));
    EXPECT_EQ("[TradeConfig]\r\nuUseCloudMode=1\r\n", ReadBytes(kUserFile));
}

TEST_F(Wizard, ComesBackUntilTheClientHasWrittenFirstRun)
{
    const auto confirm = [](Trader& wizard)
    {
        wizard.Click(IDOK);
    };
    EXPECT_TRUE(Load(confirm));
    Unload();
    EXPECT_TRUE(Load(confirm));
    EXPECT_EQ("", ReadBytes("cfg\\system\\other.ini"));
    Unload();
    WriteBytes("cfg\\system\\other.ini", "[Other]\r\nFirstRun=1\r\n");
    EXPECT_TRUE(LoadWithoutWizard());
}

TEST_F(Wizard, StaysAwayWithoutTheFeature)
{
    for (const char* value : {"0", "2", "-1", ""})
    {
        WriteBytes(kTradeParamFile,
                   std::string("[Zorvane]\r\nOpenSelectConditionOrderMode=") + value + "\r\n");
        EXPECT_TRUE(LoadWithoutWizard()) << value;
        Unload();
    }
    RemoveTree("cfg");
    EXPECT_TRUE(LoadWithoutWizard());
    EXPECT_EQ("", ReadBytes(kUserFile));
}

namespace
{

constexpr UINT kMousePressed = WM_USER + 4;

int seenCalls;
int relayedPresses;

LRESULT CALLBACK CountRelays(int code, WPARAM wParam, LPARAM lParam)
{
    ++seenCalls;
    relayedPresses += reinterpret_cast<const CWPSTRUCT*>(lParam)->message == kMousePressed;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace

TEST_F(Wizard, RelaysNoPressWhileTheSettingsAreNotOpen)
{
    seenCalls = relayedPresses = 0;
    const HHOOK hook =
        SetWindowsHookExA(WH_CALLWNDPROC, CountRelays, nullptr, GetCurrentThreadId());
    EXPECT_TRUE(Load(
        [](Trader& wizard)
        {
            wizard.ClickAt(wizard.Window(), 5, 5);
            wizard.RightClickAt(wizard.Window(), 5, 5);
            wizard.Click(IDCANCEL);
        }));
    UnhookWindowsHookEx(hook);
    EXPECT_GT(seenCalls, 0);
    EXPECT_EQ(0, relayedPresses);
}

TEST_F(Wizard, TheLoadReadsThreeBitmapsOfTheActiveSkin)
{
    const std::string dot = FlatBitmap(1, 4, 4, {RGB(1, 2, 3)});
    const auto objectsOfALoad = [this](const std::string& skin)
    {
        RemoveTree("cfg");
        if (!skin.empty())
            WriteBytes("cfg\\System\\other.ini", "[Skin]\r\nActive=" + skin + "\r\n");
        const int before = CountGdiObjects();
        EXPECT_TRUE(LoadWithoutWizard());
        const int loaded = CountGdiObjects() - before;
        Unload();
        return loaded;
    };
    objectsOfALoad("none"); // what the first load leaves behind besides
    const int plain = objectsOfALoad("none");
    int there = 0;
    for (const char* file : {"6.bmp", "7.bmp", "p11.bmp", "8.bmp"})
    {
        WriteBytes(std::string("skin\\own\\Trade\\") + file, dot);
        there += *file != '8';
        EXPECT_EQ(plain + there, objectsOfALoad("own")) << file;
    }
    RemoveTree("skin\\own");

    // The skin of an installation that chose none.
    const std::string standard = "skin\\蓝色空间";
    MoveFileA(standard.c_str(), "skin\\away");
    EXPECT_EQ(plain, objectsOfALoad(""));
    for (const char* file : {"6.bmp", "7.bmp", "p11.bmp"})
        WriteBytes(standard + "\\Trade\\" + file, dot);
    EXPECT_EQ(plain + 3, objectsOfALoad(""));
    RemoveTree(standard);
    MoveFileA("skin\\away", standard.c_str());
}

TEST_F(Wizard, LeavesTheModuleReadyForTheHost)
{
    EXPECT_TRUE(Load([](Trader& wizard) { wizard.Click(IDOK); }));
    using SaveParam = void(__cdecl*)(TOParam*);
    const auto save = reinterpret_cast<SaveParam>(reinterpret_cast<void*>(
        GetProcAddress(m_module, "?SaveParam@ZorvaneInterface@@SAXPAUTOParam@@@Z")));
    ASSERT_TRUE(save);
    // The record comes later and wins.
    TOParam record = {};
    record.uUseCloudMode = 1;
    save(&record);
    EXPECT_NE(std::string::npos, ReadBytes(kUserFile).find("\r\nuUseCloudMode=1\r\n"));
}

// The ground of the tests of the condition-order mode: a client that offers the choice and counts what
// it is asked.
#pragma once

#include "tests/window/ModuleTest.h"

inline const char kTradeParamFile[] = "cfg\\Trade\\TradeParam.ini";
inline const char kOtherFile[] = "cfg\\system\\other.ini";
inline const char kResourceFile[] = "cfg\\system\\Resource.ini";

class ConditionModeTest : public ModuleTest
{
protected:
    void SetUp() override
    {
        ModuleTest::SetUp();
        OfferModes("1");
        // A test that is killed must leave nothing behind that brings up the wizard.
        WriteBytes(kOtherFile, "[Other]\r\nFirstRun=1\r\n");
        cloudOrdersRun = false;
        timesAsked = 0;
        ZorvaneInterface::Init(Answer);
    }

    void TearDown() override { RemoveTree("cfg"); }

    static void OfferModes(const std::string& value)
    {
        WriteBytes(kTradeParamFile, "[Zorvane]\r\nOpenSelectConditionOrderMode=" + value + "\r\n");
    }

    int Run(uint32_t mode, const std::function<void(Trader&)>& work)
    {
        TOParam record = {};
        record.uUseCloudMode = mode;
        return RunSettingsWindow(record, ParamPageConditionMode, work);
    }

    /// What the box or prompt over the settings window says, after it was left by a button.
    static std::string LeavePopup(const Trader& trader, int button)
    {
        const HWND window = WaitForPopup(trader.Window());
        if (!window)
            return "<none>";
        Trader popup(window);
        popup.Settle();
        EXPECT_EQ("提示", popup.Text(window));
        const std::string text = popup.Message();
        popup.Click(button);
        EXPECT_TRUE(WaitUntil([&] { return !IsWindow(window); }));
        trader.Settle();
        return text;
    }

    static bool HasPopup(const Trader& trader)
    {
        return GetLastActivePopup(trader.Window()) != trader.Window();
    }

    static inline bool cloudOrdersRun;
    static inline int timesAsked;

private:
    static unsigned long __cdecl Answer(unsigned int request, unsigned int argument, long other)
    {
        if (request == ZorvaneHostHotKeyFolder)
            return 0; // the page of keys, which restoring makes
        EXPECT_EQ(2054u, request);
        EXPECT_EQ(0u, argument);
        EXPECT_EQ(0, other);
        ++timesAsked;
        // Any answer but 0 means yes.
        return cloudOrdersRun ? 7 : 0;
    }
};

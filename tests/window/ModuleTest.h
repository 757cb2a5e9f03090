// The ground that every test of the module stands on: an empty store.
#pragma once

#include "tests/window/Files.h"
#include "tests/window/Trader.h"

#include <zorvane/ZorvaneInterface.h>

#include <gtest/gtest.h>

#include <cstring>

inline const char kUserFile[] = "Cfg\\Trade\\TradePackageConfig.ini";
inline const char kPackagedFile[] = "Sys\\Cfg\\Trade\\TradePackageConfig.ini";

class ModuleTest : public testing::Test
{
protected:
    void SetUp() override
    {
        RemoveTree("Cfg");
        RemoveTree("Sys");
        RemoveTree("cfg");
        ZorvaneInterface::Init([](unsigned int, unsigned int, long) { return 0ul; });
        ZorvaneInterface::SetSpecialUI(SpecialUILimitPrice, false);
        ZorvaneInterface::SetSpecialUI(SpecialUIIndicator, true);
    }

    /// The text of a key in the user's file; "<absent>" when it is not there.
    static std::string Stored(const char* key)
    {
        char text[1024];
        GetPrivateProfileStringA("TradeConfig", key, "<absent>", text, sizeof(text),
                                 (std::string(".\\") + kUserFile).c_str());
        return text;
    }
};

// The ground of the tests of what is kept in files of keys: a folder for them, and a keyboard on which
// the test says what is held down.
#pragma once

#include "hotkeys/HeldModifiers.h"
#include "tests/core/TempWorkingFolder.h"

#include <cstdint>

class HotKeyFolder : public TempWorkingFolder
{
protected:
    void SetUp() override
    {
        TempWorkingFolder::SetUp();
        std::filesystem::create_directories("cfg\\trade");
        held = 0;
        gReadHeldModifiers = []
        {
            return held;
        };
    }

    void TearDown() override
    {
        gReadHeldModifiers = ReadKeyboardModifiers;
        TempWorkingFolder::TearDown();
    }

    static inline uint8_t held;
};

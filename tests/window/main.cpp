// Tests of the real module through its exported interface and its real window.
#include "tests/window/Child.h"

#include <windows.h>

#include <gtest/gtest.h>

int main(int count, char** arguments)
{
    if (const std::optional<int> end = RunAsChild(count, arguments))
        return *end;
    ::testing::InitGoogleTest(&count, arguments);
    // Without code page 936 no Chinese text means anything.
    if (GetACP() != 936)
    {
        printf("code page %u instead of 936\n", GetACP());
        return 1;
    }
    return RUN_ALL_TESTS();
}

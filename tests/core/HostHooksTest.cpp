#include "core/HostHooks.h"

#include <gtest/gtest.h>

TEST(SpecialUI, AFlagThatWasNeverSetIsOff)
{
    for (int key : {-1, 0, 1, 2, 12345})
        EXPECT_FALSE(GetSpecialUI(key)) << key;
}

TEST(SpecialUI, EachFlagIsItsOwn)
{
    SetSpecialUI(SpecialUILimitPrice, true);
    EXPECT_TRUE(GetSpecialUI(SpecialUILimitPrice));
    EXPECT_FALSE(GetSpecialUI(SpecialUIIndicator));
    SetSpecialUI(SpecialUILimitPrice, false);
    EXPECT_FALSE(GetSpecialUI(SpecialUILimitPrice));
}

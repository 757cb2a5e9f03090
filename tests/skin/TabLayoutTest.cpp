#include "skin/TabLayout.h"

#include <gtest/gtest.h>

TEST(HitTab, FindsTheTabUnderThePoint)
{
    EXPECT_EQ(0, HitTab({100, 50, 70}, 1));
    EXPECT_EQ(0, HitTab({100, 50, 70}, 99));
    EXPECT_EQ(1, HitTab({100, 50, 70}, 101));
    EXPECT_EQ(2, HitTab({100, 50, 70}, 219));
}

TEST(HitTab, TheFirstPixelOfATabBelongsToNone)
{
    EXPECT_EQ(-1, HitTab({100, 50, 70}, 0));
    EXPECT_EQ(-1, HitTab({100, 50, 70}, 100));
    EXPECT_EQ(-1, HitTab({100, 50, 70}, 150));
}

TEST(HitTab, NothingIsHitOutsideTheTabs)
{
    EXPECT_EQ(-1, HitTab({100, 50, 70}, -1));
    EXPECT_EQ(-1, HitTab({100, 50, 70}, 220));
    EXPECT_EQ(-1, HitTab({}, 1));
    EXPECT_EQ(1, HitTab({0, 10}, 5));
}

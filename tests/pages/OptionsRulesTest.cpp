#include "pages/OptionsRules.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

constexpr ShippedLimits kUsual = {0, 100};
constexpr ShippedLimits kFixed = {5, 5};
constexpr ShippedLimits kCrossed = {100, 20};

} // namespace

TEST(MiddleThreshold, IsHalfTheSum)
{
    EXPECT_EQ(50, MiddleThreshold(kUsual));
    EXPECT_EQ(5, MiddleThreshold(kFixed));
    EXPECT_EQ(60, MiddleThreshold(kCrossed));
    EXPECT_EQ(12, MiddleThreshold({10, 15})) << "25 / 2";
    EXPECT_EQ(-12, MiddleThreshold({-15, -10})) << "towards zero";
    EXPECT_EQ(INT_MAX - 1, MiddleThreshold({INT_MAX - 2, INT_MAX})) << "no overflow";
    EXPECT_EQ(INT_MIN + 1, MiddleThreshold({INT_MIN, INT_MIN + 2}));
}

TEST(ClampThreshold, BringsTheValueIn)
{
    EXPECT_EQ(0, ClampThreshold(kUsual, -7));
    EXPECT_EQ(10, ClampThreshold(kUsual, 10));
    EXPECT_EQ(100, ClampThreshold(kUsual, 101));
    EXPECT_EQ(5, ClampThreshold(kFixed, 10));
    for (int value : {0, 50, 100, 500})
        EXPECT_EQ(20, ClampThreshold(kCrossed, value));
}

TEST(IsThreshold, LooksAtTheWholePartOnly)
{
    EXPECT_TRUE(IsThreshold(kUsual, "0"));
    EXPECT_TRUE(IsThreshold(kUsual, "100"));
    EXPECT_TRUE(IsThreshold(kUsual, "100.9"));
    EXPECT_TRUE(IsThreshold(kUsual, "-0.9"));
    EXPECT_TRUE(IsThreshold(kUsual, "1e2"));
    EXPECT_FALSE(IsThreshold(kUsual, "101"));
    EXPECT_FALSE(IsThreshold(kUsual, "-1"));
    EXPECT_FALSE(IsThreshold(kUsual, "99999999999"));
    EXPECT_FALSE(IsThreshold({1, 100}, "0.99"));
}

TEST(IsThreshold, TakesOtherTextAsZero)
{
    for (const char* text : {"", "abc", ".", "-", "nan"})
    {
        EXPECT_TRUE(IsThreshold(kUsual, text)) << text;
        EXPECT_FALSE(IsThreshold({1, 100}, text)) << text;
    }
}

TEST(IsThreshold, ChecksNothingUnderEqualLimits)
{
    for (const char* text : {"5", "6", "", "-70", "x"})
        EXPECT_TRUE(IsThreshold(kFixed, text)) << text;
}

TEST(IsThreshold, HoldsNothingUnderCrossedLimits)
{
    for (const char* text : {"20", "60", "100"})
        EXPECT_FALSE(IsThreshold(kCrossed, text)) << text;
}

TEST(IsRatioText, TakesDecimalNumbers)
{
    for (const char* text : {"0", "1", "8.00", "1.5", "10", "-2", "-0", "0.20", "0.05", "-0.99",
                             "1234567890123456789012345678901234567890"})
        EXPECT_TRUE(IsRatioText(text)) << text;
}

TEST(IsRatioText, RefusesEverythingElse)
{
    for (const char* text : {"",    " ",  "1.",  ".5",      "01.5", "00",    "1.555",   "1.5.",
                             "--1", "+1", "-",   "-.5",     "1,5",  "1e2",   "nan",     "0x1",
                             " 1",  "1 ", "1\n", "1.5\r\n", "a",    "1\x80", "\xa3\xb1"})
        EXPECT_FALSE(IsRatioText(text)) << text;
}

TEST(Ratios, HaveOpenBounds)
{
    EXPECT_TRUE(IsHigherRatio(1.01));
    EXPECT_FALSE(IsHigherRatio(1.0));
    EXPECT_FALSE(IsHigherRatio(-2.0));
    EXPECT_TRUE(IsLowerRatio(0.01));
    EXPECT_TRUE(IsLowerRatio(0.99));
    EXPECT_FALSE(IsLowerRatio(0.0));
    EXPECT_FALSE(IsLowerRatio(1.0));
    EXPECT_FALSE(IsLowerRatio(-0.5));
}

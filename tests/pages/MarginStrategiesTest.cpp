#include "pages/MarginStrategies.h"

#include <gtest/gtest.h>

using Values = std::vector<std::string>;

TEST(OfferedStrategies, KeepsTheOrderOfTheList)
{
    EXPECT_EQ((Values{"3", "1", "0"}), OfferedStrategies("3|1|0"));
    EXPECT_EQ((Values{"0", "3"}), OfferedStrategies("0|3"));
    EXPECT_EQ((Values{"1"}), OfferedStrategies("1"));
}

TEST(OfferedStrategies, DropsWhatHasNoLabel)
{
    EXPECT_EQ((Values{"1", "0"}), OfferedStrategies("9|1||x|0|"));
    EXPECT_EQ((Values{"1"}), OfferedStrategies("03|1| 0"));
}

TEST(OfferedStrategies, TrimsTheWholeTextOnly)
{
    EXPECT_EQ((Values{"3", "1"}), OfferedStrategies("  3|1  "));
    EXPECT_EQ((Values{"3"}), OfferedStrategies("3|1 |"));
}

TEST(OfferedStrategies, FallsBackToTheStandardThree)
{
    const Values standard = {"3", "1", "0"};
    EXPECT_EQ(standard, OfferedStrategies("9|x"));
    EXPECT_EQ(standard, OfferedStrategies(""));
    EXPECT_EQ(standard, OfferedStrategies("   "));
    EXPECT_EQ(standard, OfferedStrategies("||"));
}

TEST(OfferedStrategies, OffersFourAtMost)
{
    EXPECT_EQ((Values{"3", "3", "1", "1"}), OfferedStrategies("3|3|1|1|0"));
}

TEST(MarginStrategyLabel, NamesTheThree)
{
    EXPECT_STREQ("融资优先", MarginStrategyLabel("3"));
    EXPECT_STREQ("仅融资买入", MarginStrategyLabel("1"));
    EXPECT_STREQ("仅普通买入", MarginStrategyLabel("0"));
    EXPECT_EQ(nullptr, MarginStrategyLabel("2"));
}

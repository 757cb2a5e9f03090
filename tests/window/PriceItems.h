// What the lists of prices offer, on every page that has them.
#pragma once

#include "tests/window/Trader.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

inline std::vector<std::string> ItemsOf(const Trader& trader, int combo)
{
    std::vector<std::string> items;
    for (int row = 0; row < trader.ItemCount(combo); ++row)
        items.push_back(trader.Item(combo, row));
    return items;
}

inline void ExpectPriceItems(const Trader& trader, int insertPrice, int fastClose)
{
    EXPECT_THAT(
        ItemsOf(trader, insertPrice),
        testing::ElementsAre("对手价", "最新价", "挂单价", "涨停价", "跌停价", "挂单价超一个价位"));
    EXPECT_THAT(ItemsOf(trader, fastClose),
                testing::ElementsAre("对手价", "最新价", "挂单价", "涨停价", "跌停价"));
}

/// @param side "买" or "卖"
inline void ExpectQuickButtonItems(const Trader& trader, int combo, const std::string& side)
{
    std::vector<std::string> expected;
    for (const char* level : {"超一价", "超二价", "超三价", "超四价", "超五价", "挂一价", "挂二价",
                              "挂三价", "挂四价", "挂五价"})
        expected.push_back(level + side);
    EXPECT_EQ(expected, ItemsOf(trader, combo));
}

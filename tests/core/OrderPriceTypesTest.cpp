#include "core/OrderPriceTypes.h"

#include <zorvane/TOParam.h>

#include <gtest/gtest.h>

TEST(OrderPriceTypes, NamesByValue)
{
    EXPECT_STREQ("对手价", OrderPriceTypes[InsertPriceOpposite]);
    EXPECT_STREQ("最新价", OrderPriceTypes[InsertPriceLast]);
    EXPECT_STREQ("挂单价", OrderPriceTypes[InsertPriceQueue]);
    EXPECT_STREQ("涨停价", OrderPriceTypes[InsertPriceUpperLimit]);
    EXPECT_STREQ("跌停价", OrderPriceTypes[InsertPriceLowerLimit]);
    EXPECT_STREQ("", OrderPriceTypes[5]);
    EXPECT_STREQ("", OrderPriceTypes[6]);
    EXPECT_STREQ("挂单价超一个价位", OrderPriceTypes[InsertPriceQueuePlusOneTick]);
}

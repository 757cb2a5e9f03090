#include "hotkeys/OrderKeyCells.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{

HotKeyRecord Row(uint32_t action)
{
    HotKeyRecord record = MakeDefaultHotKey();
    record.action = action;
    return record;
}

std::string CellOf(uint32_t action, int column)
{
    return OrderKeyCellText(Row(action), column);
}

const char* const kActionTexts[] = {
    "无",
    "发出报单(带确认)",
    "发出报单(不带确认)",
    "填单后光标到合约代码",
    "填单后光标到买卖",
    "填单后光标到开平",
    "填单后光标到数量",
    "填单后光标到价格",
    "填单后光标到下单按钮",
    "增下单倍数 [0]",
    "减下单倍数 [0]",
    "撤最近一条可撤委托",
    "撤所有可撤委托",
    "认购认沽切换",
    "合约月份切换",
    "行权价变大切换",
    "行权价变小切换",
};

} // namespace

TEST(OrderKeyCells, EveryActionHasItsText)
{
    for (uint32_t action = 0; action < 17; ++action)
        EXPECT_EQ(kActionTexts[action], CellOf(action, kActionColumn));
}

TEST(OrderKeyCells, MultiplesAreShownWithTheirActions)
{
    HotKeyRecord record = Row(9);
    record.multiple = 12;
    EXPECT_EQ("增下单倍数 [12]", OrderKeyCellText(record, kActionColumn));
    record.action = 10;
    record.multiple = -3;
    EXPECT_EQ("减下单倍数 [-3]", OrderKeyCellText(record, kActionColumn));
    record.action = 11;
    EXPECT_EQ("撤最近一条可撤委托", OrderKeyCellText(record, kActionColumn));
}

TEST(OrderKeyCells, UnknownActionsHaveNoText)
{
    for (uint32_t action : {17u, 18u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu})
    {
        EXPECT_EQ("", CellOf(action, kActionColumn)) << action;
        EXPECT_EQ("对手价", CellOf(action, kPriceColumn)) << action;
        EXPECT_EQ(-1, FindOrderKeyItem(Row(action), kActionColumn)) << action;
    }
}

TEST(OrderKeyCells, ActionsThatPlaceNoOrderUseKeyAndActionOnly)
{
    for (uint32_t action = 0; action < 17; ++action)
        for (int column = kKeyColumn; column <= kActionColumn; ++column)
        {
            const bool isBlank = action >= 9 && column >= kSideColumn && column <= kCoveredColumn;
            EXPECT_EQ(!isBlank, UsesOrderKeyColumn(Row(action), column)) << action << " " << column;
            if (isBlank)
            {
                EXPECT_EQ("", CellOf(action, column)) << action << " " << column;
            }
        }
}

TEST(OrderKeyCells, Side)
{
    HotKeyRecord record = Row(2);
    EXPECT_EQ("买  ", OrderKeyCellText(record, kSideColumn));
    record.buySell = '1';
    EXPECT_EQ("  卖", OrderKeyCellText(record, kSideColumn));
    record.buySell = 'x';
    EXPECT_EQ("  卖", OrderKeyCellText(record, kSideColumn));
    EXPECT_EQ(-1, FindOrderKeyItem(record, kSideColumn));
}

TEST(OrderKeyCells, OpenClose)
{
    HotKeyRecord record = Row(2);
    EXPECT_EQ("开仓", OrderKeyCellText(record, kOpenCloseColumn));
    record.openClose = '1';
    EXPECT_EQ("平仓", OrderKeyCellText(record, kOpenCloseColumn));
    record.openClose = '3';
    EXPECT_EQ("自动", OrderKeyCellText(record, kOpenCloseColumn));
    EXPECT_EQ(2, FindOrderKeyItem(record, kOpenCloseColumn));
    record.openClose = '2';
    EXPECT_EQ("自动", OrderKeyCellText(record, kOpenCloseColumn));
    EXPECT_EQ(-1, FindOrderKeyItem(record, kOpenCloseColumn));
}

TEST(OrderKeyCells, PriceAndTicks)
{
    HotKeyRecord record = Row(2);
    record.overTicks = -2147483647 - 1;
    EXPECT_EQ("对手价", OrderKeyCellText(record, kPriceColumn));
    EXPECT_EQ("-2147483648", OrderKeyCellText(record, kOverTicksColumn));
    memset(record.priceType, 'x', sizeof(record.priceType)); // without a NUL
    EXPECT_EQ(std::string(33, 'x'), OrderKeyCellText(record, kPriceColumn));
    EXPECT_EQ(-1, FindOrderKeyItem(record, kPriceColumn));
}

TEST(OrderKeyCells, Covered)
{
    HotKeyRecord record = Row(2);
    EXPECT_EQ("非备兑", OrderKeyCellText(record, kCoveredColumn));
    record.covered = 1;
    EXPECT_EQ("备兑", OrderKeyCellText(record, kCoveredColumn));
    EXPECT_EQ(1, FindOrderKeyItem(record, kCoveredColumn));
    record.covered = 7;
    EXPECT_EQ("备兑", OrderKeyCellText(record, kCoveredColumn));
    EXPECT_EQ(-1, FindOrderKeyItem(record, kCoveredColumn));
}

TEST(OrderKeyCells, ItemsAreFoundByTheirValue)
{
    for (int column = kKeyColumn; column <= kActionColumn; ++column)
    {
        const std::vector<OrderKeyItem>& items = OrderKeyItems(column);
        EXPECT_EQ(items.empty(), column == kKeyColumn || column == kOverTicksColumn);
        for (size_t i = 0; i < items.size(); ++i)
        {
            HotKeyRecord record = MakeDefaultHotKey();
            record.buySell = record.openClose = static_cast<char>(items[i].value);
            record.covered = items[i].value;
            record.action = static_cast<uint32_t>(items[i].value);
            SetPriceType(record, items[i].text);
            EXPECT_EQ(static_cast<int>(i), FindOrderKeyItem(record, column));
        }
    }
}

TEST(OrderKeyCells, ActionsThatFillTheOrderAreNotOnOffer)
{
    std::vector<int> offered;
    for (const OrderKeyItem& item : OrderKeyItems(kActionColumn))
    {
        EXPECT_EQ(kActionTexts[item.value],
                  item.text + std::string(NeedsMultiple(item.value) ? " [0]" : ""));
        offered.push_back(item.value);
    }
    EXPECT_EQ((std::vector<int>{0, 1, 2, 9, 10, 11, 12, 13, 14, 15, 16}), offered);
    for (uint32_t action = 3; action <= 8; ++action)
        EXPECT_EQ(-1, FindOrderKeyItem(Row(action), kActionColumn));
}

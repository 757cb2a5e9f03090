#include "hotkeys/OrderKeyCells.h"

#include "core/Text.h"

#include <algorithm>
#include <iterator>

namespace
{

constexpr uint32_t kRaiseMultiple = 9;
constexpr uint32_t kLowerMultiple = 10;

struct OrderKeyAction
{
    char text[32];
    bool isOffered;
    bool placesOrder;
};

// The row is the action's number. The actions that only fill the order are the work of older clients:
// shown, but not on offer.
const OrderKeyAction kActions[] = {
    {"无", true, true},
    {"发出报单(带确认)", true, true},
    {"发出报单(不带确认)", true, true},
    {"填单后光标到合约代码", false, true},
    {"填单后光标到买卖", false, true},
    {"填单后光标到开平", false, true},
    {"填单后光标到数量", false, true},
    {"填单后光标到价格", false, true},
    {"填单后光标到下单按钮", false, true},
    {"增下单倍数", true, false},
    {"减下单倍数", true, false},
    {"撤最近一条可撤委托", true, false},
    {"撤所有可撤委托", true, false},
    {"认购认沽切换", true, false},
    {"合约月份切换", true, false},
    {"行权价变大切换", true, false},
    {"行权价变小切换", true, false},
};

std::string ActionText(const HotKeyRecord& record)
{
    if (record.action >= std::size(kActions))
        return "";
    std::string text = kActions[record.action].text;
    if (!NeedsMultiple(static_cast<int>(record.action)))
        return text;
    return text + " [" + std::to_string(record.multiple) + "]";
}

const char* OpenCloseText(char openClose)
{
    return openClose == '0' ? "开仓" : openClose == '1' ? "平仓" : "自动";
}

std::vector<OrderKeyItem> OfferedActions()
{
    std::vector<OrderKeyItem> items;
    for (size_t action = 0; action < std::size(kActions); ++action)
        if (kActions[action].isOffered)
            items.push_back({kActions[action].text, static_cast<int>(action)});
    return items;
}

int ValueOf(const HotKeyRecord& record, int column)
{
    switch (column)
    {
    case kSideColumn:
        return record.buySell;
    case kOpenCloseColumn:
        return record.openClose;
    case kCoveredColumn:
        return record.covered;
    default:
        return static_cast<int>(record.action);
    }
}

} // namespace

bool NeedsMultiple(int action)
{
    return action == kRaiseMultiple || action == kLowerMultiple;
}

bool UsesOrderKeyColumn(const HotKeyRecord& record, int column)
{
    return column == kKeyColumn || column == kActionColumn ||
           record.action >= std::size(kActions) || kActions[record.action].placesOrder;
}

std::string OrderKeyCellText(const HotKeyRecord& record, int column)
{
    if (!UsesOrderKeyColumn(record, column))
        return "";
    switch (column)
    {
    case kSideColumn:
        return record.buySell == '0' ? "买  " : "  卖";
    case kOpenCloseColumn:
        return OpenCloseText(record.openClose);
    case kPriceColumn:
        return PriceTypeOf(record);
    case kOverTicksColumn:
        return std::to_string(record.overTicks);
    case kCoveredColumn:
        return record.covered ? "备兑" : "非备兑";
    case kActionColumn:
        return ActionText(record);
    default:
        return "";
    }
}

const std::vector<OrderKeyItem>& OrderKeyItems(int column)
{
    static const std::vector<OrderKeyItem> sides = {{"买", '0'}, {"卖", '1'}};
    static const std::vector<OrderKeyItem> openClose = {
        {"开仓", '0'}, {"平仓", '1'}, {"自动", '3'}};
    static const std::vector<OrderKeyItem> prices = {{"最新价", 0}, {"对手价", 1}, {"挂单价", 2}};
    static const std::vector<OrderKeyItem> covered = {{"非备兑", 0}, {"备兑", 1}};
    static const std::vector<OrderKeyItem> actions = OfferedActions();
    static const std::vector<OrderKeyItem> none;
    switch (column)
    {
    case kSideColumn:
        return sides;
    case kOpenCloseColumn:
        return openClose;
    case kPriceColumn:
        return prices;
    case kCoveredColumn:
        return covered;
    case kActionColumn:
        return actions;
    default:
        return none;
    }
}

int FindOrderKeyItem(const HotKeyRecord& record, int column)
{
    const std::vector<OrderKeyItem>& items = OrderKeyItems(column);
    const auto hasItem = [&](const OrderKeyItem& item)
    {
        return column == kPriceColumn ? item.text == PriceTypeOf(record)
                                      : item.value == ValueOf(record, column);
    };
    const auto found = std::find_if(items.begin(), items.end(), hasItem);
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

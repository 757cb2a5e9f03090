#include "core/OrderPriceTypes.h"

const char OrderPriceTypes[kOrderPriceTypeCount][32] = {
    "对手价", "最新价", "挂单价", "涨停价", "跌停价", "", "", "挂单价超一个价位",
};

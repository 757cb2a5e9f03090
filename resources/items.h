// The initial items of combo boxes, as the framework reads them from a resource of type DLGINIT: the
// control, the message that adds a string, the length with its NUL in two words, and the text in code
// page 936. The order of the items is the value in the record.
#pragma once

#define DLGINIT 240
#define ADD_ITEM 0x403

// PriceKind: 对手价, 最新价, 挂单价, 涨停价, 跌停价
#define PRICE_KIND_ITEMS(control)                                                                  \
    control, ADD_ITEM, 7, 0, 0xd4b6, 0xd6ca, 0xdbbc, "\000", control, ADD_ITEM, 7, 0, 0xeed7,      \
        0xc2d0, 0xdbbc, "\000", control, ADD_ITEM, 7, 0, 0xd2b9, 0xa5b5, 0xdbbc, "\000", control,  \
        ADD_ITEM, 7, 0, 0xc7d5, 0xa3cd, 0xdbbc, "\000", control, ADD_ITEM, 7, 0, 0xf8b5, 0xa3cd,   \
        0xdbbc, "\000"

// TriggerPriceKind: 对手价, 最新价, 挂单价
#define TRIGGER_PRICE_ITEMS(control)                                                               \
    control, ADD_ITEM, 7, 0, 0xd4b6, 0xd6ca, 0xdbbc, "\000", control, ADD_ITEM, 7, 0, 0xeed7,      \
        0xc2d0, 0xdbbc, "\000", control, ADD_ITEM, 7, 0, 0xd2b9, 0xa5b5, 0xdbbc, "\000"

// SuperPriceKind, buy: 超一价买, 超二价买, 超三价买, 超四价买, 超五价买, 挂一价买, 挂二价买, 挂三价买, 挂四价买, 挂五价买
#define SUPER_BUY_ITEMS(control)                                                                   \
    control, ADD_ITEM, 9, 0, 0xacb3, 0xbbd2, 0xdbbc, 0xf2c2, "\000", control, ADD_ITEM, 9, 0,      \
        0xacb3, 0xfeb6, 0xdbbc, 0xf2c2, "\000", control, ADD_ITEM, 9, 0, 0xacb3, 0xfdc8, 0xdbbc,   \
        0xf2c2, "\000", control, ADD_ITEM, 9, 0, 0xacb3, 0xc4cb, 0xdbbc, 0xf2c2, "\000", control,  \
        ADD_ITEM, 9, 0, 0xacb3, 0xe5ce, 0xdbbc, 0xf2c2, "\000", control, ADD_ITEM, 9, 0, 0xd2b9,   \
        0xbbd2, 0xdbbc, 0xf2c2, "\000", control, ADD_ITEM, 9, 0, 0xd2b9, 0xfeb6, 0xdbbc, 0xf2c2,   \
        "\000", control, ADD_ITEM, 9, 0, 0xd2b9, 0xfdc8, 0xdbbc, 0xf2c2, "\000", control,          \
        ADD_ITEM, 9, 0, 0xd2b9, 0xc4cb, 0xdbbc, 0xf2c2, "\000", control, ADD_ITEM, 9, 0, 0xd2b9,   \
        0xe5ce, 0xdbbc, 0xf2c2, "\000"

// SuperPriceKind, sell: 超一价卖, 超二价卖, 超三价卖, 超四价卖, 超五价卖, 挂一价卖, 挂二价卖, 挂三价卖, 挂四价卖, 挂五价卖
#define SUPER_SELL_ITEMS(control)                                                                  \
    control, ADD_ITEM, 9, 0, 0xacb3, 0xbbd2, 0xdbbc, 0xf4c2, "\000", control, ADD_ITEM, 9, 0,      \
        0xacb3, 0xfeb6, 0xdbbc, 0xf4c2, "\000", control, ADD_ITEM, 9, 0, 0xacb3, 0xfdc8, 0xdbbc,   \
        0xf4c2, "\000", control, ADD_ITEM, 9, 0, 0xacb3, 0xc4cb, 0xdbbc, 0xf4c2, "\000", control,  \
        ADD_ITEM, 9, 0, 0xacb3, 0xe5ce, 0xdbbc, 0xf4c2, "\000", control, ADD_ITEM, 9, 0, 0xd2b9,   \
        0xbbd2, 0xdbbc, 0xf4c2, "\000", control, ADD_ITEM, 9, 0, 0xd2b9, 0xfeb6, 0xdbbc, 0xf4c2,   \
        "\000", control, ADD_ITEM, 9, 0, 0xd2b9, 0xfdc8, 0xdbbc, 0xf4c2, "\000", control,          \
        ADD_ITEM, 9, 0, 0xd2b9, 0xc4cb, 0xdbbc, 0xf4c2, "\000", control, ADD_ITEM, 9, 0, 0xd2b9,   \
        0xe5ce, 0xdbbc, 0xf4c2, "\000"

// cFSpeculationHedge: 投机, 保值
#define HEDGE_ITEMS(control)                                                                       \
    control, ADD_ITEM, 5, 0, 0xb6cd, 0xfabb, "\000", control, ADD_ITEM, 5, 0, 0xa3b1, 0xb5d6, "\000"

// cFCloseTodayPriority: 平今优先, 平昨优先
#define CLOSE_PRIORITY_ITEMS(control)                                                              \
    control, ADD_ITEM, 9, 0, 0xbdc6, 0xf1bd, 0xc5d3, 0xc8cf, "\000", control, ADD_ITEM, 9, 0,      \
        0xbdc6, 0xf2d7, 0xc5d3, 0xc8cf, "\000"

// bFForever and its like: 当日有效, 永久有效
#define STOP_VALIDITY_ITEMS(control)                                                               \
    control, ADD_ITEM, 9, 0, 0xb1b5, 0xd5c8, 0xd0d3, 0xa7d0, "\000", control, ADD_ITEM, 9, 0,      \
        0xc0d3, 0xc3be, 0xd0d3, 0xa7d0, "\000"

// enumListFontType: 正常字体, 较大字体
#define LIST_FONT_ITEMS(control)                                                                   \
    control, ADD_ITEM, 9, 0, 0xfdd5, 0xa3b3, 0xd6d7, 0xe5cc, "\000", control, ADD_ITEM, 9, 0,      \
        0xcfbd, 0xf3b4, 0xd6d7, 0xe5cc, "\000"

// iXZDLimit: 虚值度, 溢价率
#define PRICE_OUT_MEASURE_ITEMS(control)                                                           \
    control, ADD_ITEM, 7, 0, 0xe9d0, 0xb5d6, 0xc8b6, "\000", control, ADD_ITEM, 7, 0, 0xe7d2,      \
        0xdbbc, 0xcac2, "\000"

// uPosExecPriceRank: 混合显示, 分类显示
#define POSITION_RANK_ITEMS(control)                                                               \
    control, ADD_ITEM, 9, 0, 0xecbb, 0xcfba, 0xd4cf, 0xbeca, "\000", control, ADD_ITEM, 9, 0,      \
        0xd6b7, 0xe0c0, 0xd4cf, 0xbeca, "\000"

#include "core/WorkingParam.h"

#include <gtest/gtest.h>

#include <cstring>

TEST(WorkingParam, TakesEveryByteOverAndLeavesTheHostsRecordAlone)
{
    TOParam record;
    unsigned char pattern[sizeof(record)];
    for (size_t i = 0; i < sizeof(pattern); ++i)
        pattern[i] = static_cast<unsigned char>(i * 13 + 5);
    memcpy(&record, pattern, sizeof(record));

    CopyToWorkingParam(record);
    EXPECT_EQ(0, memcmp(pattern, &WorkingParam(), sizeof(pattern)));
    EXPECT_EQ(0, memcmp(pattern, &record, sizeof(pattern)));

    WorkingParam().bOneOpen = 1;
    EXPECT_EQ(0, memcmp(pattern, &record, sizeof(pattern)));
}

#include "core/Text.h"

#include <gtest/gtest.h>

TEST(PrintTo, FillsAndTerminates)
{
    char buffer[8];
    EXPECT_EQ(3, PrintTo(buffer, sizeof(buffer), "%d", 123));
    EXPECT_STREQ("123", buffer);
}

// Whatever the numbers, the parts stay inside their bar and in their order, and no arithmetic
// overflows: the native build runs this with the sanitizers.
#include "skin/scroll/ButtonLayout.h"
#include "tests/scroll/GeometryChecks.h"

#include <gtest/gtest.h>

#include <random>

namespace
{

constexpr int kInputs = 1000000;

TEST(ScrollRandom, PartsStayInsideTheBar)
{
    std::mt19937 random(20240607);
    for (int i = 0; i < kInputs; ++i)
    {
        const GeometryInput input = MakeGeometryInput([&random] { return random(); });
        const char* broken = CheckGeometry(input);
        ASSERT_STREQ(broken, nullptr) << "input " << i;
    }
}

} // namespace

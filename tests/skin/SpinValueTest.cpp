#include "skin/SpinValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

constexpr SpinRange kSeconds = {0.01, 2, 0.01, 9999999.0};
constexpr SpinRange kTicks = {1.0, 0, -9999999.0, 9999999.0};

std::string Up(const char* text, const SpinRange& range)
{
    return StepSpinText(text, SpinButton::kUp, range);
}

std::string Down(const char* text, const SpinRange& range)
{
    return StepSpinText(text, SpinButton::kDown, range);
}

} // namespace

TEST(StepSpinText, StepsByTheStepWithItsDecimals)
{
    EXPECT_EQ("1.21", Up("1.2", kSeconds));
    EXPECT_EQ("1.19", Down("1.2", kSeconds));
    EXPECT_EQ("6", Up("5", kTicks));
    EXPECT_EQ("-1", Down("0", kTicks));
    EXPECT_EQ("0", Down("1", kTicks));
}

TEST(StepSpinText, AFreshFieldStepsByOneWithinThirtyTwoBits)
{
    EXPECT_EQ("1", Up("0", SpinRange()));
    EXPECT_EQ("0", Down("0", SpinRange()));
    EXPECT_EQ("4294967295", Up("4294967294", SpinRange()));
    EXPECT_EQ("4294967295", Up("4294967295", SpinRange()));
}

TEST(StepSpinText, StepsFirstAndClampsThen)
{
    EXPECT_EQ("9999999", Down("20000000", kTicks));
    EXPECT_EQ("9999999", Down("10000000", kTicks));
    EXPECT_EQ("9999998", Down("9999999", kTicks));
    EXPECT_EQ("-9999999", Up("-20000000", kTicks));
    EXPECT_EQ("0.01", Down("0.01", kSeconds));
    EXPECT_EQ("9999999.00", Up("9999999", kSeconds));
}

TEST(StepSpinText, AMinimumAboveTheMaximumEndsAtTheMaximum)
{
    EXPECT_EQ("5", Up("7", {1.0, 0, 10.0, 5.0}));
}

TEST(StepSpinText, TextThatIsNoNumberCountsAsZero)
{
    EXPECT_EQ("1", Up("", kTicks));
    EXPECT_EQ("-1", Down("abc", kTicks));
    EXPECT_EQ("1", Up("nan", kTicks));
    EXPECT_EQ("-1", Down("-", kTicks));
    EXPECT_EQ("13", Up("12abc", kTicks));
    EXPECT_EQ("4", Up("3-2", kTicks));
}

TEST(StepSpinText, HugeNumbersAreClamped)
{
    EXPECT_EQ("9999999", Up("1e300", kTicks));
    EXPECT_EQ("-9999999", Down("-1e300", kTicks));
    EXPECT_EQ("9999999", Down("1e9999", kTicks));
    EXPECT_EQ("9999999", Down(std::string(127, '9').c_str(), kTicks));
}

TEST(StepSpinText, TheLongestNumberIsWhole)
{
    constexpr double kMost = std::numeric_limits<double>::max();
    const std::string longest = Up("1e999", {1.0, 2, -kMost, kMost});
    EXPECT_EQ(309u + 3u, longest.size());
    EXPECT_EQ(kMost, std::stod(longest));
}

TEST(StepSpinText, SenselessDecimalsAreCut)
{
    const std::string text = Up("1", {1.0, 100000, 0.0, 10.0});
    EXPECT_EQ("2." + std::string(509, '0'), text);
}

TEST(SpinTakesKey, FollowsTheMode)
{
    const std::string digits = "0123456789";
    for (unsigned key = 0; key < 256; ++key)
    {
        const bool isDigit = digits.find(static_cast<char>(key)) != std::string::npos;
        EXPECT_TRUE(SpinTakesKey(kAnyKey, key)) << key;
        EXPECT_TRUE(SpinTakesKey(7, key)) << key;
        EXPECT_EQ(isDigit || key == '-' || key == 8, SpinTakesKey(kIntegerKeys, key)) << key;
        EXPECT_EQ(isDigit || key == '-' || key == '.' || key == 8, SpinTakesKey(kDecimalKeys, key))
            << key;
        EXPECT_EQ(isDigit || key == '.' || key == 8, NumEditTakesKey(key)) << key;
        EXPECT_EQ(isDigit, IsDigitKey(key)) << key;
    }
}

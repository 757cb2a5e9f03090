#include "core/StopDefaults.h"

#include <climits>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

namespace
{
const char kLongToken[] = "1234567890123456789012345678901"; // 31 characters

void ExpectEqual(const StopDefaultValues& expected, const StopDefaultValues& values)
{
    EXPECT_EQ(expected.defaultVolume, values.defaultVolume);
    EXPECT_EQ(expected.tickVolume, values.tickVolume);
    EXPECT_EQ(expected.reservedProfit, values.reservedProfit);
    EXPECT_EQ(expected.stopProfit, values.stopProfit);
    EXPECT_EQ(expected.maxFallback, values.maxFallback);
    EXPECT_EQ(expected.reservedLoss, values.reservedLoss);
    EXPECT_EQ(expected.stopLoss, values.stopLoss);
    EXPECT_EQ(expected.floatRange, values.floatRange);
    EXPECT_EQ(expected.dailyMax, values.dailyMax);
    EXPECT_EQ(expected.flag, values.flag);
}

void ExpectBuiltIn(StopProduct product, const std::string& line)
{
    SCOPED_TRACE(line);
    ExpectEqual(FactsOf(product).builtIn, ParseStopLine(product, line.c_str()));
}

const StopProduct kProducts[] = {StopProduct::Future, StopProduct::Stock, StopProduct::Options};

std::vector<char> MakeRecord(const std::string& exchange, const std::string& name)
{
    std::vector<char> record(kContractStride, '\0');
    memcpy(record.data(), exchange.data(), exchange.size());
    memcpy(record.data() + 12, name.data(), name.size());
    return record;
}

FutureDefault MakeRow(const char* exchange, const char* name)
{
    return MakeFutureRow(MakeRecord(exchange, name).data());
}
} // namespace

TEST(StopDefaults, BuiltIn)
{
    ExpectEqual({1, 1, 0, 20.0, 4.0, 0, 20.0, 4.0, 10, 0}, FactsOf(StopProduct::Future).builtIn);
    ExpectEqual({0, 0, 0, 0.15, 0.05, 0, 0.15, 0.05, 0, 0}, FactsOf(StopProduct::Stock).builtIn);
    ExpectEqual({1, 1, 0, 0.2, 0.1, 0, 0.2, 0.1, 0, 0}, FactsOf(StopProduct::Options).builtIn);
}

TEST(StopDefaults, Restored)
{
    const StopDefaultValues changed = {9, 9, 1.5, 9, 9, 2.5, 9, 9, 9, 1};
    StopDefaultValues values = changed;
    RestoreStopValues(StopProduct::Future, values);
    ExpectEqual({1, 1, 1.5, 20.0, 4.0, 2.5, 20.0, 4.0, 10, 0}, values);
    values = changed;
    RestoreStopValues(StopProduct::Stock, values);
    ExpectEqual({100, 100, 1.5, 0.1, 0.01, 2.5, 0.1, 0.01, 9, 0}, values);
    values = changed;
    RestoreStopValues(StopProduct::Options, values);
    ExpectEqual({1, 1, 1.5, 0.1, 0.01, 2.5, 0.1, 0.01, 9, 0}, values);
}

TEST(StopDefaults, KeysOfTheFile)
{
    EXPECT_STREQ("股票", StopDefaultKey(0));
    EXPECT_STREQ("基金", StopDefaultKey(1));
    EXPECT_STREQ("债券", StopDefaultKey(2));
    EXPECT_STREQ("个股期权", StopDefaultKey(3));
    EXPECT_EQ(nullptr, StopDefaultKey(-1));
    EXPECT_EQ(nullptr, StopDefaultKey(4));
    EXPECT_EQ(nullptr, StopDefaultKey(INT_MIN));
    EXPECT_EQ(nullptr, StopDefaultKey(INT_MAX));
}

TEST(StopDefaults, LineFormats)
{
    const StopDefaultValues values = {3, -4, 1.5, 0.1234567, 0.25, 2.0004, 12345.6789, -0.5, 7, 1};
    EXPECT_EQ("3,-4,1.500,0.123457,0.250000,2.000,12345.678900,-0.500000,7",
              FormatStopLine(StopProduct::Future, values));
    EXPECT_EQ("3,-4,1.500,0.123457,0.250000,2.000,12345.678900,-0.500000,7,1",
              FormatStopLine(StopProduct::Stock, values));
    EXPECT_EQ("3,-4,1.500,0.123,0.250,2.000,12345.679,-0.500,7",
              FormatStopLine(StopProduct::Options, values));
}

TEST(StopDefaults, OptionsKeepThreeDecimals)
{
    StopDefaultValues values = FactsOf(StopProduct::Options).builtIn;
    values.stopProfit = 0.1234;
    const std::string line = FormatStopLine(StopProduct::Options, values);
    EXPECT_EQ("1,1,0.000,0.123,0.100,0.000,0.200,0.100,0", line);
    EXPECT_EQ(0.123, ParseStopLine(StopProduct::Options, line.c_str()).stopProfit);
}

TEST(StopDefaults, AbsurdNumbersAreCutAtTheBuffer)
{
    const StopDefaultValues values = {1, 1, 1e300, 1e300, 1e300, 1e300, 1e300, 1e300, 1, 1};
    EXPECT_EQ(511u, FormatStopLine(StopProduct::Future, values).size());
    EXPECT_EQ(255u, FormatStopLine(StopProduct::Stock, values).size());
    EXPECT_EQ(255u, FormatStopLine(StopProduct::Options, values).size());
    for (StopProduct product : kProducts)
        ExpectBuiltIn(product, FormatStopLine(product, values));
}

TEST(StopDefaults, FormattedLinesReadBack)
{
    const StopDefaultValues values = {3, 4, 1.5, 0.125, 0.25, 2, 0.5, 0.75, 9, 1};
    StopDefaultValues expected = values;
    expected.flag = 0;
    ExpectEqual(expected, ParseStopLine(StopProduct::Future,
                                        FormatStopLine(StopProduct::Future, values).c_str()));
    expected.dailyMax = 0;
    ExpectEqual(expected, ParseStopLine(StopProduct::Options,
                                        FormatStopLine(StopProduct::Options, values).c_str()));
    expected.flag = 1;
    ExpectEqual(expected, ParseStopLine(StopProduct::Stock,
                                        FormatStopLine(StopProduct::Stock, values).c_str()));
}

TEST(StopDefaults, EmptyLineIsBad)
{
    for (StopProduct product : kProducts)
        ExpectBuiltIn(product, "");
}

TEST(StopDefaults, MissingFieldIsBad)
{
    for (StopProduct product : kProducts)
    {
        ExpectBuiltIn(product, "5");
        ExpectBuiltIn(product, "5,5,0,1,1,0,1");
        ExpectBuiltIn(product, "5,5,0,1,1,0,1,"); // nothing behind the last comma
    }
}

TEST(StopDefaults, NinthFieldOfAFuture)
{
    ExpectBuiltIn(StopProduct::Future, "5,6,0,1,2,0,3,4");
    ExpectEqual({5, 6, 0, 1, 2, 0, 3, 4, 8, 0},
                ParseStopLine(StopProduct::Future, "5,6,0,1,2,0,3,4,8"));
    ExpectEqual({5, 6, 0, 1, 2, 0, 3, 4, 8, 0},
                ParseStopLine(StopProduct::Future, "5,6,0,1,2,0,3,4,8,1,more"));
}

TEST(StopDefaults, NinthFieldOfOptionsIsNotRead)
{
    const StopDefaultValues expected = {5, 6, 0, 1, 2, 0, 3, 4, 0, 0};
    ExpectEqual(expected, ParseStopLine(StopProduct::Options, "5,6,0,1,2,0,3,4"));
    ExpectEqual(expected, ParseStopLine(StopProduct::Options, "5,6,0,1,2,0,3,4,8"));
    ExpectEqual(expected, ParseStopLine(StopProduct::Options,
                                        (std::string("5,6,0,1,2,0,3,4,") + kLongToken).c_str()));
}

TEST(StopDefaults, LastFieldsOfStock)
{
    ExpectBuiltIn(StopProduct::Stock, "5,6,0,1,2,0,3,4");
    ExpectBuiltIn(StopProduct::Stock, "5,6,0,1,2,0,3,4,");
    const StopDefaultValues expected = {5, 6, 0, 1, 2, 0, 3, 4, 0, 0};
    ExpectEqual(expected, ParseStopLine(StopProduct::Stock, "5,6,0,1,2,0,3,4,8"));
    ExpectEqual(expected, ParseStopLine(StopProduct::Stock, "5,6,0,1,2,0,3,4,8,"));
    ExpectEqual({5, 6, 0, 1, 2, 0, 3, 4, 0, 1},
                ParseStopLine(StopProduct::Stock, "5,6,0,1,2,0,3,4,8,1"));
    ExpectEqual({5, 6, 0, 1, 2, 0, 3, 4, 0, 1},
                ParseStopLine(StopProduct::Stock, "5,6,0,1,2,0,3,4,,1,more"));
}

TEST(StopDefaults, TokenOf31CharactersMakesTheLineBad)
{
    for (StopProduct product : kProducts)
    {
        const int read = product == StopProduct::Stock    ? 10
                         : product == StopProduct::Future ? 9
                                                          : 8;
        for (int bad = 0; bad < read; ++bad)
        {
            std::string line;
            for (int field = 0; field < 10; ++field)
                line.append(field == bad ? kLongToken : "5").append(",");
            ExpectBuiltIn(product, line);
        }
    }
}

TEST(StopDefaults, TokenOf30CharactersIsRead)
{
    const std::string token = std::string(29, '0') + "7";
    const std::string line = token + ",6,0,1,2,0,3,4,8,1";
    for (StopProduct product : kProducts)
        EXPECT_EQ(7, ParseStopLine(product, line.c_str()).defaultVolume);
}

TEST(StopDefaults, FieldsThatAreNoNumbers)
{
    ExpectEqual({0, 12, 0, 1.5, 0, 0, 3, 4, 8, 0},
                ParseStopLine(StopProduct::Future, "abc,12x,, 1.5,-,0,3,4,8"));
    const StopDefaultValues huge =
        ParseStopLine(StopProduct::Future, "99999999999,-99999999999,0,1,1,0,1,1,1");
    EXPECT_EQ(INT_MAX, huge.defaultVolume);
    EXPECT_EQ(INT_MIN, huge.tickVolume);
}

TEST(StopDefaults, RowOfAContract)
{
    const FutureDefault row = MakeRow("SHFE", "ag");
    EXPECT_STREQ("SHFE", row.exchange);
    EXPECT_STREQ("ag", row.name);
    ExpectEqual(FactsOf(StopProduct::Future).builtIn, row);
}

TEST(StopDefaults, CodeThatIsNotEndedIsCut)
{
    std::vector<char> record(24, 'A');
    record[12] = 'B';
    const FutureDefault row = MakeFutureRow(record.data()); // nothing behind the 24 bytes is read
    EXPECT_STREQ("AAAAAAAAAAA", row.exchange);
    EXPECT_STREQ("BAAAAAAAAAA", row.name);
}

TEST(StopDefaults, NothingBehindACodeIsCopied)
{
    const FutureDefault row = MakeFutureRow(
        MakeRecord(std::string("DCE\0garbage", 11), std::string("m\0garbage", 9)).data());
    EXPECT_EQ(0, memcmp(row.exchange, "DCE\0\0\0\0\0\0\0\0\0", 12));
    EXPECT_EQ(0, memcmp(row.name, "m\0\0\0\0\0\0\0\0\0\0\0", 12));
}

TEST(StopDefaults, LookupByContract)
{
    std::vector<FutureDefault> rows = {MakeRow("SHFE", "ag"), MakeRow("DCE", "a"),
                                       MakeRow("SHFE", "ag"), MakeRow("CFFEX", "IF")};
    EXPECT_EQ(&rows[0], FindFutureRow(rows, "SHFE", "ag2412")) << "the first of equals";
    EXPECT_EQ(&rows[0], FindFutureRow(rows, "SHFE", "ag")) << "no digit: looked up whole";
    EXPECT_EQ(&rows[0], FindFutureRow(rows, "SHFE", "ag1x")) << "the first digit ends the product";
    EXPECT_EQ(&rows[1], FindFutureRow(rows, "DCE", "a2501"));
    EXPECT_EQ(nullptr, FindFutureRow(rows, "DCE", "ag2412")) << "another exchange";
    EXPECT_EQ(nullptr, FindFutureRow(rows, "SHFE", "a2501")) << "a beginning of the code";
    EXPECT_EQ(nullptr, FindFutureRow(rows, "SHFE", "agx2412"));
    EXPECT_EQ(nullptr, FindFutureRow(rows, "SHFE", "AG2412")) << "case counts";
    EXPECT_EQ(nullptr, FindFutureRow(rows, "shfe", "ag2412"));
    EXPECT_EQ(nullptr, FindFutureRow(rows, "SHFE", ""));
    EXPECT_EQ(nullptr, FindFutureRow(rows, "SHFE", "2412"));
    EXPECT_EQ(nullptr, FindFutureRow(rows, nullptr, "ag2412"));
    EXPECT_EQ(nullptr, FindFutureRow(rows, "SHFE", nullptr));
}

TEST(StopDefaults, OverlongCodesFindNoRow)
{
    std::vector<FutureDefault> rows = {MakeRow("SHFE", "AAAAAAAAAAA")};
    for (size_t length : {12u, 31u, 32u, 33u, 100000u})
        EXPECT_EQ(nullptr, FindFutureRow(rows, "SHFE", std::string(length, 'A').c_str())) << length;
    EXPECT_EQ(&rows[0], FindFutureRow(rows, "SHFE", "AAAAAAAAAAA2412"));
    EXPECT_EQ(nullptr, FindFutureRow(rows, std::string(100000, 'S').c_str(), "AAAAAAAAAAA"));
}

TEST(StopDefaults, LookupById)
{
    std::vector<ProductDefault> rows = {{{0}, {}}, {{1}, {}}, {{2}, {}}};
    EXPECT_EQ(&rows[2], FindProductRow(rows, 2));
    EXPECT_EQ(nullptr, FindProductRow(rows, 3));
    EXPECT_EQ(nullptr, FindProductRow(rows, -1));
    EXPECT_EQ(nullptr, FindProductRow(rows, INT_MIN));
}

TEST(StopDefaults, ValuesPassInTheHostsUnits)
{
    for (StopProduct product : kProducts)
    {
        StopDefaultValues values = {};
        const int volume = 3;
        const int tick = 4;
        const double settings[] = {12.5, 25.0, 50.0, 75.0};
        TakeStopValues(product, values, &volume, &tick, &settings[0], &settings[1], &settings[2],
                       &settings[3]);
        const double factor = product == StopProduct::Future ? 1.0 : 100.0;
        ExpectEqual({3, 4, 0, 12.5 / factor, 25.0 / factor, 0, 50.0 / factor, 75.0 / factor, 0, 0},
                    values);

        values.dailyMax = 9;
        int told[3] = {};
        double toldSettings[4] = {};
        TellStopValues(product, values, &told[0], &told[1], &toldSettings[0], &toldSettings[1],
                       &toldSettings[2], &toldSettings[3], &told[2]);
        EXPECT_EQ(3, told[0]);
        EXPECT_EQ(4, told[1]);
        EXPECT_EQ(9, told[2]);
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(settings[i], toldSettings[i]);
    }
}

TEST(StopDefaults, NullPointersAreSkipped)
{
    const StopDefaultValues before = {3, 4, 1, 2, 3, 4, 5, 6, 7, 1};
    for (StopProduct product : kProducts)
    {
        StopDefaultValues values = before;
        TakeStopValues(product, values, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
        ExpectEqual(before, values);
        TellStopValues(product, values, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                       nullptr);
        const double stopLoss = 500;
        TakeStopValues(product, values, nullptr, nullptr, nullptr, nullptr, &stopLoss, nullptr);
        EXPECT_EQ(product == StopProduct::Future ? 500.0 : 5.0, values.stopLoss);
        EXPECT_EQ(2.0, values.stopProfit);
    }
}

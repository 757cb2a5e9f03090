#include "core/Text.h"

#include <cstring>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

TEST(PrintTo, FillsAndTerminates)
{
    char buffer[8];
    memset(buffer, 'x', sizeof(buffer));
    EXPECT_EQ(3, PrintTo(buffer, sizeof(buffer), "%d", 123));
    EXPECT_STREQ("123", buffer);
    EXPECT_EQ('\0', buffer[7]) << "the last byte is always the NUL";
    EXPECT_EQ('x', buffer[6]) << "what lies between the text and the last byte stays";
}

TEST(PrintTo, CapacityZeroDoesNothing)
{
    char buffer[1] = {'x'};
    EXPECT_EQ(0, PrintTo(buffer, 0, "%d", 123));
    EXPECT_EQ('x', buffer[0]);
    EXPECT_EQ(0, PrintTo(nullptr, 0, "%d", 123));
}

TEST(PrintTo, LongestWholeText)
{
    char buffer[4];
    EXPECT_EQ(3, PrintTo(buffer, sizeof(buffer), "abc"));
    EXPECT_STREQ("abc", buffer);
}

TEST(PrintTo, TextAsLongAsTheBufferLosesItsLastByte)
{
    char buffer[4];
    EXPECT_EQ(4, PrintTo(buffer, sizeof(buffer), "abcd"));
    EXPECT_STREQ("abc", buffer);
}

TEST(PrintTo, CutsAndTellsSo)
{
    char buffer[5] = {'x', 'x', 'x', 'x', 'x'};
    EXPECT_EQ(-1, PrintTo(buffer, 4, "abcde"));
    EXPECT_STREQ("abc", buffer);
    EXPECT_EQ('x', buffer[4]);
}

TEST(PrintTo, CapacityOneHoldsTheNulAlone)
{
    char buffer[1] = {'x'};
    EXPECT_EQ(-1, PrintTo(buffer, 1, "abc"));
    EXPECT_EQ('\0', buffer[0]);
}

TEST(PrintTo, CutsNumbersOfHundredsOfDigits)
{
    char buffer[64];
    EXPECT_EQ(-1, PrintTo(buffer, sizeof(buffer), "%.6lf", 1e300));
    EXPECT_EQ(63u, strlen(buffer));
}

TEST(ReadCsvToken, WalksALine)
{
    char token[31];
    const char* const line = "12,,ab";
    const char* rest = ReadCsvToken(line, token, sizeof(token));
    EXPECT_STREQ("12", token);
    EXPECT_EQ(line + 3, rest) << "behind the comma";
    rest = ReadCsvToken(rest, token, sizeof(token));
    EXPECT_STREQ("", token) << "an empty field is a field";
    EXPECT_EQ(line + 4, rest);
    rest = ReadCsvToken(rest, token, sizeof(token));
    EXPECT_STREQ("ab", token);
    EXPECT_EQ(line + 6, rest) << "the end of the line gives its NUL";
    EXPECT_EQ(nullptr, ReadCsvToken(rest, token, sizeof(token)));
}

TEST(ReadCsvToken, NothingBehindALastComma)
{
    char token[31];
    const char* rest = ReadCsvToken("1,", token, sizeof(token));
    EXPECT_STREQ("1", token);
    EXPECT_EQ(nullptr, ReadCsvToken(rest, token, sizeof(token)));
}

TEST(ReadCsvToken, NullAndEmptyRest)
{
    char token[31] = "old";
    EXPECT_EQ(nullptr, ReadCsvToken(nullptr, token, sizeof(token)));
    EXPECT_EQ(nullptr, ReadCsvToken("", token, sizeof(token)));
}

TEST(ReadCsvToken, LongestToken)
{
    char token[32];
    token[31] = 'x';
    const std::string line = std::string(30, '1') + ",2";
    const char* rest = ReadCsvToken(line.c_str(), token, 31);
    EXPECT_EQ(line.c_str() + 31, rest);
    EXPECT_EQ(std::string(30, '1'), token);
    EXPECT_EQ('x', token[31]);
}

TEST(ReadCsvToken, TokenAsLongAsTheBufferIsRefused)
{
    char token[31] = "old";
    const std::string line = std::string(31, '1') + ",2";
    EXPECT_EQ(nullptr, ReadCsvToken(line.c_str(), token, sizeof(token)));
    EXPECT_STREQ("", token);
}

TEST(ReadCsvToken, CapacityZeroWritesNothing)
{
    char token = 'x';
    EXPECT_EQ(nullptr, ReadCsvToken(",1", &token, 0));
    EXPECT_EQ('x', token);
}

TEST(ParseInt, StaysWithin32Bits)
{
    EXPECT_EQ(12, ParseInt(" 12abc"));
    EXPECT_EQ(0, ParseInt("abc"));
    EXPECT_EQ(2147483647, ParseInt("99999999999999999999"));
    EXPECT_EQ(-2147483647 - 1, ParseInt("-99999999999"));
}

TEST(ParseUInt, KeepsWhatFits)
{
    EXPECT_EQ(4000000000u, ParseUInt("4000000000"));
    EXPECT_EQ(4294967295u, ParseUInt("-1"));
    EXPECT_EQ(4294967295u, ParseUInt("99999999999"));
    EXPECT_EQ(0u, ParseUInt(""));
}

TEST(TruncateToInt, DropsTheFractionAndStaysWithin32Bits)
{
    EXPECT_EQ(1239, TruncateToInt(1239.9));
    EXPECT_EQ(-1, TruncateToInt(-1.9));
    EXPECT_EQ(2147483647, TruncateToInt(1e300));
    EXPECT_EQ(0, TruncateToInt(std::nan("")));
}

#include "skin/ColorMarkup.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

namespace
{

constexpr unsigned long kUntouched = 0x12345678;

/// The colour of a text, or kUntouched when it has none.
unsigned long ColorOf(const char* text)
{
    unsigned long color = kUntouched;
    const bool found = ParseColorMarkup(text, &color);
    EXPECT_EQ(found, color != kUntouched);
    return color;
}

constexpr unsigned long Rgb(unsigned long red, unsigned long green, unsigned long blue)
{
    return red | green << 8 | blue << 16;
}

} // namespace

TEST(ParseColorMarkup, ReadsThreeDigitsAChannel)
{
    EXPECT_EQ(Rgb(255, 0, 0), ColorOf("<COLOR#255000000>"));
    EXPECT_EQ(Rgb(12, 34, 56), ColorOf("before <COLOR#012034056> behind"));
}

TEST(ParseColorMarkup, KeepsEightBitsOfAChannel)
{
    EXPECT_EQ(Rgb(0, 1, 231), ColorOf("<COLOR#256257999>"));
}

TEST(ParseColorMarkup, TheLastTagCounts)
{
    EXPECT_EQ(Rgb(4, 5, 6), ColorOf("<COLOR#001002003> and <COLOR#004005006>"));
    EXPECT_EQ(Rgb(1, 2, 3), ColorOf("<COLOR#001002003> and <COLOR#00400500>"));
    EXPECT_EQ(Rgb(1, 2, 3), ColorOf("<COLOR#<COLOR#001002003><COLOR#"));
}

TEST(ParseColorMarkup, RefusesWhatIsNoTag)
{
    EXPECT_EQ(kUntouched, ColorOf(nullptr));
    EXPECT_EQ(kUntouched, ColorOf(""));
    EXPECT_EQ(kUntouched, ColorOf("<COLOR#01203405>"));
    EXPECT_EQ(kUntouched, ColorOf("<COLOR#0120340567>"));
    EXPECT_EQ(kUntouched, ColorOf("<COLOR#012034056"));
    EXPECT_EQ(kUntouched, ColorOf("<COLOR#0120340x6>"));
    EXPECT_EQ(kUntouched, ColorOf("<color#012034056>"));
    EXPECT_EQ(kUntouched, ColorOf("<COLOR #012034056>"));
    EXPECT_EQ(kUntouched, ColorOf("<COLOR#"));
}

TEST(ParseColorMarkup, RefusesTextsOfSeveralLines)
{
    EXPECT_EQ(kUntouched, ColorOf("<COLOR#012034056>\n"));
    EXPECT_EQ(kUntouched, ColorOf("first\r<COLOR#012034056>"));
}

TEST(ParseColorMarkup, ALongTextIsNoTrouble)
{
    const std::string text = std::string(1000000, '<') + "<COLOR#001002003>";
    EXPECT_EQ(Rgb(1, 2, 3), ColorOf(text.c_str()));
}

TEST(ParseColorMarkup, AgreesWithTheExpressionThatDefinesTheTag)
{
    const std::regex expression(".*<COLOR#(\\d{3})(\\d{3})(\\d{3})>.*");
    const std::string pieces[] = {"<COLOR#", "012", "999", "256", ">", "<", "7", "\n", "#", "x"};
    unsigned random = 1;
    for (int run = 0; run < 20000; ++run)
    {
        std::string text;
        for (int piece = 0; piece < 12; ++piece)
        {
            random = random * 1664525u + 1013904223u;
            // Mostly the pieces of a tag in their order, so that many texts have one.
            const unsigned choice = random >> 24;
            text += choice < 200 ? pieces[piece % 5] : pieces[choice % 10];
        }
        std::smatch match;
        const bool expected = std::regex_match(text, match, expression);
        unsigned long color = kUntouched;
        ASSERT_EQ(expected, ParseColorMarkup(text.c_str(), &color)) << text;
        if (!expected)
            continue;
        ASSERT_EQ(Rgb(std::stoul(match[1]) & 0xFF, std::stoul(match[2]) & 0xFF,
                      std::stoul(match[3]) & 0xFF),
                  color)
            << text;
    }
}

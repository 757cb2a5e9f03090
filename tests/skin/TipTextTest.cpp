#include "skin/TipText.h"

#include <gtest/gtest.h>

namespace
{

/// A line as wide as it has bytes times ten; 16 high, or 20 with an 'X'.
TipSize ExtentOf(const std::string& line)
{
    const int height = line.find('X') == std::string::npos ? 16 : 20;
    return {static_cast<int>(line.size()) * 10, height};
}

TipMeasure Measure(const char* text)
{
    return MeasureTip(TipLines(text), ExtentOf);
}

using Lines = std::vector<std::string>;

} // namespace

TEST(TipLines, EachEndsInACarriageReturnAndALineFeed)
{
    EXPECT_EQ((Lines{"one", "two"}), TipLines("one\r\ntwo\r\n"));
    EXPECT_EQ((Lines{"one", "", "two"}), TipLines("one\r\n\r\ntwo\r\n"));
    EXPECT_EQ((Lines{"a\nb\rc"}), TipLines("a\nb\rc\r\n"));
}

TEST(TipLines, WhatStandsBehindTheLastEndIsNone)
{
    EXPECT_EQ(Lines(), TipLines("no end"));
    EXPECT_EQ((Lines{"one"}), TipLines("one\r\ntwo"));
    EXPECT_EQ(Lines(), TipLines(""));
}

TEST(MeasureTip, TakesTheWidestLineAndAllHeights)
{
    const TipMeasure measure = Measure("wide line\r\nX\r\n");
    EXPECT_EQ(95, measure.window.width);
    EXPECT_EQ(38, measure.window.height);
    EXPECT_EQ(20, measure.lineHeight);
}

TEST(MeasureTip, TheLastLineGivesTheLineHeight)
{
    EXPECT_EQ(16, Measure("X\r\nlow\r\n").lineHeight);
}

TEST(MeasureTip, AnEmptyLineIsAsHighAsABlank)
{
    const TipMeasure measure = Measure("\r\n");
    EXPECT_EQ(15, measure.window.width);
    EXPECT_EQ(18, measure.window.height);
}

TEST(MeasureTip, ATextWithoutLinesNeedsNothingButTheEdges)
{
    const TipMeasure measure = Measure("no end");
    EXPECT_EQ(5, measure.window.width);
    EXPECT_EQ(2, measure.window.height);
    EXPECT_EQ(0, measure.lineHeight);
}

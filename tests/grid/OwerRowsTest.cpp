#include "skin/grid/OwerRows.h"

#include <algorithm>
#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{

using Texts = std::vector<std::string>;

OwerRows RowsOf(const Texts& texts)
{
    OwerRows rows;
    for (const std::string& text : texts)
        rows.Add(1, text.c_str());
    return rows;
}

Texts TextsOf(OwerRows& rows)
{
    Texts texts;
    for (int row = 0; row < rows.Count(); ++row)
        texts.push_back(rows.Find(row, 0)->text);
    return texts;
}

Texts Sorted(const Texts& texts, RowOrder order, bool ascending)
{
    OwerRows rows = RowsOf(texts);
    rows.Sort(order, 0, ascending);
    return TextsOf(rows);
}

TEST(OwerRows, AreAddedWithoutColours)
{
    OwerRows rows;
    EXPECT_EQ(0, rows.Add(2, "first"));
    EXPECT_EQ(1, rows.Add(2, "second"));
    EXPECT_EQ(2, rows.Count());
    const OwerCell* cell = rows.Find(1, 0);
    EXPECT_STREQ("second", cell->text);
    for (const size_t column : {0, 1})
    {
        cell = rows.Find(1, column);
        ASSERT_NE(nullptr, cell);
        EXPECT_EQ(0x1000000u, cell->backColor);
        EXPECT_EQ(0x1000000u, cell->textColor);
        EXPECT_FALSE(cell->editable);
        EXPECT_EQ(0, cell->mark);
        EXPECT_EQ(0, cell->checked);
        EXPECT_STREQ("", cell->subText);
        EXPECT_EQ(0, cell->rect.right);
        EXPECT_EQ(0, cell->checkRect.bottom);
    }
    EXPECT_STREQ("", rows.Find(1, 1)->text);
}

TEST(OwerRows, AreNotAddedWithoutColumns)
{
    OwerRows rows;
    EXPECT_EQ(-1, rows.Add(0, "text"));
    EXPECT_EQ(0, rows.Count());
}

TEST(OwerRows, AreNotAddedWithoutMemory)
{
    OwerRows rows;
    EXPECT_EQ(-1, rows.Add(SIZE_MAX / 2, "text"));
    EXPECT_EQ(0, rows.Count());
    rows.Add(1, "text");
    EXPECT_EQ(nullptr, rows.FindGrown(0, 5, SIZE_MAX / 2, OwerCell()));
    EXPECT_NE(nullptr, rows.Find(0, 0));
}

TEST(OwerRows, CloseTheGapOfADeletedOne)
{
    OwerRows rows = RowsOf({"a", "b", "c"});
    EXPECT_TRUE(rows.Delete(1));
    EXPECT_EQ((Texts{"a", "c"}), TextsOf(rows));
    for (const int none : {2, -1, INT_MAX})
        EXPECT_FALSE(rows.Delete(none));
    EXPECT_EQ((Texts{"a", "c"}), TextsOf(rows));
    rows.Clear();
    EXPECT_EQ(0, rows.Count());
}

TEST(OwerRows, HaveNoCellOutOfRange)
{
    OwerRows rows = RowsOf({"a"});
    EXPECT_EQ(nullptr, rows.Find(-1, 0));
    EXPECT_EQ(nullptr, rows.Find(1, 0));
    EXPECT_EQ(nullptr, rows.Find(0, 1));
    EXPECT_EQ(nullptr, rows.Find(0, UINT_MAX));
    EXPECT_EQ(nullptr, rows.FindGrown(-1, 0, 3, OwerCell()));
    EXPECT_EQ(nullptr, rows.FindGrown(1, 0, 3, OwerCell()));
    EXPECT_EQ(nullptr, rows.FindGrown(0, 3, 3, OwerCell()));
    EXPECT_EQ(nullptr, rows.Find(0, 1));
}

TEST(OwerRows, GrowToTheColumnCountWithBlackText)
{
    OwerRows rows = RowsOf({"a"});
    OwerCell* cell = rows.FindGrown(0, 2, 4, MakeGrownCell());
    ASSERT_NE(nullptr, cell);
    for (const size_t column : {1, 2, 3})
    {
        EXPECT_EQ(0x1000000u, rows.Find(0, column)->backColor);
        EXPECT_EQ(0u, rows.Find(0, column)->textColor);
    }
    EXPECT_EQ(nullptr, rows.Find(0, 4));
    EXPECT_STREQ("a", rows.Find(0, 0)->text);
    EXPECT_EQ(0x1000000u, rows.Find(0, 0)->textColor);
}

TEST(OwerRows, KeepCellsBeyondTheColumns)
{
    OwerRows rows;
    rows.Add(3, "a");
    EXPECT_EQ(rows.Find(0, 2), rows.FindGrown(0, 2, 1, OwerCell()));
}

TEST(RowSort, ByIntegerInBothDirections)
{
    const Texts texts = {"10", "-3", "x", "7", "99999999999", " 12 lots"};
    EXPECT_EQ((Texts{"-3", "x", "7", "10", " 12 lots", "99999999999"}),
              Sorted(texts, RowOrder::Integer, true));
    EXPECT_EQ((Texts{"99999999999", " 12 lots", "10", "7", "x", "-3"}),
              Sorted(texts, RowOrder::Integer, false));
}

TEST(RowSort, ByNumberLeavesFractionsOut)
{
    EXPECT_EQ((Texts{"-2.5", "0.9", "1.9", "2.1"}),
              Sorted({"2.1", "0.9", "-2.5", "1.9"}, RowOrder::Number, true));

    // 1.9 and 1.2 are equal, so either may come first; the others may not.
    Texts mixed = Sorted({"1.9", "2", "1.2", "0"}, RowOrder::Number, true);
    EXPECT_EQ("0", mixed.front());
    EXPECT_EQ("2", mixed.back());
    mixed = Sorted({"1.9", "2", "1.2", "0"}, RowOrder::Number, false);
    EXPECT_EQ("2", mixed.front());
    EXPECT_EQ("0", mixed.back());
}

TEST(RowSort, ByNumberKeepsNumbersThatDifferInTheirFractionsAsTheyCome)
{
    for (const bool ascending : {true, false})
        EXPECT_NE(Sorted({"1.9", "1.2"}, RowOrder::Number, ascending),
                  Sorted({"1.2", "1.9"}, RowOrder::Number, ascending));
}

TEST(RowSort, ByNumberTakesWhatFitsNoIntegerForTheLowest)
{
    EXPECT_EQ((Texts{"3e9", "-5", "4"}), Sorted({"4", "-5", "3e9"}, RowOrder::Number, true));
}

TEST(RowSort, ByTextComparesBytesWithoutSign)
{
    EXPECT_EQ((Texts{"", "10", "9", "A", "a", "\xC2\xF2"}),
              Sorted({"\xC2\xF2", "a", "9", "", "A", "10"}, RowOrder::Text, true));
    EXPECT_EQ((Texts{"\xC2\xF2", "a", "A", "9", "10", ""}),
              Sorted({"9", "a", "\xC2\xF2", "", "A", "10"}, RowOrder::Text, false));
}

TEST(RowSort, ManyEqualKeysKeepEveryRow)
{
    // A comparison that called equal keys ordered both ways would run off the array here.
    for (const bool ascending : {true, false})
    {
        OwerRows rows;
        for (int i = 0; i < 5000; ++i)
            rows.Add(1, i % 3 ? "7" : "8");
        rows.Sort(RowOrder::Integer, 0, ascending);
        const Texts texts = TextsOf(rows);
        ASSERT_EQ(5000u, texts.size());
        EXPECT_EQ(1667, std::count(texts.begin(), texts.end(), "8"));
        EXPECT_EQ(ascending, std::is_sorted(texts.begin(), texts.end()));
        EXPECT_EQ(!ascending, std::is_sorted(texts.rbegin(), texts.rend()));
    }
}

TEST(RowSort, TakesTheWholeRowAlong)
{
    OwerRows rows;
    for (const char* text : {"2", "1"})
        rows.Add(2, text);
    rows.Find(0, 1)->mark = 22;
    rows.Find(1, 1)->mark = 11;
    rows.Sort(RowOrder::Integer, 0, true);
    EXPECT_EQ(11, rows.Find(0, 1)->mark);
    EXPECT_EQ(22, rows.Find(1, 1)->mark);
}

TEST(RowSort, CountsAMissingCellAsEmpty)
{
    OwerRows rows;
    rows.Add(1, "short");
    rows.Add(2, "long");
    CopyCellText(rows.Find(1, 1)->text, "-1");
    rows.Sort(RowOrder::Integer, 1, true);
    EXPECT_EQ((Texts{"long", "short"}), TextsOf(rows));
    rows.Sort(RowOrder::Integer, 1, false);
    EXPECT_EQ((Texts{"short", "long"}), TextsOf(rows));
}

TEST(RowSort, IgnoresAColumnThatIsNone)
{
    EXPECT_EQ((Texts{}), Sorted({}, RowOrder::Text, true));
    OwerRows rows = RowsOf({"b", "a"});
    rows.Sort(RowOrder::Text, -1, true);
    rows.Sort(RowOrder::Text, INT_MIN, false);
    EXPECT_EQ((Texts{"b", "a"}), TextsOf(rows));
}

} // namespace

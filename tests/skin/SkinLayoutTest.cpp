#include "skin/SkinLayout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

void ExpectBox(const Box& box, int left, int top, int width, int height)
{
    EXPECT_EQ(left, box.left);
    EXPECT_EQ(top, box.top);
    EXPECT_EQ(width, box.width);
    EXPECT_EQ(height, box.height);
}

constexpr uint32_t Rgb(int red, int green, int blue)
{
    return static_cast<uint32_t>(red | green << 8 | blue << 16);
}

} // namespace

TEST(CopyCut, CopiesWhatFits)
{
    char buffer[4];
    for (const char* text : {"", "a", "abc"})
    {
        CopyCut(buffer, text);
        EXPECT_STREQ(text, buffer);
    }
    CopyCut(buffer, "abcd");
    EXPECT_STREQ("abc", buffer);
    CopyCut(buffer, 1, "abc");
    EXPECT_STREQ("", buffer);
}

TEST(CopyCut, CutsThreeHundredCharactersTo255)
{
    char buffer[256];
    CopyCut(buffer, std::string(300, 'x').c_str());
    EXPECT_EQ(std::string(255, 'x'), buffer);
}

TEST(CopyCut, NeverLeavesHalfACharacter)
{
    char buffer[4] = {'?', '?', '?', '?'};
    CopyCut(buffer, "\xD6\xD0\xB9\xFA");
    EXPECT_STREQ("\xD6\xD0", buffer);
    CopyCut(buffer, "a\xD6\xD0\xB9\xFA");
    EXPECT_STREQ("a\xD6\xD0", buffer);
    CopyCut(buffer, 2, "\xD6\xD0");
    EXPECT_STREQ("", buffer);
}

TEST(ChooseDrawnControl, GoesByClassName)
{
    EXPECT_EQ(DrawnControl::ComboBox, ChooseDrawnControl("ComboBox", 0, 7));
    EXPECT_EQ(DrawnControl::ComboBox, ChooseDrawnControl("ComboBoxEx32", 0, 7));
    EXPECT_EQ(DrawnControl::RichEdit, ChooseDrawnControl("RichEdit20A", 0, 7));
    EXPECT_EQ(DrawnControl::RichEdit, ChooseDrawnControl("RICHEDIT RichEdit", 0, 7));
    EXPECT_EQ(DrawnControl::ListBox, ChooseDrawnControl("ListBox", 0, 7));
    EXPECT_EQ(DrawnControl::None, ChooseDrawnControl("ComboLBox", 0, 7));
    EXPECT_EQ(DrawnControl::None, ChooseDrawnControl("Edit", 0, 1));
    EXPECT_EQ(DrawnControl::None, ChooseDrawnControl("Static", 3, 1));
    EXPECT_EQ(DrawnControl::None, ChooseDrawnControl("", 3, 1));
}

TEST(ChooseDrawnControl, IsCaseSensitive)
{
    EXPECT_EQ(DrawnControl::None, ChooseDrawnControl("COMBOBOX", 0, 7));
    EXPECT_EQ(DrawnControl::None, ChooseDrawnControl("button", 3, 7));
}

TEST(ChooseDrawnControl, FirstNameOfTheOrderWins)
{
    EXPECT_EQ(DrawnControl::ComboBox, ChooseDrawnControl("ListBoxButtonComboBox", 3, 7));
    EXPECT_EQ(DrawnControl::CheckBox, ChooseDrawnControl("ListBoxRichEditButton", 3, 7));
    // A button of no known kind does not fall through to the later names.
    EXPECT_EQ(DrawnControl::None, ChooseDrawnControl("ListBoxButton", 4, 7));
    EXPECT_EQ(DrawnControl::RichEdit, ChooseDrawnControl("ListBoxRichEdit", 0, 7));
}

TEST(ChooseDrawnControl, ButtonsGoByTypeAndId)
{
    constexpr uint32_t kOtherBits = 0x50010000;
    EXPECT_EQ(DrawnControl::CheckBox, ChooseDrawnControl("Button", kOtherBits | 3, 1));
    EXPECT_EQ(DrawnControl::DialogButton, ChooseDrawnControl("Button", kOtherBits | 0, 1));
    EXPECT_EQ(DrawnControl::DialogButton, ChooseDrawnControl("Button", kOtherBits | 1, 2));
    EXPECT_EQ(DrawnControl::None, ChooseDrawnControl("Button", kOtherBits | 0, 3));
    EXPECT_EQ(DrawnControl::None, ChooseDrawnControl("Button", kOtherBits | 1, 6001));
    for (uint32_t type : {2u, 4u, 5u, 6u, 7u, 8u, 9u, 11u})
        EXPECT_EQ(DrawnControl::None, ChooseDrawnControl("Button", kOtherBits | type, 1)) << type;
}

TEST(CheckBox, PicksTheCellOfTheState)
{
    EXPECT_EQ(0, CheckBoxCell(false, true, false));
    EXPECT_EQ(2, CheckBoxCell(false, true, true));
    EXPECT_EQ(3, CheckBoxCell(false, false, false));
    EXPECT_EQ(3, CheckBoxCell(false, false, true));
    EXPECT_EQ(4, CheckBoxCell(true, true, true));
    EXPECT_EQ(5, CheckBoxCell(true, true, false));
    EXPECT_EQ(7, CheckBoxCell(true, false, false));
    EXPECT_EQ(7, CheckBoxCell(true, false, true));
}

TEST(CheckBox, CellStandsLeftAndInTheMiddle)
{
    const BitmapPart part = CheckBoxPart(5, 13, 13, 30);
    ExpectBox(part.source, 65, 0, 13, 13);
    ExpectBox(part.target, 0, 8, 13, 13);
    EXPECT_FALSE(part.IsEmpty());
}

TEST(CheckBox, NarrowOrMissingBitmapDrawsNoCell)
{
    EXPECT_TRUE(CheckBoxPart(5, 0, 13, 30).IsEmpty());
    EXPECT_TRUE(CheckBoxPart(0, 0, 0, 30).IsEmpty());
}

TEST(CheckBox, TextBeginsBehindTheGapOrACellsWidth)
{
    EXPECT_EQ(26, CheckBoxTextLeft(13, 0));
    EXPECT_EQ(18, CheckBoxTextLeft(13, 5));
    EXPECT_EQ(8, CheckBoxTextLeft(13, -5));
    EXPECT_EQ(0, CheckBoxTextLeft(0, 0));
}

TEST(CheckBox, EdgesCountAsInside)
{
    EXPECT_TRUE(HitsClientArea(0, 0, 100, 20));
    EXPECT_TRUE(HitsClientArea(100, 20, 100, 20));
    EXPECT_FALSE(HitsClientArea(101, 10, 100, 20));
    EXPECT_FALSE(HitsClientArea(50, 21, 100, 20));
    EXPECT_FALSE(HitsClientArea(-1, 10, 100, 20));
    EXPECT_FALSE(HitsClientArea(50, -1, 100, 20));
}

TEST(ComboArrow, TakesTheHalfOfTheState)
{
    const BitmapPart normal = ComboArrowPart(120, 26, 40, 24, false);
    ExpectBox(normal.source, 0, 1, 19, 22);
    ExpectBox(normal.target, 100, 1, 19, 24);
    const BitmapPart pressed = ComboArrowPart(120, 26, 40, 24, true);
    ExpectBox(pressed.source, 20, 1, 19, 22);
    ExpectBox(pressed.target, 100, 1, 19, 24);
}

TEST(ComboArrow, DrawsNothingWhereAnEdgeWouldTurnOver)
{
    for (int width : {0, 1, 2, 3})
        EXPECT_TRUE(ComboArrowPart(120, 26, width, 24, true).IsEmpty()) << width;
    for (int height : {0, 1, 2})
        EXPECT_TRUE(ComboArrowPart(120, 26, 40, height, true).IsEmpty()) << height;
    EXPECT_TRUE(ComboArrowPart(120, 2, 40, 24, true).IsEmpty());
    EXPECT_FALSE(ComboArrowPart(5, 26, 40, 24, true).IsEmpty());
}

TEST(ListImage, ColumnIsTheImageAndRowTheSelection)
{
    const Box item{4, 80, 200, 40};
    const ListStrip strip{13 * 24, 48, 13};
    const BitmapPart part = ListImagePart(item, strip, 9, false);
    ExpectBox(part.source, 9 * 24, 0, 24, 24);
    ExpectBox(part.target, 20, 88, 24, 24);
    ExpectBox(ListImagePart(item, strip, 9, true).source, 9 * 24, 24, 24, 24);
    EXPECT_EQ(4 + 24 + 24, ListImageTextLeft(item, strip));
}

TEST(ListImage, OutsideTheStripThereIsNone)
{
    const Box item{0, 0, 200, 40};
    const ListStrip strip{8 * 24, 48, 8};
    for (int image : {-1, 8, 2147483647, -2147483647})
        EXPECT_TRUE(ListImagePart(item, strip, image, true).IsEmpty()) << image;
    EXPECT_FALSE(ListImagePart(item, strip, 7, true).IsEmpty());
}

TEST(ListImage, MoreColumnsThanPixelsDrawNothing)
{
    const Box item{0, 0, 200, 40};
    EXPECT_TRUE(ListImagePart(item, {5, 48, 8}, 3, false).IsEmpty());
    EXPECT_TRUE(ListImagePart(item, {80, 1, 8}, 3, false).IsEmpty());
    EXPECT_TRUE(ListImagePart(item, {0, 0, 8}, 3, false).IsEmpty());
    EXPECT_EQ(24, ListImageTextLeft(item, {0, 0, 8}));
}

TEST(ListCheck, CheckedTakesTheThirdCell)
{
    const Box item{0, 40, 200, 40};
    const ListStrip strip{8 * 14, 14, 8};
    ExpectBox(ListCheckPart(item, strip, false).source, 0, 0, 14, 14);
    ExpectBox(ListCheckPart(item, strip, true).source, 28, 0, 14, 14);
    ExpectBox(ListCheckPart(item, strip, true).target, 10, 53, 14, 14);
    EXPECT_EQ(14 + 18, ListCheckTextLeft(item, strip));
}

TEST(FindVisibleRow, StopsAtTheLowerEdge)
{
    std::vector<int> asked;
    const auto height = [](int)
    {
        return 40;
    };
    const auto holdsNothing = [&asked](int row)
    {
        asked.push_back(row);
        return false;
    };
    EXPECT_EQ(-1, FindVisibleRow(2, 10, 100, height, holdsNothing));
    EXPECT_EQ((std::vector<int>{2, 3, 4}), asked);
}

TEST(FindVisibleRow, TakesTheFirstThatHoldsThePoint)
{
    const auto height = [](int)
    {
        return 40;
    };
    EXPECT_EQ(3, FindVisibleRow(2, 10, 100, height, [](int row) { return row >= 3; }));
    EXPECT_EQ(-1, FindVisibleRow(0, 0, 100, height, [](int) { return true; }));
    EXPECT_EQ(-1, FindVisibleRow(0, 10, 0, height, [](int) { return true; }));
    // A row without a height does not end the walk.
    EXPECT_EQ(9, FindVisibleRow(
                     0, 10, 100, [](int) { return 0; }, [](int row) { return row == 9; }));
}

TEST(ButtonStates, FollowTheTable)
{
    using S = ButtonState;
    using E = ButtonEvent;
    struct Row
    {
        S from;
        E event;
        S to;
    };
    const Row rows[] = {
        {S::Normal, E::MouseEnters, S::Hover},
        {S::Hover, E::Down, S::Pressed},
        {S::Pressed, E::Up, S::Normal},
        {S::Hover, E::MouseLeaves, S::Normal},
        {S::Normal, E::FocusLost, S::Normal},
        {S::Hover, E::FocusLost, S::Normal},
        {S::Pressed, E::FocusLost, S::Normal},
        {S::Third, E::FocusLost, S::Normal},
        {S::Normal, E::LookDisabled, S::Disabled},
        {S::Hover, E::LookDisabled, S::Disabled},
        {S::Pressed, E::LookDisabled, S::Disabled},
        {S::Third, E::LookDisabled, S::Disabled},
        {S::Disabled, E::LookEnabled, S::Normal},
        {S::Normal, E::Down, S::Pressed},
        {S::Normal, E::FocusShown, S::Hover},
        {S::Hover, E::FocusShown, S::Hover},
        {S::Pressed, E::FocusShown, S::Pressed},
        {S::Third, E::FocusShown, S::Third},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.to, NextButtonState(row.from, row.event))
            << static_cast<int>(row.from) << ' ' << static_cast<int>(row.event);
}

TEST(ButtonStates, OnlyTheEnabledLookLeadsOutOfDisabled)
{
    for (int event = 0; event <= static_cast<int>(ButtonEvent::LookDisabled); ++event)
        EXPECT_EQ(ButtonState::Disabled,
                  NextButtonState(ButtonState::Disabled, static_cast<ButtonEvent>(event)))
            << event;
}

TEST(CaptionColor, StandsOutFromTheFace)
{
    EXPECT_EQ(Rgb(38, 38, 38), CaptionColorOn(Rgb(128, 128, 128)));
    // One step darker is nearer to black: 127 + 128 * 0.7.
    EXPECT_EQ(Rgb(216, 216, 216), CaptionColorOn(Rgb(127, 127, 127)));
    EXPECT_EQ(Rgb(178, 178, 178), CaptionColorOn(Rgb(0, 0, 0)));
    EXPECT_EQ(Rgb(76, 76, 76), CaptionColorOn(Rgb(255, 255, 255)));
    EXPECT_EQ(Rgb(178, 38, 76), CaptionColorOn(Rgb(0, 128, 255)));
}

TEST(CaptionColor, TakesAFailedPixelForWhite)
{
    EXPECT_EQ(Rgb(76, 76, 76), CaptionColorOn(0xFFFFFFFF));
}

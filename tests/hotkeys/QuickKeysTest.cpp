#include "hotkeys/QuickKeys.h"

#include "hotkeys/HotKeyFile.h"
#include "tests/hotkeys/HotKeyBytes.h"

#include <gtest/gtest.h>

namespace
{
HotKeyRecord MakeRow(uint32_t action, uint8_t shown, uint8_t vk = 'A')
{
    HotKeyRecord record = {};
    record.action = action;
    record.vk = vk;
    record.shown = shown;
    return record;
}

HotKeyList MakeList(const Actions& actions, uint8_t shown = 1)
{
    HotKeyList list;
    for (uint32_t action : actions)
        list.push_back(MakeRow(action, shown));
    return list;
}

std::string FileOf(const HotKeyList& list)
{
    return EncodeHotKeys(list, kQuickKeysVersion);
}
} // namespace

TEST(QuickKeys, DefaultsWithoutAFile)
{
    EXPECT_EQ(DefaultQuickKeyFile(), FileOf(DecodeQuickKeys("")));
}

TEST(QuickKeys, DefaultsForFilesWithoutRows)
{
    for (const std::string& bytes :
         {Word(1), Word(2), Word(3) + PatternBytes(0), Word(1) + std::string(83, 'x'),
          Word(2) + std::string(83, 'x'), std::string("\2\0\0", 3)})
        EXPECT_EQ(DefaultQuickKeyFile(), FileOf(DecodeQuickKeys(bytes)));
}

TEST(QuickKeys, FileOfTheirOwnFormat)
{
    const std::string bytes = Word(2) + PatternBytes(0) + PatternBytes(50);
    EXPECT_EQ(bytes, FileOf(DecodeQuickKeys(bytes)));
}

TEST(QuickKeys, OldFileIsMigrated)
{
    const std::string old = Word(1) + QuickKeyBytes(18, 3, 'Q', 0) + QuickKeyBytes(22, 0, 'W', 7);
    EXPECT_EQ(Word(2) + QuickKeyBytes(18, 3, 'Q', 1) + QuickKeyBytes(22, 0, 'W', 1) +
                  QuickKeyBytes(24, 0, 116, 0) + QuickKeyBytes(25, 0, 117, 0),
              FileOf(DecodeQuickKeys(old)));
}

TEST(QuickKeys, OldFileWithNetRowsGetsTwoMore)
{
    const std::string old = Word(1) + QuickKeyBytes(24, 0, 'Q', 1);
    EXPECT_EQ(Word(2) + QuickKeyBytes(24, 0, 'Q', 0) + QuickKeyBytes(24, 0, 116, 0) +
                  QuickKeyBytes(25, 0, 117, 0),
              FileOf(DecodeQuickKeys(old)));
}

TEST(QuickKeys, VisibleRowsAreTheShownOnes)
{
    HotKeyList list = MakeList({18, 19, 20, 22});
    list[1].shown = 0;
    list[2].shown = 255; // anything but 0 shows
    EXPECT_EQ((Actions{18, 20, 22}), ActionsOf(VisibleQuickKeys(list)));
    EXPECT_TRUE(VisibleQuickKeys({}).empty());
}

TEST(QuickKeys, FourRowsOfNetModeAreRotated)
{
    EXPECT_EQ((Actions{24, 25, 22, 23}), ActionsOf(VisibleQuickKeys(MakeList({22, 23, 24, 25}))));
    EXPECT_EQ((Actions{24, 7, 5, 6}), ActionsOf(VisibleQuickKeys(MakeList({5, 6, 24, 7}))));
}

TEST(QuickKeys, NoOtherCountIsRotated)
{
    EXPECT_EQ((Actions{22, 24, 25}), ActionsOf(VisibleQuickKeys(MakeList({22, 24, 25}))));
    EXPECT_EQ((Actions{22, 23, 24, 25, 26}),
              ActionsOf(VisibleQuickKeys(MakeList({22, 23, 24, 25, 26}))));
    EXPECT_EQ((Actions{18, 19, 22, 23}), ActionsOf(VisibleQuickKeys(MakeList({18, 19, 22, 23}))))
        << "nor four rows of classic mode";
}

TEST(QuickKeys, PurgeFallsBackToTheClassicRows)
{
    for (uint32_t classic : {18u, 19u, 20u, 21u})
    {
        HotKeyList visible = MakeList({24, classic, 22, 25, 24});
        PurgeQuickKeys(visible);
        EXPECT_EQ((Actions{classic, 22}), ActionsOf(visible));
    }
}

TEST(QuickKeys, PurgeLeavesUnmixedLists)
{
    for (const Actions& actions :
         {Actions{22, 23, 24, 25}, Actions{18, 19, 20, 21, 22, 23}, Actions{17, 26, 24}, Actions{}})
    {
        HotKeyList visible = MakeList(actions);
        PurgeQuickKeys(visible);
        EXPECT_EQ(actions, ActionsOf(visible));
    }
}

TEST(QuickKeys, MergeTakesOverWholeRows)
{
    HotKeyList list = {MakeRow(18, 1, 'A'), MakeRow(24, 0, 'B')};
    HotKeyList visible = {MakeRow(18, 1, 'C')};
    visible[0].reserved[29] = 9;
    const std::string edited = BytesOf(visible[0]);
    MergeQuickKeys(list, visible);
    EXPECT_EQ(edited, BytesOf(list[0]));
    EXPECT_EQ('B', list[1].vk) << "a hidden row stays";
    EXPECT_EQ(1u, visible.size());
}

TEST(QuickKeys, MergeTakesTheFirstRowOfAnAction)
{
    HotKeyList list = {MakeRow(18, 1, 'A'), MakeRow(18, 1, 'B')};
    HotKeyList visible = {MakeRow(18, 1, 'C'), MakeRow(18, 1, 'D')};
    MergeQuickKeys(list, visible);
    EXPECT_EQ('C', list[0].vk);
    EXPECT_EQ('C', list[1].vk);
}

TEST(QuickKeys, MergeIntoAnEmptyListOnlyPurges)
{
    HotKeyList list;
    HotKeyList visible = MakeList({18, 24});
    MergeQuickKeys(list, visible);
    EXPECT_TRUE(list.empty());
    EXPECT_EQ((Actions{18}), ActionsOf(visible));
}

TEST(QuickKeys, MergeReadsTheRowsThatThePurgeTakesAway)
{
    HotKeyList list = {MakeRow(18, 1, 'A'), MakeRow(24, 1, 'B')};
    HotKeyList visible = {MakeRow(18, 1, 'A'), MakeRow(24, 1, 'C')};
    MergeQuickKeys(list, visible);
    EXPECT_EQ('C', list[1].vk);
    EXPECT_EQ((Actions{18}), ActionsOf(visible));
}

TEST(QuickKeys, ShowMarksRowsByMode)
{
    const Actions actions = {17, 18, 19, 20, 21, 22, 23, 24, 25, 26};
    HotKeyList list = MakeList(actions, 9);
    ShowQuickKeys(list, true);
    for (const HotKeyRecord& record : list)
        EXPECT_EQ(record.action < 18 || record.action > 21, record.shown) << record.action;
    ShowQuickKeys(list, false);
    for (const HotKeyRecord& record : list)
        EXPECT_EQ(record.action != 24 && record.action != 25, record.shown) << record.action;
}

TEST(QuickKeys, NetRows)
{
    EXPECT_FALSE(HasNetQuickKeys({}));
    EXPECT_FALSE(HasNetQuickKeys(MakeList({18, 22, 23, 26})));
    EXPECT_TRUE(HasNetQuickKeys(MakeList({18, 24})));
    EXPECT_TRUE(HasNetQuickKeys(MakeList({25})));
}

TEST(QuickKeys, EveryActionHasItsText)
{
    const char* const texts[] = {"买开界面", "卖平界面", "卖开界面", "买平界面",
                                 "全部撤单", "复位",     "买入界面", "卖出界面"};
    for (uint32_t action = 18; action <= 25; ++action)
        EXPECT_STREQ(texts[action - 18], QuickKeyText(action));
    for (uint32_t action : {0u, 17u, 26u, 0xFFFFFFFFu})
        EXPECT_STREQ("", QuickKeyText(action));
}

TEST(QuickKeys, KeysOfTheOrderPanelStayFree)
{
    for (unsigned int vk = 0; vk < 256; ++vk)
    {
        const bool isPanelKey = (vk >= 48 && vk <= 57) || vk == 46 || (vk >= 96 && vk <= 105) ||
                                vk == 13 || (vk >= 37 && vk <= 40);
        EXPECT_EQ(!isPanelKey, CanBeQuickKey(vk)) << vk;
    }
}

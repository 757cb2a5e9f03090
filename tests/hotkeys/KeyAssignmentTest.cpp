#include "hotkeys/KeyAssignment.h"

#include "hotkeys/KeyName.h"
#include "tests/hotkeys/HotKeyBytes.h"

#include <gtest/gtest.h>

namespace
{
HotKeyRecord MakeRow(uint8_t modifiers, uint8_t vk)
{
    HotKeyRecord record = MakeDefaultHotKey();
    record.modifiers = modifiers;
    record.vk = vk;
    return record;
}

void ExpectKey(int modifiers, int vk, const HotKeyRecord& record)
{
    EXPECT_EQ(modifiers, record.modifiers);
    EXPECT_EQ(vk, record.vk);
}
} // namespace

TEST(AssignKey, KeyWithModifiersStands)
{
    HotKeyList list = {MakeRow(0, 0), MakeRow(0, 0)};
    char name[kKeyNameSize] = {};
    EXPECT_EQ(KeyAssignment::Stands, AssignKey(list, 1, kModifierCtrl, 'B', name));
    EXPECT_STREQ("Ctrl + B", name);
    ExpectKey(0, 0, list[0]);
    ExpectKey(kModifierCtrl, 'B', list[1]);
    HotKeyRecord rest = list[1];
    rest.modifiers = rest.vk = 0;
    EXPECT_EQ(BytesOf(MakeDefaultHotKey()), BytesOf(rest)) << "nothing else changed";
}

TEST(AssignKey, KeyWithoutNameClearsTheRow)
{
    HotKeyList list = {MakeRow(kModifierAlt, 'A')};
    char name[kKeyNameSize] = "old";
    EXPECT_EQ(KeyAssignment::Cleared, AssignKey(list, 0, kModifierCtrl, 220, name));
    EXPECT_STREQ("", name);
    ExpectKey(0, 0, list[0]);
}

TEST(AssignKey, RowsWithoutAKeyNeverCollide)
{
    HotKeyList list = {MakeRow(0, 0), MakeRow(0, 'A'), MakeRow(0, 0)};
    char name[kKeyNameSize];
    EXPECT_EQ(KeyAssignment::Cleared, AssignKey(list, 1, 0, 0, name));
}

TEST(AssignKey, DuplicateClearsThisRowAndKeepsTheOther)
{
    HotKeyList list = {MakeRow(kModifierCtrl, 'A'), MakeRow(0, 'B'), MakeRow(kModifierCtrl, 'A')};
    char name[kKeyNameSize] = "old";
    EXPECT_EQ(KeyAssignment::Duplicate, AssignKey(list, 1, kModifierCtrl, 'A', name));
    EXPECT_STREQ("", name);
    ExpectKey(kModifierCtrl, 'A', list[0]);
    ExpectKey(0, 0, list[1]);
    EXPECT_EQ(KeyAssignment::Duplicate, AssignKey(list, 0, kModifierCtrl, 'A', name))
        << "a later row counts as well";
}

TEST(AssignKey, OtherModifiersAreAnotherKey)
{
    HotKeyList list = {MakeRow(kModifierCtrl, 'A'), MakeRow(0, 0)};
    char name[kKeyNameSize];
    for (uint8_t modifiers : {0, 2, 3, 4, 5, 6, 7})
        EXPECT_EQ(KeyAssignment::Stands, AssignKey(list, 1, modifiers, 'A', name)) << +modifiers;
}

TEST(AssignKey, OwnKeyIsNoDuplicate)
{
    HotKeyList list = {MakeRow(kModifierCtrl, 'A')};
    char name[kKeyNameSize];
    EXPECT_EQ(KeyAssignment::Stands, AssignKey(list, 0, kModifierCtrl, 'A', name));
    ExpectKey(kModifierCtrl, 'A', list[0]);
}

TEST(FindHeldRow, CtrlAndAltMustAgree)
{
    for (int row = 0; row < 4; ++row)
    {
        HotKeyList list = {MakeRow(static_cast<uint8_t>(row), 'A')};
        for (int held = 0; held < 4; ++held)
            EXPECT_EQ(row == held, FindHeldRow(list, static_cast<uint8_t>(held), 'A') != nullptr)
                << row << " " << held;
    }
}

TEST(FindHeldRow, RowWithShiftAnswersToThePlainKey)
{
    HotKeyList list = {MakeRow(kModifierShift, 'A')};
    EXPECT_EQ(&list[0], FindHeldRow(list, 0, 'A'));
    EXPECT_EQ(&list[0], FindHeldRow(list, kModifierShift, 'A'));
    EXPECT_EQ(nullptr, FindHeldRow(list, kModifierCtrl, 'A'));
    list[0].modifiers = 0;
    EXPECT_EQ(nullptr, FindHeldRow(list, kModifierShift, 'A')) << "but not the other way round";
}

TEST(FindHeldRow, FirstOfSeveral)
{
    HotKeyList list = {MakeRow(0, 'B'), MakeRow(kModifierShift, 'A'), MakeRow(0, 'A')};
    EXPECT_EQ(&list[1], FindHeldRow(list, 0, 'A'));
    EXPECT_EQ(nullptr, FindHeldRow(list, 0, 'C'));
    EXPECT_EQ(nullptr, FindHeldRow(list, 0, 'A' + 256));
}

#include "hotkeys/HotV1Key.h"

#include "hotkeys/KeyName.h"
#include "tests/hotkeys/HotKeyBytes.h"
#include "tests/hotkeys/HotKeyFolder.h"

namespace
{
const char kFile[] = "cfg\\trade\\HotV1Key2.dat";

class HotV1KeyTest : public HotKeyFolder
{
protected:
    CHotV1Key keys{2};
};
} // namespace

TEST_F(HotV1KeyTest, DefaultsWithoutAFile)
{
    keys.Load();
    EXPECT_EQ((Actions{18, 19, 20, 21, 22, 23, 24, 25}), ActionsOf(keys.list));
    EXPECT_EQ((Actions{18, 19, 20, 21, 22, 23}), ActionsOf(keys.GetList()));
    EXPECT_FALSE(keys.HasNetRows());
    EXPECT_FALSE(IsThere(kFile)) << "loading writes nothing";
    keys.Save();
    EXPECT_EQ(DefaultQuickKeyFile(), ReadBytes(kFile));
}

TEST_F(HotV1KeyTest, FileOfFourBytesGivesTheDefaults)
{
    for (uint32_t version : {1u, 2u})
    {
        WriteBytes(kFile, Word(version));
        keys.Load();
        EXPECT_EQ(8u, keys.list.size());
        EXPECT_EQ(Word(version), ReadBytes(kFile));
    }
}

TEST_F(HotV1KeyTest, OldFileIsMigratedByTheNextSave)
{
    const std::string old = Word(1) + QuickKeyBytes(18, 0, 'Q', 0) + QuickKeyBytes(22, 0, 'W', 0);
    WriteBytes(kFile, old);
    keys.Load();
    ASSERT_EQ((Actions{18, 22, 24, 25}), ActionsOf(keys.list));
    EXPECT_EQ(0, keys.list[2].shown);
    EXPECT_EQ(0, keys.list[3].shown);
    EXPECT_EQ((Actions{18, 22}), ActionsOf(keys.GetList()));
    EXPECT_EQ(old, ReadBytes(kFile));
    keys.Save();
    EXPECT_EQ(Word(2) + QuickKeyBytes(18, 0, 'Q', 1) + QuickKeyBytes(22, 0, 'W', 1) +
                  QuickKeyBytes(24, 0, 116, 0) + QuickKeyBytes(25, 0, 117, 0),
              ReadBytes(kFile));
}

TEST_F(HotV1KeyTest, UnreadableFileStaysUntilTheNextSave)
{
    const std::string foreign = Word(3) + PatternBytes(0);
    WriteBytes(kFile, foreign);
    keys.Load();
    EXPECT_EQ(8u, keys.list.size());
    EXPECT_EQ(foreign, ReadBytes(kFile));
    keys.Save();
    EXPECT_EQ(DefaultQuickKeyFile(), ReadBytes(kFile));
}

TEST_F(HotV1KeyTest, MixedFileFallsBackToTheClassicRows)
{
    const std::string mixed = Word(2) + QuickKeyBytes(24, 0, 116, 1) +
                              QuickKeyBytes(18, 0, 112, 1) + QuickKeyBytes(22, 0, 'A', 1);
    WriteBytes(kFile, mixed);
    keys.Load();
    EXPECT_EQ((Actions{18, 22}), ActionsOf(keys.GetList()));
    EXPECT_EQ((Actions{24, 18, 22}), ActionsOf(keys.list));
    keys.Save();
    EXPECT_EQ(mixed, ReadBytes(kFile));
}

TEST_F(HotV1KeyTest, NetModeShowsThePanelsFirst)
{
    keys.Load();
    keys.SetNetMode(true);
    EXPECT_EQ((Actions{24, 25, 22, 23}), ActionsOf(keys.GetList()));
    EXPECT_TRUE(keys.HasNetRows());
    keys.SetNetMode(false);
    EXPECT_EQ((Actions{18, 19, 20, 21, 22, 23}), ActionsOf(keys.GetList()));
    EXPECT_FALSE(keys.HasNetRows());
}

TEST_F(HotV1KeyTest, NetModeWithoutOneOfItsRowsIsNotRotated)
{
    WriteBytes(kFile, Word(2) + QuickKeyBytes(22, 0, 'A', 1) + QuickKeyBytes(24, 0, 116, 1) +
                          QuickKeyBytes(25, 0, 117, 1));
    keys.Load();
    EXPECT_EQ((Actions{22, 24, 25}), ActionsOf(keys.GetList()));
}

TEST_F(HotV1KeyTest, NetModeIsKeptByTheFile)
{
    keys.Load();
    keys.SetNetMode(true);
    keys.Save();
    EXPECT_EQ(Word(2) + QuickKeyBytes(18, 0, 112, 0) + QuickKeyBytes(19, 0, 113, 0) +
                  QuickKeyBytes(20, 0, 114, 0) + QuickKeyBytes(21, 0, 115, 0) +
                  QuickKeyBytes(22, 0, 65, 1) + QuickKeyBytes(23, 0, 90, 1) +
                  QuickKeyBytes(24, 0, 116, 1) + QuickKeyBytes(25, 0, 117, 1),
              ReadBytes(kFile));
    CHotV1Key again(2);
    again.Load();
    EXPECT_EQ((Actions{24, 25, 22, 23}), ActionsOf(again.GetList()));
    EXPECT_TRUE(again.HasNetRows());
}

TEST_F(HotV1KeyTest, EditsSurviveASwitchOfTheMode)
{
    keys.Load();
    EXPECT_TRUE(keys.SetKeyCode(0, 'Q'));
    keys.SetNetMode(true);
    EXPECT_TRUE(keys.SetKeyCode(0, 112)) << "a hidden row may hold the same key";
    keys.SetNetMode(false);
    keys.Save();
    EXPECT_EQ(Word(2) + QuickKeyBytes(18, 0, 'Q', 1) + QuickKeyBytes(19, 0, 113, 1) +
                  QuickKeyBytes(20, 0, 114, 1) + QuickKeyBytes(21, 0, 115, 1) +
                  QuickKeyBytes(22, 0, 65, 1) + QuickKeyBytes(23, 0, 90, 1) +
                  QuickKeyBytes(24, 0, 112, 0) + QuickKeyBytes(25, 0, 117, 0),
              ReadBytes(kFile));
}

TEST_F(HotV1KeyTest, KeyCodeLeavesTheModifiers)
{
    WriteBytes(kFile, Word(2) + QuickKeyBytes(18, 5, 112, 1));
    keys.Load();
    held = kModifierAlt;
    EXPECT_TRUE(keys.SetKeyCode(0, 'Q'));
    EXPECT_EQ(QuickKeyBytes(18, 5, 'Q', 1), BytesOf(keys.GetList()[0]));
    EXPECT_FALSE(keys.SetKeyCode(1, 'Q'));
    EXPECT_FALSE(keys.SetKeyCode(-1, 'Q'));
}

TEST_F(HotV1KeyTest, KeyNamesOfTheVisibleRows)
{
    keys.Load();
    keys.SetNetMode(true);
    char name[kKeyNameSize] = {};
    EXPECT_TRUE(keys.GetKeyName(0, name));
    EXPECT_STREQ("F5", name);
    EXPECT_FALSE(keys.GetKeyName(4, name));
    EXPECT_STREQ("F5", name);
}

TEST_F(HotV1KeyTest, HeldKeyIsSearchedInTheVisibleRowsOnly)
{
    keys.Load();
    EXPECT_EQ(&keys.visible[0], keys.FindHeldKey(112));
    EXPECT_EQ(nullptr, keys.FindHeldKey(116));
    held = kModifierCtrl;
    EXPECT_EQ(nullptr, keys.FindHeldKey(112));
    held = 0;
    keys.SetNetMode(true);
    EXPECT_EQ(nullptr, keys.FindHeldKey(112));
    EXPECT_EQ(&keys.visible[0], keys.FindHeldKey(116));
}

TEST_F(HotV1KeyTest, RestoreDropsWhatWasNotSaved)
{
    keys.Load();
    keys.Save();
    keys.SetKeyCode(0, 'Q');
    keys.SetNetMode(true);
    keys.Load();
    keys.Save();
    EXPECT_EQ(DefaultQuickKeyFile(), ReadBytes(kFile));
}

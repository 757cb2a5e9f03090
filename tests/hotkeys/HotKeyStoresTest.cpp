#include "hotkeys/HotKeyStores.h"

#include "hotkeys/HotKey.h"
#include "hotkeys/HotV1Key.h"
#include "hotkeys/KeyName.h"
#include "tests/hotkeys/HotKeyBytes.h"
#include "tests/hotkeys/HotKeyFolder.h"
#include "tests/hotkeys/MessageBoxWatch.h"

#include <climits>

namespace
{
const char kFile[] = "cfg\\trade\\HotKey2.dat";

class HotKeyStoresTest : public HotKeyFolder
{
protected:
    void SetUp() override
    {
        HotKeyFolder::SetUp();
        CreateHotKeyStores();
    }

    void TearDown() override
    {
        DestroyHotKeyStores();
        HotKeyFolder::TearDown();
    }

    static HotKeyRecord Row(int row)
    {
        HotKeyRecord record = {};
        EXPECT_EQ(1, GetHotKeyRecord(2, row, &record));
        return record;
    }
};

// Where a virtual operation stands in the class's table, as GCC keeps it in a member pointer.
template <class Operation>
size_t SlotOf(Operation operation)
{
    uintptr_t word;
    memcpy(&word, &operation, sizeof(word));
    return (word - 1) / sizeof(void*);
}
} // namespace

TEST(HotKeyBase, SlotsOfTheVirtualTable)
{
    EXPECT_EQ(0u, SlotOf(&CHotKeyBase::Save));
    EXPECT_EQ(1u, SlotOf(&CHotKeyBase::Load));
    EXPECT_EQ(2u, SlotOf(&CHotKeyBase::GetType));
    EXPECT_EQ(3u, SlotOf(&CHotKeyBase::GetList));
    EXPECT_FALSE(std::has_virtual_destructor_v<CHotKeyBase>);
}

TEST_F(HotKeyStoresTest, RegistryHoldsTypesInOrder)
{
    ASSERT_EQ(3u, gHotKeyStores.size());
    EXPECT_EQ(2, gHotKeyStores[0]->GetType());
    EXPECT_EQ(0, gHotKeyStores[1]->GetType());
    EXPECT_EQ(1, gHotKeyStores[2]->GetType());
    for (int type : {0, 1, 2})
        EXPECT_EQ(type, FindHotKeyStore(type)->GetType());
    EXPECT_EQ(nullptr, FindHotKeyStore(3));
    DestroyHotKeyStores();
    EXPECT_TRUE(gHotKeyStores.empty());
    EXPECT_EQ(nullptr, FindHotKeyStore(2));
}

TEST_F(HotKeyStoresTest, NullEntriesAreSkipped)
{
    gHotKeyStores.insert(gHotKeyStores.begin(), nullptr);
    EXPECT_EQ(2, FindHotKeyStore(2)->GetType());
    EXPECT_EQ(1, LoadAllHotKeys());
    EXPECT_EQ(1, SaveAllHotKeys());
}

TEST_F(HotKeyStoresTest, UnknownTypesFail)
{
    HotKeyRecord record;
    char name[kKeyNameSize] = "untouched";
    for (int type : {3, -1, INT_MIN, INT_MAX})
    {
        EXPECT_EQ(0, LoadHotKeys(type));
        EXPECT_EQ(0, SaveHotKeys(type));
        EXPECT_EQ(0, GetHotKeyCount(type));
        EXPECT_EQ(0, GetHotKeyRecord(type, 0, &record));
        GetHotKeyName(type, 0, name);
        EXPECT_EQ(-1, AddHotKeyRow(type));
        RemoveHotKeyRow(type, 0);
        EXPECT_EQ(0, SetHotKeyAction(type, 0, 1));
        EXPECT_EQ(0, CaptureHotKey(type, 0, 'A', name));
    }
    EXPECT_STREQ("untouched", name);
}

TEST_F(HotKeyStoresTest, RowsOutOfRangeFail)
{
    AddHotKeyRow(2);
    HotKeyRecord record;
    char name[kKeyNameSize] = "untouched";
    for (int row : {-1, 1, INT_MIN, INT_MAX})
    {
        EXPECT_EQ(0, GetHotKeyRecord(2, row, &record));
        GetHotKeyName(2, row, name);
        RemoveHotKeyRow(2, row);
        EXPECT_EQ(0, SetHotKeyAction(2, row, 1));
        EXPECT_EQ(0, SetHotKeyBuySell(2, row, '1'));
        EXPECT_EQ(0, SetHotKeyPriceType(2, row, "x"));
        EXPECT_EQ(0, SetHotKeyOverTicks(2, row, 1));
        EXPECT_EQ(0, SetHotKeyCovered(2, row, 1));
        EXPECT_EQ(0, SetHotKeyMultiple(2, row, 1));
        EXPECT_EQ(0, SetHotKeyOpenClose(2, row, '1'));
        EXPECT_EQ(0, CaptureHotKey(2, row, 'A', name));
    }
    EXPECT_STREQ("untouched", name);
    EXPECT_EQ(1, GetHotKeyCount(2));
    EXPECT_EQ(BytesOf(MakeDefaultHotKey()), BytesOf(Row(0)));
}

TEST_F(HotKeyStoresTest, RowsAreAddedAndRemoved)
{
    EXPECT_EQ(0, AddHotKeyRow(2));
    EXPECT_EQ(1, AddHotKeyRow(2));
    EXPECT_EQ(2, AddHotKeyRow(2));
    EXPECT_EQ(0, GetHotKeyCount(0)) << "each type has its own rows";
    EXPECT_EQ(BytesOf(MakeDefaultHotKey()), BytesOf(Row(2)));
    for (int row : {0, 1, 2})
        SetHotKeyAction(2, row, 10 + row);
    RemoveHotKeyRow(2, 1);
    EXPECT_EQ(2, GetHotKeyCount(2));
    EXPECT_EQ(10u, Row(0).action);
    EXPECT_EQ(12u, Row(1).action) << "later rows move up";
}

TEST_F(HotKeyStoresTest, SettersSetTheirField)
{
    AddHotKeyRow(2);
    EXPECT_EQ(1, SetHotKeyAction(2, 0, 16));
    EXPECT_EQ(1, SetHotKeyBuySell(2, 0, '1'));
    EXPECT_EQ(1, SetHotKeyPriceType(2, 0, "挂单价"));
    EXPECT_EQ(1, SetHotKeyOverTicks(2, 0, -5));
    EXPECT_EQ(1, SetHotKeyCovered(2, 0, 1));
    EXPECT_EQ(1, SetHotKeyMultiple(2, 0, 7));
    EXPECT_EQ(1, SetHotKeyOpenClose(2, 0, '3'));
    const HotKeyRecord record = Row(0);
    EXPECT_EQ(16u, record.action);
    EXPECT_EQ('1', record.buySell);
    EXPECT_EQ("挂单价", PriceTypeOf(record));
    EXPECT_EQ(-5, record.overTicks);
    EXPECT_EQ(1, record.covered);
    EXPECT_EQ(7, record.multiple);
    EXPECT_EQ('3', record.openClose);
    EXPECT_EQ(0, record.vk);
}

TEST_F(HotKeyStoresTest, CaptureTakesTheHeldModifiers)
{
    AddHotKeyRow(2);
    held = kModifierCtrl | kModifierShift;
    char name[kKeyNameSize] = {};
    EXPECT_EQ(1, CaptureHotKey(2, 0, 112, name));
    EXPECT_STREQ("Ctrl + Shift + F1", name);
    EXPECT_EQ(kModifierCtrl | kModifierShift, Row(0).modifiers);
    EXPECT_EQ(112, Row(0).vk);
    char again[kKeyNameSize] = {};
    GetHotKeyName(2, 0, again);
    EXPECT_STREQ(name, again);
}

TEST_F(HotKeyStoresTest, KeyWithoutNameClearsWithoutAMessage)
{
    AddHotKeyRow(2);
    AddHotKeyRow(2);
    char name[kKeyNameSize] = {};
    CaptureHotKey(2, 1, 'A', name);
    held = kModifierCtrl;
    MessageBoxWatch watch;
    EXPECT_EQ(1, CaptureHotKey(2, 1, 220, name));
    EXPECT_STREQ("", name);
    EXPECT_EQ(0, Row(1).vk);
    EXPECT_EQ(0, Row(1).modifiers);
    EXPECT_TRUE(watch.Stop().empty());
}

TEST_F(HotKeyStoresTest, DuplicateClearsTheRowAndTellsTheUser)
{
    AddHotKeyRow(2);
    AddHotKeyRow(2);
    char name[kKeyNameSize] = {};
    held = kModifierAlt;
    CaptureHotKey(2, 0, 'A', name);
    MessageBoxWatch watch;
    EXPECT_EQ(0, CaptureHotKey(2, 1, 'A', name));
    EXPECT_STREQ("", name);
    EXPECT_EQ(std::vector<std::string>{"提示: 快捷键重复!"}, watch.Stop());
    EXPECT_EQ(0, Row(1).vk);
    EXPECT_EQ(0, Row(1).modifiers);
    EXPECT_EQ('A', Row(0).vk);
}

TEST_F(HotKeyStoresTest, SaveWritesTheFileByteByByte)
{
    AddHotKeyRow(2);
    char name[kKeyNameSize] = {};
    held = kModifierCtrl;
    CaptureHotKey(2, 0, 33, name);
    SetHotKeyOverTicks(2, 0, -2);
    EXPECT_EQ(1, SaveHotKeys(2));
    std::string record(84, '\0');
    record[0] = 2;
    record[4] = 1;
    record[5] = 33;
    record[6] = '0';
    record.replace(7, 6, "\xB6\xD4\xCA\xD6\xBC\xDB");
    record.replace(40, 4, "\xFE\xFF\xFF\xFF");
    record[52] = '0';
    EXPECT_EQ(Word(1) + record, ReadBytes(kFile));
}

TEST_F(HotKeyStoresTest, EmptyListIsSavedAsItsVersion)
{
    EXPECT_EQ(1, SaveHotKeys(2));
    EXPECT_EQ(Word(1), ReadBytes(kFile));
}

TEST_F(HotKeyStoresTest, FileIsCarriedByteByByte)
{
    const std::string bytes = Word(1) + PatternBytes(0) + PatternBytes(100);
    WriteBytes(kFile, bytes + "piece");
    EXPECT_EQ(1, LoadHotKeys(2));
    EXPECT_EQ(2, GetHotKeyCount(2));
    EXPECT_EQ(PatternBytes(100), BytesOf(Row(1)));
    EXPECT_EQ(bytes + "piece", ReadBytes(kFile)) << "loading writes nothing";
    SaveHotKeys(2);
    EXPECT_EQ(bytes, ReadBytes(kFile));
}

TEST_F(HotKeyStoresTest, LoadReplacesTheRows)
{
    AddHotKeyRow(2);
    EXPECT_EQ(1, LoadHotKeys(2)) << "no file";
    EXPECT_EQ(0, GetHotKeyCount(2));
}

TEST_F(HotKeyStoresTest, ForeignFileGivesNoRowsAndStaysUntilTheSave)
{
    for (const std::string& bytes : {Word(2) + PatternBytes(0), Word(1), std::string("\1\0"),
                                     std::string("\0\0\0", 3), std::string()})
    {
        WriteBytes(kFile, bytes);
        AddHotKeyRow(2);
        LoadHotKeys(2);
        EXPECT_EQ(0, GetHotKeyCount(2));
        EXPECT_EQ(bytes, ReadBytes(kFile));
    }
    SaveHotKeys(2);
    EXPECT_EQ(Word(1), ReadBytes(kFile));
}

TEST_F(HotKeyStoresTest, EveryTypeHasItsFile)
{
    for (int type : {0, 1, 2})
        AddHotKeyRow(type);
    EXPECT_EQ(1, SaveHotKeys(2));
    EXPECT_FALSE(IsThere("cfg\\trade\\HotKey0.dat")) << "the other types' files stay untouched";
    EXPECT_FALSE(IsThere("cfg\\trade\\HotKey1.dat"));
    EXPECT_EQ(1, SaveAllHotKeys());
    for (const char* file : {"HotKey0.dat", "HotKey1.dat", "HotKey2.dat"})
        EXPECT_EQ(Word(1) + BytesOf(MakeDefaultHotKey()),
                  ReadBytes((std::string("cfg\\trade\\") + file).c_str()));
    for (int type : {0, 1, 2})
        RemoveHotKeyRow(type, 0);
    EXPECT_EQ(1, LoadAllHotKeys());
    for (int type : {0, 1, 2})
        EXPECT_EQ(1, GetHotKeyCount(type));
}

TEST_F(HotKeyStoresTest, FolderIsNotCreated)
{
    RemoveDirectoryA("cfg\\trade");
    EXPECT_EQ(1, SaveHotKeys(2));
    EXPECT_FALSE(IsThere("cfg\\trade"));
}

TEST_F(HotKeyStoresTest, UnendedPriceTypeIsCarriedAndReadWithinItsField)
{
    WriteBytes(kFile, Word(1) + std::string(84, '\xB6'));
    LoadHotKeys(2);
    EXPECT_EQ(std::string(32, '\xB6'), PriceTypeOf(Row(0)));
    SetHotKeyPriceType(2, 0, "最新价");
    EXPECT_EQ("最新价", PriceTypeOf(Row(0)));
    EXPECT_EQ(static_cast<int32_t>(0xB6B6B6B6), Row(0).overTicks);
}

TEST_F(HotKeyStoresTest, RegistryServesQuickKeysByTheirVisibleRows)
{
    CHotV1Key quick(7);
    quick.Load();
    gHotKeyStores.push_back(&quick);
    EXPECT_EQ(6, GetHotKeyCount(7));
    char name[kKeyNameSize] = {};
    GetHotKeyName(7, 4, name);
    EXPECT_STREQ("A", name);
    gHotKeyStores.pop_back();
}

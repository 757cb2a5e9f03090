#include "core/FileBytes.h"

#include "tests/core/TempWorkingFolder.h"

#include <thread>

namespace
{
class FileBytesTest : public TempWorkingFolder
{
};
} // namespace

TEST_F(FileBytesTest, WritesAndReadsAnyBytes)
{
    const std::string bytes("\0\r\n\x1A\xFF", 5);
    EXPECT_TRUE(ReplaceFileBytes("a.dat", bytes));
    EXPECT_EQ(bytes, ReadBytes("a.dat"));
    std::string read = "old";
    EXPECT_TRUE(ReadFileBytes("a.dat", read));
    EXPECT_EQ(bytes, read);
    EXPECT_FALSE(IsThere("a.dat.tmp"));
}

TEST_F(FileBytesTest, ReplacesLongerContent)
{
    WriteBytes("a.dat", std::string(100000, 'x'));
    EXPECT_TRUE(ReplaceFileBytes("a.dat", "y"));
    EXPECT_EQ("y", ReadBytes("a.dat"));
}

TEST_F(FileBytesTest, ReadsLongFiles)
{
    std::string bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += static_cast<char>(i * 7 / 3);
    WriteBytes("a.dat", bytes);
    std::string read;
    EXPECT_TRUE(ReadFileBytes("a.dat", read));
    EXPECT_EQ(bytes, read);
}

TEST_F(FileBytesTest, MissingFileAndFolder)
{
    std::string read = "old";
    EXPECT_FALSE(ReadFileBytes("a.dat", read));
    EXPECT_EQ("", read);
    EXPECT_FALSE(ReplaceFileBytes("missing\\a.dat", "x"));
    EXPECT_FALSE(IsThere("missing")) << "the folder is not created";
}

TEST_F(FileBytesTest, FileThatCannotBeReplacedStays)
{
    WriteBytes("a.dat", "old");
    SetFileAttributesA("a.dat", FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(ReplaceFileBytes("a.dat", "new"));
    SetFileAttributesA("a.dat", FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ("old", ReadBytes("a.dat"));
    EXPECT_FALSE(IsThere("a.dat.tmp"));
}

TEST_F(FileBytesTest, WhatAKilledRunLeftIsNoObstacle)
{
    WriteBytes("a.dat.tmp", "half of");
    EXPECT_TRUE(ReplaceFileBytes("a.dat", "new"));
    EXPECT_EQ("new", ReadBytes("a.dat"));
    EXPECT_FALSE(IsThere("a.dat.tmp"));
}

TEST_F(FileBytesTest, WaitsForAReader)
{
    WriteBytes("a.dat", "old");
    const HANDLE reader = CreateFileA("a.dat", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, reader);
    std::thread leaves(
        [reader]
        {
            Sleep(60);
            CloseHandle(reader);
        });
    EXPECT_TRUE(ReplaceFileBytes("a.dat", "new"));
    leaves.join();
    EXPECT_EQ("new", ReadBytes("a.dat"));
}

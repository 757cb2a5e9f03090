#include "core/Directory.h"

#include "tests/core/TempWorkingFolder.h"

namespace
{
class DirectoryTest : public TempWorkingFolder
{
};

bool IsFolder(const char* path)
{
    const DWORD attributes = GetFileAttributesA(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}
} // namespace

TEST_F(DirectoryTest, CreatesAllThatIsMissing)
{
    EXPECT_TRUE(CreateDirectoryPath(".\\cfg\\Trade\\"));
    EXPECT_TRUE(IsFolder("cfg\\Trade"));
    EXPECT_TRUE(CreateDirectoryPath("cfg\\Trade\\a\\b")) << "no backslash at the end";
    EXPECT_TRUE(IsFolder("cfg\\Trade\\a\\b"));
}

TEST_F(DirectoryTest, AbsolutePath)
{
    char here[MAX_PATH];
    GetCurrentDirectoryA(sizeof(here), here);
    EXPECT_TRUE(CreateDirectoryPath((std::string(here) + "\\x\\y").c_str()));
    EXPECT_TRUE(IsFolder("x\\y"));
}

TEST_F(DirectoryTest, WhatIsThereStays)
{
    CreateDirectoryA("cfg", nullptr);
    WriteBytes("cfg\\file", "content");
    EXPECT_TRUE(CreateDirectoryPath("cfg"));
    EXPECT_TRUE(CreateDirectoryPath("cfg\\"));
    EXPECT_TRUE(CreateDirectoryPath("cfg\\file")) << "a file of that name counts as there";
    EXPECT_EQ("content", ReadBytes("cfg\\file"));
}

TEST_F(DirectoryTest, FailuresAreIgnored)
{
    WriteBytes("file", "content");
    EXPECT_TRUE(CreateDirectoryPath("file\\folder\\"));
    EXPECT_EQ("content", ReadBytes("file"));
    EXPECT_TRUE(CreateDirectoryPath("a?b\\c"));
    EXPECT_FALSE(IsThere("a"));
}

TEST_F(DirectoryTest, LongPathsAreRefused)
{
    std::string path = "deep";
    while (path.size() < 1020)
        path += "\\.";
    path.resize(1020);
    EXPECT_FALSE(CreateDirectoryPath(path.c_str()));
    EXPECT_FALSE(IsThere("deep"));
    path.resize(1019);
    EXPECT_TRUE(CreateDirectoryPath(path.c_str()));
    EXPECT_TRUE(IsFolder("deep"));
}

TEST_F(DirectoryTest, NullIsRefused)
{
    EXPECT_FALSE(CreateDirectoryPath(nullptr));
}

TEST_F(DirectoryTest, BackslashAsSecondByteOfACharacterSeparatesNothing)
{
    const char* const path = "\xD5\x5C\\\x81\x5C"; // two folders of one character each
    EXPECT_TRUE(CreateDirectoryPath(path));
    EXPECT_TRUE(IsFolder("\xD5\x5C"));
    EXPECT_TRUE(IsFolder(path));
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA("*", &found);
    int entries = 1;
    while (FindNextFileA(search, &found))
        ++entries;
    FindClose(search);
    EXPECT_EQ(3, entries) << "the folder itself, its parent, and the one created";
}

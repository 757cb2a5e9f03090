#include "skin/CachedIniString.h"

#include "tests/core/TempWorkingFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

class CachedIniString : public TempWorkingFolder
{
protected:
    // Values stay for the life of the process: each test has a file name of its own.
    void Store(const std::string& content)
    {
        const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
        path = std::string(".\\") + test->name() + ".ini";
        WriteBytes(path.c_str(), content);
    }

    std::string Read(const char* section, const char* key, const char* fallback = "fallback")
    {
        return ReadCachedIniString(section, key, fallback, path.c_str());
    }

    std::string path;
};

} // namespace

TEST_F(CachedIniString, ReadsTheValueOrTheDefault)
{
    Store("[Prompt]\r\nTitle=提示\r\n");
    EXPECT_EQ("提示", Read("Prompt", "Title"));
    EXPECT_EQ("fallback", Read("Prompt", "Other"));
    EXPECT_EQ("fallback", Read("Nowhere", "Title"));
}

TEST_F(CachedIniString, AMissingFileGivesTheDefault)
{
    path = ".\\nowhere.ini";
    EXPECT_EQ("fallback", Read("Prompt", "Title"));
}

TEST_F(CachedIniString, BackslashNBecomesALineFeed)
{
    Store("[S]\r\na=one\\ntwo\\nthree\r\nb=C:\\dir\\file\\\r\nc=\\n\r\nd=\\\\n\r\n");
    EXPECT_EQ("one\ntwo\nthree", Read("S", "a"));
    EXPECT_EQ("C:\\dir\\file\\", Read("S", "b"));
    EXPECT_EQ("\n", Read("S", "c"));
    EXPECT_EQ("\\\n", Read("S", "d"));
}

TEST_F(CachedIniString, TheDefaultGetsItsLineFeedsToo)
{
    Store("[S]\r\n");
    EXPECT_EQ("one\ntwo", Read("S", "a", "one\\ntwo"));
}

TEST_F(CachedIniString, ASecondByteIsNoBackslash)
{
    // 0x81 0x5C is one character.
    Store("[S]\r\na=\x81\x5Cn\r\n");
    EXPECT_EQ("\x81\x5Cn", Read("S", "a"));
}

TEST_F(CachedIniString, KeepsWhatWasReadOnce)
{
    Store("[S]\r\na=old\r\n");
    const char* first = ReadCachedIniString("S", "a", "x", path.c_str());
    EXPECT_STREQ("old", first);
    Store("[S]\r\na=new\r\n");
    EXPECT_EQ(first, ReadCachedIniString("S", "a", "y", path.c_str()));
    EXPECT_STREQ("old", first);
}

TEST_F(CachedIniString, KeepsADefaultToo)
{
    Store("[S]\r\n");
    char fallback[] = "first";
    const char* value = ReadCachedIniString("S", "a", fallback, path.c_str());
    fallback[0] = 'F';
    EXPECT_STREQ("first", value);
    EXPECT_EQ("first", Read("S", "a", "second"));
}

TEST_F(CachedIniString, PointersOutliveManyFurtherReads)
{
    Store("[S]\r\na=stays\r\n");
    const char* value = ReadCachedIniString("S", "a", "", path.c_str());
    for (int i = 0; i < 1000; ++i)
        Read("S", ("key" + std::to_string(i)).c_str());
    EXPECT_EQ(value, ReadCachedIniString("S", "a", "", path.c_str()));
    EXPECT_STREQ("stays", value);
}

TEST_F(CachedIniString, FilesAreKeptApart)
{
    Store("[S]\r\na=one\r\n");
    EXPECT_EQ("one", Read("S", "a"));
    path = ".\\second.ini";
    WriteBytes("second.ini", "[S]\r\na=two\r\n");
    EXPECT_EQ("two", Read("S", "a"));
}

TEST_F(CachedIniString, NamesOf255CharactersReturnTheDefaultItself)
{
    const std::string key(254, 'k');
    Store("[S]\r\n" + key + "=value\r\n");
    const char* fallback = "fallback";
    EXPECT_EQ(fallback, ReadCachedIniString("S", key.c_str(), fallback, path.c_str()));
    EXPECT_EQ(fallback,
              ReadCachedIniString("S", std::string(5000, 'k').c_str(), fallback, path.c_str()));
}

TEST_F(CachedIniString, NamesOf254CharactersAreRead)
{
    const std::string key(253, 'k');
    Store("[S]\r\n" + key + "=value\r\n");
    EXPECT_EQ("value", Read("S", key.c_str()));
}

TEST_F(CachedIniString, ALongValueIsCutAtACharacter)
{
    std::string value = "a";
    for (int i = 0; i < 700; ++i)
        value += "中";
    Store("[S]\r\na=" + value + "\r\nb=" + value.substr(1) + "\r\n");
    EXPECT_EQ(value.substr(0, 1023), Read("S", "a"));
    EXPECT_EQ(value.substr(1, 1022), Read("S", "b"));
}

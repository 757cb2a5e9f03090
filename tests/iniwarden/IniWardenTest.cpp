#include "iniwarden/IniWarden.h"
#include "tests/iniwarden/IniFiles.h"

#include <filesystem>

namespace
{
const std::string kFile = "Cfg\\Trade\\TradePackageConfig.ini";
const std::string kSection = "TradeConfig";

std::string Text(const std::string& key, const std::string& file = "a.ini")
{
    return IniWarden::ReadConfigWithDefault("s", key, "<default>", file);
}

unsigned int Write(const std::string& key, const std::string& value)
{
    return IniWarden::WriteConfig("s", key, value, "a.ini");
}

uint64_t LastWrite(const std::string& path)
{
    WIN32_FILE_ATTRIBUTE_DATA data;
    EXPECT_TRUE(GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data));
    return static_cast<uint64_t>(data.ftLastWriteTime.dwHighDateTime) << 32 |
           data.ftLastWriteTime.dwLowDateTime;
}

std::string ProfileText(const std::string& section, const std::string& key, const std::string& file)
{
    char text[256];
    const std::string path = FullPath(file);
    GetPrivateProfileStringA(section.c_str(), key.c_str(), "<default>", text, sizeof(text),
                             path.c_str());
    return text;
}
} // namespace

TEST(IniWardenEnvironment, HasCodePage936)
{
    ASSERT_EQ(936u, GetACP());
}

class IniWardenRead : public CIniFolderTest
{
};

TEST_F(IniWardenRead, GivesTheDefaultWithoutFileOrKey)
{
    EXPECT_EQ("a", IniWarden::ReadConfigWithDefault(kSection, "k", "a", kFile));
    EXPECT_EQ(3, IniWarden::ReadConfigIntWithDefault(kSection, "k", 3, kFile));
    EXPECT_EQ("a", IniWarden::ReadSysConfigWithDefault(kSection, "k", "a", kFile));
    EXPECT_EQ(3, IniWarden::ReadSysConfigIntWithDefault(kSection, "k", 3, kFile));
    EXPECT_DOUBLE_EQ(5.0, IniWarden::ReadSysConfigFloatWithDefault(kSection, "k", 5.0, kFile));
    WriteBytes("a.ini", "[s]\r\nj=1\r\n");
    EXPECT_EQ("<default>", Text("k"));
}

TEST_F(IniWardenRead, KeepsTheTwoStoresApart)
{
    std::filesystem::create_directories("Cfg\\Trade");
    std::filesystem::create_directories("Sys\\Cfg\\Trade");
    WriteBytes(kFile, "[TradeConfig]\r\nboth=1\r\nuser=2\r\n");
    WriteBytes("Sys\\" + kFile, "[TradeConfig]\r\nboth=3.5\r\npackaged=4\r\n");

    EXPECT_EQ("1", IniWarden::ReadConfigWithDefault(kSection, "both", "", kFile));
    EXPECT_EQ("3.5", IniWarden::ReadSysConfigWithDefault(kSection, "both", "", kFile));
    EXPECT_EQ(1, IniWarden::ReadConfigIntWithDefault(kSection, "both", 0, kFile));
    EXPECT_EQ(3, IniWarden::ReadSysConfigIntWithDefault(kSection, "both", 0, kFile));
    EXPECT_DOUBLE_EQ(3.5, IniWarden::ReadSysConfigFloatWithDefault(kSection, "both", 0, kFile));
    EXPECT_EQ("-", IniWarden::ReadConfigWithDefault(kSection, "packaged", "-", kFile));
    EXPECT_EQ("-", IniWarden::ReadSysConfigWithDefault(kSection, "user", "-", kFile));
}

TEST_F(IniWardenRead, NamesThePackagedFileByAnySpellingOfThePath)
{
    std::filesystem::create_directories("Sys\\Cfg");
    WriteBytes("Sys\\Cfg\\a.ini", "[s]\r\nk=1\r\n");
    const std::string absolute = FullPath("Cfg\\a.ini");
    for (const std::string& file : {std::string("Cfg\\a.ini"), std::string(".\\cfg\\A.ini"),
                                    std::string("Cfg/a.ini"), absolute})
        EXPECT_EQ(1, IniWarden::ReadSysConfigIntWithDefault("s", "k", 0, file)) << file;
}

TEST_F(IniWardenRead, FindsNoPackagedFileOutsideOfTheWorkingFolder)
{
    std::filesystem::create_directories("work\\Sys");
    WriteBytes("a.ini", "[s]\r\nk=1\r\n");
    SetCurrentDirectoryA("work");
    EXPECT_EQ(1, IniWarden::ReadConfigIntWithDefault("s", "k", 0, "..\\a.ini"));
    EXPECT_EQ(0, IniWarden::ReadSysConfigIntWithDefault("s", "k", 0, "..\\a.ini"));
    SetCurrentDirectoryA("..");
}

TEST_F(IniWardenRead, ReadsNumbersAsTheProfileFunctionDoes)
{
    const char* const values[] = {"",    "12",  " -5x", "+7",         "3.9",         "abc",   "010",
                                  "- 5", "--5", "   ",  "4294967295", "99999999999", "\"12\""};
    for (const char* value : values)
    {
        WriteBytes("a.ini", std::string("[s]\r\nk=") + value + "\r\n");
        const std::string path = FullPath("a.ini");
        WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.c_str());
        EXPECT_EQ(static_cast<int>(GetPrivateProfileIntA("s", "k", -77, path.c_str())),
                  IniWarden::ReadConfigIntWithDefault("s", "k", -77, "a.ini"))
            << value;
    }
}

TEST_F(IniWardenRead, GivesTheDefaultForAFractionThatIsNoNumber)
{
    std::filesystem::create_directories("Sys");
    WriteBytes("Sys\\a.ini", "[s]\r\ntext=abc\r\nempty=\r\ninterval = 0.30\r\n");
    EXPECT_DOUBLE_EQ(5.0, IniWarden::ReadSysConfigFloatWithDefault("s", "text", 5.0, "a.ini"));
    EXPECT_DOUBLE_EQ(5.0, IniWarden::ReadSysConfigFloatWithDefault("s", "empty", 5.0, "a.ini"));
    EXPECT_DOUBLE_EQ(0.3, IniWarden::ReadSysConfigFloatWithDefault("s", "interval", 5.0, "a.ini"));
}

TEST_F(IniWardenRead, FollowsTheWorkingFolder)
{
    std::filesystem::create_directories("x");
    std::filesystem::create_directories("y");
    WriteBytes("x\\a.ini", "[s]\r\nk=1\r\n");
    WriteBytes("y\\a.ini", "[s]\r\nk=2\r\n");
    SetCurrentDirectoryA("x");
    EXPECT_EQ("1", Text("k"));
    SetCurrentDirectoryA("..\\y");
    EXPECT_EQ("2", Text("k"));
    SetCurrentDirectoryA("..");
    EXPECT_EQ("<default>", Text("k"));
}

TEST_F(IniWardenRead, SurvivesNamesThatAreNoFiles)
{
    std::filesystem::create_directories("folder");
    const std::string names[] = {"",
                                 std::string("a\0b", 3),
                                 "folder",
                                 "a*b?.ini",
                                 "..",
                                 "\\\\",
                                 "nowhere\\a.ini",
                                 std::string(1000, 'x'),
                                 std::string(40000, 'y')};
    for (const std::string& name : names)
    {
        EXPECT_EQ("<default>", Text("k", name)) << name.substr(0, 20);
        EXPECT_EQ(7, IniWarden::ReadSysConfigIntWithDefault("s", "k", 7, name));
    }
}

TEST_F(IniWardenRead, GivesTheDefaultForAHugeFile)
{
    const std::string bytes = "[s]\r\nk=1\r\n" + std::string(5 * 1024 * 1024, ';');
    WriteBytes("a.ini", bytes);
    EXPECT_EQ("<default>", Text("k"));
    EXPECT_EQ(0u, Write("k", "2"));
    EXPECT_TRUE(bytes == ReadBytes("a.ini"));
}

TEST_F(IniWardenRead, NoticesEveryChangeFromOutsideAtOnce)
{
    WriteBytes("a.ini", "[s]\r\nk=0000\r\n");
    SetLastWrite("a.ini", Now() - kHour);
    EXPECT_EQ("0000", Text("k"));
    for (int count = 1000; count < 2000; ++count)
    {
        const std::string value = std::to_string(count);
        OverwriteBytes("a.ini", "[s]\r\nk=" + value + "\r\n");
        ASSERT_EQ(value, Text("k"));
    }
}

TEST_F(IniWardenRead, NoticesAChangeThatGotTheSameTimeOfWriting)
{
    // What a file system with a coarse clock does, made by hand: two changes of one size under one
    // stamp. A pair that took longer than a tick could not have shared one and does not count.
    constexpr uint64_t kTick = 16 * 10000;
    int counted = 0;
    for (int count = 1000; count < 2000; ++count)
    {
        const std::string value = std::to_string(count);
        const uint64_t moment = Now();
        WriteBytes("a.ini", "[s]\r\nk=0" + value.substr(1) + "\r\n");
        SetLastWrite("a.ini", moment);
        ASSERT_EQ("0" + value.substr(1), Text("k"));
        OverwriteBytes("a.ini", "[s]\r\nk=" + value + "\r\n");
        SetLastWrite("a.ini", moment);
        if (Now() - moment > kTick)
            continue;
        ASSERT_EQ(value, Text("k"));
        ++counted;
    }
    EXPECT_GT(counted, 100);
}

TEST_F(IniWardenRead, NoticesAChangeOnAFileSystemThatCountsInSeconds)
{
    constexpr uint64_t kTwoSeconds = 2 * 10000000;
    WriteBytes("a.ini", "[s]\r\nk=1\r\n");
    const uint64_t moment = Now() / kTwoSeconds * kTwoSeconds;
    SetLastWrite("a.ini", moment);
    ASSERT_EQ("1", Text("k"));
    OverwriteBytes("a.ini", "[s]\r\nk=2\r\n");
    SetLastWrite("a.ini", moment);
    EXPECT_EQ("2", Text("k"));
}

TEST_F(IniWardenRead, NoticesAChangeRightAfterItsOwnWrite)
{
    for (int count = 1000; count < 2000; ++count)
    {
        const std::string value = std::to_string(count);
        ASSERT_EQ(1u, Write("k", "0" + value.substr(1)));
        OverwriteBytes("a.ini", "[s]\r\nk=" + value + "\r\n");
        ASSERT_EQ(value, Text("k"));
    }
}

TEST_F(IniWardenRead, NoticesAChangeThroughAHandleThatStaysOpen)
{
    WriteBytes("a.ini", "[s]\r\nk=0000\r\n");
    const HANDLE file =
        CreateFileA("a.ini", GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    for (int count = 1000; count < 1200; ++count)
    {
        const std::string value = std::to_string(count);
        DWORD written = 0;
        SetFilePointer(file, 7, nullptr, FILE_BEGIN);
        WriteFile(file, value.data(), 4, &written, nullptr);
        ASSERT_EQ(value, Text("k"));
    }
    CloseHandle(file);
}

TEST_F(IniWardenRead, NoticesThatTheFileWentAndCame)
{
    ASSERT_EQ(1u, Write("k", "1"));
    DeleteFileA("a.ini");
    EXPECT_EQ("<default>", Text("k"));
    WriteBytes("a.ini", "[s]\r\nk=2\r\n");
    EXPECT_EQ("2", Text("k"));
}

TEST_F(IniWardenRead, OpensNoFileThatStayedAsItWas)
{
    WriteBytes("a.ini", "[s]\r\nk=1\r\n");
    SetLastWrite("a.ini", Now() - kHour);
    ASSERT_EQ("1", Text("k"));
    const COpenFile held("a.ini", GENERIC_READ, 0);
    EXPECT_EQ("1", Text("k"));
    EXPECT_EQ("<default>", Text("j"));
    EXPECT_EQ(1u, Write("k", "1"));
}

TEST_F(IniWardenRead, OpensNoFileThatItWroteItself)
{
    ASSERT_EQ(1u, Write("k", "1"));
    ASSERT_EQ(1u, Write("j", "2"));
    const COpenFile held("a.ini", GENERIC_READ, 0);
    EXPECT_EQ("1", Text("k"));
    EXPECT_EQ(1u, Write("k", "1"));
    EXPECT_EQ(1u, Write("j", "2"));
    EXPECT_EQ("<default>", Text("i"));
}

TEST_F(IniWardenRead, KeepsTheLastValuesOfAFileThatIsHeld)
{
    WriteBytes("a.ini", "[s]\r\nk=1\r\n");
    ASSERT_EQ("1", Text("k"));
    const COpenFile held("a.ini", GENERIC_READ, 0);
    EXPECT_EQ("1", Text("k"));
}

TEST_F(IniWardenRead, ServesMoreFilesThanItKeeps)
{
    for (int round = 0; round < 3; ++round)
    {
        for (int number = 0; number < 100; ++number)
        {
            const std::string file = std::to_string(number) + ".ini";
            const std::string value = std::to_string(round * 1000 + number);
            ASSERT_EQ(1u, IniWarden::WriteConfig("s", "k", value, file));
            ASSERT_EQ(value, Text("k", file));
        }
    }
}

class IniWardenWrite : public CIniFolderTest
{
};

TEST_F(IniWardenWrite, MakesFoldersAndFile)
{
    EXPECT_EQ(1u, IniWarden::WriteConfig(kSection, "iLockScreen", "10", kFile));
    EXPECT_EQ("[TradeConfig]\r\niLockScreen=10\r\n", ReadBytes(kFile));
    EXPECT_EQ(std::vector<std::string>{"TradePackageConfig.ini"}, NamesIn("Cfg\\Trade"));
    EXPECT_EQ("10", IniWarden::ReadConfigWithDefault(kSection, "iLockScreen", "", kFile));
}

TEST_F(IniWardenWrite, StandsInTheOrderOfWriting)
{
    Write("b", "1");
    Write("a", "2");
    IniWarden::WriteConfig("t", "c", "3", "a.ini");
    Write("0", "4");
    Write("b", "5");
    EXPECT_EQ("[s]\r\nb=5\r\na=2\r\n0=4\r\n[t]\r\nc=3\r\n", ReadBytes("a.ini"));
}

TEST_F(IniWardenWrite, KeepsWhatItDoesNotKnow)
{
    WriteBytes("a.ini",
               "\xEF\xBB\xBF; head\n\n[S]\nunknown line\n#x=1\n  K = 1 \n;y\n\n[t\n\x81\n");
    EXPECT_EQ(1u, Write("k", "2"));
    EXPECT_EQ(1u, Write("n", "3"));
    EXPECT_EQ("\xEF\xBB\xBF; head\n\n[S]\nunknown line\n#x=1\n  K=2\n;y\n\n[t\n\x81\nn=3\n",
              ReadBytes("a.ini"));
}

TEST_F(IniWardenWrite, KeepsNulsAndGarbage)
{
    std::string garbage;
    for (int byte = 0; byte < 256; ++byte)
        garbage += static_cast<char>(byte);
    WriteBytes("a.ini", garbage);
    EXPECT_EQ(1u, Write("k", "1"));
    EXPECT_EQ(garbage + "\n[s]\nk=1\n", ReadBytes("a.ini"));
    EXPECT_EQ("1", Text("k"));
}

TEST_F(IniWardenWrite, KeepsTheLineEndsOfTheFile)
{
    WriteBytes("a.ini", "[s]\na=1\n\n[t]\n");
    Write("k", "1");
    IniWarden::WriteConfig("u", "k", "2", "a.ini");
    EXPECT_EQ("[s]\na=1\nk=1\n\n[t]\n[u]\nk=2\n", ReadBytes("a.ini"));
    WriteBytes("a.ini", "[s]\r\na=1");
    Write("k", "1");
    EXPECT_EQ("[s]\r\na=1\r\nk=1\r\n", ReadBytes("a.ini"));
}

TEST_F(IniWardenWrite, EveryValueComesBack)
{
    const std::string values[] = {"",
                                  " ",
                                  "  a\t",
                                  "\"a\"",
                                  "'a'",
                                  "=",
                                  "a=b;c#d]",
                                  "[x]",
                                  "\xC4\x5C",
                                  "\x81\x3D",
                                  "\xC4\x5B",
                                  "\xC4\x5D",
                                  "a\xC4",
                                  ".\\TradedSound.wav",
                                  std::string(65536, 'x')};
    for (const std::string& value : values)
    {
        ASSERT_EQ(1u, Write("k", value));
        EXPECT_TRUE(value == Text("k")) << value.substr(0, 20);
        EXPECT_TRUE("[s]\r\nk=" + value + "\r\n" == ReadBytes("a.ini")) << value.substr(0, 20);
    }
}

TEST_F(IniWardenWrite, IsReadByTheProfileFunctions)
{
    const std::string line = "期权,1,2,0.500,0.5,0.5,0.500,0.5";
    for (const std::string& name : {std::string("个股期权"), std::string("\xC4\x5D"),
                                    std::string("\xC4\x5B\xC4\x5C"), std::string("bLinkage")})
    {
        ASSERT_EQ(1u, IniWarden::WriteConfig(name, name, line, "配置.ini"));
        EXPECT_EQ(line, ProfileText(name, name, "配置.ini"));
        EXPECT_EQ(line, IniWarden::ReadConfigWithDefault(name, name, "", "配置.ini"));
    }
}

TEST_F(IniWardenWrite, ReadsWhatTheProfileFunctionsWrite)
{
    const std::string path = FullPath("a.ini");
    for (int count = 0; count < 50; ++count)
    {
        const std::string value = std::to_string(count);
        ASSERT_TRUE(WritePrivateProfileStringA("s", "k", value.c_str(), path.c_str()));
        ASSERT_EQ(value, Text("k"));
        ASSERT_EQ(1u, Write("j", value));
        ASSERT_EQ("[s]\r\nk=" + value + "\r\nj=" + value + "\r\n", ReadBytes("a.ini"));
    }
}

TEST_F(IniWardenWrite, RefusesWhatAnIniFileCannotHold)
{
    WriteBytes("a.ini", "[s]\r\nk=1\r\n");
    const std::string nul("a\0b", 3);
    for (const std::string& text :
         {std::string("a\r\nb=2"), std::string("\n"), std::string("a\r"), nul})
    {
        EXPECT_EQ(0u, IniWarden::WriteConfig(text, "k", "v", "a.ini"));
        EXPECT_EQ(0u, IniWarden::WriteConfig("s", text, "v", "a.ini"));
        EXPECT_EQ(0u, IniWarden::WriteConfig("s", "k", text, "a.ini"));
    }
    for (const char* key : {"", "a=b", "[k", ";k", "#k", " k", "k "})
        EXPECT_EQ(0u, IniWarden::WriteConfig("s", key, "v", "a.ini")) << key;
    for (const char* section : {"", " s", "s "})
        EXPECT_EQ(0u, IniWarden::WriteConfig(section, "k", "v", "a.ini")) << section;
    EXPECT_EQ("[s]\r\nk=1\r\n", ReadBytes("a.ini"));
    EXPECT_EQ(0u, IniWarden::WriteConfig("s", "k", "a\nb", "none\\b.ini"));
    EXPECT_EQ(std::vector<std::string>{"a.ini"}, NamesIn("."));
}

TEST_F(IniWardenWrite, RefusesNamesThatAreNoFiles)
{
    std::filesystem::create_directories("folder");
    WriteBytes("file", "");
    const std::string names[] = {"",
                                 std::string("a\0b", 3),
                                 "folder",
                                 "folder\\",
                                 "file\\a.ini",
                                 "a*b?.ini",
                                 "..",
                                 "\\\\",
                                 std::string(1000, 'x'),
                                 std::string(40000, 'y')};
    for (const std::string& name : names)
        EXPECT_EQ(0u, IniWarden::WriteConfig("s", "k", "v", name)) << name.substr(0, 20);
    EXPECT_EQ((std::vector<std::string>{"file", "folder"}), NamesIn("."));
    EXPECT_TRUE(NamesIn("folder").empty());
}

TEST_F(IniWardenWrite, NeverWritesToThePackagedStore)
{
    std::filesystem::create_directories("Sys\\Cfg");
    WriteBytes("Sys\\Cfg\\a.ini", "[s]\r\nk=1\r\n");
    EXPECT_EQ(0u, IniWarden::WriteConfig("s", "k", "2", "Sys\\Cfg\\a.ini"));
    EXPECT_EQ(0u, IniWarden::WriteConfig("s", "k", "2", ".\\cfg\\..\\sys\\b.ini"));
    EXPECT_EQ(1u, IniWarden::WriteConfig("s", "k", "3", "Cfg\\a.ini"));
    EXPECT_EQ("[s]\r\nk=1\r\n", ReadBytes("Sys\\Cfg\\a.ini"));
    EXPECT_EQ(std::vector<std::string>{"a.ini"}, NamesIn("Sys\\Cfg"));
    EXPECT_EQ(1, IniWarden::ReadSysConfigIntWithDefault("s", "k", 0, "Cfg\\a.ini"));
}

TEST_F(IniWardenWrite, LeavesAFileAloneThatHoldsTheValue)
{
    WriteBytes("a.ini", "[s]\r\nk=1\r\n");
    SetLastWrite("a.ini", Now() - kHour);
    const uint64_t before = LastWrite("a.ini");
    EXPECT_EQ(1u, Write("K", "1"));
    EXPECT_EQ(before, LastWrite("a.ini"));
    EXPECT_EQ(1u, Write("k", "2"));
    EXPECT_NE(before, LastWrite("a.ini"));
}

TEST_F(IniWardenWrite, GivesEveryFileATimeOfItsOwn)
{
    uint64_t before = 0;
    for (int count = 0; count < 200; ++count)
    {
        ASSERT_EQ(1u, Write("k", std::to_string(count % 2)));
        ASSERT_LT(before, LastWrite("a.ini"));
        before = LastWrite("a.ini");
    }
}

TEST_F(IniWardenWrite, FailsOnAReadOnlyFile)
{
    WriteBytes("a.ini", "[s]\r\nk=1\r\n");
    SetFileAttributesA("a.ini", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(0u, Write("k", "2"));
    EXPECT_EQ(1u, Write("k", "1"));
    EXPECT_EQ("[s]\r\nk=1\r\n", ReadBytes("a.ini"));
    EXPECT_EQ(std::vector<std::string>{"a.ini"}, NamesIn("."));
    SetFileAttributesA("a.ini", FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(1u, Write("k", "2"));
    EXPECT_EQ("[s]\r\nk=2\r\n", ReadBytes("a.ini"));
}

TEST_F(IniWardenWrite, FailsWhereNoFileCanBeMade)
{
    WriteBytes("a.ini", "[s]\r\nk=1\r\n");
    // A folder under the temporary's name: the one way to a folder without room for a new file that
    // works for any account.
    std::filesystem::create_directories("a.ini.warden-tmp");
    EXPECT_EQ(0u, Write("k", "2"));
    EXPECT_EQ("[s]\r\nk=1\r\n", ReadBytes("a.ini"));
    EXPECT_EQ("1", Text("k"));
    std::filesystem::remove("a.ini.warden-tmp");
    EXPECT_EQ(1u, Write("k", "2"));
}

TEST_F(IniWardenWrite, OverwritesWhatAKilledWriterLeft)
{
    WriteBytes("a.ini", "[s]\r\nk=1\r\n");
    WriteBytes("a.ini.warden-tmp", std::string(10000, 'x'));
    EXPECT_EQ(1u, Write("k", "2"));
    EXPECT_EQ("[s]\r\nk=2\r\n", ReadBytes("a.ini"));
    EXPECT_EQ(std::vector<std::string>{"a.ini"}, NamesIn("."));
}

TEST_F(IniWardenWrite, DoesNotTakeHalfOfAWriteThatIsUnderWay)
{
    WriteBytes("a.ini", "[s]\r\nk=1\r\nj=1\r\n");
    ASSERT_EQ("1", Text("k"));
    {
        // As a program that writes in place looks between its first byte and its last.
        const COpenFile writer("a.ini", GENERIC_WRITE,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
        OverwriteBytes("a.ini", "[s]\r\nk=2\r\nj=1\r\n");
        EXPECT_EQ(0u, Write("k", "3"));
    }
    EXPECT_EQ("[s]\r\nk=2\r\nj=1\r\n", ReadBytes("a.ini"));
    EXPECT_EQ(1u, Write("k", "3"));
}

TEST_F(IniWardenWrite, TakesATextUpToItsLimit)
{
    const std::string most(3 * 1024 * 1024, 'x');
    EXPECT_EQ(1u, Write("k", most));
    EXPECT_EQ(0u, Write("j", most));
    EXPECT_TRUE("[s]\r\nk=" + most + "\r\n" == ReadBytes("a.ini"));
    EXPECT_EQ(std::vector<std::string>{"a.ini"}, NamesIn("."));
}

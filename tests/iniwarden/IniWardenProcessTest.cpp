// Several processes on one file, processes that end in the middle, and a full disk.
#include "iniwarden/IniWarden.h"
#include "tests/iniwarden/IniFiles.h"

#include <filesystem>
#include <memory>
#include <random>

namespace
{
constexpr int kKeys = 20;
constexpr int kKills = 200;
const std::string kFile = "a.ini";

std::string KeyName(long write)
{
    return "k" + std::to_string(write % kKeys);
}

/// Long enough to make the file span more than one page.
std::string Value(long generation)
{
    std::string value;
    for (int count = 0; count < 30; ++count)
        value += std::to_string(10000000 + generation);
    return value;
}

/// The file after a number of writes of WriteMany.
std::string ExpectedFile(long writes)
{
    std::string text = "[s]\r\n";
    for (long key = 0; key < kKeys; ++key)
        text += KeyName(key) + "=" + Value((writes - key + kKeys - 1) / kKeys) + "\r\n";
    return text;
}

bool WriteOne(const std::string& road, long write)
{
    const std::string key = KeyName(write);
    const std::string value = Value(write / kKeys + 1);
    if (road == "warden")
        return IniWarden::WriteConfig("s", key, value, kFile) != 0;
    const std::string path = FullPath(kFile);
    return WritePrivateProfileStringA("s", key.c_str(), value.c_str(), path.c_str()) != FALSE;
}

int WriteMany(const std::string& road, long count)
{
    CSharedCounter writes;
    for (long write = 0; write < count; ++write)
    {
        if (!WriteOne(road, write))
            return 1;
        writes.Increase();
    }
    return 0;
}

int WriteNames(const std::string& prefix, int count)
{
    CSharedCounter writes;
    for (int number = 0; number < count; ++number)
    {
        if (!IniWarden::WriteConfig("s", prefix + std::to_string(number), "1", kFile))
            return 1;
        writes.Increase();
    }
    return 0;
}

/// Changes the first key over and over, in place, as the host does with its own files.
int WriteInPlace(int count)
{
    const std::string path = FullPath(kFile);
    for (int number = 0; number < count; ++number)
        WritePrivateProfileStringA("s", KeyName(0).c_str(), Value(number).c_str(), path.c_str());
    return 0;
}

int ReadForever()
{
    CSharedCounter reads;
    for (;;)
    {
        IniWarden::ReadConfigWithDefault("s", "k", "", kFile);
        reads.Increase();
    }
}

int HoldOpen(DWORD share)
{
    CSharedCounter ready;
    const COpenFile held(kFile, GENERIC_READ, share);
    ready.Increase();
    Sleep(INFINITE);
    return 0;
}

void Spin(long microseconds)
{
    LARGE_INTEGER frequency, begin, now;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    do
        QueryPerformanceCounter(&now);
    while ((now.QuadPart - begin.QuadPart) * 1000000 < microseconds * frequency.QuadPart);
}

/// Lets a child write until a random moment and looks whether the file is the one before the write
/// that was cut off, or the one after it.
class CKillRun
{
public:
    explicit CKillRun(std::string road)
        : road(std::move(road))
    {
    }

    bool LeavesAWholeFile()
    {
        WriteBytes(kFile, ExpectedFile(0));
        writes.Reset();
        CChild child("write " + road + " 1000000");
        if (!child.Reaches(writes, 1))
        {
            ADD_FAILURE() << "the child wrote nothing";
            return false;
        }
        Spin(moment(random));
        child.Kill();
        const std::string bytes = ReadBytes(kFile);
        return bytes == ExpectedFile(writes.Get()) || bytes == ExpectedFile(writes.Get() + 1);
    }

    long Writes() const { return writes.Get(); }

private:
    std::string road;
    CSharedCounter writes;
    std::mt19937 random{20};
    std::uniform_int_distribution<long> moment{0, 4000};
};
} // namespace

int RunAsChild(const std::vector<std::string>& arguments)
{
    const std::string role = arguments.empty() ? "" : arguments[0];
    if (role == "write")
        return WriteMany(arguments.at(1), std::stol(arguments.at(2)));
    if (role == "names")
        return WriteNames(arguments.at(1), std::stoi(arguments.at(2)));
    if (role == "in-place")
        return WriteInPlace(std::stoi(arguments.at(1)));
    if (role == "read")
        return ReadForever();
    if (role == "hold")
        return HoldOpen(std::stoul(arguments.at(1)));
    return -1;
}

class IniWardenKill : public CIniFolderTest
{
};

TEST_F(IniWardenKill, WritesAsExpectedWhenLeftAlone)
{
    for (const char* road : {"warden", "profile"})
    {
        WriteBytes(kFile, ExpectedFile(0));
        CChild child(std::string("write ") + road + " 50");
        EXPECT_EQ(0, child.Wait(30000));
        EXPECT_EQ(ExpectedFile(50), ReadBytes(kFile)) << road;
    }
}

TEST_F(IniWardenKill, LeavesTheFileBeforeTheCallOrTheOneAfter)
{
    CKillRun run("warden");
    for (int kill = 0; kill < kKills; ++kill)
    {
        ASSERT_TRUE(run.LeavesAWholeFile()) << "kill " << kill << " after " << run.Writes();
        ASSERT_EQ(1u, IniWarden::WriteConfig("s", "after", std::to_string(kill), kFile));
        ASSERT_EQ(std::vector<std::string>{kFile}, NamesIn("."));
    }
}

TEST_F(IniWardenKill, FindsTheDamageThatTheProfileFunctionsDo)
{
    CKillRun run("profile");
    int kill = 0;
    while (kill < kKills && run.LeavesAWholeFile())
        ++kill;
    EXPECT_LT(kill, kKills);
}

class IniWardenShared : public CIniFolderTest
{
protected:
    CSharedCounter counter;
};

TEST_F(IniWardenShared, LosesNoUpdateOfTwoProcesses)
{
    constexpr int kNames = 150;
    CChild first("names a " + std::to_string(kNames));
    CChild second("names b " + std::to_string(kNames));
    EXPECT_EQ(0, first.Wait(60000));
    EXPECT_EQ(0, second.Wait(60000));
    for (int number = 0; number < kNames; ++number)
        for (const char* prefix : {"a", "b"})
            EXPECT_EQ(1, IniWarden::ReadConfigIntWithDefault("s", prefix + std::to_string(number),
                                                             0, kFile));
}

TEST_F(IniWardenShared, NeverTakesAFileForEmptyThatIsWrittenInPlace)
{
    WriteBytes(kFile, ExpectedFile(0));
    CChild writer("in-place 2000");
    for (int count = 0; writer.Wait(0) == -1; ++count)
        IniWarden::WriteConfig("s", "mine", std::to_string(count), kFile);
    for (int key = 1; key < kKeys; ++key)
        EXPECT_EQ(Value(0), IniWarden::ReadConfigWithDefault("s", KeyName(key), "", kFile));
}

TEST_F(IniWardenShared, IsNotDisturbedByReaders)
{
    // A time of writing in the future is never trusted, so that every read opens the file.
    WriteBytes(kFile, "[s]\r\nk=0\r\n;" + std::string(300 * 1024, 'x') + "\r\n");
    SetLastWrite(kFile, Now() + kHour);
    CChild first("read");
    CChild second("read");
    ASSERT_TRUE(first.Reaches(counter, 1));
    for (int count = 1; count <= 50; ++count)
        ASSERT_EQ(1u, IniWarden::WriteConfig("s", "k", std::to_string(count), kFile));
}

TEST_F(IniWardenShared, GoesOnAfterAWriterWasKilled)
{
    for (int round = 0; round < 10; ++round)
    {
        counter.Reset();
        auto killed = std::make_unique<CChild>("names a 1000000");
        ASSERT_TRUE(killed->Reaches(counter, 1));
        CChild other("names b 1000000");
        ASSERT_TRUE(other.Reaches(counter, counter.Get() + 20));
        killed.reset();
        ASSERT_TRUE(other.Reaches(counter, counter.Get() + 20));
    }
}

TEST_F(IniWardenShared, DoesNotWaitForeverForAWriterThatStopped)
{
    CChild writer("names a 1000000");
    ASSERT_TRUE(writer.Reaches(counter, 1));
    bool gaveUp = false;
    for (int count = 0; count < 50 && !gaveUp; ++count)
    {
        Spin(count * 100);
        writer.Suspend();
        const DWORD begin = GetTickCount();
        gaveUp = !IniWarden::WriteConfig("s", "mine", std::to_string(count), kFile);
        EXPECT_LT(GetTickCount() - begin, 4000u);
        writer.Resume();
        ASSERT_TRUE(writer.Reaches(counter, counter.Get() + 1));
    }
    EXPECT_TRUE(gaveUp);
    EXPECT_EQ(1u, IniWarden::WriteConfig("s", "mine", "last", kFile));
}

TEST_F(IniWardenShared, FailsWhileTheFileIsHeldOpen)
{
    WriteBytes(kFile, "[s]\r\nk=1\r\n");
    SetLastWrite(kFile, Now() - kHour);
    {
        CChild holder("hold " + std::to_string(FILE_SHARE_READ | FILE_SHARE_WRITE));
        ASSERT_TRUE(holder.Reaches(counter, 1));
        const DWORD begin = GetTickCount();
        EXPECT_EQ(0u, IniWarden::WriteConfig("s", "k", "2", kFile));
        EXPECT_LT(GetTickCount() - begin, 1000u);
        EXPECT_TRUE("[s]\r\nk=1\r\n" == ReadBytes(kFile));
        EXPECT_EQ("1", IniWarden::ReadConfigWithDefault("s", "k", "", kFile));
        EXPECT_EQ(std::vector<std::string>{kFile}, NamesIn("."));
    }
    EXPECT_EQ(1u, IniWarden::WriteConfig("s", "k", "2", kFile));
    EXPECT_EQ("[s]\r\nk=2\r\n", ReadBytes(kFile));
}

class IniWardenFullDisk : public CIniFolderTest
{
};

/// Runs where full_disk.sh limits the size of files: the system then takes a part of the bytes, and
/// none after them, as on a full disk.
TEST_F(IniWardenFullDisk, KeepsTheOldFile)
{
    if (!GetEnvironmentVariableA("INIWARDEN_FULL_DISK", nullptr, 0))
        GTEST_SKIP() << "needs the limit that full_disk.sh sets";
    const std::string tooMuch(200 * 1024, 'x');
    WriteBytes("probe", tooMuch);
    ASSERT_LT(ReadBytes("probe").size(), tooMuch.size());

    ASSERT_EQ(1u, IniWarden::WriteConfig("s", "k", "1", kFile));
    EXPECT_EQ(0u, IniWarden::WriteConfig("s", "k", tooMuch, kFile));
    EXPECT_TRUE("[s]\r\nk=1\r\n" == ReadBytes(kFile));
    EXPECT_TRUE("1" == IniWarden::ReadConfigWithDefault("s", "k", "", kFile));
    EXPECT_EQ((std::vector<std::string>{kFile, "probe"}), NamesIn("."));
    EXPECT_EQ(1u, IniWarden::WriteConfig("s", "k", "2", kFile));
    EXPECT_EQ(0u, IniWarden::WriteConfig("s", "k", tooMuch, "new.ini"));
    EXPECT_FALSE(std::filesystem::exists("new.ini"));
}

int main(int argc, char** argv)
{
    if (argc > 1 && argv[1] == std::string("--child"))
        return RunAsChild(std::vector<std::string>(argv + 2, argv + argc));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

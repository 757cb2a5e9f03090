// A process that is ended in the middle of saving must not leave half a file.
#include "hotkeys/HotKey.h"
#include "hotkeys/HotKeyFile.h"
#include "tests/core/TempWorkingFolder.h"

namespace
{
const char kFile[] = "cfg\\trade\\HotKey2.dat";
const char kSaveWithoutEnd[] = "save-without-end";
const size_t kLongRows = 4000;
const size_t kShortRows = 1500;

class HotKeyFileKillTest : public TempWorkingFolder
{
};

HotKeyList RowsOf(size_t count)
{
    return HotKeyList(count, MakeDefaultHotKey());
}

// This program again, in the same folder, saving without end.
PROCESS_INFORMATION StartSaving()
{
    char program[MAX_PATH];
    GetModuleFileNameA(nullptr, program, sizeof(program));
    std::string command = std::string("\"") + program + "\" " + kSaveWithoutEnd;
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                   nullptr, &startup, &process);
    return process;
}

[[noreturn]] void SaveWithoutEnd()
{
    CHotKey keys(2);
    for (bool isLong = false;; isLong = !isLong)
    {
        keys.list = RowsOf(isLong ? kLongRows : kShortRows);
        keys.Save();
    }
}

bool WaitForFile(HANDLE process)
{
    while (!std::ifstream(kFile))
    {
        if (WaitForSingleObject(process, 5) != WAIT_TIMEOUT)
            return false;
    }
    return true;
}
} // namespace

TEST_F(HotKeyFileKillTest, FileIsWholeAfterAKillAtAnyMoment)
{
    CreateDirectoryA("cfg", nullptr);
    CreateDirectoryA("cfg\\trade", nullptr);
    const std::string longFile = EncodeHotKeys(RowsOf(kLongRows), kOrderKeysVersion);
    const std::string shortFile = EncodeHotKeys(RowsOf(kShortRows), kOrderKeysVersion);
    for (int kill = 0; kill < 20; ++kill)
    {
        const PROCESS_INFORMATION process = StartSaving();
        const bool saves = WaitForFile(process.hProcess);
        Sleep(kill * 3);
        TerminateProcess(process.hProcess, 1);
        WaitForSingleObject(process.hProcess, INFINITE);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
        ASSERT_TRUE(saves);
        const std::string left = ReadBytes(kFile);
        EXPECT_TRUE(left == longFile || left == shortFile) << left.size() << " bytes";
        DeleteFileA(kFile);
    }
}

int main(int argc, char** argv)
{
    if (argc == 2 && std::string(argv[1]) == kSaveWithoutEnd)
        SaveWithoutEnd();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

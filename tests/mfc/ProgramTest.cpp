// The life of a program whose entry point is the framework's.

#include <afx.h>

#include <gtest/gtest.h>

namespace
{
/// Exit code of the test program; -2 when it can't be run or doesn't end.
int ExitCodeOf(const char* argument)
{
    CString commandLine("mfc_test_exe.exe ");
    commandLine += argument;
    char directory[MAX_PATH] = "";
    ::GetModuleFileName(nullptr, directory, MAX_PATH);
    CString folder(directory);
    folder = folder.Left(folder.ReverseFind('\\') + 1);

    STARTUPINFO startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!::CreateProcess(folder + "mfc_test_exe.exe", commandLine.GetBuffer(), nullptr, nullptr,
                         FALSE, 0, nullptr, nullptr, &startup, &process))
    {
        return -2;
    }
    DWORD code = static_cast<DWORD>(-2);
    if (::WaitForSingleObject(process.hProcess, 20000) == WAIT_OBJECT_0)
    {
        ::GetExitCodeProcess(process.hProcess, &code);
    }
    else
    {
        ::TerminateProcess(process.hProcess, 1);
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return static_cast<int>(code);
}
} // namespace

TEST(Program, RunsUntilItsMainWindowIsGone)
{
    EXPECT_EQ(42, ExitCodeOf(""));
}

TEST(Program, RefusalEndsItAtOnceAndTakesTheMainWindowWithIt)
{
    EXPECT_EQ(7, ExitCodeOf("refuse"));
}

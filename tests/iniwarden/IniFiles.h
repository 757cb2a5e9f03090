// What the tests of the configuration library share: a working folder of their own, raw file access,
// and child processes that play a role.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include <windows.h>

void WriteBytes(const std::string& path, const std::string& bytes);
std::string ReadBytes(const std::string& path);
std::string FullPath(const std::string& path);
std::vector<std::string> NamesIn(const std::string& folder);

/// The system's time, and a file's time of writing, in 100 ns since 1601.
uint64_t Now();
void SetLastWrite(const std::string& path, uint64_t time);
constexpr uint64_t kHour = 36000000000;

/// Overwrites the bytes of a file that is as long already, as an editor or a profile function does.
void OverwriteBytes(const std::string& path, const std::string& bytes);

/// Opens an existing file and keeps it open for the object's life.
class COpenFile
{
public:
    COpenFile(const std::string& path, DWORD access, DWORD share);
    ~COpenFile();
    COpenFile(const COpenFile&) = delete;
    COpenFile& operator=(const COpenFile&) = delete;

private:
    HANDLE handle;
};

/// A test that starts in an empty folder as its working directory.
class CIniFolderTest : public testing::Test
{
protected:
    CIniFolderTest();
    ~CIniFolderTest() override;

private:
    std::string before;
    std::string folder;
};

/// A number that the children of one test program count up and their parent reads.
class CSharedCounter
{
public:
    CSharedCounter();
    ~CSharedCounter();
    CSharedCounter(const CSharedCounter&) = delete;
    CSharedCounter& operator=(const CSharedCounter&) = delete;

    long Get() const { return *value; }
    void Increase() { InterlockedIncrement(value); }
    void Reset() { InterlockedExchange(value, 0); }

private:
    HANDLE mapping;
    volatile LONG* value;
};

/// This program once more, in a role of RunAsChild, in the same working directory. Ended with the
/// object when it still runs, or with this program.
class CChild
{
public:
    explicit CChild(const std::string& arguments);
    ~CChild();
    CChild(const CChild&) = delete;
    CChild& operator=(const CChild&) = delete;

    void Kill();
    void Suspend() { SuspendThread(process.hThread); }
    void Resume() { ResumeThread(process.hThread); }
    /// @return the exit code, or -1 when the child still runs after the time
    int Wait(DWORD milliseconds) const;
    /// Waits until a child brought the counter that far.
    /// @return false when this one ended before, or after half a minute
    bool Reaches(const CSharedCounter& counter, long least) const;

private:
    PROCESS_INFORMATION process;
};

/// The roles of a child process, by the arguments of CChild.
/// @return the exit code, or -1 when the arguments name no role
int RunAsChild(const std::vector<std::string>& arguments);

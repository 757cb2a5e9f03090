#include "tests/iniwarden/IniFiles.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{
std::string CurrentFolder()
{
    char path[MAX_PATH];
    GetCurrentDirectoryA(MAX_PATH, path);
    return path;
}

std::string NewFolder()
{
    static int count = 0;
    char temporary[MAX_PATH];
    GetTempPathA(MAX_PATH, temporary);
    return std::string(temporary) + "iniwarden_tests." + std::to_string(GetCurrentProcessId()) +
           "." + std::to_string(++count);
}

/// The same for a test program and its children, which inherit the variable.
std::string CounterName()
{
    const char variable[] = "INIWARDEN_TESTER";
    char name[64];
    if (!GetEnvironmentVariableA(variable, name, sizeof(name)))
    {
        snprintf(name, sizeof(name), "IniWardenTests.%lu", GetCurrentProcessId());
        SetEnvironmentVariableA(variable, name);
    }
    return name;
}

/// What a test program that was ended leaves behind must not write on.
HANDLE JobOfChildren()
{
    static HANDLE job = nullptr;
    if (!job)
    {
        job = CreateJobObjectA(nullptr, nullptr);
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof(limits));
    }
    return job;
}
} // namespace

void WriteBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string ReadBytes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

std::string FullPath(const std::string& path)
{
    char full[MAX_PATH];
    GetFullPathNameA(path.c_str(), MAX_PATH, full, nullptr);
    return full;
}

std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

uint64_t Now()
{
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    return static_cast<uint64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

void SetLastWrite(const std::string& path, uint64_t time)
{
    const FILETIME fileTime = {static_cast<DWORD>(time), static_cast<DWORD>(time >> 32)};
    const HANDLE file = CreateFileA(path.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    ASSERT_TRUE(SetFileTime(file, nullptr, nullptr, &fileTime));
    CloseHandle(file);
}

void OverwriteBytes(const std::string& path, const std::string& bytes)
{
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    DWORD written = 0;
    ASSERT_TRUE(WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
    CloseHandle(file);
    ASSERT_EQ(bytes.size(), written);
}

COpenFile::COpenFile(const std::string& path, DWORD access, DWORD share)
    : handle(CreateFileA(path.c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr))
{
    EXPECT_NE(INVALID_HANDLE_VALUE, handle);
}

COpenFile::~COpenFile()
{
    CloseHandle(handle);
}

CIniFolderTest::CIniFolderTest()
    : before(CurrentFolder())
    , folder(NewFolder())
{
    std::filesystem::create_directories(folder);
    SetCurrentDirectoryA(folder.c_str());
}

CIniFolderTest::~CIniFolderTest()
{
    SetCurrentDirectoryA(before.c_str());
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

CSharedCounter::CSharedCounter()
    : mapping(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(LONG),
                                 CounterName().c_str()))
    , value(static_cast<LONG*>(MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, sizeof(LONG))))
{
}

CSharedCounter::~CSharedCounter()
{
    UnmapViewOfFile(const_cast<LONG*>(value));
    CloseHandle(mapping);
}

CChild::CChild(const std::string& arguments)
{
    char program[MAX_PATH];
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string command = "\"" + std::string(program) + "\" --child " + arguments;
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    EXPECT_TRUE(CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &startup, &process));
    EXPECT_TRUE(AssignProcessToJobObject(JobOfChildren(), process.hProcess));
}

CChild::~CChild()
{
    Kill();
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

void CChild::Kill()
{
    TerminateProcess(process.hProcess, 1);
    WaitForSingleObject(process.hProcess, INFINITE);
}

int CChild::Wait(DWORD milliseconds) const
{
    DWORD code = 0;
    if (WaitForSingleObject(process.hProcess, milliseconds) != WAIT_OBJECT_0)
        return -1;
    GetExitCodeProcess(process.hProcess, &code);
    return static_cast<int>(code);
}

bool CChild::Reaches(const CSharedCounter& counter, long least) const
{
    const DWORD begin = GetTickCount();
    while (counter.Get() < least)
    {
        if (Wait(1) != -1 || GetTickCount() - begin > 30000)
            return counter.Get() >= least;
    }
    return true;
}

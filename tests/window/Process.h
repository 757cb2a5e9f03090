// Other processes.
#pragma once

#include <windows.h>

#include <string>

/// The id of the process that was started with this command line; 0 when there is none.
DWORD FindProcess(const std::string& commandLine);

/// A program that runs beside the test, and no longer than this object.
class ChildProcess
{
public:
    /// @param folder the working directory; the test's own when it is empty
    /// @param output where the program prints to; nowhere when it is null
    ChildProcess(const std::string& program, const std::string& argument,
                 const std::string& folder = "", HANDLE output = nullptr);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    DWORD Id() const { return m_process.dwProcessId; }
    /// The exit code; -1 when the process does not end within that many milliseconds.
    int WaitForEnd(DWORD patience = 20000) const;

private:
    PROCESS_INFORMATION m_process = {};
};

/// Runs a program with one argument in a folder and waits for it.
/// @return what it printed, without line ends
std::string OutputOfChild(const std::string& program, const std::string& argument,
                          const std::string& folder);

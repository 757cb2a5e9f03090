// Other processes.
#pragma once

#include <windows.h>

#include <string>

/// The id of the process that was started with this command line; 0 when there is none.
DWORD FindProcess(const std::string& commandLine);

class ChildProcess
{
public:
    explicit ChildProcess(std::string commandLine);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    DWORD Id() const { return m_process.dwProcessId; }
    /// The exit code; -1 when the process does not end within twenty seconds.
    int WaitForEnd() const;

private:
    PROCESS_INFORMATION m_process = {};
};

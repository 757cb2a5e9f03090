#include "tests/window/Process.h"

#include <tlhelp32.h>
#include <winternl.h>

namespace
{

using QueryProcess = NTSTATUS(NTAPI*)(HANDLE, PROCESSINFOCLASS, void*, ULONG, ULONG*);

template <typename T>
bool ReadFrom(HANDLE process, const void* address, T& value)
{
    return ReadProcessMemory(process, address, &value, sizeof(value), nullptr);
}

/// The command line of a process, as it lies in the process itself.
std::wstring CommandLineOf(HANDLE process)
{
    static const auto query = reinterpret_cast<QueryProcess>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleA("ntdll.dll"), "NtQueryInformationProcess")));
    PROCESS_BASIC_INFORMATION basic = {};
    PEB block = {};
    RTL_USER_PROCESS_PARAMETERS parameters = {};
    if (query(process, ProcessBasicInformation, &basic, sizeof(basic), nullptr) != 0 ||
        !ReadFrom(process, basic.PebBaseAddress, block) ||
        !ReadFrom(process, block.ProcessParameters, parameters))
        return L"";
    std::wstring text(parameters.CommandLine.Length / sizeof(wchar_t), L'\0');
    if (!ReadProcessMemory(process, parameters.CommandLine.Buffer, text.data(),
                           text.size() * sizeof(wchar_t), nullptr))
        return L"";
    return text;
}

std::wstring Widen(const std::string& text)
{
    std::wstring wide(text.size(), L'\0');
    wide.resize(MultiByteToWideChar(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()),
                                    wide.data(), static_cast<int>(wide.size())));
    return wide;
}

bool WasStartedWith(DWORD id, const std::wstring& commandLine)
{
    const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
    if (!process)
        return false;
    const bool matches = CommandLineOf(process) == commandLine;
    CloseHandle(process);
    return matches;
}

} // namespace

DWORD FindProcess(const std::string& commandLine)
{
    const HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    const std::wstring wanted = Widen(commandLine);
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    DWORD found = 0;
    for (BOOL more = Process32First(all, &entry); more && !found; more = Process32Next(all, &entry))
        if (WasStartedWith(entry.th32ProcessID, wanted))
            found = entry.th32ProcessID;
    CloseHandle(all);
    return found;
}

ChildProcess::ChildProcess(const std::string& program, const std::string& argument,
                           const std::string& folder, HANDLE output)
{
    STARTUPINFOA start = {};
    start.cb = sizeof(start);
    if (output)
        start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = output;
    start.hStdError = output;
    std::string line = "\"" + program + "\" " + argument;
    CreateProcessA(nullptr, line.data(), nullptr, nullptr, output != nullptr, 0, nullptr,
                   folder.empty() ? nullptr : folder.c_str(), &start, &m_process);
}

ChildProcess::~ChildProcess()
{
    // One that a failed test left behind would hold the next tests up.
    TerminateProcess(m_process.hProcess, 1);
    CloseHandle(m_process.hThread);
    CloseHandle(m_process.hProcess);
}

int ChildProcess::WaitForEnd(DWORD patience) const
{
    DWORD code = 0;
    if (WaitForSingleObject(m_process.hProcess, patience) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(m_process.hProcess, &code))
        return -1;
    return static_cast<int>(code);
}

std::string OutputOfChild(const std::string& program, const std::string& argument,
                          const std::string& folder)
{
    SECURITY_ATTRIBUTES inherit = {sizeof(inherit), nullptr, TRUE};
    HANDLE readEnd, writeEnd;
    CreatePipe(&readEnd, &writeEnd, &inherit, 0);
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    const ChildProcess child(program, argument, folder, writeEnd);
    CloseHandle(writeEnd);

    std::string output;
    char buffer[512];
    DWORD length;
    while (ReadFile(readEnd, buffer, sizeof(buffer), &length, nullptr) && length != 0)
        output.append(buffer, length);
    CloseHandle(readEnd);
    child.WaitForEnd();
    return output.substr(0, output.find_last_not_of("\r\n") + 1);
}

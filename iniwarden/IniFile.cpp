#include "iniwarden/IniFile.h"

#include <cstring>
#include <vector>

#include <windows.h>

namespace
{
// One name a target: what a killed process left behind is overwritten by the next write.
constexpr wchar_t kTemporarySuffix[] = L".warden-tmp";

class Handle
{
public:
    Handle() = default;
    ~Handle() { Close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    bool Open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition,
              DWORD flags = 0)
    {
        Close();
        handle = CreateFileW(path.c_str(), access, share, nullptr, disposition, flags, nullptr);
        return handle != INVALID_HANDLE_VALUE;
    }

    void Close()
    {
        if (handle != INVALID_HANDLE_VALUE)
            CloseHandle(handle);
        handle = INVALID_HANDLE_VALUE;
    }

    HANDLE Get() const { return handle; }

private:
    HANDLE handle = INVALID_HANDLE_VALUE;
};

uint64_t Join(DWORD high, DWORD low)
{
    return static_cast<uint64_t>(high) << 32 | low;
}

uint64_t FromFileTime(const FILETIME& time)
{
    return Join(time.dwHighDateTime, time.dwLowDateTime);
}

FILETIME ToFileTime(uint64_t time)
{
    return {static_cast<DWORD>(time), static_cast<DWORD>(time >> 32)};
}

/// Virus scanners, backups and readers hold a file for a moment: tries again while they may.
template <class Attempt>
bool Patiently(Attempt attempt)
{
    constexpr int kAttempts = 5;
    for (int count = 1;; ++count)
    {
        if (attempt())
            return true;
        const DWORD error = GetLastError();
        const bool mayPass = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
        if (!mayPass || count == kAttempts)
            return false;
        Sleep(1);
    }
}

void CreateFoldersAbove(const std::wstring& path)
{
    for (size_t end = path.find(L'\\'); end != std::wstring::npos; end = path.find(L'\\', end + 1))
        CreateDirectoryW(path.substr(0, end).c_str(), nullptr);
}

/// The bytes are written through to the disk, and so is the rename that puts them in their place: it
/// can't overtake them. A flush would say the same and take longer than all the rest of a write.
/// (Wine passes the flag over; the usual file systems below it keep that order by themselves where
/// a file is renamed over another.) Nobody else may write to the file meanwhile.
bool CreateTemporary(Handle& file, const std::wstring& path)
{
    const auto create = [&]
    {
        return file.Open(path, GENERIC_READ | GENERIC_WRITE | DELETE,
                         FILE_SHARE_READ | FILE_SHARE_DELETE, CREATE_ALWAYS,
                         FILE_FLAG_WRITE_THROUGH);
    };
    if (Patiently(create))
        return true;
    if (GetLastError() != ERROR_PATH_NOT_FOUND)
        return false;
    CreateFoldersAbove(path);
    return create();
}

bool WriteAll(HANDLE file, const std::string& bytes)
{
    // A full disk may take a part of the bytes and call it success.
    DWORD written = 0;
    const DWORD size = static_cast<DWORD>(bytes.size());
    return WriteFile(file, bytes.data(), size, &written, nullptr) && written == size;
}

bool SetStamp(HANDLE file, FileStamp& stamp)
{
    FILETIME time = ToFileTime(stamp.written);
    if (!SetFileTime(file, nullptr, nullptr, &time) || !GetFileTime(file, nullptr, nullptr, &time))
        return false;
    stamp.written = FromFileTime(time);
    return true;
}

bool Fill(HANDLE file, const std::string& bytes, FileStamp& stamp)
{
    stamp.size = bytes.size();
    return WriteAll(file, bytes) && SetStamp(file, stamp);
}

/// Renames by the handle, which is what MoveFileEx does once it has opened the file again.
bool RenameOver(HANDLE file, const std::wstring& path)
{
    const size_t nameSize = path.size() * sizeof(wchar_t);
    std::vector<char> buffer(sizeof(FILE_RENAME_INFO) + nameSize);
    FILE_RENAME_INFO* rename = reinterpret_cast<FILE_RENAME_INFO*>(buffer.data());
    rename->ReplaceIfExists = TRUE;
    rename->FileNameLength = static_cast<DWORD>(nameSize);
    memcpy(rename->FileName, path.c_str(), nameSize);
    return Patiently(
        [&]
        {
            return SetFileInformationByHandle(file, FileRenameInfo, rename,
                                              static_cast<DWORD>(buffer.size())) != FALSE;
        });
}

// Not by GetFileInformationByHandle, which asks for the volume as well: that takes Wine 250 us.
bool StampOf(HANDLE file, FileStamp& stamp)
{
    FILETIME written;
    LARGE_INTEGER size;
    if (!GetFileTime(file, nullptr, nullptr, &written) || !GetFileSizeEx(file, &size))
        return false;
    stamp = {FromFileTime(written), static_cast<uint64_t>(size.QuadPart)};
    return true;
}

uint64_t Hash(const std::wstring& text)
{
    uint64_t hash = 14695981039346656037u;
    for (const wchar_t c : text)
        hash = (hash ^ c) * 1099511628211u;
    return hash;
}

/// Open to every account: two users of one machine may share a file.
HANDLE CreateSharedMutex(const std::wstring& name)
{
    SECURITY_DESCRIPTOR everyone;
    InitializeSecurityDescriptor(&everyone, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&everyone, TRUE, nullptr, FALSE);
    SECURITY_ATTRIBUTES attributes = {sizeof(attributes), &everyone, FALSE};
    return CreateMutexW(&attributes, FALSE, name.c_str());
}
} // namespace

uint64_t FileClock()
{
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    return FromFileTime(now);
}

FileLook LookAtFile(const std::wstring& path)
{
    FileLook look;
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data))
    {
        const DWORD error = GetLastError();
        const bool absent = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
        look.presence = absent ? FilePresence::Absent : FilePresence::Unreachable;
        return look;
    }
    const bool isFolder = data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    look.presence = isFolder ? FilePresence::Unreachable : FilePresence::Present;
    look.readOnly = data.dwFileAttributes & FILE_ATTRIBUTE_READONLY;
    look.stamp.written = FromFileTime(data.ftLastWriteTime);
    look.stamp.size = Join(data.nFileSizeHigh, data.nFileSizeLow);
    return look;
}

bool ReadWholeFile(const std::wstring& path, Writers writers, std::string& bytes, FileStamp& stamp)
{
    const DWORD share =
        FILE_SHARE_READ | FILE_SHARE_DELETE | (writers == Writers::Allowed ? FILE_SHARE_WRITE : 0);
    Handle file;
    if (!Patiently([&] { return file.Open(path, GENERIC_READ, share, OPEN_EXISTING); }))
        return false;
    if (!StampOf(file.Get(), stamp) || stamp.size > kMaxFileSize)
        return false;
    bytes.resize(static_cast<size_t>(stamp.size));
    DWORD length = 0;
    if (!ReadFile(file.Get(), &bytes[0], static_cast<DWORD>(bytes.size()), &length, nullptr))
        return false;
    bytes.resize(length);
    return true;
}

bool ReplaceWholeFile(const std::wstring& path, const std::string& bytes, FileStamp& stamp)
{
    if (bytes.size() > kMaxFileSize)
        return false;
    const std::wstring temporary = path + kTemporarySuffix;
    Handle file;
    if (!CreateTemporary(file, temporary))
        return false;
    if (Fill(file.Get(), bytes, stamp) && RenameOver(file.Get(), path))
        return true;
    file.Close();
    DeleteFileW(temporary.c_str());
    return false;
}

FileMutex::FileMutex(const std::wstring& path)
    : handle(CreateSharedMutex(L"Global\\IniWarden." + std::to_wstring(Hash(FoldPath(path)))))
{
}

FileMutex::~FileMutex()
{
    if (handle)
        CloseHandle(handle);
}

FileLock::FileLock(const FileMutex& mutex, unsigned long milliseconds)
    : mutex(mutex)
{
    const DWORD outcome = WaitForSingleObject(mutex.handle, milliseconds);
    // An owner that died left a whole file behind, old or new: nothing needs mending.
    held = outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED;
}

FileLock::~FileLock()
{
    if (held)
        ReleaseMutex(mutex.handle);
}

std::wstring FoldPath(const std::wstring& path)
{
    std::wstring folded(path);
    const int length = static_cast<int>(path.size());
    LCMapStringW(LOCALE_INVARIANT, LCMAP_LOWERCASE, path.c_str(), length, &folded[0], length);
    return folded;
}

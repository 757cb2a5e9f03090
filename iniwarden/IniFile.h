// Whole files: looking at one, reading it, replacing it, keeping others from it meanwhile.
#pragma once

#include <cstdint>
#include <string>

/// What tells one state of a file from another without reading it.
struct FileStamp
{
    uint64_t written = 0; ///< time of the last write, in 100 ns since 1601
    uint64_t size = 0;    ///< bytes

    bool operator==(const FileStamp& other) const
    {
        return written == other.written && size == other.size;
    }
};

enum class FilePresence
{
    Absent,
    Present,
    Unreachable ///< a folder, a name the system refuses, a folder without access
};

struct FileLook
{
    FilePresence presence = FilePresence::Absent;
    bool readOnly = false;
    FileStamp stamp;
};

/// Files beyond this size are no settings: they are neither read nor written.
constexpr uint64_t kMaxFileSize = 4 * 1024 * 1024;

/// The time on the scale of FileStamp::written.
uint64_t FileClock();

/// Looks at the folder's entry without opening the file.
FileLook LookAtFile(const std::wstring& path);

enum class Writers
{
    Allowed, ///< nobody is disturbed; the bytes may be those of a write that is under way
    Excluded ///< fails while another program has the file open for writing
};

/// Reads a whole file. Waits a few milliseconds for one that another program holds.
/// @param stamp receives the state from which the reading began
bool ReadWholeFile(const std::wstring& path, Writers writers, std::string& bytes, FileStamp& stamp);

/// Puts a file in place of another, whole or not at all, and makes missing folders. Needs the path's
/// lock.
/// @param stamp gives the time of writing that the new file shall bear, and receives what the file
///              system made of it
/// @return false when the file could not be written; the old one is untouched then
bool ReplaceWholeFile(const std::wstring& path, const std::string& bytes, FileStamp& stamp);

/// What the processes that use this library lock a file by.
class FileMutex
{
public:
    /// @param path full path; its case does not matter
    explicit FileMutex(const std::wstring& path);
    ~FileMutex();
    FileMutex(const FileMutex&) = delete;
    FileMutex& operator=(const FileMutex&) = delete;

private:
    friend class FileLock;
    void* handle;
};

/// Keeps the other processes from a file for the object's life.
class FileLock
{
public:
    /// @param milliseconds how long to wait for another process
    FileLock(const FileMutex& mutex, unsigned long milliseconds);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    bool IsHeld() const { return held; }

private:
    const FileMutex& mutex;
    bool held;
};

/// A path in lower case: one text for all spellings of it.
std::wstring FoldPath(const std::wstring& path);

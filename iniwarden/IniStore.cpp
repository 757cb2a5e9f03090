#include "iniwarden/IniStore.h"

#include <algorithm>

namespace
{
constexpr size_t kMaxFiles = 32;
constexpr unsigned long kWriteWait = 2000; // ms
constexpr unsigned long kReadWait = 100;   // ms

// Stamps are counted in 100 ns. Two writes within one tick of the file system's clock get the same
// one: a tick is up to 16 ms where stamps are fine, and 2 s on FAT, whose stamps show it by being
// round.
constexpr uint64_t kMillisecond = 10000;
constexpr uint64_t kFineWindow = 50 * kMillisecond;
constexpr uint64_t kCoarseWindow = 3000 * kMillisecond;
constexpr uint64_t kRoundStamp = 10 * kMillisecond;
constexpr uint64_t kOwnAge = 2 * kFineWindow;
constexpr uint64_t kStampStep = kMillisecond / 1000;

/// Whether every write after `moment` is sure to give the file another stamp than `written`.
bool IsSettled(uint64_t written, uint64_t moment)
{
    const uint64_t window = written % kRoundStamp == 0 ? kCoarseWindow : kFineWindow;
    return written + window <= moment;
}

/// A stamp for a file written now: settled already, and newer than the one of the file it replaces.
uint64_t SettledStamp(uint64_t now, uint64_t previous)
{
    // An odd number is never a round one.
    return std::max((now - kOwnAge) | 1, previous + kStampStep);
}
} // namespace

std::optional<std::string> IniStore::Read(const std::wstring& path, const std::string& section,
                                          const std::string& key)
{
    const std::lock_guard<std::mutex> lock(guard);
    CachedFile& file = Entry(path);
    // A file that can't be read now gives what it held when it last could.
    Refresh(file, Writers::Allowed);
    return file.content.Find(section, key);
}

bool IniStore::Write(const std::wstring& path, const std::string& section, const std::string& key,
                     const std::string& value)
{
    const std::lock_guard<std::mutex> lock(guard);
    CachedFile& file = Entry(path);
    const auto isStored = [&]
    {
        return file.content.Find(section, key) == value;
    };
    if (Refresh(file, Writers::Allowed) && isStored())
        return true;
    if (!IniText::CanHold(section, key, value))
        return false;

    // Looked at again under the lock: another process may have written in between. A program that
    // writes in place is not waited for: half of its text must not become the whole.
    const FileLock fileLock(file.mutex, kWriteWait);
    if (!fileLock.IsHeld() || !Refresh(file, Writers::Excluded))
        return false;
    return isStored() || Replace(file, file.content.With(section, key, value));
}

IniStore::CachedFile& IniStore::Entry(const std::wstring& path)
{
    if (latest && latest->path == path)
        return *latest;
    CachedFile& file = files.try_emplace(FoldPath(path), path).first->second;
    file.lastUse = ++uses;
    if (files.size() > kMaxFiles)
        DropOldest();
    latest = &file;
    return file;
}

void IniStore::DropOldest()
{
    files.erase(std::min_element(files.begin(), files.end(),
                                 [](const auto& a, const auto& b)
                                 { return a.second.lastUse < b.second.lastUse; }));
}

/// Brings the entry up to the file on disk. An absent file is an empty one.
bool IniStore::Refresh(CachedFile& file, Writers writers)
{
    const FileLook look = LookAtFile(file.path);
    file.readOnly = look.readOnly;
    if (look.presence == FilePresence::Unreachable)
        return false;
    if (look.presence == FilePresence::Absent)
    {
        file.content = IniText();
        file.stamp = FileStamp();
        file.settled = false;
        return true;
    }
    return (file.settled && file.stamp == look.stamp) || Load(file, writers);
}

bool IniStore::Load(CachedFile& file, Writers writers)
{
    // An open file can't be replaced: the lock spares a writer in another process the failure. The
    // file is whole at any moment, so a reader that waited in vain goes on.
    const FileLock fileLock(file.mutex, kReadWait);
    const uint64_t moment = FileClock();
    std::string bytes;
    FileStamp stamp;
    if (!ReadWholeFile(file.path, writers, bytes, stamp))
        return false;
    if (bytes != file.content.Text())
        file.content = IniText(std::move(bytes));
    file.stamp = stamp;
    file.settled = IsSettled(stamp.written, moment);
    return true;
}

bool IniStore::Replace(CachedFile& file, const std::string& text)
{
    if (file.readOnly)
        return false;
    const uint64_t moment = FileClock();
    FileStamp stamp;
    stamp.written = SettledStamp(moment, file.stamp.written);
    if (!ReplaceWholeFile(file.path, text, stamp))
        return false;
    file.content = IniText(text);
    file.stamp = stamp;
    file.settled = IsSettled(stamp.written, moment);
    return true;
}

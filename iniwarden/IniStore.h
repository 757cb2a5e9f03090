// INI files on disk, kept parsed in memory for as long as they stay as they were read.
#pragma once

#include "iniwarden/IniFile.h"
#include "iniwarden/IniText.h"

#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>

/// Reads and writes keys of INI files by their full paths. Safe to use from several threads and
/// processes.
///
/// A file is read again when its stamp has changed. A stamp that was young when the file was read is
/// not believed, since a later write may have got the same one; the bytes are compared then, until
/// the stamp has aged. The store's own files are given a stamp that is old enough from the start, so
/// a loop of writes stays cheap, and one that no earlier file of that path had, so other processes
/// see the change. What no stamp shows can't be noticed: a program that puts back the time of
/// writing after a change of the same length, or the clock of a file server that runs behind ours.
class IniStore
{
public:
    std::optional<std::string> Read(const std::wstring& path, const std::string& section,
                                    const std::string& key);

    /// @return whether the value is stored, by this call or before it
    bool Write(const std::wstring& path, const std::string& section, const std::string& key,
               const std::string& value);

private:
    struct CachedFile
    {
        explicit CachedFile(const std::wstring& path)
            : path(path)
            , mutex(path)
        {
        }

        const std::wstring path;
        const FileMutex mutex;
        IniText content;
        FileStamp stamp;
        bool settled = false; ///< an equal stamp proves equal content
        bool readOnly = false;
        uint64_t lastUse = 0;
    };

    CachedFile& Entry(const std::wstring& path);
    void DropOldest();
    static bool Refresh(CachedFile& file, Writers writers);
    static bool Load(CachedFile& file, Writers writers);
    static bool Replace(CachedFile& file, const std::string& text);

    std::mutex guard;
    std::unordered_map<std::wstring, CachedFile> files;
    uint64_t uses = 0;
    CachedFile* latest = nullptr;
};

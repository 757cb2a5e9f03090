#pragma once

#include "hotkeys/HotKeyRecord.h"

/// A list of keys with its file. Rows are those of `GetList`; a row number outside of it fails.
///
/// There is no virtual destructor, so a store is deleted as the class it was made as.
class CHotKeyBase
{
public:
    /// Writes the list to its file, which holds the former or the new content whatever happens. The
    /// folder must exist. A failure goes unnoticed.
    virtual void Save() = 0;

    /// Replaces the list by what its file holds.
    virtual void Load() = 0;

    /// The number that the file name carries.
    virtual int GetType() const = 0;

    /// The rows that the user works on.
    virtual HotKeyList& GetList() { return list; }

    int GetCount();

    /// The row, or null; valid until rows are added, removed or reloaded.
    HotKeyRecord* GetRecord(int row);

    /// Writes the row's key name, `kKeyNameSize` bytes. False leaves `out` untouched.
    bool GetKeyName(int row, char* out);

    /// Appends a default row and returns its number.
    int AddRow();

    void RemoveRow(int row);

    /// Sets the virtual key code alone; the modifiers stay.
    bool SetKeyCode(int row, unsigned int vk);

    /// Gives the row this key with the modifiers held now, and writes its name, `kKeyNameSize` bytes.
    /// A key without a name clears the row's key. One that another row has clears it too, and tells
    /// the user so.
    /// @return false for a duplicate or a missing row
    bool CaptureKey(int row, unsigned int vk, char* out);

    /// The first row that answers to this key with the modifiers held now, or null.
    HotKeyRecord* FindHeldKey(unsigned int vk);

    HotKeyList list;

protected:
    CHotKeyBase() = default;
    ~CHotKeyBase() = default;
};

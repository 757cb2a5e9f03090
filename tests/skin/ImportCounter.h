// Counts and replaces calls of system functions that this program makes, and counts what the system
// keeps for it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <cstring>

/// Puts a function of ours in the place of an imported one, for a scope.
class ImportPatch
{
public:
    ImportPatch(const char* function, void* replacement)
        : slot(FindSlot(function))
    {
        if (slot)
            original = Exchange(replacement);
    }
    ~ImportPatch()
    {
        if (slot)
            Exchange(original);
    }
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

    bool IsInPlace() const { return slot != nullptr; }

    template <typename Function>
    Function Original() const
    {
        return reinterpret_cast<Function>(original);
    }

private:
    void* Exchange(void* function)
    {
        DWORD access;
        VirtualProtect(slot, sizeof(*slot), PAGE_READWRITE, &access);
        void* old = *slot;
        *slot = function;
        VirtualProtect(slot, sizeof(*slot), access, &access);
        return old;
    }

    static void** FindSlot(const char* function)
    {
        auto* base = reinterpret_cast<uint8_t*>(GetModuleHandleA(nullptr));
        const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
        const auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
        const auto& place = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        for (auto* module = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + place.VirtualAddress);
             module->Name != 0; ++module)
        {
            auto* name = reinterpret_cast<IMAGE_THUNK_DATA*>(base + module->OriginalFirstThunk);
            auto* address = reinterpret_cast<IMAGE_THUNK_DATA*>(base + module->FirstThunk);
            for (; name->u1.AddressOfData != 0; ++name, ++address)
            {
                if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                    continue;
                const auto* import =
                    reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
                if (strcmp(reinterpret_cast<const char*>(import->Name), function) == 0)
                    return reinterpret_cast<void**>(&address->u1.Function);
            }
        }
        return nullptr;
    }

    void** slot;
    void* original = nullptr;
};

/// Drawing objects that this process holds. Wine answers GetGuiResources with 0 always, so there the
/// process's table of them is counted.
inline int CountGdiObjects()
{
    if (const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<int>(count);

    constexpr int kPebTable = 0x94;
    constexpr int kEntries = 65536;
    constexpr int kEntryBytes = 24;
    constexpr int kTypeAt = 14;
    const uint8_t* peb;
    __asm__("movl %%fs:0x30, %0" : "=r"(peb));
    const uint8_t* table;
    memcpy(&table, peb + kPebTable, sizeof(table));
    int count = 0;
    for (int entry = 0; entry < kEntries; ++entry)
        count += table[entry * kEntryBytes + kTypeAt] != 0;
    return count;
}

inline BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

inline BOOL CALLBACK CountWindowAndChildren(HWND window, LPARAM count)
{
    EnumChildWindows(window, CountWindow, count);
    return CountWindow(window, count);
}

/// Windows of this thread, children included.
inline int CountWindows()
{
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountWindowAndChildren,
                      reinterpret_cast<LPARAM>(&count));
    return count;
}

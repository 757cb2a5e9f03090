// Replaces calls of system functions that this program makes.
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

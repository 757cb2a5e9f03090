#include "tests/mfc/GdiCount.h"

#include <windows.h>

namespace
{
/// Wine's GetGuiResources always says 0. There the handle table of the process is counted, which
/// Windows keeps in the same place in another form.
struct CHandleEntry
{
    unsigned char before[14];
    unsigned char type;
    unsigned char after[9];
};
static_assert(sizeof(CHandleEntry) == 24, "as the table has it");

const CHandleEntry* HandleTable()
{
    const unsigned char* peb = nullptr;
    __asm__("movl %%fs:0x30, %0" : "=r"(peb));
    constexpr int kTableInPeb = 0x94;
    return *reinterpret_cast<const CHandleEntry* const*>(peb + kTableInPeb);
}

bool IsWine()
{
    return ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
}
} // namespace

int CountGdiObjects()
{
    if (!IsWine())
    {
        return static_cast<int>(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
    }
    constexpr int kEntries = 65536;
    const CHandleEntry* table = HandleTable();
    int count = 0;
    for (int i = 0; i < kEntries; ++i)
    {
        count += table[i].type != 0;
    }
    return count;
}

#include "skin/grid/GuardedAlloc.h"

#include <cstring>

#ifdef _WIN32
#include <windows.h>
#else
#include <cstdlib>
#endif

namespace
{

constexpr size_t kGuardSize = sizeof(kGuardWord);

// Other systems have no process heap; there the checkers of the C heap watch these blocks.
#ifdef _WIN32
void* AllocateZeroed(size_t size)
{
    return HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, size);
}

void Release(void* memory)
{
    HeapFree(GetProcessHeap(), 0, memory);
}
#else
void* AllocateZeroed(size_t size)
{
    return calloc(1, size);
}

void Release(void* memory)
{
    free(memory);
}
#endif

void WriteGuard(char* at)
{
    memcpy(at, &kGuardWord, kGuardSize);
}

} // namespace

void* GuardedAlloc(size_t size)
{
    if (size > PTRDIFF_MAX - 2 * kGuardSize)
        return nullptr;
    auto* memory = static_cast<char*>(AllocateZeroed(size + 2 * kGuardSize));
    if (!memory)
        return nullptr;
    char* block = memory + kGuardSize;
    WriteGuard(memory);
    WriteGuard(block + size);
    return block;
}

void GuardedFree(void* block)
{
    if (block)
        Release(static_cast<char*>(block) - kGuardSize);
}

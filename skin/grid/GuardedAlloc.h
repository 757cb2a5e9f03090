// Blocks of the process heap between two guard words, so that a heap dump shows who wrote past one.
// Free of windows.h.
#pragma once

#include <cstddef>
#include <cstdint>

/// Stands right in front of every block and right behind it.
constexpr uint32_t kGuardWord = 0x24242424;

/// Zeroed memory of `size` bytes. The caller releases it with GuardedFree.
/// @return null on failure
void* GuardedAlloc(size_t size);

/// Releases a block of GuardedAlloc; null is fine.
void GuardedFree(void* block);

#include "skin/grid/EArray.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <type_traits>

#ifdef _WIN32
#include <windows.h>
#endif

namespace
{

uint32_t WordAt(const void* address)
{
    uint32_t word;
    memcpy(&word, address, sizeof(word));
    return word;
}

void AddMany(EArray<int>& array, int count)
{
    const int before = array.count;
    for (int index = before; index < before + count; ++index)
        ASSERT_EQ(index, array.Add(1000 + index));
}

TEST(GuardedAlloc, ZeroesTheBlockAndGuardsBothEnds)
{
    auto* block = static_cast<char*>(GuardedAlloc(10));
    ASSERT_NE(nullptr, block);
    EXPECT_EQ(0x24242424u, WordAt(block - 4));
    EXPECT_EQ(0x24242424u, WordAt(block + 10));
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(0, block[i]);
    GuardedFree(block);
}

TEST(GuardedAlloc, GivesNullWhereMemoryCannotBeHad)
{
    // Lets the compiler not see how much is asked for.
    volatile size_t tooMuch = SIZE_MAX;
    EXPECT_EQ(nullptr, GuardedAlloc(tooMuch));
    tooMuch = SIZE_MAX - 8;
    EXPECT_EQ(nullptr, GuardedAlloc(tooMuch));
    GuardedFree(nullptr);
}

#ifdef _WIN32
TEST(GuardedAlloc, TakesEightBytesMoreFromTheProcessHeap)
{
    auto* block = static_cast<char*>(GuardedAlloc(100));
    EXPECT_EQ(108u, HeapSize(GetProcessHeap(), 0, block - 4));
    GuardedFree(block);
}
#endif

TEST(EArray, HasADestructorAsItsOnlyVirtualOperation)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<EArray<int>>);
    EXPECT_FALSE(std::is_copy_constructible_v<EArray<int>>);
}

TEST(EArray, GrowsByItsFirstCapacityAndDoublesFromThenOn)
{
    EArray<int> array;
    EXPECT_EQ(32, array.capacity);
    EXPECT_EQ(0, array.count);
    EXPECT_EQ(32, array.growBy);

    AddMany(array, 32);
    EXPECT_EQ(32, array.capacity);
    for (const int capacity : {64, 128, 256})
    {
        AddMany(array, 1);
        EXPECT_EQ(capacity, array.capacity);
        EXPECT_EQ(capacity, array.growBy);
        AddMany(array, capacity - array.count);
        EXPECT_EQ(capacity, array.capacity);
    }
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(1000 + i, array[i]);
}

TEST(EArray, AddsAnElementOfItsOwn)
{
    EArray<int> array;
    AddMany(array, 32);
    EXPECT_EQ(32, array.Add(array[31]));
    EXPECT_EQ(1031, array[32]);
}

TEST(EArray, ClearZeroesWhatWasUsedAndKeepsTheMemory)
{
    EArray<int> array;
    AddMany(array, 40);
    const int* data = array.data;
    array.Clear();
    EXPECT_EQ(0, array.count);
    EXPECT_EQ(64, array.capacity);
    EXPECT_EQ(data, array.data);
    for (int i = 0; i < 40; ++i)
        EXPECT_EQ(0, data[i]);
}

TEST(EArray, RefusesToGrowBeyondWhatCanBeCounted)
{
    EArray<int> array;
    AddMany(array, 32);
    array.growBy = INT_MAX - 31;
    EXPECT_EQ(-1, array.Add(5));
    array.growBy = INT_MAX;
    EXPECT_EQ(-1, array.Add(5));
    EXPECT_EQ(32, array.count);
    EXPECT_EQ(32, array.capacity);
    EXPECT_EQ(1031, array[31]);
}

} // namespace

// The growing array that holds the grid's column widths. Free of windows.h.
#pragma once

#include "skin/grid/GuardedAlloc.h"

#include <algorithm>
#include <climits>
#include <type_traits>

/// An array of plain values in guarded memory that grows by 32 elements at first and doubles from
/// then on.
template <typename T>
class EArray
{
    static_assert(std::is_trivially_copyable_v<T>, "elements are moved as bytes");
    static_assert(alignof(T) <= sizeof(kGuardWord), "a block begins one guard word off");

public:
    EArray()
        : data(Allocate(kInitialCapacity))
        , capacity(data ? kInitialCapacity : 0)
    {
    }
    virtual ~EArray() { GuardedFree(data); }
    EArray(const EArray&) = delete;
    EArray& operator=(const EArray&) = delete;

    /// Appends an element. @return its index, or -1 if the memory for it cannot be had
    int Add(const T& element)
    {
        const T value = element; // may lie in this array, which moves as it grows
        if (count == capacity && !Grow())
            return -1;
        data[count] = value;
        return count++;
    }

    /// Zeroes the used elements and forgets them; keeps the memory.
    void Clear()
    {
        std::fill_n(data, count, T());
        count = 0;
    }

    /// @param index from 0 to count - 1
    T& operator[](int index) { return data[index]; }
    const T& operator[](int index) const { return data[index]; }

    T* begin() { return data; }
    T* end() { return data + count; }
    const T* begin() const { return data; }
    const T* end() const { return data + count; }

    static constexpr int kInitialCapacity = 32;

    T* data;
    int capacity;  ///< allocated elements
    int count = 0; ///< used elements
    int growBy = kInitialCapacity;

private:
    static T* Allocate(int elements)
    {
        return static_cast<T*>(GuardedAlloc(static_cast<size_t>(elements) * sizeof(T)));
    }

    bool Grow()
    {
        constexpr int kMaxCapacity = INT_MAX / static_cast<int>(sizeof(T));
        if (growBy > kMaxCapacity - capacity)
            return false;
        T* larger = Allocate(capacity + growBy);
        if (!larger)
            return false;
        std::copy_n(data, count, larger);
        GuardedFree(data);
        data = larger;
        capacity += growBy;
        growBy = capacity;
        return true;
    }
};

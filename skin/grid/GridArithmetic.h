// Arithmetic of pixels and rows that must not overflow, whatever a page or a message gives. Free of
// windows.h.
#pragma once

#include <algorithm>
#include <climits>

/// The nearest int to a value; so are the results of the operations below.
inline int Saturated(long long value)
{
    return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

inline int Sum(int a, int b)
{
    return Saturated(static_cast<long long>(a) + b);
}

inline int Difference(int a, int b)
{
    return Saturated(static_cast<long long>(a) - b);
}

inline int Product(int a, int b)
{
    return Saturated(static_cast<long long>(a) * b);
}

/// A coordinate on a surface or in the window. What lies beyond is out of sight anyway, and so a
/// rectangle's width, and a few pixels more or less, never overflow.
inline int Pixel(long long value)
{
    constexpr int kFarAway = 1 << 29;
    return static_cast<int>(std::clamp<long long>(value, -kFarAway, kFarAway));
}

/// The whole part of a number; what has none that fits gives INT_MIN, as the processor's own
/// conversion does.
inline int Truncated(double value)
{
    const bool fits = value > INT_MIN - 1.0 && value < INT_MAX + 1.0;
    return fits ? static_cast<int>(value) : INT_MIN;
}

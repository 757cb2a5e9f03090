// What the benchmarks measure time with.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

/// Runs from its making.
class Stopwatch
{
public:
    double Milliseconds() const
    {
        const auto passed = std::chrono::steady_clock::now() - m_start;
        return std::chrono::duration<double, std::milli>(passed).count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

template <typename Work>
double Milliseconds(const Work& work)
{
    const Stopwatch watch;
    work();
    return watch.Milliseconds();
}

inline double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

// What the benchmarks measure time with.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
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

/// Prints a row of the table of all benchmarks: what was done, how long it takes with this module and
/// with what a user would have otherwise, in milliseconds, and the ratio of the two with its goal.
inline void Report(const std::string& what, double ours, const std::string& otherwise, double other,
                   const char* goal = "")
{
    printf("| %s | %.3f | %s | %.3f | %.2f | %s |\n", what.c_str(), ours, otherwise.c_str(), other,
           ours / other, goal);
}

/// The same for what has no counterpart.
inline void Report(const std::string& what, double ours)
{
    printf("| %s | %.3f | | | | |\n", what.c_str(), ours);
}

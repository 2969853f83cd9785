// Measuring and printing the figures of the portable rooms.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

// The median duration of one call in seconds, of Runs calls after one that warms up.
inline double MedianSeconds(const std::function<void()>& Call, int Runs = 21)
{
    using TClock = std::chrono::steady_clock;
    Call();
    std::vector<double> Seconds;
    for (int I = 0; I < Runs; I++) {
        const auto Start = TClock::now();
        Call();
        Seconds.push_back(std::chrono::duration<double>(TClock::now() - Start).count());
    }
    std::nth_element(Seconds.begin(), Seconds.begin() + Runs / 2, Seconds.end());
    return Seconds[static_cast<std::size_t>(Runs / 2)];
}

// One line for a figure that has no baseline.
inline void PrintFigure(const char* Name, double Value, const char* Unit)
{
    std::printf("%s %.0f %s - -\n", Name, Value, Unit);
    std::fflush(stdout);
}

void FormConvertBench();

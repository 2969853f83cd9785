// Measuring on the platform: every figure beside a baseline from the same run.
#pragma once

#include "vcl/system/WindowsApi.h"

#include <functional>
#include <vector>

class TStopwatch {
public:
    TStopwatch() { QueryPerformanceCounter(&FStart); }
    double Microseconds() const;

private:
    LARGE_INTEGER FStart;
};

double Median(std::vector<double> Values);

struct TMeasure {
    double Value;
    double Baseline;
};

// Runs both in turn, after one run of each that warms up, and gives the medians of what they return.
TMeasure Compare(const std::function<double()>& Subject, const std::function<double()>& Baseline, int Runs = 7);

// One line: name value unit baseline ratio. Without a baseline (0) there are dashes in place of the last two.
void PrintFigure(const char* Name, double Value, const char* Unit, double Baseline = 0);

// Defines the function that measures the figure Name, or several that are measured together, and adds it to those that
// the program runs: FIGURE(glyph_draw) { ... }
#define FIGURE(Name)                                                                                                   \
    static void Measure_##Name();                                                                                      \
    [[maybe_unused]] static const bool Added_##Name = AddFigure(#Name, &Measure_##Name);                               \
    static void Measure_##Name()

bool AddFigure(const char* Name, void (*Measure)());

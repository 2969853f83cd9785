// Prints the figures of the platform, one a line: name value unit baseline ratio. Names as arguments choose some.
#include "bench/Bench.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>

namespace {

struct TFigure {
    std::string_view Name;
    void (*Measure)();
};

// All that FIGURE has defined.
std::vector<TFigure>& Figures()
{
    static std::vector<TFigure> All;
    return All;
}

} // namespace

bool AddFigure(const char* Name, void (*Measure)())
{
    Figures().push_back({Name, Measure});
    return true;
}

double TStopwatch::Microseconds() const
{
    LARGE_INTEGER Now, Frequency;
    QueryPerformanceCounter(&Now);
    QueryPerformanceFrequency(&Frequency);
    return static_cast<double>(Now.QuadPart - FStart.QuadPart) * 1e6 / static_cast<double>(Frequency.QuadPart);
}

double Median(std::vector<double> Values)
{
    std::nth_element(Values.begin(), Values.begin() + Values.size() / 2, Values.end());
    return Values[Values.size() / 2];
}

TMeasure Compare(const std::function<double()>& Subject, const std::function<double()>& Baseline, int Runs)
{
    std::vector<double> Values, Baselines;
    Subject();
    Baseline();
    for (int I = 0; I < Runs; ++I) {
        Values.push_back(Subject());
        Baselines.push_back(Baseline());
    }
    return {Median(Values), Median(Baselines)};
}

void PrintFigure(const char* Name, double Value, const char* Unit, double Baseline)
{
    if (Baseline == 0)
        std::printf("%s %.3g %s - -\n", Name, Value, Unit);
    else
        std::printf("%s %.3g %s %.3g %.3f\n", Name, Value, Unit, Baseline, Value / Baseline);
    std::fflush(stdout);
}

int main(int Count, char** Arguments)
{
    try {
        for (const TFigure& Figure : Figures())
            if (Count == 1 || std::find(Arguments + 1, Arguments + Count, Figure.Name) != Arguments + Count)
                Figure.Measure();
        return EXIT_SUCCESS;
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "bench: %s\n", Error.what());
        return EXIT_FAILURE;
    }
}

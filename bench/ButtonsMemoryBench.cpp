// buttons_memory: private bytes per shown speed button.
#include "bench/Bench.h"
#include "bench/ButtonForms.h"
#include "toolbar/SpeedButton.h"

#include <psapi.h>

namespace {

double PrivateBytes()
{
    PROCESS_MEMORY_COUNTERS_EX Counters = {};
    Counters.cb = sizeof(Counters);
    K32GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&Counters),
                            sizeof(Counters));
    return static_cast<double>(Counters.PrivateUsage);
}

} // namespace

// The first forms bring what all share; then many buttons are compared with few on as many panels.
void ButtonsMemoryBench()
{
    constexpr int Many = 1000, Few = 50;
    TMemoryStream FewStream, ManyStream;
    WriteButtonForm(FewStream, BarCount, Few);
    WriteButtonForm(ManyStream, BarCount, Many);
    const auto Use = [](TMemoryStream& Stream) {
        const double Before = PrivateBytes();
        auto Form = ReadButtonForm(Stream);
        Form->Show();
        ShowPainted(Form->Handle);
        const double Used = PrivateBytes() - Before;
        return std::pair(std::move(Form), Used);
    };
    auto First = Use(FewStream);
    auto Second = Use(FewStream);
    auto Third = Use(ManyStream);
    const double PerButton = (Third.second - Second.second) / (BarCount * (Many - Few));
    PrintFigure("buttons_memory", PerButton, "bytes");
    PrintFigure("buttons_memory_object", sizeof(TkelSpeedButton), "bytes");
}

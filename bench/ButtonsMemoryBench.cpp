// buttons_memory: private bytes per shown speed button.
#include "bench/Bench.h"
#include "bench/ButtonForms.h"
#include "toolbar/SpeedButton.h"

namespace {

double BytesIn(HANDLE Heap)
{
    double Bytes = 0;
    PROCESS_HEAP_ENTRY Entry = {};
    HeapLock(Heap);
    while (HeapWalk(Heap, &Entry))
        if (Entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            Bytes += Entry.cbData + Entry.cbOverhead;
    HeapUnlock(Heap);
    return Bytes;
}

// What the process has on its heaps. (The system's own count of private memory moves by whole segments, and is not kept
// everywhere.)
double PrivateBytes()
{
    HANDLE Heaps[64];
    const DWORD Count = std::min<DWORD>(GetProcessHeaps(64, Heaps), 64);
    double Bytes = 0;
    for (DWORD I = 0; I < Count; ++I)
        Bytes += BytesIn(Heaps[I]);
    return Bytes;
}

} // namespace

// The first forms bring what all share; then many buttons are compared with few on as many panels.
FIGURE(buttons_memory)
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

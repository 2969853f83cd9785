#include "bench/MenuTimer.h"

double TMenuTimer::Time(const std::function<void()>& Popup)
{
    double Drawn = 0;
    TStopwatch Watch;
    OnDrawn = [&] {
        GdiFlush();
        Drawn = Watch.Microseconds();
        OnDrawn = nullptr;
        EndMenu();
    };
    Popup();
    if (Drawn == 0)
        throw Exception("A menu does not open");
    return Drawn;
}

bool TMenuTimer::Listen(TMessage& Message)
{
    if (Message.Msg != WM_ENTERIDLE || !OnDrawn)
        return false;
    // It may put another in its place.
    const auto Drawn = OnDrawn;
    Drawn();
    return true;
}

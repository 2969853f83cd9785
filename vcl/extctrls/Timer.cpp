#include "vcl/extctrls/Timer.h"

#include "vcl/graphics/GraphicErrors.h"
#include "vcl/menus/UtilityWindow.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Guard.h"

#include <unordered_set>

void TTimer::Describe(TClassBuilder<TTimer>& Class)
{
    Class.Property<&Self::GetEnabled, &Self::SetEnabled>("Enabled").Default(true);
    Class.Property<&Self::GetInterval, &Self::SetInterval>("Interval").Default(1000);
    Class.Property<&Self::GetOnTimer, &Self::SetOnTimer>("OnTimer");
}

// The hidden window that all running timers share; the system's number of a timer is the object's address. The window
// exists while any timer runs.
class TTimerWindow {
public:
    static void Start(TTimer* Timer, unsigned Interval)
    {
        if (!Window)
            Window = AllocateHWnd([](TMessage& Message) { HandleMessage(Message); });
        if (!SetTimer(Window, reinterpret_cast<UINT_PTR>(Timer), Interval, nullptr))
            RaiseOutOfResources();
        Running.insert(Timer);
    }

    static void Stop(TTimer* Timer)
    {
        KillTimer(Window, reinterpret_cast<UINT_PTR>(Timer));
        Running.erase(Timer);
        CloseWhenIdle();
    }

    static void Forget(TTimer* Timer)
    {
        for (TRaising* Frame = Raising; Frame; Frame = Frame->Outer)
            if (Frame->Timer == Timer)
                Frame->Timer = nullptr;
    }

private:
    static void HandleMessage(TMessage& Message)
    {
        auto* Timer = reinterpret_cast<TTimer*>(Message.WParam);
        // A message of a timer that was stopped may still have been on its way.
        if (Message.Msg == WM_TIMER && Running.contains(Timer))
            Raise(Timer);
        else if (Message.Msg != WM_TIMER)
            DefaultWindowProc(Window, Message);
    }

    // The handler may stop, restart or delete any timer. The window stays meanwhile.
    static void Raise(TTimer* Timer)
    {
        TRaising Frame{Timer, Raising};
        Raising = &Frame;
        try {
            Timer->Timer();
        } catch (...) {
            ReportException(Frame.Timer);
        }
        Raising = Frame.Outer;
        CloseWhenIdle();
    }

    static void CloseWhenIdle()
    {
        if (!Running.empty() || Raising)
            return;
        DeallocateHWnd(Window);
        Window = nullptr;
    }

    // The timers whose handlers run now, the innermost first; nullptr for one that was deleted meanwhile.
    struct TRaising {
        TTimer* Timer;
        TRaising* Outer;
    };

    static inline HWND Window = nullptr;
    static inline std::unordered_set<TTimer*> Running;
    static inline TRaising* Raising = nullptr;
};

TTimer::TTimer(TComponent* AOwner) : TComponent(AOwner)
{}

TTimer::~TTimer()
{
    Stop();
}

void TTimer::BeforeDestruction()
{
    Stop();
    TTimerWindow::Forget(this);
    inherited::BeforeDestruction();
}

void TTimer::UpdateTimer()
{
    Stop();
    if (!FEnabled || FInterval == 0 || !FOnTimer || IsDestroying())
        return;
    TTimerWindow::Start(this, FInterval);
    FRunning = true;
}

void TTimer::Stop()
{
    if (!FRunning)
        return;
    FRunning = false;
    TTimerWindow::Stop(this);
}

void TTimer::SetEnabled(bool Value)
{
    if (FEnabled == Value)
        return;
    FEnabled = Value;
    UpdateTimer();
}

void TTimer::SetInterval(unsigned Value)
{
    if (FInterval == Value)
        return;
    FInterval = Value;
    UpdateTimer();
}

void TTimer::SetOnTimer(const TNotifyEvent& Value)
{
    FOnTimer = Value;
    UpdateTimer();
}

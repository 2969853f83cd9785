// TTimer: raises an event again and again.
#pragma once

#include "vcl/classes/Component.h"

class TTimer : public TComponent {
    VCL_CLASS(TTimer, TComponent)
public:
    explicit TTimer(TComponent* AOwner);
    ~TTimer() override;

    // It runs when it is enabled, has an interval and a handler. Changing any of them starts the interval anew.
    bool GetEnabled() const { return FEnabled; }
    void SetEnabled(bool Value);
    PROPERTY(bool, Enabled);
    // In milliseconds; 0 stops it.
    unsigned GetInterval() const { return FInterval; }
    void SetInterval(unsigned Value);
    PROPERTY(unsigned, Interval);
    TNotifyEvent GetOnTimer() const { return FOnTimer; }
    void SetOnTimer(const TNotifyEvent& Value);
    PROPERTY(TNotifyEvent, OnTimer);

    void BeforeDestruction() override;

protected:
    virtual void Timer() { FOnTimer(this); }

private:
    friend class TTimerWindow;

    void UpdateTimer();
    void Stop();

    TNotifyEvent FOnTimer;
    unsigned FInterval = 1000;
    bool FEnabled = true;
    bool FRunning = false;
};

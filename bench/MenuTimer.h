// TMenuTimer: hears when a menu that is open has drawn all it has to, and has nothing left to do.
#pragma once

#include "bench/Bench.h"
#include "vcl/menus/PopupList.h"

class TMenuTimer : public TObject {
public:
    TMenuTimer() { PopupList->AddListener({this, &TMenuTimer::Listen}); }
    ~TMenuTimer() override { PopupList->RemoveListener({this, &TMenuTimer::Listen}); }
    TMenuTimer(const TMenuTimer&) = delete;

    // In microseconds, from the call of Popup, which shows a menu of the shared window, until the menu is drawn.
    double Time(const std::function<void()>& Popup);

    // Called each time that is so; nullptr for nothing.
    std::function<void()> OnDrawn;

private:
    bool Listen(TMessage& Message);
};

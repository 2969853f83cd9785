// THintController: when which hint shows. It follows the pointer from control to control and owns the hint window.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/HintInfo.h"
#include "vcl/forms/HintWindow.h"

#include <memory>

class TApplication;

class THintController {
public:
    explicit THintController(TApplication& Application) : FApplication(Application) {}
    ~THintController();

    // The pointer has gone from one control to another; nullptr: none.
    void HotControlChanged(TControl* Old, TControl* New);
    // The pointer moved to a screen position; over the same control another part may have a hint of its own.
    void PointerMoved(const TPoint& Pos);
    // Shows the hint at a screen position at once.
    void Activate(const TPoint& Pos);
    // Takes the hint away; it comes again when the pointer has been elsewhere.
    void Cancel();
    // Takes the window away only.
    void Hide();
    // One of the controller's timers is due; false when Id is none of them.
    bool Timer(uintptr_t Id);

private:
    enum TPhase { hpNone, hpWaiting, hpShowing, hpHidden };

    void Start(TPhase Phase, int Milliseconds);
    void Stop();
    void Show(const THintInfo& Info);
    bool Ask(THintInfo& Info) const;

    TApplication& FApplication;
    std::unique_ptr<THintWindow> FWindow;
    TComponentRef<TControl> FControl;
    TRect FCursorRect; // on the screen
    TPhase FPhase = hpNone;
    bool FTimerRuns = false;
    bool FReshow = false;
};

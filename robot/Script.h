// TScript: what is done while menus are open, whose loops return only when they are closed. For tests, and for programs
// that show themselves.
#pragma once

#include "vcl/menus/UtilityWindow.h"
#include "vcl/system/Message.h"
#include "vcl/system/WindowsApi.h"

#include <functional>
#include <vector>

// Each step when its condition holds, in order. Some seconds without a step, and an open menu is closed; the script is
// not done then.
class TScript {
public:
    TScript() : FWindow(AllocateHWnd([this](TMessage& Message) { Tick(Message); }))
    {
        SetTimer(FWindow, 1, 20, nullptr);
    }
    ~TScript() { DeallocateHWnd(FWindow); }
    TScript(const TScript&) = delete;

    void When(std::function<bool()> Condition, std::function<void()> Action)
    {
        FSteps.push_back({std::move(Condition), std::move(Action)});
    }
    bool IsDone() const { return FNext == FSteps.size(); }
    size_t StepsDone() const { return FNext; }

private:
    void Tick(TMessage& Message)
    {
        if (Message.Msg != WM_TIMER) {
            DefaultWindowProc(FWindow, Message);
            return;
        }
        if (++FTicks == 250)
            EndMenu();
        if (IsDone() || !FSteps[FNext].first())
            return;
        FTicks = 0;
        const auto Action = FSteps[FNext++].second;
        Action();
    }

    std::vector<std::pair<std::function<bool()>, std::function<void()>>> FSteps;
    size_t FNext = 0;
    int FTicks = 0; // since the last step
    HWND FWindow;
};

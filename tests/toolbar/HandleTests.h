// What separators and drag boxes have in common, told once: they pass the mouse on to the tool bar that they lie on.
#pragma once

#include "toolbar/ToolBar.h"
#include "vcl/system/Format.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

// Notes the mouse events it gets and does nothing about them.
class TNotedBar : public TkelToolBar {
public:
    explicit TNotedBar(TComponent* AOwner) : TkelToolBar(AOwner) { AutoSave = false; }

    std::vector<std::string> Events;

protected:
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override { Note("down", Button, Shift, X, Y); }
    void MouseMove(TShiftState Shift, int X, int Y) override { Note("move", mbLeft, Shift, X, Y); }
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override { Note("up", Button, Shift, X, Y); }

private:
    void Note(const char* What, TMouseButton Button, TShiftState Shift, int X, int Y)
    {
        std::string Text =
            std::string(What) + (Button == mbRight ? " right " : " ") + std::to_string(X) + "," + std::to_string(Y);
        if (Shift.Contains(ssLeft))
            Text += " held";
        if (Shift.Contains(ssCtrl))
            Text += " ctrl";
        Events.push_back(Text);
    }
};

// Presses, moves and releases at the control's point (3, 5), left and right.
inline void UseMouseOn(TControl* Control)
{
    const intptr_t Place = MAKELPARAM(3, 5);
    Control->Perform(WM_LBUTTONDOWN, MK_LBUTTON, Place);
    Control->Perform(WM_MOUSEMOVE, MK_LBUTTON | MK_CONTROL, MAKELPARAM(-4, 6));
    Control->Perform(WM_LBUTTONUP, 0, Place);
    Control->Perform(WM_RBUTTONDOWN, MK_RBUTTON, Place);
    Control->Perform(WM_RBUTTONUP, 0, Place);
}

// On a bar at (Left, Top) all of it arrives, in the bar's coordinates.
inline void ExpectPassedOn(TControl* Control, TWinControl* Window)
{
    auto* Bar = new TNotedBar(Window);
    Bar->Parent = Window;
    Bar->SetBounds(20, 30, 150, 26);
    Control->Align = alNone;
    Control->Parent = Bar;
    Control->SetBounds(40, 7, 8, 12);
    Window->HandleNeeded();
    UseMouseOn(Control);
    EXPECT_THAT(Bar->Events, testing::ElementsAre("down 43,12 held", "move 36,13 held ctrl", "up 43,12",
                                                  "down right 43,12", "up right 43,12"));
}

// Another parent hears nothing, and nothing moves.
inline void ExpectIgnored(TControl* Control, TWinControl* Window)
{
    int Heard = 0;
    auto* Panel = new TkelCustomPanel(Window);
    Panel->Parent = Window;
    Panel->SetBounds(20, 30, 150, 26);
    Panel->OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int, int) { ++Heard; };
    Panel->OnMouseUp = [&](TObject*, TMouseButton, TShiftState, int, int) { ++Heard; };
    Panel->OnMouseMove = [&](TObject*, TShiftState, int, int) { ++Heard; };
    Control->Parent = Panel;
    Control->SetBounds(40, 7, 8, 12);
    Window->HandleNeeded();
    UseMouseOn(Control);
    EXPECT_EQ(Heard, 0);
    EXPECT_EQ(Panel->BoundsRect, TRect(20, 30, 170, 56));
    EXPECT_EQ(Control->BoundsRect, TRect(40, 7, 48, 19));
    Panel->OnMouseDown = nullptr;
    Panel->OnMouseUp = nullptr;
    Panel->OnMouseMove = nullptr;
}

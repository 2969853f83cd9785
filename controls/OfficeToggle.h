// TOfficeToggle: what the Office check box and radio button have in common.
#pragma once

#include "vcl/controls/CustomControl.h"

// A mark of twelve pixels with a caption in one line beside it, flat and grey until the mouse comes over it. An & in
// the caption is drawn as it stands.
//
// A change of state is drawn at once, over what is there; nothing is erased, so what the new state no longer has may
// stay until the next ordinary painting.
class TOfficeToggle : public TCustomControl {
    VCL_CLASS(TOfficeToggle, TCustomControl)
public:
    bool AccessibleDefaultAction() override;

protected:
    explicit TOfficeToggle(TComponent* AOwner);

    // Where the mark is, in pixels of the control.
    static constexpr int MarkLeft = 1;
    static constexpr int MarkRight = 13;
    static constexpr int MarkSize = 12;
    int MarkTop() const { return GetHeight() / 2 - MarkSize / 2; }

    // The user has clicked the control or typed a space.
    virtual void Toggle() = 0;
    bool IsMouseInside() const { return FMouseInside; }
    // The caption, and the frame of the focus around it.
    void DrawCaption();
    // Draws the new state at once.
    void RedrawNow();

    void DoEnter() override;
    void DoExit() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    // Space toggles; OnKeyUp is not raised for any key.
    void KeyUp(uint16_t& Key, TShiftState Shift) override;

private:
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);
    void CMTextChanged(TMessage& Message);
    void WMCaptureChanged(TMessage& Message);

    void SetMouseInside(bool Value);

    bool FMouseInside = false;
    bool FHasFocus = false;
    bool FPressLost = false; // the mouse was taken away while the button was down
};

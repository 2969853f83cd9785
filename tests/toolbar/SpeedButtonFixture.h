// A window with a strip and speed buttons.
#pragma once

#include "tests/support/Input.h"
#include "tests/support/PaintToBitmap.h"
#include "tests/support/Strips.h"
#include "toolbar/SpeedButton.h"

// A button that lets tests see its drawing state and hands its mouse methods out.
class TTestButton : public TkelSpeedButton {
    VCL_CLASS(TTestButton, TkelSpeedButton)
public:
    using TkelSpeedButton::FTracking;
    using TkelSpeedButton::MouseDown;
    using TkelSpeedButton::MouseMove;
    using TkelSpeedButton::MouseUp;
    using TkelSpeedButton::TkelSpeedButton;

    TButtonState State() const { return FState; }
    void SetHot(bool Value) { FMouseInControl = Value; }
    bool IsHot() const { return FMouseInControl; }
    int PaintCount() const { return Paints; }

protected:
    void Paint() override
    {
        ++Paints;
        inherited::Paint();
    }

private:
    int Paints = 0;
};

class SpeedButtonFixture : public testing::Test {
protected:
    void SetUp() override;

    // Buttons stand side by side, 40 pixels apart.
    TTestButton* NewButton(int GroupIndex = 0, bool AllowAllUp = false);
    void Press(TTestButton* Button, int X = 5, int Y = 5) { Button->MouseDown(mbLeft, {ssLeft}, X, Y); }
    void Release(TTestButton* Button, int X = 5, int Y = 5) { Button->MouseUp(mbLeft, {}, X, Y); }
    void Click(TTestButton* Button)
    {
        Press(Button);
        Release(Button);
    }

    std::unique_ptr<THostWindow> Window = std::make_unique<THostWindow>();
    TkelGlyphs* Glyphs = nullptr; // four cells, the window's
    TTestButton* Button = nullptr;
};

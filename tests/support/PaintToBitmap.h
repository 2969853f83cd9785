// Controls in tests: a window for them to stand on, and their pixels.
#pragma once

#include "tests/support/PixelImage.h"
#include "vcl/controls/CustomControl.h"

// A top-level window without a caption, in a colour of its own. It need not be shown for painting into a picture.
class THostWindow : public TCustomControl {
    VCL_CLASS(THostWindow, TCustomControl)
public:
    static constexpr TColor BackgroundColor = TColor(0x40A0E0);

    // 300 by 200 pixels; its window exists.
    explicit THostWindow(TComponent* AOwner = nullptr);

    // Shows the window above all others and waits until it is painted.
    void ShowNow();

protected:
    void CreateParams(TCreateParams& Params) override;
    void Paint() override;
};

// What the control paints, together with its windowless children. Pixels that it leaves alone are Untouched for a
// windowless control; a window has at least its background.
TPixelImage PaintToBitmap(TControl* Control);

// What the window on the screen shows of the control.
TPixelImage ScreenPixels(TControl* Control);

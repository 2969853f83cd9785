#include "tests/support/PaintToBitmap.h"

#include "tests/support/Input.h"
#include "vcl/controls/WindowPainter.h"
#include "vcl/system/ClassBuilder.h"

void TTestWindow::Describe(TClassBuilder<TTestWindow>&)
{}

TTestWindow::TTestWindow(TComponent* AOwner) : TCustomControl(AOwner)
{
    ControlStyle = ControlStyle + TControlStyle{csAcceptsControls};
    SetBounds(100, 100, 300, 200);
    Color = BackgroundColor;
    HandleNeeded();
}

void TTestWindow::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    Params.Style = WS_POPUP | WS_CLIPCHILDREN;
    Params.ExStyle = WS_EX_TOPMOST | WS_EX_TOOLWINDOW;
}

void TTestWindow::Paint()
{
    Canvas->Brush->Color = Color;
    Canvas->FillRect(ClientRect);
}

void TTestWindow::ShowNow()
{
    ::ShowWindow(Handle, SW_SHOW);
    SetForegroundWindow(Handle);
    UpdateWindow(Handle);
    PumpMessages();
}

TPixelImage PaintToBitmap(TControl* Control)
{
    const TRect Area(0, 0, Control->Width, Control->Height);
    TPixelImage Image(Area.right, Area.bottom);
    if (auto* Window = As<TWinControl>(Control)) {
        Window->HandleNeeded();
        TWindowPainter::PaintInto(*Window, Image.DC(), Area);
    } else {
        Control->Perform(WM_PAINT, reinterpret_cast<uintptr_t>(Image.DC()));
    }
    return Image;
}

TPixelImage ScreenPixels(TControl* Control)
{
    const TPoint Origin = Control->ClientToScreen(TPoint(0, 0));
    TPixelImage Image(Control->Width, Control->Height);
    HDC Screen = GetDC(nullptr);
    BitBlt(Image.DC(), 0, 0, Image.Width(), Image.Height(), Screen, Origin.x, Origin.y, SRCCOPY);
    ReleaseDC(nullptr, Screen);
    return Image;
}

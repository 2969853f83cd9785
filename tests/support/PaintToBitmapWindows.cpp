#include "tests/support/PaintToBitmap.h"

#include "tests/support/Input.h"
#include "vcl/controls/WindowPainter.h"
#include "vcl/system/ClassBuilder.h"

void THostWindow::Describe(TClassBuilder<THostWindow>&)
{}

THostWindow::THostWindow(TComponent* AOwner) : TCustomControl(AOwner)
{
    ControlStyle = ControlStyle + TControlStyle{csAcceptsControls};
    SetBounds(100, 100, 300, 200);
    Color = BackgroundColor;
    Visible = false;
    ParentWindow = GetDesktopWindow(); // makes it a window that can be shown
    HandleNeeded();
}

void THostWindow::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    Params.Style = WS_POPUP | WS_CLIPCHILDREN;
    Params.ExStyle = WS_EX_TOPMOST | WS_EX_TOOLWINDOW;
}

void THostWindow::Paint()
{
    Canvas->Brush->Color = Color;
    Canvas->FillRect(ClientRect);
}

void THostWindow::ShowNow()
{
    Visible = true;
    SetForegroundWindow(Handle);
    Update();
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
    // Read through the window: the screen itself may follow a moment later.
    auto* Window = As<TWinControl>(Control);
    const TPoint Origin = Window ? TPoint() : TPoint(Control->Left, Control->Top);
    HWND Handle = (Window ? Window : Control->Parent)->Handle;
    TPixelImage Image(Control->Width, Control->Height);
    HDC Context = GetDC(Handle);
    BitBlt(Image.DC(), 0, 0, Image.Width(), Image.Height(), Context, Origin.x, Origin.y, SRCCOPY);
    ReleaseDC(Handle, Context);
    return Image;
}

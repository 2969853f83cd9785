#include "vcl/forms/HintWindow.h"

#include "vcl/controls/FormHost.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Screen.h"
#include "vcl/graphics/Brush.h"
#include "vcl/system/ClassBuilder.h"

#include <algorithm>

namespace {
// Between the text and the frame, in pixels.
constexpr int Padding = 2;
constexpr unsigned TextFlags = DT_LEFT | DT_WORDBREAK | DT_NOPREFIX;
} // namespace

void THintWindow::Describe(TClassBuilder<THintWindow>& Class)
{
    Class.Message<&Self::WMNCHitTest>(WM_NCHITTEST);
    Class.Message<&Self::WMMouseActivate>(WM_MOUSEACTIVATE);
}

THintWindow::THintWindow(TComponent* AOwner) : TCustomControl(AOwner)
{
    Font = Screen->HintFont;
    Color = Application->HintColor;
    SetStyleFlag(csOpaque, true);
}

void THintWindow::CreateParams(TCreateParams& Params)
{
    TCustomControl::CreateParams(Params);
    Params.Style = WS_POPUP | WS_BORDER;
    Params.ExStyle |= WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE;
    Params.WindowClass.style |= CS_SAVEBITS;
    Params.WndParent = TFormHost::Get().MainHandle();
}

TRect THintWindow::CalcHintRect(int MaxWidth, const AnsiString& Hint, void*)
{
    TRect R(0, 0, MaxWidth, 0);
    HDC Display = GetDC(nullptr);
    HGDIOBJ Before = SelectObject(Display, Font->Handle);
    DrawText(Display, Hint, R, TextFlags | DT_CALCRECT);
    SelectObject(Display, Before);
    ReleaseDC(nullptr, Display);
    const int Frame = 2 * GetSystemMetrics(SM_CXBORDER);
    return {0, 0, R.Width() + 2 * Padding + Frame, R.Height() + 2 * Padding + Frame};
}

void THintWindow::ActivateHint(const TRect& R, const AnsiString& Hint)
{
    const TRect Work = Screen->WorkAreaOf(R);
    const int X = std::max<int>(Work.Left, std::min<int>(R.Left, Work.Right - R.Width()));
    const int Y = std::max<int>(Work.Top, std::min<int>(R.Top, Work.Bottom - R.Height()));
    Caption = Hint;
    SetBounds(X, Y, R.Width(), R.Height());
    SetWindowPos(Handle, HWND_TOPMOST, X, Y, R.Width(), R.Height(), SWP_NOACTIVATE | SWP_SHOWWINDOW);
    Invalidate();
    Update();
}

void THintWindow::ActivateHintData(const TRect& R, const AnsiString& Hint, void*)
{
    ActivateHint(R, Hint);
}

bool THintWindow::IsShowing()
{
    return HandleAllocated() && IsWindowVisible(Handle);
}

void THintWindow::Paint()
{
    TRect R = ClientRect;
    Canvas->Brush->Color = Color;
    Canvas->FillRect(R);
    InflateRect(R, -Padding, -Padding);
    Canvas->Font = Font;
    SetBkMode(Canvas->Handle, TRANSPARENT);
    SelectObject(Canvas->Handle, Font->Handle);
    SetTextColor(Canvas->Handle, ColorToRGB(Font->Color));
    DrawText(Canvas->Handle, Caption, R, TextFlags);
}

void THintWindow::WMNCHitTest(TMessage& Message)
{
    // Mouse messages go to what lies behind.
    Message.Result = HTTRANSPARENT;
}

void THintWindow::WMMouseActivate(TMessage& Message)
{
    Message.Result = MA_NOACTIVATE;
}

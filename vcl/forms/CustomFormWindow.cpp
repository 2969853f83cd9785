// The window of a form: frame, place, state, menu, icon.
#include "vcl/forms/Application.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/FormFrame.h"
#include "vcl/forms/MdiFrame.h"
#include "vcl/forms/Screen.h"
#include "vcl/graphics/Brush.h"

#include <algorithm>

namespace {

// What the window's life and its content decide, not the form's properties.
constexpr DWORD LivingStyles = WS_VISIBLE | WS_DISABLED | WS_MINIMIZE | WS_MAXIMIZE | WS_HSCROLL | WS_VSCROLL;
constexpr DWORD LivingExStyles = WS_EX_LAYERED | WS_EX_TOPMOST;

bool IsMdiStyle(TFormStyle Style)
{
    return Style == fsMDIForm || Style == fsMDIChild;
}

} // namespace

void TCustomForm::CreateParams(TCreateParams& Params)
{
    TScrollingWinControl::CreateParams(Params);
    const TFormFrame Styles = Frame();
    Params.Style = (Params.Style & ~static_cast<DWORD>(WS_TABSTOP)) | Styles.Style | WS_CLIPCHILDREN;
    Params.ExStyle |= Styles.ExStyle;
    if (Parent || ParentWindow)
        return;
    if (IsMdiChild())
        MdiChildParams(Params);
    else
        TopLevelParams(Params);
    if (FPlaced || IsDesigning())
        return;
    if (FPosition == poDefault || FPosition == poDefaultPosOnly)
        Params.X = Params.Y = CW_USEDEFAULT;
    const bool CanResize = FBorderStyle == bsSizeable || FBorderStyle == bsSizeToolWin;
    if (CanResize && (FPosition == poDefault || FPosition == poDefaultSizeOnly))
        Params.Width = Params.Height = CW_USEDEFAULT;
}

void TCustomForm::TopLevelParams(TCreateParams& Params)
{
    Params.Style &= ~static_cast<DWORD>(WS_CHILD);
    const bool IsMain = Application->BecomesMainForm(this);
    Params.WndParent = IsMain ? nullptr : Application->Handle;
    if (IsMain)
        Params.ExStyle |= WS_EX_APPWINDOW;
    if (FFormStyle == fsStayOnTop)
        Params.ExStyle |= WS_EX_TOPMOST;
}

TFormFrame TCustomForm::Frame() const
{
    const bool IsChild = IsMdiChild();
    // Without a caption, or with that of a dialog, children could not be moved or minimized.
    const bool NeedsCaption = IsChild && (FBorderStyle == bsNone || FBorderStyle == bsDialog);
    return TFormFrame::Of(NeedsCaption ? bsSizeable : FBorderStyle, FBorderIcons, IsChild || Parent || ParentWindow);
}

void TCustomForm::CreateWnd()
{
    if (IsMdiChild()) {
        // The main form's window brings its children's with it.
        NeedMdiParent()->HandleNeeded();
        if (HandleAllocated())
            return;
    }
    TScrollingWinControl::CreateWnd();
    UpdateMenu();
    UpdateIcon();
    if (FFormStyle == fsMDIForm && !Parent && !ParentWindow && !IsDesigning())
        CreateMdiFrame();
    if (FAlphaBlend || FTransparentColor)
        UpdateLayer();
}

void TCustomForm::DestroyWnd()
{
    DestroyMdiFrame();
    // A window takes its menu with it.
    SetControlFlag(csDestroyingHandle, true);
    if (FMenu)
        FMenu->WindowHandle = nullptr;
    TScrollingWinControl::DestroyWnd();
}

// The frame follows the properties while the window lives.
void TCustomForm::UpdateFrame()
{
    if (!HandleAllocated())
        return;
    HWND Window = Handle;
    TCreateParams Params;
    CreateParams(Params);
    const auto Style = static_cast<DWORD>(GetWindowLongW(Window, GWL_STYLE));
    const auto ExStyle = static_cast<DWORD>(GetWindowLongW(Window, GWL_EXSTYLE));
    SetWindowLongW(Window, GWL_STYLE, static_cast<LONG>((Params.Style & ~LivingStyles) | (Style & LivingStyles)));
    SetWindowLongW(Window, GWL_EXSTYLE,
                   static_cast<LONG>((Params.ExStyle & ~LivingExStyles) | (ExStyle & LivingExStyles)));
    UpdateMenu();
    SetWindowPos(Window, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    if (Showing)
        RedrawWindow(Window, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ERASE | RDW_ALLCHILDREN);
}

void TCustomForm::SetBorderIcons(TBorderIcons Value)
{
    if (FBorderIcons == Value)
        return;
    FBorderIcons = Value;
    UpdateFrame();
}

void TCustomForm::SetBorderStyle(TFormBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    // Forms that the user cannot size have no use for scroll bars, unless told otherwise.
    AutoScroll = Value == bsSizeable || Value == bsSizeToolWin;
    UpdateFrame();
    UpdateIcon();
}

void TCustomForm::SetBorderWidth(int Value)
{
    Value = std::max(Value, 0);
    if (FBorderWidth == Value)
        return;
    FBorderWidth = Value;
    UpdateFrame();
}

void TCustomForm::SetFormStyle(TFormStyle Value)
{
    if (FFormStyle == Value)
        return;
    if (!IsDesigning() && (IsMdiStyle(Value) || IsMdiStyle(FFormStyle))) {
        ChangeMdiStyle(Value);
        return;
    }
    FFormStyle = Value;
    if (!HandleAllocated() || Parent)
        return;
    // Under Wine a window that has an owner stays topmost, so it has none for the moment.
    const LONG_PTR Above = GetWindowLongPtrW(Handle, GWLP_HWNDPARENT);
    SetWindowLongPtrW(Handle, GWLP_HWNDPARENT, 0);
    SetWindowPos(Handle, Value == fsStayOnTop ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SetWindowLongPtrW(Handle, GWLP_HWNDPARENT, Above);
}

void TCustomForm::SetWindowState(TWindowState Value)
{
    constexpr int Commands[] = {SW_SHOWNORMAL, SW_MINIMIZE, SW_SHOWMAXIMIZED};
    if (FWindowState == Value)
        return;
    FWindowState = Value;
    if (Showing && !IsDesigning())
        ShowWindow(Handle, Commands[Value]);
}

TRect TCustomForm::GetClientRect() const
{
    if (HandleAllocated())
        return TScrollingWinControl::GetClientRect();
    const TSize Margins = Frame().Margins(ShowsMenu());
    return {0, 0, std::max(0, Width - static_cast<int>(Margins.cx) - 2 * FBorderWidth),
            std::max(0, Height - static_cast<int>(Margins.cy) - 2 * FBorderWidth)};
}

// ---- place

void TCustomForm::SetPosition(TPosition Value)
{
    if (FPosition == Value)
        return;
    FPosition = Value;
    FPlaced = false;
}

void TCustomForm::PlaceForShowing()
{
    if (std::exchange(FPlaced, true) || Parent || IsDesigning())
        return;
    if (IsMdiChild()) {
        PlaceMdiChild();
        return;
    }
    TRect Around;
    TCustomForm* Center = Application->MainForm;
    switch (FPosition) {
    case poScreenCenter: Around = Screen->WorkAreaOf(StartMonitor()); break;
    case poDesktopCenter: Around = Screen->DesktopRect; break;
    case poOwnerFormCenter:
        if (auto* OwnerForm = As<TCustomForm>(Owner))
            Center = OwnerForm;
        [[fallthrough]];
    case poMainFormCenter: Around = Center && Center != this ? Center->BoundsRect : Screen->WorkAreaRect; break;
    default: return;
    }
    // The caption stays where the mouse can reach it.
    const TRect Work = Screen->WorkAreaOf(Around);
    const int X = std::max<int>(Work.Left, Around.Left + (Around.Width() - Width) / 2);
    const int Y = std::max<int>(Work.Top, Around.Top + (Around.Height() - Height) / 2);
    SetBounds(X, Y, Width, Height);
}

// A rectangle on the display that DefaultMonitor names.
TRect TCustomForm::StartMonitor() const
{
    TCustomForm* Near = nullptr;
    if (DefaultMonitor == dmMainForm)
        Near = Application->MainForm;
    else if (DefaultMonitor == dmActiveForm)
        Near = Screen->ActiveCustomForm;
    if (Near && Near != this && Near->Visible)
        return Near->BoundsRect;
    return DefaultMonitor == dmDesktop ? BoundsRect : Rect(0, 0, 1, 1);
}

void TCustomForm::WMSize(TWMSize& Message)
{
    if (IsDestroying() || ControlState.Contains(csDestroyingHandle)) {
        DefaultHandler(Message);
        return;
    }
    // Children get sizes before they show.
    const bool IsState = !IsMdiChild() || (GetWindowLongW(Handle, GWL_STYLE) & WS_VISIBLE);
    if (!IsDesigning() && IsState) {
        if (Message.WParam == SIZE_RESTORED)
            FWindowState = wsNormal;
        else if (Message.WParam == SIZE_MINIMIZED)
            FWindowState = wsMinimized;
        else if (Message.WParam == SIZE_MAXIMIZED)
            FWindowState = wsMaximized;
    }
    Inherited(Message);
    if (Application->MainForm == this)
        Application->MainFormResized(Message.WParam == SIZE_MINIMIZED);
}

void TCustomForm::WMGetMinMaxInfo(TMessage& Message)
{
    Inherited(Message);
    auto& Info = *reinterpret_cast<MINMAXINFO*>(Message.LParam);
    const TSizeConstraints* Limits = Constraints;
    auto Limit = [](LONG& Field, int Value) {
        if (Value > 0)
            Field = Value;
    };
    Limit(Info.ptMinTrackSize.x, Limits->GetMinWidth());
    Limit(Info.ptMinTrackSize.y, Limits->GetMinHeight());
    Limit(Info.ptMaxTrackSize.x, Limits->GetMaxWidth());
    Limit(Info.ptMaxTrackSize.y, Limits->GetMaxHeight());
}

// ---- the rim

void TCustomForm::WMNCCalcSize(TMessage& Message)
{
    Inherited(Message);
    InflateRect(*reinterpret_cast<TRect*>(Message.LParam), -FBorderWidth, -FBorderWidth);
}

void TCustomForm::WMNCPaint(TMessage& Message)
{
    Inherited(Message);
    if (FBorderWidth == 0)
        return;
    TRect Window;
    GetWindowRect(Handle, &Window);
    const TPoint Origin = ClientOrigin - Window.TopLeft();
    TRect Inner = ClientRect;
    OffsetRect(Inner, Origin.X, Origin.Y);
    TRect Outer = Inner;
    InflateRect(Outer, FBorderWidth, FBorderWidth);
    HDC DC = GetWindowDC(Handle);
    ExcludeClipRect(DC, Inner.Left, Inner.Top, Inner.Right, Inner.Bottom);
    FillRect(DC, &Outer, GetBrush()->Handle);
    ReleaseDC(Handle, DC);
}

// ---- layers

void TCustomForm::SetAlphaBlend(bool Value)
{
    if (FAlphaBlend == Value)
        return;
    FAlphaBlend = Value;
    UpdateLayer();
}

void TCustomForm::SetAlphaBlendValue(uint8_t Value)
{
    if (FAlphaBlendValue == Value)
        return;
    FAlphaBlendValue = Value;
    UpdateLayer();
}

void TCustomForm::SetTransparentColor(bool Value)
{
    if (FTransparentColor == Value)
        return;
    FTransparentColor = Value;
    UpdateLayer();
}

void TCustomForm::SetTransparentColorValue(TColor Value)
{
    if (FTransparentColorValue == Value)
        return;
    FTransparentColorValue = Value;
    UpdateLayer();
}

void TCustomForm::UpdateLayer()
{
    if (!HandleAllocated() || IsDesigning())
        return;
    const LONG ExStyle = GetWindowLongW(Handle, GWL_EXSTYLE);
    if (!FAlphaBlend && !FTransparentColor) {
        SetWindowLongW(Handle, GWL_EXSTYLE, ExStyle & ~WS_EX_LAYERED);
        RedrawWindow(Handle, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ERASE | RDW_ALLCHILDREN);
        return;
    }
    SetWindowLongW(Handle, GWL_EXSTYLE, ExStyle | WS_EX_LAYERED);
    SetLayeredWindowAttributes(
        Handle, ColorToRGB(FTransparentColorValue), FAlphaBlendValue,
        static_cast<DWORD>((FAlphaBlend ? LWA_ALPHA : 0) | (FTransparentColor ? LWA_COLORKEY : 0)));
}

// The window of a form: frame, place, state, menu, icon.
#include "vcl/forms/Application.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/FormFrame.h"
#include "vcl/forms/FormPlace.h"
#include "vcl/forms/MdiFrame.h"
#include "vcl/forms/Screen.h"
#include "vcl/graphics/Brush.h"

#include <algorithm>

namespace {

// Style bits that the form's properties do not decide: they stay as the window has them.
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
    if (FMdiChild.IsOne())
        FMdiChild.SetWindowParams(Params);
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
    const bool IsChild = FMdiChild.IsOne();
    // Without a caption, or with that of a dialog, children could not be moved or minimized.
    const bool NeedsCaption = IsChild && (FBorderStyle == bsNone || FBorderStyle == bsDialog);
    return TFormFrame::Of(NeedsCaption ? bsSizeable : FBorderStyle, FBorderIcons, IsChild || Parent || ParentWindow);
}

void TCustomForm::CreateWnd()
{
    if (FMdiChild.IsOne()) {
        // The main form's window brings its children's with it.
        TMdiChildPart::NeedMainForm()->HandleNeeded();
        if (HandleAllocated())
            return;
    }
    TScrollingWinControl::CreateWnd();
    FMenu.Update();
    UpdateIcon();
    if (FFormStyle == fsMDIForm && !Parent && !ParentWindow && !IsDesigning())
        CreateMdiFrame();
    if (FLayer.IsNeeded())
        FLayer.Update();
}

void TCustomForm::DestroyWnd()
{
    DestroyMdiFrame();
    // Destroying a window destroys its menu, too.
    SetControlFlag(csDestroyingHandle, true);
    FMenu.LeaveWindow();
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
    FMenu.Update();
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
    const TSize Margins = Frame().Margins(FMenu.IsShown());
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
    if (FMdiChild.IsOne())
        PlaceMdiChild(this);
    else
        PlaceOnScreen(this);
}

void TCustomForm::WMSize(TWMSize& Message)
{
    if (IsDestroying() || ControlState.Contains(csDestroyingHandle)) {
        DefaultHandler(Message);
        return;
    }
    // MDI children get WM_SIZE before they are shown; that does not change WindowState.
    const bool IsState = !FMdiChild.IsOne() || (GetWindowLongW(Handle, GWL_STYLE) & WS_VISIBLE);
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

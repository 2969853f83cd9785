// The life of a control's window.
#include "vcl/classes/StillThere.h"
#include "vcl/controls/Mouse.h"
#include "vcl/controls/WinControl.h"
#include "vcl/controls/WindowClass.h"
#include "vcl/system/Scope.h"

#include <algorithm>

HWND TWinControl::GetHandle()
{
    HandleNeeded();
    return FHandle;
}

void TWinControl::HandleNeeded()
{
    if (FHandle)
        return;
    if (TWinControl* Parent = GetParent())
        Parent->HandleNeeded();
    // Creating the parent's window creates those of its visible children.
    if (!FHandle)
        CreateHandle();
}

void TWinControl::CreateHandle()
{
    if (FHandle)
        return;
    CreateWnd();
    if (!FHandle)
        return;
    // Later siblings lie on top of earlier ones, in whatever order their windows are created.
    if (TWinControl* Parent = GetParent())
        Parent->RestoreWindowOrder(this);
}

void TWinControl::CreateParams(TCreateParams& Params)
{
    Params.Caption = GetText();
    Params.WinClassName = ToWide(ClassName());
    Params.Style = WS_CHILD | WS_CLIPSIBLINGS;
    if (GetControlStyle().Contains(csAcceptsControls)) {
        Params.Style |= WS_CLIPCHILDREN;
        Params.ExStyle |= WS_EX_CONTROLPARENT;
    }
    if (!GetEnabled() && !IsDesigning())
        Params.Style |= WS_DISABLED;
    if (FTabStop)
        Params.Style |= WS_TABSTOP;
    if (std::exchange(FCreateVisible, false))
        Params.Style |= WS_VISIBLE;
    Params.X = GetLeft();
    Params.Y = GetTop();
    Params.Width = GetWidth();
    Params.Height = GetHeight();
    Params.WndParent = GetParent() ? GetParent()->GetHandle() : FParentWindow;
    Params.WindowClass.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    Params.WindowClass.lpfnWndProc = &DefWindowProcW;
    Params.WindowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    Params.WindowClass.hInstance = GetModuleHandleW(nullptr);
}

void TWinControl::CreateSubClass(TCreateParams& Params, const wchar_t* ControlClassName)
{
    constexpr UINT OwnStyles = CS_OWNDC | CS_CLASSDC | CS_PARENTDC | CS_GLOBALCLASS;
    HINSTANCE Instance = Params.WindowClass.hInstance;
    WNDCLASSEXW Class{};
    Class.cbSize = sizeof Class;
    if (!GetClassInfoExW(nullptr, ControlClassName, &Class) && !GetClassInfoExW(Instance, ControlClassName, &Class))
        throw EOSError("Window class " + FromWide(ControlClassName) + " does not exist");
    Class.style &= ~OwnStyles;
    Class.hInstance = Instance;
    Params.WindowClass = Class;
}

void TWinControl::CreateWnd()
{
    TCreateParams Params;
    CreateParams(Params);
    if (!Params.WndParent && (Params.Style & WS_CHILD))
        throw EInvalidOperation("Control '" + GetName() + "' has no parent window");
    FDefWndProc = Params.WindowClass.lpfnWndProc;
    CreateWindowHandle(Params);
    SendMessageW(FHandle, WM_SETFONT, reinterpret_cast<WPARAM>(GetFont()->GetHandle()), TRUE);
    UpdateBounds();
    if (GetControlCount() > 0)
        Realign();
    AdjustSize();
}

void TWinControl::CreateWindowHandle(const TCreateParams& Params)
{
    FHandle = TWindowClass::CreateWindowFor(*this, Params);
}

void TWinControl::DestroyWindowHandle()
{
    const TStillThere Still(this);
    TMouse::WindowGone(*this);
    if (!Still || !FHandle)
        return;
    SetControlFlag(csDestroyingHandle, true);
    SetControlFlag(csLButtonDown, false);
    SetControlFlag(csClicked, false);
    FShowing = false;
    FWindowGoes = true;
    DestroyWindow(FHandle);
    if (!Still)
        return;
    FWindowGoes = false;
    FHandle = nullptr;
    SetControlFlag(csDestroyingHandle, false);
}

void TWinControl::DestroyWnd()
{
    // The window holds the text; keep it for the next one.
    TControl::StoreText(GetText());
    DestroyWindowHandle();
}

void TWinControl::DestroyHandle()
{
    if (!FHandle || FWindowGoes)
        return;
    const TStillThere Still(this);
    for (size_t I = 0; Still && I < FChildren.Windows().size(); ++I)
        FChildren.Windows()[I]->DestroyHandle();
    if (Still)
        DestroyWnd();
}

void TWinControl::SetParent(TWinControl* Value)
{
    const TWinControl* Before = GetParent();
    const bool MovesOver =
        FHandle && Before && Value && Before->FShowing && Value->FShowing && !FormLink() && !IsDestroying();
    const TStillThere Still(this);
    const bool Outer = std::exchange(FMovesOver, MovesOver);
    TScopeExit End([&] {
        if (!Still)
            return;
        FMovesOver = Outer;
        // The new parent has raised an exception: the window would be left without one.
        if (!GetParent() && Value)
            DestroyHandle();
    });
    inherited::SetParent(Value);
}

void TWinControl::TakeWindow(TWinControl& Child)
{
    ::SetParent(Child.FHandle, FHandle);
    RestoreWindowOrder(&Child);
}

void TWinControl::SetParentWindow(HWND Value)
{
    if (GetParent() || FParentWindow == Value)
        return;
    DestroyHandle();
    FParentWindow = Value;
    UpdateControlState();
}

void TWinControl::UpdateControlState()
{
    TWinControl* Top = this;
    while (TWinControl* Parent = Top->GetParent()) {
        Top = Parent;
        if (!Top->FShowing)
            return;
    }
    if (Top->FormLink() || Top->FParentWindow)
        UpdateShowing();
}

void TWinControl::UpdateShowing()
{
    bool Show = (GetVisible() || (IsDesigning() && !GetControlStyle().Contains(csNoDesignVisible))) &&
                !GetControlState().Contains(csReadingState);
    if (Show) {
        if (!FHandle) {
            // While the parent is not visible yet the window can be created visible, which saves a call to show it.
            FCreateVisible = GetParent() && !IsWindowVisible(GetParent()->GetHandle());
            CreateHandle();
        }
        const TStillThere Still(this);
        for (size_t I = 0; Still && I < FChildren.Windows().size(); ++I)
            FChildren.Windows()[I]->UpdateShowing();
        if (!Still)
            return;
    }
    if (FHandle && FShowing != Show) {
        FShowing = Show;
        Perform(CM_SHOWINGCHANGED);
    }
}

void TWinControl::RestoreWindowOrder(TWinControl* Control)
{
    // Directly below the next sibling that has a window; it is on top already when there is none.
    if (HWND Above = FChildren.WindowAbove(Control))
        SetWindowPos(Control->FHandle, Above, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void TWinControl::UpdateBounds()
{
    if (IsIconic(FHandle))
        return;
    TRect R;
    GetWindowRect(FHandle, &R);
    HWND ParentHandle = GetAncestor(FHandle, GA_PARENT);
    if ((GetWindowLongW(FHandle, GWL_STYLE) & WS_CHILD) && ParentHandle)
        MapWindowPoints(nullptr, ParentHandle, reinterpret_cast<POINT*>(&R), 2);
    FLeft = R.Left;
    FTop = R.Top;
    FWidth = R.Width();
    FHeight = R.Height();
    UpdateAnchorRules();
}

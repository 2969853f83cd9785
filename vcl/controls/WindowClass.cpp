#include "vcl/controls/WindowClass.h"

#include "vcl/controls/WinControl.h"

namespace {

// The control whose window is being created: the first messages arrive before its user data is set.
TWinControl* Creating = nullptr;

[[noreturn]] void RaiseSystemError(const char* What)
{
    throw EOSError(std::string("System Error. Code: ") + std::to_string(GetLastError()) + " (" + What + ")");
}

} // namespace

void TWindowClass::Register(const TCreateParams& Params)
{
    WNDCLASSEXW Class = Params.WindowClass;
    WNDCLASSEXW Existing{};
    Existing.cbSize = sizeof Existing;
    const wchar_t* Name = Params.WinClassName.c_str();
    if (GetClassInfoExW(Class.hInstance, Name, &Existing)) {
        if (Existing.lpfnWndProc == &WindowProcedure && Existing.style == Class.style)
            return;
        UnregisterClassW(Name, Class.hInstance);
    }
    Class.cbSize = sizeof Class;
    Class.lpfnWndProc = &WindowProcedure;
    Class.lpszClassName = Name;
    if (!RegisterClassExW(&Class) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS)
        RaiseSystemError("RegisterClass");
}

HWND TWindowClass::CreateWindowFor(TWinControl& Control, const TCreateParams& Params)
{
    Register(Params);
    TWinControl* Outer = std::exchange(Creating, &Control);
    HWND Window = CreateWindowExW(Params.ExStyle, Params.WinClassName.c_str(), TWideText(Params.Caption).c_str(),
                                  Params.Style, Params.X, Params.Y, Params.Width, Params.Height, Params.WndParent,
                                  nullptr, Params.WindowClass.hInstance, nullptr);
    Creating = Outer;
    if (!Window)
        RaiseSystemError("CreateWindow");
    return Window;
}

void TWindowClass::ReturnToSystem(HWND Window, WNDPROC Procedure)
{
    SetWindowLongPtrW(Window, GWLP_USERDATA, 0);
    SetWindowLongPtrW(Window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
}

TWinControl* TWindowClass::ControlOf(HWND Window)
{
    // This is 0 for windows of other programs, and another procedure for other classes.
    if (!Window || reinterpret_cast<WNDPROC>(GetClassLongPtrW(Window, GCLP_WNDPROC)) != &WindowProcedure)
        return nullptr;
    return reinterpret_cast<TWinControl*>(GetWindowLongPtrW(Window, GWLP_USERDATA));
}

LRESULT CALLBACK TWindowClass::WindowProcedure(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    auto* Control = reinterpret_cast<TWinControl*>(GetWindowLongPtrW(Window, GWLP_USERDATA));
    if (!Control && Creating) {
        Control = std::exchange(Creating, nullptr);
        Control->FHandle = Window;
        SetWindowLongPtrW(Window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(Control));
    }
    if (!Control)
        return DefWindowProcW(Window, Msg, WParam, LParam);
    TMessage Message{Msg, WParam, LParam, 0};
    Control->MainWndProc(Message);
    return Message.Result;
}

TWinControl* FindControl(HWND Window)
{
    return TWindowClass::ControlOf(Window);
}

TWinControl* FindEnclosingControl(HWND Window)
{
    for (; Window; Window = GetAncestor(Window, GA_PARENT))
        if (TWinControl* Control = FindControl(Window))
            return Control;
    return nullptr;
}

TControl* FindDragTarget(const TPoint& Pos, bool AllowDisabled)
{
    // WindowFromPoint skips disabled windows, so the search goes down from the window that it finds.
    TWinControl* Window = FindEnclosingControl(WindowFromPoint(Pos));
    if (!Window)
        return nullptr;
    TControl* Target = Window;
    while (auto* Parent = As<TWinControl>(Target)) {
        TControl* Child = Parent->ControlAtPos(Parent->ScreenToClient(Pos), AllowDisabled, true);
        if (!Child)
            break;
        Target = Child;
    }
    return Target;
}

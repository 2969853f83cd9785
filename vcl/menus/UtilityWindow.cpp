#include "vcl/menus/UtilityWindow.h"

#include "vcl/graphics/GraphicErrors.h"
#include "vcl/system/Guard.h"
#include "vcl/system/LiveCount.h"

#include <memory>

namespace {

constexpr wchar_t ClassName[] = L"TessaryUtilityWindow";

LRESULT CALLBACK UtilityProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    auto* Held = reinterpret_cast<TWndMethod*>(GetWindowLongPtrW(Window, GWLP_USERDATA));
    if (!Held)
        return DefWindowProcW(Window, Msg, WParam, LParam);
    const TWndMethod Method = *Held; // the method may end the window

    TMessage Message{.Msg = Msg, .WParam = WParam, .LParam = LParam};
    Guarded(Method.Data(), [&] { Method(Message); });
    return Message.Result;
}

void RegisterUtilityClass()
{
    static const bool Registered = [] {
        WNDCLASSW Class{};
        Class.lpfnWndProc = &UtilityProc;
        Class.hInstance = GetModuleHandleW(nullptr);
        Class.lpszClassName = ClassName;
        return RegisterClassW(&Class) != 0;
    }();
    (void)Registered;
}

} // namespace

HWND AllocateHWnd(const TWndMethod& Method)
{
    RegisterUtilityClass();
    auto Holder = std::make_unique<TWndMethod>(Method);
    HWND Window = CreateWindowExW(WS_EX_TOOLWINDOW, ClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
    if (!Window)
        RaiseOutOfResources();
    // Not earlier: messages would come before the caller has the handle.
    SetWindowLongPtrW(Window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(Holder.release()));
    CountLiveHandle(+1);
    return Window;
}

void DeallocateHWnd(HWND Window)
{
    if (!Window)
        return;
    std::unique_ptr<TWndMethod> Holder(reinterpret_cast<TWndMethod*>(SetWindowLongPtrW(Window, GWLP_USERDATA, 0)));
    DestroyWindow(Window);
    CountLiveHandle(-1);
}

void DefaultWindowProc(HWND Window, TMessage& Message)
{
    Message.Result = DefWindowProcW(Window, Message.Msg, Message.WParam, Message.LParam);
}

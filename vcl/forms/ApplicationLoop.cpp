// The message loop of TApplication, and its exceptions.
#include "vcl/forms/Application.h"

#include "vcl/controls/Mouse.h"
#include "vcl/controls/WinControl.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/HintController.h"
#include "vcl/forms/MdiFrame.h"
#include "vcl/menus/PopupMenu.h"
#include "vcl/system/Guard.h"

#include <cstdlib>
#include <utility>

void TApplication::Run()
{
    // The forms are deleted before the program's static objects, which their handlers may use.
    static const bool Registered = std::atexit([] {
                                       if (Application)
                                           Application->DestroyComponents();
                                   }) == 0;
    (void)Registered;

    FTerminated = false;
    if (!FMainForm)
        return;
    if (ShowMainForm)
        Guarded(this, [this] { FMainForm->Visible = true; });
    while (!FTerminated)
        HandleMessage();
}

void TApplication::Terminate()
{
    PostQuitMessage(0);
}

void TApplication::ProcessMessages()
{
    while (ProcessMessage()) {
    }
    FreeReleased(FLoopLevel + 1);
}

void TApplication::HandleMessage()
{
    if (!ProcessMessage())
        DoApplicationIdle();
}

void TApplication::DoApplicationIdle()
{
    FreeReleased(FLoopLevel + 1);
    bool Done = true;
    Guarded(this, [&] { OnIdle(this, Done); });
    if (Done && !FTerminated)
        WaitMessage();
}

bool TApplication::ProcessMessage()
{
    MSG Msg;
    if (!PeekMessageW(&Msg, nullptr, 0, 0, PM_REMOVE))
        return false;
    if (Msg.message == WM_QUIT) {
        FTerminated = true;
        // Outer message loops look at FTerminated.
        return false;
    }
    ++FLoopLevel;
    Guarded(this, [&] { Dispatch(Msg); });
    const int Level = FLoopLevel--;
    FreeReleased(Level);
    return true;
}

void TApplication::Dispatch(MSG& Msg)
{
    bool Handled = false;
    OnMessage(Msg, Handled);
    if (Handled)
        return;
    if (Msg.message == WM_MOUSEMOVE || Msg.message == WM_NCMOUSEMOVE)
        FHints->PointerMoved(Msg.pt);
    TMouse::FollowOverForeignWindow(Msg);
    const TCustomForm* Main = FMainForm;
    if (Main && Main->FMdiFrame && Main->FMdiFrame->TranslateKey(Msg))
        return;
    if (IsKeyMessage(Msg))
        return;
    TranslateMessage(&Msg);
    DispatchMessageW(&Msg);
}

// ---- keys

namespace {

bool PopupMenusWant(TWinControl* Control, TShortCut ShortCut)
{
    for (TControl* Each = Control; Each; Each = Each->Parent)
        if (TPopupMenu* Menu = Each->PopupMenu; Menu && Menu->IsShortCut(ShortCut))
            return true;
    return false;
}

} // namespace

bool TApplication::IsShortCut(TWinControl* Control, TWMKey& Message)
{
    if (PopupMenusWant(Control, KeyMessageToShortCut(Message)))
        return true;
    TCustomForm* Form = GetParentForm(Control);
    if (Form && Form->IsShortCut(Message))
        return true;
    bool Handled = false;
    OnShortCut(Message, Handled);
    if (Handled)
        return true;
    // The main form's menu works from every form, as long as none is modal.
    TCustomForm* Main = FMainForm;
    return Main && Form != Main && Main->HandleAllocated() && IsWindowEnabled(Main->Handle) &&
           Main->IsShortCut(Message);
}

bool TApplication::IsKeyMessage(MSG& Msg)
{
    if (Msg.message < WM_KEYFIRST || Msg.message > WM_KEYLAST || GetCapture())
        return false;
    TWinControl* Control = FindEnclosingControl(Msg.hwnd);
    if (!Control || Control->ComponentState.Contains(csDesigning))
        return false;
    if (Msg.message == WM_KEYDOWN || Msg.message == WM_SYSKEYDOWN) {
        TWMKey Message{{CN_BASE + Msg.message, Msg.wParam, Msg.lParam, 0}};
        if (IsShortCut(Control, Message))
            return true;
        // A handler may have closed the form.
        Control = FindEnclosingControl(Msg.hwnd);
        if (!Control)
            return true;
    }
    return SendMessageW(Control->Handle, CN_BASE + Msg.message, Msg.wParam, Msg.lParam) != 0;
}

// ---- forms that are done

void TApplication::ReleaseLater(TCustomForm* Form)
{
    for (const TReleased& Each : FReleased)
        if (Each.Form == Form)
            return;
    FReleased.push_back({Form, FLoopLevel});
    // Wakes the loop up.
    PostMessageW(Handle, WM_NULL, 0, 0);
}

// The message at this level has been handled: no handler that has called Release at it, or deeper, is running any more.
void TApplication::FreeReleased(int Level)
{
    for (size_t I = 0; I < FReleased.size();) {
        if (FReleased[I].Level != 0 && FReleased[I].Level < Level) {
            ++I;
            continue;
        }
        TCustomForm* Form = FReleased[I].Form;
        FReleased.erase(FReleased.begin() + static_cast<ptrdiff_t>(I));
        Guarded(this, [Form] { delete Form; });
        I = 0; // deleting a form may release or delete others
    }
}

// ---- exceptions

void TApplication::HandleException(TObject* Sender)
{
    if (HWND Capture = GetCapture())
        SendMessageW(Capture, WM_CANCELMODE, 0, 0);
    auto Report = [&](Exception& E) {
        if (OnException)
            OnException(Sender, &E);
        else
            ShowException(&E);
    };
    try {
        try {
            throw;
        } catch (const EAbort&) {
            // EAbort is silent by definition.
        } catch (Exception& E) {
            Report(E);
        } catch (const std::exception& Other) {
            Exception E(Other.what());
            Report(E);
        } catch (...) {
            Exception E("Unknown exception");
            Report(E);
        }
    } catch (Exception& E) {
        ShowException(&E); // from OnException itself; nobody above this could take it
    } catch (...) {
        Exception E("Unknown exception");
        ShowException(&E);
    }
}

void TApplication::ShowException(Exception* E)
{
    AnsiString Text = E->Message;
    if (!Text.empty() && Text.back() != '.')
        Text += '.';
    MessageBox(Text, FTitle, MB_OK | MB_ICONSTOP);
}

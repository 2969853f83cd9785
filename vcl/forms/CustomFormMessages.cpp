// Icon, menu and other messages of a form's window.
#include "vcl/forms/Application.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/MdiFrame.h"
#include "vcl/forms/Screen.h"

// ---- icon

void TCustomForm::IconChanged(TObject*)
{
    Perform(CM_ICONCHANGED);
}

void TCustomForm::CMIconChanged(TMessage&)
{
    UpdateIcon();
}

HICON TCustomForm::GetIconHandle()
{
    HICON Icon = FIcon.Empty ? Application->Icon->Handle : FIcon.Handle;
    return Icon ? Icon : LoadIconW(nullptr, IDI_APPLICATION);
}

void TCustomForm::UpdateIcon()
{
    if (!HandleAllocated() || Parent || ParentWindow)
        return;
    HICON Icon = FBorderStyle != bsDialog || FMdiChild.IsOne() ? GetIconHandle() : nullptr;
    SendMessageW(Handle, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(Icon));
}

// ---- menu

void TCustomForm::SetMenu(TMainMenu* Value)
{
    if (FMenu.Get() == Value)
        return;
    FMenu.Set(Value);
    // The client size that a form file asks for is the one below the menu.
    if (IsLoading())
        FReadSize.Apply();
}

void TCustomForm::WMCommand(TWMCommand& Message)
{
    if (Message.LParam == 0 && Menu && Menu->DispatchCommand(static_cast<uint16_t>(Message.ItemID())))
        return;
    Inherited(Message);
}

void TCustomForm::WMInitMenuPopup(TMessage& Message)
{
    if (Menu)
        Menu->DispatchPopup(reinterpret_cast<HMENU>(Message.WParam));
    // The handlers may have filled the window menu anew.
    if (FMdiFrame && FWindowMenu && reinterpret_cast<HMENU>(Message.WParam) == FWindowMenu->Handle)
        FMdiFrame->UpdateWindowList();
    Inherited(Message);
}

void TCustomForm::WMMenuDrawing(TMessage& Message)
{
    if (!Menu || !Menu->DispatchDrawing(Message))
        Inherited(Message);
}

void TCustomForm::WMMenuSelect(TMessage& Message)
{
    Application->Hint = Menu ? Menu->HintOf(Message) : AnsiString();
    Inherited(Message);
}

// ---- other messages of the window

void TCustomForm::WMActivate(TMessage& Message)
{
    if (IsDesigning()) {
        Inherited(Message);
        return;
    }
    // The system would give the focus to the form itself.
    const bool Minimized = Message.WParamHi() != 0;
    if (Message.WParamLo() != WA_INACTIVE && !Minimized)
        FFocus.SetWindowFocus();
}

void TCustomForm::WMSetCursor(TMessage& Message)
{
    if (Message.LParamLo() == HTCLIENT && Screen->Cursor != crDefault) {
        ::SetCursor(Screen->Cursors[Screen->Cursor]);
        Message.Result = 1;
        return;
    }
    Inherited(Message);
}

void TCustomForm::WMHelp(TMessage& Message)
{
    const auto& Info = *reinterpret_cast<HELPINFO*>(Message.LParam);
    THelpContext Context = 0;
    if (Info.iContextType == HELPINFO_WINDOW)
        for (TControl* Each = FindControl(static_cast<HWND>(Info.hItemHandle)); Each && Context == 0;
             Each = Each->Parent)
            Context = Each->HelpContext;
    bool CallHelp = true;
    if (Context != 0 &&
        (OnHelp(HELP_CONTEXT, Context, CallHelp) || Application->OnHelp(HELP_CONTEXT, Context, CallHelp)))
        Message.Result = 1;
}

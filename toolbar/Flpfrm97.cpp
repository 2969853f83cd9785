#include "toolbar/Flpfrm97.h"

#include "toolbar/ToolBar.h"
#include "toolbar/ToolBarPosition.h"
#include "vcl/classes/StillThere.h"
#include "vcl/forms/Application.h"
#include "vcl/system/ClassBuilder.h"

void TFPForm97::Describe(TClassBuilder<TFPForm97>& Class)
{
    Class.Method<&Self::FormClose>("FormClose");
    Class.Method<&Self::FormCreate>("FormCreate");
    Class.Method<&Self::FormDeactivate>("FormDeactivate");
    Class.Method<&Self::FormMouseDown>("FormMouseDown");
    Class.Method<&Self::FormMouseMove>("FormMouseMove");
    Class.Method<&Self::FormMouseUp>("FormMouseUp");
    Class.Method<&Self::FormResize>("FormResize");

    Class.Message<&Self::WMNCHitTest>(WM_NCHITTEST);
    Class.Message<&Self::WMGetMinMaxInfo>(WM_GETMINMAXINFO);
}

TFPForm97::TFPForm97(TComponent* AOwner) : TForm(AOwner)
{
    LoadForm(this);
}

void TFPForm97::BeforeDestruction()
{
    if (FToolBar)
        FToolBar->LeaveFrame();
    inherited::BeforeDestruction();
}

void TFPForm97::CarryBar(TkelToolBar& Bar, bool Resizable, bool CloseBox)
{
    BorderStyle = Resizable ? bsSizeToolWin : bsToolWindow;
    AutoScroll = false;
    BorderIcons = CloseBox ? TBorderIcons{biSystemMenu} : TBorderIcons{};
    ClientWidth = Bar.Width;
    ClientHeight = Bar.Height;
    Caption = Bar.Caption;
    FToolBar = &Bar;
    FForm = GetParentForm(&Bar);
    if (!FForm)
        FForm = As<TCustomForm>(Bar.Owner);
    if (!FForm)
        return;
    FFormHook.Install(FForm, {this, &TFPForm97::FormWndProc});
    SetOwnerWindow(FormWindow());
}

void TFPForm97::ForgetBar()
{
    FToolBar = nullptr;
    FFormHook.Remove();
    FForm = nullptr;
}

void TFPForm97::ShowWithForm()
{
    if (!FForm || FForm->Showing)
        Show();
}

TPoint TFPForm97::BarOffset() const
{
    const int Border = (Width - ClientWidth) / 2;
    return {Border, Height - ClientHeight - Border - CapSize};
}

void TFPForm97::FormCreate(TObject*)
{
    FToolBar = nullptr;
}

// Closing hides the bar, and with it the frame.
void TFPForm97::FormClose(TObject*, TCloseAction&)
{
    if (FToolBar)
        FToolBar->HidePanel();
}

void TFPForm97::FormDeactivate(TObject*)
{
    if (FToolBar)
        SaveToolBarPosition(FToolBar);
}

void TFPForm97::FormResize(TObject*)
{
    if (FToolBar)
        FToolBar->SetBounds(FToolBar->Left, FToolBar->Top, ClientWidth, ClientHeight);
}

// ---- the form that the bar comes from

// The window of the form, or of what that lies in. None while the form has none.
HWND TFPForm97::FormWindow() const
{
    return FForm && FForm->HandleAllocated() ? GetAncestor(FForm->Handle, GA_ROOT) : nullptr;
}

void TFPForm97::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    if (HWND Above = FormWindow())
        Params.WndParent = Above;
}

void TFPForm97::SetOwnerWindow(HWND Window)
{
    if (HandleAllocated() && Window)
        SetWindowLongPtrW(Handle, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(Window));
}

void TFPForm97::FormWndProc(TMessage& Message, const TWndMethod& Next)
{
    const TStillThere IsHere(this);
    const bool Appears = Message.Msg == CM_SHOWINGCHANGED && FForm->Showing;
    if (Appears) {
        // Before the form, which becomes active.
        SetOwnerWindow(FormWindow());
        Visible = FToolBar && FToolBar->Visible;
    } else if (Message.Msg == CM_RECREATEWND) {
        // The system destroys a window with the one that it belongs to.
        SetOwnerWindow(Application->Handle);
    }
    Next(Message);
    if (!IsHere || !FForm)
        return;
    switch (Message.Msg) {
    case CM_RECREATEWND: SetOwnerWindow(FormWindow()); break;
    case CM_SHOWINGCHANGED:
        if (!FForm->Showing)
            Hide();
        break;
    case WM_SIZE: ShowOwnedPopups(FForm->Handle, Message.WParam != SIZE_MINIMIZED); break;
    case WM_SHOWWINDOW:
        // With the form that the form belongs to.
        if (Message.LParam == SW_PARENTCLOSING || Message.LParam == SW_PARENTOPENING)
            ShowOwnedPopups(FForm->Handle, Message.WParam != 0);
        break;
    default: break;
    }
}

// ---- the mouse; the bar lies at the client area's origin, so coordinates mean the same to it

void TFPForm97::WMNCHitTest(TMessage& Message)
{
    Inherited(Message);
    if (Message.Result == HTCAPTION)
        Message.Result = HTCLIENT;
}

void TFPForm97::FormMouseDown(TObject*, TMouseButton Button, TShiftState Shift, int X, int Y)
{
    if (FToolBar)
        FToolBar->PublicMouseDown(Button, Shift, X, Y);
}

void TFPForm97::FormMouseMove(TObject*, TShiftState Shift, int X, int Y)
{
    if (FToolBar)
        FToolBar->PublicMouseMove(Shift, X, Y);
}

void TFPForm97::FormMouseUp(TObject*, TMouseButton Button, TShiftState Shift, int X, int Y)
{
    if (FToolBar)
        FToolBar->PublicMouseUp(Button, Shift, X, Y);
}

// Bars may be narrower than the system lets windows with a caption be.
void TFPForm97::WMGetMinMaxInfo(TMessage& Message)
{
    Inherited(Message);
    reinterpret_cast<MINMAXINFO*>(Message.LParam)->ptMinTrackSize = {};
}

#include "vcl/forms/CustomForm.h"
#include "vcl/classes/StillThere.h"

#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/MdiFrame.h"
#include "vcl/forms/Screen.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Guard.h"

#include <algorithm>

void TCustomForm::Describe(TClassBuilder<TCustomForm>& Class)
{
    Class.Publish("Width").Stored<&Self::IsFormSizeStored>();
    Class.Publish("Height").Stored<&Self::IsFormSizeStored>();

    Class.Declare<&Self::GetActiveControl, &Self::SetActiveControl>("ActiveControl");
    Class.Declare<&Self::GetAlphaBlend, &Self::SetAlphaBlend>("AlphaBlend").Default(false);
    Class.Declare<&Self::GetAlphaBlendValue, &Self::SetAlphaBlendValue>("AlphaBlendValue").Default(255);
    Class.Declare<&Self::GetAutoScroll, &Self::SetAutoScroll>("AutoScroll")
        .Stored<&Self::IsAutoScrollStored>()
        .ReadLast();
    Class.Declare<&Self::GetBorderIcons, &Self::SetBorderIcons>("BorderIcons")
        .Default(TBorderIcons{biSystemMenu, biMinimize, biMaximize});
    Class.Declare<&Self::GetBorderStyle, &Self::SetBorderStyle>("BorderStyle").Default(bsSizeable);
    Class.Declare<&Self::GetBorderWidth, &Self::SetBorderWidth>("BorderWidth").Default(0);
    Class.Declare<&Self::GetClientHeight, &Self::SetReadClientHeight>("ClientHeight")
        .Stored<&Self::IsClientSizeStored>();
    Class.Declare<&Self::GetClientWidth, &Self::SetReadClientWidth>("ClientWidth").Stored<&Self::IsClientSizeStored>();
    Class.Declare<&Self::GetTransparentColor, &Self::SetTransparentColor>("TransparentColor").Default(false);
    Class.Declare<&Self::GetTransparentColorValue, &Self::SetTransparentColorValue>("TransparentColorValue")
        .Default(clBlack);
    Class.Declare<&Self::UseDockManager, &Self::UseDockManager>("UseDockManager").Default(false);
    Class.Declare<&Self::DefaultMonitor, &Self::DefaultMonitor>("DefaultMonitor").Default(dmActiveForm);
    Class.Declare<&Self::DockSite, &Self::DockSite>("DockSite").Default(false);
    Class.Declare<&Self::GetFormStyle, &Self::SetFormStyle>("FormStyle").Default(fsNormal);
    Class.Declare<&Self::HelpFile, &Self::HelpFile>("HelpFile");
    Class.Declare<&Self::GetIcon, &Self::SetIcon>("Icon").Stored<&Self::IsIconStored>();
    Class.Declare<&Self::KeyPreview, &Self::KeyPreview>("KeyPreview").Default(false);
    Class.Declare<&Self::GetMenu, &Self::SetMenu>("Menu");
    Class.Declare<&Self::OldCreateOrder, &Self::OldCreateOrder>("OldCreateOrder");
    Class.Declare<&Self::GetObjectMenuItem, &Self::SetObjectMenuItem>("ObjectMenuItem");
    Class.Declare<&Self::PixelsPerInch, &Self::PixelsPerInch>("PixelsPerInch").NotStored();
    Class.Declare<&Self::GetPosition, &Self::SetPosition>("Position").Default(poDesigned);
    Class.Declare<&Self::PrintScale, &Self::PrintScale>("PrintScale").Default(poProportional);
    Class.Declare<&Self::Scaled, &Self::Scaled>("Scaled").Default(true);
    Class.Declare<&Self::ScreenSnap, &Self::ScreenSnap>("ScreenSnap").Default(false);
    Class.Declare<&Self::SnapBuffer, &Self::SnapBuffer>("SnapBuffer").Default(10);
    Class.Declare<&Self::GetWindowState, &Self::SetWindowState>("WindowState").Default(wsNormal);
    Class.Declare<&Self::GetWindowMenu, &Self::SetWindowMenu>("WindowMenu");
    Class.DeclareEvent<&Self::OnActivate>("OnActivate");
    Class.DeclareEvent<&Self::OnClose>("OnClose");
    Class.DeclareEvent<&Self::OnCloseQuery>("OnCloseQuery");
    Class.DeclareEvent<&Self::OnCreate>("OnCreate");
    Class.DeclareEvent<&Self::OnDeactivate>("OnDeactivate");
    Class.DeclareEvent<&Self::OnDestroy>("OnDestroy");
    Class.DeclareEvent<&Self::OnHelp>("OnHelp");
    Class.DeclareEvent<&Self::OnHide>("OnHide");
    Class.DeclareEvent<&Self::OnPaint>("OnPaint");
    Class.DeclareEvent<&Self::OnShortCut>("OnShortCut");
    Class.DeclareEvent<&Self::OnShow>("OnShow");

    Class.Message<&Self::WMActivate>(WM_ACTIVATE);
    Class.Message<&Self::WMClose>(WM_CLOSE);
    Class.Message<&Self::WMCommand>(WM_COMMAND);
    Class.Message<&Self::WMGetMinMaxInfo>(WM_GETMINMAXINFO);
    Class.Message<&Self::WMHelp>(WM_HELP);
    for (UINT Each : {WM_DRAWITEM, WM_MEASUREITEM, WM_MENUCHAR})
        Class.Message<&Self::WMMenuDrawing>(Each);
    Class.Message<&Self::WMInitMenuPopup>(WM_INITMENUPOPUP);
    Class.Message<&Self::WMMDIActivate>(WM_MDIACTIVATE);
    Class.Message<&Self::WMMenuSelect>(WM_MENUSELECT);
    Class.Message<&Self::WMMouseActivate>(WM_MOUSEACTIVATE);
    Class.Message<&Self::WMNCCalcSize>(WM_NCCALCSIZE);
    Class.Message<&Self::WMNCPaint>(WM_NCPAINT);
    Class.Message<&Self::WMQueryEndSession>(WM_QUERYENDSESSION);
    Class.Message<&Self::WMSetCursor>(WM_SETCURSOR);
    Class.Message<&Self::WMSize>(WM_SIZE);
    Class.Message<&Self::WMSysColorChange>(WM_SYSCOLORCHANGE);
    Class.Message<&Self::CMActivate>(CM_ACTIVATE);
    Class.Message<&Self::CMColorChanged>(CM_COLORCHANGED);
    Class.Message<&Self::CMDeactivate>(CM_DEACTIVATE);
    Class.Message<&Self::CMDialogKey>(CM_DIALOGKEY);
    Class.Message<&Self::CMIconChanged>(CM_ICONCHANGED);
    Class.Message<&Self::CMShowingChanged>(CM_SHOWINGCHANGED);
}

TCustomForm::TCustomForm(TComponent* AOwner)
    : TScrollingWinControl(AOwner),
      PixelsPerInch(ScreenPixelsPerInch()),
      FCanvas(this),
      FFocus(this)
{
    ControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
    FIcon.OnChange = {this, &TCustomForm::IconChanged};
    TControl::SetVisible(false);
    SetBounds(0, 0, 320, 240);
    ParentColor = false;
    Color = clBtnFace;
    ParentFont = false;
    TScrollingWinControl::SetAutoScroll(true);
    Screen->AddForm(this);
    Application->BeingMade(this);
}

TCustomForm::~TCustomForm()
{
    FIcon.OnChange = nullptr;
    // Menus that belong to others outlive the window.
    if (Application)
        FMenu.Merge(false);
    FMenu.LeaveWindow();
    if (Application)
        Application->Forget(this);
    if (Screen)
        Screen->RemoveForm(this);
}

void TCustomForm::BeforeDestruction()
{
    SetState(csDestroying, true);
    DoDestroy();
    while (TForm* Child = FMdiFrame ? FMdiFrame->LowestChild() : nullptr)
        delete Child;
    // Without a window, deleting the controls one by one moves and paints nothing.
    if (Active && !Application->Terminated)
        ActivateNext();
    DestroyHandle();
    TScrollingWinControl::BeforeDestruction();
}

void TCustomForm::DoCreate()
{
    Guarded(this, [this] { OnCreate(this); });
}

void TCustomForm::DoDestroy()
{
    Guarded(this, [this] { OnDestroy(this); });
}

void TCustomForm::SetWindowMenu(TMenuItem* Value)
{
    if (FWindowMenu == Value)
        return;
    FWindowMenu = Value;
    if (FMdiFrame)
        FMdiFrame->UpdateMenu();
}

// ---- controls on the form

bool TCustomForm::GetActive() const
{
    if (!HandleAllocated())
        return false;
    HWND Window = const_cast<TCustomForm*>(this)->GetHandle();
    if (!(GetWindowLongW(Window, GWL_STYLE) & WS_CHILD))
        return GetActiveWindow() == Window;
    HWND Focus = GetFocus();
    return Focus == Window || IsChild(Window, Focus);
}

void TCustomForm::SetFocus()
{
    if (Active)
        return;
    if (!Visible || !Enabled)
        throw EInvalidOperation("Cannot focus a disabled or invisible window");
    FMdiChild.Focused();
    FFocus.SetWindowFocus();
}

void TCustomForm::FocusControl(TWinControl* Control)
{
    if (Control == this) {
        SetFocus();
        return;
    }
    const bool WasActive = Active;
    const TStillThere IsHere(this);
    FFocus.SetActive(Control);
    if (!IsHere)
        return;
    if (!WasActive)
        SetFocus();
    else if (FFocus.Active() == Control && !Control->Focused()) // a handler may have deleted it
        FFocus.SetWindowFocus();
}

bool TCustomForm::IsDesignMessage(TControl* Sender, TMessage& Message)
{
    return FDesigner && FDesigner->IsDesignMsg(Sender, Message);
}

bool TCustomForm::WantKey(TWinControl* Sender, TMessage& Message)
{
    if (!KeyPreview || Sender == this)
        return false;
    uint16_t Key = static_cast<uint16_t>(Message.WParam);
    char16_t Char = static_cast<char16_t>(Message.WParam);
    switch (Message.Msg) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: KeyDown(Key, KeyDataToShiftState(Message.LParam)); break;
    case WM_KEYUP:
    case WM_SYSKEYUP: KeyUp(Key, KeyDataToShiftState(Message.LParam)); break;
    case WM_CHAR:
        KeyPress(Char);
        Key = Char;
        break;
    default: return false;
    }
    Message.WParam = Key;
    return Key == 0;
}

bool TCustomForm::IsShortCut(TWMKey& Message)
{
    const TStillThere IsHere(this);
    bool Handled = false;
    OnShortCut(Message, Handled);
    return !IsHere || Handled || (Menu && Menu->IsShortCut(KeyMessageToShortCut(Message)));
}

void TCustomForm::CMDialogKey(TCMDialogKey& Message)
{
    const bool Alt = GetKeyState(VK_MENU) < 0;
    const bool Shift = GetKeyState(VK_SHIFT) < 0;
    const bool Control = GetKeyState(VK_CONTROL) < 0;
    TWinControl* Current = FFocus.Active();
    switch (Message.CharCode) {
    case VK_TAB:
        if (Alt || Control)
            break;
        SelectNext(Current, !Shift, true);
        Message.Result = 1;
        return;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
        if (Alt || !Current || !Current->Parent)
            break;
        Current->Parent->SelectNext(Current, Message.CharCode == VK_RIGHT || Message.CharCode == VK_DOWN, false);
        Message.Result = 1;
        return;
    default: break;
    }
    Inherited(Message);
}

void TCustomForm::CMActivate(TMessage&)
{
    if (FFormState.Contains(fsActivated))
        return;
    FFormState << fsActivated;
    FMenu.Update();
    FMenu.Merge(true);
    Activate();
}

void TCustomForm::CMDeactivate(TMessage&)
{
    if (!FFormState.Contains(fsActivated))
        return;
    FFormState >> fsActivated;
    Deactivate();
}

// ---- designing

void TCustomForm::SetDesigner(TDesignerHook* Value)
{
    FDesigner = Value;
    SetDesigning(Value != nullptr);
}

void TCustomForm::ValidateRename(TComponent* Component, std::string_view CurName, std::string_view NewName)
{
    TScrollingWinControl::ValidateRename(Component, CurName, NewName);
    if (FDesigner)
        FDesigner->ValidateRename(Component, CurName, NewName);
}

// ---- painting

void TCustomForm::PaintWindow(HDC DC)
{
    FCanvas.FreeHandle();
    FCanvas.SetHandle(DC);
    const TStillThere IsHere(this);
    if (FDesigner)
        FDesigner->PaintGrid();
    else
        Paint();
    if (IsHere)
        FCanvas.SetHandle(nullptr);
}

TBitmap* TCustomForm::GetFormImage()
{
    auto Image = std::make_unique<TBitmap>();
    Image->SetSize(ClientWidth, ClientHeight);
    PaintTo(Image->Canvas->Handle, 0, 0);
    return Image.release();
}

// ---- finding forms

TCustomForm* GetParentForm(const TControl* Control, bool TopForm)
{
    TCustomForm* Found = nullptr;
    for (auto* Each = const_cast<TControl*>(Control); Each; Each = Each->Parent)
        if (auto* Form = As<TCustomForm>(Each)) {
            Found = Form;
            if (!TopForm)
                break;
        }
    return Found;
}

TCustomForm* ValidParentForm(const TControl* Control, bool TopForm)
{
    if (TCustomForm* Form = GetParentForm(Control, TopForm))
        return Form;
    throw EInvalidOperation("Control '" + Control->GetName() + "' has no parent window");
}

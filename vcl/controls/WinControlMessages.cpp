// The messages of TWinControl.
#include "vcl/controls/ControlCanvas.h"
#include "vcl/controls/DragManager.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/Mouse.h"
#include "vcl/controls/WinControl.h"
#include "vcl/controls/WindowClass.h"
#include "vcl/controls/WindowPainter.h"
#include "vcl/graphics/Brush.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Guard.h"

void TWinControl::Describe(TClassBuilder<TWinControl>& Class)
{
    Class.Declare<&Self::GetCtl3D, &Self::SetCtl3D>("Ctl3D").Stored<&Self::IsCtl3DStored>();
    Class.Declare<&Self::GetDoubleBuffered, &Self::SetDoubleBuffered>("DoubleBuffered").Default(false);
    Class.Declare<&Self::GetParentCtl3D, &Self::SetParentCtl3D>("ParentCtl3D").Default(true);
    Class.Declare<&Self::GetTabOrder, &Self::SetTabOrder>("TabOrder").Default(-1);
    Class.Declare<&Self::GetTabStop, &Self::SetTabStop>("TabStop").Default(false);
    Class.DeclareEvent<&Self::OnEnter>("OnEnter");
    Class.DeclareEvent<&Self::OnExit>("OnExit");
    Class.DeclareEvent<&Self::OnKeyDown>("OnKeyDown");
    Class.DeclareEvent<&Self::OnKeyPress>("OnKeyPress");
    Class.DeclareEvent<&Self::OnKeyUp>("OnKeyUp");

    Class.Message<&Self::WMPaint>(WM_PAINT);
    Class.Message<&Self::WMEraseBkgnd>(WM_ERASEBKGND);
    Class.Message<&Self::WMReflect>(WM_COMMAND);
    Class.Message<&Self::WMReflect>(WM_NOTIFY);
    Class.Message<&Self::WMReflect>(WM_HSCROLL);
    Class.Message<&Self::WMReflect>(WM_VSCROLL);
    Class.Message<&Self::WMReflect>(WM_DRAWITEM);
    Class.Message<&Self::WMReflect>(WM_MEASUREITEM);
    Class.Message<&Self::WMReflect>(WM_COMPAREITEM);
    Class.Message<&Self::WMReflect>(WM_DELETEITEM);
    Class.Message<&Self::WMReflect>(WM_CHARTOITEM);
    Class.Message<&Self::WMReflect>(WM_VKEYTOITEM);
    Class.Message<&Self::WMReflect>(WM_PARENTNOTIFY);
    for (uint32_t Msg = WM_CTLCOLORMSGBOX; Msg <= WM_CTLCOLORSTATIC; ++Msg) {
        Class.Message<&Self::WMReflect>(Msg);
        Class.Message<&Self::CNCtlColor>(CN_BASE + Msg);
    }
    Class.Message<&Self::WMSetCursor>(WM_SETCURSOR);
    Class.Message<&Self::WMKeyDown>(WM_KEYDOWN);
    Class.Message<&Self::WMKeyDown>(WM_SYSKEYDOWN);
    Class.Message<&Self::WMKeyUp>(WM_KEYUP);
    Class.Message<&Self::WMKeyUp>(WM_SYSKEYUP);
    Class.Message<&Self::WMChar>(WM_CHAR);
    Class.Message<&Self::WMSize>(WM_SIZE);
    Class.Message<&Self::WMWindowPosChanged>(WM_WINDOWPOSCHANGED);
    Class.Message<&Self::WMNCDestroy>(WM_NCDESTROY);
    Class.Message<&Self::WMSysColorChange>(WM_SYSCOLORCHANGE);
    Class.Message<&Self::WMFontChange>(WM_FONTCHANGE);
    Class.Message<&Self::CNKeyDown>(CN_KEYDOWN);
    Class.Message<&Self::CNKeyDown>(CN_SYSKEYDOWN);
    Class.Message<&Self::CNKeyUp>(CN_KEYUP);
    Class.Message<&Self::CNChar>(CN_CHAR);
    Class.Message<&Self::CNSysChar>(CN_SYSCHAR);
    Class.Message<&Self::CMRecreateWnd>(CM_RECREATEWND);
    Class.Message<&Self::CMShowingChanged>(CM_SHOWINGCHANGED);
    Class.Message<&Self::CMVisibleChanged>(CM_VISIBLECHANGED);
    Class.Message<&Self::CMEnabledChanged>(CM_ENABLEDCHANGED);
    Class.Message<&Self::CMColorChanged>(CM_COLORCHANGED);
    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
    Class.Message<&Self::CMBorderChanged>(CM_BORDERCHANGED);
    Class.Message<&Self::CMCtl3DChanged>(CM_CTL3DCHANGED);
    Class.Message<&Self::CMParentCtl3DChanged>(CM_PARENTCTL3DCHANGED);
    Class.Message<&Self::CMCursorChanged>(CM_CURSORCHANGED);
    Class.Message<&Self::CMShowHintChanged>(CM_SHOWHINTCHANGED);
    Class.Message<&Self::CMBroadcast>(CM_DIALOGKEY);
    Class.Message<&Self::CMBroadcast>(CM_DIALOGCHAR);
    Class.Message<&Self::CMBroadcast>(CM_FOCUSCHANGED);
    Class.Message<&Self::CMEnter>(CM_ENTER);
    Class.Message<&Self::CMExit>(CM_EXIT);
    Class.Message<&Self::CMSysColorChange>(CM_SYSCOLORCHANGE);
}

void TWinControl::MainWndProc(TMessage& Message)
{
    const HWND Window = FHandle;
    try {
        if (TWndMethod& Hook = FWindowProc)
            Hook(Message);
        else
            WndProc(Message);
    } catch (...) {
        // The handler that throws may have deleted the control.
        ReportException(FindControl(Window) == this ? this : nullptr);
    }
    TControlCanvas::FreeHandles();
}

void TWinControl::DefaultHandler(TMessage& Message)
{
    if (!FHandle)
        return;
    WNDPROC Procedure = FDefWndProc ? FDefWndProc : &DefWindowProcW;
    Message.Result = CallWindowProcW(Procedure, FHandle, Message.Msg, Message.WParam, Message.LParam);
}

void TWinControl::WndProc(TMessage& Message)
{
    if (TDragManager::HandleMessage(*this, Message))
        return;
    switch (Message.Msg) {
    case WM_SETFOCUS: {
        TFormLink* Form = ParentFormLink();
        if (Form && !Form->SetFocusedControl(this))
            return;
        break;
    }
    case WM_KILLFOCUS:
        if (GetControlState().Contains(csFocusing))
            return;
        break;
    case WM_CANCELMODE:
        if (GetCapture() == FHandle) {
            TControl* Owner = TMouse::CaptureControl();
            if (Owner && Owner->GetParent() == this)
                Owner->Perform(WM_CANCELMODE);
        }
        break;
    case WM_CAPTURECHANGED: TMouse::CaptureChanged(reinterpret_cast<HWND>(Message.LParam)); break;
    case WM_MOUSELEAVE: TMouse::UpdateHotControl(); break;
    case WM_CONTEXTMENU:
        if (IsControlContextMenu(Message))
            return;
        break;
    default:
        if (Message.Msg >= WM_MOUSEFIRST && Message.Msg <= WM_MOUSELAST && Message.Msg != WM_MOUSEWHEEL) {
            HWND Window = FHandle;
            if (!IsControlMouseMsg(static_cast<TWMMouse&>(Message)))
                break;
            // The system asks for a context menu then. This control may be gone already.
            if (Message.Msg == WM_RBUTTONUP && Message.Result == 0)
                DefWindowProcW(Window, Message.Msg, Message.WParam, Message.LParam);
            return;
        }
    }
    inherited::WndProc(Message);
}

// ---- mouse

// A windowless control below the pointer may have a menu of its own.
bool TWinControl::IsControlContextMenu(TMessage& Message)
{
    if (Message.LParam == -1)
        return false;
    TControl* Child = ControlAtPos(ScreenToClient({Message.LParamLo(), Message.LParamHi()}), false);
    if (!Child)
        return false;
    Message.Result = Child->Perform(Message.Msg, Message.WParam, Message.LParam);
    return Message.Result != 0;
}

bool TWinControl::IsControlMouseMsg(TWMMouse& Message)
{
    TPoint Pos = Message.Pos;
    TControl* Target = nullptr;
    const bool Captured = GetCapture() == FHandle;
    if (Captured) {
        TControl* Owner = TMouse::CaptureControl();
        if (Owner && Owner->FParent == this)
            Target = Owner;
    } else {
        Target = ControlAtPos(Pos, false);
    }
    if (Message.Msg == WM_MOUSEMOVE)
        TrackPointer(Pos, Captured);
    else if (Message.Msg != WM_LBUTTONUP && Message.Msg != WM_RBUTTONUP && Message.Msg != WM_MBUTTONUP)
        TFormHost::Get().CancelHint();
    if (!Target)
        return false;
    // The target may be deleted by what it does.
    int X = Pos.X - Target->FLeft;
    int Y = Pos.Y - Target->FTop;
    Message.Result = Target->Perform(Message.Msg, Message.WParam, MAKELPARAM(X, Y));
    return true;
}

void TWinControl::TrackPointer(const TPoint& Pos, bool Captured)
{
    if (Captured) {
        TControl* Owner = TMouse::CaptureControl();
        bool Own = Owner == this;
        bool Inside = Owner && (Own ? GetClientRect() : Owner->GetBoundsRect()).Contains(Pos);
        TMouse::SetHotControl(Inside ? Owner : nullptr, Owner);
        return;
    }
    TControl* Child = ControlAtPos(Pos, true, true);
    TControl* Before = TMouse::HotControl();
    TControl* Now = Child ? Child : this;
    if (Before == Now)
        return;
    // Asked for anew whenever the pointer comes from elsewhere: the request ends when it is answered.
    if (!Before || (Before != this && Before->FParent != this)) {
        TRACKMOUSEEVENT Track{sizeof(TRACKMOUSEEVENT), TME_LEAVE, FHandle, 0};
        TrackMouseEvent(&Track);
    }
    // The mouse would not have come here if another window had it.
    TMouse::SetHotControl(Now, nullptr);
}

void TWinControl::WMSetCursor(TMessage& Message)
{
    if (reinterpret_cast<HWND>(Message.WParam) != FHandle || Message.LParamLo() != HTCLIENT) {
        Inherited(Message);
        return;
    }
    TCursor Cursor = crDefault;
    POINT Pos;
    GetCursorPos(&Pos);
    if (TControl* Child = ControlAtPos(ScreenToClient(Pos), false))
        Cursor = Child->GetCursor();
    if (Cursor == crDefault)
        Cursor = GetCursor();
    if (Cursor == crDefault && !IsDesigning()) {
        Inherited(Message);
        return;
    }
    ::SetCursor(TFormHost::Get().CursorHandle(Cursor));
    Message.Result = 1;
}

void TWinControl::CMCursorChanged(TMessage&)
{
    POINT Pos;
    if (FHandle && GetCursorPos(&Pos) && WindowFromPoint(Pos) == FHandle)
        SendMessageW(FHandle, WM_SETCURSOR, reinterpret_cast<WPARAM>(FHandle), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

// ---- painting

bool TWinControl::SystemPaints() const
{
    return !PaintsItself() && FGraphics.empty();
}

void TWinControl::WMPaint(TMessage& Message)
{
    if (SystemPaints()) {
        Inherited(Message);
        return;
    }
    auto DC = reinterpret_cast<HDC>(Message.WParam);
    if (!DC) {
        TWindowPainter::Paint(*this);
        return;
    }
    TRect Clip;
    GetClipBox(DC, &Clip);
    PaintWindow(DC);
    PaintControls(DC, Clip);
}

void TWinControl::WMEraseBkgnd(TMessage& Message)
{
    if (FDefWndProc && FDefWndProc != &DefWindowProcW) {
        Inherited(Message);
        return;
    }
    // A window that is painted through a buffer has its background painted there: then both parameters are the
    // buffer's context.
    bool IntoBuffer = Message.WParam == static_cast<uintptr_t>(Message.LParam);
    if (SystemPaints() || IntoBuffer) {
        // The whole of it, whatever a descendant leaves to its content.
        TRect Area = TWinControl::GetClientRect();
        FillRect(reinterpret_cast<HDC>(Message.WParam), &Area, GetBrush()->GetHandle());
    }
    Message.Result = 1;
}

// ---- notifications from child windows

bool TWinControl::ReflectNotification(TMessage& Message)
{
    HWND Child = nullptr;
    switch (Message.Msg) {
    case WM_NOTIFY: Child = reinterpret_cast<NMHDR*>(Message.LParam)->hwndFrom; break;
    case WM_DRAWITEM: Child = reinterpret_cast<DRAWITEMSTRUCT*>(Message.LParam)->hwndItem; break;
    case WM_COMPAREITEM: Child = reinterpret_cast<COMPAREITEMSTRUCT*>(Message.LParam)->hwndItem; break;
    case WM_DELETEITEM: Child = reinterpret_cast<DELETEITEMSTRUCT*>(Message.LParam)->hwndItem; break;
    case WM_MEASUREITEM: {
        // Names no window: controls that measure items have their handle as their identifier.
        auto* Item = reinterpret_cast<MEASUREITEMSTRUCT*>(Message.LParam);
        if (Item->CtlType == ODT_MENU)
            return false;
        Child = reinterpret_cast<HWND>(static_cast<intptr_t>(static_cast<int32_t>(Item->CtlID)));
        break;
    }
    case WM_PARENTNOTIFY:
        if (Message.WParamLo() != WM_CREATE && Message.WParamLo() != WM_DESTROY)
            return false;
        [[fallthrough]];
    default: Child = reinterpret_cast<HWND>(Message.LParam);
    }
    TWinControl* Control = FindControl(Child);
    if (!Control)
        return false;
    Message.Result = Control->Perform(CN_BASE + Message.Msg, Message.WParam, Message.LParam);
    return true;
}

void TWinControl::WMReflect(TMessage& Message)
{
    if (!ReflectNotification(Message))
        Inherited(Message);
}

void TWinControl::CNCtlColor(TMessage& Message)
{
    auto DC = reinterpret_cast<HDC>(Message.WParam);
    SetTextColor(DC, ColorToRGB(GetFont()->Color));
    SetBkColor(DC, ColorToRGB(GetColor()));
    Message.Result = reinterpret_cast<intptr_t>(GetBrush()->GetHandle());
}

// ---- place

void TWinControl::WMSize(TWMSize& Message)
{
    UpdateBounds();
    Inherited(Message);
    Realign();
    if (!IsLoading() && !GetControlState().Contains(csCreating))
        Resize();
}

void TWinControl::WMWindowPosChanged(TWMWindowPosChanged& Message)
{
    if (FHandle && Message.LParam) {
        UINT Flags = Message.WindowPos().flags;
        bool Moved = !(Flags & SWP_NOMOVE);
        bool Resized = !(Flags & SWP_NOSIZE);
        if (Moved || Resized)
            UpdateBounds();
        Inherited(Message);
        if ((Moved || Resized) && !IsLoading())
            RequestAlign();
    }
}

void TWinControl::WMNCDestroy(TMessage& Message)
{
    Inherited(Message);
    FHandle = nullptr;
    FShowing = false;
}

// ---- changes

void TWinControl::CMRecreateWnd(TMessage&)
{
    if (!FHandle)
        return;
    bool HadFocus = Focused();
    DestroyHandle();
    UpdateControlState();
    if (HadFocus && FHandle)
        ::SetFocus(FHandle);
}

void TWinControl::CMShowingChanged(TMessage&)
{
    constexpr UINT Keep = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
    if (FShowing == ((GetWindowLongW(FHandle, GWL_STYLE) & WS_VISIBLE) != 0))
        return;
    SetWindowPos(FHandle, nullptr, 0, 0, 0, 0, Keep | (FShowing ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

void TWinControl::CMVisibleChanged(TMessage&)
{
    if (!GetVisible())
        if (TFormLink* Form = ParentFormLink())
            Form->DefocusControl(this, false);
    RequestAlign();
    UpdateControlState();
}

void TWinControl::CMEnabledChanged(TMessage&)
{
    if (!GetEnabled())
        if (TFormLink* Form = ParentFormLink())
            Form->DefocusControl(this, false);
    if (FHandle && !IsDesigning())
        EnableWindow(FHandle, GetEnabled());
}

void TWinControl::CMColorChanged(TMessage&)
{
    if (FBrush)
        FBrush->Color = GetColor();
    Invalidate();
    NotifyControls(CM_PARENTCOLORCHANGED);
}

void TWinControl::CMFontChanged(TMessage&)
{
    if (FHandle)
        SendMessageW(FHandle, WM_SETFONT, reinterpret_cast<WPARAM>(GetFont()->GetHandle()), TRUE);
    Invalidate();
    NotifyControls(CM_PARENTFONTCHANGED);
}

void TWinControl::CMBorderChanged(TMessage&)
{
    if (!FHandle)
        return;
    SetWindowPos(FHandle, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    if (GetVisible())
        Invalidate();
}

void TWinControl::CMCtl3DChanged(TMessage&)
{
    NotifyControls(CM_PARENTCTL3DCHANGED);
}

void TWinControl::CMParentCtl3DChanged(TMessage&)
{
    if (!FParentCtl3D || !GetParent())
        return;
    SetCtl3D(GetParent()->FCtl3D);
    FParentCtl3D = true;
}

void TWinControl::CMShowHintChanged(TMessage&)
{
    NotifyControls(CM_PARENTSHOWHINTCHANGED);
}

void TWinControl::CMBroadcast(TMessage& Message)
{
    Broadcast(Message);
}

void TWinControl::WMSysColorChange(TMessage& Message)
{
    Inherited(Message);
    // Once for each top window; it passes it on to its controls.
    if (!GetParent())
        Perform(CM_SYSCOLORCHANGE);
}

void TWinControl::CMSysColorChange(TMessage&)
{
    Invalidate();
    NotifyControls(CM_SYSCOLORCHANGE);
}

void TWinControl::WMFontChange(TMessage& Message)
{
    Inherited(Message);
    Perform(CM_FONTCHANGE);
    NotifyControls(CM_FONTCHANGE);
}

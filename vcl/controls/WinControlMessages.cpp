// The messages of TWinControl.
#include "vcl/classes/StillThere.h"
#include "vcl/controls/Accessible.h"
#include "vcl/controls/ControlCanvas.h"
#include "vcl/controls/DragManager.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/Mouse.h"
#include "vcl/controls/MouseRouter.h"
#include "vcl/controls/Reflection.h"
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
    // The window is being destroyed, and perhaps the control too: no handlers for focus, size and so on may run.
    if (FWindowGoes && Message.Msg != WM_DESTROY && Message.Msg != WM_NCDESTROY) {
        TWinControl::DefaultHandler(Message);
        return;
    }
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
    const TStillThere Still(this);
    if (!TakesMessage(Message) && Still)
        inherited::WndProc(Message);
}

// What comes before the message handlers. True when the message has been handled; the control may be deleted then.
bool TWinControl::TakesMessage(TMessage& Message)
{
    if (TDragManager::HandleMessage(*this, Message))
        return true;
    switch (Message.Msg) {
    case WM_SETFOCUS: {
        TFormLink* Form = ParentFormLink();
        return Form && !Form->SetFocusedControl(this);
    }
    case WM_KILLFOCUS: return GetControlState().Contains(csFocusing);
    case WM_CANCELMODE:
        if (GetCapture() == FHandle) {
            TControl* Owner = TMouse::CaptureControl();
            if (Owner && Owner->GetParent() == this)
                Owner->Perform(WM_CANCELMODE);
        }
        return false;
    case WM_CAPTURECHANGED: TMouse::CaptureChanged(reinterpret_cast<HWND>(Message.LParam)); return false;
    case WM_MOUSELEAVE: TMouse::UpdateHotControl(); return false;
    case WM_CONTEXTMENU: return TMouseRouter::RouteContextMenu(*this, Message);
    case WM_GETOBJECT:
        // The controls of the system say what they are by themselves.
        Message.Result = PaintsItself() ? AccessibleObjectOf(*this, Message.WParam, Message.LParam) : 0;
        return Message.Result != 0;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL: return false; // sent to the focused window, with screen coordinates
    default: break;
    }
    if (Message.Msg < WM_MOUSEFIRST || Message.Msg > WM_MOUSELAST)
        return false;
    HWND Window = FHandle;
    if (!TMouseRouter::Route(*this, static_cast<TWMMouse&>(Message)))
        return false;
    // When the windowless control has not handled them, the system makes WM_CONTEXTMENU and WM_APPCOMMAND of these.
    const bool MayLeadOn = Message.Msg == WM_RBUTTONUP || Message.Msg == WM_XBUTTONUP;
    if (MayLeadOn && Message.Result == 0)
        Message.Result = DefWindowProcW(Window, Message.Msg, Message.WParam, Message.LParam);
    return true;
}

// ---- mouse

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
    return !PaintsItself() && FChildren.Graphics().empty();
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
    const TStillThere Still(this);
    TRect Clip;
    GetClipBox(DC, &Clip);
    PaintWindow(DC);
    if (Still)
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
        // The whole client area of the window, even when a descendant's GetClientRect returns a smaller one.
        TRect Area = TWinControl::GetClientRect();
        FillRect(reinterpret_cast<HDC>(Message.WParam), &Area, GetBrush()->GetHandle());
    }
    Message.Result = 1;
}

// ---- notifications from child windows

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
    const TStillThere Still(this);
    UpdateBounds();
    Inherited(Message);
    if (Still)
        Realign();
    if (Still && !IsLoading() && !GetControlState().Contains(csCreating))
        Resize();
}

void TWinControl::WMWindowPosChanged(TWMWindowPosChanged& Message)
{
    if (FHandle && Message.LParam) {
        const TStillThere Still(this);
        UINT Flags = Message.WindowPos().flags;
        bool Moved = !(Flags & SWP_NOMOVE);
        bool Resized = !(Flags & SWP_NOSIZE);
        if (Moved || Resized)
            UpdateBounds();
        Inherited(Message);
        if (Still && (Moved || Resized) && !IsLoading())
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
    const TStillThere Still(this);
    bool HadFocus = Focused();
    DestroyHandle();
    if (Still)
        UpdateControlState();
    if (Still && HadFocus && FHandle)
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
    const TStillThere Still(this);
    if (!GetVisible())
        if (TFormLink* Form = ParentFormLink())
            Form->DefocusControl(this, false);
    if (Still)
        RequestAlign();
    if (Still)
        UpdateControlState();
}

void TWinControl::CMEnabledChanged(TMessage&)
{
    const TStillThere Still(this);
    if (!GetEnabled())
        if (TFormLink* Form = ParentFormLink())
            Form->DefocusControl(this, false);
    if (Still && FHandle && !IsDesigning())
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
    const TStillThere Still(this);
    Inherited(Message);
    // Only top-level windows get this message; they pass it on to their controls.
    if (Still && !GetParent())
        Perform(CM_SYSCOLORCHANGE);
}

void TWinControl::CMSysColorChange(TMessage&)
{
    Invalidate();
    NotifyControls(CM_SYSCOLORCHANGE);
}

void TWinControl::WMFontChange(TMessage& Message)
{
    const TStillThere Still(this);
    Inherited(Message);
    if (Still)
        Perform(CM_FONTCHANGE);
    if (Still)
        NotifyControls(CM_FONTCHANGE);
}

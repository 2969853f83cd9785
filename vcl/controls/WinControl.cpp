#include "vcl/controls/WinControl.h"

#include "vcl/classes/Reader.h"
#include "vcl/controls/Aligner.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/Mouse.h"
#include "vcl/controls/WindowClass.h"
#include "vcl/controls/WindowPainter.h"
#include "vcl/graphics/Brush.h"

#include <algorithm>

TWinControl::TWinControl(TComponent* AOwner) : TControl(AOwner)
{}

TWinControl::~TWinControl()
{
    while (GetControlCount() > 0)
        RemoveControl(GetControls(GetControlCount() - 1));
    if (FHandle)
        DestroyWindowHandle();
}

void TWinControl::BeforeDestruction()
{
    if (TFormLink* Form = ParentFormLink())
        Form->DefocusControl(this, true);
    inherited::BeforeDestruction();
    // Children of other owners go too.
    while (GetControlCount() > 0) {
        TControl* Child = GetControls(GetControlCount() - 1);
        RemoveControl(Child);
        delete Child;
    }
    if (FHandle)
        DestroyHandle();
}

// ---- window

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
    // Later siblings lie on top of earlier ones, in whatever order their windows come to be.
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
    SetControlFlag(csDestroyingHandle, true);
    // From here on no message may reach an object that is half gone.
    HWND Window = std::exchange(FHandle, nullptr);
    FShowing = false;
    TMouse::CaptureChanged(nullptr);
    SetWindowLongPtrW(Window, GWLP_USERDATA, 0);
    DestroyWindow(Window);
    SetControlFlag(csDestroyingHandle, false);
}

void TWinControl::DestroyWnd()
{
    // Texts live in windows; they outlast them here.
    TControl::StoreText(GetText());
    DestroyWindowHandle();
}

void TWinControl::DestroyHandle()
{
    if (!FHandle)
        return;
    for (TWinControl* Child : FWindows)
        Child->DestroyHandle();
    DestroyWnd();
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
        if (!FHandle)
            CreateHandle();
        for (size_t I = 0; I < FWindows.size(); ++I)
            FWindows[I]->UpdateShowing();
    }
    if (FHandle && FShowing != Show) {
        FShowing = Show;
        Perform(CM_SHOWINGCHANGED);
    }
}

void TWinControl::RestoreWindowOrder(TWinControl* Control)
{
    // Directly below the next sibling that has a window; on top when there is none.
    HWND Above = HWND_TOP;
    auto Place = std::find(FWindows.begin(), FWindows.end(), Control);
    for (auto Next = Place; Next != FWindows.end() && ++Next != FWindows.end();) {
        if ((*Next)->FHandle) {
            Above = (*Next)->FHandle;
            break;
        }
    }
    if (Above != HWND_TOP)
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

// ---- children

TControl* TWinControl::GetControls(int Index) const
{
    if (Index < 0 || Index >= GetControlCount())
        throw EListError("List index out of bounds (" + std::to_string(Index) + ")");
    size_t Place = static_cast<size_t>(Index);
    if (Place < FGraphics.size())
        return FGraphics[Place];
    return FWindows[Place - FGraphics.size()];
}

void TWinControl::InsertControl(TControl* Control)
{
    Perform(CM_CONTROLLISTCHANGE, reinterpret_cast<uintptr_t>(Control), 1);
    Insert(Control);
    if (!Control->GetControlState().Contains(csReadingState)) {
        Control->Perform(CM_PARENTCOLORCHANGED);
        Control->Perform(CM_PARENTSHOWHINTCHANGED);
        Control->Perform(CM_PARENTFONTCHANGED);
        if (auto* Window = As<TWinControl>(Control)) {
            Window->Perform(CM_PARENTCTL3DCHANGED);
            Window->UpdateControlState();
        } else if (FHandle) {
            Control->Invalidate();
        }
        AlignControl(Control);
    }
    Perform(CM_CONTROLCHANGE, reinterpret_cast<uintptr_t>(Control), 1);
}

void TWinControl::RemoveControl(TControl* Control)
{
    Perform(CM_CONTROLCHANGE, reinterpret_cast<uintptr_t>(Control), 0);
    if (auto* Window = As<TWinControl>(Control)) {
        if (TFormLink* Form = ParentFormLink())
            Form->DefocusControl(Window, true);
        Window->DestroyHandle();
    } else if (FHandle) {
        Control->InvalidateControl(Control->GetVisible(), false);
    }
    Remove(Control);
    Perform(CM_CONTROLLISTCHANGE, reinterpret_cast<uintptr_t>(Control), 0);
    if (!IsDestroying())
        Realign();
}

void TWinControl::Insert(TControl* Control)
{
    if (auto* Window = As<TWinControl>(Control)) {
        FWindows.push_back(Window);
        FTabList.push_back(Window);
    } else {
        FGraphics.push_back(Control);
    }
    Control->FParent = this;
}

void TWinControl::Remove(TControl* Control)
{
    // Mostly the youngest goes first.
    auto Drop = [](auto& List, auto* Item) {
        auto Found = std::find(List.rbegin(), List.rend(), Item);
        if (Found != List.rend())
            List.erase(std::next(Found).base());
    };
    if (auto* Window = As<TWinControl>(Control)) {
        Drop(FWindows, Window);
        Drop(FTabList, Window);
    } else {
        Drop(FGraphics, Control);
    }
    Control->FParent = nullptr;
}

bool TWinControl::ContainsControl(const TControl* Control) const
{
    while (Control && Control != this)
        Control = Control->FParent;
    return Control == this;
}

TControl* TWinControl::ControlAtPos(const TPoint& Pos, bool AllowDisabled, bool AllowWinControls) const
{
    auto Hit = [&](TControl* Control) {
        TPoint Local = Pos - TPoint(Control->FLeft, Control->FTop);
        if (Local.X < 0 || Local.Y < 0 || Local.X >= Control->FWidth || Local.Y >= Control->FHeight)
            return false;
        if (Control->IsDesigning() ? Control->GetControlStyle().Contains(csNoDesignVisible) : !Control->FVisible)
            return false;
        return (AllowDisabled || Control->GetEnabled() || Control->IsDesigning()) && Control->HitTest(Local);
    };
    if (AllowWinControls)
        for (auto Child = FWindows.rbegin(); Child != FWindows.rend(); ++Child)
            if (Hit(*Child))
                return *Child;
    for (auto Child = FGraphics.rbegin(); Child != FGraphics.rend(); ++Child)
        if (Hit(*Child))
            return *Child;
    return nullptr;
}

void TWinControl::Broadcast(TMessage& Message)
{
    for (int I = 0; I < GetControlCount() && Message.Result == 0; ++I) {
        TControl* Control = GetControls(I);
        Message.Result = Control->Perform(Message.Msg, Message.WParam, Message.LParam);
    }
}

void TWinControl::NotifyControls(uint32_t Msg)
{
    for (int I = 0; I < GetControlCount(); ++I)
        GetControls(I)->Perform(Msg);
}

void TWinControl::GetChildren(const TGetChildProc& Proc, TComponent* Root)
{
    for (int I = 0; I < GetControlCount(); ++I)
        if (GetControls(I)->GetOwner() == Root)
            Proc(GetControls(I));
}

void TWinControl::SetChildOrder(TComponent* Child, int Order)
{
    auto Move = [](auto& List, auto* Item, int Place) {
        std::erase(List, Item);
        List.insert(List.begin() + std::clamp(Place, 0, static_cast<int>(List.size())), Item);
    };
    if (auto* Window = As<TWinControl>(Child)) {
        if (Window->GetParent() != this)
            return;
        Move(FWindows, Window, Order - static_cast<int>(FGraphics.size()));
        if (Window->FHandle)
            RestoreWindowOrder(Window);
    } else if (auto* Control = As<TControl>(Child)) {
        if (Control->GetParent() == this)
            Move(FGraphics, Control, Order);
    }
}

void TWinControl::SetZOrder(bool TopMost)
{
    if (TWinControl* Parent = GetParent()) {
        auto& Siblings = Parent->FWindows;
        std::erase(Siblings, this);
        Siblings.insert(TopMost ? Siblings.end() : Siblings.begin(), this);
    }
    if (FHandle)
        SetWindowPos(FHandle, TopMost ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// ---- layout

void TWinControl::AlignControls(TControl* Control, TRect& Rect)
{
    AdjustClientRect(Rect);
    TAligner::Align(*this, Control, Rect);
}

void TWinControl::AdjustClientRect(TRect&) const
{}

void TWinControl::AlignControl(TControl* Control)
{
    if (!FHandle || IsDestroying())
        return;
    if (FAlignLevel != 0) {
        FAlignNeeded = true;
        return;
    }
    DisableAlign();
    bool Outer = std::exchange(FAligning, true);
    try {
        TRect Rect = GetClientRect();
        AlignControls(Control, Rect);
    } catch (...) {
        FAligning = Outer;
        FAlignNeeded = false;
        --FAlignLevel;
        throw;
    }
    FAligning = Outer;
    FAlignNeeded = false; // what the placing itself asked for has been done
    --FAlignLevel;
    if (GetAutoSize() && GetControlCount() > 0)
        AdjustSize();
}

void TWinControl::EnableAlign()
{
    if (--FAlignLevel == 0 && FAlignNeeded)
        Realign();
}

void TWinControl::Realign()
{
    FAlignNeeded = FAlignLevel != 0;
    AlignControl(nullptr);
}

void TWinControl::ScrollBy(int DeltaX, int DeltaY)
{
    DisableAlign();
    for (TControl* Control : FGraphics)
        Control->SetBounds(Control->FLeft + DeltaX, Control->FTop + DeltaY, Control->FWidth, Control->FHeight);
    for (TWinControl* Window : FWindows)
        Window->SetBounds(Window->FLeft + DeltaX, Window->FTop + DeltaY, Window->FWidth, Window->FHeight);
    FAlignNeeded = false;
    EnableAlign();
}

bool TWinControl::CanAutoSize(int& NewWidth, int& NewHeight)
{
    if (GetControlCount() == 0)
        return false;
    int Right = 0;
    int Bottom = 0;
    for (int I = 0; I < GetControlCount(); ++I) {
        TControl* Control = GetControls(I);
        if (!Control->GetVisible() && !IsDesigning())
            continue;
        Right = std::max(Right, Control->FLeft + Control->FWidth);
        Bottom = std::max(Bottom, Control->FTop + Control->FHeight);
    }
    TRect Client = GetClientRect();
    NewWidth = GetWidth() - Client.Width() + Right;
    NewHeight = GetHeight() - Client.Height() + Bottom;
    return true;
}

void TWinControl::SetBounds(int ALeft, int ATop, int AWidth, int AHeight)
{
    if (!FHandle) {
        inherited::SetBounds(ALeft, ATop, AWidth, AHeight);
        return;
    }
    AWidth = std::max(AWidth, 0);
    AHeight = std::max(AHeight, 0);
    if (!CheckNewSize(AWidth, AHeight))
        return;
    if (ALeft == FLeft && ATop == FTop && AWidth == FWidth && AHeight == FHeight)
        return;
    if (!IsIconic(FHandle)) {
        // The window's answer (WM_WINDOWPOSCHANGED, WM_SIZE) brings the rest along.
        SetWindowPos(FHandle, nullptr, ALeft, ATop, AWidth, AHeight, SWP_NOZORDER | SWP_NOACTIVATE);
        return;
    }
    FLeft = ALeft;
    FTop = ATop;
    FWidth = AWidth;
    FHeight = AHeight;
}

TRect TWinControl::GetClientRect() const
{
    if (!FHandle)
        return inherited::GetClientRect();
    TRect Client;
    ::GetClientRect(FHandle, &Client);
    return Client;
}

TPoint TWinControl::GetClientOrigin() const
{
    POINT Origin{};
    ::ClientToScreen(const_cast<TWinControl*>(this)->GetHandle(), &Origin);
    return Origin;
}

// ---- look

AnsiString TWinControl::GetText() const
{
    if (!FHandle)
        return inherited::GetText();
    int Length = GetWindowTextLengthW(FHandle);
    if (Length == 0)
        return {};
    std::wstring Wide(static_cast<size_t>(Length) + 1, L'\0');
    Wide.resize(static_cast<size_t>(GetWindowTextW(FHandle, Wide.data(), Length + 1)));
    return FromWide(Wide);
}

void TWinControl::StoreText(const AnsiString& Value)
{
    if (FHandle)
        SetWindowTextW(FHandle, TWideText(Value).c_str());
    else
        inherited::StoreText(Value);
}

TBrush* TWinControl::GetBrush()
{
    if (!FBrush) {
        FBrush = std::make_unique<TBrush>();
        FBrush->Color = GetColor();
    }
    return FBrush.get();
}

void TWinControl::SetCtl3D(bool Value)
{
    if (FCtl3D == Value)
        return;
    FCtl3D = Value;
    FParentCtl3D = false;
    Perform(CM_CTL3DCHANGED);
}

void TWinControl::SetParentCtl3D(bool Value)
{
    if (FParentCtl3D == Value)
        return;
    FParentCtl3D = Value;
    if (GetParent())
        Perform(CM_PARENTCTL3DCHANGED);
}

void TWinControl::SetDoubleBuffered(bool Value)
{
    if (FDoubleBuffered == Value)
        return;
    FDoubleBuffered = Value;
    Invalidate();
}

void TWinControl::Invalidate()
{
    if (FHandle)
        InvalidateRect(FHandle, nullptr, !GetControlStyle().Contains(csOpaque));
}

void TWinControl::Update()
{
    if (FHandle)
        UpdateWindow(FHandle);
}

void TWinControl::Repaint()
{
    Invalidate();
    Update();
}

HDC TWinControl::GetDeviceContext(HWND& Window)
{
    Window = GetHandle();
    HDC DC = GetDC(Window);
    if (!DC)
        throw EOSError("Error creating window device context");
    return DC;
}

void TWinControl::PaintControls(HDC DC, const TRect& Clip)
{
    TWindowPainter::PaintControls(*this, DC, 0, Clip);
}

void TWinControl::PaintTo(HDC DC, int X, int Y)
{
    int Saved = SaveDC(DC);
    OffsetViewportOrgEx(DC, X, Y, nullptr);
    IntersectClipRect(DC, 0, 0, GetWidth(), GetHeight());
    if (GetWindowLongW(GetHandle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) {
        TRect Edge(0, 0, GetWidth(), GetHeight());
        DrawEdge(DC, &Edge, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
        OffsetViewportOrgEx(DC, Edge.Left, Edge.Top, nullptr);
        IntersectClipRect(DC, 0, 0, Edge.Width(), Edge.Height());
    }
    auto Target = reinterpret_cast<uintptr_t>(DC);
    Perform(WM_ERASEBKGND, Target, static_cast<intptr_t>(Target));
    Perform(WM_PAINT, Target);
    for (TWinControl* Child : FWindows)
        if (Child->GetVisible())
            Child->PaintTo(DC, Child->GetLeft(), Child->GetTop());
    RestoreDC(DC, Saved);
}

void TWinControl::ReadState(TReader& Reader)
{
    DisableAlign();
    try {
        inherited::ReadState(Reader);
    } catch (...) {
        --FAlignLevel;
        throw;
    }
    FixupTabList();
    if (GetParent())
        Perform(CM_PARENTCTL3DCHANGED);
    UpdateControlState();
    EnableAlign();
}

void TWinControl::Loaded()
{
    inherited::Loaded();
    Realign();
}

int TWinControl::AccessibleRole() const
{
    return ROLE_SYSTEM_WINDOW;
}

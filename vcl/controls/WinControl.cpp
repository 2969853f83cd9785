#include "vcl/controls/WinControl.h"

#include "vcl/classes/Reader.h"
#include "vcl/classes/StillThere.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/WindowClass.h"
#include "vcl/controls/WindowPainter.h"
#include "vcl/graphics/Brush.h"
#include "vcl/graphics/SavedContext.h"
#include "vcl/system/Guard.h"
#include "vcl/system/Scope.h"

TWinControl::TWinControl(TComponent* AOwner) : TControl(AOwner)
{}

TWinControl::~TWinControl()
{
    // Only after a constructor that threw; otherwise BeforeDestruction has done it.
    while (GetControlCount() > 0)
        RemoveControl(GetControls(GetControlCount() - 1));
    TControl::SetParent(nullptr);
    if (!FHandle)
        return;
    // The object is half destroyed, so only the native class may get the messages.
    TWindowClass::ReturnToSystem(FHandle, FDefWndProc);
    DestroyWindow(FHandle);
}

void TWinControl::BeforeDestruction()
{
    if (TFormLink* Form = ParentFormLink())
        Form->DefocusControl(this, true);
    // Children are deleted with their parent, whoever owns them. Laying out the remaining ones each time would be
    // quadratic.
    DisableAlign();
    while (GetControlCount() > 0)
        delete GetControls(GetControlCount() - 1);
    inherited::BeforeDestruction();
    DestroyHandle();
}

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
    InvalidatePending();
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
    const TSavedContext Saved(DC);
    OffsetViewportOrgEx(DC, X, Y, nullptr);
    IntersectClipRect(DC, 0, 0, GetWidth(), GetHeight());
    if (GetWindowLongW(GetHandle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) {
        TRect Edge(0, 0, GetWidth(), GetHeight());
        DrawEdge(DC, &Edge, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
        OffsetViewportOrgEx(DC, Edge.Left, Edge.Top, nullptr);
        IntersectClipRect(DC, 0, 0, Edge.Width(), Edge.Height());
    }
    const TStillThere Still(this);
    auto Target = reinterpret_cast<uintptr_t>(DC);
    Perform(WM_ERASEBKGND, Target, static_cast<intptr_t>(Target));
    if (Still)
        Perform(WM_PAINT, Target);
    for (size_t I = 0; Still && I < FChildren.Windows().size(); ++I)
        if (TWinControl* Child = FChildren.Windows()[I]; Child->GetVisible())
            Child->PaintTo(DC, Child->GetLeft(), Child->GetTop());
}

void TWinControl::ReadState(TReader& Reader)
{
    DisableAlign();
    {
        // What existed before, a form perhaps, goes on without the rest and shows what its Visible says.
        TScopeExit Failed([this] {
            --FAlignLevel;
            Guarded(this, [this] { UpdateControlState(); });
        });
        inherited::ReadState(Reader);
        Failed.Dismiss();
    }
    FTabList.TakeReadPlaces();
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

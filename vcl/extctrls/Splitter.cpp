#include "vcl/extctrls/Splitter.h"

#include "vcl/classes/StillThere.h"
#include "vcl/controls/WinControl.h"
#include "vcl/extctrls/Frame3D.h"
#include "vcl/graphics/DitherBrush.h"
#include "vcl/system/ClassBuilder.h"

void TSplitter::Describe(TClassBuilder<TSplitter>& Class)
{
    Class.Publish("Cursor").Default(crHSplit);
    Class.Publish("Align").Default(alLeft);
    Class.Value<&Self::AutoSnap>("AutoSnap").Default(true);
    Class.Property<&Self::GetBeveled, &Self::SetBeveled>("Beveled").Default(false);
    Class.PublishAll("Color", "Constraints");
    Class.Value<&Self::MinSize>("MinSize").Default(30);
    Class.Publish("ParentColor");
    Class.Value<&Self::ResizeStyle>("ResizeStyle").Default(rsPattern);
    Class.Publish("Visible");
    Class.Event<&Self::OnCanResize>("OnCanResize");
    Class.Event<&Self::OnMoved>("OnMoved");
    Class.Event<&Self::OnPaint>("OnPaint");

    Class.Message<&Self::WMCancelMode>(WM_CANCELMODE);
}

TSplitter::TSplitter(TComponent* AOwner) : TGraphicControl(AOwner)
{
    SetBounds(0, 0, 3, 100);
    Align = alLeft;
    Cursor = crHSplit;
}

void TSplitter::SetBeveled(bool Value)
{
    if (FBeveled == Value)
        return;
    FBeveled = Value;
    Invalidate();
}

void TSplitter::Paint()
{
    TRect R = ClientRect;
    Canvas->Brush->Color = Color;
    Canvas->Brush->Style = bsSolid;
    Canvas->FillRect(R);
    if (FBeveled) {
        // The lines run along the splitter, not across its ends.
        InflateRect(R, SplitsSideways() ? 0 : 2, SplitsSideways() ? 2 : 0);
        Frame3D(Canvas, R, clBtnHighlight, clBtnShadow, 1);
    }
    if (IsDesigning()) {
        Canvas->Brush->Style = bsClear;
        Canvas->Pen->Style = psDot;
        Canvas->Rectangle(ClientRect);
    }
    OnPaint(this);
}

// ---- dragging

int TSplitter::SizeOf(const TControl* Control) const
{
    return SplitsSideways() ? Control->Width : Control->Height;
}

// Was closed by this splitter and still lies at the same side, without extent.
bool TSplitter::IsClosed(const TControl* Control) const
{
    return Control && Control->Parent == Parent && Control->Align == Align && Control->Visible && Control->Enabled &&
           SizeOf(Control) == 0;
}

TControl* TSplitter::FindNeighbour() const
{
    if (IsClosed(FClosed))
        return FClosed;
    TPoint P(Left, Top);
    switch (Align) {
    case alLeft: P.X = Left - 1; break;
    case alRight: P.X = Left + Width; break;
    case alTop: P.Y = Top - 1; break;
    case alBottom: P.Y = Top + Height; break;
    default: return nullptr;
    }
    for (int I = 0; I < Parent->ControlCount; ++I) {
        TControl* Control = Parent->Controls[I];
        if (Control == this || !Control->Visible || !Control->Enabled)
            continue;
        if (Control->BoundsRect.Contains(P))
            return Control;
    }
    return nullptr;
}

// What the form has room for, with the other aligned controls as they are.
void TSplitter::FindMaxSize()
{
    FMaxSize = (SplitsSideways() ? Parent->ClientWidth : Parent->ClientHeight) - MinSize;
    for (int I = 0; I < Parent->ControlCount; ++I) {
        TControl* Control = Parent->Controls[I];
        bool SameAxis = SplitsSideways() ? Control->Align == alLeft || Control->Align == alRight
                                         : Control->Align == alTop || Control->Align == alBottom;
        if (Control->Visible && SameAxis)
            FMaxSize -= SizeOf(Control);
    }
    FMaxSize += SizeOf(FControl);
}

void TSplitter::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    const TStillThere IsHere(this);
    inherited::MouseDown(Button, Shift, X, Y);
    if (!IsHere || Button != mbLeft || !Parent)
        return;
    FControl = FindNeighbour();
    if (!FControl)
        return;
    FDownPos = TPoint(X, Y);
    FindMaxSize();
    FOldSize = FNewSize = SizeOf(FControl);
    FSplit = 0;
    InvertLine();
}

void TSplitter::MouseMove(TShiftState Shift, int X, int Y)
{
    const TStillThere IsHere(this);
    inherited::MouseMove(Shift, X, Y);
    if (IsHere && FControl && Shift.Contains(ssLeft))
        Drag(X, Y);
}

void TSplitter::Drag(int X, int Y)
{
    int Moved = SplitsSideways() ? X - FDownPos.X : Y - FDownPos.Y;
    bool Grows = Align == alLeft || Align == alTop;
    int Size = FOldSize + (Grows ? Moved : -Moved);
    if (ResizeStyle == rsUpdate) // the splitter has moved along, and its coordinates with it
        Size += FNewSize - FOldSize;
    bool Snaps = AutoSnap && Size < MinSize;
    Size = Snaps ? 0 : std::clamp(Size, std::min(MinSize, FMaxSize), std::max(MinSize, FMaxSize));
    bool Accept = true;
    const TStillThere IsHere(this);
    OnCanResize(this, Size, Accept);
    if (!IsHere || !Parent || !Accept || Size == FNewSize)
        return;
    if (FLineVisible)
        InvertLine();
    FNewSize = Size;
    FSplit = Grows ? Size - FOldSize : FOldSize - Size;
    if (ResizeStyle == rsUpdate)
        ApplySize();
    else
        InvertLine();
}

void TSplitter::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    inherited::MouseUp(Button, Shift, X, Y);
    if (!FControl)
        return;
    if (FLineVisible)
        InvertLine();
    bool Changed = FNewSize != FOldSize;
    if (Changed)
        ApplySize();
    StopSizing();
    if (Changed)
        OnMoved(this);
}

// The splitter goes along. It never lies at the very place of a control that was closed: what is aligned to a side
// keeps the order of its places.
void TSplitter::ApplySize()
{
    int Along = std::max(FNewSize, 1);
    TRect R = FControl->BoundsRect;
    Parent->DisableAlign();
    switch (Align) {
    case alLeft: {
        int Edge = std::min(R.Left, Left);
        FControl->SetBounds(Edge, R.Top, FNewSize, R.Height());
        Left = Edge + Along;
        break;
    }
    case alTop: {
        int Edge = std::min(R.Top, Top);
        FControl->SetBounds(R.Left, Edge, R.Width(), FNewSize);
        Top = Edge + Along;
        break;
    }
    case alRight: {
        int Edge = std::max(R.Right, Left + Width);
        FControl->SetBounds(Edge - FNewSize, R.Top, FNewSize, R.Height());
        Left = Edge - Along - Width;
        break;
    }
    case alBottom: {
        int Edge = std::max(R.Bottom, Top + Height);
        FControl->SetBounds(R.Left, Edge - FNewSize, R.Width(), FNewSize);
        Top = Edge - Along - Height;
        break;
    }
    default: break;
    }
    Parent->EnableAlign();
    if (FNewSize == 0)
        FClosed = FControl;
    Update();
}

void TSplitter::StopSizing()
{
    if (FLineVisible)
        InvertLine();
    FControl = nullptr;
}

void TSplitter::WMCancelMode(TMessage& Message)
{
    StopSizing();
    Inherited(Message);
}

// Drawn over everything in the parent; a second call takes it away.
void TSplitter::InvertLine()
{
    if (ResizeStyle == rsNone || ResizeStyle == rsUpdate)
        return;
    FLineVisible = !FLineVisible;
    TRect R = BoundsRect;
    OffsetRect(R, SplitsSideways() ? FSplit : 0, SplitsSideways() ? 0 : FSplit);
    HDC Context = GetDCEx(Parent->Handle, nullptr, DCX_CACHE | DCX_CLIPSIBLINGS | DCX_LOCKWINDOWUPDATE);
    HBRUSH Brush = ResizeStyle == rsPattern ? DitherBrush() : static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
    HGDIOBJ Old = SelectObject(Context, Brush);
    SetTextColor(Context, RGB(255, 255, 255));
    SetBkColor(Context, RGB(0, 0, 0));
    PatBlt(Context, R.Left, R.Top, R.Width(), R.Height(), PATINVERT);
    SelectObject(Context, Old);
    ReleaseDC(Parent->Handle, Context);
}

int TSplitter::AccessibleRole() const
{
    return ROLE_SYSTEM_SEPARATOR;
}

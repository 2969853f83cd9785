// Place, size, alignment and anchors of TControl.
#include "vcl/classes/StillThere.h"
#include "vcl/controls/ControlExtras.h"
#include "vcl/controls/WinControl.h"

#include <algorithm>

void TControl::SetBounds(int ALeft, int ATop, int AWidth, int AHeight)
{
    AWidth = std::max(AWidth, 0);
    AHeight = std::max(AHeight, 0);
    if (!CheckNewSize(AWidth, AHeight))
        return;
    if (ALeft == FLeft && ATop == FTop && AWidth == FWidth && AHeight == FHeight)
        return;
    InvalidateControl(FVisible, false);
    bool Resized = AWidth != FWidth || AHeight != FHeight;
    FLeft = ALeft;
    FTop = ATop;
    FWidth = AWidth;
    FHeight = AHeight;
    UpdateAnchorRules();
    Invalidate();
    if (IsLoading())
        return;
    const TStillThere Still(this);
    Perform(WM_WINDOWPOSCHANGED);
    if (Still)
        RequestAlign();
    if (Still && Resized)
        Resize();
}

bool TControl::CheckNewSize(int& NewWidth, int& NewHeight)
{
    const TStillThere Still(this);
    int Width = NewWidth;
    int Height = NewHeight;
    if (!CanResize(Width, Height) || !Still)
        return false;
    NewWidth = Width;
    NewHeight = Height;
    if (FExtras && FExtras->Constraints)
        FExtras->Constraints->Apply(NewWidth, NewHeight);
    return true;
}

bool TControl::CanResize(int& NewWidth, int& NewHeight)
{
    if (!FExtras)
        return true;
    const TStillThere Still(this);
    bool Result = true;
    FExtras->OnCanResize(this, NewWidth, NewHeight, Result);
    if (!Result || !Still)
        return false;
    if (!FExtras->OnConstrainedResize)
        return true;
    int MinWidth = 0, MinHeight = 0, MaxWidth = 0, MaxHeight = 0;
    FExtras->OnConstrainedResize(this, MinWidth, MinHeight, MaxWidth, MaxHeight);
    NewWidth = std::max(MaxWidth > 0 ? std::min(NewWidth, MaxWidth) : NewWidth, MinWidth);
    NewHeight = std::max(MaxHeight > 0 ? std::min(NewHeight, MaxHeight) : NewHeight, MinHeight);
    return true;
}

bool TControl::CanAutoSize(int&, int&)
{
    return true;
}

void TControl::AdjustSize()
{
    if (IsLoading() || !FAutoSize)
        return;
    int NewWidth = FWidth;
    int NewHeight = FHeight;
    if (CanAutoSize(NewWidth, NewHeight))
        SetBounds(FLeft, FTop, NewWidth, NewHeight);
}

void TControl::SetAutoSize(bool Value)
{
    if (FAutoSize == Value)
        return;
    FAutoSize = Value;
    AdjustSize();
}

TRect TControl::GetClientRect() const
{
    return {0, 0, FWidth, FHeight};
}

int TControl::GetClientWidth() const
{
    return GetClientRect().Width();
}

int TControl::GetClientHeight() const
{
    return GetClientRect().Height();
}

void TControl::SetClientSize(const TPoint& Size)
{
    TRect Client = GetClientRect();
    SetBounds(FLeft, FTop, FWidth - Client.Width() + Size.X, FHeight - Client.Height() + Size.Y);
}

void TControl::SetClientWidth(int Value)
{
    SetClientSize({Value, GetClientHeight()});
}

void TControl::SetClientHeight(int Value)
{
    SetClientSize({GetClientWidth(), Value});
}

TPoint TControl::GetClientOrigin() const
{
    if (!FParent)
        throw EInvalidOperation("Control '" + GetName() + "' has no parent window");
    return FParent->GetClientOrigin() + TPoint(FLeft, FTop);
}

TPoint TControl::ClientToScreen(const TPoint& Point) const
{
    return GetClientOrigin() + Point;
}

TPoint TControl::ScreenToClient(const TPoint& Point) const
{
    return Point - GetClientOrigin();
}

void TControl::SetAlign(TAlign Value)
{
    if (FAlign == Value)
        return;
    FAlign = Value;
    UpdateAnchorRules();
    RequestAlign();
}

void TControl::SetAnchors(TAnchors Value)
{
    if (FAnchors == Value)
        return;
    FAnchors = Value;
    UpdateAnchorRules();
}

bool TControl::IsAnchorsStored() const
{
    return FAnchors != TAnchors{akLeft, akTop};
}

void TControl::UpdateAnchorRules()
{
    if (FAlign != alNone || !IsAnchorsStored() || !FParent) {
        FAnchorRules.reset();
        return;
    }
    // The aligner uses these rules to move the control, so its moves do not change them. While a form is read they are
    // not computed; Loaded does it.
    if (IsLoading() || FParent->FAligning)
        return;
    if (!FAnchorRules)
        FAnchorRules = std::make_unique<TAnchorRules>();
    FAnchorRules->Bounds = GetBoundsRect();
    FAnchorRules->ParentSize = {FParent->GetClientWidth(), FParent->GetClientHeight()};
}

void TControl::RequestAlign()
{
    if (FParent && !IsLoading())
        FParent->AlignControl(this);
}

TSizeConstraints* TControl::GetConstraints()
{
    auto& Constraints = Extras().Constraints;
    if (!Constraints) {
        Constraints = std::make_unique<TSizeConstraints>();
        Constraints->OnChange = {this, &TControl::ConstraintsChanged};
    }
    return Constraints.get();
}

void TControl::SetConstraints(TSizeConstraints* Value)
{
    GetConstraints()->Assign(Value);
}

void TControl::ConstraintsChanged(TObject*)
{
    SetBounds(FLeft, FTop, FWidth, FHeight);
}

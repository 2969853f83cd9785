#include "vcl/forms/ScrollingWinControl.h"

#include "vcl/classes/Reader.h"
#include "vcl/classes/StillThere.h"
#include "vcl/classes/Writer.h"
#include "vcl/system/ClassBuilder.h"

#include <algorithm>
#include <utility>

void TScrollingWinControl::Describe(TClassBuilder<TScrollingWinControl>& Class)
{
    Class.Property<&Self::GetHorzScrollBar, &Self::SetHorzScrollBar>("HorzScrollBar");
    Class.Property<&Self::GetVertScrollBar, &Self::SetVertScrollBar>("VertScrollBar");
    Class.Declare<&Self::GetAutoScroll, &Self::SetAutoScroll>("AutoScroll").Default(true);

    Class.Message<&Self::WMHScroll>(WM_HSCROLL);
    Class.Message<&Self::WMVScroll>(WM_VSCROLL);
    Class.Message<&Self::WMSize>(WM_SIZE);
}

TScrollingWinControl::TScrollingWinControl(TComponent* AOwner)
    : TWinControl(AOwner),
      FHorzScrollBar(this, sbHorizontal),
      FVertScrollBar(this, sbVertical)
{}

void TScrollingWinControl::SetAutoScroll(bool Value)
{
    if (FAutoScroll == Value)
        return;
    FAutoScroll = Value;
    if (Value) {
        CalcAutoRange();
        return;
    }
    FHorzScrollBar.FRange = 0;
    FVertScrollBar.FRange = 0;
    UpdateScrollBars();
}

void TScrollingWinControl::CreateParams(TCreateParams& Params)
{
    TWinControl::CreateParams(Params);
    // The whole content moves with the size only where it must.
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TScrollingWinControl::CreateWnd()
{
    TWinControl::CreateWnd();
    UpdateScrollBars();
}

void TScrollingWinControl::EnableAutoRange()
{
    if (FAutoRangeLevel > 0 && --FAutoRangeLevel == 0)
        CalcAutoRange();
}

void TScrollingWinControl::DefineProperties(TFiler& Filer)
{
    TWinControl::DefineProperties(Filer);
    Filer.DefineProperty("DesignSize", {this, &TScrollingWinControl::ReadDesignSize},
                         {this, &TScrollingWinControl::WriteDesignSize}, FDesignSize.cx > 0);
}

void TScrollingWinControl::ReadDesignSize(TReader* Reader)
{
    Reader->ReadListBegin();
    FDesignSize.cx = Reader->ReadInteger();
    FDesignSize.cy = Reader->ReadInteger();
    Reader->ReadListEnd();
}

void TScrollingWinControl::WriteDesignSize(TWriter* Writer)
{
    Writer->WriteListBegin();
    Writer->WriteInteger(FDesignSize.cx);
    Writer->WriteInteger(FDesignSize.cy);
    Writer->WriteListEnd();
}

// ---- ranges

namespace {

bool CountsForRange(const TControl& Control, TAlign NearSide, TAnchorKind FarAnchor)
{
    if (Control.GetAlign() == NearSide)
        return true;
    return Control.GetAlign() == alNone && !Control.GetAnchors().Contains(FarAnchor);
}

} // namespace

int TScrollingWinControl::NeededRange(TScrollBarKind Kind) const
{
    const bool Horizontal = Kind == sbHorizontal;
    const int Position = Horizontal ? FHorzScrollBar.FPosition : FVertScrollBar.FPosition;
    int Range = 0;
    int FarSide = 0; // what lies along the far edge, and must not cover the rest
    for (int I = 0; I < GetControlCount(); ++I) {
        const TControl& Control = *GetControls(I);
        if (!Control.GetVisible() && !IsDesigning())
            continue;
        if (Control.GetAlign() == (Horizontal ? alRight : alBottom))
            FarSide += Horizontal ? Control.GetWidth() : Control.GetHeight();
        if (CountsForRange(Control, Horizontal ? alLeft : alTop, Horizontal ? akRight : akBottom))
            Range = std::max(Range, Position + (Horizontal ? Control.GetLeft() + Control.GetWidth()
                                                           : Control.GetTop() + Control.GetHeight()));
    }
    return Range + FarSide;
}

void TScrollingWinControl::CalcAutoRange()
{
    if (!AutoScrollEnabled() || FAutoRangeLevel > 0 || !HandleAllocated() || IsLoading())
        return;
    FHorzScrollBar.SetAutoRange(NeededRange(sbHorizontal));
    FVertScrollBar.SetAutoRange(NeededRange(sbVertical));
    UpdateScrollBars();
}

void TScrollingWinControl::UpdateScrollBars()
{
    if (!HandleAllocated() || FUpdatingBars || IsLoading() || IsIconic(GetHandle()))
        return;
    // Each bar takes room from the other.
    const int BarWidth = GetSystemMetrics(SM_CXVSCROLL);
    const int BarHeight = GetSystemMetrics(SM_CYHSCROLL);
    const int Width = GetClientWidth() + (FVertScrollBar.IsScrollBarVisible() ? BarWidth : 0);
    const int Height = GetClientHeight() + (FHorzScrollBar.IsScrollBarVisible() ? BarHeight : 0);
    bool ShowHorz = FHorzScrollBar.WantsBar(Width);
    const bool ShowVert = FVertScrollBar.WantsBar(ShowHorz ? Height - BarHeight : Height);
    ShowHorz = FHorzScrollBar.WantsBar(ShowVert ? Width - BarWidth : Width);

    FUpdatingBars = true;
    FHorzScrollBar.UpdateBar(ShowHorz);
    FVertScrollBar.UpdateBar(ShowVert);
    // A second time: when one bar appears, the other has less room.
    if (ShowHorz)
        FHorzScrollBar.UpdateBar(true);
    FUpdatingBars = false;
    FHorzScrollBar.SetPosition(FHorzScrollBar.FPosition);
    FVertScrollBar.SetPosition(FVertScrollBar.FPosition);
}

void TScrollingWinControl::AlignControls(TControl* Control, TRect& Rect)
{
    if (AutoScrollEnabled() && !FUpdatingBars) {
        CalcAutoRange();
        Rect = GetClientRect();
    }
    TWinControl::AlignControls(Control, Rect);
}

void TScrollingWinControl::AdjustClientRect(TRect& Rect) const
{
    TWinControl::AdjustClientRect(Rect);
    Rect = Bounds(Rect.Left - FHorzScrollBar.FPosition, Rect.Top - FVertScrollBar.FPosition,
                  std::max(FHorzScrollBar.FRange, Rect.Width()), std::max(FVertScrollBar.FRange, Rect.Height()));
}

// ---- scrolling

void TScrollingWinControl::ScrollInView(TControl* Control)
{
    if (!Control || !HandleAllocated())
        return;
    const TRect Client = GetClientRect();
    const TPoint Origin = ScreenToClient(Control->GetClientOrigin());
    const TRect R = Bounds(Origin.X, Origin.Y, Control->GetWidth(), Control->GetHeight());
    auto Shift = [](int Start, int End, int Size) {
        if (Start < 0)
            return Start;
        return End > Size ? std::min(End - Size, Start) : 0;
    };
    const int DeltaX = Shift(R.Left, R.Right, Client.Width());
    const int DeltaY = Shift(R.Top, R.Bottom, Client.Height());
    if (DeltaX != 0)
        FHorzScrollBar.SetPosition(FHorzScrollBar.FPosition + DeltaX);
    if (DeltaY != 0)
        FVertScrollBar.SetPosition(FVertScrollBar.FPosition + DeltaY);
}

void TScrollingWinControl::AutoScrollInView(TControl* Control)
{
    if (FHorzScrollBar.FRange > 0 || FVertScrollBar.FRange > 0)
        ScrollInView(Control);
}

void TScrollingWinControl::BarMessage(TControlScrollBar& Bar, TMessage& Message)
{
    if (Message.LParam == 0 && Bar.FVisible)
        Bar.Scroll(static_cast<unsigned>(Message.WParamLo()));
    else
        Inherited(Message);
}

void TScrollingWinControl::WMHScroll(TMessage& Message)
{
    BarMessage(FHorzScrollBar, Message);
}

void TScrollingWinControl::WMVScroll(TMessage& Message)
{
    BarMessage(FVertScrollBar, Message);
}

void TScrollingWinControl::WMSize(TWMSize& Message)
{
    const TStillThere IsHere(this);
    Inherited(Message);
    if (IsHere && !FUpdatingBars)
        UpdateScrollBars();
}

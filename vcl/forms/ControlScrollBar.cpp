#include "vcl/forms/ControlScrollBar.h"

#include "vcl/forms/ScrollingWinControl.h"
#include "vcl/system/ClassBuilder.h"

#include <algorithm>

void TControlScrollBar::Describe(TClassBuilder<TControlScrollBar>& Class)
{
    Class.Value<&Self::ButtonSize>("ButtonSize").Default(0);
    Class.Value<&Self::Color>("Color").Default(clBtnHighlight);
    Class.Value<&Self::Increment>("Increment").Default(8);
    Class.Property<&Self::GetMargin, &Self::SetMargin>("Margin").Default(0);
    Class.Value<&Self::ParentColor>("ParentColor").Default(true);
    Class.Property<&Self::GetPosition, &Self::SetPosition>("Position").Default(0);
    Class.Property<&Self::GetRange, &Self::SetRange>("Range").Default(0).Stored<&Self::IsRangeStored>();
    Class.Value<&Self::Smooth>("Smooth").Default(false);
    Class.Value<&Self::Size>("Size").Default(0);
    Class.Value<&Self::Style>("Style").Default(ssRegular);
    Class.Value<&Self::ThumbSize>("ThumbSize").Default(0);
    Class.Value<&Self::Tracking>("Tracking").Default(false);
    Class.Property<&Self::GetVisible, &Self::SetVisible>("Visible").Default(true);
}

TControlScrollBar::TControlScrollBar(TScrollingWinControl* Control, TScrollBarKind Kind)
    : FControl(Control),
      FKind(Kind)
{}

TPersistent* TControlScrollBar::GetOwner() const
{
    return FControl;
}

void TControlScrollBar::Assign(TPersistent* Source)
{
    auto* Other = As<TControlScrollBar>(Source);
    if (!Other) {
        TPersistent::Assign(Source);
        return;
    }
    Increment = Other->Increment;
    Smooth = Other->Smooth;
    Tracking = Other->Tracking;
    FVisible = Other->FVisible;
    FMargin = Other->FMargin;
    SetRange(Other->FRange);
    SetPosition(Other->FPosition);
}

bool TControlScrollBar::IsRangeStored() const
{
    return !FControl->AutoScroll;
}

int TControlScrollBar::Page() const
{
    return FKind == sbHorizontal ? FControl->GetClientWidth() : FControl->GetClientHeight();
}

int TControlScrollBar::MaxPosition() const
{
    return std::max(0, FRange - Page());
}

bool TControlScrollBar::IsScrollBarVisible() const
{
    const LONG Flag = FKind == sbHorizontal ? WS_HSCROLL : WS_VSCROLL;
    return FControl->HandleAllocated() && (GetWindowLongW(FControl->GetHandle(), GWL_STYLE) & Flag) != 0;
}

void TControlScrollBar::SetPosition(int Value)
{
    // Without a window nothing is scrolled; the position counts once there is one.
    if (!FControl->HandleAllocated()) {
        FPosition = std::max(Value, 0);
        return;
    }
    Value = std::clamp(Value, 0, MaxPosition());
    if (FPosition == Value)
        return;
    const int Delta = FPosition - Value;
    FPosition = Value;
    if (FKind == sbHorizontal)
        FControl->ScrollBy(Delta, 0);
    else
        FControl->ScrollBy(0, Delta);
    if (GetScrollPos(FControl->GetHandle(), BarFlag()) != Value)
        SetScrollPos(FControl->GetHandle(), BarFlag(), Value, TRUE);
}

void TControlScrollBar::SetRange(int Value)
{
    FControl->SetAutoScroll(false);
    FRange = std::max(Value, 0);
    FControl->UpdateScrollBars();
}

void TControlScrollBar::SetAutoRange(int Value)
{
    FRange = Value > 0 ? Value + FMargin : 0;
}

void TControlScrollBar::SetMargin(int Value)
{
    if (FMargin == Value)
        return;
    FMargin = Value;
    FControl->CalcAutoRange();
}

void TControlScrollBar::SetVisible(bool Value)
{
    if (FVisible == Value)
        return;
    FVisible = Value;
    FControl->UpdateScrollBars();
}

void TControlScrollBar::UpdateBar(bool Show)
{
    HWND Window = FControl->GetHandle();
    SCROLLINFO Info{};
    Info.cbSize = sizeof Info;
    Info.fMask = SIF_ALL;
    if (Show) {
        Info.nMax = FRange - 1;
        Info.nPage = static_cast<UINT>(Page());
        Info.nPos = FPosition;
    }
    SetScrollInfo(Window, BarFlag(), &Info, TRUE);
    if (IsScrollBarVisible() != Show)
        ShowScrollBar(Window, BarFlag(), Show);
}

void TControlScrollBar::Scroll(unsigned Code)
{
    const int Step = Smooth ? std::max(1, Page() / 10) : Increment;
    switch (Code) {
    case SB_LINEUP: ScrollTo(FPosition - Step); return;
    case SB_LINEDOWN: ScrollTo(FPosition + Step); return;
    case SB_PAGEUP: ScrollTo(FPosition - Page()); return;
    case SB_PAGEDOWN: ScrollTo(FPosition + Page()); return;
    case SB_TOP: ScrollTo(0); return;
    case SB_BOTTOM: ScrollTo(MaxPosition()); return;
    case SB_THUMBTRACK:
        if (!Tracking)
            return;
        [[fallthrough]];
    case SB_THUMBPOSITION: {
        SCROLLINFO Info{};
        Info.cbSize = sizeof Info;
        Info.fMask = SIF_TRACKPOS;
        GetScrollInfo(FControl->GetHandle(), BarFlag(), &Info);
        SetPosition(Info.nTrackPos);
        return;
    }
    default: return;
    }
}

void TControlScrollBar::ScrollTo(int Target)
{
    Target = std::clamp(Target, 0, MaxPosition());
    while (Smooth && FPosition != Target) {
        const int Step = std::clamp(Target - FPosition, -Increment, Increment);
        if (Step == 0)
            break;
        SetPosition(FPosition + Step);
        FControl->Update();
    }
    SetPosition(Target);
}

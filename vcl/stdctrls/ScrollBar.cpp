#include "vcl/stdctrls/ScrollBar.h"

#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"

void TScrollBar::Describe(TClassBuilder<TScrollBar>& Class)
{
    Class.PublishAll("Align", "Anchors", "BiDiMode", "Constraints", "Ctl3D", "DragCursor", "DragKind", "DragMode",
                     "Enabled");
    Class.Property<&Self::GetKind, &Self::SetKind>("Kind").Default(sbHorizontal);
    Class.Property<&Self::GetLargeChange, &Self::SetLargeChange>("LargeChange").Default(1);
    Class.Property<&Self::GetMax, &Self::SetMax>("Max").Default(100);
    Class.Property<&Self::GetMin, &Self::SetMin>("Min").Default(0);
    Class.Property<&Self::GetPageSize, &Self::SetPageSize>("PageSize");
    Class.PublishAll("ParentBiDiMode", "ParentCtl3D", "ParentShowHint", "PopupMenu");
    Class.Property<&Self::GetPosition, &Self::SetPosition>("Position").Default(0);
    Class.Publish("ShowHint");
    Class.Property<&Self::GetSmallChange, &Self::SetSmallChange>("SmallChange").Default(1);
    Class.Publish("TabOrder");
    Class.Publish("TabStop").Default(true);
    Class.PublishAll("Visible", "OnContextPopup");
    Class.Event<&Self::OnChange>("OnChange");
    Class.PublishAll("OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress",
                     "OnKeyUp");
    Class.Event<&Self::OnScroll>("OnScroll");
    Class.Publish("OnStartDrag");

    Class.Message<&Self::CNScroll>(CN_HSCROLL);
    Class.Message<&Self::CNScroll>(CN_VSCROLL);
}

TScrollBar::TScrollBar(TComponent* AOwner) : TWinControl(AOwner)
{
    ControlStyle = TControlStyle{csFramed, csDoubleClicks, csOpaque};
    SetBounds(0, 0, 121, GetSystemMetrics(SM_CYHSCROLL));
    TabStop = true;
}

void TScrollBar::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    CreateSubClass(Params, L"SCROLLBAR");
    Params.Style |= FKind == sbVertical ? SBS_VERT : SBS_HORZ;
}

void TScrollBar::CreateWnd()
{
    inherited::CreateWnd();
    UpdateScrollInfo(false);
}

void TScrollBar::Loaded()
{
    inherited::Loaded();
    SetParams(FPosition, FMin, std::max(FMin, FMax));
}

namespace {

[[noreturn]] void RaiseRangeError()
{
    throw EInvalidOperation("Scrollbar property out of range");
}

} // namespace

void TScrollBar::SetParams(int APosition, int AMin, int AMax)
{
    // A form file's range is complete when all of it is read; see Loaded.
    if (!IsLoading()) {
        if (AMax < AMin)
            RaiseRangeError();
        APosition = std::clamp(APosition, AMin, AMax);
    }
    bool Moved = FPosition != APosition;
    if (!Moved && FMin == AMin && FMax == AMax)
        return;
    FMin = AMin;
    FMax = AMax;
    FPosition = APosition;
    UpdateScrollInfo(true);
    if (Moved && !IsLoading())
        Change();
}

void TScrollBar::SetPageSize(int Value)
{
    if (FPageSize == Value)
        return;
    if (Value < 0 || (Value > FMax && !IsLoading()))
        RaiseRangeError();
    FPageSize = Value;
    UpdateScrollInfo(true);
}

void TScrollBar::UpdateScrollInfo(bool Redraw)
{
    if (!HandleAllocated())
        return;
    SCROLLINFO Info{.cbSize = sizeof(Info),
                    .fMask = SIF_POS | SIF_RANGE | SIF_PAGE,
                    .nMin = FMin,
                    .nMax = FMax,
                    .nPage = static_cast<UINT>(FPageSize),
                    .nPos = FPosition,
                    .nTrackPos = 0};
    SetScrollInfo(Handle, SB_CTL, &Info, Redraw);
}

void TScrollBar::SetKind(TScrollBarKind Value)
{
    if (FKind == Value)
        return;
    FKind = Value;
    if (!IsLoading())
        SetBounds(Left, Top, Height, Width);
    RecreateWnd();
}

void TScrollBar::SetSmallChange(TScrollBarInc Value)
{
    FSmallChange = static_cast<int16_t>(std::clamp(Value, 1, 32767));
}

void TScrollBar::SetLargeChange(TScrollBarInc Value)
{
    FLargeChange = static_cast<int16_t>(std::clamp(Value, 1, 32767));
}

// The messages carry 16 bits of the position; the bar knows it all.
int TScrollBar::TrackPosition()
{
    SCROLLINFO Info{};
    Info.cbSize = sizeof(Info);
    Info.fMask = SIF_TRACKPOS;
    GetScrollInfo(Handle, SB_CTL, &Info);
    return Info.nTrackPos;
}

void TScrollBar::CNScroll(TMessage& Message)
{
    // SB_LINEUP to SB_ENDSCROLL are numbered as the scroll codes are.
    auto Code = static_cast<TScrollCode>(Message.WParamLo());
    int64_t Target = FPosition;
    switch (Code) {
    case scLineUp: Target -= FSmallChange; break;
    case scLineDown: Target += FSmallChange; break;
    case scPageUp: Target -= FLargeChange; break;
    case scPageDown: Target += FLargeChange; break;
    case scPosition:
    case scTrack: Target = TrackPosition(); break;
    case scTop: Target = FMin; break;
    case scBottom: Target = FMax; break;
    case scEndScroll: break;
    }
    int ScrollPos = static_cast<int>(std::clamp<int64_t>(Target, FMin, LastPosition()));
    if (Code == scEndScroll)
        ScrollPos = FPosition;
    const TStillThere Here(this);
    Scroll(Code, ScrollPos);
    if (Here)
        SetPosition(ScrollPos);
    Message.Result = 0;
}

int TScrollBar::AccessibleRole() const
{
    return ROLE_SYSTEM_SCROLLBAR;
}

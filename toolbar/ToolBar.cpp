#include "toolbar/ToolBar.h"

#include "toolbar/BarDrag.h"
#include "toolbar/Flpfrm97.h"
#include "toolbar/TBDragBox.h"
#include "toolbar/ToolBarPosition.h"
#include "vcl/classes/StillThere.h"
#include "vcl/registry/Registry.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

namespace {

constexpr int DefaultHeight = 26;

} // namespace

void TkelToolBar::Describe(TClassBuilder<TkelToolBar>& Class)
{
    Class.PublishAll("Caption", "PopupMenu", "Visible", "Font", "DragMode", "DragCursor", "OnDragDrop", "OnDragOver",
                     "OnStartDrag", "OnEndDrag");
    Class.Property<&Self::GetAutoSave, &Self::SetAutoSave>("AutoSave");
    Class.Property<&Self::GetCloseButton, &Self::SetCloseButton>("CloseButton");
    Class.Property<&Self::AllowResize, &Self::AllowResize>("AllowResize");
    Class.Event<&Self::OnShow>("OnShow");
    Class.Event<&Self::OnHide>("OnHide");
    Class.Event<&Self::OnFloat>("OnFloat");
    Class.Event<&Self::OnStatic>("OnStatic");

    Class.Message<&Self::WMSize>(WM_SIZE);
    Class.Message<&Self::WMWindowPosChanged>(WM_WINDOWPOSCHANGED);
    Class.Message<&Self::CMControlListChange>(CM_CONTROLLISTCHANGE);
}

TkelToolBar::TkelToolBar(TComponent* AOwner) : TkelCustomPanel(AOwner)
{
    ControlStyle = ControlStyle + TControlStyle{csOpaque};
    SetBounds(0, 0, Width, DefaultHeight);
    NumberCaption();
    BevelInner = bvRaised;
    BevelOuter = bvNone;
    FDragBox = new TkelTBDragBox(this);
    FDragBox->Align = alLeft;
    FDragBox->Parent = this;
}

TkelToolBar::~TkelToolBar() = default;

void TkelToolBar::NumberCaption()
{
    Caption = ClassName() + std::to_string(Owner ? Owner->ComponentCount : 0);
}

void TkelToolBar::BeforeDestruction()
{
    if (Dragged == this)
        Dragged = nullptr;
    CloseFrame(LeaveFrame());
    // Bars that go with their form leave the others where they are: their places may still be saved.
    const auto Goes = [](const TComponent* Above) { return !Above || Above->ComponentState.Contains(csDestroying); };
    if (Visible && FHasRow && !IsDesigning() && !Goes(GetParentForm(this)) && !Goes(Parent))
        GiveUpRow();
    inherited::BeforeDestruction();
}

// What the reader puts somewhere is complete when it has been loaded, what code makes as soon as it lies somewhere.
// A bar that gets another parent than its frame no longer floats.
void TkelToolBar::SetParent(TWinControl* Value)
{
    TFPForm97* Emptied = Value != FFrame ? LeaveFrame() : nullptr;
    inherited::SetParent(Value);
    CloseFrame(Emptied);
    const bool WasNew = Value && std::exchange(FIsNew, false);
    FHasRow = WasNew && Dock;
    if (WasNew && !IsLoading())
        FSuspension.End();
}

void TkelToolBar::Loaded()
{
    const TStillThere IsHere(this);
    FSuspension.Begin();
    const TScopeExit Done([&] {
        if (IsHere)
            FSuspension.End();
    });
    inherited::Loaded();
    SortControls();
    FUpright = Axis().IsVertical();
    FRowThickness = Axis().Thickness(*this);
    if (FAutoSave && !IsDesigning())
        RestoreToolBarPosition(this);
    if (IsHere && !FFloating)
        FRowThickness = Axis().Thickness(*this);
}

// Notes where the bar was designed, before the bars that are loaded earlier change the dock.
void TkelToolBar::ReadState(TReader& Reader)
{
    inherited::ReadState(Reader);
    FSavedRow = {Axis().Row(*this), Axis().Start(*this)};
}

TkelDock* TkelToolBar::GetDock() const
{
    return As<TkelDock>(Parent);
}

TDockAxis TkelToolBar::Axis() const
{
    const TkelDock* InDock = Dock;
    return InDock ? InDock->Axis() : TDockAxis(alNone);
}

int TkelToolBar::AccessibleRole() const
{
    return ROLE_SYSTEM_TOOLBAR;
}

// ---- painting

void TkelToolBar::Paint()
{
    if (FAutoSave && !IsDesigning())
        SaveQuietly();
    inherited::Paint();
}

// When the registry cannot be written, no message appears at each painting.
void TkelToolBar::SaveQuietly()
{
    try {
        SaveToolBarPosition(this);
    } catch (const ERegistryException&) {
    }
}

// ---- layout of the items

TRect TkelToolBar::GetClientRect() const
{
    TRect R = inherited::GetClientRect();
    InflateRect(R, -1, -1);
    return R;
}

void TkelToolBar::Aligning()
{
    if (Parent) {
        int NewLeft = std::max(Left, 0);
        int NewTop = std::max(Top, 0);
        if (NewLeft + Width > Parent->Width)
            NewLeft = Parent->Width - Width;
        if (NewTop + Height > Parent->Height)
            NewTop = Parent->Height - Height;
        SetBounds(NewLeft, NewTop, Width, Height);
    }
    FDragBox->SetBounds(0, 0, FDragBox->Width, FDragBox->Height);
}

// Before the form shows its docks may still be smaller than they will be, and bars keep the places they were given.
void TkelToolBar::AlignControls(TControl* Control, TRect& Rect)
{
    if (HandleAllocated() && IsWindowVisible(Handle))
        Aligning();
    // Before the first item even when that lies at 0: of two controls at one place the last one that moved comes first.
    if (FDragBox->Visible)
        FDragBox->SetBounds(-1, -1, FDragBox->Width, FDragBox->Height);
    inherited::AlignControls(Control, Rect);
}

void TkelToolBar::WMSize(TWMSize& Message)
{
    Inherited(Message);
    PlaceDragBox();
}

// A bar that has moved is painted anew, which also saves its place.
void TkelToolBar::WMWindowPosChanged(TMessage& Message)
{
    Inherited(Message);
    if (FAutoSave && Message.LParam && !(reinterpret_cast<WINDOWPOS*>(Message.LParam)->flags & SWP_NOMOVE))
        Invalidate();
}

void TkelToolBar::CMControlListChange(TMessage& Message)
{
    auto* Control = reinterpret_cast<TControl*>(Message.WParam);
    if (Message.LParam)
        FItems.push_back(Control);
    else
        std::erase(FItems, Control);
    Inherited(Message);
}

// ---- showing and hiding

void TkelToolBar::HidePanel()
{
    if (!Visible)
        return;
    const TStillThere IsHere(this);
    OnHide(this);
    if (!IsHere)
        return;
    if (FFloating)
        FFrame->Hide();
    else
        DeleteFromDock();
    Hide();
    if (!IsLayoutSuspended())
        SaveToolBarPosition(this);
}

void TkelToolBar::ShowPanel()
{
    if (Visible)
        return;
    const TStillThere IsHere(this);
    OnShow(this);
    if (!IsHere)
        return;
    Show();
    if (FFloating)
        FFrame->ShowWithForm();
    else
        InsertToDock();
    if (IsHere && Dock && HandleAllocated() && IsWindowVisible(Handle))
        Dock->FitRows();
}

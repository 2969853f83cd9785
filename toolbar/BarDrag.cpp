#include "toolbar/BarDrag.h"

#include "toolbar/Flpfrm97.h"
#include "toolbar/ToolBar.h"
#include "vcl/classes/StillThere.h"
#include "vcl/system/Guard.h"

TBarDrag::TBarDrag(TkelToolBar& Bar, std::function<void()> OnEscape)
    : FBar(&Bar),
      FOnEscape(std::move(OnEscape)),
      FHook(SetWindowsHookExW(WH_KEYBOARD, &TBarDrag::KeyHook, nullptr, GetCurrentThreadId())),
      FDock(Bar.Dock),
      FSize{Bar.Width, Bar.Height}
{
    if (Bar.Floating)
        FFramePlace = {Bar.Frame->Left, Bar.Frame->Top};
    for (TkelDock* Dock : Bar.OwnersDocks()) {
        TLayout& Layout = FLayouts.emplace_back();
        Layout.Dock = Dock;
        Layout.WasInOrder = TDockRows::AreRowsInOrder(*Dock);
        Layout.Rows = TDockRows(*Dock);
    }
    Current = this;
}

TBarDrag::~TBarDrag()
{
    UnhookWindowsHookEx(FHook);
    if (Current == this)
        Current = nullptr;
}

// ---- Escape

LRESULT CALLBACK TBarDrag::KeyHook(int Code, WPARAM Key, LPARAM Flags)
{
    const bool IsPress = (Flags & (LPARAM(KF_UP) << 16)) == 0;
    const bool IsHeld = GetKeyState(VK_LBUTTON) < 0;
    if (Code != HC_ACTION || Key != VK_ESCAPE || !IsPress || !IsHeld || !Current)
        return CallNextHookEx(nullptr, Code, Key, Flags);
    Guarded(Current->FBar, [] {
        const auto OnEscape = Current->FOnEscape; // which deletes the drag
        OnEscape();
    });
    return 1;
}

void TBarDrag::Undo()
{
    if (!FBar || !ReturnBar())
        return;
    for (const TLayout& Layout : FLayouts)
        if (Layout.Dock) {
            TDockRows Rows = Layout.Rows;
            Rows.Update(*Layout.Dock);
            Rows.PutBackIn(*Layout.Dock);
        }
}

// Back into the dock, or out of all, where it was taken. False when its handlers have deleted it.
bool TBarDrag::ReturnBar()
{
    TkelToolBar* Bar = FBar;
    const TStillThere IsHere(Bar);
    if (FDock && Bar->Dock != FDock) {
        if (!Bar->Floating)
            Bar->DeleteFromDock();
        Bar->Parent = FDock;
        Bar->InsertToDock();
    } else if (!FDock && Bar->Dock) {
        Bar->DeleteFromDock();
        Bar->SetBounds(Bar->Left, Bar->Top, FSize.cx, FSize.cy);
        Bar->FloatToPos(FFramePlace.X, FFramePlace.Y + CapSize);
    } else if (Bar->Floating) {
        Bar->FloatToPos(FFramePlace.X, FFramePlace.Y + CapSize);
    }
    return static_cast<bool>(IsHere);
}

// ---- after the rules

// A dock that had empty rows before the drag is put in order at its end: in between, the bar would lose the pointer.
void TBarDrag::ArrangeRows()
{
    FHasBegun = true;
    for (const TLayout& Layout : FLayouts)
        if (FBar && Layout.Dock && Layout.WasInOrder && Layout.Dock->ArrangeRows &&
            !TDockRows::AreRowsInOrder(*Layout.Dock))
            ArrangeIn(Layout);
}

void TBarDrag::Finish()
{
    for (const TLayout& Layout : FLayouts)
        if (FHasBegun && FBar && Layout.Dock && Layout.Dock->ArrangeRows && !TDockRows::AreBarsInOrder(*Layout.Dock))
            ArrangeIn(Layout);
}

void TBarDrag::ArrangeIn(const TLayout& Layout) const
{
    TkelDock* Dock = Layout.Dock;
    const TDockAxis Axis = Dock->Axis();
    const int Length = Axis.Length(*Dock);
    TDockRows Rows = Layout.Rows;
    Rows.Update(*Dock, FBar);
    if (FBar->Dock == Dock)
        Rows.Add(*FBar, Axis.Row(*FBar) + Axis.Thickness(*FBar) / 2, Axis.Start(*FBar), Length);
    Rows.Fit(Length);
    Rows.LayIn(*Dock);
}

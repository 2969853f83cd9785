#include "vcl/controls/Aligner.h"

#include "vcl/classes/StillThere.h"
#include "vcl/controls/ControlExtras.h"
#include "vcl/controls/WinControl.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace {

// The sort key of a control among those of its side: the one nearest to the side comes first.
int SortKey(const TControl& Control, TAlign Side)
{
    switch (Side) {
    case alTop: return Control.GetTop();
    case alBottom: return -(Control.GetTop() + Control.GetHeight());
    case alLeft: return Control.GetLeft();
    case alRight: return -(Control.GetLeft() + Control.GetWidth());
    default: return 0;
    }
}

} // namespace

void TAligner::Align(TWinControl& Parent, TControl* Moved, TRect& Rect)
{
    const int Count = Parent.GetControlCount();
    const auto IsPlaced = [](const TControl& Control) {
        return TakesPart(Control) && (Control.FAlign != alNone || Control.FAnchorRules);
    };
    bool Any = false;
    for (int I = 0; I < Count && !Any; ++I)
        Any = IsPlaced(*Parent.GetControls(I));
    if (!Any)
        return;

    const TRect Client = Rect;
    const auto Refs = std::make_unique<TComponentRef<TControl>[]>(Count);
    size_t Placed = 0;
    for (int I = 0; I < Count; ++I)
        if (TControl* Control = Parent.GetControls(I); IsPlaced(*Control))
            Refs[Placed++] = Control;
    const TControls Controls(Refs.get(), Placed);
    for (TAlign Side : {alTop, alBottom, alLeft, alRight, alClient})
        AlignSide(Controls, Side, Moved, Rect);
    for (TControl* Control : Controls)
        if (Control && Control->FAlign == alNone && Control->FAnchorRules && Control != Moved)
            Anchor(*Control, Client);
}

bool TAligner::TakesPart(const TControl& Control)
{
    return Control.FVisible || (Control.IsDesigning() && !Control.FControlStyle.Contains(csNoDesignVisible));
}

void TAligner::AlignSide(TControls Controls, TAlign Side, TControl* Moved, TRect& Rect)
{
    struct TEntry {
        int Key;
        size_t Order;
        const TComponentRef<TControl>* Control;
    };
    std::vector<TEntry> Entries;
    for (size_t I = 0; I < Controls.size(); ++I)
        if (TControl* Control = Controls[I]; Control && Control->FAlign == Side)
            Entries.push_back({SortKey(*Control, Side), Control == Moved ? 0 : I + 1, &Controls[I]});
    std::sort(Entries.begin(), Entries.end(),
              [](const TEntry& A, const TEntry& B) { return A.Key != B.Key ? A.Key < B.Key : A.Order < B.Order; });
    for (const TEntry& Entry : Entries)
        if (TControl* Control = *Entry.Control)
            Place(*Control, Side, Rect);
}

void TAligner::Place(TControl& Control, TAlign Side, TRect& Rect)
{
    int Width = std::max(Rect.Width(), 0);
    int Height = std::max(Rect.Height(), 0);
    const TStillThere Still(&Control);
    switch (Side) {
    case alTop: Control.SetBounds(Rect.Left, Rect.Top, Width, Control.FHeight); break;
    case alBottom: Control.SetBounds(Rect.Left, Rect.Bottom - Control.FHeight, Width, Control.FHeight); break;
    case alLeft: Control.SetBounds(Rect.Left, Rect.Top, Control.FWidth, Height); break;
    case alRight: Control.SetBounds(Rect.Right - Control.FWidth, Rect.Top, Control.FWidth, Height); break;
    default: Control.SetBounds(Rect.Left, Rect.Top, Width, Height);
    }
    // What is left is computed from the size that the control has now: constraints may have changed the one it was
    // given.
    if (!Still)
        return;
    switch (Side) {
    case alTop: Rect.Top += Control.FHeight; break;
    case alBottom: Rect.Bottom -= Control.FHeight; break;
    case alLeft: Rect.Left += Control.FWidth; break;
    case alRight: Rect.Right -= Control.FWidth; break;
    default: break;
    }
}

void TAligner::Anchor(TControl& Control, const TRect& Client)
{
    const TAnchorRules& Rules = *Control.FAnchorRules;
    TRect R = Rules.Bounds;
    // Anchored to both sides it grows with the parent, to the far one it moves along; anchored to none it moves by half
    // of the growth.
    auto Adjust = [](bool Near, bool Far, int Growth, LONG& Start, LONG& End) {
        int StartMoves = Near ? 0 : Far ? Growth : Growth / 2;
        int EndMoves = Far ? Growth : StartMoves;
        Start += StartMoves;
        End += EndMoves;
    };
    TAnchors Anchors = Control.FAnchors;
    Adjust(Anchors.Contains(akLeft), Anchors.Contains(akRight), Client.Width() - Rules.ParentSize.X, R.left, R.right);
    Adjust(Anchors.Contains(akTop), Anchors.Contains(akBottom), Client.Height() - Rules.ParentSize.Y, R.top, R.bottom);
    Control.SetBounds(R.Left, R.Top, R.Width(), R.Height());
}

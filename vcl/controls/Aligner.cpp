#include "vcl/controls/Aligner.h"

#include "vcl/controls/ControlExtras.h"
#include "vcl/controls/WinControl.h"

#include <algorithm>

namespace {

// Where a control stands in the order of its side: what lies nearer to the side comes first.
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
    TRect Client = Rect;
    std::vector<TControl*> Controls;
    bool Any = false;
    Controls.reserve(Parent.GetControlCount());
    for (int I = 0; I < Parent.GetControlCount(); ++I) {
        TControl* Control = Parent.GetControls(I);
        if (!TakesPart(*Control))
            continue;
        Controls.push_back(Control);
        Any |= Control->FAlign != alNone || Control->FAnchorRules;
    }
    if (!Any)
        return;
    for (TAlign Side : {alTop, alBottom, alLeft, alRight, alClient})
        AlignSide(Controls, Side, Moved, Rect);
    for (TControl* Control : Controls)
        if (Control->FAlign == alNone && Control->FAnchorRules && Control != Moved)
            Anchor(*Control, Client);
}

bool TAligner::TakesPart(const TControl& Control)
{
    return Control.FVisible || (Control.IsDesigning() && !Control.FControlStyle.Contains(csNoDesignVisible));
}

void TAligner::AlignSide(const std::vector<TControl*>& Controls, TAlign Side, TControl* Moved, TRect& Rect)
{
    struct TEntry {
        int Key;
        size_t Order;
        TControl* Control;
    };
    std::vector<TEntry> Entries;
    for (size_t I = 0; I < Controls.size(); ++I)
        if (Controls[I]->FAlign == Side)
            Entries.push_back({SortKey(*Controls[I], Side), Controls[I] == Moved ? 0 : I + 1, Controls[I]});
    std::sort(Entries.begin(), Entries.end(),
              [](const TEntry& A, const TEntry& B) { return A.Key != B.Key ? A.Key < B.Key : A.Order < B.Order; });
    for (const TEntry& Entry : Entries)
        Place(*Entry.Control, Side, Rect);
}

void TAligner::Place(TControl& Control, TAlign Side, TRect& Rect)
{
    int Width = std::max(Rect.Width(), 0);
    int Height = std::max(Rect.Height(), 0);
    switch (Side) {
    case alTop:
        Control.SetBounds(Rect.Left, Rect.Top, Width, Control.FHeight);
        Rect.Top += Control.FHeight;
        break;
    case alBottom:
        Control.SetBounds(Rect.Left, Rect.Bottom - Control.FHeight, Width, Control.FHeight);
        Rect.Bottom -= Control.FHeight;
        break;
    case alLeft:
        Control.SetBounds(Rect.Left, Rect.Top, Control.FWidth, Height);
        Rect.Left += Control.FWidth;
        break;
    case alRight:
        Control.SetBounds(Rect.Right - Control.FWidth, Rect.Top, Control.FWidth, Height);
        Rect.Right -= Control.FWidth;
        break;
    default: Control.SetBounds(Rect.Left, Rect.Top, Width, Height);
    }
}

void TAligner::Anchor(TControl& Control, const TRect& Client)
{
    const TAnchorRules& Rules = *Control.FAnchorRules;
    TRect R = Rules.Bounds;
    // Both sides: it grows with the parent; the far one: it moves along; none: it keeps its place in proportion.
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

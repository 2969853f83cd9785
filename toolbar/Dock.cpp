#include "toolbar/Dock.h"

#include "toolbar/DockRows.h"
#include "toolbar/ToolBar.h"
#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int DefaultHeight = 48;
constexpr int EmptyDesignSize = 10;

} // namespace

void TkelDock::Describe(TClassBuilder<TkelDock>& Class)
{
    Class.PublishAll("BevelOuter", "BevelInner", "BevelSides", "BorderColor", "VerticalAlignment", "Align", "Caption",
                     "PopupMenu");
}

TkelDock::TkelDock(TComponent* AOwner) : TkelCustomPanel(AOwner), FFitted(new TFittedRows)
{
    Height = DefaultHeight;
    Align = alTop;
    BevelOuter = bvNone;
    BevelInner = bvNone;
    Caption = "";
}

TkelDock::~TkelDock() = default;

std::vector<TkelToolBar*> TkelDock::AllBars() const
{
    std::vector<TkelToolBar*> Bars;
    for (int I = 0; I < ControlCount; ++I)
        if (auto* Bar = As<TkelToolBar>(Controls[I]))
            Bars.push_back(Bar);
    return Bars;
}

std::vector<TkelToolBar*> TkelDock::ShownBars() const
{
    std::vector<TkelToolBar*> Bars = AllBars();
    std::erase_if(Bars, [](const TkelToolBar* Bar) { return !Bar->Visible; });
    return Bars;
}

TControl* TkelDock::FindInRow(int Place, int Thick, const TControl* Except) const
{
    for (int I = 0; I < ControlCount; ++I) {
        TControl* Control = Controls[I];
        if (Control != Except && Control->Visible && Axis().IsInRow(*Control, Place, Thick))
            return Control;
    }
    return nullptr;
}

void TkelDock::ShrinkIfEmpty()
{
    if (ControlCount > 0)
        return;
    const int Size = IsDesigning() ? EmptyDesignSize : 0;
    SetBounds(Left, Top, Size, Size);
}

void TkelDock::Loaded()
{
    inherited::Loaded();
    ShrinkIfEmpty();
}

void TkelDock::Paint()
{
    inherited::Paint();
    if (IsDesigning()) {
        Canvas->Brush->Style = bsClear;
        Canvas->Pen->Style = psSolid;
        Canvas->Pen->Color = clBtnShadow;
        Canvas->Rectangle(0, 0, Width, Height);
    } else if (!std::exchange(FSeen, true)) {
        BringBarsIn();
    }
}

// Settings may have put a bar where nobody can reach it; now that the form shows it is known how large the dock is.
void TkelDock::BringBarsIn()
{
    if (ArrangeRows) {
        FitRows();
        return;
    }
    const TRect Inside(0, 0, Width, Height);
    for (TkelToolBar* Bar : ShownBars()) {
        TRect Seen;
        if (!IntersectRect(Seen, Inside, Bar->BoundsRect))
            Bar->Aligning();
    }
}

// Moves in bars that would be out of sight in the smaller dock.
void TkelDock::Resize()
{
    inherited::Resize();
    const int Thick = Axis().Thickness(*this);
    if (!TakesBars() || IsDesigning() || Thick == 0 || FLaying)
        return;
    if (ArrangeRows && FSeen && Axis().Length(*this) != FFittedLength)
        FitRows();
    if (ArrangeRows && TkelToolBar::IsDragged())
        return; // the rows are arranged when the step of the drag is done
    for (TkelToolBar* Bar : ShownBars())
        if (Axis().Row(*Bar) >= Thick)
            Bar->Aligning();
}

// Within the length that the dock has now.
void TkelDock::FitRows()
{
    if (!ArrangeRows || !TakesBars() || IsDesigning())
        return;
    FFittedLength = Axis().Length(*this);
    FFitted->Fit(*this);
}

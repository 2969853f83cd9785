#include "demo/BarLayout.h"

#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/registry/RegIniFile.h"

namespace {

// Where bars that are made float come to lie, in pixels from the form's upper left corner; each further on.
constexpr int FloatingLeft = 120;
constexpr int FloatingTop = 160;
constexpr int FloatingStep = 30;

} // namespace

void TBarLayout::Remember(const TComponent* Form)
{
    for (int I = 0; I < Form->ComponentCount; ++I)
        if (auto* Bar = As<TkelToolBar>(Form->Components[I]))
            FPlaces.push_back({Bar, Bar->Dock, Bar->BoundsRect});
}

void TBarLayout::Reset()
{
    for (const TPlace& Place : FPlaces)
        Place.Bar->HidePanel();
    TRegIniFile("Software\\Halvent\\" + Application->Title).EraseSection("ToolBar");
    for (const TPlace& Place : FPlaces)
        PutBack(Place);
}

// A hidden bar is horizontal; it turns when it comes into a vertical dock.
void TBarLayout::PutBack(const TPlace& Place)
{
    TkelToolBar* Bar = Place.Bar;
    const auto [Shorter, Longer] = std::minmax({Place.Bounds.Width(), Place.Bounds.Height()});
    Bar->Parent = Place.Dock;
    Bar->SetBounds(Place.Bounds.Left, Place.Bounds.Top, Longer, Shorter);
    Bar->CorrectAlign();
    Bar->ShowPanel();
}

// ---- one bar

TCheckBoxState TBarLayout::StateOf(const TkelToolBar* Bar)
{
    if (!Bar->Visible)
        return cbUnchecked;
    return Bar->Floating ? cbGrayed : cbChecked;
}

void TBarLayout::SetState(TkelToolBar* Bar, TCheckBoxState Value) const
{
    if (StateOf(Bar) == Value)
        return;
    const auto Place = std::ranges::find(FPlaces, Bar, &TPlace::Bar);
    switch (Value) {
    case cbUnchecked: Bar->HidePanel(); break;
    case cbChecked:
        if (!Bar->Floating) {
            Bar->ShowPanel();
        } else {
            Bar->HidePanel();
            PutBack(*Place);
        }
        break;
    case cbGrayed:
        Bar->ShowPanel();
        if (!Bar->Floating) {
            const auto Step = static_cast<int>(Place - FPlaces.begin()) * FloatingStep;
            const TPoint At = Application->MainForm->ClientToScreen({FloatingLeft + Step, FloatingTop + Step});
            Bar->FloatToPos(At.X, At.Y);
        }
        break;
    }
}

std::vector<TkelToolBar*> TBarLayout::Bars() const
{
    std::vector<TkelToolBar*> Bars;
    Bars.reserve(FPlaces.size());
    for (const TPlace& Place : FPlaces)
        Bars.push_back(Place.Bar);
    return Bars;
}

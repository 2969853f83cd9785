#include "demo/BarLayout.h"

#include "vcl/forms/Application.h"
#include "vcl/registry/RegIniFile.h"

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

std::vector<TkelToolBar*> TBarLayout::Bars() const
{
    std::vector<TkelToolBar*> Bars;
    Bars.reserve(FPlaces.size());
    for (const TPlace& Place : FPlaces)
        Bars.push_back(Place.Bar);
    return Bars;
}

#include "menus/ColorMenu.h"

#include "vcl/graphics/DitherBrush.h"
#include "vcl/graphics/SolidFill.h"
#include "vcl/system/ClassBuilder.h"

#include <array>

namespace {

constexpr int DefaultWidth = 26;
constexpr int DefaultHeight = 22;
constexpr int ColorCount = 16;
constexpr uint8_t ColorGroup = 98;

// What a cell leaves to the room that the system adds to the measured width for a check mark. That is 14 pixels in one
// system and depends on the size of its check marks in another; so cells are drawn as wide as they come.
constexpr int CheckMarkRoom = 16;
constexpr int ColumnGap = 2;    // that a cell takes of the space to the left of it
constexpr int RowGap = 1;       // between the cell and the edge of its item, above and below
constexpr int SwatchMargin = 3; // between the edges of the cell and the colour

// The colours that items can stand for.
using TPalette = std::array<TColor, 20>;

const TPalette& Palette()
{
    static const TPalette Colors = [] {
        std::array<PALETTEENTRY, std::tuple_size_v<TPalette>> Entries{};
        GetPaletteEntries(static_cast<HPALETTE>(GetStockObject(DEFAULT_PALETTE)), 0, Entries.size(), Entries.data());
        TPalette Result;
        std::ranges::transform(Entries, Result.begin(), [](const PALETTEENTRY& Entry) {
            return TColor(RGB(Entry.peRed, Entry.peGreen, Entry.peBlue));
        });
        return Result;
    }();
    return Colors;
}

// clNone for an item that stands for no colour.
TColor ColorOf(const TMenuItem& Item)
{
    return Item.Tag >= 0 && Item.Tag < std::ssize(Palette()) ? Palette()[static_cast<size_t>(Item.Tag)] : clNone;
}

bool StartsColumn(int Index, TMenuOrdering Ordering)
{
    switch (Ordering) {
    case mo16x1: return true;
    case mo8x2: return Index % 2 == 0;
    case mo4x4: return Index % 4 == 0;
    case mo2x8: return Index == 8;
    default: return false;
    }
}

} // namespace

void TkelColorMenu::Describe(TClassBuilder<TkelColorMenu>& Class)
{
    Class.Publish("AutoHotkeys").Default(maManual);
    Class.Property<&Self::GetWidth, &Self::SetWidth>("Width");
    Class.Property<&Self::GetHeight, &Self::SetHeight>("Height");
    Class.Property<&Self::GetMenuOrdering, &Self::SetMenuOrdering>("MenuOrdering").Default(mo4x4);
    Class.Event<&Self::OnChange>("OnChange");
}

TkelColorMenu::TkelColorMenu(TComponent* AOwner)
    : TkelOfficePopupMenu(AOwner),
      FWidth(DefaultWidth),
      FHeight(DefaultHeight)
{
    AutoHotkeys = maManual; // nobody can see the captions
}

void TkelColorMenu::Loaded()
{
    inherited::Loaded();
    if (Items->Count == 0)
        CreateItems();
    for (int I = 0; I < Items->Count; ++I)
        Items->Items[I]->OnClick = {this, &TkelColorMenu::DoClick};
    UpdateBreaks();
}

// The items belong to the menu as entries, not as components: the names are the same in every menu, and in the designer
// they must differ from those of the form's components, too.
void TkelColorMenu::CreateItems()
{
    for (int I = 0; I < ColorCount; ++I) {
        TMenuItem* Item = NewItem("color item", scNone, false, true, {this, &TkelColorMenu::DoClick}, 0,
                                  "miColorMenu" + std::to_string(I));
        Item->Tag = I;
        Item->RadioItem = true;
        Item->GroupIndex = ColorGroup;
        Items->Add(Item);
    }
    UpdateBreaks();
}

// ---- properties

// The system measures an entry once only, so the entries are made anew.
void TkelColorMenu::SetWidth(int Value)
{
    if (FWidth == Value)
        return;
    FWidth = Value;
    MarkStale();
}

void TkelColorMenu::SetHeight(int Value)
{
    if (FHeight == Value)
        return;
    FHeight = Value;
    MarkStale();
}

void TkelColorMenu::SetMenuOrdering(TMenuOrdering Value)
{
    if (FMenuOrdering == Value)
        return;
    FMenuOrdering = Value;
    UpdateBreaks();
}

void TkelColorMenu::UpdateBreaks()
{
    for (int I = 0; I < Items->Count; ++I)
        Items->Items[I]->Break = StartsColumn(I, FMenuOrdering) ? mbBreak : mbNone;
}

// A cell begins to the left of its item's rectangle. There is space for that where a column begins by a break; so the
// first item has one, too, whatever its Break.
unsigned TkelColorMenu::EntryType(const TMenuItem& Item) const
{
    return inherited::EntryType(Item) | (Item.Parent == Items && Item.MenuIndex == 0 ? MFT_MENUBREAK : 0);
}

// ---- the current colour

int TkelColorMenu::ColorToIndex(TColor Color) const
{
    const auto End = Palette().begin() + std::min<ptrdiff_t>(Items->Count, std::ssize(Palette()));
    const auto Found = std::find(Palette().begin(), End, Color);
    return Found == End ? Items->Count : static_cast<int>(Found - Palette().begin());
}

void TkelColorMenu::DoClick(TObject* Sender)
{
    auto* Item = As<TMenuItem>(Sender);
    const TColor Color = Item ? ColorOf(*Item) : clNone;
    if (Color == clNone)
        return;
    CheckOnly(Item);
    CurrentColor = Color;
    OnChange(this);
}

// The item of the colour before must not stay checked, even when no item has the current colour.
void TkelColorMenu::Popup(int X, int Y)
{
    const int Index = ColorToIndex(CurrentColor);
    TMenuItem* Current = nullptr;
    for (int I = 0; I < Items->Count && !Current; ++I)
        if (Items->Items[I]->Tag == Index)
            Current = Items->Items[I];
    CheckOnly(Current);
    inherited::Popup(X, Y);
}

// Checks Item, or no colour when it is nullptr. Items that stand for no colour keep their check marks.
void TkelColorMenu::CheckOnly(TMenuItem* Item)
{
    for (int I = 0; I < Items->Count; ++I)
        if (TMenuItem* Each = Items->Items[I]; Each != Item && ColorOf(*Each) != clNone)
            Each->Checked = false;
    if (Item)
        Item->Checked = true;
}

// ---- measuring and drawing

void TkelColorMenu::DoMeasureItem(TMenuItem*, int& Width, int& Height, TCanvas*)
{
    Width = FWidth - CheckMarkRoom;
    Height = FHeight;
}

void TkelColorMenu::DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect)
{
    HDC Context = Canvas->BareHandle();
    const bool IsSelected = (State & ODS_SELECTED) != 0;
    const bool IsSunken = !IsSelected && (State & ODS_CHECKED) != 0;
    TRect R(Rect.left - ColumnGap, Rect.top + RowGap, Rect.right, Rect.bottom - RowGap);
    if (R.IsEmpty())
        return;
    if (IsSunken)
        FillDithered(Context, R);
    else
        TSolidFill(Context).Fill(R, clBtnFace);
    if (IsSelected || IsSunken) {
        DrawEdge(Context, &R, IsSelected ? BDR_RAISEDINNER : BDR_SUNKENINNER, BF_TOPLEFT);
        DrawEdge(Context, &R, IsSelected ? BDR_RAISEDOUTER : BDR_SUNKENOUTER, BF_BOTTOMRIGHT);
    }

    InflateRect(R, -SwatchMargin, -SwatchMargin);
    if (R.IsEmpty())
        return;
    TSolidFill Fill(Context);
    Fill.Frame(R, clBtnShadow, clBtnShadow);
    InflateRect(R, -1, -1);
    if (const TColor Color = ColorOf(*Item); Color != clNone && !R.IsEmpty())
        Fill.Fill(R, Color);
}

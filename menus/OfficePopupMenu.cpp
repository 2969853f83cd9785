#include "menus/OfficePopupMenu.h"

#include "menus/CheckMark.h"
#include "vcl/classes/StillThere.h"
#include "vcl/controls/Control.h"
#include "vcl/menus/MenuEntries.h"
#include "vcl/system/ClassBuilder.h"

#include <list>

void TkelOfficePopupMenu::Describe(TClassBuilder<TkelOfficePopupMenu>& Class)
{
    Class.PublishAll("Style", "OnDrawItem", "OnMeasureItem");
    Class.Property<&Self::GetBanner, &Self::SetBanner>("Banner");
    Class.Property<&Self::GetGlyphs, &Self::SetGlyphs>("Glyphs");
    Class.Property<&Self::GetImages, &Self::SetImages>("Images");
    Class.Value<&Self::GlyphsEdit>("GlyphsEdit").NotStored();
    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
}

TkelOfficePopupMenu::TkelOfficePopupMenu(TComponent* AOwner) : TkelCustomPopupMenu(AOwner)
{
    Style = msOwnerDraw;
}

void TkelOfficePopupMenu::SetGlyphs(TkelGlyphs* Value)
{
    FImages = nullptr;
    FGlyphs = Value;
}

void TkelOfficePopupMenu::SetImages(TImageList* Value)
{
    FGlyphs = nullptr;
    FImages = Value;
}

void TkelOfficePopupMenu::Popup(int X, int Y)
{
    FExtentOf = nullptr;
    inherited::Popup(X, Y);
}

// ---- measuring and drawing

void TkelOfficePopupMenu::DoMeasureItem(TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas)
{
    Width = Canvas->TextWidth(Item->Caption) + 2 * OfficeCellSize + 2;
    if (Item->ShortCut != scNone)
        Width += Canvas->TextWidth(ShortCutToText(Item->ShortCut));
    if (FBanner.Picture->Width > 0)
        Width += FBanner.Picture->Width + 2;
    Height = OfficeCellSize + 1;
    FHeights[Item->Command] = Height;
    FExtentOf = nullptr;
}

void TkelOfficePopupMenu::DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect)
{
    TOfficeItemPainter Painter(Canvas, Item, State, Rect);
    if (FBanner.Picture->Width > 0) {
        const TExtent& Extent = ExtentAround(Item, Rect.top);
        Painter.DrawBanner(&FBanner, Extent.Top, Extent.Height);
    }
    if (IsOfficeSeparator(*Item)) {
        Painter.DrawSeparator();
        return;
    }
    if (!FMark)
        FMark = CheckMark();
    Painter.DrawItem({.Glyphs = FGlyphs, .Images = FImages}, *FMark);
}

void TkelOfficePopupMenu::MenuChanged(TObject* Sender, TMenuItem* Source, bool Rebuild)
{
    FExtentOf = nullptr;
    inherited::MenuChanged(Sender, Source, Rebuild);
}

const TkelOfficePopupMenu::TExtent& TkelOfficePopupMenu::ExtentAround(const TMenuItem* Item, int ItemTop)
{
    TMenuItem* Parent = Item->Parent;
    if (Parent && FExtentOf == Parent)
        return FExtent;
    FExtentOf = Parent;
    FExtent = {.Top = ItemTop};
    bool IsAbove = true;
    for (unsigned Command : Parent ? ShownCommands(Parent) : std::vector<unsigned>{Item->Command}) {
        IsAbove &= Command != Item->Command;
        const auto Found = FHeights.find(Command);
        const int Height = Found == FHeights.end() ? 0 : Found->second;
        FExtent.Height += Height;
        FExtent.Top -= IsAbove ? Height : 0;
    }
    // Systems differ in whether the menu's frame lies above the first item. In the columns behind the first one, and
    // when the menu is scrolled, this finds nothing.
    if (FExtent.Top < 0 || FExtent.Top >= OfficeCellSize)
        FExtent.Top = 0;
    return FExtent;
}

std::vector<unsigned> TkelOfficePopupMenu::ShownCommands(TMenuItem* Parent)
{
    std::vector<unsigned> Commands;
    if (!Parent->HandleAllocated()) {
        for (int I = 0; I < Parent->Count; ++I)
            Commands.push_back(Parent->Items[I]->Command);
        return Commands;
    }
    HMENU Menu = Parent->Handle;
    const int Count = GetMenuItemCount(Menu);
    for (int I = 0; I < Count; ++I)
        Commands.push_back(EntryCommand(Menu, I));
    return Commands;
}

// ---- keys

namespace {

TMenuItem* FindLeaf(TMenuItem* Parent, uint16_t Key)
{
    for (int I = 0; I < Parent->Count; ++I) {
        TMenuItem* Item = Parent->Items[I];
        if (!Item->Enabled || !Item->Visible)
            continue;
        if (Item->Count > 0) {
            if (TMenuItem* Found = FindLeaf(Item, Key))
                return Found;
        } else if (Item->AnswersTo(Key)) {
            return Item;
        }
    }
    return nullptr;
}

} // namespace

TMenuItem* TkelOfficePopupMenu::ProcessAccel(uint16_t Key) const
{
    return IsDesigning() ? nullptr : FindLeaf(Items, Key);
}

void TkelOfficePopupMenu::CMDialogChar(TWMKey& Message)
{
    // A handler may delete items, and the menu.
    std::list<TComponentRef<TMenuItem>> Wanted;
    for (int I = 0; I < Items->Count; ++I)
        if (TMenuItem* Item = Items->Items[I]; Item->AnswersTo(Message.CharCode))
            Wanted.emplace_back(Item);
    const TStillThere IsHere(this);
    for (const TComponentRef<TMenuItem>& Item : Wanted)
        if (Item) {
            Item->Click();
            Message.Result = 1;
        }
    if (IsHere)
        Inherited(Message);
}

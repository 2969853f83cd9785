#include "menus/OfficePopupMenu.h"

#include "menus/CheckMark.h"
#include "vcl/controls/Control.h"
#include "vcl/system/ClassBuilder.h"

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
    FGlyphs = {.Glyphs = Value};
    if (Value)
        Value->FreeNotification(this);
}

void TkelOfficePopupMenu::SetImages(TImageList* Value)
{
    FGlyphs = {.Images = Value};
    if (Value)
        Value->FreeNotification(this);
}

void TkelOfficePopupMenu::Notification(TComponent* Component, TOperation Operation)
{
    inherited::Notification(Component, Operation);
    if (Operation == opRemove && (Component == FGlyphs.Glyphs || Component == FGlyphs.Images))
        FGlyphs = {};
}

void TkelOfficePopupMenu::Popup(int X, int Y)
{
    FSummedItem = nullptr;
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
    FSummedItem = nullptr;
}

void TkelOfficePopupMenu::DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect)
{
    TOfficeItemPainter Painter(Canvas, Item, State, Rect);
    if (FBanner.Picture->Width > 0)
        Painter.DrawBanner(&FBanner, TotalHeight(Item));
    if (IsOfficeSeparator(*Item)) {
        Painter.DrawSeparator();
        return;
    }
    if (!FMark)
        FMark = CheckMark();
    Painter.DrawItem(FGlyphs, *FMark);
}

void TkelOfficePopupMenu::MenuChanged(TObject* Sender, TMenuItem* Source, bool Rebuild)
{
    FSummedItem = nullptr;
    inherited::MenuChanged(Sender, Source, Rebuild);
}

int TkelOfficePopupMenu::TotalHeight(const TMenuItem* Item)
{
    TMenuItem* Parent = Item->Parent;
    if (!Parent)
        return MeasuredHeight(Item->Command);
    if (FSummedItem != Parent) {
        FSum = SumOfHeights(Parent);
        FSummedItem = Parent;
    }
    return FSum;
}

int TkelOfficePopupMenu::SumOfHeights(TMenuItem* Parent) const
{
    int Sum = 0;
    if (!Parent->HandleAllocated()) {
        for (int I = 0; I < Parent->Count; ++I)
            Sum += MeasuredHeight(Parent->Items[I]->Command);
        return Sum;
    }
    // Some items do not show.
    HMENU Menu = Parent->Handle;
    for (int I = GetMenuItemCount(Menu); I-- > 0;) {
        MENUITEMINFOW Info{};
        Info.cbSize = sizeof Info;
        Info.fMask = MIIM_ID;
        if (GetMenuItemInfoW(Menu, static_cast<UINT>(I), TRUE, &Info))
            Sum += MeasuredHeight(Info.wID);
    }
    return Sum;
}

int TkelOfficePopupMenu::MeasuredHeight(unsigned Command) const
{
    const auto Found = FHeights.find(Command);
    return Found == FHeights.end() ? 0 : Found->second;
}

// ---- keys

namespace {

TMenuItem* FindLeaf(TMenuItem* Parent, uint16_t Key)
{
    for (int I = 0; I < Parent->Count; ++I) {
        TMenuItem* Item = Parent->Items[I];
        if (!Item->Enabled)
            continue;
        if (Item->Count > 0) {
            if (TMenuItem* Found = FindLeaf(Item, Key))
                return Found;
        } else if (IsAccel(Key, Item->Caption)) {
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
    // A handler may take items away.
    for (int I = 0; I < Items->Count; ++I)
        if (TMenuItem* Item = Items->Items[I]; IsAccel(Message.CharCode, Item->Caption)) {
            Item->Click();
            Message.Result = 1;
        }
    Inherited(Message);
}

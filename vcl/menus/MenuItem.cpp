#include "vcl/menus/MenuItem.h"

#include "vcl/classes/StillThere.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/menus/Menu.h"
#include "vcl/menus/MenuBitmap.h"
#include "vcl/menus/MenuCommands.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/SysUtils.h"

#include <algorithm>

void TMenuItem::Describe(TClassBuilder<TMenuItem>& Class)
{
    Class.Value<&Self::AutoCheck>("AutoCheck").Default(false);
    Class.Property<&Self::GetAutoHotkeys, &Self::SetAutoHotkeys>("AutoHotkeys").Default(maParent);
    Class.Property<&Self::GetAutoLineReduction, &Self::SetAutoLineReduction>("AutoLineReduction").Default(maParent);
    Class.Property<&Self::GetBitmap, &Self::SetBitmap>("Bitmap").Stored<&Self::HasBitmap>();
    Class.Property<&Self::GetBreak, &Self::SetBreak>("Break").Default(mbNone);
    Class.Property<&Self::GetCaption, &Self::SetCaption>("Caption");
    Class.Property<&Self::GetChecked, &Self::SetChecked>("Checked").Default(false);
    Class.Property<&Self::GetSubMenuImages, &Self::SetSubMenuImages>("SubMenuImages");
    Class.Property<&Self::GetDefault, &Self::SetDefault>("Default").Default(false);
    Class.Property<&Self::GetEnabled, &Self::SetEnabled>("Enabled").Default(true);
    Class.Property<&Self::GetGroupIndex, &Self::SetGroupIndex>("GroupIndex").Default(0);
    Class.Value<&Self::HelpContext>("HelpContext").Default(0);
    Class.Value<&Self::Hint>("Hint");
    Class.Property<&Self::GetImageIndex, &Self::SetImageIndex>("ImageIndex").Default(-1);
    Class.Property<&Self::GetRadioItem, &Self::SetRadioItem>("RadioItem").Default(false);
    Class.Property<&Self::GetShortCut, &Self::SetShortCut>("ShortCut").Default(0);
    Class.Property<&Self::GetVisible, &Self::SetVisible>("Visible").Default(true);
    Class.Event<&Self::OnAdvancedDrawItem>("OnAdvancedDrawItem");
    Class.Event<&Self::OnClick>("OnClick");
    Class.Event<&Self::OnDrawItem>("OnDrawItem");
    Class.Event<&Self::OnMeasureItem>("OnMeasureItem");
}

TMenuItem::TMenuItem(TComponent* AOwner) : TComponent(AOwner), FCommand(TakeMenuCommand(this))
{}

TMenuItem::~TMenuItem()
{
    FreeNative();
    ReturnMenuCommand(FCommand);
}

void TMenuItem::BeforeDestruction()
{
    if (FParent)
        FParent->Remove(this);
    Clear();
    TComponent::BeforeDestruction();
}

// ---- the tree

TMenuItem* TMenuItem::GetItems(int Index) const
{
    if (Index < 0 || Index >= GetCount())
        throw EMenuError("Menu index out of range");
    return FItems[static_cast<size_t>(Index)];
}

void TMenuItem::Add(std::initializer_list<TMenuItem*> Items)
{
    for (TMenuItem* Item : Items)
        Add(Item);
}

void TMenuItem::Insert(int Index, TMenuItem* Item)
{
    if (Item->FParent)
        throw EMenuError("Menu inserted twice");
    if (Index < 0 || Index > GetCount())
        throw EMenuError("Menu index out of range");
    if (Index > 0)
        Item->FGroupIndex = std::max(Item->FGroupIndex, FItems[static_cast<size_t>(Index) - 1]->FGroupIndex);
    FItems.insert(FItems.begin() + Index, Item);
    Item->FParent = this;
    ItemsChanged(GetCount() == 1);
}

void TMenuItem::Delete(int Index)
{
    TMenuItem* Item = GetItems(Index);
    DetachNative(Item);
    FItems.erase(FItems.begin() + Index);
    Item->FParent = nullptr;
    ItemsChanged(FItems.empty());
}

void TMenuItem::Remove(TMenuItem* Item)
{
    const int Index = IndexOf(Item);
    if (Index < 0)
        throw EMenuError("Sub-menu is not in menu");
    Delete(Index);
}

void TMenuItem::Clear()
{
    const TStillThere IsHere(this);
    while (IsHere && !FItems.empty())
        delete FItems.back();
}

int TMenuItem::IndexOf(const TMenuItem* Item) const
{
    const auto Found = std::find(FItems.begin(), FItems.end(), Item);
    return Found == FItems.end() ? -1 : static_cast<int>(Found - FItems.begin());
}

TMenuItem* TMenuItem::Find(std::string_view Caption) const
{
    const AnsiString Wanted = StripHotkey(Caption);
    for (TMenuItem* Item : FItems)
        if (AnsiSameText(StripHotkey(Item->FCaption), Wanted))
            return Item;
    return nullptr;
}

int TMenuItem::NewLineAt(int Index)
{
    if (Index < 0)
        throw EMenuError("Sub-menu is not in menu");
    Insert(Index, NewLine(Owner));
    return Index;
}

int TMenuItem::InsertNewLineBefore(TMenuItem* Item)
{
    return NewLineAt(IndexOf(Item));
}

int TMenuItem::InsertNewLineAfter(TMenuItem* Item)
{
    const int Index = IndexOf(Item);
    return NewLineAt(Index < 0 ? Index : Index + 1);
}

TMenu* TMenuItem::GetParentMenu() const
{
    const TMenuItem* Item = this;
    while (Item->FParent)
        Item = Item->FParent;
    return Item->FMenu;
}

int TMenuItem::GetMenuIndex() const
{
    return FParent ? FParent->IndexOf(this) : -1;
}

void TMenuItem::SetMenuIndex(int Value)
{
    if (!FParent)
        return;
    const int Target = std::clamp(Value, 0, FParent->GetCount() - 1);
    if (Target == GetMenuIndex())
        return;
    auto& Siblings = FParent->FItems;
    std::erase(Siblings, this);
    Siblings.insert(Siblings.begin() + Target, this);
    FParent->ItemsChanged(false);
}

TComponent* TMenuItem::GetParentComponent() const
{
    if (FParent && FParent->FMenu)
        return FParent->FMenu;
    return FParent;
}

void TMenuItem::SetParentComponent(TComponent* Value)
{
    TMenuItem* Target = As<TMenuItem>(Value);
    if (auto* Menu = As<TMenu>(Value))
        Target = Menu->Items;
    if (FParent)
        FParent->Remove(this);
    if (Target)
        Target->Add(this);
}

void TMenuItem::GetChildren(const TGetChildProc& Proc, TComponent* Root)
{
    for (size_t I = 0; I < FItems.size(); ++I)
        if (FItems[I]->Owner == Root)
            Proc(FItems[I]);
}

void TMenuItem::SetChildOrder(TComponent* Child, int Order)
{
    if (auto* Item = As<TMenuItem>(Child))
        Item->MenuIndex = Order;
}

// ---- use

void TMenuItem::Click()
{
    if (!FEnabled)
        return;
    // A radio item stays on.
    const TStillThere IsHere(this);
    if (AutoCheck && !(FRadioItem && FChecked))
        Checked = !FChecked;
    if (IsHere)
        OnClick(this);
}

bool TMenuItem::CanBeChosen() const
{
    for (const TMenuItem* Item = this; Item; Item = Item->FParent)
        if (!Item->FEnabled || !Item->FVisible)
            return false;
    return true;
}

TCustomImageList* TMenuItem::GetImageList() const
{
    for (const TMenuItem* Item = FParent; Item; Item = Item->FParent) {
        if (Item->FSubMenuImages)
            return Item->FSubMenuImages;
        if (Item->FMenu)
            return Item->FMenu->Images;
    }
    return nullptr;
}

TMenuItemAutoFlag TMenuItem::Inherit(TMenuItemAutoFlag TMenuItem::* Flag) const
{
    const TMenuItem* Item = this;
    while (Item->*Flag == maParent && Item->FParent)
        Item = Item->FParent;
    return Item->*Flag == maParent ? maAutomatic : Item->*Flag;
}

// ---- values

void TMenuItem::SetCaption(const AnsiString& Value)
{
    if (FCaption == Value)
        return;
    FCaption = Value;
    ChangeShape();
}

void TMenuItem::SetAutoHotkeys(TMenuItemAutoFlag Value)
{
    if (FAutoHotkeys == Value)
        return;
    FAutoHotkeys = Value;
    ItemsChanged(false);
}

void TMenuItem::SetAutoLineReduction(TMenuItemAutoFlag Value)
{
    if (FAutoLineReduction == Value)
        return;
    FAutoLineReduction = Value;
    ItemsChanged(false);
}

void TMenuItem::SetBreak(TMenuBreak Value)
{
    if (FBreak == Value)
        return;
    FBreak = Value;
    ChangeShape();
}

void TMenuItem::SetChecked(bool Value)
{
    if (FChecked == Value)
        return;
    FChecked = Value;
    const TStillThere IsHere(this);
    ChangeLook();
    if (IsHere && Value && FRadioItem)
        TurnSiblingsOff();
}

// Each tells of its change, and a handler may delete items. False when this one is gone.
bool TMenuItem::TurnSiblingsOff()
{
    const TStillThere IsHere(this);
    for (size_t I = 0; IsHere && FParent && I < FParent->FItems.size(); ++I)
        if (TMenuItem* Item = FParent->FItems[I]; Item != this && Item->FRadioItem && Item->FGroupIndex == FGroupIndex)
            Item->Checked = false;
    return static_cast<bool>(IsHere);
}

void TMenuItem::SetSubMenuImages(TCustomImageList* Value)
{
    FSubMenuImages = Value;
    SubtreeChanged();
}

void TMenuItem::SetDefault(bool Value)
{
    if (FDefault == Value)
        return;
    const TStillThere IsHere(this);
    for (size_t I = 0; IsHere && Value && FParent && I < FParent->FItems.size(); ++I)
        FParent->FItems[I]->Default = false;
    if (!IsHere)
        return;
    FDefault = Value;
    ChangeLook();
}

void TMenuItem::SetEnabled(bool Value)
{
    if (FEnabled == Value)
        return;
    FEnabled = Value;
    ChangeLook();
}

void TMenuItem::SetGroupIndex(uint8_t Value)
{
    if (FGroupIndex == Value)
        return;
    const int Index = MenuIndex;
    if (Index > 0 && FParent->FItems[static_cast<size_t>(Index) - 1]->FGroupIndex > Value)
        throw EMenuError("GroupIndex cannot be less than a previous menu item's GroupIndex");
    FGroupIndex = Value;
    if (FParent)
        for (size_t I = static_cast<size_t>(Index) + 1; I < FParent->FItems.size(); ++I)
            FParent->FItems[I]->FGroupIndex = std::max(FParent->FItems[I]->FGroupIndex, Value);
    if (FChecked && FRadioItem && !TurnSiblingsOff())
        return;
    ChangeShape(); // merging goes by it
}

void TMenuItem::SetImageIndex(int Value)
{
    if (FImageIndex == Value)
        return;
    FImageIndex = Value;
    ChangeLook();
}

void TMenuItem::SetRadioItem(bool Value)
{
    if (FRadioItem == Value)
        return;
    FRadioItem = Value;
    if (Value && FChecked && !TurnSiblingsOff())
        return;
    ChangeShape();
}

void TMenuItem::SetShortCut(TShortCut Value)
{
    if (FShortCut == Value)
        return;
    FShortCut = Value;
    ChangeShape();
}

void TMenuItem::SetVisible(bool Value)
{
    if (FVisible == Value)
        return;
    FVisible = Value;
    ChangeShape();
}

// ---- making items

TMenuItem* NewItem(const AnsiString& Caption, TShortCut ShortCut, bool Checked, bool Enabled,
                   const TNotifyEvent& OnClick, THelpContext HelpContext, const AnsiString& Name, TComponent* AOwner)
{
    auto Item = std::make_unique<TMenuItem>(AOwner);
    Item->Caption = Caption;
    Item->ShortCut = ShortCut;
    Item->Checked = Checked;
    Item->Enabled = Enabled;
    Item->OnClick = OnClick;
    Item->HelpContext = HelpContext;
    Item->Name = Name;
    return Item.release();
}

TMenuItem* NewLine(TComponent* AOwner)
{
    auto* Item = new TMenuItem(AOwner);
    Item->Caption = cLineCaption;
    return Item;
}

TMenuItem* NewSubMenu(const AnsiString& Caption, THelpContext HelpContext, const AnsiString& Name,
                      std::initializer_list<TMenuItem*> Items, bool Enabled, TComponent* AOwner)
{
    TMenuItem* Item = NewItem(Caption, scNone, false, Enabled, nullptr, HelpContext, Name, AOwner);
    Item->Add(Items);
    return Item;
}

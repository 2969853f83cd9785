#include "vcl/menus/Menu.h"

#include "vcl/classes/StillThere.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/menus/MenuCommands.h"
#include "vcl/menus/MenuFont.h"
#include "vcl/system/ClassBuilder.h"

#include <vector>

void TMenu::Describe(TClassBuilder<TMenu>& Class)
{
    Class.Declare<&Self::GetAutoHotkeys, &Self::SetAutoHotkeys>("AutoHotkeys").Default(maAutomatic);
    Class.Declare<&Self::GetAutoLineReduction, &Self::SetAutoLineReduction>("AutoLineReduction").Default(maAutomatic);
    Class.Declare<&Self::GetBiDiMode, &Self::SetBiDiMode>("BiDiMode").Default(bdLeftToRight);
    Class.Declare<&Self::GetImages, &Self::SetImages>("Images");
    Class.Declare<&Self::GetOwnerDraw, &Self::SetOwnerDraw>("OwnerDraw").Default(false);
    Class.Declare<&Self::ParentBiDiMode, &Self::ParentBiDiMode>("ParentBiDiMode").Default(true);
    Class.DeclareEvent<&Self::OnChange>("OnChange");
    Class.Property<&Self::GetItems>("Items").NotStored();
}

TMenu::TMenu(TComponent* AOwner) : TComponent(AOwner), FItems(new TMenuItem(this))
{
    FItems->FMenu = this;
    FItems->FAutoHotkeys = maAutomatic;
    FItems->FAutoLineReduction = maAutomatic;
}

namespace {

template <class Matches>
TMenuItem* FindBelow(TMenuItem* Item, const Matches& IsWanted)
{
    if (IsWanted(Item))
        return Item;
    for (int I = 0; I < Item->Count; ++I)
        if (TMenuItem* Found = FindBelow(Item->Items[I], IsWanted))
            return Found;
    return nullptr;
}

} // namespace

TMenuItem* TMenu::FindItem(uintptr_t Value, TFindItemKind Kind) const
{
    if (Kind == fkCommand)
        return FindCommand(Value);
    const auto IsWanted = [=](TMenuItem* Item) {
        if (Kind == fkHandle)
            return Item->HandleAllocated() && reinterpret_cast<uintptr_t>(Item->FHandle) == Value;
        return Value != scNone && Item->ShortCut == Value;
    };
    if (IsWanted(FItems))
        return FItems;
    for (TMenuItem* Item : ShownItems())
        if (TMenuItem* Found = FindBelow(Item, IsWanted))
            return Found;
    return nullptr;
}

// Asked for at every message about an item, so it does not go through the items.
TMenuItem* TMenu::FindCommand(uintptr_t Command) const
{
    TMenuItem* Item = ItemWithCommand(Command);
    if (!Item || Item == FItems)
        return Item;
    const TMenuItem* OnFirstLevel = Item;
    while (OnFirstLevel->FParent && OnFirstLevel->FParent->FParent)
        OnFirstLevel = OnFirstLevel->FParent;
    return OnFirstLevel->FParent && IsShown(OnFirstLevel) ? Item : nullptr;
}

bool TMenu::DispatchCommand(uint16_t Command)
{
    TMenuItem* Item = FindItem(Command, fkCommand);
    if (!Item)
        return false;
    Item->Click();
    return true;
}

bool TMenu::DispatchPopup(HMENU Handle)
{
    TMenuItem* Item = FindItem(reinterpret_cast<uintptr_t>(Handle), fkHandle);
    if (!Item)
        return false;
    ForgetSystemMenuFont();
    const TStillThere IsHere(this);
    Item->Click();
    if (!IsHere)
        return true;
    // The handler may have deleted the item.
    if (TMenuItem* Still = FindItem(reinterpret_cast<uintptr_t>(Handle), fkHandle))
        Still->UpdateHandle();
    return true;
}

bool TMenu::IsShortCut(TShortCut ShortCut)
{
    TMenuItem* Item = FindItem(ShortCut, fkShortCut);
    if (!Item || !OpenPathTo(Item))
        return false;
    Item->Click();
    return true;
}

// Opens the submenus that Item lies in, as far as their handlers are concerned. False when Item cannot be chosen.
bool TMenu::OpenPathTo(TMenuItem* Item)
{
    std::vector<TMenuItem*> Path;
    for (TMenuItem* Above = Item->Parent; Above && Above->Parent; Above = Above->Parent)
        Path.push_back(Above);
    const uint16_t Command = Item->Command;
    const TStillThere IsHere(this);
    for (size_t I = Path.size(); I-- > 0;) {
        if (!Path[I]->CanBeChosen())
            return false;
        Path[I]->Click();
        // The handler may have rebuilt the submenu, or deleted the menu.
        if (!IsHere || FindItem(Command, fkCommand) != Item)
            return false;
    }
    return Item->CanBeChosen();
}

AnsiString TMenu::HintOf(const TMessage& MenuSelect) const
{
    const auto Native = reinterpret_cast<HMENU>(MenuSelect.LParam);
    const unsigned Flags = static_cast<unsigned>(MenuSelect.WParamHi());
    if (!Native || (Flags & (MF_SYSMENU | MF_SEPARATOR)))
        return {};
    const unsigned Id = static_cast<unsigned>(MenuSelect.WParamLo());
    TMenuItem* Item = (Flags & MF_POPUP)
                          ? FindItem(reinterpret_cast<uintptr_t>(GetSubMenu(Native, static_cast<int>(Id))), fkHandle)
                          : FindItem(Id, fkCommand);
    if (!Item)
        return {};
    const size_t Bar = Item->Hint.find('|');
    return Bar == AnsiString::npos ? Item->Hint : Item->Hint.substr(Bar + 1);
}

bool TMenu::DispatchDrawing(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_MEASUREITEM: {
        auto& Measured = *reinterpret_cast<MEASUREITEMSTRUCT*>(Message.LParam);
        TMenuItem* Item = Measured.CtlType == ODT_MENU ? FindItem(Measured.itemID, fkCommand) : nullptr;
        if (!Item)
            return false;
        Item->Measure(Measured);
        Message.Result = TRUE;
        return true;
    }
    case WM_DRAWITEM: {
        const auto& Asked = *reinterpret_cast<const DRAWITEMSTRUCT*>(Message.LParam);
        TMenuItem* Item = Asked.CtlType == ODT_MENU ? FindItem(Asked.itemID, fkCommand) : nullptr;
        if (!Item)
            return false;
        Item->Draw(Asked);
        Message.Result = TRUE;
        return true;
    }
    case WM_MENUCHAR: {
        TMenuItem* Item = FindItem(static_cast<uintptr_t>(Message.LParam), fkHandle);
        if (!Item)
            return false;
        // A letter that belongs to no item is left to others: MDI frames have letters of their own.
        const intptr_t Answer = Item->MenuChar(static_cast<wchar_t>(Message.WParamLo()));
        if (HIWORD(Answer) == MNC_IGNORE)
            return false;
        Message.Result = Answer;
        return true;
    }
    default: return false;
    }
}

bool TMenu::IsRightToLeft() const
{
    return FBiDiMode != bdLeftToRight && GetSystemMetrics(SM_MIDEASTENABLED) != 0;
}

void TMenu::SetBiDiMode(TBiDiMode Value)
{
    if (FBiDiMode == Value)
        return;
    FBiDiMode = Value;
    ParentBiDiMode = false;
    FItems->SubtreeChanged();
}

void TMenu::SetOwnerDraw(bool Value)
{
    if (FOwnerDraw == Value)
        return;
    FOwnerDraw = Value;
    FItems->SubtreeChanged();
}

void TMenu::SetImages(TCustomImageList* Value)
{
    if (FImages == Value)
        return;
    FImages = Value;
    FItems->SubtreeChanged();
}

void TMenu::GetChildren(const TGetChildProc& Proc, TComponent* Root)
{
    FItems->GetChildren(Proc, Root);
}

void TMenu::SetChildOrder(TComponent* Child, int Order)
{
    FItems->SetChildOrder(Child, Order);
}

void TMenu::Loaded()
{
    TComponent::Loaded();
    MenuChanged(this, nullptr, true);
}

void TMenu::MenuChanged(TObject*, TMenuItem* Source, bool Rebuild)
{
    if (!IsLoading())
        OnChange(this, Source, Rebuild);
}

HMENU TMenu::CreateNativeMenu() const
{
    return IsMenuBar() ? CreateMenu() : CreatePopupMenu();
}

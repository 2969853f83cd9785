// The native menus behind the items.
//
// A native menu that is not on the screen may lag behind its items: it is marked stale and filled anew when it is asked
// for or about to open.

#include "vcl/menus/Menu.h"
#include "vcl/menus/MenuEntries.h"
#include "vcl/menus/MenuItem.h"

#include "vcl/graphics/GraphicErrors.h"
#include "vcl/system/LiveCount.h"

#include <iterator>

namespace {

constexpr UINT BreakType[] = {0, MFT_MENUBREAK, MFT_MENUBARBREAK};

} // namespace

HMENU TMenuItem::GetHandle()
{
    if (!FHandle) {
        FHandle = FMenu ? FMenu->CreateNativeMenu() : CreatePopupMenu();
        if (!FHandle)
            RaiseOutOfResources();
        CountLiveHandle(+1);
        FStale = true;
    }
    UpdateHandle();
    return FHandle;
}

void TMenuItem::UpdateHandle()
{
    if (!FHandle || !FStale)
        return;
    while (RemoveMenu(FHandle, 0, MF_BYPOSITION)) {
    }
    if (!IsDesigning())
        RethinkHotkeys();
    FillNative();
    FStale = false;
}

void TMenuItem::FillNative()
{
    const bool ReduceLines = Inherit(&TMenuItem::FAutoLineReduction) == maAutomatic;
    TMenuItem* PendingLine = nullptr;
    bool AnyAbove = false; // since the last separator
    for (TMenuItem* Item : FMenu ? FMenu->ShownItems() : FItems) {
        if (!Item->FVisible)
            continue;
        if (ReduceLines && Item->IsLine()) {
            PendingLine = AnyAbove ? Item : PendingLine;
            AnyAbove = false;
            continue;
        }
        if (PendingLine)
            PendingLine->AppendTo(FHandle);
        PendingLine = nullptr;
        AnyAbove = true;
        Item->AppendTo(FHandle);
    }
}

void TMenuItem::AppendTo(HMENU Menu)
{
    MENUITEMINFOW Info;
    TWideString Text;
    FillItemInfo(Info, Text);
    if (!FItems.empty()) {
        Info.fMask |= MIIM_SUBMENU;
        Info.hSubMenu = GetHandle();
    }
    InsertMenuItemW(Menu, static_cast<UINT>(GetMenuItemCount(Menu)), TRUE, &Info);
}

AnsiString TMenuItem::ShownCaption() const
{
    const TMenu* Menu = GetParentMenu();
    return Menu ? Menu->EntryCaption(*this) : FCaption;
}

void TMenuItem::FillItemInfo(MENUITEMINFOW& Info, TWideString& Text) const
{
    Info = {};
    Info.cbSize = sizeof Info;
    Info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID;
    Info.wID = FCommand;
    Info.fType = BreakType[FBreak];
    if (FRadioItem)
        Info.fType |= MFT_RADIOCHECK;
    TMenu* Menu = GetParentMenu();
    if (Menu && Menu->IsRightToLeft())
        Info.fType |= MFT_RIGHTORDER;
    Info.fType |= Menu ? Menu->EntryType(*this) : 0;
    if (IsOwnerDrawn())
        Info.fType |= MFT_OWNERDRAW;
    if (Info.fType & MFT_OWNERDRAW) {
        Info.fMask |= MIIM_DATA;
        Info.dwItemData = FCommand;
    }
    Info.fState = static_cast<UINT>((FEnabled ? MFS_ENABLED : MFS_DISABLED) | (FChecked ? MFS_CHECKED : 0) |
                                    (FDefault ? MFS_DEFAULT : 0));
    if (IsLine()) {
        Info.fType |= MFT_SEPARATOR;
        return;
    }
    // Some systems look for the letters of titles, too.
    Text = ToWide(Info.fType & MFT_SEPARATOR ? StripHotkey(ShownCaption()) : ShownCaption());
    if (const AnsiString Keys = ShownShortCut(); !Keys.empty())
        Text += L'\t' + ToWide(Keys);
    Info.fMask |= MIIM_STRING | MIIM_BITMAP;
    // The image is asked for when the menu shows; see Draw.
    Info.hbmpItem = HasImage() && !(Info.fType & MFT_OWNERDRAW) ? HBMMENU_CALLBACK : nullptr;
    Info.dwTypeData = Text.data();
}

// The item's own entry changed in its look, not in its size or kind.
void TMenuItem::ChangeLook()
{
    if (FParent && FParent->FHandle && !FParent->FStale) {
        const int Position = FindEntry(FParent->FHandle, FCommand);
        MENUITEMINFOW Info;
        TWideString Text;
        FillItemInfo(Info, Text);
        if (Position >= 0)
            SetMenuItemInfoW(FParent->FHandle, static_cast<UINT>(Position), TRUE, &Info);
    }
    MenuChanged(false);
}

void TMenuItem::ChangeShape()
{
    if (FParent)
        FParent->FStale = true;
    MenuChanged(true);
}

void TMenuItem::ItemsChanged(bool KindChanged)
{
    FStale = true;
    // Its entry gains or loses the submenu.
    if (KindChanged && FParent)
        FParent->FStale = true;
    MenuChanged(true);
}

// Something that the items below share has changed: their native entries are made anew.
void TMenuItem::SubtreeChanged()
{
    const auto Mark = [](auto& Self, TMenuItem* Item) -> void {
        Item->FStale = true;
        for (TMenuItem* Each : Item->FItems)
            Self(Self, Each);
    };
    Mark(Mark, this);
    MenuChanged(true);
}

void TMenuItem::DetachNative(TMenuItem* Item)
{
    if (!FHandle || !Item->FHandle)
        return; // A plain entry may stay until the menu is filled anew.
    const int Position = FindEntry(FHandle, Item->FCommand);
    if (Position >= 0)
        RemoveMenu(FHandle, static_cast<UINT>(Position), MF_BYPOSITION);
}

void TMenuItem::FreeNative()
{
    if (!FHandle)
        return;
    // Submenus are destroyed with a menu; these belong to their items.
    while (RemoveMenu(FHandle, 0, MF_BYPOSITION)) {
    }
    DestroyMenu(FHandle);
    CountLiveHandle(-1);
    FHandle = nullptr;
}

// The answer to WM_MENUCHAR for this item's menu: what item the letter chooses. Of several each has its turn, and one
// that is disabled is only selected: executing it would close the menu.
intptr_t TMenuItem::MenuChar(wchar_t Letter)
{
    const TMenu* Menu = GetParentMenu();
    int First = -1;  // item with this letter
    int Behind = -1; // the first one after the selected item
    int Hits = 0;
    bool IsEnabled = true; // of the first
    bool SelectedAbove = false;
    for (int I = 0; I < GetMenuItemCount(FHandle); ++I) {
        const TMenuItem* Item = Menu ? Menu->FindItem(EntryCommand(FHandle, I), fkCommand) : nullptr;
        if (Item && Item->AnswersTo(static_cast<uint16_t>(Letter))) {
            if (++Hits == 1) {
                First = I;
                IsEnabled = Item->Enabled;
            }
            Behind = SelectedAbove && Behind < 0 ? I : Behind;
        }
        const UINT State = GetMenuState(FHandle, static_cast<UINT>(I), MF_BYPOSITION);
        SelectedAbove |= (State & MF_HILITE) != 0;
    }
    if (Hits == 0)
        return MAKELRESULT(0, MNC_IGNORE);
    return MAKELRESULT(Behind < 0 ? First : Behind, Hits == 1 && IsEnabled ? MNC_EXECUTE : MNC_SELECT);
}

void TMenuItem::MenuChanged(bool Rebuild)
{
    TMenu* Menu = GetParentMenu();
    if (Menu && !Menu->ComponentState.Contains(csDestroying))
        Menu->MenuChanged(this, FMenu ? nullptr : this, Rebuild);
}

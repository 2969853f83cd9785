#include "vcl/menus/MainMenu.h"

#include "vcl/menus/MenuFont.h"
#include "vcl/system/ClassBuilder.h"

#include <algorithm>
#include <iterator>

void TMainMenu::Describe(TClassBuilder<TMainMenu>& Class)
{
    Class.Publish("AutoHotkeys");
    Class.Publish("AutoLineReduction");
    Class.Value<&Self::AutoMerge>("AutoMerge").Default(false);
    Class.PublishAll("BiDiMode", "Images", "OwnerDraw", "ParentBiDiMode", "OnChange");
}

TMainMenu::TMainMenu(TComponent* AOwner) : TMenu(AOwner)
{}

void TMainMenu::BeforeDestruction()
{
    SetWindowHandle(nullptr);
    if (FMergedInto)
        FMergedInto->Unmerge(this);
    Merge(nullptr);
    TMenu::BeforeDestruction();
}

void TMainMenu::SetWindowHandle(HWND Value)
{
    if (FWindowHandle == Value)
        return;
    if (FWindowHandle && IsWindow(FWindowHandle) && Items->HandleAllocated() && ::GetMenu(FWindowHandle) == Handle)
        ::SetMenu(FWindowHandle, nullptr);
    FWindowHandle = Value;
    UpdateWindow();
}

void TMainMenu::MenuChanged(TObject* Sender, TMenuItem* Source, bool Rebuild)
{
    // Below the bar the system asks again before it shows anything.
    const bool OnBar = !Source || Source == Items || Source->Parent == Items;
    if (OnBar && !IsLoading())
        UpdateWindow();
    if (OnBar && FMergedInto)
        FMergedInto->Refill();
    TMenu::MenuChanged(Sender, Source, Rebuild);
}

// ---- merging

void TMainMenu::Merge(TMainMenu* Menu)
{
    if (Menu == this)
        throw EMenuError("A menu cannot be merged with itself");
    if (FMerged == Menu)
        return;
    if (FMerged)
        FMerged->FMergedInto = nullptr;
    if (Menu && Menu->FMergedInto)
        Menu->FMergedInto->Unmerge(Menu);
    FMerged = Menu;
    if (Menu) {
        Menu->FMergedInto = this;
        Menu->Items->RethinkHotkeys();
    }
    Refill();
}

void TMainMenu::Unmerge(TMainMenu* Menu)
{
    if (Menu && FMerged == Menu)
        Merge(nullptr);
}

const std::vector<TMenuItem*>& TMainMenu::ShownItems() const
{
    if (!FMerged)
        return TMenu::ShownItems();
    std::vector<TMenuItem*> Own = TMenu::ShownItems();
    const std::vector<TMenuItem*>& Theirs = FMerged->TMenu::ShownItems();
    std::erase_if(Own, [&](const TMenuItem* Item) {
        return std::ranges::find(Theirs, Item->GroupIndex, &TMenuItem::GetGroupIndex) != Theirs.end();
    });
    // The group indexes of a menu never fall.
    FShown.clear();
    std::ranges::merge(Own, Theirs, std::back_inserter(FShown), {}, &TMenuItem::GetGroupIndex,
                       &TMenuItem::GetGroupIndex);
    return FShown;
}

bool TMainMenu::IsShown(const TMenuItem* Item) const
{
    return FMerged ? std::ranges::find(ShownItems(), Item) != FShown.end() : TMenu::IsShown(Item);
}

// What this bar shows has changed.
void TMainMenu::Refill()
{
    MarkStale();
    if (!IsLoading())
        UpdateWindow();
}

void TMainMenu::UpdateWindow()
{
    if (!FWindowHandle)
        return;
    ForgetSystemMenuFont();
    // An empty bar would be a blank strip.
    HMENU Menu = Handle;
    HMENU Shown = GetMenuItemCount(Menu) > 0 ? Menu : nullptr;
    if (::GetMenu(FWindowHandle) != Shown)
        ::SetMenu(FWindowHandle, Shown);
    else
        DrawMenuBar(FWindowHandle);
    OnBarChange();
}

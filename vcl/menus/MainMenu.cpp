#include "vcl/menus/MainMenu.h"

#include "vcl/system/ClassBuilder.h"

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
    TMenu::MenuChanged(Sender, Source, Rebuild);
}

void TMainMenu::UpdateWindow()
{
    if (!FWindowHandle)
        return;
    // An empty bar would be a blank strip.
    HMENU Menu = Handle;
    HMENU Shown = GetMenuItemCount(Menu) > 0 ? Menu : nullptr;
    if (::GetMenu(FWindowHandle) != Shown)
        ::SetMenu(FWindowHandle, Shown);
    else
        DrawMenuBar(FWindowHandle);
}

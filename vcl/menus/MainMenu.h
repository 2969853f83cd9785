// TMainMenu: the menu bar of a form.
#pragma once

#include "vcl/menus/Menu.h"

class TMainMenu : public TMenu {
    VCL_CLASS(TMainMenu, TMenu)
public:
    explicit TMainMenu(TComponent* AOwner);
    void BeforeDestruction() override;

    // Shows the bar in Value and takes it out of the window before; nullptr only takes it out.
    void SetWindowHandle(HWND Value) override;

    // Shows Menu's items in this bar too: Items with the GroupIndex of some of Menu's are left out for those, the
    // others of Menu's stand where their GroupIndex belongs. Menu stays the owner of its items and what they do. One
    // menu can be merged at a time, into one bar: another one takes its place; nullptr only ends the merging. Raises
    // EMenuError "A menu cannot be merged with itself".
    void Merge(TMainMenu* Menu);
    // Ends the merging with Menu; ignored for any other than the merged one.
    void Unmerge(TMainMenu* Menu);
    // The menu whose items are shown in this bar, or nullptr.
    TMainMenu* GetMerged() const { return FMerged; }
    PROPERTY_READ(TMainMenu*, Merged);
    // The form of this menu has no bar; the menu is merged into the main form's when the form is activated, until it
    // hides. A change counts from the next activation on.
    bool AutoMerge = false;

    // The bar in the window has been set or filled anew. For the form, which may have more to put there.
    TEvent<void()> OnBarChange;

protected:
    void MenuChanged(TObject* Sender, TMenuItem* Source, bool Rebuild) override;
    bool IsMenuBar() const override { return true; }
    const std::vector<TMenuItem*>& ShownItems() const override;
    bool IsShown(const TMenuItem* Item) const override;

private:
    void UpdateWindow();
    void Refill();

    TMainMenu* FMerged = nullptr;
    TMainMenu* FMergedInto = nullptr;       // the bar that shows this menu's items
    mutable std::vector<TMenuItem*> FShown; // with those of the merged menu, as of the last time they were asked for
};

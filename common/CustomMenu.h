// TkelCustomMenu: the foundation of main menus whose items the application draws.
//
// The items on the bar are always drawn by the system; the others become owner-drawn when the item that they lie in has
// a name. The menu is shown by its handle: SetMenu(Form->Handle, Menu->Handle).
#pragma once

#include "common/OwnerDrawItems.h"
#include "vcl/controls/WindowProcHook.h"

#include <vector>

class TkelCustomMenu : public TMenu {
    VCL_CLASS(TkelCustomMenu, TMenu)
public:
    // AOwner is a form, whose messages the menu sees; anything else raises EInvalidCast "Invalid class typecast",
    // except in the designer.
    explicit TkelCustomMenu(TComponent* AOwner);
    ~TkelCustomMenu() override;

    // Switches all items at once.
    TMenuStyle GetStyle() const { return FSwitch.Style(); }
    void SetStyle(TMenuStyle Value) { FSwitch.SetStyle(Value); }
    PROPERTY(TMenuStyle, Style);

    TDrawMenuItem OnDrawItem;
    TMeasureMenuItem OnMeasureItem;

    // The youngest menu that exists, or nullptr. The owner-drawn items of all main menus show only while this one is
    // owner-drawn.
    static TkelCustomMenu* Current() { return Menus.empty() ? nullptr : Menus.back(); }

protected:
    // Raise the events.
    virtual void DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect);
    virtual void DoMeasureItem(TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas);

    // Switches the items below Item, or Item alone; nothing happens in the designer.
    void ModifyItems(TMenuItem* Item, bool Standard) { FSwitch.ModifyItems(Item, Standard); }
    void SetMenuItem(TMenuItem* Item, bool Standard) { FSwitch.SetMenuItem(Item, Standard); }

    void Loaded() override;
    bool IsMenuBar() const override { return true; }
    unsigned EntryType(const TMenuItem& Item) const override { return FSwitch.EntryType(Item); }

private:
    void DrawItem(TWMDrawItem& Message);
    void MeasureItem(TWMMeasureItem& Message);

    void FormWndProc(TMessage& Message, const TWndMethod& Next);
    bool FormMessage(TMessage& Message);

    static inline std::vector<TkelCustomMenu*> Menus; // all that exist, in the order of their creation

    TWindowProcHook FHook;
    TOwnerDrawSwitch FSwitch;
};

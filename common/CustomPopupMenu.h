// TkelCustomPopupMenu: the foundation of popup menus whose items the program draws.
//
// The system sends its requests to the window that all popup menus share; they are passed on to the menu that is open.
// OnPopup is not raised.
#pragma once

#include "common/OwnerDrawItems.h"
#include "vcl/menus/PopupMenu.h"

class TkelCustomPopupMenu : public TPopupMenu {
    VCL_CLASS(TkelCustomPopupMenu, TPopupMenu)
public:
    explicit TkelCustomPopupMenu(TComponent* AOwner);
    ~TkelCustomPopupMenu() override;
    void BeforeDestruction() override;

    // Switches all items at once.
    TMenuStyle GetStyle() const { return FSwitch.Style(); }
    void SetStyle(TMenuStyle Value) { FSwitch.SetStyle(Value); }
    PROPERTY(TMenuStyle, Style);

    TDrawMenuItem OnDrawItem;
    TMeasureMenuItem OnMeasureItem;

    // Shows the menu at a screen position and returns when it is closed. Does nothing while this menu is open.
    void Popup(int X, int Y) override;
    // The index among its siblings of the item that a typed character selects in the open submenu that Message is
    // about: the first enabled one with this accelerator. -1 when there is none, and in the designer.
    int ProcessAccel(const TWMMenuChar& Message) const;

    // The menu that is open; nullptr when none of this class is.
    static TkelCustomPopupMenu* Current();

protected:
    // Raise the events.
    virtual void DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect);
    virtual void DoMeasureItem(TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas);
    // Whether the item is a separator, which cannot be chosen, while it is drawn by the program.
    virtual bool IsSeparator(const TMenuItem& Item) const { return Item.IsLine(); }

    // Switches the items below Item, or Item alone; nothing happens in the designer.
    void ModifyItems(TMenuItem* Item, bool Standard) { FSwitch.ModifyItems(Item, Standard); }
    void SetMenuItem(TMenuItem* Item, bool Standard) { FSwitch.SetMenuItem(Item, Standard); }

    void Loaded() override { inherited::Loaded(); }
    unsigned EntryType(const TMenuItem& Item) const override { return FSwitch.EntryType(Item); }

private:
    friend class TPopupTracking;

    void DrawItem(TWMDrawItem& Message);
    void MeasureItem(TWMMeasureItem& Message);

    TOwnerDrawSwitch FSwitch;
    const bool FIsTracked; // made outside of the designer
};

// Switching the native entries of menu items between the system's drawing and the program's, and answering the requests
// that the system sends for the latter.
#pragma once

#include "common/MenuStyle.h"

#include <functional>

// The style of a menu, by which the native entries of its items are the system's or the program's to draw. In the
// designer all are the system's.
class TOwnerDrawSwitch {
public:
    using TItemTest = std::function<bool(const TMenuItem& Item)>;

    // Concerns says which items the style is for. Of those, IsSeparator says which are separators while the program
    // draws them.
    TOwnerDrawSwitch(TMenu* Menu, TItemTest Concerns, TItemTest IsSeparator);

    TMenuStyle Style() const { return FStyle; }
    // Switches all items at once.
    void SetStyle(TMenuStyle Value);
    // Brings the entries of all items up to date.
    void SwitchAll() const { ModifyItems(FMenu->Items, FStyle == msStandard); }
    // Switches the items below Item, at any depth, that the style is for; children in index order. Native menus that do
    // not exist yet are not made, and only the type and the data of an entry change.
    void ModifyItems(TMenuItem* Item, bool Standard) const;
    // Switches Item alone, whether the style is for it or not.
    void SetMenuItem(TMenuItem* Item, bool Standard) const;
    // The MFT_ flags that an item's entry has because of the style.
    unsigned EntryType(const TMenuItem& Item) const;

private:
    bool IsDesigning() const { return FMenu->ComponentState.Contains(csDesigning); }
    unsigned TypeOf(const TMenuItem& Item, bool Standard) const;

    TMenu* FMenu;
    TMenuStyle FStyle = msStandard;
    TItemTest FConcerns;
    TItemTest FIsSeparator;
};

// A canvas on the screen's device context, for measuring; the context goes back with it.
class TScreenCanvas : public TCanvas {
public:
    TScreenCanvas() { Handle = GetDC(nullptr); }
    ~TScreenCanvas() override;

    // Font, pen and brush are what they were at first.
    void Reset();
};

// Hands a measure request's size to Measure and back.
void MeasureWith(MEASUREITEMSTRUCT& Request, const std::function<void(int& Width, int& Height)>& Measure);
// Hands a canvas on the request's device context to Draw: brush solid, pen clear and black.
void DrawWith(const DRAWITEMSTRUCT& Request, const std::function<void(TCanvas* Canvas)>& Draw);

// The item that a typed character selects in the open submenu Menu, searched below Root: the first enabled one whose
// caption has it as accelerator, reached through enabled items only. Hidden items do not count. nullptr when there is
// none.
TMenuItem* FindAccelerator(TMenuItem* Root, HMENU Menu, uint16_t Char);
// The answer to WM_MENUCHAR that executes Item; 0 (the system's own search) for nullptr and for an item without an
// entry.
intptr_t ExecuteAnswer(TMenuItem* Item);

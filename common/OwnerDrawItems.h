// Switching the native entries of menu items between the system's drawing and the program's, and answering the requests
// that the system sends for the latter.
#pragma once

#include "common/MenuStyle.h"

#include <functional>

// The MFT_ flags that make an entry owner-drawn; a separator stays one.
unsigned OwnerDrawnType(bool IsSeparator);

// Gives the entry of one item these flags besides those it has, or takes them away. Only its type and data change:
// submenu, text and state stay. Does nothing when the item's menu has no native entry for it.
void SwitchItem(TMenuItem* Item, unsigned EntryType);
// The same for all items below Item, at any depth, children in index order; EntryTypeOf says what each gets. Native
// menus that do not exist yet are not made.
void SwitchItems(TMenuItem* Item, const std::function<unsigned(const TMenuItem&)>& EntryTypeOf);

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

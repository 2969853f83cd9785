// TkelColorMenu: a popup menu with a grid of sixteen colours, one of which can be chosen.
//
// They are the first of the system's default palette. The Tag of an item is the number of its colour there, so a form
// may have items of its own, in another order and with the four colours behind the sixteen. The item of the current
// colour is checked.
#pragma once

#include "menus/OfficePopupMenu.h"

// Columns by rows.
VCL_ENUM(TMenuOrdering, mo16x1, mo8x2, mo4x4, mo2x8, mo1x16);

class TkelColorMenu : public TkelOfficePopupMenu {
    VCL_CLASS(TkelColorMenu, TkelOfficePopupMenu)
public:
    // CurrentColor is black, and there are no items: they come from a form file or from CreateItems.
    explicit TkelColorMenu(TComponent* AOwner);

    // Of a cell in pixels, 26 by 22. The system has the last word on the width, some pixels more or less.
    int GetWidth() const { return FWidth; }
    void SetWidth(int Value);
    PROPERTY(int, Width);
    int GetHeight() const { return FHeight; }
    void SetHeight(int Value);
    PROPERTY(int, Height);
    // Sets the Break of all items.
    TMenuOrdering GetMenuOrdering() const { return FMenuOrdering; }
    void SetMenuOrdering(TMenuOrdering Value);
    PROPERTY(TMenuOrdering, MenuOrdering);

    // Any colour. The menu shows no item as checked when it has none of this colour. Setting does not raise OnChange.
    TColor CurrentColor = clBlack;

    // The user has chosen a colour, perhaps the current one once more.
    TNotifyEvent OnChange;

    // Adds the sixteen colours to Items.
    void CreateItems();
    // Makes the colour of a menu item the current one, as a click on it does. Nothing happens when Sender is no item or
    // its Tag stands for no colour.
    void DoClick(TObject* Sender);
    void Popup(int X, int Y) override;
    // The first number of this colour, below the number of items; that number when there is none.
    int ColorToIndex(TColor Color) const;

protected:
    void DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect) override;
    void DoMeasureItem(TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas) override;
    unsigned EntryType(const TMenuItem& Item) const override;
    // A form without items gets the sixteen colours. What its own items are to do on a click, and where columns begin,
    // is set in any case.
    void Loaded() override;

private:
    void UpdateBreaks();
    void CheckOnly(TMenuItem* Item);

    int FWidth;
    int FHeight;
    TMenuOrdering FMenuOrdering = mo4x4;
};

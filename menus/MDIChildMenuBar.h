// TkelMDIChildMenuBar: the menus that an MDI child brings along.
//
// While the child is the active one, its menu buttons lie in the menu bar of the MDI form. The child must be owned by
// that form, and the form must own a TkelMenuBar; else the buttons stay where they are.
#pragma once

#include "menus/MenuBar.h"
#include "vcl/controls/WindowProcHook.h"

class TCustomForm;

class TkelMDIChildMenuBar : public TkelMenuBar {
    VCL_CLASS(TkelMDIChildMenuBar, TkelMenuBar)
public:
    // The owner is the child form. With an owner that is no form, the bar never merges by itself.
    explicit TkelMDIChildMenuBar(TComponent* AOwner);

    // The child shows neither the bar nor the dock that it lies in. Takes effect when the child is loaded; the buttons
    // go to the form's bar and back in any case.
    bool AutoMerge = true;

    // Moves the buttons to the form's bar, each before the first one there whose MenuGroupIndex is greater, or to the
    // end. The first one that comes before another is also the last one that moves; the rest stay, and do not show,
    // until Merge is called again. Happens when the child becomes active.
    void Merge();
    // The same, but every button moves.
    void MergeAll();
    // Takes them back. Happens when another child becomes active, whether that has a bar or not.
    void UnMerge();

protected:
    void Loaded() override;

private:
    void FormWndProc(TMessage& Message, const TWndMethod& Next);
    void MergeButtons(bool All);
    TCustomForm* ParentForm() const;
    TkelMenuBar* ParentBar() const;
    bool IsMergedInto(const TkelMenuBar& Bar) const;
    void RememberOrder(const TkelMenuBar& Bar);
    void SortBoth(TkelMenuBar& Bar);

    TWindowProcHook FHook;
    std::vector<const TControl*> FOrder; // of the menu buttons before they were merged; only compared
};

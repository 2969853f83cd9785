// TkelOfficePopupMenu: a popup menu in the look of the library's tool bars, with a glyph column and a banner.
//
// An item with a Tag of N above 0 shows cell N - 1 of Glyphs or image N - 1 of Images. A checked item shows a check
// mark in a sunken box, or its glyph there when RadioItem is set. An item whose caption begins with "-" is a separator,
// and what follows is its title.
//
// OnMeasureItem, OnDrawItem and OnPopup are not raised. What is to be done before the menu opens is done in the OnClick
// of the button that opens it.
#pragma once

#include "common/CustomPopupMenu.h"
#include "menus/OfficeItemPainter.h"
#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/Messages.h"

#include <memory>
#include <unordered_map>
#include <vector>

class TkelOfficePopupMenu : public TkelCustomPopupMenu {
    VCL_CLASS(TkelOfficePopupMenu, TkelCustomPopupMenu)
public:
    // Owner-drawn.
    explicit TkelOfficePopupMenu(TComponent* AOwner);

    // The menu's own; setting copies.
    TkelMenuBanner* GetBanner() { return &FBanner; }
    void SetBanner(TkelMenuBanner* Value) { FBanner.Assign(Value); }
    PROPERTY(TkelMenuBanner*, Banner);
    // Where glyphs come from: a strip or a list, somebody else's, and cleared when it is deleted. Setting one clears
    // the other.
    TkelGlyphs* GetGlyphs() const { return FGlyphs; }
    void SetGlyphs(TkelGlyphs* Value);
    PROPERTY(TkelGlyphs*, Glyphs);
    TImageList* GetImages() const { return FImages; }
    void SetImages(TImageList* Value);
    PROPERTY(TImageList*, Images);
    // For the designer's glyph editor; means nothing while the program runs.
    int GlyphsEdit = 0;

    void Popup(int X, int Y) override;
    // The first item without items of its own that has this accelerator, searched depth first through items that are
    // enabled and visible. nullptr when there is none, and in the designer.
    using TkelCustomPopupMenu::ProcessAccel;
    TMenuItem* ProcessAccel(uint16_t Key) const;

protected:
    void DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect) override;
    void DoMeasureItem(TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas) override;
    bool IsSeparator(const TMenuItem& Item) const override { return IsOfficeSeparator(Item); }

    void Loaded() override { inherited::Loaded(); }
    void MenuChanged(TObject* Sender, TMenuItem* Source, bool Rebuild) override;

private:
    void CMDialogChar(TWMKey& Message);
    // Where the items of a menu lie together, in pixels, as far as they have been measured.
    struct TExtent {
        int Top = 0;
        int Height = 0;
    };
    // Of the menu that shows Item, which is at ItemTop.
    const TExtent& ExtentAround(const TMenuItem* Item, int ItemTop);
    // The commands of the items that show, in their order.
    static std::vector<unsigned> ShownCommands(TMenuItem* Parent);

    TkelMenuBanner FBanner;
    TComponentRef<TkelGlyphs> FGlyphs;
    TComponentRef<TImageList> FImages;
    std::shared_ptr<TMaskedImage> FMark; // from the first item that is drawn
    // By command. The system may measure an item once only, so this outlasts the menu's display.
    std::unordered_map<unsigned, int> FHeights;
    const TMenuItem* FExtentOf = nullptr; // whose items have FExtent
    TExtent FExtent;
};

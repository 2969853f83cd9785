// TOfficeItemPainter: draws one item of an Office menu.
//
// From left to right: the banner when it is on that side, a square column with the glyph or the check mark, the
// caption, and at the right edge the shortcut.
#pragma once

#include "menus/MenuBanner.h"
#include "toolbar/Glyphs.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/menus/MenuItem.h"

// Width and height of the glyph column in pixels.
constexpr int OfficeCellSize = 20;

// A caption that begins with "-" makes a separator; the rest is its title.
bool IsOfficeSeparator(const TMenuItem& Item);

// Where glyphs come from. At most one of the two is set.
struct TOfficeGlyphs {
    TkelGlyphs* Glyphs = nullptr;
    TImageList* Images = nullptr;

    bool Empty() const { return !Glyphs && !Images; }
};

class TOfficeItemPainter {
public:
    // State has the system's ODS_ bits; Rect is the item's. The canvas comes with a solid brush.
    TOfficeItemPainter(TCanvas* Canvas, TMenuItem* Item, unsigned State, const TRect& Rect);

    // The item's part of the banner and the whole picture, on which the rest then does not draw. Top and Height are
    // those of all items of the menu together.
    void DrawBanner(TkelMenuBanner* Banner, int Top, int Height);
    // An etched line with the title in its middle.
    void DrawSeparator();
    // Everything else. Mark is what checked items show.
    void DrawItem(const TOfficeGlyphs& Source, const TMaskedImage& Mark);

private:
    int Index() const { return static_cast<int>(FItem->Tag) - 1; }
    void DrawBackground(bool IsRaised);
    void DrawCheck(const TMaskedImage& Mark);
    void DrawFrame(TColor TopLeft, TColor BottomRight);
    void DrawGlyph(const TOfficeGlyphs& Source);
    void DrawEmbossedGlyph(const TOfficeGlyphs& Source);
    void DrawCaption();
    void DrawShortCut();
    TRect TextRect();
    void DrawText(const AnsiString& Text, TRect R, TColor Color, unsigned Flags);

    TCanvas* FCanvas;
    TMenuItem* FItem;
    TRect FRect; // without the banner
    TColor FTextColor;
    bool FSelected;
    bool FGrayed;
    bool FChecked;
};

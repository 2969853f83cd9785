// Menus with glyphs, captions and shortcuts, in our way and in the system's.
#pragma once

#include "menus/OfficePopupMenu.h"

#include <string>

class TBenchMenu : public TkelOfficePopupMenu {
public:
    TBenchMenu(TComponent* AOwner, int ItemCount);

    // Draws an item as for a request of the system.
    void Draw(int Index, const DRAWITEMSTRUCT& Request);
};

// What the items say.
std::wstring BenchCaption(int Index);
std::wstring BenchShortCut(int Index);
// The items as the system's own; DestroyMenu ends it.
HMENU CreatePlainMenu(int ItemCount);

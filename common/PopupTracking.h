// TPopupTracking: which owner-drawing popup menu is open, and where the messages of the popup menus' window go.
#pragma once

#include "common/CustomPopupMenu.h"

#include <algorithm>
#include <vector>

// From Popup on a menu is the current one. When its loop ends it becomes the saved one, to which the command goes that
// may follow.
class TPopupTracking : public TObject {
public:
    static TPopupTracking& Get();

    // The first menu that lives makes the tracking listen to the window, the last one ends that.
    void Add();
    void Remove(TkelCustomPopupMenu* Menu);

    // Lives while the system's loop runs for Menu, which may be deleted meanwhile.
    class TLoop {
    public:
        explicit TLoop(TkelCustomPopupMenu* Menu) : FMenu(Menu) { Get().Begin(Menu); }
        ~TLoop() { Get().End(FMenu); }
        TLoop(const TLoop&) = delete;

    private:
        TkelCustomPopupMenu* FMenu;
    };
    bool IsOpen(const TkelCustomPopupMenu* Menu) const { return std::ranges::find(FOpen, Menu) != FOpen.end(); }
    TkelCustomPopupMenu* Current() const { return FCurrent; }

private:
    void Begin(TkelCustomPopupMenu* Menu);
    void End(TkelCustomPopupMenu* Menu);
    bool WindowMessage(TMessage& Message);
    bool Draw(TWMDrawItem& Message);
    bool Measure(TWMMeasureItem& Message);
    bool Char(TWMMenuChar& Message);
    bool Command(const TMessage& Message);
    bool IsDrawn() const { return FCurrent && FCurrent->Style == msOwnerDraw; }

    int FMenus = 0;                          // that live
    std::vector<TkelCustomPopupMenu*> FOpen; // in the system's loop; it refuses a second one
    TkelCustomPopupMenu* FCurrent = nullptr;
    TkelCustomPopupMenu* FSaved = nullptr;
    bool FCommandPending = false;
};

// The one tracking.
inline TPopupTracking* const PopupTracking = &TPopupTracking::Get();

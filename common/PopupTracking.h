// TPopupTracking: which owner-drawing popup menu is open, and where the messages of the popup menus' window go.
#pragma once

#include "common/CustomPopupMenu.h"
#include "common/OwnerDrawItems.h"

#include <algorithm>
#include <memory>
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
    // For measuring an item. One canvas serves all items of a menu, as getting hold of the screen takes longer than
    // measuring; each finds it as new.
    TScreenCanvas& MeasuringCanvas();

private:
    void Begin(TkelCustomPopupMenu* Menu);
    void End(TkelCustomPopupMenu* Menu);
    bool WindowMessage(TMessage& Message);
    bool Draw(TWMDrawItem& Message);
    bool Measure(TWMMeasureItem& Message);
    bool Char(TWMMenuChar& Message);
    bool Command(const TMessage& Message);
    void Forget(TkelCustomPopupMenu* Open);
    bool IsDrawn() const { return FCurrent && FCurrent->Style == msOwnerDraw; }

    int FMenus = 0;                          // that live
    std::vector<TkelCustomPopupMenu*> FOpen; // in the system's loop; it refuses a second one
    TkelCustomPopupMenu* FCurrent = nullptr;
    TkelCustomPopupMenu* FSaved = nullptr;
    bool FCommandPending = false;
    std::unique_ptr<TScreenCanvas> FMeasuring; // until no menu is open
};

// The one tracking.
inline TPopupTracking* const PopupTracking = &TPopupTracking::Get();

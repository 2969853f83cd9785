// TPopupTracking: which owner-drawing popup menu is open, and where the messages of the popup menus' window go.
#pragma once

#include "common/CustomPopupMenu.h"
#include "common/OwnerDrawItems.h"

#include <algorithm>
#include <memory>
#include <vector>

// Popup makes a menu the current one. When its menu loop ends it becomes the saved one, as the command that was chosen
// comes after the end of the loop.
class TPopupTracking : public TObject {
public:
    static TPopupTracking& Get();

    // The tracking listens to the window from the creation of the first menu to the deletion of the last one.
    void Add();
    void Remove(TkelCustomPopupMenu* Menu);

    // Exists while the system's menu loop runs for Menu. The menu may be deleted during that time.
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
    // For measuring an item, with the default font, pen and brush. All items of a menu share one canvas, as to get the
    // device context of the screen takes longer than to measure.
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

    int FMenus = 0;                          // how many exist
    std::vector<TkelCustomPopupMenu*> FOpen; // for which the menu loop runs
    TkelCustomPopupMenu* FCurrent = nullptr;
    TkelCustomPopupMenu* FSaved = nullptr;
    bool FCommandPending = false;
    std::unique_ptr<TScreenCanvas> FMeasuring; // exists while a menu is open
};

// The only instance.
inline TPopupTracking* const PopupTracking = &TPopupTracking::Get();

// TBarDrag: one drag of a tool bar, from the press of the button on. It knows how all bars lay when it began: Escape
// puts them back, and docks with ArrangeRows lay them anew from there when the rules of the bar have left a disorder.
#pragma once

#include "toolbar/DockRows.h"
#include "vcl/classes/ComponentRef.h"

#include <functional>
#include <list>

class TBarDrag {
public:
    // Bar is the one that was taken. Until the left button is released Escape calls OnEscape, and goes nowhere else.
    TBarDrag(TkelToolBar& Bar, std::function<void()> OnEscape);
    ~TBarDrag();
    TBarDrag(const TBarDrag&) = delete;

    // After each step: lays the bars of the docks with ArrangeRows anew whose rows are not in order.
    void ArrangeRows();
    // When the button is released, after steps: the same where bars cover each other or stick out.
    void Finish();
    // Puts the dragged bar and all others back where they were.
    void Undo();

private:
    struct TLayout {
        TComponentRef<TkelDock> Dock;
        bool WasInOrder = true; // each row had bars, and none was out of sight
        TDockRows Rows;
    };

    void ArrangeIn(const TLayout& Layout) const;
    bool ReturnBar();
    static LRESULT CALLBACK KeyHook(int Code, WPARAM Key, LPARAM Flags);

    static inline TBarDrag* Current = nullptr;

    TComponentRef<TkelToolBar> FBar;
    std::function<void()> FOnEscape;
    HHOOK FHook;
    std::list<TLayout> FLayouts;   // of the docks that the bar may go to
    TComponentRef<TkelDock> FDock; // where the bar lay, when it did not float
    TPoint FFramePlace;
    TSize FSize;
    bool FHasBegun = false;
};

// TkelDock: a place for tool bars along an edge of a form.
//
// Bars lie in rows. There is no list of rows: bars of the same place and thickness across the dock are in one row, and
// the dock is as thick as its rows together. A dock that is not aligned to an edge has no rows, and takes no bars.
#pragma once

#include "common/CustomPanel.h"
#include "toolbar/DockAxis.h"

class TFittedRows;
class TkelToolBar;

class TkelDock : public TkelCustomPanel {
    VCL_CLASS(TkelDock, TkelCustomPanel)
public:
    // 48 pixels high at the upper edge, without bevels.
    explicit TkelDock(TComponent* AOwner);
    ~TkelDock() override;

    // Whether drags, restarts and changes of the dock's length leave the bars in order: none covers another or is out
    // of sight, no row is empty, and bars that shared a row share it after a restart. False: only the rules of
    // TkelToolBar hold. Not kept in form files; to count for a restart it is set before the form's bars are loaded.
    bool ArrangeRows = true;

    // Aligned to one of the four edges.
    bool TakesBars() const { return Align == alTop || Align == alBottom || Align == alLeft || Align == alRight; }
    TDockAxis Axis() const { return TDockAxis(Align); }

    // The tool bars in the order of the controls. A hidden bar keeps its dock, but has no room in it.
    std::vector<TkelToolBar*> AllBars() const;
    std::vector<TkelToolBar*> ShownBars() const;
    // Another shown control that lies in the row at Place and is Thick across; nullptr when there is none.
    TControl* FindInRow(int Place, int Thick, const TControl* Except) const;

    // A dock without controls takes no room in the running form; in the designer it is large enough to be picked.
    void ShrinkIfEmpty();

protected:
    void Loaded() override;
    void Paint() override;
    void Resize() override;

private:
    friend class TDockRows;
    friend class TkelToolBar;

    void BringBarsIn();
    void FitRows();

    std::unique_ptr<TFittedRows> FFitted;
    int FFittedLength = -1;
    bool FSeen = false;   // has been painted
    bool FLaying = false; // its rows are being laid anew
};

// TDockRows: the rows of a dock as a list, to look at how its bars lie and to lay them anew.
//
// What a drag does follows the rules of TkelToolBar. Where they would leave bars that cover each other, stick out of
// the dock, or an empty row, a dock with ArrangeRows lays its bars once more, by this class.
#pragma once

#include "toolbar/Dock.h"

#include <vector>

class TDockRows {
public:
    TDockRows() = default;
    // As the shown bars of Dock lie now.
    explicit TDockRows(const TkelDock& Dock);
    // As the bars lay when the program ended: those with one saved row share it, at their saved places. Bars without
    // a saved row follow, each row as it is now.
    static TDockRows Saved(const TkelDock& Dock);

    // Each row begins where the one before ends, and Dock is as thick as all of them.
    static bool AreRowsInOrder(const TkelDock& Dock);
    // No bar covers another or sticks out of Dock either. A bar longer than Dock cannot but do so.
    static bool AreBarsInOrder(const TkelDock& Dock);

    // The same bars at the same places along the same rows.
    bool operator==(const TDockRows& Other) const;

    // Leaves out bars that Dock does not show any more, and Except. Their rows stay, even empty. Bars that are missing
    // become rows of their own at the end.
    void Update(const TkelDock& Dock, const TkelToolBar* Except = nullptr);
    // Adds a bar to the row that Middle, a place across the dock, is in. Start is where it is to begin along the row.
    // Bars that it would cover move on to where there is room; when the row has none, or is of another thickness, the
    // bar becomes a row of its own beside it. DockLength is in pixels.
    void Add(TkelToolBar& Bar, int Middle, int Start, int DockLength);
    // Moves the bars of each row together where one would stick out. Those that have no room all the same become a row
    // of their own behind it.
    void Fit(int DockLength);
    // The same for rows with a bar that would be out of sight altogether.
    void BringIn(int DockLength);

    // Places the bars in Dock, row by row without gaps, and gives Dock the thickness of all.
    void LayIn(TkelDock& Dock);
    // Places the bars where they were exactly, and gives Dock the thickness it had.
    void PutBackIn(TkelDock& Dock) const;

    // Where Bar lies: the place of its row across the dock, and its own along the row. False when it is not there.
    bool Find(const TkelToolBar& Bar, int& Row, int& Start) const;

private:
    struct TPlace {
        TkelToolBar* Bar; // may be gone; Update leaves such bars out
        int Start;
        int Length;
    };
    struct TRow {
        int Place;
        int Thickness;
        std::vector<TPlace> Bars; // in their order along the row
    };

    TRow& RowAt(int Place, int Thickness);
    void Sort();
    bool Has(const TkelToolBar* Bar) const;
    static int LengthOf(const std::vector<TPlace>& Bars);
    static void PushForward(std::vector<TPlace>& Bars, int From);
    static void PushBack(std::vector<TPlace>& Bars, int To);
    void FitRow(size_t Index, int DockLength);
    static void Insert(TRow& Row, TPlace Place, int DockLength);

    std::vector<TRow> FRows;
    int FDockThickness = 0;
};

// Keeps the rows of a dock within its length, and remembers how they lay when there was more room.
class TFittedRows {
public:
    // Brings in bars that would be out of sight. When there is room again, and nobody has moved a bar since, all go
    // back.
    void Fit(TkelDock& Dock);
    // Where Bar lies when there is room enough.
    void FindWished(const TkelToolBar& Bar, int& Row, int& Start) const;

private:
    TDockRows FWished;
    TDockRows FFitted;
};

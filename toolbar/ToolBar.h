// TkelToolBar: a bar of buttons that lies in a dock, or floats in a frame of its own.
//
// The user drags it by its grip, its separators or its background: along its row, to another place in the dock, to
// another dock, or off all docks, where it floats. In a dock at the left or right edge it is vertical.
#pragma once

#include "toolbar/Dock.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

class TBarDrag;
class TFPForm97;
class TkelTBDragBox;

VCL_ENUM(TToolBarStyle, psStatic, psFloat);

// The height of a floating frame's caption and upper border that places of frames are computed with, in pixels.
inline int CapSize = 20;

class TkelToolBar : public TkelCustomPanel {
    VCL_CLASS(TkelToolBar, TkelCustomPanel)
public:
    // 26 pixels high, visible, with AutoSave. The caption is the class's name and the number of the owner's components.
    explicit TkelToolBar(TComponent* AOwner);
    ~TkelToolBar() override;
    void BeforeDestruction() override;
    void SetParent(TWinControl* Value) override;

    // The bar's place is kept in the settings, under its caption: written whenever the bar is painted, read when it
    // has been loaded. Bars with the same caption share one record.
    bool GetAutoSave() const { return FAutoSave; }
    void SetAutoSave(bool Value) { FAutoSave = Value; }
    PROPERTY(bool, AutoSave);
    // The same flag as AutoSave, whatever its name says: setting one sets the other. A floating frame has its close
    // box in any case.
    bool GetCloseButton() const { return FAutoSave; }
    void SetCloseButton(bool Value) { FAutoSave = Value; }
    PROPERTY(bool, CloseButton);
    // Whether the user can change the size of the floating frame, and the bar with it. Applies to the next frame.
    bool AllowResize = false;

    // The bar appears or is hidden by ShowPanel and HidePanel, begins to float, comes to lie in a dock.
    TNotifyEvent OnShow;
    TNotifyEvent OnHide;
    TNotifyEvent OnFloat;
    TNotifyEvent OnStatic;

    // ---- showing and floating

    // Shows a hidden bar: in a frame where it was, in a dock as a new row behind the others.
    void ShowPanel();
    // Hides the bar and its frame; in a dock it gives up its room. Its place is saved, with AutoSave or without.
    void HidePanel();
    bool GetFloating() const { return FFloating; }
    PROPERTY_READ(bool, Floating);
    // Makes the bar float, or moves its frame: Left becomes X, Top becomes Y - CapSize, in pixels of the screen. In a
    // dock the bar gives up its row as with DeleteFromDock.
    void FloatToPos(int X, int Y);
    // Whether the bar floats. X and Y become its Left and Top in the dock; for a floating bar its place on the screen
    // as FloatToPos takes it, plus one pixel each.
    bool isFloat(int& X, int& Y) const;
    // The frame while the bar floats, else nullptr. It belongs to the bar.
    TFPForm97* GetFrame() const { return FFrame; }
    PROPERTY_READ(TFPForm97*, Frame);

    // ---- layout in a dock

    // Makes the bar a new last row of the dock that is its parent already, and turns it to the dock's direction. This
    // and the following methods do nothing in a parent that has no rows.
    void InsertToDock();
    // Takes the bar out of its row. The row is removed when no other bar is in it. A vertical bar becomes horizontal.
    // The dock remains the bar's parent.
    void DeleteFromDock();
    // Where in this bar's row ToolBar could be added, in pixels along the dock: 0 or the end of the row; -1 when it is
    // of another thickness or too long.
    int isInsert(const TkelToolBar* ToolBar) const;
    // Trades places with another bar of the same dock while this one is dragged over it. nullptr and the bar itself
    // are ignored.
    void SwapToolBar(TkelToolBar* ToolBar);
    // Moves the bar so that it lies inside its parent. A bar larger than that sticks out at the left and top.
    void Aligning();
    // The thickness the bar had in its dock when it was loaded or left it, in pixels. A bar that was resized while it
    // floated gets it back when it is docked.
    int GetRowThickness() const { return FRowThickness; }
    PROPERTY_READ(int, RowThickness);
    // The dock that is the bar's parent, nullptr while the bar floats or lies elsewhere.
    TkelDock* GetDock() const;
    PROPERTY_READ(TkelDock*, Dock);
    // The direction of the dock; a bar outside of docks is horizontal.
    TDockAxis Axis() const;

    // ---- items

    // The bar's controls in their order along the bar, the drag box among them. As many as there are controls.
    const std::vector<TControl*>& Items() const { return FItems; }
    // Finds the order anew, from where the controls lie. Controls at the same place keep the order they were added in.
    void SortControls();
    // Turns each item that lies across the bar: what was at the far end stays there, the others follow from the near
    // end in their order. Items keep the length they take of the bar. Items that are not aligned to an edge are left
    // alone, unless the bar has turned since: those with alNone then turn, too. Nothing happens where bars have no
    // direction.
    void CorrectAlign();
    TkelTBDragBox* GetDragBox() const { return FDragBox; }
    PROPERTY_READ(TkelTBDragBox*, DragBox);

    // ---- dragging

    // For items and frames, which pass the mouse on to their bar: in the bar's coordinates.
    void PublicMouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) { MouseDown(Button, Shift, X, Y); }
    void PublicMouseMove(TShiftState Shift, int X, int Y) { MouseMove(Shift, X, Y); }
    void PublicMouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) { MouseUp(Button, Shift, X, Y); }
    // Ends the drag that the user has begun with this bar, and puts all bars back where they were, as Escape does.
    void CancelDrag();
    // The docks that the bar's owner owns and that are aligned to an edge, in the order of its components.
    std::vector<TkelDock*> OwnersDocks() const;
    // The first of these docks that Point is near enough to, nullptr when there is none. Point is in the bar's
    // coordinates.
    TkelDock* FindDock(const TPoint& Point) const;
    // The bar of the same dock that this one is to trade places with when the pointer is at Point: the first whose
    // middle across the dock lies between this bar's row and the pointer. nullptr when there is none. Point is in the
    // bar's coordinates.
    TkelToolBar* FindToolBar(const TPoint& Point) const;
    // A step of a drag is being made, by any bar.
    static bool IsDragged() { return Dragged != nullptr; }

    // True while bars are created and loaded: nothing is reported, saved or captured then.
    static bool IsLayoutSuspended() { return TSuspension::Any(); }

    // Where the bar lay in its dock when its record was saved, or without a record in the form file: Row is the place
    // of its row across the dock, Start its own along the row, in pixels. Used while forms are loaded.
    struct TSavedRow {
        int Row;
        int Start;
    };
    const std::optional<TSavedRow>& SavedRow() const { return FSavedRow; }

    TRect GetClientRect() const override;
    int AccessibleRole() const override;

protected:
    virtual void DoFloat() { OnFloat(this); }
    virtual void DoStatic() { OnStatic(this); }

    // The class's name and the number of the owner's components. A constructor knows its own class only, so that of a
    // descendant calls it again.
    void NumberCaption();
    void ReadState(TReader& Reader) override;
    void Loaded() override;
    void Paint() override;
    // A bar with items shows no caption in the gaps between them.
    bool DrawsCaption() const override { return FItems.size() <= 1 && inherited::DrawsCaption(); }
    void AlignControls(TControl* Control, TRect& Rect) override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;

private:
    friend class TFPForm97;
    friend void SaveToolBarPosition(TkelToolBar* ToolBar);
    friend void RestoreToolBarPosition(TkelToolBar* ToolBar);

    // A bar is being made or loaded: until it lies somewhere, has been loaded, or is deleted because that failed.
    class TSuspension {
    public:
        TSuspension() { Begin(); }
        ~TSuspension() { End(); }
        TSuspension(const TSuspension&) = delete;
        void Begin() { Count += !std::exchange(FHolds, true); }
        void End() { Count -= std::exchange(FHolds, false); }
        static bool Any() { return Count > 0; }

    private:
        static inline int Count = 0;
        bool FHolds = false;
    };

    void WMSize(TWMSize& Message);
    void WMWindowPosChanged(TMessage& Message);
    void CMControlListChange(TMessage& Message);

    void SaveQuietly();
    void SaveRow(const AnsiString& Section);
    void ReadRow(const AnsiString& Section);
    void ReturnToRow();
    void GiveUpRow();
    void LieFree();
    bool LeadsRow() const;
    void SetDockedLook(bool Docked);
    void TurnTo(bool Vertical);
    void TurnItems(bool Vertical);
    void PlaceDragBox();
    void PassInRow(TkelToolBar& Other);
    void MoveRowsBehind(int Row, int By);
    void JoinRow(TkelToolBar& Other, int Place, int LowerRow);
    void TradeRows(TkelToolBar& Upper, TkelToolBar& Lower, TkelToolBar& Other);

    // P is in the bar's coordinates, Pointer the same place on the screen.
    void Drag(const TPoint& P, const TPoint& Pointer);
    bool KeepsToDock(const TPoint& Pointer) const;
    bool HasPassed(const TkelToolBar& Other, const TPoint& P) const;
    TkelToolBar* FindInOtherRows(const TPoint& P) const;
    void DragAlong(TkelDock& InDock, const TPoint& P);
    void DragInto(TkelDock& Target, const TPoint& Pointer);
    void DragFree(const TPoint& Pointer, const TPoint& P);
    void TearOff(const TPoint& P);
    void Slide(const TkelDock& InDock, const TPoint& P);
    bool IsNear(const TkelDock& Candidate, const TPoint& Pointer) const;
    TRect FloatingRect() const;
    void CaptureDrag();
    void PlaceFrame(TPoint Place, bool Exactly);
    void MakeFrame();
    void EnterFrame();
    TFPForm97* LeaveFrame();
    static void CloseFrame(TFPForm97* Emptied);

    static inline TkelToolBar* Dragged = nullptr; // during a step of its drag

    int FRowThickness = 0;
    std::shared_ptr<TBarDrag> FDrag; // from the press of the button to its release
    bool FCancelled = false;         // the button is still down
    std::optional<TSavedRow> FSavedRow;
    TPoint FAnchor; // where in the bar the drag began
    TPoint FReach;  // from the pointer to the nearest point of the dock, when a floating bar was docked
    std::vector<TControl*> FItems;
    bool FUpright = false; // the items lie as in a vertical bar
    bool FFloating = false;
    bool FAutoSave = true;
    bool FCloseBox = true; // of the floating frame; not to be changed
    bool FIsNew = true;    // has had no parent yet
    bool FHasRow = false;  // has its place in the rows of its dock; meaningless while it is hidden
    TSuspension FSuspension;
    TkelTBDragBox* FDragBox;
    TFPForm97* FFrame = nullptr;
};

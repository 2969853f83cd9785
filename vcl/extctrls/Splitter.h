// TSplitter: the bar between two parts of a form that changes their sizes.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/GraphicControl.h"

VCL_ENUM(TResizeStyle, rsNone, rsLine, rsUpdate, rsPattern);
// NewSize is the size that the control beside the splitter is about to get.
using TCanResizeSplitEvent = TEvent<void(TObject* Sender, int& NewSize, bool& Accept)>;

// Resizes the aligned control that lies beside it, on the side that it is aligned to. A control without extent, such as
// an empty dock, is none that it finds there; what the splitter itself has closed it can open again.
class TSplitter : public TGraphicControl {
    VCL_CLASS(TSplitter, TGraphicControl)
public:
    explicit TSplitter(TComponent* AOwner);

    // A size below MinSize becomes 0: the control is closed.
    bool AutoSnap = true;
    // With bevels along its sides.
    bool GetBeveled() const { return FBeveled; }
    void SetBeveled(bool Value);
    PROPERTY(bool, Beveled);
    // In pixels, for the control and for what it leaves of the form.
    int MinSize = 30;
    // What shows where the splitter will go: nothing, a grey line, the controls themselves, a pattern.
    TResizeStyle ResizeStyle = rsPattern;

    TCanResizeSplitEvent OnCanResize;
    // After the control was resized.
    TNotifyEvent OnMoved;
    TNotifyEvent OnPaint;

    int AccessibleRole() const override;

protected:
    void Paint() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;

private:
    void WMCancelMode(TMessage& Message);

    bool SplitsSideways() const { return Align == alLeft || Align == alRight; }
    bool IsClosed(const TControl* Control) const;
    TControl* FindNeighbour() const;
    void FindMaxSize();
    void Drag(int X, int Y);
    void ApplySize();
    void StopSizing();
    void InvertLine();
    int SizeOf(const TControl* Control) const;

    TComponentRef<TControl> FControl{this, &TSplitter::StopSizing}; // while the button is down
    TComponentRef<TControl> FClosed;                                // what this splitter has closed last
    TPoint FDownPos;
    int FMaxSize = 0;
    int FOldSize = 0;
    int FNewSize = 0;
    int FSplit = 0; // pixels from where the splitter is to where it will go
    bool FLineVisible = false;
    bool FBeveled = false;
};

// TScrollingWinControl: a control whose content may be larger than it is; forms, frames and scroll boxes.
#pragma once

#include "vcl/controls/WinControl.h"
#include "vcl/forms/ControlScrollBar.h"

class TScrollingWinControl : public TWinControl {
    VCL_CLASS(TScrollingWinControl, TWinControl)
public:
    explicit TScrollingWinControl(TComponent* AOwner);

    TControlScrollBar* GetHorzScrollBar() { return &FHorzScrollBar; }
    void SetHorzScrollBar(TControlScrollBar* Value) { FHorzScrollBar.Assign(Value); }
    PROPERTY(TControlScrollBar*, HorzScrollBar);
    TControlScrollBar* GetVertScrollBar() { return &FVertScrollBar; }
    void SetVertScrollBar(TControlScrollBar* Value) { FVertScrollBar.Assign(Value); }
    PROPERTY(TControlScrollBar*, VertScrollBar);
    // The ranges follow the controls: the bars show when some do not fit.
    bool GetAutoScroll() const { return FAutoScroll; }
    virtual void SetAutoScroll(bool Value);
    PROPERTY(bool, AutoScroll);

    // Scrolls until the control, which may lie deeper, is visible; as much of it as fits.
    void ScrollInView(TControl* Control);
    // Between the two the ranges are left alone.
    void DisableAutoRange() { ++FAutoRangeLevel; }
    void EnableAutoRange();

    void DefineProperties(TFiler& Filer) override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void AlignControls(TControl* Control, TRect& Rect) override;
    void AdjustClientRect(TRect& Rect) const override;
    // Called when a control inside gets the focus.
    virtual void AutoScrollInView(TControl* Control);
    void UpdateScrollBars();
    bool AutoScrollEnabled() const { return FAutoScroll && !GetAutoSize(); }

private:
    friend class TControlScrollBar;
    friend class TFormFocus;

    void WMHScroll(TMessage& Message);
    void WMVScroll(TMessage& Message);
    void WMSize(TWMSize& Message);
    void CalcAutoRange();
    int NeededRange(TScrollBarKind Kind) const;
    void ReadDesignSize(TReader* Reader);
    void WriteDesignSize(TWriter* Writer);
    void BarMessage(TControlScrollBar& Bar, TMessage& Message);

    TControlScrollBar FHorzScrollBar;
    TControlScrollBar FVertScrollBar;
    TSize FDesignSize; // the client size in the designer, kept for form files; 0: not read
    int FAutoRangeLevel = 0;
    bool FAutoScroll = false;
    bool FUpdatingBars = false;
};

// TControlScrollBar: one of the two scroll bars at the edge of a scrolling control.
#pragma once

#include "vcl/classes/Persistent.h"
#include "vcl/controls/ControlTypes.h"
#include "vcl/graphics/Color.h"

class TScrollingWinControl;

VCL_ENUM(TScrollBarKind, sbHorizontal, sbVertical);
VCL_ENUM(TScrollBarStyle, ssRegular, ssFlat, ssHotTrack);

class TControlScrollBar : public TPersistent {
    VCL_CLASS(TControlScrollBar, TPersistent)
public:
    // A part of Control.
    TControlScrollBar(TScrollingWinControl* Control, TScrollBarKind Kind);

    void Assign(TPersistent* Source) override;
    TPersistent* GetOwner() const override;

    TScrollBarKind GetKind() const { return FKind; }
    PROPERTY_READ(TScrollBarKind, Kind);

    // How far the content is scrolled, in pixels; kept between 0 and Range less what is visible.
    int GetPosition() const { return FPosition; }
    void SetPosition(int Value);
    PROPERTY(int, Position);
    // The content's size in pixels; 0 is no scrolling. Negative values count as 0. Setting it ends the control's
    // AutoScroll.
    int GetRange() const { return FRange; }
    void SetRange(int Value);
    PROPERTY(int, Range);
    // What the automatic range adds behind the last control.
    int GetMargin() const { return FMargin; }
    void SetMargin(int Value);
    PROPERTY(int, Margin);
    // False: never shown; the content can still be scrolled by Position.
    bool GetVisible() const { return FVisible; }
    void SetVisible(bool Value);
    PROPERTY(bool, Visible);
    bool IsScrollBarVisible() const;

    // The step of the arrow buttons in pixels. Smooth makes it a tenth of a page and moves in small steps.
    int Increment = 8;
    bool Smooth = false;
    // The content follows the thumb while it is dragged.
    bool Tracking = false;

    // Kept for form files: the system's bars draw themselves and have no such settings.
    int ButtonSize = 0;
    TColor Color = clBtnHighlight;
    bool ParentColor = true;
    int Size = 0;
    TScrollBarStyle Style = ssRegular;
    int ThumbSize = 0;

private:
    friend class TScrollingWinControl;

    int Page() const;
    int MaxPosition() const;
    int BarFlag() const { return FKind == sbHorizontal ? SB_HORZ : SB_VERT; }
    void SetAutoRange(int Value);
    void Scroll(unsigned Code);
    void ScrollTo(int Target);
    bool WantsBar(int ClientSize) const { return FVisible && FRange > ClientSize; }
    void UpdateBar(bool Show);
    bool IsRangeStored() const;

    TScrollingWinControl* FControl;
    int FPosition = 0;
    int FRange = 0;
    int FMargin = 0;
    TScrollBarKind FKind;
    bool FVisible = true;
};

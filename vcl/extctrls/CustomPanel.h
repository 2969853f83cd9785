// TCustomPanel: a surface with bevels and a caption, for other controls to stand on.
#pragma once

#include "vcl/controls/CustomControl.h"
#include "vcl/stdctrls/StdTypes.h"

using TPanelBevel = TBevelCut;

class TCustomPanel : public TCustomControl {
    VCL_CLASS(TCustomPanel, TCustomControl)
public:
    explicit TCustomPanel(TComponent* AOwner);

    // Where the caption stands between the bevels; it is always centred from top to bottom.
    TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value);
    PROPERTY(TAlignment, Alignment);
    // From outside to inside: BevelOuter, BorderWidth pixels, BevelInner. Children are aligned within.
    TPanelBevel GetBevelInner() const { return FBevelInner; }
    void SetBevelInner(TPanelBevel Value);
    PROPERTY(TPanelBevel, BevelInner);
    TPanelBevel GetBevelOuter() const { return FBevelOuter; }
    void SetBevelOuter(TPanelBevel Value);
    PROPERTY(TPanelBevel, BevelOuter);
    // In pixels; values below 1 count as 1.
    TBevelWidth GetBevelWidth() const { return FBevelWidth; }
    void SetBevelWidth(TBevelWidth Value);
    PROPERTY(TBevelWidth, BevelWidth);
    // Negative values count as 0.
    TBorderWidth GetBorderWidth() const { return FBorderWidth; }
    void SetBorderWidth(TBorderWidth Value);
    PROPERTY(TBorderWidth, BorderWidth);
    // bsNone or bsSingle: the window's own border, sunken with Ctl3D.
    TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    PROPERTY(TBorderStyle, BorderStyle);
    // A change of size draws the whole panel again, not only what it uncovers.
    bool FullRepaint = true;
    // The panel is not merged as a tool bar into the window of an in-place container.
    bool Locked = false;
    // Kept for form files: panels are drawn without themes.
    bool ParentBackground = true;

    int AccessibleRole() const override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void AdjustClientRect(TRect& Rect) const override;
    void Paint() override;
    void Resize() override;

private:
    void CMTextChanged(TMessage& Message);
    void CMCtl3DChanged(TMessage& Message);
    void CMIsToolControl(TMessage& Message);
    void BevelChanged();
    int BorderSize() const;
    void DrawBevel(TRect& R, TPanelBevel Bevel);
    void DrawCaption(TRect R);
    void InvalidateResized();

    TSize FDrawnSize;
    TBevelWidth FBevelWidth = 1;
    TBorderWidth FBorderWidth = 0;
    TAlignment FAlignment = taCenter;
    TPanelBevel FBevelInner = bvNone;
    TPanelBevel FBevelOuter = bvRaised;
    TBorderStyle FBorderStyle = bsNone;
};

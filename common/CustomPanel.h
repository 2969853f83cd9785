// TkelCustomPanel: a panel whose bevels and border lines can be drawn on any of its four sides.
//
// Three things that a panel can do in more than one way, and how this one does them:
// - Transparent: the panel asks its parent to paint what lies behind it, the parent's windowless controls included,
//   whenever it is painted itself; it paints itself, and transparent panels on it, anew each time it moves or changes
//   its size. What changes behind a panel that stands still shows with the panel's next painting.
// - Locked: the panel's children stay where they are, whatever their Align and Anchors say, until it is unlocked; then
//   they are laid out.
// - CM_ISTOOLCONTROL is answered with 1 unless the panel is Locked: a container may hide it in favour of the tool bars
//   of what is active in it, and must leave a locked one alone.
#pragma once

#include "common/PanelTypes.h"
#include "vcl/controls/CustomControl.h"

class TkelCustomPanel : public TCustomControl {
    VCL_CLASS(TkelCustomPanel, TCustomControl)
public:
    // 185 by 41 pixels, in the colour of buttons.
    explicit TkelCustomPanel(TComponent* AOwner);

    // On which sides the bevels and the ring between them are drawn. What is inside them is the same whatever the
    // sides.
    TSides GetBevelSides() const { return FBevelSides; }
    void SetBevelSides(TSides Value);
    PROPERTY(TSides, BevelSides);
    // On which sides the panel has a black line at its edge, which is no part of the client area.
    TSides GetBorderSides() const { return FBorderSides; }
    void SetBorderSides(TSides Value);
    PROPERTY(TSides, BorderSides);
    // The colour of the ring between the bevels.
    TColor GetBorderColor() const { return FBorderColor; }
    void SetBorderColor(TColor Value);
    PROPERTY(TColor, BorderColor);
    // Where the caption stands inside the bevels. With vaBottom its last line ends one pixel above their inside.
    TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value);
    PROPERTY(TAlignment, Alignment);
    TVerticalAlignment GetVerticalAlignment() const { return FVerticalAlignment; }
    void SetVerticalAlignment(TVerticalAlignment Value);
    PROPERTY(TVerticalAlignment, VerticalAlignment);
    // Whether the caption is drawn at all. Of a long one the first 255 characters show.
    bool GetShowCaption() const { return FShowCaption; }
    void SetShowCaption(bool Value);
    PROPERTY(bool, ShowCaption);
    // Bevels and caption are drawn, the background is what lies behind.
    bool GetTransparent() const { return FTransparent; }
    void SetTransparent(bool Value);
    PROPERTY(bool, Transparent);

    // From outside to inside: the border lines, BevelOuter, a ring of BorderWidth pixels, BevelInner. Children are
    // aligned inside of all of them. bvSpace is drawn as bvNone.
    TPanelBevel GetBevelInner() const { return FBevelInner; }
    void SetBevelInner(TPanelBevel Value);
    PROPERTY(TPanelBevel, BevelInner);
    TPanelBevel GetBevelOuter() const { return FBevelOuter; }
    void SetBevelOuter(TPanelBevel Value);
    PROPERTY(TPanelBevel, BevelOuter);
    // In pixels; nothing is drawn for values below 1.
    int GetBevelWidth() const { return FBevelWidth; }
    void SetBevelWidth(int Value);
    PROPERTY(int, BevelWidth);
    int GetBorderWidth() const { return FBorderWidth; }
    void SetBorderWidth(int Value);
    PROPERTY(int, BorderWidth);
    // bsSingle: the window has a border of its own, a sunken edge with Ctl3D. Every other style is none.
    TFormBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TFormBorderStyle Value);
    PROPERTY(TFormBorderStyle, BorderStyle);

    bool GetLocked() const { return FLocked; }
    void SetLocked(bool Value);
    PROPERTY(bool, Locked);

    // The window's client area without the border lines.
    TRect GetClientRect() const override;

    int AccessibleRole() const override;

protected:
    // One line on each of Sides along the edge of R: ULColor on the left and on top, LRColor on the right and below,
    // drawn later.
    void DrawSides(const TRect& R, TColor ULColor, TSides Sides, TColor LRColor);
    // Width such frames, each inside of the one before. R becomes what they enclose, also where they are not drawn.
    void DrawBevel(TRect& R, TColor ULColor, TSides Sides, int Width, TColor LRColor);

    void Paint() override;
    // A descendant may leave the caption out.
    virtual bool DrawsCaption() const { return FShowCaption; }
    void AlignControls(TControl* Control, TRect& Rect) override;
    void AdjustClientRect(TRect& Rect) const override;
    void CreateParams(TCreateParams& Params) override;
    void Resize() override;

private:
    void CMTextChanged(TMessage& Message);
    void CMCtl3DChanged(TMessage& Message);
    void CMIsToolControl(TMessage& Message);
    void WMWindowPosChanged(TMessage& Message);
    void WMEraseBkgnd(TMessage& Message);

    template <class T>
    void Change(T& Field, T Value);
    template <class T>
    void ChangeFrame(T& Field, T Value);
    void DrawPanelBevel(TRect& R, TPanelBevel Bevel);
    void DrawCaption(TRect R);
    void PaintBehind(HDC Context);

    TSides FBevelSides = AllSides;
    TSides FBorderSides;
    TColor FBorderColor = clBtnFace;
    int FBevelWidth = 1;
    int FBorderWidth = 0;
    TPanelBevel FBevelInner = bvNone;
    TPanelBevel FBevelOuter = bvRaised;
    TAlignment FAlignment = taCenter;
    TVerticalAlignment FVerticalAlignment = vaCenter;
    TFormBorderStyle FBorderStyle = bsNone;
    bool FTransparent = false;
    bool FShowCaption = true;
    bool FLocked = false;
};

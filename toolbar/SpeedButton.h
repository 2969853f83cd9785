// TkelSpeedButton: the library's tool button, without a window of its own.
//
// It shows a cell of a glyph strip, or an image of an image list, and a caption. A flat button has no frame until the
// pointer is over it.
#pragma once

#include "toolbar/Glyphs.h"
#include "vcl/buttons/ButtonTypes.h"
#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/GraphicControl.h"
#include "vcl/graphics/ImageList.h"

class TkelSpeedButton : public TGraphicControl {
    VCL_CLASS(TkelSpeedButton, TGraphicControl)
public:
    // 22 by 22 pixels, flat.
    explicit TkelSpeedButton(TComponent* AOwner);

    // Buttons of one parent with the same GroupIndex, other than 0, form a group: one of them is down at a time. A
    // group of one is a switch when it has AllowAllUp.
    int GetGroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(int Value);
    PROPERTY(int, GroupIndex);
    // Whether the button of a group that is down comes up when it is clicked. The group shares one setting: the others
    // take it over.
    bool GetAllowAllUp() const { return FAllowAllUp; }
    void SetAllowAllUp(bool Value);
    PROPERTY(bool, AllowAllUp);
    // Latched down. Without a GroupIndex it is always false; a button that is down stays so while AllowAllUp is false.
    bool GetDown() const { return FDown; }
    void SetDown(bool Value);
    PROPERTY(bool, Down);

    // The strip, not owned; cleared when it is deleted. Setting it clears Images, and does not repaint.
    TkelGlyphs* GetGlyphs() const { return FGlyphs; }
    void SetGlyphs(TkelGlyphs* Value);
    PROPERTY(TkelGlyphs*, Glyphs);
    // The other source of the glyph, not owned either. Setting it clears Glyphs, and does not repaint.
    TImageList* GetImages() const { return FImages; }
    void SetImages(TImageList* Value);
    PROPERTY(TImageList*, Images);
    // The cell of Glyphs or the image of Images. A negative index shows cell 0 and no image.
    int GetGlyphIndex() const { return FGlyphIndex; }
    void SetGlyph(int Index);
    __declspec(property(get = GetGlyphIndex, put = SetGlyph)) int GlyphIndex;

    // No frame unless the pointer is over the button or it is down. Only flat buttons follow the pointer and raise
    // OnMouseEnter and OnMouseLeave.
    bool GetFlat() const { return FFlat; }
    void SetFlat(bool Value);
    PROPERTY(bool, Flat);
    // Where the glyph stands beside the caption; both together are in the middle of the button, 4 pixels apart.
    TButtonLayout GetLayout() const { return FLayout; }
    void SetLayout(TButtonLayout Value);
    PROPERTY(TButtonLayout, Layout);

    TNotifyEvent OnMouseEnter;
    TNotifyEvent OnMouseLeave;

    void Click() override { inherited::Click(); }
    // Visible in a window that the user can see. A button that is not answers no letter.
    bool IsOnScreen() const;

    // How many speed buttons this program has made so far.
    static int CreatedCount() { return Created; }

    int AccessibleRole() const override;
    int AccessibleState() const override;
    bool AccessibleDefaultAction() override;

protected:
    void Paint() override;
    void Loaded() override { inherited::Loaded(); }
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;

    // Draws glyph and caption in the middle of R, over the frame and what it encloses.
    virtual void DrawContent(const TRect& R);

    // Finds out whether the pointer is over the button, for when that may have changed without a message.
    void UpdateTracking();
    // Tells the other buttons of the group.
    void UpdateExclusive();

    // How the button is drawn.
    TButtonState FState = bsUp;
    // The pointer is over the button; flat buttons only.
    bool FMouseInControl = false;
    // While false the button does not follow the pointer.
    bool FTracking = true;

private:
    void WMLButtonUp(TWMMouse& Message);
    void WMLButtonDblClk(TWMMouse& Message);
    void WMCaptureChanged(TMessage& Message);
    void CMEnabledChanged(TMessage& Message);
    void CMButtonPressed(TMessage& Message);
    void CMDialogChar(TCMDialogChar& Message);
    void CMRepaint(TMessage& Message);
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);

    bool IsInside(int X, int Y) const;
    bool IsPressed() const { return FState == bsDown || FState == bsExclusive; }
    bool IsUnderPointer();
    void SetState(TButtonState Value);

    // The steps of Paint.
    void UpdateState();
    void DrawFrame();
    void DrawFlatFrame();
    void DrawGlyph(const TPoint& At);
    void DrawDesignOutline();
    TSize GlyphSize() const;

    static inline int Created = 0;

    TComponentRef<TkelGlyphs> FGlyphs;
    TComponentRef<TImageList> FImages;
    int FGroupIndex = 0;
    int FGlyphIndex = 0;
    TButtonLayout FLayout = blGlyphLeft;
    bool FDown = false;
    bool FDragging = false;  // the left button went down on this one and is still held
    bool FReleasing = false; // it comes up, and the mouse is given back
    bool FAllowAllUp = false;
    bool FFlat = true;
};

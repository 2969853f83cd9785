// TImage: shows a picture.
#pragma once

#include "vcl/controls/GraphicControl.h"
#include "vcl/graphics/Picture.h"

class TImage : public TGraphicControl {
    VCL_CLASS(TImage, TGraphicControl)
public:
    explicit TImage(TComponent* AOwner);

    // The picture, the control's own; setting copies.
    TPicture* GetPicture() { return &FPicture; }
    void SetPicture(TPicture* Value) { FPicture.Assign(Value); }
    PROPERTY(TPicture*, Picture);
    // Draws on the picture's bitmap; without a picture one of the control's size is made first. Raises
    // EInvalidOperation "Can only modify an image if it contains a bitmap" when the picture is of another kind.
    TCanvas* GetCanvas();
    PROPERTY_READ(TCanvas*, Canvas);

    // The picture stands in the middle of the control instead of at its upper left corner.
    bool GetCenter() const { return FCenter; }
    void SetCenter(bool Value);
    PROPERTY(bool, Center);
    // The picture fills the control.
    bool GetStretch() const { return FStretch; }
    void SetStretch(bool Value);
    PROPERTY(bool, Stretch);
    // The picture keeps its proportions when it is stretched; without Stretch a picture that is too large is made to
    // fit.
    bool GetProportional() const { return FProportional; }
    void SetProportional(bool Value);
    PROPERTY(bool, Proportional);
    // A bitmap's background is left out, see TBitmap::TransparentColor. Other pictures know by themselves.
    bool GetTransparent() const { return FTransparent; }
    void SetTransparent(bool Value);
    PROPERTY(bool, Transparent);
    // Kept for form files: pictures are drawn when they are complete.
    bool IncrementalDisplay = false;

    int AccessibleRole() const override;

protected:
    bool CanAutoSize(int& NewWidth, int& NewHeight) override;
    void Paint() override;
    void Resize() override;
    void Loaded() override;
    // Where the picture is drawn, in the control's coordinates.
    TRect DestRect() const;

private:
    void PictureChanged(TObject* Sender);
    void ApplyTransparent();
    void UpdateOpaque();

    TPicture FPicture;
    bool FCenter = false;
    bool FStretch = false;
    bool FProportional = false;
    bool FTransparent = false;
};

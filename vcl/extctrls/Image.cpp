#include "vcl/extctrls/Image.h"

#include "vcl/system/ClassBuilder.h"

void TImage::Describe(TClassBuilder<TImage>& Class)
{
    Class.PublishAll("Align", "Anchors", "AutoSize");
    Class.Property<&Self::GetCenter, &Self::SetCenter>("Center").Default(false);
    Class.PublishAll("Constraints", "DragCursor", "DragKind", "DragMode", "Enabled");
    Class.Value<&Self::IncrementalDisplay>("IncrementalDisplay").Default(false);
    Class.Publish("ParentShowHint");
    Class.Property<&Self::GetPicture, &Self::SetPicture>("Picture");
    Class.Publish("PopupMenu");
    Class.Property<&Self::GetProportional, &Self::SetProportional>("Proportional").Default(false);
    Class.Publish("ShowHint");
    Class.Property<&Self::GetStretch, &Self::SetStretch>("Stretch").Default(false);
    Class.Property<&Self::GetTransparent, &Self::SetTransparent>("Transparent").Default(false);
    Class.PublishAll("Visible", "OnClick", "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag",
                     "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag");
}

TImage::TImage(TComponent* AOwner) : TGraphicControl(AOwner)
{
    ControlStyle = ControlStyle + TControlStyle{csReplicatable};
    SetBounds(0, 0, 105, 105);
    FPicture.OnChange = {this, &TImage::PictureChanged};
}

TCanvas* TImage::GetCanvas()
{
    if (!FPicture.Graphic) {
        TBitmap Blank;
        Blank.SetSize(Width, Height);
        FPicture.Graphic = &Blank;
    }
    auto* Bitmap = As<TBitmap>(FPicture.Graphic);
    if (!Bitmap)
        throw EInvalidOperation("Can only modify an image if it contains a bitmap");
    return Bitmap->Canvas;
}

TRect TImage::DestRect() const
{
    int W = FPicture.Width;
    int H = FPicture.Height;
    int AvailableWidth = ClientWidth;
    int AvailableHeight = ClientHeight;
    bool Fits = W <= AvailableWidth && H <= AvailableHeight;
    if (FProportional && (FStretch || !Fits) && W > 0 && H > 0) {
        // The direction in which there is less room decides the scale.
        bool ByWidth = int64_t{AvailableWidth} * H <= int64_t{AvailableHeight} * W;
        int ScaledWidth = ByWidth ? AvailableWidth : MulDiv(W, AvailableHeight, H);
        H = ByWidth ? MulDiv(H, AvailableWidth, W) : AvailableHeight;
        W = ScaledWidth;
    } else if (FStretch) {
        W = AvailableWidth;
        H = AvailableHeight;
    }
    TRect Result(0, 0, W, H);
    if (FCenter)
        OffsetRect(Result, (AvailableWidth - W) / 2, (AvailableHeight - H) / 2);
    return Result;
}

void TImage::Paint()
{
    TCanvas* Target = inherited::GetCanvas();
    if (IsDesigning()) {
        Target->Pen->Style = psDash;
        Target->Brush->Style = bsClear;
        Target->Rectangle(0, 0, Width, Height);
    }
    Target->StretchDraw(DestRect(), FPicture.Graphic);
}

bool TImage::CanAutoSize(int& NewWidth, int& NewHeight)
{
    if (IsDesigning() && (FPicture.Width == 0 || FPicture.Height == 0))
        return true;
    if (Align == alNone || Align == alLeft || Align == alRight)
        NewWidth = FPicture.Width;
    if (Align == alNone || Align == alTop || Align == alBottom)
        NewHeight = FPicture.Height;
    return true;
}

void TImage::PictureChanged(TObject*)
{
    if (FPicture.Width > 0 && FPicture.Height > 0)
        AdjustSize();
    ApplyTransparent();
    UpdateOpaque();
    Invalidate();
}

// Icons and metafiles are always transparent.
void TImage::ApplyTransparent()
{
    TGraphic* Graphic = FPicture.Graphic;
    if (Graphic && !As<TIcon>(Graphic) && !As<TMetafile>(Graphic) && Graphic->Transparent != FTransparent)
        Graphic->Transparent = FTransparent;
}

// An image that its picture covers hides what lies behind.
void TImage::UpdateOpaque()
{
    TGraphic* Graphic = FPicture.Graphic;
    TRect Covered = DestRect();
    SetStyleFlag(csOpaque, Graphic && !Graphic->Transparent && Covered.Left <= 0 && Covered.Top <= 0 &&
                               Covered.Right >= Width && Covered.Bottom >= Height);
}

void TImage::Resize()
{
    UpdateOpaque();
    inherited::Resize();
}

void TImage::Loaded()
{
    inherited::Loaded();
    UpdateOpaque();
}

void TImage::SetCenter(bool Value)
{
    if (FCenter == Value)
        return;
    FCenter = Value;
    PictureChanged(this);
}

void TImage::SetStretch(bool Value)
{
    if (FStretch == Value)
        return;
    FStretch = Value;
    PictureChanged(this);
}

void TImage::SetProportional(bool Value)
{
    if (FProportional == Value)
        return;
    FProportional = Value;
    PictureChanged(this);
}

void TImage::SetTransparent(bool Value)
{
    if (FTransparent == Value)
        return;
    FTransparent = Value;
    PictureChanged(this);
}

int TImage::AccessibleRole() const
{
    return ROLE_SYSTEM_GRAPHIC;
}

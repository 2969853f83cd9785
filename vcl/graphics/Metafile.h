// TMetafile: a picture made of recorded drawing operations (Windows enhanced metafile).
#pragma once

#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/Graphic.h"
#include "vcl/graphics/Handle.h"

#include <memory>

class TMetafile : public TGraphic {
    VCL_CLASS(TMetafile, TGraphic)
public:
    TMetafile();
    ~TMetafile() override;

    // A TMetafile: shares its picture. nullptr empties the metafile.
    void Assign(TPersistent* Source) override;

    bool GetEmpty() const override { return !FImage; }
    // In pixels of the screen. Setting them on an empty metafile is for a TMetafileCanvas to come; otherwise the
    // picture is drawn at the new size.
    int GetHeight() const override { return FHeight; }
    void SetHeight(int Value) override;
    int GetWidth() const override { return FWidth; }
    void SetWidth(int Value) override;
    bool GetTransparent() const override { return true; }
    void SetTransparent(bool) override {}
    // In hundredths of a millimetre.
    int GetMMWidth() const;
    PROPERTY_READ(int, MMWidth);
    int GetMMHeight() const;
    PROPERTY_READ(int, MMHeight);

    // Stays the metafile's. Setting one gives it to the metafile.
    HENHMETAFILE GetHandle() const;
    void SetHandle(HENHMETAFILE Value);
    PROPERTY(HENHMETAFILE, Handle);

    // Enhanced metafiles, and placeable ones of the older kind, which are converted. Raises EInvalidGraphic "Metafile
    // is not valid".
    void LoadFromStream(TStream* Stream) override;
    // As an enhanced metafile.
    void SaveToStream(TStream* Stream) override;

protected:
    void Draw(TCanvas* Canvas, const TRect& R) override;

private:
    std::shared_ptr<TMetafileHandle> FImage; // nullptr: empty
    int FWidth = 0;
    int FHeight = 0;
};

// Records what is drawn on it; the metafile gets the picture when the canvas is destroyed.
class TMetafileCanvas : public TCanvas {
    VCL_CLASS(TMetafileCanvas, TCanvas)
public:
    // ReferenceDevice: nullptr for the screen. The metafile stays the caller's and outlives the canvas.
    TMetafileCanvas(TMetafile* Metafile, HDC ReferenceDevice);
    ~TMetafileCanvas() override;

private:
    TMetafile* FMetafile;
};

// TGraphic: a picture of any kind.
#pragma once

#include "vcl/classes/Persistent.h"
#include "vcl/graphics/Types.h"

class TCanvas;
class TStream;

class TGraphic : public TPersistent {
    VCL_CLASS(TGraphic, TPersistent)
public:
    // No picture: it draws nothing.
    virtual bool GetEmpty() const = 0;
    PROPERTY_READ(bool, Empty);
    // In pixels. Setting raises EInvalidGraphicOperation where the picture has a fixed size.
    virtual int GetHeight() const = 0;
    virtual void SetHeight(int Value) = 0;
    PROPERTY(int, Height);
    virtual int GetWidth() const = 0;
    virtual void SetWidth(int Value) = 0;
    PROPERTY(int, Width);
    // Whether Draw leaves the picture's background alone.
    virtual bool GetTransparent() const { return FTransparent; }
    virtual void SetTransparent(bool Value);
    PROPERTY(bool, Transparent);
    // The picture's, or nullptr.
    virtual HPALETTE GetPalette() { return nullptr; }
    virtual void SetPalette(HPALETTE) {}
    PROPERTY(HPALETTE, Palette);
    // Changed since it was last set to false. Setting true raises OnChange.
    bool GetModified() const { return FModified; }
    void SetModified(bool Value);
    PROPERTY(bool, Modified);

    // Bad contents raise EInvalidGraphic and leave the picture as it was.
    virtual void LoadFromStream(TStream* Stream) = 0;
    virtual void SaveToStream(TStream* Stream) = 0;
    virtual void LoadFromFile(const AnsiString& FileName);
    virtual void SaveToFile(const AnsiString& FileName);

    // The same class and the same contents.
    virtual bool Equals(TGraphic* Graphic);
    // "Data": the picture as it stands in a form file.
    void DefineProperties(TFiler& Filer) override;
    // The same as a form file's TPicture holds after the class name.
    virtual void ReadData(TStream* Stream) { LoadFromStream(Stream); }
    virtual void WriteData(TStream* Stream) { SaveToStream(Stream); }

    TNotifyEvent OnChange;

protected:
    friend class TCanvas;

    TGraphic() = default;
    // Into R of the canvas, stretched. Only called when the picture is not empty.
    virtual void Draw(TCanvas* Canvas, const TRect& R) = 0;
    virtual void Changed(TObject* Sender);
    // What Draw draws on. The canvas's font, pen and brush need not be selected there.
    static HDC Context(TCanvas* Canvas);

private:
    bool FModified = false;
    bool FTransparent = false;
};

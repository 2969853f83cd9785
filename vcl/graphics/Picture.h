// TPicture: a property that holds a graphic of any class.
#pragma once

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Icon.h"
#include "vcl/graphics/Metafile.h"

#include <memory>
#include <vector>

// A class of graphics and how to make one.
struct TGraphicClass {
    TClass Class;
    std::unique_ptr<TGraphic> (*Create)();
};
template <class T>
TGraphicClass GraphicClass()
{
    return {T::StaticClass(), []() -> std::unique_ptr<TGraphic> { return std::make_unique<T>(); }};
}

class TPicture : public TPersistent {
    VCL_CLASS(TPicture, TPersistent)
public:
    TPicture();
    ~TPicture() override;

    // A TPicture or a TGraphic, copied; nullptr empties the picture.
    void Assign(TPersistent* Source) override;

    // The picture's own, or nullptr. Setting copies.
    TGraphic* GetGraphic() const { return FGraphic.get(); }
    void SetGraphic(TGraphic* Value);
    PROPERTY(TGraphic*, Graphic);
    // The graphic as one of these; a picture that holds another class is emptied and gets a new one.
    TBitmap* GetBitmap();
    void SetBitmap(TBitmap* Value) { SetGraphic(Value); }
    PROPERTY(TBitmap*, Bitmap);
    TIcon* GetIcon();
    void SetIcon(TIcon* Value) { SetGraphic(Value); }
    PROPERTY(TIcon*, Icon);
    TMetafile* GetMetafile();
    void SetMetafile(TMetafile* Value) { SetGraphic(Value); }
    PROPERTY(TMetafile*, Metafile);
    // 0 without a graphic.
    int GetWidth() const { return FGraphic ? FGraphic->GetWidth() : 0; }
    PROPERTY_READ(int, Width);
    int GetHeight() const { return FGraphic ? FGraphic->GetHeight() : 0; }
    PROPERTY_READ(int, Height);

    // The class is chosen by the extension: bmp, ico, emf, wmf and what was registered. Raises EInvalidGraphic "Unknown
    // picture file extension (.%s)".
    void LoadFromFile(const AnsiString& FileName);
    void SaveToFile(const AnsiString& FileName);

    // Makes a class known to LoadFromFile and to form files. The extension is given without its point; later
    // registrations come first.
    static void RegisterFileFormat(const AnsiString& Extension, const AnsiString& Description,
                                   const TGraphicClass& Class);
    static void RegisterClass(const TGraphicClass& Class) { RegisterFileFormat("", "", Class); }
    static void UnregisterGraphicClass(TClass Class);
    // The filter text of a file dialog for Class and its descendants.
    static AnsiString GraphicFilter(TClass Class = TGraphic::StaticClass());

    // "Data": the class's name as a short string, and the graphic's data. Data of an unknown class is kept and written
    // back unchanged until the picture is changed.
    void DefineProperties(TFiler& Filer) override;
    // The class whose data is only kept; empty when there is none.
    const AnsiString& GetUnknownClass() const { return FUnknownClass; }

    TNotifyEvent OnChange;

protected:
    virtual void Changed(TObject* Sender);

private:
    template <class T>
    T* ForceType();
    void Take(std::unique_ptr<TGraphic> Graphic);
    bool HasData(TFiler& Filer) const;
    void ReadData(TStream* Stream);
    void WriteData(TStream* Stream);

    std::unique_ptr<TGraphic> FGraphic;
    AnsiString FUnknownClass;
    std::vector<uint8_t> FUnknownData;
};

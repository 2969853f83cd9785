#include "vcl/graphics/Picture.h"

#include "vcl/classes/Filer.h"
#include "vcl/graphics/GraphicStream.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Ident.h"

namespace {

struct TFileFormat {
    AnsiString Extension;
    AnsiString Description;
    TGraphicClass Class;
};

// The last registered comes first.
std::vector<TFileFormat>& FileFormats()
{
    static std::vector<TFileFormat>& Formats = *new std::vector<TFileFormat>{
        {"emf", "Enhanced Metafiles", GraphicClass<TMetafile>()},
        {"wmf", "Metafiles", GraphicClass<TMetafile>()},
        {"ico", "Icons", GraphicClass<TIcon>()},
        {"bmp", "Bitmaps", GraphicClass<TBitmap>()},
    };
    return Formats;
}

std::unique_ptr<TGraphic> CreateByName(std::string_view ClassName)
{
    for (const TFileFormat& Format : FileFormats())
        if (SameIdent(Format.Class.Class->ClassName(), ClassName))
            return Format.Class.Create();
    return nullptr;
}

std::unique_ptr<TGraphic> CreateByFileName(const AnsiString& FileName)
{
    size_t Dot = FileName.find_last_of("./\\:");
    AnsiString Extension;
    if (Dot != AnsiString::npos && FileName[Dot] == '.')
        Extension = FileName.substr(Dot + 1);
    for (const TFileFormat& Format : FileFormats())
        if (!Format.Extension.empty() && SameIdent(Format.Extension, Extension))
            return Format.Class.Create();
    throw EInvalidGraphic("Unknown picture file extension (." + Extension + ")");
}

// Of the same class as Source, so that it can be assigned.
std::unique_ptr<TGraphic> CreateLike(TGraphic* Source)
{
    for (TClass Class = Source->ClassType(); Class; Class = Class->ClassParent())
        for (const TFileFormat& Format : FileFormats())
            if (Format.Class.Class == Class)
                return Format.Class.Create();
    throw EInvalidGraphic("Class " + AnsiString(Source->ClassName()) + " is not registered with TPicture");
}

} // namespace

void TPicture::Describe(TClassBuilder<TPicture>&)
{}

TPicture::TPicture() = default;

TPicture::~TPicture()
{
    if (FGraphic)
        FGraphic->OnChange = nullptr;
}

void TPicture::Changed(TObject*)
{
    FUnknownClass.clear();
    FUnknownData.clear();
    OnChange(this);
}

void TPicture::Take(std::unique_ptr<TGraphic> Graphic)
{
    if (FGraphic)
        FGraphic->OnChange = nullptr;
    // The old one lives until everybody knows of the new one.
    std::swap(FGraphic, Graphic);
    if (FGraphic)
        FGraphic->OnChange = {this, &TPicture::Changed};
    Changed(this);
}

void TPicture::Assign(TPersistent* Source)
{
    if (!Source) {
        SetGraphic(nullptr);
    } else if (auto* Picture = As<TPicture>(Source)) {
        SetGraphic(Picture->GetGraphic());
        FUnknownClass = Picture->FUnknownClass;
        FUnknownData = Picture->FUnknownData;
    } else if (auto* Graphic = As<TGraphic>(Source)) {
        SetGraphic(Graphic);
    } else {
        inherited::Assign(Source);
    }
}

void TPicture::SetGraphic(TGraphic* Value)
{
    if (Value && Value == FGraphic.get())
        return;
    std::unique_ptr<TGraphic> Graphic;
    if (Value) {
        Graphic = CreateLike(Value);
        Graphic->Assign(Value);
    }
    Take(std::move(Graphic));
}

template <class T>
T* TPicture::ForceType()
{
    if (!As<T>(FGraphic.get()))
        Take(std::make_unique<T>());
    return static_cast<T*>(FGraphic.get());
}

TBitmap* TPicture::GetBitmap()
{
    return ForceType<TBitmap>();
}

TIcon* TPicture::GetIcon()
{
    return ForceType<TIcon>();
}

TMetafile* TPicture::GetMetafile()
{
    return ForceType<TMetafile>();
}

void TPicture::LoadFromFile(const AnsiString& FileName)
{
    std::unique_ptr<TGraphic> Graphic = CreateByFileName(FileName);
    Graphic->LoadFromFile(FileName);
    Take(std::move(Graphic));
}

void TPicture::SaveToFile(const AnsiString& FileName)
{
    if (FGraphic)
        FGraphic->SaveToFile(FileName);
}

void TPicture::RegisterFileFormat(const AnsiString& Extension, const AnsiString& Description,
                                  const TGraphicClass& Class)
{
    FileFormats().insert(FileFormats().begin(), {Extension, Description, Class});
}

void TPicture::UnregisterGraphicClass(TClass Class)
{
    std::erase_if(FileFormats(), [&](const TFileFormat& Format) { return Format.Class.Class->InheritsFrom(Class); });
}

AnsiString TPicture::GraphicFilter(TClass Class)
{
    AnsiString All;
    AnsiString Each;
    for (const TFileFormat& Format : FileFormats()) {
        if (Format.Extension.empty() || !Format.Class.Class->InheritsFrom(Class))
            continue;
        AnsiString Pattern = "*." + Format.Extension;
        for (std::string_view Part : {"|", Format.Description.c_str(), " (", Pattern.c_str(), ")|", Pattern.c_str()})
            Each += Part;
        if (!All.empty())
            All += ';';
        All += Pattern;
    }
    return All.empty() ? All : "All (" + All + ")|" + All + Each;
}

// --- Form files ----------------------------------------------------------------------------------

bool TPicture::HasData(TFiler& Filer) const
{
    auto* Ancestor = As<TPicture>(Filer.GetAncestor());
    if (!Ancestor)
        return FGraphic || !FUnknownClass.empty();
    if (FUnknownClass != Ancestor->FUnknownClass || FUnknownData != Ancestor->FUnknownData)
        return true;
    return FGraphic ? !FGraphic->Equals(Ancestor->GetGraphic()) : Ancestor->GetGraphic() != nullptr;
}

void TPicture::DefineProperties(TFiler& Filer)
{
    inherited::DefineProperties(Filer);
    Filer.DefineBinaryProperty("Data", {this, &TPicture::ReadData}, {this, &TPicture::WriteData}, HasData(Filer));
}

void TPicture::ReadData(TStream* Stream)
{
    uint8_t Size = 0;
    Stream->ReadBuffer(&Size, sizeof Size);
    AnsiString ClassName(Size, 0);
    Stream->ReadBuffer(ClassName.data(), Size);
    std::unique_ptr<TGraphic> Graphic = CreateByName(ClassName);
    if (Graphic) {
        Graphic->ReadData(Stream);
        Take(std::move(Graphic));
        return;
    }
    std::vector<uint8_t> Data = ReadToEnd(Stream);
    Take(nullptr);
    FUnknownClass = std::move(ClassName);
    FUnknownData = std::move(Data);
}

void TPicture::WriteData(TStream* Stream)
{
    AnsiString ClassName = FGraphic ? FGraphic->ClassName() : FUnknownClass;
    auto Size = static_cast<uint8_t>(ClassName.size());
    Stream->WriteBuffer(&Size, sizeof Size);
    Stream->WriteBuffer(ClassName.data(), Size);
    if (FGraphic)
        FGraphic->WriteData(Stream);
    else
        WriteBytes(Stream, FUnknownData);
}

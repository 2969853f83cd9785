#include "vcl/graphics/Graphic.h"

#include "vcl/classes/FileStream.h"
#include "vcl/classes/Filer.h"
#include "vcl/classes/MemoryStream.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/system/ClassBuilder.h"

void TGraphic::Describe(TClassBuilder<TGraphic>&)
{}

void TGraphic::SetTransparent(bool Value)
{
    if (FTransparent == Value)
        return;
    FTransparent = Value;
    Changed(this);
}

void TGraphic::SetModified(bool Value)
{
    if (Value)
        Changed(this);
    else
        FModified = false;
}

void TGraphic::Changed(TObject*)
{
    FModified = true;
    OnChange(this);
}

HDC TGraphic::Context(TCanvas* Canvas)
{
    return Canvas->RequireHandle();
}

void TGraphic::LoadFromFile(const AnsiString& FileName)
{
    TFileStream Stream(FileName, fmOpenRead | fmShareDenyWrite);
    LoadFromStream(&Stream);
}

void TGraphic::SaveToFile(const AnsiString& FileName)
{
    TFileStream Stream(FileName, fmCreate);
    SaveToStream(&Stream);
}

bool TGraphic::Equals(TGraphic* Graphic)
{
    if (!Graphic || Graphic->ClassType() != ClassType())
        return false;
    if (GetEmpty() || Graphic->GetEmpty())
        return GetEmpty() == Graphic->GetEmpty();
    TMemoryStream Mine;
    TMemoryStream Other;
    WriteData(&Mine);
    Graphic->WriteData(&Other);
    return Mine.View() == Other.View();
}

void TGraphic::DefineProperties(TFiler& Filer)
{
    inherited::DefineProperties(Filer);
    auto* Ancestor = As<TGraphic>(Filer.GetAncestor());
    bool HasData = Ancestor ? !Equals(Ancestor) : !GetEmpty();
    Filer.DefineBinaryProperty("Data", {this, &TGraphic::ReadData}, {this, &TGraphic::WriteData}, HasData);
}

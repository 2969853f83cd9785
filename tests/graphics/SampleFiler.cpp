#include "tests/graphics/SampleFiler.h"

std::map<std::string, TBytes> TSampleFiler::Write(TPersistent& Object, TPersistent* Ancestor)
{
    TSampleFiler Filer;
    Filer.SetAncestor(Ancestor);
    Object.DefineProperties(Filer);
    return Filer.FValues;
}

void TSampleFiler::Read(TPersistent& Object, const std::map<std::string, TBytes>& Values)
{
    TSampleFiler Filer;
    Filer.FReading = true;
    Filer.FValues = Values;
    Object.DefineProperties(Filer);
}

void TSampleFiler::DefineBinaryProperty(const char* Name, const TStreamProc& ReadData, const TStreamProc& WriteData,
                                        bool HasData)
{
    TMemoryStream Stream;
    if (FReading) {
        auto Found = FValues.find(Name);
        if (Found == FValues.end())
            return;
        Stream.WriteBuffer(Found->second.data(), static_cast<int64_t>(Found->second.size()));
        Stream.Position = 0;
        ReadData(&Stream);
    } else if (HasData) {
        WriteData(&Stream);
        std::string_view View = Stream.View();
        FValues[Name] = {View.begin(), View.end()};
    }
}

#include "tests/support/FormText.h"

#include "vcl/classes/Component.h"
#include "vcl/classes/FormConvert.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/StringStream.h"
#include "vcl/classes/Writer.h"
#include "vcl/system/ClassDescription.h"

namespace {

std::string SetText(const TTypeInfo& Type, int64_t Bits)
{
    std::string Text;
    for (size_t I = 0; I < Type.Names.size(); ++I)
        if (Bits >> I & 1)
            Text += (Text.empty() ? "" : ",") + std::string(Type.Names[I]);
    return "[" + Text + "]";
}

std::string DefaultText(const TPropertyInfo& Property)
{
    const TTypeInfo& Type = *Property.Type;
    if (Type.Kind == tkSet)
        return SetText(Type, Property.Default);
    if (Type.Kind == tkEnumeration)
        return std::string(Type.Names.at(static_cast<size_t>(Property.Default)));
    std::string Ident;
    if (Property.Idents && Property.Idents->IntToIdent(Property.Default, Ident))
        return Ident;
    return std::to_string(Property.Default);
}

} // namespace

std::string FormText(TComponent* Component)
{
    TMemoryStream Binary;
    WriteComponent(Binary, Component);
    std::string Text;
    FormBinaryToText(Binary.View(), Text);
    std::erase(Text, '\r');
    return Text;
}

void ReadFormText(TComponent* Component, std::string_view Text)
{
    std::string Binary;
    FormTextToBinary(Text, Binary);
    TStringStream Stream(std::move(Binary));
    ReadRootComponent(Stream, Component);
}

std::vector<std::string> PublishedFrom(const TMetaClass* Class, std::string_view First)
{
    std::vector<std::string> Result;
    for (const TPropertyInfo* Property : Class->Description().Properties()) {
        if (Result.empty() && Property->Name != First)
            continue;
        Result.push_back(Property->Name);
        if (Property->HasDefault)
            Result.back() += " = " + DefaultText(*Property);
    }
    return Result;
}

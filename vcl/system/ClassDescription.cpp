#include "vcl/system/ClassDescription.h"

#include "vcl/system/Ident.h"

#include <algorithm>

namespace {
bool BeforeNumber(const TMessageInfo& Entry, uint32_t Number)
{
    return Entry.Msg < Number;
}
} // namespace

TClassDescription::TClassDescription(const TClassDescription* Parent) : FParent(Parent)
{
    if (Parent) {
        FPublished = Parent->FPublished;
        FMessages = Parent->FMessages;
    }
}

TPropertyInfo& TClassDescription::AddProperty(const TPropertyInfo& Property)
{
    TPropertyInfo& Added = FOwn.emplace_back(Property);
    if (!Property.Published)
        return Added;
    auto Place = std::find_if(FPublished.begin(), FPublished.end(),
                              [&](const TPropertyInfo* Other) { return SameIdent(Other->Name, Added.Name); });
    if (Place == FPublished.end())
        FPublished.push_back(&Added);
    else
        *Place = &Added;
    return Added;
}

TPropertyInfo& TClassDescription::Republish(const char* Name)
{
    const TPropertyInfo* Declared = FindDeclared(Name);
    if (!Declared)
        throw EPropertyError("Property " + AnsiString(Name) + " is published but was never declared");
    TPropertyInfo Copy = *Declared;
    Copy.Published = true;
    return AddProperty(Copy);
}

const TPropertyInfo* TClassDescription::FindDeclared(std::string_view Name) const
{
    for (const TClassDescription* Class = this; Class; Class = Class->FParent)
        for (const TPropertyInfo& Property : Class->FOwn)
            if (SameIdent(Property.Name, Name))
                return &Property;
    return nullptr;
}

void TClassDescription::AddMessage(const TMessageInfo& Message)
{
    auto Place = std::lower_bound(FMessages.begin(), FMessages.end(), Message.Msg, BeforeNumber);
    if (Place != FMessages.end() && Place->Msg == Message.Msg)
        *Place = Message;
    else
        FMessages.insert(Place, Message);
}

void TClassDescription::Seal()
{
    FPropertyIndex.Reset(FPublished.size());
    for (const TPropertyInfo* Property : FPublished)
        FPropertyIndex.Add(*Property);
    FFieldIndex.Reset(FFields.size());
    for (const TFieldInfo& Field : FFields)
        FFieldIndex.Add(Field);
    FMethodIndex.Reset(FMethods.size());
    for (const TMethodInfo& Method : FMethods)
        FMethodIndex.Add(Method);
}

const TPropertyInfo* TClassDescription::FindProperty(std::string_view Name) const
{
    return FPropertyIndex.Find(Name);
}

const TFieldInfo* TClassDescription::FindField(std::string_view Name) const
{
    for (const TClassDescription* Class = this; Class; Class = Class->FParent)
        if (const TFieldInfo* Field = Class->FFieldIndex.Find(Name))
            return Field;
    return nullptr;
}

const TMethodInfo* TClassDescription::FindMethod(std::string_view Name) const
{
    for (const TClassDescription* Class = this; Class; Class = Class->FParent)
        if (const TMethodInfo* Method = Class->FMethodIndex.Find(Name))
            return Method;
    return nullptr;
}

const char* TClassDescription::MethodName(uintptr_t Code) const
{
    for (const TClassDescription* Class = this; Class; Class = Class->FParent)
        for (const TMethodInfo& Method : Class->FMethods)
            if (Method.Code == Code)
                return Method.Name;
    return nullptr;
}

const TMessageInfo* TClassDescription::FindMessage(uint32_t Msg) const
{
    auto Found = std::lower_bound(FMessages.begin(), FMessages.end(), Msg, BeforeNumber);
    return Found != FMessages.end() && Found->Msg == Msg ? &*Found : nullptr;
}

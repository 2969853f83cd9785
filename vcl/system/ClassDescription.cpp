#include "vcl/system/ClassDescription.h"

#include "vcl/system/Ident.h"

#include <algorithm>
#include <bit>

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
    FByName.assign(std::bit_ceil(FPublished.size() * 2 + 1), nullptr);
    for (const TPropertyInfo* Property : FPublished) {
        size_t Slot = IdentHash(Property->Name) & (FByName.size() - 1);
        while (FByName[Slot])
            Slot = (Slot + 1) & (FByName.size() - 1);
        FByName[Slot] = Property;
    }
}

const TPropertyInfo* TClassDescription::FindProperty(std::string_view Name) const
{
    for (size_t Slot = IdentHash(Name) & (FByName.size() - 1); FByName[Slot]; Slot = (Slot + 1) & (FByName.size() - 1))
        if (SameIdent(FByName[Slot]->Name, Name))
            return FByName[Slot];
    return nullptr;
}

const TFieldInfo* TClassDescription::FindField(std::string_view Name) const
{
    for (const TClassDescription* Class = this; Class; Class = Class->FParent)
        for (const TFieldInfo& Field : Class->FFields)
            if (SameIdent(Field.Name, Name))
                return &Field;
    return nullptr;
}

const TMethodInfo* TClassDescription::FindMethod(std::string_view Name) const
{
    for (const TClassDescription* Class = this; Class; Class = Class->FParent)
        for (const TMethodInfo& Method : Class->FMethods)
            if (SameIdent(Method.Name, Name))
                return &Method;
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

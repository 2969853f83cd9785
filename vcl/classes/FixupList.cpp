#include "vcl/classes/FixupList.h"

#include "vcl/classes/FormError.h"
#include "vcl/system/ClassDescription.h"
#include "vcl/system/Ident.h"

#include <algorithm>

namespace {

std::vector<TFindGlobalComponent>& Finders()
{
    static std::vector<TFindGlobalComponent> Procs;
    return Procs;
}

std::string_view RootNameOf(const TFixup& Fixup)
{
    return std::string_view(Fixup.Name).substr(0, Fixup.Name.find('.'));
}

bool WaitsFor(const TFixup& Fixup, const TComponent* Root, std::string_view RootName)
{
    return Fixup.Instance && Fixup.InstanceRoot == Root && (RootName.empty() || SameIdent(RootNameOf(Fixup), RootName));
}

TComponent* FindInAnyRoot(std::string_view Name)
{
    size_t Dot = Name.find('.');
    TComponent* Root = FindGlobalComponent(Name.substr(0, Dot));
    return Dot == Name.npos ? Root : FindNestedComponent(Root, Name.substr(Dot + 1));
}

} // namespace

void TFixup::Resolve(TComponent* Value) const
{
    AnsiString Place = Instance->GetNamePath() + "." + Property->Name;
    const char* ClassName = Property->Type->Class->ClassName();
    if (!Value->InheritsFrom(Property->Type->Class))
        throw EFormDataError(
            "Error reading " + Place + ": " + Name + " is a " + Value->ClassName() + ", not a " + ClassName, Offset);
    try {
        Property->SetObject(Instance, Value);
    } catch (const EAbort&) {
        throw;
    } catch (const Exception& Error) {
        throw EFormDataError("Error reading " + Place + ": " + Error.Message, Offset);
    }
}

TFixupList::TFixupList() : FNext(FFirst)
{
    FFirst = this;
}

TFixupList::~TFixupList()
{
    Clear();
    TFixupList** Link = &FFirst;
    while (*Link != this)
        Link = &(*Link)->FNext;
    *Link = FNext;
}

void TFixupList::Add(TFixup Fixup)
{
    FItems.push_back(std::move(Fixup));
    ++FPending;
}

void TFixupList::Clear()
{
    FPending -= FItems.size();
    FItems.clear();
}

void TFixupList::Compact()
{
    FPending -= std::erase_if(FItems, [](const TFixup& Fixup) { return !Fixup.Instance; });
}

void TFixupList::ForgetInstance(const TPersistent* Instance)
{
    for (TFixupList* List = FFirst; List; List = List->FNext)
        for (TFixup& Fixup : List->FItems)
            if (Fixup.Instance == Instance)
                Fixup.Instance = nullptr;
}

TFixupList& GlobalFixups()
{
    // Never deleted: components may be deleted after all static objects.
    static auto* List = new TFixupList;
    return *List;
}

TComponent* FindNestedComponent(TComponent* Root, std::string_view NamePath)
{
    if (!Root || NamePath.empty())
        return nullptr;
    if (TComponent* Found = Root->FindComponent(NamePath))
        return Found;
    if (SameIdent(NamePath, Root->GetName()) || SameIdent(NamePath, "Owner"))
        return Root;
    size_t Dot = NamePath.find('.');
    if (Dot == NamePath.npos)
        return nullptr;
    std::string_view Head = NamePath.substr(0, Dot);
    TComponent* Inner = SameIdent(Head, Root->GetName()) ? Root : Root->FindComponent(Head);
    return FindNestedComponent(Inner, NamePath.substr(Dot + 1));
}

void RegisterFindGlobalComponentProc(TFindGlobalComponent Proc)
{
    Finders().push_back(Proc);
}

void UnregisterFindGlobalComponentProc(TFindGlobalComponent Proc)
{
    std::erase(Finders(), Proc);
}

TComponent* FindGlobalComponent(std::string_view Name)
{
    auto& Procs = Finders();
    for (size_t I = Procs.size(); I-- > 0;)
        if (TComponent* Found = Procs[I](Name))
            return Found;
    return nullptr;
}

void GlobalFixupReferences()
{
    TFixupList& List = GlobalFixups();
    // By index, as setting a property may load another form, which changes the list.
    for (size_t I = 0; I < List.Items().size(); ++I) {
        TFixup& Waiting = List.Items()[I];
        TComponent* Value = Waiting.Instance ? FindInAnyRoot(Waiting.Name) : nullptr;
        if (!Value)
            continue;
        TFixup Fixup = Waiting;
        Waiting.Instance = nullptr;
        Fixup.Resolve(Value);
    }
    List.Compact();
}

std::vector<AnsiString> GetFixupReferenceNames(const TComponent* Root)
{
    std::vector<AnsiString> Names;
    for (const TFixup& Fixup : GlobalFixups().Items()) {
        AnsiString Name(RootNameOf(Fixup));
        if (WaitsFor(Fixup, Root, {}) && std::find(Names.begin(), Names.end(), Name) == Names.end())
            Names.push_back(std::move(Name));
    }
    return Names;
}

void RemoveFixupReferences(const TComponent* Root, std::string_view RootName)
{
    for (TFixup& Fixup : GlobalFixups().Items())
        if (WaitsFor(Fixup, Root, RootName))
            Fixup.Instance = nullptr;
    GlobalFixups().Compact();
}

void RedirectFixupReferences(const TComponent* Root, std::string_view OldRootName, std::string_view NewRootName)
{
    for (TFixup& Fixup : GlobalFixups().Items())
        if (WaitsFor(Fixup, Root, OldRootName))
            Fixup.Name.replace(0, RootNameOf(Fixup).size(), NewRootName);
}

void RemoveFixups(const TPersistent* Instance)
{
    for (TFixup& Fixup : GlobalFixups().Items())
        if (Fixup.Instance == Instance)
            Fixup.Instance = nullptr;
    GlobalFixups().Compact();
}

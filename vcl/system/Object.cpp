#include "vcl/system/Object.h"

#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Ident.h"

#include <algorithm>
#include <unordered_map>

constinit TMetaClass TObject::MetaClass{"TObject", nullptr, nullptr, nullptr};

// The classes by name. Registrations run before main in any order, so they only link themselves into a list; the table
// is built from it when a name is first asked for.
class TClassRegistry {
public:
    static void Add(TMetaClass& Class)
    {
        Class.FNextRegistered = First;
        First = &Class;
    }

    static TClass Find(std::string_view Name)
    {
        Collect();
        auto Found = Table().find(Name);
        return Found == Table().end() ? nullptr : Found->second;
    }

    static void AddAlias(TClass Class, std::string_view Alias)
    {
        Collect();
        static std::deque<AnsiString> Names;
        Table().insert_or_assign(Names.emplace_back(Alias), Class);
    }

    static std::vector<TClass> All()
    {
        Collect();
        std::vector<TClass> Classes;
        for (const auto& [Name, Class] : Table())
            if (Name == Class->ClassName())
                Classes.push_back(Class);
        std::sort(Classes.begin(), Classes.end(),
                  [](TClass A, TClass B) { return std::string_view(A->ClassName()) < B->ClassName(); });
        return Classes;
    }

private:
    struct THash {
        size_t operator()(std::string_view Name) const { return IdentHash(Name); }
    };
    struct TEqual {
        bool operator()(std::string_view A, std::string_view B) const { return SameIdent(A, B); }
    };
    using TTable = std::unordered_map<std::string_view, TClass, THash, TEqual>;

    static TTable& Table()
    {
        static TTable Classes;
        return Classes;
    }

    static void Collect()
    {
        for (; First; First = First->FNextRegistered)
            Table().try_emplace(First->ClassName(), First);
    }

    static constinit inline TMetaClass* First = nullptr;
};

TClassRegistration::TClassRegistration(TMetaClass& Class)
{
    TClassRegistry::Add(Class);
}

TClass GetClass(std::string_view Name)
{
    return TClassRegistry::Find(Name);
}

TClass FindClass(std::string_view Name)
{
    if (TClass Class = GetClass(Name))
        return Class;
    throw EClassNotFound("Class " + AnsiString(Name) + " not found");
}

std::vector<TClass> RegisteredClasses()
{
    return TClassRegistry::All();
}

void RegisterClassAlias(TClass Class, std::string_view Alias)
{
    TClassRegistry::AddAlias(Class, Alias);
}

bool TMetaClass::InheritsFrom(TClass Ancestor) const
{
    for (TClass Class = this; Class; Class = Class->FParent)
        if (Class == Ancestor)
            return true;
    return false;
}

TComponent* TMetaClass::Create(TComponent* Owner) const
{
    if (!FCreate)
        Detail::RaiseNotCreatable(this);
    return FCreate(Owner);
}

const TClassDescription& TMetaClass::BuildDescription() const
{
    auto* Description = new TClassDescription(FParent ? &FParent->Description() : nullptr);
    if (FDescribe)
        FDescribe(*Description);
    Description->Seal();
    FDescription = Description; // lives as long as the program
    return *FDescription;
}

void Detail::RaiseNotCreatable(TClass Class)
{
    throw EInvalidOperation("Class " + AnsiString(Class->ClassName()) + " cannot be created by name");
}

void TObject::DispatchAs(TClass Class, TMessage& Message)
{
    if (const TMessageInfo* Entry = Class->Description().FindMessage(Message.Msg))
        Entry->Handler(this, Message);
    else
        DefaultHandler(Message);
}

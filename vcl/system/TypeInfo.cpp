#include "vcl/system/TypeInfo.h"

#include "vcl/system/Ident.h"

int64_t TTypeInfo::ValueOf(std::string_view Ident) const
{
    for (size_t I = 0; I < Names.size(); ++I)
        if (SameIdent(Names[I], Ident))
            return static_cast<int64_t>(I);
    return -1;
}

// "bvNone, bvLowered" as the preprocessor spells a list of plain enumerators.
std::vector<std::string_view> Detail::SplitEnumNames(const char* List)
{
    std::vector<std::string_view> Names;
    std::string_view Rest = List;
    while (!Rest.empty()) {
        size_t Comma = Rest.find(',');
        std::string_view Name = Rest.substr(0, Comma);
        Rest = Comma == std::string_view::npos ? std::string_view() : Rest.substr(Comma + 1);
        Name.remove_prefix(std::min(Name.find_first_not_of(" \n\t"), Name.size()));
        Name = Name.substr(0, Name.find_last_not_of(" \n\t") + 1);
        if (!Name.empty())
            Names.push_back(Name);
    }
    return Names;
}

TTypeInfo Detail::BoolTypeInfo()
{
    return {.Kind = tkEnumeration, .Name = "Boolean", .MaxValue = 1, .Names = {"False", "True"}};
}

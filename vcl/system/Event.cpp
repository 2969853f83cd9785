#include "vcl/system/Event.h"

// Compilers differ: "... [Signature = void (TObject *, int)]", "... [with Signature = void(TObject*, int); ...]".
AnsiString Detail::CutSignature(std::string_view FunctionName)
{
    constexpr std::string_view Before = "Signature = ";
    const size_t Start = FunctionName.find(Before);
    if (Start == FunctionName.npos)
        return AnsiString(FunctionName);
    FunctionName.remove_prefix(Start + Before.size());
    AnsiString Text(FunctionName.substr(0, FunctionName.find_first_of(";]")));
    for (const std::string_view Blank : {" (", " *", " &"})
        for (size_t Place = 0; (Place = Text.find(Blank, Place)) != Text.npos;)
            Text.erase(Place, 1);
    return Text;
}

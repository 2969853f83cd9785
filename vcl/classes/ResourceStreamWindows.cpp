#include "vcl/classes/ResourceStream.h"

#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

void TResourceStream::Describe(TClassBuilder<TResourceStream>&)
{}

TResourceStream::TResourceStream(void* Instance, const AnsiString& ResName, const AnsiString& ResType)
{
    const auto Module = static_cast<HMODULE>(Instance);
    // Names of the form #n are numbers for FindResourceW too.
    const HRSRC Info = FindResourceW(Module, TWideText(ResName).c_str(), TWideText(ResType).c_str());
    const HGLOBAL Resource = Info ? LoadResource(Module, Info) : nullptr;
    if (!Resource)
        throw EResNotFound("Resource " + ResName + " not found");
    SetPointer(LockResource(Resource), static_cast<int64_t>(SizeofResource(Module, Info)));
}

TResourceStream::TResourceStream(void* Instance, int ResID, const AnsiString& ResType)
    : TResourceStream(Instance, "#" + std::to_string(ResID), ResType)
{}

int TResourceStream::Write(const void*, int)
{
    throw EStreamError("Can't write to a read-only resource stream");
}

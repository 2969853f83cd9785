#include "vcl/stdctrls/TypeAhead.h"

#include "vcl/system/WindowsApi.h"

namespace {

constexpr uint64_t PauseMilliseconds = 500;

} // namespace

const TWideString& TTypeAhead::Type(char16_t Character)
{
    uint64_t Now = GetTickCount64();
    if (Now - FLast >= PauseMilliseconds)
        FTyped.clear();
    FLast = Now;
    FTyped += static_cast<TWideChar>(Character);
    return FTyped;
}

#include "vcl/graphics/GraphicErrors.h"

#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

void RaiseOutOfResources()
{
    wchar_t Text[256];
    DWORD Error = GetLastError();
    DWORD Size = Error == 0 ? 0
                            : FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, Error,
                                             0, Text, static_cast<DWORD>(std::size(Text)), nullptr);
    while (Size > 0 && (Text[Size - 1] == '\r' || Text[Size - 1] == '\n' || Text[Size - 1] == ' '))
        --Size;
    throw EOutOfResources(Size ? FromWide({Text, Size}) : "Out of system resources");
}

void RaiseInvalidGraphic(const char* Message)
{
    throw EInvalidGraphic(Message);
}

void RaiseInvalidOperation(const char* Message)
{
    throw EInvalidGraphicOperation(Message);
}

#include "vcl/system/ShowError.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

void ShowError(std::string_view Text)
{
    MessageBoxW(nullptr, TWideText(Text).c_str(), nullptr, MB_OK | MB_ICONERROR | MB_TASKMODAL);
}

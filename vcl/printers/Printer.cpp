#include "vcl/printers/Printer.h"

#include "vcl/system/ClassBuilder.h"
#include "vcl/system/LiveCount.h"

#include <memory>
#include <winspool.h>

void TPrinter::Describe(TClassBuilder<TPrinter>&)
{}

TPrinter::~TPrinter()
{
    FreeHandle();
}

HDC TPrinter::GetHandle()
{
    if (FHandle)
        return FHandle;
    wchar_t Name[MAX_PATH];
    DWORD Size = MAX_PATH;
    if (GetDefaultPrinterW(Name, &Size))
        FHandle = CreateICW(L"WINSPOOL", Name, nullptr, nullptr);
    if (!FHandle)
        throw EPrinter("There is no default printer currently selected");
    CountLiveHandle(+1);
    return FHandle;
}

void TPrinter::FreeHandle()
{
    if (!FHandle)
        return;
    DeleteDC(FHandle);
    FHandle = nullptr;
    CountLiveHandle(-1);
}

TPrinter* Printer()
{
    static const auto Shared = std::make_unique<TPrinter>();
    return Shared.get();
}

// TPrinter: the printer that documents go to.
#pragma once

#include "vcl/system/Object.h"
#include "vcl/system/WindowsApi.h"

// There is no printer, or it does not answer.
VCL_EXCEPTION(EPrinter, Exception);

class TPrinter : public TObject {
    VCL_CLASS(TPrinter, TObject)
public:
    TPrinter() = default;
    ~TPrinter() override;

    // An information context of the user's default printer, to ask for fonts and measures. It stays the printer's.
    // Raises EPrinter "There is no default printer currently selected".
    HDC GetHandle();
    PROPERTY_READ(HDC, Handle);
    // Gives the context back; the next use asks for the default printer anew.
    void FreeHandle();

private:
    HDC FHandle = nullptr;
};

// The one that the program shares, made on first use.
TPrinter* Printer();

// TSavedContext: a device context that is at the end of the block what it was at its beginning.
#pragma once

#include "vcl/system/WindowsApi.h"

class TSavedContext {
public:
    explicit TSavedContext(HDC DC) : FDC(DC), FSaved(SaveDC(DC)) {}
    ~TSavedContext() { RestoreDC(FDC, FSaved); }
    TSavedContext(const TSavedContext&) = delete;

private:
    HDC FDC;
    int FSaved;
};

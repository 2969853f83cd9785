// The typefaces of a device, as font lists show them.
#pragma once

#include "vcl/system/Object.h"
#include "vcl/system/Set.h"
#include "vcl/system/TypeInfo.h"
#include "vcl/system/WindowsApi.h"

#include <vector>

VCL_ENUM(TFontDevice, fdScreen, fdPrinter, fdBoth);
// What a face must be to be listed; all that are set apply. foOEMFontsOnly excludes the fonts of foAnsiOnly and
// foNoOEMFonts: with one of them nothing is left.
VCL_ENUM(TFontListOption, foAnsiOnly, foTrueTypeOnly, foFixedPitchOnly, foNoOEMFonts, foOEMFontsOnly, foScalableOnly);
using TFontListOptions = Set<TFontListOption>;

struct TFontFace {
    AnsiString Name;
    DWORD Type; // the system's RASTER_FONTTYPE, DEVICE_FONTTYPE and TRUETYPE_FONTTYPE
};

// Each face once, however often the system reports it, as the first device has it. A printer that is not there has
// none.
std::vector<TFontFace> ListFontFaces(TFontDevice Device, TFontListOptions Options);

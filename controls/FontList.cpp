#include "controls/FontList.h"

#include "vcl/printers/Printer.h"
#include "vcl/system/Guard.h"
#include "vcl/system/SysUtils.h"
#include "vcl/system/Utf.h"

#include <unordered_set>

namespace {

bool Accepts(TFontListOption Option, const LOGFONTW& Font, DWORD Type)
{
    switch (Option) {
    case foAnsiOnly: return Font.lfCharSet == ANSI_CHARSET;
    case foTrueTypeOnly: return (Type & TRUETYPE_FONTTYPE) != 0;
    case foFixedPitchOnly: return (Font.lfPitchAndFamily & FIXED_PITCH) != 0;
    case foNoOEMFonts: return Font.lfCharSet < OEM_CHARSET;
    case foOEMFontsOnly: return Font.lfCharSet == OEM_CHARSET;
    case foScalableOnly: return (Type & RASTER_FONTTYPE) == 0;
    }
    return true;
}

class TFaceCollector {
public:
    explicit TFaceCollector(TFontListOptions Options) : FOptions(Options) {}

    void AddFacesOf(HDC Device) { EnumFontsW(Device, nullptr, &Collect, reinterpret_cast<LPARAM>(this)); }

    std::vector<TFontFace> Faces;

private:
    static int CALLBACK Collect(const LOGFONTW* Font, const TEXTMETRICW*, DWORD Type, LPARAM Collector)
    {
        Guarded(nullptr, [&] { reinterpret_cast<TFaceCollector*>(Collector)->Add(*Font, Type); });
        return 1;
    }

    void Add(const LOGFONTW& Font, DWORD Type)
    {
        for (int Option = foAnsiOnly; Option <= foScalableOnly; ++Option)
            if (const auto Each = static_cast<TFontListOption>(Option);
                FOptions.Contains(Each) && !Accepts(Each, Font, Type))
                return;
        AnsiString Name = FromWide(Font.lfFaceName);
        if (FNames.insert(AnsiUpperCase(Name)).second)
            Faces.push_back({std::move(Name), Type});
    }

    TFontListOptions FOptions;
    std::unordered_set<AnsiString> FNames; // in capitals
};

} // namespace

std::vector<TFontFace> ListFontFaces(TFontDevice Device, TFontListOptions Options)
{
    TFaceCollector Collector(Options);
    if (Device != fdPrinter) {
        HDC Screen = GetDC(nullptr);
        Collector.AddFacesOf(Screen);
        ReleaseDC(nullptr, Screen);
    }
    if (Device != fdScreen) {
        try {
            Collector.AddFacesOf(Printer()->Handle);
        } catch (const Exception&) {
            // No printer has no fonts.
        }
    }
    return std::move(Collector.Faces);
}

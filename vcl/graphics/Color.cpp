#include "vcl/graphics/Color.h"

#include "vcl/system/Ident.h"

#include <charconv>
#include <cstdio>
#include <span>

namespace {

struct TNamedColor {
    const char* Name;
    TColor Value;
};

#define NAMED(Color) {#Color, Color}
// The first name of a value is the one that is written.
constexpr TNamedColor NamedColors[] = {
    NAMED(clBlack),
    NAMED(clMaroon),
    NAMED(clGreen),
    NAMED(clOlive),
    NAMED(clNavy),
    NAMED(clPurple),
    NAMED(clTeal),
    NAMED(clGray),
    NAMED(clSilver),
    NAMED(clRed),
    NAMED(clLime),
    NAMED(clYellow),
    NAMED(clBlue),
    NAMED(clFuchsia),
    NAMED(clAqua),
    NAMED(clWhite),
    NAMED(clMoneyGreen),
    NAMED(clSkyBlue),
    NAMED(clCream),
    NAMED(clMedGray),
    NAMED(clActiveBorder),
    NAMED(clActiveCaption),
    NAMED(clAppWorkSpace),
    NAMED(clBackground),
    NAMED(clBtnFace),
    NAMED(clBtnHighlight),
    NAMED(clBtnShadow),
    NAMED(clBtnText),
    NAMED(clCaptionText),
    NAMED(clDefault),
    NAMED(clGradientActiveCaption),
    NAMED(clGradientInactiveCaption),
    NAMED(clGrayText),
    NAMED(clHighlight),
    NAMED(clHighlightText),
    NAMED(clHotLight),
    NAMED(clInactiveBorder),
    NAMED(clInactiveCaption),
    NAMED(clInactiveCaptionText),
    NAMED(clInfoBk),
    NAMED(clInfoText),
    NAMED(clMenu),
    NAMED(clMenuBar),
    NAMED(clMenuHighlight),
    NAMED(clMenuText),
    NAMED(clNone),
    NAMED(clScrollBar),
    NAMED(cl3DDkShadow),
    NAMED(cl3DLight),
    NAMED(clWindow),
    NAMED(clWindowFrame),
    NAMED(clWindowText),
};
#undef NAMED

// Read, never written.
constexpr TNamedColor OtherNames[] = {{"clLtGray", clLtGray}, {"clDkGray", clDkGray}};

// System colours are negative; older programs and files have $80000000 in place of $FF000000.
COLORREF ResolveSystemColor(TColor Color)
{
    return Color < 0 ? GetSysColor(Color & 0xFF) : static_cast<COLORREF>(Color);
}

TColorResolver Resolver = ResolveSystemColor;

bool ParseNumber(std::string_view Text, int64_t& Value)
{
    int Base = 10;
    bool Negative = false;
    if (Text.starts_with('-')) {
        Negative = true;
        Text.remove_prefix(1);
    }
    if (Text.starts_with('$')) {
        Base = 16;
        Text.remove_prefix(1);
    } else if (Text.starts_with("0x") || Text.starts_with("0X")) {
        Base = 16;
        Text.remove_prefix(2);
    }
    uint32_t Number = 0;
    auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Number, Base);
    if (Error != std::errc() || End != Text.data() + Text.size())
        return false;
    Value = Negative ? -static_cast<int64_t>(Number) : static_cast<int64_t>(Number);
    return true;
}

} // namespace

const TIdentMap ColorIdents = {&IdentToColor, &ColorToIdent};

COLORREF ColorToRGB(TColor Color)
{
    return Resolver(Color);
}

TColorResolver SetColorResolver(TColorResolver NewResolver)
{
    return std::exchange(Resolver, NewResolver);
}

int ScalePixels(int Pixels)
{
    return Pixels;
}

AnsiString ColorToString(TColor Color)
{
    AnsiString Name;
    if (ColorToIdent(Color, Name))
        return Name;
    char Number[16];
    std::snprintf(Number, sizeof Number, "$%08X", static_cast<unsigned>(Color));
    return Number;
}

TColor StringToColor(const AnsiString& Text)
{
    int64_t Value = 0;
    if (!IdentToColor(Text, Value) && !ParseNumber(Text, Value))
        throw EConvertError("'" + Text + "' is not a valid integer value");
    return TColor(static_cast<int32_t>(Value));
}

bool ColorToIdent(int64_t Color, AnsiString& Ident)
{
    for (const TNamedColor& Named : NamedColors)
        if (Named.Value == static_cast<int32_t>(Color)) {
            Ident = Named.Name;
            return true;
        }
    return false;
}

bool IdentToColor(std::string_view Ident, int64_t& Color)
{
    auto Find = [&](std::span<const TNamedColor> Table) {
        for (const TNamedColor& Named : Table)
            if (SameIdent(Named.Name, Ident)) {
                Color = Named.Value;
                return true;
            }
        return false;
    };
    return Find(NamedColors) || Find(OtherNames);
}

void GetColorValues(const TEvent<void(const AnsiString& Name)>& Proc)
{
    for (const TNamedColor& Named : NamedColors)
        Proc(Named.Name);
}

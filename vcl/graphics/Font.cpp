#include "vcl/graphics/Font.h"

#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Ident.h"
#include "vcl/system/Utf.h"

#include <cstring>

namespace {

struct TNamedCharset {
    const char* Name;
    uint8_t Value;
};

constexpr TNamedCharset NamedCharsets[] = {
    {"ANSI_CHARSET", ANSI_CHARSET},
    {"DEFAULT_CHARSET", DEFAULT_CHARSET},
    {"SYMBOL_CHARSET", SYMBOL_CHARSET},
    {"MAC_CHARSET", MAC_CHARSET},
    {"SHIFTJIS_CHARSET", SHIFTJIS_CHARSET},
    {"HANGEUL_CHARSET", HANGEUL_CHARSET},
    {"JOHAB_CHARSET", JOHAB_CHARSET},
    {"GB2312_CHARSET", GB2312_CHARSET},
    {"CHINESEBIG5_CHARSET", CHINESEBIG5_CHARSET},
    {"GREEK_CHARSET", GREEK_CHARSET},
    {"TURKISH_CHARSET", TURKISH_CHARSET},
    {"VIETNAMESE_CHARSET", VIETNAMESE_CHARSET},
    {"HEBREW_CHARSET", HEBREW_CHARSET},
    {"ARABIC_CHARSET", ARABIC_CHARSET},
    {"BALTIC_CHARSET", BALTIC_CHARSET},
    {"RUSSIAN_CHARSET", RUSSIAN_CHARSET},
    {"THAI_CHARSET", THAI_CHARSET},
    {"EASTEUROPE_CHARSET", EASTEUROPE_CHARSET},
    {"OEM_CHARSET", OEM_CHARSET},
};

void PutFaceName(TFontKey& Key, TWideView Name)
{
    std::memset(Key.lfFaceName, 0, sizeof Key.lfFaceName);
    Name.copy(Key.lfFaceName, LF_FACESIZE - 1);
}

TFontKey MakeDefaultKey()
{
    TFontKey Key{};
    Key.lfHeight = -MulDiv(8, ScreenPixelsPerInch(), 72);
    Key.lfWeight = FW_NORMAL;
    Key.lfCharSet = DEFAULT_CHARSET;
    PutFaceName(Key, L"MS Sans Serif");
    return Key;
}

bool HasFace(const wchar_t* Name)
{
    TFontHandle Font(CreateFontW(0, 0, 0, 0, 0, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, Name));
    TMemoryDC Context(CreateCompatibleDC(nullptr));
    HGDIOBJ Old = SelectObject(Context.Get(), Font.Get());
    wchar_t Found[LF_FACESIZE] = {};
    GetTextFaceW(Context.Get(), LF_FACESIZE, Found);
    SelectObject(Context.Get(), Old);
    return lstrcmpiW(Found, Name) == 0;
}

// The bitmap font has the letters of one code page only; where the system has the outline font of the same look and
// size, that one takes its place.
const wchar_t* ShownFace(const wchar_t* Name)
{
    if (lstrcmpiW(Name, L"MS Sans Serif") != 0)
        return Name;
    static const bool HasOutlines = HasFace(L"Microsoft Sans Serif");
    return HasOutlines ? L"Microsoft Sans Serif" : Name;
}

// Kept, so that making a font with default values only counts a reference.
const TSharedFont& DefaultFont()
{
    static const TSharedFont& Font = *new TSharedFont(TSharedFont::Keep(MakeDefaultKey()));
    return Font;
}

} // namespace

const TIdentMap CharsetIdents = {&IdentToCharset, &CharsetToIdent};

bool CharsetToIdent(int64_t Charset, AnsiString& Ident)
{
    for (const TNamedCharset& Named : NamedCharsets)
        if (Named.Value == Charset) {
            Ident = Named.Name;
            return true;
        }
    return false;
}

bool IdentToCharset(std::string_view Ident, int64_t& Charset)
{
    for (const TNamedCharset& Named : NamedCharsets)
        if (SameIdent(Named.Name, Ident)) {
            Charset = Named.Value;
            return true;
        }
    return false;
}

int ScreenPixelsPerInch()
{
    static const int Value = [] {
        HDC Screen = GetDC(nullptr);
        int Found = GetDeviceCaps(Screen, LOGPIXELSY);
        ReleaseDC(nullptr, Screen);
        return Found;
    }();
    return Value;
}

bool operator==(const TFontKey& A, const TFontKey& B)
{
    return std::memcmp(&A, &B, sizeof A) == 0;
}

size_t TFontKind::Hash(const TFontKey& Key)
{
    return std::hash<std::string_view>()({reinterpret_cast<const char*>(&Key), sizeof Key});
}

HFONT TFontKind::Create(const TFontKey& Key)
{
    TFontKey Shown = Key;
    PutFaceName(Shown, ShownFace(Key.lfFaceName));
    return CreateFontIndirectW(&Shown);
}

void TFont::Describe(TClassBuilder<TFont>& Class)
{
    Class.Property<&Self::GetCharset, &Self::SetCharset>("Charset");
    Class.Property<&Self::GetColor, &Self::SetColor>("Color");
    Class.Property<&Self::GetHeight, &Self::SetHeight>("Height");
    Class.Property<&Self::GetName, &Self::SetName>("Name");
    Class.Property<&Self::GetPitch, &Self::SetPitch>("Pitch").Default(fpDefault);
    Class.Property<&Self::GetSize, &Self::SetSize>("Size").NotStored();
    Class.Property<&Self::GetStyle, &Self::SetStyle>("Style");
}

TFont::TFont() : FShared(DefaultFont()), FPixelsPerInch(ScreenPixelsPerInch())
{}

void TFont::Assign(TPersistent* Source)
{
    auto* Font = As<TFont>(Source);
    if (!Font) {
        TGraphicsObject::Assign(Source);
        return;
    }
    if (FShared == Font->FShared && FColor == Font->FColor && FPixelsPerInch == Font->FPixelsPerInch)
        return;
    TSharedFont Old = std::exchange(FShared, Font->FShared);
    FColor = Font->FColor;
    if (FPixelsPerInch != Font->FPixelsPerInch && Font->FPixelsPerInch != 0) {
        TFontKey Key = FShared.Key();
        Key.lfHeight = MulDiv(Key.lfHeight, FPixelsPerInch, Font->FPixelsPerInch);
        FShared = TSharedFont(Key);
    }
    Changed();
}

// Applies one change to a copy of the value, and tells about it when it made a difference.
template <class Change>
void TFont::Modify(Change&& Apply)
{
    TFontKey Key = FShared.Key();
    Apply(Key);
    if (Key == FShared.Key())
        return;
    // What a canvas has selected is let go of in Changed.
    TSharedFont Old = std::exchange(FShared, TSharedFont(Key));
    Changed();
}

void TFont::SetHandle(HFONT Value)
{
    TFontKey Key{};
    LOGFONTW Found{};
    if (FShared.Handle() == Value || !::GetObjectW(Value, sizeof Found, &Found))
        return;
    // What follows the name's terminating zero may be anything.
    PutFaceName(Key, Found.lfFaceName);
    std::memcpy(&Key, &Found, offsetof(LOGFONTW, lfFaceName));
    TSharedFont Old = std::exchange(FShared, TSharedFont::Adopt(Key, Value));
    Changed();
}

void TFont::SetCharset(TFontCharset Value)
{
    Modify([&](TFontKey& Key) { Key.lfCharSet = Value.Value; });
}

void TFont::SetColor(TColor Value)
{
    if (FColor == Value)
        return;
    FColor = Value;
    Changed();
}

void TFont::SetHeight(int Value)
{
    Modify([&](TFontKey& Key) { Key.lfHeight = Value; });
}

AnsiString TFont::GetName() const
{
    return FromWide(FShared.Key().lfFaceName);
}

void TFont::SetName(const AnsiString& Value)
{
    if (Value.empty())
        return;
    TWideText Name(Value);
    Modify([&](TFontKey& Key) { PutFaceName(Key, {Name.c_str(), Name.size()}); });
}

TFontPitch TFont::GetPitch() const
{
    switch (FShared.Key().lfPitchAndFamily & 3) {
    case FIXED_PITCH: return fpFixed;
    case VARIABLE_PITCH: return fpVariable;
    default: return fpDefault;
    }
}

void TFont::SetPitch(TFontPitch Value)
{
    constexpr BYTE Pitches[] = {DEFAULT_PITCH, VARIABLE_PITCH, FIXED_PITCH};
    if (Value <= fpFixed)
        Modify([&](TFontKey& Key) {
            Key.lfPitchAndFamily = static_cast<BYTE>((Key.lfPitchAndFamily & ~3) | Pitches[Value]);
        });
}

int TFont::GetSize() const
{
    return -MulDiv(GetHeight(), 72, FPixelsPerInch);
}

void TFont::SetSize(int Value)
{
    SetHeight(-MulDiv(Value, FPixelsPerInch, 72));
}

TFontStyles TFont::GetStyle() const
{
    const TFontKey& Key = FShared.Key();
    TFontStyles Style;
    if (Key.lfWeight >= FW_BOLD)
        Style << fsBold;
    if (Key.lfItalic)
        Style << fsItalic;
    if (Key.lfUnderline)
        Style << fsUnderline;
    if (Key.lfStrikeOut)
        Style << fsStrikeOut;
    return Style;
}

void TFont::SetStyle(TFontStyles Value)
{
    Modify([&](TFontKey& Key) {
        // A weight that was set through the handle stays as long as it means the same.
        if (Value.Contains(fsBold) != (Key.lfWeight >= FW_BOLD))
            Key.lfWeight = Value.Contains(fsBold) ? FW_BOLD : FW_NORMAL;
        Key.lfItalic = Value.Contains(fsItalic);
        Key.lfUnderline = Value.Contains(fsUnderline);
        Key.lfStrikeOut = Value.Contains(fsStrikeOut);
    });
}

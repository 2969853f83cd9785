// TFont: typeface, size, style and colour of text.
#pragma once

#include "vcl/graphics/Color.h"
#include "vcl/graphics/GraphicsObject.h"
#include "vcl/graphics/SharedHandle.h"

VCL_ENUM(TFontPitch, fpDefault, fpVariable, fpFixed);
VCL_ENUM(TFontStyle, fsBold, fsItalic, fsUnderline, fsStrikeOut);
using TFontStyles = Set<TFontStyle>;

// A character set by its system number; form files name it ("DEFAULT_CHARSET").
struct TFontCharset {
    constexpr TFontCharset(int Number = 0) : Value(static_cast<uint8_t>(Number)) {}
    constexpr operator int() const { return Value; }

    uint8_t Value;
};
bool CharsetToIdent(int64_t Charset, AnsiString& Ident);
bool IdentToCharset(std::string_view Ident, int64_t& Charset);
extern const TIdentMap CharsetIdents;
INTEGER_IDENTS(TFontCharset, CharsetIdents)

// The value that fonts share a handle by. Unused bytes are zero.
struct TFontKey : LOGFONTW {
    friend bool operator==(const TFontKey& A, const TFontKey& B);
};

struct TFontKind {
    using TKey = TFontKey;
    using THandle = HFONT;
    static constexpr size_t IdleLimit = 64;
    static size_t Hash(const TFontKey& Key);
    static HFONT Create(const TFontKey& Key);
};
using TSharedFont = TSharedHandle<TFontKind>;

class TFont : public TGraphicsObject {
    VCL_CLASS(TFont, TGraphicsObject)
public:
    // "MS Sans Serif", 8 points, the default character set, clWindowText.
    TFont();

    // Copies all of another font; the size in points stays when the resolutions differ.
    void Assign(TPersistent* Source) override;

    // Shared with fonts of the same value: good until this font changes, and never to be deleted. A handle that is set
    // is owned by the font from then on, its values become the font's, the colour stays.
    HFONT GetHandle() const { return FShared.Handle(); }
    void SetHandle(HFONT Value);
    PROPERTY(HFONT, Handle);

    TFontCharset GetCharset() const { return FShared.Key().lfCharSet; }
    void SetCharset(TFontCharset Value);
    PROPERTY(TFontCharset, Charset);
    TColor GetColor() const { return FColor; }
    void SetColor(TColor Value);
    PROPERTY(TColor, Color);
    // In pixels: negative, the height of the characters; positive, that of the line.
    int GetHeight() const { return FShared.Key().lfHeight; }
    void SetHeight(int Value);
    PROPERTY(int, Height);
    // The typeface. Names of more than 31 UTF-16 units are cut.
    AnsiString GetName() const;
    void SetName(const AnsiString& Value);
    PROPERTY(AnsiString, Name);
    TFontPitch GetPitch() const;
    void SetPitch(TFontPitch Value);
    PROPERTY(TFontPitch, Pitch);
    // In points at PixelsPerInch.
    int GetSize() const;
    void SetSize(int Value);
    PROPERTY(int, Size);
    TFontStyles GetStyle() const;
    void SetStyle(TFontStyles Value);
    PROPERTY(TFontStyles, Style);

    // The resolution that Size is converted with; the screen's unless set. Changing it leaves Height alone.
    int GetPixelsPerInch() const { return FPixelsPerInch; }
    void SetPixelsPerInch(int Value) { FPixelsPerInch = Value; }
    PROPERTY(int, PixelsPerInch);

private:
    template <class Change>
    void Modify(Change&& Apply);

    TSharedFont FShared;
    TColor FColor = clWindowText;
    int FPixelsPerInch;
};

// The screen's pixels per logical inch.
int ScreenPixelsPerInch();

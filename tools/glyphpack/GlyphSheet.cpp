#include "tools/glyphpack/GlyphSheet.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace {

bool IsIdentifier(const std::string& Text)
{
    const auto IsWordCharacter = [](unsigned char C) { return C < 128 && (std::isalnum(C) || C == '_'); };
    return !Text.empty() && !std::isdigit(static_cast<unsigned char>(Text[0])) &&
           std::all_of(Text.begin(), Text.end(), IsWordCharacter);
}

class TSheetReader {
public:
    TSheetReader(std::istream& ASource, const std::string& AFileName) : Source(ASource), FileName(AFileName) {}

    TGlyphSheet Read()
    {
        std::string Text;
        while (NextLine(Text))
            ReadDirective(Text);
        if (Sheet.Glyphs.empty())
            Fail("no glyph in the file");
        return std::move(Sheet);
    }

private:
    [[noreturn]] void Fail(const std::string& Message) const { throw EGlyphError(FileName, Line, Message); }

    // The next line that is not a comment, without the blanks at its end. False at the end of the file.
    bool NextLine(std::string& Text)
    {
        while (std::getline(Source, Text)) {
            ++Line;
            Text.erase(Text.find_last_not_of(" \t\r") + 1);
            if (Text.empty() || Text[0] != ';')
                return true;
        }
        return false;
    }

    void ReadDirective(const std::string& Text)
    {
        std::istringstream Stream(Text);
        std::vector<std::string> Words;
        for (std::string Word; Stream >> Word;)
            Words.push_back(Word);
        if (Words.empty())
            return;
        const std::string& Name = Words[0];
        const size_t Expected = Name == "columns" || Name == "glyph" ? 1 : 2;
        const bool Known = Name == "color" || Name == "transparent" || Name == "size" || Name == "columns" ||
                           Name == "hotspot" || Name == "enum" || Name == "glyph";
        if (!Known)
            Fail("unknown word '" + Name + "'");
        if (Words.size() != Expected + 1)
            Fail("'" + Name + "' takes " + std::to_string(Expected) + (Expected == 1 ? " value" : " values"));
        if (Name == "color" || Name == "transparent")
            ReadColor(Words[1], Words[2], Name == "transparent");
        else if (Name == "size") {
            Width = ReadNumber(Words[1], 1, 256);
            Height = ReadNumber(Words[2], 1, 256);
        } else if (Name == "columns")
            Sheet.Columns = ReadNumber(Words[1], 1, 1000);
        else if (Name == "hotspot") {
            HotX = ReadNumber(Words[1], 0, 255);
            HotY = ReadNumber(Words[2], 0, 255);
        } else if (Name == "enum") {
            Sheet.EnumName = ReadIdentifier(Words[1]);
            Sheet.EnumPrefix = ReadIdentifier(Words[2]);
        } else
            ReadGlyph(ReadIdentifier(Words[1]));
    }

    void ReadColor(const std::string& Character, const std::string& Hex, bool AsTransparent)
    {
        const unsigned char C = static_cast<unsigned char>(Character[0]);
        if (Character.size() != 1 || C <= ' ' || C > '~' || C == ';')
            Fail("'" + Character + "' cannot stand for a colour: one visible ASCII character other than ';' can");
        if (Hex.size() != 6 || Hex.find_first_not_of("0123456789ABCDEFabcdef") != std::string::npos)
            Fail("'" + Hex + "' is no colour: six hexadecimal digits RRGGBB are");
        if (AsTransparent && Sheet.HasTransparent)
            Fail("there is a transparent character already: '" + std::string(1, TransparentCharacter) + "'");
        if (!Colors.emplace(Character[0], static_cast<TRgb>(std::stoul(Hex, nullptr, 16))).second)
            Fail("'" + Character + "' has a colour already");
        if (!AsTransparent)
            return;
        Sheet.HasTransparent = true;
        TransparentCharacter = Character[0];
        Sheet.Transparent = Colors[TransparentCharacter];
    }

    int ReadNumber(const std::string& Text, int Low, int High) const
    {
        const bool Digits = Text.size() <= 4 && Text.find_first_not_of("0123456789") == std::string::npos;
        const int Value = Digits ? std::stoi(Text) : -1;
        if (Value < Low || Value > High)
            Fail("'" + Text + "' is no number from " + std::to_string(Low) + " to " + std::to_string(High));
        return Value;
    }

    const std::string& ReadIdentifier(const std::string& Text) const
    {
        if (!IsIdentifier(Text))
            Fail("'" + Text + "' is no identifier");
        return Text;
    }

    void ReadGlyph(const std::string& Name)
    {
        TGlyph Glyph{Name, Line, Line, Width, Height, HotX, HotY, {}, {}};
        for (const TGlyph& Other : Sheet.Glyphs)
            if (Other.Name == Name)
                Fail("glyph '" + Name + "' is in line " + std::to_string(Other.Line) + " already");
        if (Width == 0)
            Fail("'size' must come before the first glyph");
        if (HotX >= Width || HotY >= Height)
            Fail("the hot spot is outside of glyph '" + Name + "'");
        std::string Row;
        for (int Y = 0; Y < Height; ++Y) {
            if (!NextLine(Row))
                Fail("the file ends inside glyph '" + Name + "'");
            ReadRow(Row, Glyph);
        }
        Glyph.LastLine = Line;
        Sheet.Glyphs.push_back(std::move(Glyph));
    }

    void ReadRow(const std::string& Row, TGlyph& Glyph) const
    {
        if (Row.size() != static_cast<size_t>(Width))
            Fail("a row of glyph '" + Glyph.Name + "' has " + std::to_string(Row.size()) + " characters instead of " +
                 std::to_string(Width));
        for (const char C : Row) {
            const auto Color = Colors.find(C);
            if (Color == Colors.end())
                Fail("'" + std::string(1, C) + "' in glyph '" + Glyph.Name + "' has no colour");
            if (C != TransparentCharacter && Color->second == Sheet.Transparent && Sheet.HasTransparent)
                Fail("'" + std::string(1, C) + "' has the transparent colour");
            Glyph.Pixels.push_back(Color->second);
            Glyph.Clear.push_back(C == TransparentCharacter);
        }
    }

    std::istream& Source;
    const std::string FileName;
    TGlyphSheet Sheet;
    std::map<char, TRgb> Colors;
    char TransparentCharacter = 0;
    int Line = 0;
    int Width = 0;
    int Height = 0;
    int HotX = 0;
    int HotY = 0;
};

} // namespace

TGlyphSheet ReadGlyphSheet(std::istream& Source, const std::string& FileName)
{
    return TSheetReader(Source, FileName).Read();
}

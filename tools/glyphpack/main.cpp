// glyphpack: makes bitmaps, icons and cursors from pixel art that is kept as text.

#include "tools/glyphpack/GlyphFiles.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>

namespace {

constexpr const char* Usage = "usage: glyphpack OUT.bmp IN.glyphs [OUT.h]\n"
                              "       glyphpack --icon OUT.ico IN.glyphs\n"
                              "       glyphpack --cursor OUT.cur IN.glyphs\n";

// A file that is not complete does not stay.
void WriteFile(const std::string& FileName, const std::string& Contents)
{
    std::ofstream File(FileName, std::ios::binary | std::ios::trunc);
    File << Contents;
    File.close();
    if (File)
        return;
    std::remove(FileName.c_str());
    throw std::runtime_error(FileName + ": cannot be written");
}

TGlyphSheet ReadFile(const std::string& FileName)
{
    std::ifstream File(FileName, std::ios::binary);
    if (!File)
        throw std::runtime_error(FileName + ": cannot be read");
    return ReadGlyphSheet(File, FileName);
}

void Pack(const std::string& Option, const std::string& Output, const std::string& Source, const std::string& Header)
{
    const TGlyphSheet Sheet = ReadFile(Source);
    // Everything is made before anything is written, so that a bad source leaves no output behind.
    const std::string HeaderText = Header.empty() ? std::string() : MakeHeader(Sheet, Source);
    const std::string Contents = Option == "--icon"     ? MakeIcon(Sheet)
                                 : Option == "--cursor" ? MakeCursor(Sheet)
                                                        : MakeStrip(Sheet, Source);
    WriteFile(Output, Contents);
    if (Header.empty())
        return;
    try {
        WriteFile(Header, HeaderText);
    } catch (const std::exception&) {
        std::remove(Output.c_str());
        throw;
    }
}

} // namespace

int main(int Count, char** Arguments)
{
    std::vector<std::string> Words(Arguments + 1, Arguments + Count);
    const bool HasOption = !Words.empty() && (Words[0] == "--icon" || Words[0] == "--cursor");
    const bool IsComplete = HasOption ? Words.size() == 3 : Words.size() == 2 || Words.size() == 3;
    if (!IsComplete || (!HasOption && Words[0].rfind("--", 0) == 0)) {
        std::cerr << Usage;
        return 1;
    }
    if (!HasOption)
        Words.insert(Words.begin(), "");
    Words.resize(4);
    try {
        Pack(Words[0], Words[1], Words[2], Words[3]);
    } catch (const std::exception& Error) {
        std::cerr << Error.what() << "\n";
        return 1;
    }
    return 0;
}

// On which line of a form's text the places of its binary form stand. The build makes such a map of each form and keeps
// it beside the form in the program, so that an error at run time can name the line.
#pragma once

#include "vcl/system/Object.h"

#include <cstddef>
#include <string>
#include <string_view>

class TFormLines {
public:
    // Data is what a TFormLinesBuilder has made, and must outlive this. Without it no line is known.
    explicit TFormLines(std::string_view Data = {}) : FData(Data) {}

    // " on line 3 of Main.dfm", for a byte of the binary form; empty when that is not known.
    AnsiString PlaceOf(std::size_t Offset) const;

private:
    std::string_view FData;
};

class TFormLinesBuilder {
public:
    // FileName is what the text is called in messages.
    explicit TFormLinesBuilder(std::string_view FileName);

    // What stands at Offset and behind it is from that line. In ascending order.
    void Add(std::size_t Offset, int Line);

    // The file's name and a line end; then for each change of the line how far the offset and the line have gone on.
    const std::string& Data() const { return FData; }

private:
    void Append(std::size_t Number);

    std::string FData;
    std::size_t FOffset = 0;
    int FLine = 0;
};

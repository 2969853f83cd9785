#include "vcl/classes/FormLines.h"

namespace {

// Seven bits in each byte, the low ones first; the highest bit says that more follow.
std::size_t TakeNumber(std::string_view& Data)
{
    std::size_t Number = 0;
    for (unsigned Shift = 0; !Data.empty() && Shift < 32; Shift += 7) {
        const auto Byte = static_cast<unsigned char>(Data.front());
        Data.remove_prefix(1);
        Number |= std::size_t{Byte & 0x7Fu} << Shift;
        if (Byte < 0x80)
            break;
    }
    return Number;
}

} // namespace

AnsiString TFormLines::PlaceOf(std::size_t Offset) const
{
    std::string_view Data = FData;
    const std::string_view FileName = Data.substr(0, Data.find('\n'));
    Data.remove_prefix(std::min(FileName.size() + 1, Data.size()));
    std::size_t Line = 0;
    std::size_t Place = 0;
    while (!Data.empty()) {
        Place += TakeNumber(Data);
        const std::size_t More = TakeNumber(Data);
        if (Place > Offset)
            break;
        Line += More;
    }
    return Line == 0 ? AnsiString() : " on line " + std::to_string(Line) + " of " + AnsiString(FileName);
}

TFormLinesBuilder::TFormLinesBuilder(std::string_view FileName) : FData(FileName)
{
    FData += '\n';
}

void TFormLinesBuilder::Add(std::size_t Offset, int Line)
{
    if (Line == FLine)
        return;
    Append(Offset - FOffset);
    Append(static_cast<std::size_t>(Line - FLine));
    FOffset = Offset;
    FLine = Line;
}

void TFormLinesBuilder::Append(std::size_t Number)
{
    for (; Number >= 0x80; Number >>= 7)
        FData += static_cast<char>(0x80 | (Number & 0x7F));
    FData += static_cast<char>(Number);
}

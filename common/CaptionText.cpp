#include "common/CaptionText.h"

namespace {

constexpr size_t MaxUnits = 255;

bool IsContinuation(char Byte)
{
    return (static_cast<unsigned char>(Byte) & 0xC0) == 0x80;
}

// Characters of four bytes are two units.
bool IsPair(char Lead)
{
    return static_cast<unsigned char>(Lead) >= 0xF0;
}

} // namespace

std::string_view ShownCaption(std::string_view Text)
{
    if (Text.size() <= MaxUnits) // no unit comes from less than a byte
        return Text;
    size_t Units = 0;
    for (size_t I = 0; I < Text.size(); ++I) {
        if (IsContinuation(Text[I]))
            continue;
        Units += IsPair(Text[I]) ? 2 : 1;
        if (Units > MaxUnits)
            return Text.substr(0, I);
    }
    return Text;
}

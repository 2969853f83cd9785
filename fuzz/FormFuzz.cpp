// Feeds the form converter with anything. Broken input must end in one of the two form errors; from whatever is
// accepted, text and binary must lead to each other and not change any more.
#include "vcl/classes/FormConvert.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

void Check(bool Condition)
{
    if (!Condition)
        std::abort();
}

// Text made by the printer: must be accepted, and its binary form must give the same text.
void CheckPrinted(const std::string& Text)
{
    std::string Binary;
    Check(FormTextToBinary(Text, Binary) == Text.size());
    std::string Again;
    Check(FormBinaryToText(Binary, Again) == Binary.size());
    Check(Again == Text);
}

void FuzzText(std::string_view Text)
{
    std::string Binary;
    try {
        Check(FormTextToBinary(Text, Binary) <= Text.size());
    } catch (const EFormTextError& Error) {
        Check(Error.Line >= 1 && !Error.Detail.empty() && Binary.empty());
        return;
    }
    // Every binary form that the compiler makes can be printed.
    std::string Printed;
    Check(FormBinaryToText(Binary, Printed) == Binary.size());
    CheckPrinted(Printed);
}

void FuzzBinary(std::string_view Binary)
{
    std::string Text;
    try {
        Check(FormBinaryToText(Binary, Text) <= Binary.size());
    } catch (const EFormDataError& Error) {
        Check(Error.Offset <= Binary.size() && !Error.Detail.empty() && Text.empty());
        return;
    }
    CheckPrinted(Text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    const std::string_view Input(reinterpret_cast<const char*>(Data), Size);
    if (FormFormat(Input) == sofBinary)
        FuzzBinary(Input);
    else
        FuzzText(Input);
    return 0;
}

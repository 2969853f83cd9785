#include "tools/formconv/Conversion.h"

#include "vcl/classes/FormConvert.h"
#include "vcl/classes/FormLines.h"

#include <algorithm>

namespace {

// The form alone, in binary.
std::string BinaryFromText(std::string_view Text, TFormLinesBuilder* Lines)
{
    std::string Binary;
    const std::size_t Used = FormTextToBinary(Text, Binary, Lines);
    if (Used < Text.size()) {
        const auto Line = 1 + std::count(Text.begin(), Text.begin() + static_cast<std::ptrdiff_t>(Used), '\n');
        throw EFormTextError("More text follows the form", static_cast<int>(Line));
    }
    return Binary;
}

// The size of the form and what stands before it. Zeros may follow; resource compilers fill up with them.
std::size_t TextFromBinary(std::string_view Binary, std::string& Text, std::string_view LineEnd)
{
    const std::size_t Used = FormBinaryToText(Binary, Text, {LineEnd});
    const std::size_t More = Binary.find_first_not_of('\0', Used);
    if (More != std::string_view::npos)
        throw EFormDataError("More data follows the form", More);
    return Used;
}

std::string Convert(std::string_view Input, TFormTarget Target, std::string_view LineEnd, TFormLinesBuilder& Lines)
{
    std::string Text;
    std::string Binary;
    if (FormFormat(Input) == sofBinary) {
        const std::size_t Used = TextFromBinary(Input, Text, LineEnd);
        const std::size_t Header = ResourceHeaderSize(Input);
        Binary = Input.substr(Header, Used - Header);
    } else {
        Binary = BinaryFromText(Input, &Lines);
        if (Target == TFormTarget::Text)
            FormBinaryToText(Binary, Text, {LineEnd});
    }
    if (Target == TFormTarget::Text)
        return Text;
    return Target == TFormTarget::Resource ? AddResourceHeader(Binary) : Binary;
}

} // namespace

TConversionResult ConvertForm(std::string_view Input, const std::string& Name, TFormTarget Target,
                              std::string_view LineEnd)
{
    TConversionResult Result;
    try {
        TFormLinesBuilder Lines(Name.substr(Name.find_last_of("\\/") + 1));
        Result.Output = Convert(Input, Target, LineEnd, Lines);
        if (Target == TFormTarget::Binary)
            Result.Lines = Lines.Data();
        Result.Done = true;
    } catch (const EFormTextError& Error) {
        Result.Error = Name + ":" + std::to_string(Error.Line) + ": " + Error.Detail;
    } catch (const EFormDataError& Error) {
        Result.Error = Name + "@" + std::to_string(Error.Offset) + ": " + Error.Detail;
    } catch (const std::exception& Error) {
        Result.Error = Name + ": " + Error.what();
    }
    return Result;
}

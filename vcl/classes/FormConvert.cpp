#include "vcl/classes/FormConvert.h"

#include "vcl/classes/FormCompiler.h"
#include "vcl/classes/FormCursor.h"
#include "vcl/classes/Stream.h"

namespace {

// Runs Convert, which appends to Output and returns a size; takes back what was appended when it throws.
template <class TConvert>
std::size_t Complete(std::string& Output, TConvert Convert)
{
    const std::size_t Start = Output.size();
    try {
        return Convert();
    } catch (...) {
        Output.resize(Start);
        throw;
    }
}

std::string ReadRest(TStream& Input)
{
    std::string Data(static_cast<std::size_t>(std::max<int64_t>(Input.Size - Input.Position, 0)), 0);
    Input.ReadBuffer(Data.data(), static_cast<int64_t>(Data.size()));
    return Data;
}

template <class TConvert>
void ConvertStream(TStream& Input, TStream& Output, TConvert Convert)
{
    const int64_t Start = Input.Position;
    try {
        std::string Converted;
        const std::size_t Used = Convert(ReadRest(Input), Converted);
        Output.WriteBuffer(Converted.data(), static_cast<int64_t>(Converted.size()));
        Input.Position = Start + static_cast<int64_t>(Used);
    } catch (...) {
        Input.Position = Start;
        throw;
    }
}

} // namespace

std::size_t FormTextToBinary(std::string_view Text, std::string& Output, TFormLinesBuilder* Lines)
{
    return Complete(Output, [&] {
        Output.reserve(Output.size() + Text.size() * 3 / 4); // usually enough
        return TFormCompiler(Text, Output, Lines).Run();
    });
}

std::size_t FormBinaryToText(std::string_view Binary, std::string& Output, const TFormTextOptions& Options)
{
    return Complete(Output, [&] {
        const std::size_t Header = ResourceHeaderSize(Binary);
        Output.reserve(Output.size() + Binary.size() * 2); // usually enough
        TFormCursor Input(Binary.substr(Header), Header);
        TFormPrinter(Input, Output, Options).Run();
        return Input.Offset();
    });
}

TStreamOriginalFormat TestStreamFormat(TStream& Stream)
{
    constexpr int64_t Enough = 256;
    const int64_t Start = Stream.Position;
    std::string Data(Enough, 0);
    Data.resize(static_cast<std::size_t>(Stream.Read(Data.data(), Enough)));
    Stream.Position = Start;
    return FormFormat(Data);
}

void ObjectTextToBinary(TStream& Input, TStream& Output)
{
    ConvertStream(Input, Output,
                  [](std::string_view Text, std::string& Binary) { return FormTextToBinary(Text, Binary); });
}

void ObjectTextToResource(TStream& Input, TStream& Output)
{
    ConvertStream(Input, Output, [](std::string_view Text, std::string& Resource) {
        std::string Form;
        const std::size_t Used = FormTextToBinary(Text, Form);
        Resource = AddResourceHeader(Form);
        return Used;
    });
}

void ObjectBinaryToText(TStream& Input, TStream& Output)
{
    ConvertStream(Input, Output,
                  [](std::string_view Binary, std::string& Text) { return FormBinaryToText(Binary, Text); });
}

void ObjectResourceToText(TStream& Input, TStream& Output)
{
    ConvertStream(Input, Output, [](std::string_view Binary, std::string& Text) {
        if (ResourceHeaderSize(Binary) == 0)
            throw EFormDataError("A resource header is missing", 0);
        return FormBinaryToText(Binary, Text);
    });
}

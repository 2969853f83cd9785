#include "vcl/classes/FormFormat.h"

#include "vcl/classes/FormCursor.h"
#include "vcl/classes/FormLexer.h"
#include "vcl/classes/LittleEndian.h"

#include <algorithm>
#include <cstdint>
#include <limits>

using namespace std::literals;

namespace {

constexpr std::string_view Utf8Signature = "\xEF\xBB\xBF"sv;
constexpr std::string_view Header16 = "\xFF\x0A\x00"sv;                          // type 10, raw data
constexpr std::string_view EmptyHeader32 = "\x00\x00\x00\x00\x20\x00\x00\x00"sv; // opens every .res file
constexpr std::string_view TypeRawData32 = "\xFF\xFF\x0A\x00"sv;

// Checks that the form which follows the header is all there.
std::size_t HeaderEnd(const TFormCursor& Cursor, std::uint32_t FormSize)
{
    if (FormSize > Cursor.Remaining())
        Cursor.Fail("The resource is shorter than its header says");
    return Cursor.Position();
}

std::size_t Header16Size(std::string_view Data)
{
    TFormCursor Cursor(Data);
    Cursor.ReadBytes(Header16.size());
    if (Cursor.PeekByte() == 0xFF) // a number instead of a name
        Cursor.ReadBytes(3);
    else
        while (Cursor.ReadByte() != 0)
            ;
    Cursor.ReadBytes(2); // flags
    const auto FormSize = Cursor.ReadInteger<std::uint32_t>();
    return HeaderEnd(Cursor, FormSize);
}

std::size_t Header32Size(std::string_view Data)
{
    TFormCursor Cursor(Data);
    if (Data.starts_with(EmptyHeader32))
        Cursor.ReadBytes(32);
    const std::size_t Start = Cursor.Position();
    const auto FormSize = Cursor.ReadInteger<std::uint32_t>();
    const auto HeaderSize = Cursor.ReadInteger<std::uint32_t>();
    const std::size_t Read = Cursor.Position() - Start;
    if (HeaderSize < Read)
        Cursor.FailAt("The resource header is broken", Start + 4);
    Cursor.ReadBytes(HeaderSize - Read);
    return HeaderEnd(Cursor, FormSize);
}

bool HasHeader32(std::string_view Data)
{
    const std::size_t Start = Data.starts_with(EmptyHeader32) ? 32 : 0;
    return Data.size() >= Start + 12 && Data.substr(Start + 8, 4) == TypeRawData32;
}

} // namespace

TStreamOriginalFormat FormFormat(std::string_view Data)
{
    if (Data.starts_with(FormSignature) || Data.starts_with(Header16) || HasHeader32(Data))
        return sofBinary;
    const bool Utf8 = Data.starts_with(Utf8Signature);
    Data.remove_prefix(Utf8 ? Utf8Signature.size() : 0);
    Data.remove_prefix(std::min(Data.find_first_not_of(" \t\r\n"), Data.size()));
    for (const std::string_view Word : {"object"sv, "inherited"sv, "inline"sv})
        if (IsFormWord(Data.substr(0, Word.size()), Word))
            return Utf8 ? sofUTF8Text : sofText;
    return sofUnknown;
}

std::size_t ResourceHeaderSize(std::string_view Data)
{
    if (Data.starts_with(Header16))
        return Header16Size(Data);
    return HasHeader32(Data) ? Header32Size(Data) : 0;
}

std::string AddResourceHeader(std::string_view Form)
{
    TFormCursor Cursor(Form);
    Cursor.ReadSignature();
    Cursor.ReadPrefix();
    std::string Name(Cursor.ReadName());
    for (char& C : Name)
        C = static_cast<char>(C >= 'a' && C <= 'z' ? C - 'a' + 'A' : C);
    if (Form.size() > std::numeric_limits<std::uint32_t>::max())
        throw EWriteError("The form is too long for a resource");

    std::string Resource(Header16);
    Resource.append(Name).push_back('\0');
    Resource.append("\x30\x10"); // movable, pure, discardable: what the designers set
    char Size[4];
    StoreLittleEndian(Size, static_cast<std::uint32_t>(Form.size()));
    return Resource.append(Size, sizeof Size).append(Form);
}

#include "vcl/classes/StringStream.h"

#include "vcl/system/ClassBuilder.h"

#include <algorithm>
#include <utility>

void TStringStream::Describe(TClassBuilder<TStringStream>&)
{}

TStringStream::TStringStream(AnsiString Text)
{
    Take(std::move(Text));
}

AnsiString TStringStream::ReadString(int64_t Count)
{
    Count = std::clamp<int64_t>(Count, 0, std::max<int64_t>(GetSize() - FPosition, 0));
    AnsiString Text(static_cast<size_t>(Count), 0);
    ReadBuffer(Text.data(), Count);
    return Text;
}

void TStringStream::WriteString(std::string_view Text)
{
    WriteBuffer(Text.data(), static_cast<int64_t>(Text.size()));
}

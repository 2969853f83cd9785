#include "vcl/classes/MemoryStream.h"

#include "vcl/classes/FileStream.h"
#include "vcl/system/ClassBuilder.h"

#include <algorithm>
#include <cstring>
#include <utility>

void TMemoryStream::Describe(TClassBuilder<TMemoryStream>&)
{}

int TMemoryStream::Write(const void* Buffer, int Count)
{
    if (Count <= 0)
        return 0;
    const auto Start = static_cast<size_t>(FPosition);
    const size_t End = Start + static_cast<size_t>(Count);
    if (Start == FBytes.size())
        FBytes.append(static_cast<const char*>(Buffer), static_cast<size_t>(Count));
    else {
        FBytes.resize(std::max(FBytes.size(), End));
        std::memcpy(FBytes.data() + Start, Buffer, static_cast<size_t>(Count));
    }
    FPosition += Count;
    SetPointer(FBytes.data(), static_cast<int64_t>(FBytes.size()));
    return Count;
}

void TMemoryStream::SetSize(int64_t Value)
{
    Value = std::max<int64_t>(Value, 0);
    FBytes.resize(static_cast<size_t>(Value));
    FPosition = std::min(FPosition, Value);
    SetPointer(Value == 0 ? nullptr : FBytes.data(), Value);
}

void TMemoryStream::Clear()
{
    Take({});
}

void TMemoryStream::LoadFromStream(TStream* Stream)
{
    Stream->Position = 0;
    std::string Bytes(static_cast<size_t>(Stream->Size), 0);
    Stream->ReadBuffer(Bytes.data(), static_cast<int64_t>(Bytes.size()));
    Take(std::move(Bytes));
}

void TMemoryStream::LoadFromFile(const AnsiString& FileName)
{
    TFileStream File(FileName, fmOpenRead | fmShareDenyWrite);
    LoadFromStream(&File);
}

void TMemoryStream::Take(std::string Bytes)
{
    FBytes = std::move(Bytes);
    FPosition = 0;
    SetPointer(FBytes.empty() ? nullptr : FBytes.data(), static_cast<int64_t>(FBytes.size()));
}

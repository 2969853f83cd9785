#include "vcl/classes/CustomMemoryStream.h"

#include "vcl/classes/FileStream.h"
#include "vcl/system/ClassBuilder.h"

#include <algorithm>
#include <cstring>
#include <limits>

void TCustomMemoryStream::Describe(TClassBuilder<TCustomMemoryStream>&)
{}

int TCustomMemoryStream::Read(void* Buffer, int Count)
{
    const int64_t Done = std::min<int64_t>(Count, FSize - FPosition);
    if (Done <= 0)
        return 0;
    std::memcpy(Buffer, static_cast<char*>(FMemory) + FPosition, static_cast<size_t>(Done));
    FPosition += Done;
    return static_cast<int>(Done);
}

int64_t TCustomMemoryStream::Seek(int64_t Offset, TSeekOrigin Origin)
{
    const int64_t Start = Origin == soBeginning ? 0 : Origin == soCurrent ? FPosition : FSize;
    const bool TooFar = Offset > std::numeric_limits<int64_t>::max() - Start;
    if (!TooFar && Start + Offset >= 0)
        FPosition = Start + Offset;
    return FPosition;
}

void TCustomMemoryStream::SaveToStream(TStream* Stream) const
{
    Stream->WriteBuffer(FMemory, FSize);
}

void TCustomMemoryStream::SaveToFile(const AnsiString& FileName) const
{
    TFileStream File(FileName, fmCreate);
    SaveToStream(&File);
}

void TCustomMemoryStream::SetPointer(void* Memory, int64_t Size)
{
    FMemory = Memory;
    FSize = Size;
}

#include "vcl/classes/Stream.h"

#include "vcl/system/ClassBuilder.h"

#include <algorithm>
#include <memory>

void TStream::Describe(TClassBuilder<TStream>&)
{}

void TStream::ReadBuffer(void* Buffer, int64_t Count)
{
    constexpr int64_t MaxStep = 1 << 30;
    for (char* At = static_cast<char*>(Buffer); Count > 0;) {
        const int Done = Read(At, static_cast<int>(std::min(Count, MaxStep)));
        if (Done <= 0)
            throw EReadError("Stream read error");
        At += Done;
        Count -= Done;
    }
}

void TStream::WriteBuffer(const void* Buffer, int64_t Count)
{
    constexpr int64_t MaxStep = 1 << 30;
    for (const char* At = static_cast<const char*>(Buffer); Count > 0;) {
        const int Done = Write(At, static_cast<int>(std::min(Count, MaxStep)));
        if (Done <= 0)
            throw EWriteError("Stream write error");
        At += Done;
        Count -= Done;
    }
}

int64_t TStream::CopyFrom(TStream* Source, int64_t Count)
{
    constexpr int64_t MaxStep = 0xF000;
    if (Count == 0) {
        Source->Position = 0;
        Count = Source->Size;
    }
    const int64_t Step = std::min(Count, MaxStep);
    const auto Buffer = std::make_unique_for_overwrite<char[]>(static_cast<size_t>(std::max<int64_t>(Step, 0)));
    for (int64_t Left = Count; Left > 0; Left -= std::min(Left, Step)) {
        Source->ReadBuffer(Buffer.get(), std::min(Left, Step));
        WriteBuffer(Buffer.get(), std::min(Left, Step));
    }
    return Count;
}

int64_t TStream::GetSize()
{
    const int64_t Old = Seek(0, soCurrent);
    const int64_t Result = Seek(0, soEnd);
    Seek(Old, soBeginning);
    return Result;
}

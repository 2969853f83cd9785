#include "vcl/classes/FileStream.h"

#include "vcl/system/ClassBuilder.h"

#include <algorithm>

void TFileStream::Describe(TClassBuilder<TFileStream>&)
{}

TFileStream::TFileStream(const AnsiString& FileName, uint16_t Mode) : FFileName(FileName)
{
    AnsiString Reason;
    if (Open(Mode, Reason)) {
        CountLiveHandle(+1);
        return;
    }
    if ((Mode & fmCreate) == fmCreate)
        throw EFCreateError("Cannot create file \"" + FileName + "\". " + Reason);
    throw EFOpenError("Cannot open file \"" + FileName + "\". " + Reason);
}

void TFileStream::SetSize(int64_t Value)
{
    const int64_t Old = GetPosition();
    if (!Truncate(Value))
        throw EWriteError("Stream write error");
    Seek(std::min(Old, Value), soBeginning);
}

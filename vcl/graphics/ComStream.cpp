#include "vcl/graphics/ComStream.h"

#include <algorithm>
#include <cstring>

HRESULT TComStream::QueryInterface(REFIID Interface, void** Result)
{
    const bool Known = Interface == IID_IUnknown || Interface == IID_ISequentialStream || Interface == IID_IStream;
    *Result = Known ? static_cast<IStream*>(this) : nullptr;
    return Known ? S_OK : E_NOINTERFACE;
}

HRESULT TComStream::Read(void* Target, ULONG Size, ULONG* Count)
{
    const size_t Left = FBytes.size() - std::min(FPlace, FBytes.size());
    const size_t Part = std::min<size_t>(Size, Left);
    if (Part > 0)
        std::memcpy(Target, FBytes.data() + FPlace, Part);
    FPlace += Part;
    if (Count)
        *Count = static_cast<ULONG>(Part);
    return Part == Size ? S_OK : S_FALSE;
}

HRESULT TComStream::Write(const void* Source, ULONG Size, ULONG* Count)
{
    if (Size > 0) {
        FBytes.resize(std::max(FBytes.size(), FPlace + Size));
        std::memcpy(FBytes.data() + FPlace, Source, Size);
    }
    FPlace += Size;
    if (Count)
        *Count = Size;
    return S_OK;
}

HRESULT TComStream::Seek(LARGE_INTEGER Offset, DWORD Origin, ULARGE_INTEGER* Place)
{
    const size_t Starts[] = {0, FPlace, FBytes.size()};
    if (Origin > STREAM_SEEK_END)
        return STG_E_INVALIDFUNCTION;
    const int64_t Target = static_cast<int64_t>(Starts[Origin]) + Offset.QuadPart;
    if (Target < 0)
        return STG_E_INVALIDFUNCTION;
    FPlace = static_cast<size_t>(Target);
    if (Place)
        Place->QuadPart = FPlace;
    return S_OK;
}

HRESULT TComStream::SetSize(ULARGE_INTEGER Size)
{
    FBytes.resize(static_cast<size_t>(Size.QuadPart));
    return S_OK;
}

HRESULT TComStream::Stat(STATSTG* Result, DWORD)
{
    *Result = {};
    Result->type = STGTY_STREAM;
    Result->cbSize.QuadPart = FBytes.size();
    return S_OK;
}

HRESULT TComStream::CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*)
{
    return E_NOTIMPL;
}

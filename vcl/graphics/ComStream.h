// TComStream: bytes in memory behind the system's stream interface, for calls that read from one or write to it.
#pragma once

#include "vcl/system/WindowsApi.h"

#include <cstdint>
#include <objidl.h>
#include <span>
#include <vector>

// Lives on the stack and is only lent: its references are not counted. What memory has no use for (parts, locks,
// copies) is answered with E_NOTIMPL.
class TComStream final : public IStream {
public:
    TComStream() = default;
    explicit TComStream(std::span<const uint8_t> Bytes) : FBytes(Bytes.begin(), Bytes.end()) {}

    const std::vector<uint8_t>& Bytes() const { return FBytes; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID Interface, void** Result) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    // At the end fewer bytes are read than were asked for; S_FALSE then.
    HRESULT STDMETHODCALLTYPE Read(void* Target, ULONG Size, ULONG* Count) override;
    HRESULT STDMETHODCALLTYPE Write(const void* Source, ULONG Size, ULONG* Count) override;
    // Also behind the end, where writing fills the gap with zeros. STG_E_INVALIDFUNCTION before the beginning.
    HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER Offset, DWORD Origin, ULARGE_INTEGER* Place) override;
    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER Size) override;
    HRESULT STDMETHODCALLTYPE Stat(STATSTG* Result, DWORD Flags) override;

    HRESULT STDMETHODCALLTYPE CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override;
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Revert() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IStream**) override { return E_NOTIMPL; }

private:
    std::vector<uint8_t> FBytes;
    size_t FPlace = 0;
};

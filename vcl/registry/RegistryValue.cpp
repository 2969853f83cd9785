#include "vcl/registry/RegistryValue.h"

TRegistryValue::TRegistryValue(HKEY Key, std::string_view Name)
{
    const TWideText WideName(Name);
    auto Query = [&](BYTE* Buffer) {
        return Key ? RegQueryValueExW(Key, WideName.c_str(), nullptr, &FType, Buffer, &FSize) : ERROR_INVALID_HANDLE;
    };
    FStatus = Query(FShort);
    // Somebody else may make it longer between two calls.
    while (FStatus == ERROR_MORE_DATA) {
        FLong = std::make_unique_for_overwrite<BYTE[]>(FSize);
        FStatus = Query(FLong.get());
    }
    if (Exists())
        return;
    FType = REG_NONE;
    FSize = 0;
}

TWideView TRegistryValue::Text() const
{
    if (!IsText())
        return {};
    const TWideView All(static_cast<const wchar_t*>(Data()), FSize / sizeof(wchar_t));
    return All.substr(0, All.find(L'\0'));
}

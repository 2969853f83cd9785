#include "menus/CheckMark.h"

#include "vcl/graphics/Bitmap.h"

namespace {

constexpr uint32_t Black = 0xFF000000;
constexpr uint32_t White = 0xFFFFFFFF;

} // namespace

std::shared_ptr<TMaskedImage> CheckMark()
{
    static std::weak_ptr<TMaskedImage> Shared;
    if (std::shared_ptr<TMaskedImage> Existing = Shared.lock())
        return Existing;
    TBitmap Bitmap;
    Bitmap.LoadFromResourceName(GetModuleHandleW(nullptr), "CHECK");
    auto Mark = std::make_shared<TMaskedImage>(&Bitmap, clNone);
    uint32_t* Pixel = Mark->Pixels();
    for (uint32_t* End = Pixel + Mark->Width() * Mark->Height(); Pixel != End; ++Pixel)
        *Pixel = *Pixel == Black || *Pixel == White ? *Pixel : 0;
    Shared = Mark;
    return Mark;
}

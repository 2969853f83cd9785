#include "controls/SharedBitmap.h"

#include <map>

std::shared_ptr<TBitmap> SharedBitmap(const AnsiString& Name)
{
    static std::map<AnsiString, std::weak_ptr<TBitmap>> Loaded;
    std::weak_ptr<TBitmap>& Place = Loaded[Name];
    if (std::shared_ptr<TBitmap> Existing = Place.lock())
        return Existing;
    const auto Bitmap = std::make_shared<TBitmap>();
    Bitmap->LoadFromResourceName(GetModuleHandleW(nullptr), Name);
    Place = Bitmap;
    return Bitmap;
}

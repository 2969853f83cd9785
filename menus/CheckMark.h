// The mark of checked menu items.
#pragma once

#include "vcl/graphics/MaskedImage.h"

#include <memory>

// The black and white pixels of the bitmap "CHECK". All menus share it: it is loaded for the first one and freed with
// the last. Raises EResNotFound when the program lacks the bitmap.
std::shared_ptr<TMaskedImage> CheckMark();

// The mark of checked menu items.
#pragma once

#include "vcl/graphics/MaskedImage.h"

#include <memory>

// The black and white pixels of the bitmap "CHECK". All menus have one between them: it is loaded with the first and
// goes with the last. Raises EResNotFound when the program lacks the bitmap.
std::shared_ptr<TMaskedImage> CheckMark();

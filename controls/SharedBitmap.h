// Bitmaps of the library that several controls draw.
#pragma once

#include "vcl/graphics/Bitmap.h"

#include <memory>

// The bitmap resource Name of the program. All who hold it have one between them: it is loaded with the first and goes
// with the last. Raises EResNotFound when the program lacks it.
std::shared_ptr<TBitmap> SharedBitmap(const AnsiString& Name);

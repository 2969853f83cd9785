// The font of the system's menus, for items that the program draws.
#pragma once

#include "vcl/system/WindowsApi.h"

// Asked for once and kept, as all items of a menu are drawn with it again and again.
const LOGFONTW& SystemMenuFont();
// The system is asked anew; for when a menu opens, as the user may have chosen another font since.
void ForgetSystemMenuFont();

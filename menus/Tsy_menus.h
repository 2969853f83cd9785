// The menu half of the unit Tsy_toolbar.
#pragma once

#include "menus/MenuBanner.h"
#include "menus/OfficePopupMenu.h"

// The menu half of the unit Tsy_toolbar.
#pragma once

#include "menus/Icon.h"
#include "menus/MDIChildMenuBar.h"
#include "menus/MenuBanner.h"
#include "menus/MenuBar.h"
#include "menus/MenuButton.h"
#include "menus/OfficePopupMenu.h"

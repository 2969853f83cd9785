// The unit Tsy_common: panels, labels, small graphic controls, menus that the program draws, and settings that outlive
// the program.
#pragma once

#include "common/AlignSpeedButton.h"
#include "common/CustomMenu.h"
#include "common/CustomPanel.h"
#include "common/CustomPopupMenu.h"
#include "common/FormPosition.h"
#include "common/Image.h"
#include "common/Label.h"
#include "common/Menu.h"
#include "common/MessageBoxes.h"
#include "common/Panel.h"
#include "common/PointInRect.h"
#include "common/PopupMenu.h"
#include "common/SavePos.h"
#include "common/ScrollBar.h"
#include "common/Settings.h"
#include "common/Shape.h"

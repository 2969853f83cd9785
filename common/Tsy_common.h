// The unit Tsy_common: panels, labels and small graphic controls.
#pragma once

#include "common/AlignSpeedButton.h"
#include "common/CustomPanel.h"
#include "common/Image.h"
#include "common/Label.h"
#include "common/Panel.h"
#include "common/ScrollBar.h"
#include "common/Shape.h"

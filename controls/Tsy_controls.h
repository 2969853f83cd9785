// The whole of the unit Tsy_controls: controls in the Office look.
#pragma once

#include "controls/BitBtn.h"
#include "controls/Button.h"
#include "controls/CheckListBox.h"
#include "controls/ColorComboBox.h"
#include "controls/FontComboBox.h"
#include "controls/OfficeCheckBox.h"
#include "controls/OfficeEdit.h"
#include "controls/OfficeLabel.h"
#include "controls/OfficePanel.h"
#include "controls/OfficeRadioButton.h"
#include "controls/WebLabel.h"

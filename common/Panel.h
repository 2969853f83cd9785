// TkelPanel: a panel with everything published.
#pragma once

#include "common/CustomPanel.h"

class TkelPanel : public TkelCustomPanel {
    VCL_CLASS(TkelPanel, TkelCustomPanel)
public:
    using TkelCustomPanel::TkelCustomPanel;
};

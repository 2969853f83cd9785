// TPanel: a panel with everything published.
#pragma once

#include "vcl/extctrls/CustomPanel.h"

class TPanel : public TCustomPanel {
    VCL_CLASS(TPanel, TCustomPanel)
public:
    using TCustomPanel::TCustomPanel;
};

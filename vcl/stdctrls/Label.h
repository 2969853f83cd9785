// TLabel: a label with everything published.
#pragma once

#include "vcl/stdctrls/CustomLabel.h"

class TLabel : public TCustomLabel {
    VCL_CLASS(TLabel, TCustomLabel)
public:
    using TCustomLabel::TCustomLabel;
};

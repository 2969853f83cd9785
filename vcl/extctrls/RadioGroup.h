// TRadioGroup: a radio group with everything published.
#pragma once

#include "vcl/extctrls/CustomRadioGroup.h"

class TRadioGroup : public TCustomRadioGroup {
    VCL_CLASS(TRadioGroup, TCustomRadioGroup)
public:
    using TCustomRadioGroup::TCustomRadioGroup;
};

// TMemo: lines of text to edit, with everything published.
#pragma once

#include "vcl/stdctrls/CustomMemo.h"

class TMemo : public TCustomMemo {
    VCL_CLASS(TMemo, TCustomMemo)
public:
    using TCustomMemo::TCustomMemo;
};

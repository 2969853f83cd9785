// TStaticText: a label with a window, with everything published.
#pragma once

#include "vcl/stdctrls/CustomStaticText.h"

class TStaticText : public TCustomStaticText {
    VCL_CLASS(TStaticText, TCustomStaticText)
public:
    using TCustomStaticText::TCustomStaticText;
};

// TkelScrollBar: a scroll bar that can be aligned.
#pragma once

#include "vcl/stdctrls/ScrollBar.h"

class TkelScrollBar : public TScrollBar {
    VCL_CLASS(TkelScrollBar, TScrollBar)
public:
    using TScrollBar::TScrollBar;
};

// TListBox: a list box with everything published.
#pragma once

#include "vcl/stdctrls/CustomListBox.h"

class TListBox : public TCustomListBox {
    VCL_CLASS(TListBox, TCustomListBox)
public:
    using TCustomListBox::TCustomListBox;
};

// TkelPopupMenu: a popup menu whose items the application can draw.
#pragma once

#include "common/CustomPopupMenu.h"

class TkelPopupMenu : public TkelCustomPopupMenu {
    VCL_CLASS(TkelPopupMenu, TkelCustomPopupMenu)
public:
    explicit TkelPopupMenu(TComponent* AOwner) : TkelCustomPopupMenu(AOwner) {}
};

// TkelMenu: a main menu whose items the application can draw.
#pragma once

#include "common/CustomMenu.h"

class TkelMenu : public TkelCustomMenu {
    VCL_CLASS(TkelMenu, TkelCustomMenu)
public:
    explicit TkelMenu(TComponent* AOwner) : TkelCustomMenu(AOwner) {}
};

// TMainMenu: the menu bar of a form.
#pragma once

#include "vcl/menus/Menu.h"

class TMainMenu : public TMenu {
    VCL_CLASS(TMainMenu, TMenu)
public:
    explicit TMainMenu(TComponent* AOwner);
    void BeforeDestruction() override;

    // Shows the bar in Value and takes it out of the window before; nullptr only takes it out.
    void SetWindowHandle(HWND Value) override;

    // Kept for menu merging, which this version does not do.
    bool AutoMerge = false;

protected:
    void MenuChanged(TObject* Sender, TMenuItem* Source, bool Rebuild) override;
    bool IsMenuBar() const override { return true; }

private:
    void UpdateWindow();
};

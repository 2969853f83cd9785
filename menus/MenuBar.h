// TkelMenuBar: a tool bar of menu buttons that is as long as its dock. While an MDI child is maximized it shows the
// child's icon, which opens a system menu, and the buttons to minimize, restore and close it.
#pragma once

#include "menus/Icon.h"
#include "menus/OfficePopupMenu.h"
#include "toolbar/SpeedButton.h"
#include "toolbar/ToolBar.h"
#include "vcl/extctrls/Timer.h"

class TForm;
class TkelPanel;

class TkelMenuBar : public TkelToolBar {
    VCL_CLASS(TkelMenuBar, TkelToolBar)
public:
    explicit TkelMenuBar(TComponent* AOwner);

    // Opens the system menu of the maximized child at the start of the bar.
    void DoSysMenu(TObject* Sender);
    // An item of that menu: its Tag says what is done; other values do nothing.
    void DoSysMenuClick(TObject* Sender);
    // What the buttons do with the active child. Without one they do nothing.
    void DoMin(TObject* Sender);
    void DoMax(TObject* Sender);
    void DoClose(TObject* Sender);
    // Called ten times a second: gives the bar the length of its dock, and shows whether a child is maximized.
    void DoTimer(TObject* Sender);

    // The bar's own; the menu is nullptr in the designer.
    TkelPanel* IconPanel() const { return FIconPanel; }
    TkelIcon* ChildIcon() const { return FIcon; }
    TkelSpeedButton* MinimizeButton() const { return FMinimize; }
    TkelSpeedButton* RestoreButton() const { return FRestore; }
    TkelSpeedButton* CloseButtonOfChild() const { return FClose; }
    TkelOfficePopupMenu* SystemMenu() const { return FSystemMenu; }

    int AccessibleRole() const override;

protected:
    void Loaded() override;

private:
    TkelSpeedButton* AddButton(const char* Glyph, const TNotifyEvent& OnClick);
    void MakeIcon();
    void MakeSystemMenu();
    TForm* ActiveChild() const;
    void FillDock();
    void ShowChild(TForm* Child);
    void HideChild();
    void PlaceParts();

    TkelPanel* FIconPanel;
    TkelIcon* FIcon;
    TkelSpeedButton* FMinimize;
    TkelSpeedButton* FRestore;
    TkelSpeedButton* FClose;
    TTimer* FTimer = nullptr;
    TkelOfficePopupMenu* FSystemMenu = nullptr;
    const TForm* FShownChild = nullptr; // only compared
};

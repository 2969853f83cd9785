// TPopupMenu: a menu that opens anywhere on the screen, as the context menu of a control or from code.
#pragma once

#include "vcl/graphics/Types.h"
#include "vcl/menus/Menu.h"

VCL_ENUM(TPopupAlignment, paLeft, paRight, paCenter);
VCL_ENUM(TTrackButton, tbRightButton, tbLeftButton);
VCL_ENUM(TMenuAnimation, maLeftToRight, maRightToLeft, maTopToBottom, maBottomToTop, maNone);
using TMenuAnimations = Set<TMenuAnimation>;

class TPopupMenu : public TMenu {
    VCL_CLASS(TPopupMenu, TMenu)
public:
    explicit TPopupMenu(TComponent* AOwner);
    ~TPopupMenu() override;

    // Shows the menu at a screen position and returns when it is closed. The command that was chosen is posted, so its
    // OnClick comes after the return.
    virtual void Popup(int X, int Y);
    // Closes the menu that is open now.
    void CloseMenu();
    // Where Popup was last asked to open; (-1, -1) before.
    TPoint GetPopupPoint() const { return FPopupPoint; }
    PROPERTY_READ(TPoint, PopupPoint);
    bool IsShortCut(TShortCut ShortCut) override;

    // The component that the menu opened for; it is set by whoever calls Popup.
    TComponent* GetPopupComponent() const { return FPopupComponent; }
    void SetPopupComponent(TComponent* Value) { FPopupComponent = Value; }
    PROPERTY(TComponent*, PopupComponent);

    TPopupAlignment Alignment = paLeft;
    // Opens by itself on a right click on its control.
    bool AutoPopup = true;
    THelpContext HelpContext = 0;
    TMenuAnimations MenuAnimation;
    TTrackButton TrackButton = tbRightButton;

    // Before the menu shows.
    TNotifyEvent OnPopup;

protected:
    virtual void DoPopup(TObject* Sender) { OnPopup(Sender); }
    // The flags for TrackPopupMenu.
    unsigned TrackFlags() const;
    // Shows the menu as Popup does, without OnPopup before. The menu may be gone when this returns.
    void Track(int X, int Y);

private:
    TComponentRef<TComponent> FPopupComponent;
    TPoint FPopupPoint{-1, -1};
};

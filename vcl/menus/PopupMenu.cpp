#include "vcl/menus/PopupMenu.h"

#include "vcl/classes/StillThere.h"
#include "vcl/menus/PopupList.h"
#include "vcl/system/ClassBuilder.h"

void TPopupMenu::Describe(TClassBuilder<TPopupMenu>& Class)
{
    Class.Value<&Self::Alignment>("Alignment").Default(paLeft);
    Class.PublishAll("AutoHotkeys", "AutoLineReduction");
    Class.Value<&Self::AutoPopup>("AutoPopup").Default(true);
    Class.Publish("BiDiMode");
    Class.Value<&Self::HelpContext>("HelpContext").Default(0);
    Class.Publish("Images");
    Class.Value<&Self::MenuAnimation>("MenuAnimation").Default(TMenuAnimations());
    Class.PublishAll("OwnerDraw", "ParentBiDiMode");
    Class.Value<&Self::TrackButton>("TrackButton").Default(tbRightButton);
    Class.Publish("OnChange");
    Class.Event<&Self::OnPopup>("OnPopup");
}

TPopupMenu::TPopupMenu(TComponent* AOwner) : TMenu(AOwner)
{
    PopupList->Add(this);
}

TPopupMenu::~TPopupMenu()
{
    PopupList->Remove(this);
}

void TPopupMenu::Popup(int X, int Y)
{
    FPopupPoint = {X, Y};
    const TStillThere IsHere(this);
    DoPopup(this);
    if (IsHere)
        Track(X, Y);
}

void TPopupMenu::Track(int X, int Y)
{
    FPopupPoint = {X, Y};
    HWND Window = PopupList->Window;
    FWindowHandle = Window;
    TrackPopupMenu(Handle, TrackFlags(), X, Y, 0, Window, nullptr);
}

void TPopupMenu::CloseMenu()
{
    if (FWindowHandle)
        SendMessageW(FWindowHandle, WM_CANCELMODE, 0, 0);
}

bool TPopupMenu::IsShortCut(TShortCut ShortCut)
{
    if (!FindItem(ShortCut, fkShortCut))
        return false;
    const TStillThere IsHere(this);
    DoPopup(this);
    return IsHere && TMenu::IsShortCut(ShortCut);
}

unsigned TPopupMenu::TrackFlags() const
{
    constexpr unsigned AlignFlags[] = {TPM_LEFTALIGN, TPM_RIGHTALIGN, TPM_CENTERALIGN};
    constexpr unsigned MirroredFlags[] = {TPM_RIGHTALIGN, TPM_LEFTALIGN, TPM_CENTERALIGN};
    constexpr unsigned AnimationFlags[] = {TPM_HORPOSANIMATION, TPM_HORNEGANIMATION, TPM_VERPOSANIMATION,
                                           TPM_VERNEGANIMATION, TPM_NOANIMATION};
    unsigned Flags = IsRightToLeft() ? MirroredFlags[Alignment] | TPM_LAYOUTRTL : AlignFlags[Alignment];
    Flags |= TrackButton == tbRightButton ? TPM_RIGHTBUTTON : TPM_LEFTBUTTON;
    for (TMenuAnimation Each : {maLeftToRight, maRightToLeft, maTopToBottom, maBottomToTop, maNone})
        if (MenuAnimation.Contains(Each))
            Flags |= AnimationFlags[Each];
    return Flags;
}

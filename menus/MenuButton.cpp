#include "menus/MenuButton.h"

#include "menus/MenuTracking.h"
#include "menus/TurnedPicture.h"
#include "toolbar/ButtonContent.h"
#include "toolbar/RandomGroup.h"
#include "vcl/classes/StillThere.h"
#include "vcl/controls/WinControl.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/SolidFill.h"
#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int LastRandomGroup = 9999;

} // namespace

void TkelMenuButton::Describe(TClassBuilder<TkelMenuButton>& Class)
{
    Class.Property<&Self::GetAlign, &Self::SetAlign>("Align").Default(alNone);
    Class.Property<&Self::GetMenu, &Self::SetMenu>("Menu");
    Class.Property<&Self::MenuGroupIndex, &Self::MenuGroupIndex>("MenuGroupIndex").Default(0);
    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
}

TkelMenuButton::TkelMenuButton(TComponent* AOwner) : TkelSpeedButton(AOwner)
{
    AllowAllUp = true;
    GroupIndex = RandomGroup(LastRandomGroup);
    if (!IsDesigning())
        TMenuTracking::Get().Add(this);
}

TkelMenuButton::~TkelMenuButton()
{
    TMenuTracking::Get().Remove(this);
}

void TkelMenuButton::SetHot(bool Value)
{
    if (FHot == Value)
        return;
    FHot = Value;
    Repaint();
}

TPoint TkelMenuButton::DropPoint() const
{
    const bool InRow = Align == alLeft || Align == alRight;
    return ClientToScreen(InRow ? TPoint(0, Height) : TPoint(Width, 0));
}

void TkelMenuButton::Click()
{
    if (FMenu)
        TMenuTracking::Get().Click(this);
    else
        inherited::Click();
}

// The menu opens on the press, so that the user can drag to an item and choose it by releasing the mouse button.
void TkelMenuButton::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    if (!FMenu || Button != mbLeft) {
        inherited::MouseDown(Button, Shift, X, Y);
        return;
    }
    const TStillThere IsHere(this);
    TGraphicControl::MouseDown(Button, Shift, X, Y);
    if (!IsHere)
        return;
    MouseCapture = false;
    if (Enabled)
        Click();
}

void TkelMenuButton::CMDialogChar(TCMDialogChar& Message)
{
    if (!TMenuTracking::Get().IsTracking()) {
        Inherited(Message);
        return;
    }
    if (!Enabled || !IsOnScreen() || !IsAccel(Message.CharCode, Caption))
        return;
    Click();
    Message.Result = 1;
}

void TkelMenuButton::Paint()
{
    HDC Context = Canvas->BareHandle();
    const TRect R(0, 0, Width, Height);
    TSolidFill(Context).Fill(R, clBtnFace);
    if (StandsOnEnd())
        DrawStandingCaption(Context);
    else
        DrawButtonCaption(Canvas, Font, Caption, R, !Enabled);
    TSolidFill Fill(Canvas->BareHandle());
    if (Down || FState == bsDown)
        Fill.Frame(R, clBtnShadow, clBtnHighlight);
    else if (FHot || (FMouseInControl && !TMenuTracking::Get().IsTracking()))
        Fill.Frame(R, clBtnHighlight, clBtnShadow);
}

// The caption runs from top to bottom: in a vertical bar there is no room for it otherwise.
bool TkelMenuButton::StandsOnEnd() const
{
    return (Align == alTop || Align == alBottom) && Height > Width;
}

void TkelMenuButton::DrawStandingCaption(HDC Context)
{
    // One for all buttons, as it is needed during this call only. Never destroyed: when the program ends, what its
    // destructor needs may be gone.
    static TTurnedPicture& Picture = *new TTurnedPicture;
    const TRect Lying(0, 0, Height, Width);
    Picture.SetSize(Width, Height);
    TSolidFill(Picture.Canvas->BareHandle()).Fill(Lying, clBtnFace);
    // To the lower right, once the caption is turned.
    constexpr TPoint Highlight(1, -1);
    DrawButtonCaption(Picture.Canvas, Font, Caption, Lying, !Enabled, Highlight);
    Picture.Show(Context, 0, 0);
}

int TkelMenuButton::AccessibleRole() const
{
    return ROLE_SYSTEM_MENUITEM;
}

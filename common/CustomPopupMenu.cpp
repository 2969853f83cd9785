#include "common/CustomPopupMenu.h"

#include "common/PopupTracking.h"
#include "vcl/system/ClassBuilder.h"

void TkelCustomPopupMenu::Describe(TClassBuilder<TkelCustomPopupMenu>& Class)
{
    Class.Declare<&Self::GetStyle, &Self::SetStyle>("Style");
    Class.DeclareEvent<&Self::OnDrawItem>("OnDrawItem");
    Class.DeclareEvent<&Self::OnMeasureItem>("OnMeasureItem");
    Class.Message<&Self::DrawItem>(WM_DRAWITEM);
    Class.Message<&Self::MeasureItem>(WM_MEASUREITEM);
}

TkelCustomPopupMenu::TkelCustomPopupMenu(TComponent* AOwner)
    : TPopupMenu(AOwner),
      FSwitch(
          this, [](const TMenuItem&) { return true; }, [this](const TMenuItem& Item) { return IsSeparator(Item); }),
      FIsTracked(!IsDesigning())
{
    if (FIsTracked)
        PopupTracking->Add();
}

TkelCustomPopupMenu::~TkelCustomPopupMenu()
{
    if (FIsTracked)
        PopupTracking->Remove(this);
}

void TkelCustomPopupMenu::BeforeDestruction()
{
    if (PopupTracking->IsOpen(this))
        CloseMenu();
    inherited::BeforeDestruction();
}

TkelCustomPopupMenu* TkelCustomPopupMenu::Current()
{
    return PopupTracking->Current();
}

void TkelCustomPopupMenu::Popup(int X, int Y)
{
    if (PopupTracking->IsOpen(this))
        return;
    const TPopupTracking::TLoop Loop(this);
    FSwitch.SwitchAll();
    Track(X, Y);
}

int TkelCustomPopupMenu::ProcessAccel(const TWMMenuChar& Message) const
{
    if (IsDesigning())
        return -1;
    const TMenuItem* Item = FindAccelerator(Items, Message.Menu(), Message.Char());
    return Item ? Item->MenuIndex : -1;
}

// ---- messages

void TkelCustomPopupMenu::MeasureItem(TWMMeasureItem& Message)
{
    if (!Current())
        return;
    MEASUREITEMSTRUCT& Request = *Message.Request();
    Request.CtlType = ODT_MENU;
    TMenuItem* Item = FindItem(Request.itemData, fkCommand);
    Request.itemID = Item ? Item->Command : 0;
    if (!Item)
        return;
    Request.itemData = Item->Command;
    TCanvas* Canvas = &PopupTracking->MeasuringCanvas();
    MeasureWith(Request, [&](int& Width, int& Height) { DoMeasureItem(Item, Width, Height, Canvas); });
}

void TkelCustomPopupMenu::DrawItem(TWMDrawItem& Message)
{
    const DRAWITEMSTRUCT& Request = *Message.Request();
    TMenuItem* Item = Current() ? FindItem(Request.itemData, fkCommand) : nullptr;
    if (!Item)
        return;
    unsigned State = Request.itemState;
    State |= Item->Enabled ? 0 : ODS_GRAYED;
    State |= Item->Checked ? ODS_CHECKED : 0;
    DrawWith(Request, [&](TCanvas* Canvas) { DoDrawItem(Item, Canvas, State, Request.rcItem); });
}

void TkelCustomPopupMenu::DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect)
{
    OnDrawItem(Item, Canvas, static_cast<int>(State), Rect);
}

void TkelCustomPopupMenu::DoMeasureItem(TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas)
{
    OnMeasureItem(Item, Width, Height, Canvas);
}

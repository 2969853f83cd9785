#include "common/CustomPopupMenu.h"

#include "common/OwnerDrawItems.h"
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

TkelCustomPopupMenu::TkelCustomPopupMenu(TComponent* AOwner) : TPopupMenu(AOwner), FIsTracked(!IsDesigning())
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
    ModifyItems(Items, FStyle == msStandard);
    Track(X, Y);
}

int TkelCustomPopupMenu::ProcessAccel(const TWMMenuChar& Message) const
{
    if (IsDesigning())
        return -1;
    const TMenuItem* Item = FindAccelerator(Items, Message.Menu(), Message.Char());
    return Item ? Item->MenuIndex : -1;
}

// ---- switching

void TkelCustomPopupMenu::SetStyle(TMenuStyle Value)
{
    FStyle = Value;
    ModifyItems(Items, FStyle == msStandard);
}

void TkelCustomPopupMenu::ModifyItems(TMenuItem* Item, bool Standard)
{
    if (!IsDesigning())
        SwitchItems(Item, [=, this](const TMenuItem& Each) { return TypeOf(Each, Standard); });
}

void TkelCustomPopupMenu::SetMenuItem(TMenuItem* Item, bool Standard)
{
    if (!IsDesigning())
        SwitchItem(Item, TypeOf(*Item, Standard));
}

unsigned TkelCustomPopupMenu::EntryType(const TMenuItem& Item) const
{
    return TypeOf(Item, FStyle == msStandard);
}

unsigned TkelCustomPopupMenu::TypeOf(const TMenuItem& Item, bool Standard) const
{
    return Standard || IsDesigning() ? 0 : OwnerDrawnType(IsSeparator(Item));
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

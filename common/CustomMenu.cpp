#include "common/CustomMenu.h"

#include "vcl/classes/StillThere.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/Screen.h"
#include "vcl/system/ClassBuilder.h"

void TkelCustomMenu::Describe(TClassBuilder<TkelCustomMenu>& Class)
{
    Class.Declare<&Self::GetStyle, &Self::SetStyle>("Style");
    Class.DeclareEvent<&Self::OnDrawItem>("OnDrawItem");
    Class.DeclareEvent<&Self::OnMeasureItem>("OnMeasureItem");
    Class.Message<&Self::DrawItem>(WM_DRAWITEM);
    Class.Message<&Self::MeasureItem>(WM_MEASUREITEM);
}

// The root has no name, so the bar stays the system's.
TkelCustomMenu::TkelCustomMenu(TComponent* AOwner)
    : TMenu(AOwner),
      FSwitch(
          this, [](const TMenuItem& Item) { return Item.Parent && !Item.Parent->Name.empty(); },
          [](const TMenuItem& Item) { return Item.IsLine(); })
{
    if (!IsDesigning()) {
        auto* Form = As<TForm>(AOwner);
        if (!Form)
            throw EInvalidCast("Invalid class typecast");
        FHook.Install(Form, {this, &TkelCustomMenu::FormWndProc});
    }
    Menus.push_back(this);
}

TkelCustomMenu::~TkelCustomMenu()
{
    std::erase(Menus, this);
}

void TkelCustomMenu::Loaded()
{
    inherited::Loaded();
    FSwitch.SwitchAll();
}

// ---- messages

void TkelCustomMenu::FormWndProc(TMessage& Message, const TWndMethod& Next)
{
    if (!FormMessage(Message))
        Next(Message);
}

// True when the message goes no further.
bool TkelCustomMenu::FormMessage(TMessage& Message)
{
    const bool IsDrawn = Current() && Current()->Style == msOwnerDraw;
    switch (Message.Msg) {
    case WM_DRAWITEM: {
        // The form's owner-drawn controls and other menus ask by the same message.
        auto& Draw = static_cast<TWMDrawItem&>(Message);
        if (!IsDrawn || Draw.Request()->CtlType != ODT_MENU || !FindItem(Draw.Request()->itemData, fkCommand))
            return false;
        Message.Result = reinterpret_cast<intptr_t>(static_cast<TForm*>(FHook.Control())->Handle);
        DrawItem(Draw);
        return true;
    }
    case WM_MEASUREITEM: {
        auto& Measure = static_cast<TWMMeasureItem&>(Message);
        if (IsDrawn && Measure.Request()->CtlType == ODT_MENU && FindItem(Measure.Request()->itemData, fkCommand))
            MeasureItem(Measure);
        return false;
    }
    case WM_MENUCHAR:
        if (IsDrawn)
            Message.Result = ExecuteAnswer(FindAccelerator(Items, static_cast<TWMMenuChar&>(Message).Menu(),
                                                           static_cast<TWMMenuChar&>(Message).Char()));
        return IsDrawn && Message.Result != 0;
    // The form only knows the menu that is its own.
    case WM_INITMENUPOPUP: {
        const TStillThere IsHere(this);
        if (DispatchPopup(reinterpret_cast<HMENU>(Message.WParam)) && IsHere)
            FSwitch.SwitchAll();
        return false;
    }
    case WM_COMMAND: return Message.LParam == 0 && DispatchCommand(static_cast<uint16_t>(Message.WParamLo()));
    default: return false;
    }
}

void TkelCustomMenu::MeasureItem(TWMMeasureItem& Message)
{
    MEASUREITEMSTRUCT& Request = *Message.Request();
    Request.CtlType = ODT_MENU;
    Request.itemID = 0;
    TMenuItem* Item = FindItem(Request.itemData, fkCommand);
    const TComponentRef<TForm> Form(Screen->ActiveForm);
    if (!Item || !Form)
        return;
    {
        TCanvas Canvas;
        Canvas.Handle = Form->Canvas->Handle;
        MeasureWith(Request, [&](int& Width, int& Height) { DoMeasureItem(Item, Width, Height, &Canvas); });
    }
    // The two have shared a device context.
    if (Form)
        Form->Canvas->Refresh();
}

void TkelCustomMenu::DrawItem(TWMDrawItem& Message)
{
    const DRAWITEMSTRUCT& Request = *Message.Request();
    if (TMenuItem* Item = FindItem(Request.itemData, fkCommand))
        DrawWith(Request, [&](TCanvas* Canvas) { DoDrawItem(Item, Canvas, Request.itemState, Request.rcItem); });
}

void TkelCustomMenu::DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect)
{
    OnDrawItem(Item, Canvas, static_cast<int>(State), Rect);
}

void TkelCustomMenu::DoMeasureItem(TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas)
{
    OnMeasureItem(Item, Width, Height, Canvas);
}

// Buttons that are deleted in their own events, under a real mouse.
#include "menus/Tsy_menus.h"
#include "tests/menus/MenuScript.h"
#include "toolbar/Tsy_toolbar.h"
#include "vcl/classes/ComponentRef.h"

namespace {

using TMakeButton = TControl* (*)(TForm*);

template <class T>
TControl* Make(TForm* Form)
{
    return new T(Form);
}

// A button, with the menu that it can drop.
template <class T>
TControl* MakeWithMenu(TForm* Form)
{
    auto* Menu = new TkelOfficePopupMenu(Form);
    Menu->Items->Add(NewItem("&One", scNone, false, true, nullptr, 0, "", Menu));
    auto* Button = new T(Form);
    Button->Menu = Menu;
    return Button;
}

struct TKind {
    const char* Name;
    TMakeButton Make;
};
const TKind Kinds[] = {
    {"SpeedButton", &Make<TkelSpeedButton>},
    {"PopupButtonWithoutAMenu", &Make<TkelPopupButton>},
    {"PopupButton", &MakeWithMenu<TkelPopupButton>},
    {"ComboButton", &Make<TkelComboButton>},
    {"ComboPopupButton", &MakeWithMenu<TkelComboPopupButton>},
    {"ColorComboButton", &Make<TkelColorComboButton>},
    {"MenuButtonWithoutAMenu", &Make<TkelMenuButton>},
    {"MenuButton", &MakeWithMenu<TkelMenuButton>},
    {"TBButton", &Make<TkelTBButton>},
    {"TBCombo", &Make<TkelTBCombo>},
    {"TBPopup", &MakeWithMenu<TkelTBPopup>},
    {"TBComboPopup", &MakeWithMenu<TkelTBComboPopup>},
    {"TBColorCombo", &Make<TkelTBColorCombo>},
};

// What the mouse works on: a combo button's main half.
TkelSpeedButton* SpeedButtonOf(TControl* Button)
{
    auto* Combo = As<TkelComboButton>(Button);
    return Combo ? Combo->MainButton() : As<TkelSpeedButton>(Button);
}

using TAction = std::function<void()>;

struct TEventOfButton {
    const char* Name;
    // False when the button has no such event.
    bool (*Set)(TControl* Button, const TAction& Action);
};
const TEventOfButton Events[] = {
    {"OnMouseDown",
     [](TControl* Button, const TAction& Action) {
         SpeedButtonOf(Button)->OnMouseDown = [=](TObject*, TMouseButton, TShiftState, int, int) { Action(); };
         return true;
     }},
    {"OnMouseMove",
     [](TControl* Button, const TAction& Action) {
         SpeedButtonOf(Button)->OnMouseMove = [=](TObject*, TShiftState, int, int) { Action(); };
         return true;
     }},
    {"OnMouseMoveWhilePressed",
     [](TControl* Button, const TAction& Action) {
         SpeedButtonOf(Button)->OnMouseMove = [=](TObject*, TShiftState Shift, int, int) {
             if (Shift.Contains(ssLeft))
                 Action();
         };
         const auto* MenuButton = As<TkelMenuButton>(Button);
         return !MenuButton || !MenuButton->Menu; // whose menu has the mouse then
     }},
    {"OnMouseUp",
     [](TControl* Button, const TAction& Action) {
         SpeedButtonOf(Button)->OnMouseUp = [=](TObject*, TMouseButton, TShiftState, int, int) { Action(); };
         const auto* MenuButton = As<TkelMenuButton>(Button);
         return !MenuButton || !MenuButton->Menu;
     }},
    {"OnMouseEnter",
     [](TControl* Button, const TAction& Action) {
         SpeedButtonOf(Button)->OnMouseEnter = [=](TObject*) { Action(); };
         return !As<TkelComboButton>(Button);
     }},
    {"OnMouseLeave",
     [](TControl* Button, const TAction& Action) {
         SpeedButtonOf(Button)->OnMouseLeave = [=](TObject*) { Action(); };
         return !As<TkelComboButton>(Button);
     }},
    {"OnClick",
     [](TControl* Button, const TAction& Action) {
         SpeedButtonOf(Button)->OnClick = [=](TObject*) { Action(); };
         return !As<TkelComboButton>(Button);
     }},
    {"OnDblClick",
     [](TControl* Button, const TAction& Action) {
         SpeedButtonOf(Button)->OnDblClick = [=](TObject*) { Action(); };
         return !As<TkelMenuButton>(Button) || !As<TkelMenuButton>(Button)->Menu;
     }},
    {"OnButtonClick",
     [](TControl* Button, const TAction& Action) {
         auto* Combo = As<TkelComboButton>(Button);
         if (Combo)
             Combo->OnButtonClick = [=](TObject*) { Action(); };
         return Combo != nullptr;
     }},
    {"OnListDown",
     [](TControl* Button, const TAction& Action) {
         auto* Combo = As<TkelComboButton>(Button);
         if (Combo)
             Combo->OnListDown = [=](TObject*) { Action(); };
         return Combo != nullptr;
     }},
    {"OnChange",
     [](TControl* Button, const TAction& Action) {
         auto* Combo = As<TkelColorComboButton>(Button);
         if (Combo)
             Combo->OnChange = [=](TObject*) { Action(); };
         return Combo != nullptr;
     }},
};

class ButtonDeletionTest : public TFormTest, public testing::WithParamInterface<TKind> {
protected:
    static void SetUpTestSuite() { MakeWhatMenusShare(); }

    ButtonDeletionTest()
    {
        // The first item of a menu that opens is chosen.
        Chooser->Interval = 20;
        Chooser->OnTimer = [](TObject*) {
            if (!TWhileMenuOpen::IsOpen())
                return;
            SendKey(VK_DOWN);
            SendKey(VK_RETURN);
        };
    }

    // All that a mouse can do with a button, as long as the button is there.
    void Use(const TComponentRef<TControl>& Button)
    {
        const auto Point = [&](int X, int Y) {
            if (Button)
                MovePointerTo(Button, X, Y);
        };
        Point(5, 5);
        Point(6, 6);
        PressButton();
        Point(8, 8);
        ReleaseButton();
        Point(5, 5);
        ClickButton();
        ClickButton();
        if (const auto* Combo = As<TkelComboButton>(Button.Get())) {
            MovePointerTo(Combo->ArrowButton(), 3, 5);
            ClickButton();
        }
        MovePointer(Form->ClientToScreen({300, 200}));
        PumpMessages();
    }

    TTimer* Chooser = new TTimer(Form.get());
};

std::string NameOf(const testing::TestParamInfo<TKind>& Info)
{
    return Info.param.Name;
}

} // namespace

TEST_P(ButtonDeletionTest, InAnyOfItsEvents)
{
    Show();
    for (const TEventOfButton& Event : Events) {
        SCOPED_TRACE(Event.Name);
        auto* Button = GetParam().Make(Form.get());
        Button->SetBounds(100, 100, 40, 22);
        Button->Align = alNone;
        Button->Parent = Form.get();
        const TComponentRef<TControl> Deleted(Button);
        const bool HasEvent = Event.Set(Button, [&] { delete Deleted.Get(); });
        Use(Deleted);
        // Halves of combo buttons have events of their own, which may come as well.
        EXPECT_TRUE(!HasEvent || !Deleted);
        delete Deleted.Get();
    }
}

INSTANTIATE_TEST_SUITE_P(All, ButtonDeletionTest, testing::ValuesIn(Kinds), &NameOf);

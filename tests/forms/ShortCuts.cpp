// Shortcuts of main and popup menus while no menu is open, with real keys.
#include "tests/forms/KeyTest.h"
#include "vcl/menus/MainMenu.h"

using testing::ElementsAre;

namespace {

class FormShortCuts : public TKeyTest {
protected:
    void SetUp() override
    {
        TKeyTest::SetUp();
        Menu = new TMainMenu(Form.get());
        Edit = NewSubMenu("&Edit", 0, "", {MakeItem("Main", 'K')}, true, Form.get());
        Menu->Items->Add(Edit);
        Form->Menu = Menu;
        OfForm = MakePopup("Form", 'K');
        OfB = MakePopup("B", 'K');
    }

    TMenuItem* MakeItem(const AnsiString& Name, char Key)
    {
        return NewItem(
            Name, ShortCut(static_cast<uint16_t>(Key), {ssCtrl}), false, true,
            [this, Name](TObject*) { Log.push_back(Name); }, 0, "", Form.get());
    }
    TPopupMenu* MakePopup(const AnsiString& Name, char Key)
    {
        auto* Popup = new TPopupMenu(Form.get());
        Popup->Items->Add(MakeItem(Name, Key));
        return Popup;
    }
    // The names of the items that a press of Ctrl+Key clicks.
    TLog Typed(char Key)
    {
        Log.clear();
        TypeKey(static_cast<uint16_t>(Key), {ssCtrl});
        return Log;
    }

    TMainMenu* Menu = nullptr;
    TMenuItem* Edit = nullptr;
    TPopupMenu* OfForm = nullptr;
    TPopupMenu* OfB = nullptr;
    TLog Log;
};

} // namespace

TEST_F(FormShortCuts, GoToThePopupMenuOfTheControlThenOfTheFormThenToTheBar)
{
    Form->Open();
    B->SetFocus();
    EXPECT_THAT(Typed('K'), ElementsAre("Main"));
    Form->PopupMenu = OfForm;
    EXPECT_THAT(Typed('K'), ElementsAre("Form"));
    B->PopupMenu = OfB;
    EXPECT_THAT(Typed('K'), ElementsAre("B"));
    A->SetFocus();
    EXPECT_THAT(Typed('K'), ElementsAre("Form"));
}

TEST_F(FormShortCuts, PassOverWhatCannotBeChosen)
{
    Form->PopupMenu = OfForm;
    Form->Open();
    OfForm->Items->Items[0]->Enabled = false;
    EXPECT_THAT(Typed('K'), ElementsAre("Main"));
    OfForm->Items->Items[0]->Enabled = true;
    OfForm->Items->Items[0]->Visible = false;
    EXPECT_THAT(Typed('K'), ElementsAre("Main"));
    Edit->Items[0]->Visible = false;
    EXPECT_THAT(Typed('K'), ElementsAre());
    Edit->Items[0]->Visible = true;
    Edit->Visible = false;
    EXPECT_THAT(Typed('K'), ElementsAre());
    Edit->Visible = true;
    Edit->Enabled = false;
    EXPECT_THAT(Typed('K'), ElementsAre());
    Edit->Enabled = true;
    EXPECT_THAT(Typed('K'), ElementsAre("Main"));
}

TEST_F(FormShortCuts, HandlersOfTheSubmenuDecideJustBefore)
{
    Form->Open();
    TMenuItem* Item = Edit->Items[0];
    Edit->OnClick = [&](TObject*) { Item->Enabled = false; };
    EXPECT_THAT(Typed('K'), ElementsAre());
    Edit->OnClick = [&](TObject*) { Item->Enabled = true; };
    EXPECT_THAT(Typed('K'), ElementsAre("Main"));
    OfForm->OnPopup = [&](TObject*) { Log.push_back("popup"); };
    Form->PopupMenu = OfForm;
    EXPECT_THAT(Typed('K'), ElementsAre("popup", "Form"));
    EXPECT_THAT(Typed('X'), ElementsAre()) << "the menu has no such key";
}

TEST_F(FormShortCuts, WantTheirShiftKeysAndNoOthers)
{
    Form->Open();
    TypeKey('K', {ssCtrl, ssShift});
    TypeKey('K', {});
    TypeKey('K', {ssAlt});
    EXPECT_TRUE(Log.empty());
    Edit->Items[0]->ShortCut = ShortCut('K', {ssAlt, ssShift});
    TypeKey('K', {ssAlt, ssShift});
    EXPECT_THAT(Log, ElementsAre("Main"));
    Edit->Items[0]->ShortCut = VK_F7;
    TypeKey(VK_F7);
    EXPECT_THAT(Log, ElementsAre("Main", "Main"));
}

TEST_F(FormShortCuts, AHandlerMayDeleteItsMenu)
{
    Form->Open();
    Edit->Items[0]->OnClick = [&](TObject*) { Log.push_back("last"); };
    Edit->OnClick = [&](TObject*) {
        delete Menu;
        Menu = nullptr;
    };
    EXPECT_THAT(Typed('K'), ElementsAre());
    EXPECT_EQ(Form->Menu, nullptr);
}

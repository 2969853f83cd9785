// Menus of forms, with real input.
#include "tests/forms/KeyTest.h"
#include "vcl/controls/GraphicControl.h"

using testing::ElementsAre;

namespace {

class FormMenus : public TKeyTest {
protected:
    void SetUp() override
    {
        TKeyTest::SetUp();
        auto Note = [this](TObject* Sender) { Log.push_back(StripHotkey(As<TMenuItem>(Sender)->Caption)); };
        Menu = new TMainMenu(Form.get());
        Menu->Items->Add(NewSubMenu("&File", 0, "",
                                    {NewItem("&Open", scNone, false, true, Note, 0, "", Form.get()),
                                     NewItem("&Save", ShortCut('S', {ssCtrl}), false, true, Note, 0, "", Form.get())},
                                    true, Form.get()));
        Menu->Items->Items[0]->Items[1]->Hint = "Save|Writes the file";
        Form->Menu = Menu;
    }

    TMainMenu* Menu = nullptr;
    TLog Log;
};

// Only counts how often it is to open.
class TCountedMenu : public TPopupMenu {
public:
    using TPopupMenu::TPopupMenu;

    void Popup(int, int) override { ++Popups; }

    int Popups = 0;
};

// Sends keys when the menu is open; the menu has its own message loop.
void KeysWhileMenuIsOpen(std::initializer_list<WORD> Keys)
{
    for (WORD Key : Keys)
        SendKey(Key);
}

} // namespace

TEST_F(FormMenus, ShortCutsWorkFromEveryControl)
{
    Form->Open();
    B->SetFocus();
    TypeKey('S', {ssCtrl});
    EXPECT_THAT(Log, ElementsAre("Save"));
    EXPECT_TRUE(B->Keys.empty() || B->Keys.back() != 'S') << "the key is used up";
    Menu->Items->Items[0]->Enabled = false;
    TypeKey('S', {ssCtrl});
    EXPECT_EQ(Log.size(), 1u);
}

TEST_F(FormMenus, TheBarWorksByKey)
{
    TLog Hints;
    Application->OnHint = [&](TObject*) { Hints.push_back(Application->Hint); };
    Form->Open();
    // Down to Save, with its hint told, then chosen.
    HWND Window = Form->Handle;
    SetTimer(Window, 77, 2000, [](HWND Owner, UINT, UINT_PTR Id, DWORD) {
        KillTimer(Owner, Id);
        EndMenu();
    });
    PostMessageW(Window, WM_SYSCOMMAND, SC_KEYMENU, 'f');
    KeysWhileMenuIsOpen({VK_DOWN, VK_RETURN});
    EXPECT_TRUE(PumpUntil([&] { return !Log.empty(); }));
    KillTimer(Window, 77);
    EXPECT_THAT(Log, ElementsAre("Save"));
    EXPECT_THAT(Hints, testing::Contains("Writes the file"));
    EXPECT_EQ(Application->Hint, "");
    Application->OnHint = nullptr;
}

TEST_F(FormMenus, ARightClickOpensThePopupMenuOfItsControl)
{
    auto* Popup = new TPopupMenu(Form.get());
    Popup->Items->Add(
        NewItem("&Mark", scNone, false, true, [this](TObject*) { Log.push_back("mark"); }, 0, "", Form.get()));
    Form->PopupMenu = Popup;
    Form->Open();
    MovePointerTo(B, 20, 10);
    HWND Window = Form->Handle;
    SetTimer(Window, 78, 30, [](HWND, UINT, UINT_PTR, DWORD) {
        if (FindWindowW(L"#32768", nullptr))
            KeysWhileMenuIsOpen({'M'});
    });
    ClickButton(mbRight);
    EXPECT_TRUE(PumpUntil([&] { return !Log.empty(); }));
    KillTimer(Window, 78);
    EXPECT_THAT(Log, testing::Contains("mark"));
    EXPECT_TRUE(Popup->PopupComponent == B || Popup->PopupComponent == Form.get());
    EXPECT_EQ(Popup->PopupPoint, B->ClientToScreen({20, 10}));
    MovePointerAway();
}

TEST_F(FormMenus, ARightClickOnAWindowlessControlOpensItsMenuOrThatOfItsParent)
{
    auto* OfForm = new TCountedMenu(Form.get());
    auto* Own = new TCountedMenu(Form.get());
    auto* Graphic = new TGraphicControl(Form.get());
    Graphic->SetBounds(Form->ClientWidth - 30, Form->ClientHeight - 30, 20, 20);
    Graphic->Parent = Form.get();
    Form->PopupMenu = OfForm;
    Form->Open();
    MovePointerTo(Graphic, 10, 10);
    ClickButton(mbRight);
    EXPECT_TRUE(PumpUntil([&] { return OfForm->Popups == 1; }));
    EXPECT_EQ(OfForm->PopupComponent, Form.get());
    Graphic->PopupMenu = Own;
    ClickButton(mbRight);
    EXPECT_TRUE(PumpUntil([&] { return Own->Popups == 1; }));
    EXPECT_EQ(Own->PopupComponent, Graphic);
    EXPECT_EQ(OfForm->Popups, 1);
    MovePointerAway();
}

TEST_F(FormMenus, TheMainMenuComesAndGoesWithItsItems)
{
    Form->Open();
    const int Height = Form->ClientHeight;
    EXPECT_NE(::GetMenu(Form->Handle), nullptr);
    Menu->Items->Items[0]->Visible = false;
    EXPECT_EQ(::GetMenu(Form->Handle), nullptr) << "no blank strip";
    EXPECT_GT(Form->ClientHeight, Height);
    Menu->Items->Items[0]->Visible = true;
    EXPECT_EQ(Form->ClientHeight, Height);
    delete Menu;
    EXPECT_EQ(Form->Menu, nullptr);
    EXPECT_EQ(::GetMenu(Form->Handle), nullptr);
}

TEST_F(FormMenus, DialogsShowNone)
{
    Form->BorderStyle = bsDialog;
    Form->Open();
    EXPECT_EQ(::GetMenu(Form->Handle), nullptr);
    Form->BorderStyle = bsSingle;
    EXPECT_NE(::GetMenu(Form->Handle), nullptr);
}

TEST_F(FormMenus, PopupShortCutsWorkWhileTheirControlHasTheFocus)
{
    auto* Popup = new TPopupMenu(Form.get());
    Popup->Items->Add(NewItem(
        "Mark", ShortCut('M', {ssCtrl}), false, true, [this](TObject*) { Log.push_back("mark"); }, 0, "", Form.get()));
    B->PopupMenu = Popup;
    Form->Open();
    TypeKey('M', {ssCtrl});
    EXPECT_TRUE(Log.empty());
    B->SetFocus();
    TypeKey('M', {ssCtrl});
    EXPECT_THAT(Log, ElementsAre("mark"));
}

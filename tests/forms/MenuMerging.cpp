// Forms whose menu is shown in the main form's bar.
#include "tests/forms/TestForms.h"
#include "vcl/menus/MainMenu.h"

using testing::ElementsAre;

namespace {

class FormMenuMerging : public testing::Test {
protected:
    void SetUp() override
    {
        Application->CreateForm(&Main);
        Tool = std::make_unique<TPlainForm>(nullptr);
        Tool->SetBounds(450, 100, 200, 150);
        MainMenu = MenuOf(Main, "File", 0, 'F');
        ToolMenu = MenuOf(Tool.get(), "Tool", 5, 'T');
        ToolMenu->AutoMerge = true;
    }
    void TearDown() override
    {
        Tool.reset();
        delete Main;
    }

    TMainMenu* MenuOf(TPlainForm* Form, const AnsiString& Caption, uint8_t Group, char Key)
    {
        auto* Menu = new TMainMenu(Form);
        auto Note = [this](TObject* Sender) { Log.push_back(StripHotkey(As<TMenuItem>(Sender)->Caption)); };
        TMenuItem* Top = NewSubMenu(
            Caption, 0, "",
            {NewItem("Do " + Caption, ShortCut(static_cast<uint16_t>(Key), {ssCtrl}), false, true, Note, 0, "", Form)},
            true, Form);
        Top->GroupIndex = Group;
        Menu->Items->Add(Top);
        Form->Menu = Menu;
        return Menu;
    }

    TPlainForm* Main = nullptr;
    std::unique_ptr<TPlainForm> Tool;
    TMainMenu* MainMenu = nullptr;
    TMainMenu* ToolMenu = nullptr;
    TLog Log;
};

} // namespace

TEST_F(FormMenuMerging, LastsFromTheFirstActivationUntilTheFormHides)
{
    Main->Open();
    EXPECT_EQ(MainMenu->Merged, nullptr);
    Tool->Open();
    EXPECT_EQ(::GetMenu(Tool->Handle), nullptr) << "no bar of its own";
    EXPECT_EQ(GetMenuItemCount(::GetMenu(Main->Handle)), 2);
    Main->Open();
    EXPECT_EQ(MainMenu->Merged, ToolMenu) << "the bar could not be used otherwise";
    Tool->Hide();
    EXPECT_EQ(GetMenuItemCount(::GetMenu(Main->Handle)), 1);
}

TEST_F(FormMenuMerging, ShortCutsOfTheMergedMenuWorkFromBothForms)
{
    Main->Open();
    TypeKey('T', {ssCtrl});
    EXPECT_TRUE(Log.empty()) << "not merged yet";
    Tool->Open();
    TypeKey('T', {ssCtrl});
    TypeKey('F', {ssCtrl});
    Main->Open();
    TypeKey('T', {ssCtrl});
    EXPECT_THAT(Log, ElementsAre("Do Tool", "Do File", "Do Tool"));
}

TEST_F(FormMenuMerging, CommandsOfTheMainFormsBarReachTheMergedMenu)
{
    Main->Open();
    Tool->Open();
    PostMessageW(Main->Handle, WM_COMMAND, ToolMenu->Items->Items[0]->Items[0]->Command, 0);
    EXPECT_TRUE(PumpUntil([&] { return !Log.empty(); }));
    EXPECT_THAT(Log, ElementsAre("Do Tool"));
}

TEST_F(FormMenuMerging, EndsWithTheFormItsMenuOrAnotherMenu)
{
    Main->Open();
    Tool->Open();
    delete ToolMenu;
    EXPECT_EQ(MainMenu->Merged, nullptr);
    ToolMenu = MenuOf(Tool.get(), "Again", 5, 'A');
    ToolMenu->AutoMerge = true;
    Main->Open();
    Tool->Open();
    EXPECT_EQ(MainMenu->Merged, ToolMenu);
    Tool->Menu = nullptr;
    EXPECT_EQ(MainMenu->Merged, nullptr);
    Tool->Menu = ToolMenu;
    Main->Open();
    Tool->Open();
    Tool.reset();
    EXPECT_EQ(MainMenu->Merged, nullptr);
    EXPECT_EQ(GetMenuItemCount(::GetMenu(Main->Handle)), 1);
}

TEST_F(FormMenuMerging, WithoutAutoMergeEveryFormHasItsBar)
{
    ToolMenu->AutoMerge = false;
    Main->Open();
    Tool->Open();
    EXPECT_NE(::GetMenu(Tool->Handle), nullptr);
    EXPECT_EQ(MainMenu->Merged, nullptr);
}

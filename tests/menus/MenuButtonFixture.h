// A form with a bar of three menu buttons: File, Edit and Help.
#pragma once

#include "common/PointInRect.h"
#include "tests/menus/MenuScript.h"
#include "toolbar/Tsy_toolbar.h"

#include <gmock/gmock.h>

class MenuButtonFixture : public TFormTest {
protected:
    static void SetUpTestSuite() { MakeWhatMenusShare(); }
    void SetUp() override
    {
        Dock = new TkelDock(Form.get());
        Dock->Height = 0;
        Dock->Parent = Form.get();
        Bar = new TkelToolBar(Form.get());
        Bar->AutoSave = false;
        Bar->Caption = "Menus";
        Bar->Parent = Dock;
        Bar->Width = 300;
        Bar->InsertToDock();
        File = AddButton("&File", {"&Open", "&Save", "E&xit"});
        Edit = AddButton("&Edit", {"Cu&t", "&Copy"});
        Help = AddButton("&Help", {"&About"});
        Show();
    }
    void TearDown() override
    {
        ReleaseButton();
        EXPECT_FALSE(TMenuTracking::Get().IsTracking());
    }

    TkelMenuButton* AddButton(const AnsiString& Caption, std::initializer_list<const char*> Items)
    {
        auto* Menu = new TkelOfficePopupMenu(Form.get());
        for (const char* Item : Items) {
            Menu->Items->Add(NewItem(
                Item, scNone, false, true,
                [this](TObject* Sender) { Chosen.push_back(As<TMenuItem>(Sender)->Caption); }, 0, "", Menu));
        }
        auto* Button = new TkelMenuButton(Form.get());
        Button->Caption = Caption;
        Button->Width = 50;
        Button->Left = 1000;
        Button->Align = alLeft;
        Button->Menu = Menu;
        Button->Parent = Bar;
        return Button;
    }

    static bool PointerIsOn(const TControl* Control)
    {
        TPoint Pointer;
        GetCursorPos(&Pointer);
        return PointInRect(Control->ScreenToClient(Pointer), Control->ClientRect);
    }
    void ExpectIdle()
    {
        EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
        for (const TkelMenuButton* Button : {File, Edit, Help}) {
            EXPECT_FALSE(Button->Hot) << Button->Caption;
            EXPECT_FALSE(Button->Down) << Button->Caption;
        }
    }

    TkelDock* Dock = nullptr;
    TkelToolBar* Bar = nullptr;
    TkelMenuButton* File = nullptr;
    TkelMenuButton* Edit = nullptr;
    TkelMenuButton* Help = nullptr;
    std::vector<AnsiString> Chosen;
    TScript Script;
};

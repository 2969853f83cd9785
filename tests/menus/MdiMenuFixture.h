// An MDI form with a menu bar, and children that bring menus along.
#pragma once

#include "menus/MDIChildMenuBar.h"
#include "tests/menus/MenuScript.h"
#include "tests/support/FormText.h"
#include "toolbar/Tsy_toolbar.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Format.h"

#include <gmock/gmock.h>

inline constexpr const char* MainText = R"(object MdiMain: TMdiMain
  Left = 50
  Top = 50
  ClientWidth = 600
  ClientHeight = 400
  FormStyle = fsMDIForm
  object Dock: TkelDock
    Left = 0
    Top = 0
    Width = 600
    Height = 26
    Align = alTop
    object Bar: TkelMenuBar
      Left = 0
      Top = 0
      Width = 600
      Height = 26
      AutoSave = False
      object FileButton: TkelMenuButton
        Left = 20
        Top = 2
        Width = 50
        Height = 22
        Caption = '&File'
        Menu = FileMenu
        Align = alLeft
      end
      object ViewButton: TkelMenuButton
        Left = 70
        Top = 2
        Width = 50
        Height = 22
        Caption = '&View'
        Menu = ViewMenu
        MenuGroupIndex = 5
        Align = alLeft
      end
      object HelpButton: TkelMenuButton
        Left = 120
        Top = 2
        Width = 50
        Height = 22
        Caption = '&Help'
        Menu = HelpMenu
        MenuGroupIndex = 5
        Align = alLeft
      end
    end
  end
  object Side: TkelDock
    Left = 0
    Top = 26
    Width = 0
    Height = 374
    Align = alLeft
  end
  object FileMenu: TkelOfficePopupMenu
    object OpenItem: TMenuItem
      Caption = '&Open'
      ShortCut = 16463
    end
  end
  object ViewMenu: TkelOfficePopupMenu
    object ZoomItem: TMenuItem
      Caption = '&Zoom'
    end
  end
  object HelpMenu: TkelOfficePopupMenu
    object AboutItem: TMenuItem
      Caption = '&About'
    end
  end
end
)";

// %s: the properties of the bar and of the last button.
inline constexpr const char* ChildText = R"(object MdiChild: TMdiChild
  ClientWidth = 300
  ClientHeight = 200
  FormStyle = fsMDIChild
  object Dock: TkelDock
    Left = 0
    Top = 0
    Width = 300
    Height = 26
    Align = alTop
    object Bar: TkelMDIChildMenuBar
      Left = 0
      Top = 0
      Width = 300
      Height = 26
      AutoSave = False
      %s
      object EditButton: TkelMenuButton
        Left = 20
        Top = 2
        Width = 50
        Height = 22
        Caption = '&Edit'
        Menu = EditMenu
        MenuGroupIndex = %d
        Align = alLeft
      end
      object TextButton: TkelMenuButton
        Left = 70
        Top = 2
        Width = 50
        Height = 22
        Caption = '&Text'
        Menu = TextMenu
        MenuGroupIndex = %d
        Align = alLeft
      end
    end
  end
  object Memo: TMemo
    Left = 0
    Top = 26
    Width = 300
    Height = 174
    Align = alClient
  end
  object EditMenu: TkelOfficePopupMenu
    object CopyItem: TMenuItem
      Caption = '&Copy'
      ShortCut = 16459
    end
  end
  object TextMenu: TkelOfficePopupMenu
    object BoldItem: TMenuItem
      Caption = '&Bold'
    end
  end
end
)";

class TMdiMain : public TForm {
    VCL_CLASS(TMdiMain, TForm)
public:
    explicit TMdiMain(TComponent* AOwner) : TForm(AOwner, 0) { ReadFormText(this, MainText); }
};

inline void TMdiMain::Describe(TClassBuilder<TMdiMain>&)
{}

struct TChildSetup {
    int EditGroup = 1;
    int TextGroup = 9;
    const char* BarText = "";
};

class TMdiChild : public TForm {
    VCL_CLASS(TMdiChild, TForm)
public:
    explicit TMdiChild(TComponent* AOwner, const TChildSetup& Setup = {}) : TForm(AOwner, 0)
    {
        ReadFormText(this, Format(ChildText, Setup.BarText, Setup.EditGroup, Setup.TextGroup));
        OnClose = [](TObject*, TCloseAction& Action) { Action = caFree; };
    }
    template <class T>
    T* Find(const AnsiString& Name) const
    {
        return As<T>(FindComponent(Name));
    }
    TkelMDIChildMenuBar* Bar() const { return Find<TkelMDIChildMenuBar>("Bar"); }
    TkelMenuButton* Edit() const { return Find<TkelMenuButton>("EditButton"); }
    TkelMenuButton* Text() const { return Find<TkelMenuButton>("TextButton"); }
};

inline void TMdiChild::Describe(TClassBuilder<TMdiChild>&)
{}

class MdiMenuFixture : public testing::Test {
protected:
    static void SetUpTestSuite() { MakeWhatMenusShare(); }
    void SetUp() override
    {
        UseMessageLoop([] { Application->ProcessMessages(); });
        Application->CreateForm(&Main);
        Bar = As<TkelMenuBar>(Main->FindComponent("Bar"));
        Main->Show();
        ASSERT_TRUE(PumpUntil([&] { return GetForegroundWindow() == Main->Handle && IsAsLongAsItsDock(); }));
    }
    void TearDown() override
    {
        MovePointerAway();
        delete Main;
        PumpMessages();
        UseMessageLoop(nullptr);
        EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
    }

    bool IsAsLongAsItsDock() const { return Bar->Width == Bar->Dock->Width; }
    TMdiChild* NewChild(const TChildSetup& Setup = {})
    {
        auto* Child = new TMdiChild(Main, Setup);
        PumpMessages();
        return Child;
    }
    static void Activate(TForm* Child)
    {
        Child->BringToFront();
        PumpMessages();
    }
    // The captions of the menu buttons that a bar shows, as they lie.
    static std::vector<AnsiString> Shown(const TkelToolBar* Bar)
    {
        std::vector<const TControl*> Buttons;
        for (int I = 0; I < Bar->ControlCount; ++I)
            if (const auto* Button = As<TkelMenuButton>(Bar->Controls[I]))
                Buttons.push_back(Button);
        std::ranges::sort(Buttons, {}, [](const TControl* Each) { return Each->Left + Each->Top; });
        std::vector<AnsiString> Captions;
        for (const TControl* Button : Buttons)
            Captions.push_back(Button->GetText());
        return Captions;
    }
    static std::vector<AnsiString> InOrder(const TkelToolBar* Bar)
    {
        std::vector<AnsiString> Captions;
        for (const TControl* Item : Bar->Items())
            if (As<TkelMenuButton>(Item))
                Captions.push_back(Item->GetText());
        return Captions;
    }
    TkelMenuButton* Button(const AnsiString& Name) const { return As<TkelMenuButton>(Main->FindComponent(Name)); }

    TMdiMain* Main = nullptr;
    TkelMenuBar* Bar = nullptr;
    TScript Script;
};

#include "common/SavePos.h"

#include "common/Settings.h"
#include "tests/common/SettingsFixture.h"
#include "tests/support/FormText.h"
#include "tests/support/Input.h"
#include "vcl/forms/DataModule.h"

#include <set>

namespace {

constexpr char Section[] = "Windows\\Form1";

std::set<HWND> UtilityWindows()
{
    std::set<HWND> Windows;
    auto Add = [](HWND Window, LPARAM Set) -> BOOL {
        wchar_t Name[64];
        GetClassNameW(Window, Name, 64);
        if (std::wstring_view(Name) == L"TessaryUtilityWindow")
            reinterpret_cast<std::set<HWND>*>(Set)->insert(Window);
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), Add, reinterpret_cast<LPARAM>(&Windows));
    return Windows;
}

class SavePosTest : public TSettingsTest {
protected:
    static void SetUpTestSuite() { Application->GetHandle(); }

    static std::unique_ptr<TForm> NewForm(const AnsiString& Name = "Form1")
    {
        auto Form = std::make_unique<TForm>(nullptr);
        Form->Name = Name;
        Form->SetBounds(11, 22, 333, 244);
        return Form;
    }
    // Sends to the hidden windows that came since the test began.
    LRESULT SendToHiddenWindow(unsigned Msg, LPARAM LParam = 0)
    {
        LRESULT Result = -1;
        for (HWND Window : UtilityWindows())
            if (!Before.contains(Window))
                Result = SendMessageW(Window, Msg, 0, LParam);
        return Result;
    }
    void ExpectSaved(const char* In, const char* Left, const char* Top, const char* Width, const char* Height)
    {
        EXPECT_THAT(Saved(In, "Minimized"), Is("0"));
        EXPECT_THAT(Saved(In, "Maximized"), Is("0"));
        EXPECT_THAT(Saved(In, "Left"), Is(Left));
        EXPECT_THAT(Saved(In, "Top"), Is(Top));
        EXPECT_THAT(Saved(In, "Width"), Is(Width));
        EXPECT_THAT(Saved(In, "Height"), Is(Height));
    }

    std::set<HWND> Before = UtilityWindows();
};

// Says something to the hidden windows while its form is being deleted.
class TLastWords : public TComponent {
public:
    TLastWords(TComponent* AOwner, std::function<void()> Say) : TComponent(AOwner), FSay(std::move(Say)) {}
    ~TLastWords() override { FSay(); }

private:
    std::function<void()> FSay;
};

} // namespace

TEST_F(SavePosTest, TheFormIsRestoredWhenTheComponentIsCreated)
{
    WriteInteger(Section, "Left", 44);
    WriteInteger(Section, "Height", 155);
    WriteBool(Section, "Maximized", true);
    const auto Form = NewForm();
    new TkelSavePos(Form.get());
    EXPECT_EQ(Form->BoundsRect, TRect(44, 22, 44 + 333, 22 + 155));
    EXPECT_EQ(Form->WindowState, wsMaximized);
}

TEST_F(SavePosTest, TheFormIsSavedAsItWasAtTheLastMessage)
{
    auto Form = NewForm();
    new TkelSavePos(Form.get());
    SendToHiddenWindow(WM_NULL);
    Form->SetBounds(50, 60, 400, 300);
    SendToHiddenWindow(WM_USER);
    Form->SetBounds(70, 80, 500, 350); // nobody notices
    Form.reset();
    ExpectSaved(Section, "50", "60", "400", "300");
}

TEST_F(SavePosTest, TheNameIsThatOfTheLastMessage)
{
    auto Form = NewForm();
    new TkelSavePos(Form.get());
    SendToHiddenWindow(WM_NULL);
    Form->Name = "Form2";
    Form.reset();
    ExpectSaved(Section, "11", "22", "333", "244");
    EXPECT_FALSE(Store.HasKey("Windows\\Form2"));
}

TEST_F(SavePosTest, MinimizedAndMaximizedFormsKeepTheirOlderBounds)
{
    for (const TWindowState State : {wsMinimized, wsMaximized}) {
        WriteInteger(Section, "Left", 11);
        auto Form = NewForm();
        new TkelSavePos(Form.get());
        Form->SetBounds(50, 60, 400, 300);
        Form->WindowState = State;
        SendToHiddenWindow(WM_NULL);
        Form.reset();
        EXPECT_THAT(Saved(Section, "Minimized"), Is(State == wsMinimized ? "1" : "0"));
        EXPECT_THAT(Saved(Section, "Left"), Is("11"));
        EXPECT_EQ(Saved(Section, "Top"), std::nullopt);
    }
    EXPECT_THAT(Saved(Section, "Maximized"), Is("1"));
}

TEST_F(SavePosTest, WithoutAnyMessageZerosAreSavedUnderNoName)
{
    auto Form = NewForm();
    new TkelSavePos(Form.get());
    Form.reset();
    ExpectSaved("Windows", "0", "0", "0", "0");
    EXPECT_FALSE(Store.HasKey(Section));
}

TEST_F(SavePosTest, NothingIsSavedOrRestoredWhenTheApplicationSaysSo)
{
    WriteInteger(Section, "Left", 44);
    WriteBool("Configuration", "SaveWindowPos", false);
    auto Form = NewForm();
    new TkelSavePos(Form.get());
    EXPECT_EQ(Form->Left, 11);
    SendToHiddenWindow(WM_NULL);
    Form.reset();
    EXPECT_THAT(Saved(Section, "Left"), Is("44"));
    EXPECT_EQ(Saved(Section, "Minimized"), std::nullopt);
}

TEST_F(SavePosTest, MessagesAreAnsweredWithZeroAndGoNoFurther)
{
    const auto Form = NewForm();
    new TkelSavePos(Form.get());
    EXPECT_EQ(SendToHiddenWindow(WM_SETTEXT, reinterpret_cast<LPARAM>(L"A caption")), 0); // the system's answer is 1
    EXPECT_EQ(SendToHiddenWindow(WM_GETTEXTLENGTH), 0);
    EXPECT_EQ(SendToHiddenWindow(WM_NCHITTEST), 0);
}

TEST_F(SavePosTest, TheUsersSessionMayEnd)
{
    const auto Form = NewForm();
    new TkelSavePos(Form.get());
    EXPECT_EQ(SendToHiddenWindow(WM_QUERYENDSESSION), 1);
    EXPECT_EQ(SendToHiddenWindow(WM_ENDSESSION), 0);
}

// Nothing but the form itself tells that it comes and goes while the program stays active.
TEST_F(SavePosTest, AModalFormIsSavedAsItWasClosed)
{
    auto Main = NewForm("Main");
    Main->Show();
    ASSERT_TRUE(PumpUntil([&] { return GetForegroundWindow() == Main->Handle && Main->Active; }));
    auto Form = NewForm();
    new TkelSavePos(Form.get());
    Form->OnShow = [&](TObject*) { PostMessageW(Form->Handle, WM_APP, 0, 0); };
    Application->OnMessage = [&](MSG& Message, bool&) {
        if (Message.message != WM_APP)
            return;
        Form->SetBounds(50, 60, 400, 300);
        Form->ModalResult = mrOk;
    };
    Form->ShowModal();
    Application->OnMessage = nullptr;
    Form.reset();
    ExpectSaved(Section, "50", "60", "400", "300");
}

TEST_F(SavePosTest, EachMoveResizeAndHideOfTheFormIsNoticed)
{
    auto Form = NewForm();
    new TkelSavePos(Form.get());
    Form->Show();
    Form->Hide();
    Form->SetBounds(50, 60, 400, 300);
    Form->Width = 410;
    Form.reset();
    ExpectSaved(Section, "50", "60", "410", "300");
}

TEST_F(SavePosTest, TheFormOutlivesTheComponent)
{
    auto Form = NewForm();
    auto* SavePos = new TkelSavePos(Form.get());
    Form->Show();
    delete SavePos;
    Form->SetBounds(50, 60, 400, 300);
    EXPECT_EQ(Form->Left, 50);
}

TEST_F(SavePosTest, TheHiddenWindowGoesWithTheComponent)
{
    const auto Form = NewForm();
    auto* SavePos = new TkelSavePos(Form.get());
    EXPECT_EQ(UtilityWindows().size(), Before.size() + 1);
    delete SavePos;
    EXPECT_EQ(UtilityWindows(), Before);
}

TEST_F(SavePosTest, InTheDesignerNothingHappens)
{
    WriteInteger(Section, "Left", 44);
    auto Form = NewForm();
    Form->SetDesigning(true);
    new TkelSavePos(Form.get());
    EXPECT_EQ(Form->Left, 11);
    EXPECT_EQ(UtilityWindows(), Before);
    Form.reset();
    EXPECT_EQ(Saved(Section, "Minimized"), std::nullopt);
    EXPECT_EQ(Saved("Windows", "Minimized"), std::nullopt);
}

TEST_F(SavePosTest, OwnersThatAreNoFormsAreLeftAlone)
{
    TDataModule Module(nullptr);
    Module.Name = "Module1";
    delete new TkelSavePos(nullptr);
    auto* SavePos = new TkelSavePos(&Module);
    EXPECT_EQ(SendToHiddenWindow(WM_NULL), 0);
    delete SavePos;
    ExpectSaved("Windows", "0", "0", "0", "0");
    EXPECT_FALSE(Store.HasKey("Windows\\Module1"));
}

TEST_F(SavePosTest, AFormThatIsDeletedIsSeenAsLongAsItIsWhole)
{
    auto Form = NewForm();
    new TkelSavePos(Form.get());
    new TLastWords(Form.get(), [this] { SendToHiddenWindow(WM_NULL); });
    Form.reset();
    ExpectSaved(Section, "11", "22", "333", "244");
}

TEST_F(SavePosTest, AFormWhoseDestructorsRunIsNotSeenAnyMore)
{
    {
        TForm Form(nullptr); // on the stack, its components go last
        Form.Name = "Form1";
        Form.SetBounds(11, 22, 333, 244);
        new TkelSavePos(&Form);
        SendToHiddenWindow(WM_NULL);
        new TLastWords(&Form, [this] { EXPECT_EQ(SendToHiddenWindow(WM_NULL), 0); });
        Form.SetBounds(50, 60, 400, 300);
    }
    ExpectSaved(Section, "11", "22", "333", "244");
}

TEST_F(SavePosTest, WhatCannotBeSavedIsReported)
{
    std::string Reported;
    Application->OnException = [&](TObject*, Exception* E) { Reported = E->ClassName(); };
    auto Form = NewForm(std::string(300, 'n'));
    new TkelSavePos(Form.get());
    SendToHiddenWindow(WM_NULL);
    Form.reset();
    Application->OnException = nullptr;
    EXPECT_EQ(Reported, "ERegistryException");
}

TEST_F(SavePosTest, FormFilesMayHoldIt)
{
    WriteInteger(Section, "Left", 44);
    WriteInteger(Section, "Width", 555);
    ASSERT_NE(GetClass("TkelSavePos"), nullptr);
    auto Form = NewForm("");
    ReadFormText(Form.get(), "object Form1: TForm\n"
                             "  Left = 1\n"
                             "  Top = 2\n"
                             "  Width = 300\n"
                             "  Height = 200\n"
                             "  object SavePos1: TkelSavePos\n"
                             "    Left = 8\n"
                             "    Top = 16\n"
                             "  end\n"
                             "end\n");
    EXPECT_EQ(Form->BoundsRect, TRect(44, 2, 44 + 555, 2 + 200));
    EXPECT_NE(As<TkelSavePos>(Form->FindComponent("SavePos1")), nullptr);
    EXPECT_THAT(FormText(Form.get()), testing::HasSubstr("  object SavePos1: TkelSavePos\n"
                                                         "    Left = 8\n"
                                                         "    Top = 16\n"
                                                         "  end\n"));
}

TEST_F(SavePosTest, TheClientSizeInAFormFileGivesWay)
{
    auto Form = NewForm("");
    const char Text[] = "object Form1: TForm\n"
                        "  AutoScroll = False\n"
                        "  ClientHeight = 190\n"
                        "  ClientWidth = 290\n"
                        "  object SavePos1: TkelSavePos\n"
                        "  end\n"
                        "end\n";
    ReadFormText(Form.get(), Text);
    EXPECT_EQ(Form->ClientRect, TRect(0, 0, 290, 190)); // nothing was saved yet
    Form = NewForm("");
    WriteInteger(Section, "Width", 555);
    ReadFormText(Form.get(), Text);
    EXPECT_EQ(Form->Width, 555);
    EXPECT_EQ(Form->ClientHeight, 190);
}

// ---- from one run of a program to the next

TEST_F(SavePosTest, TheNextRunOfTheProgramFindsTheFormWhereTheUserLeftIt)
{
    const auto Form = NewForm();
    ASSERT_TRUE(PassesInAnotherProcess("SavePosTest.DISABLED_AFormIsMovedAndTheProgramEnds"));
    new TkelSavePos(Form.get());
    EXPECT_EQ(Form->BoundsRect, TRect(50, 60, 50 + 400, 60 + 300));
}

// The system tells the program's windows of its own accord.
TEST_F(SavePosTest, DISABLED_AFormIsMovedAndTheProgramEnds)
{
    auto Form = NewForm();
    new TkelSavePos(Form.get());
    Form->Show();
    ASSERT_TRUE(PumpUntil([&] { return GetForegroundWindow() == Form->Handle && Form->Active; }));
    Form->SetBounds(50, 60, 400, 300);
}

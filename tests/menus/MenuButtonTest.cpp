// Menu buttons under a real mouse, in other places than a bar at the top, and what may go while their menus are open.
#include "tests/menus/MenuButtonFixture.h"
#include "tests/support/FormText.h"
#include "tests/support/Reports.h"
#include "toolbar/Flpfrm97.h"

using testing::ElementsAre;

namespace {

class MenuButtonTest : public MenuButtonFixture {};

} // namespace

TEST_F(MenuButtonTest, AButtonPublishesItsProperties)
{
    const std::vector<std::string> Published = PublishedFrom(TkelMenuButton::StaticClass(), "Align");
    EXPECT_THAT(Published, testing::Contains("Align = alNone"));
    EXPECT_THAT(Published, testing::Contains("Menu"));
    EXPECT_THAT(Published, testing::Contains("MenuGroupIndex = 0"));
}

TEST_F(MenuButtonTest, APressOpensTheMenuBelowTheButtonWhichStaysDown)
{
    TRect Window;
    bool WasDown = false;
    Script.When(IsOpen(File), [&] {
        GetWindowRect(FindWindowW(L"#32768", nullptr), &Window);
        WasDown = File->Down && File->Hot;
        SendKey(VK_ESCAPE);
    });
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_TRUE(WasDown);
    const TPoint Corner = File->ClientToScreen({0, File->Height});
    EXPECT_EQ(Window.left, Corner.X);
    EXPECT_EQ(Window.top, Corner.Y);
    ExpectIdle();
}

TEST_F(MenuButtonTest, ThePointerGoesOnToTheNextMenu)
{
    Script.When(IsOpen(File), PointTo(Edit));
    Script.When(PointingOpens(Edit), PointTo(Help));
    Script.When(PointingOpens(Help), PointTo(File));
    Script.When(PointingOpens(File), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    ExpectIdle();
}

TEST_F(MenuButtonTest, TheButtonThatThePointerHasLeftIsFlatAtOnce)
{
    // With a menu open nobody is told that the pointer leaves.
    const auto Corner = [&] {
        HDC Context = GetDC(Bar->Handle);
        const TColor Color = static_cast<TColor>(GetPixel(Context, File->Left, File->Top));
        ReleaseDC(Bar->Handle, Context);
        return Color;
    };
    TColor OnIt = clNone;
    TColor Left = clNone;
    Script.When(IsOpen(File), [&] {
        OnIt = Corner();
        PointTo(Edit)();
    });
    Script.When(PointingOpens(Edit), [&] {
        Left = Corner();
        SendKey(VK_ESCAPE);
    });
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_EQ(OnIt, static_cast<TColor>(ColorToRGB(clBtnShadow)));
    EXPECT_EQ(Left, static_cast<TColor>(ColorToRGB(clBtnFace)));
}

TEST_F(MenuButtonTest, AClickOnTheButtonOfTheOpenMenuClosesIt)
{
    Script.When(IsOpen(File), [] {
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    ClickToOpen(File);
    PumpMessages();
    EXPECT_TRUE(Script.IsDone());
    ExpectIdle();
}

TEST_F(MenuButtonTest, AnItemIsChosenByGoingOnToItWithTheButtonHeld)
{
    Script.When(IsOpen(File), [&] { SendMove(File->ClientToScreen({20, File->Height + 32})); });
    Script.When([] { return true; }, [] { SendButton(mbLeft, false); });
    MovePointerTo(File, 10, 10);
    SendButton(mbLeft, true);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Save"));
    ExpectIdle();
}

TEST_F(MenuButtonTest, ButtonsThatCannotBeUsedArePassedOver)
{
    Edit->Enabled = false;
    TypeKey(VK_F10);
    TypeKey(VK_RIGHT);
    EXPECT_TRUE(Help->Hot);
    TypeKey(VK_ESCAPE);
    Script.When(IsOpen(File), PointTo(Edit));
    Script.When([&] { return IsOpen(File)() && PointerIsOn(Edit); }, PointTo(Help));
    Script.When(PointingOpens(Help), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
}

// ---- other places

TEST_F(MenuButtonTest, InAVerticalBarTheMenuOpensBesideTheButton)
{
    auto* Side = new TkelDock(Form.get());
    Side->Align = alLeft;
    Side->Width = 0;
    Side->Parent = Form.get();
    Bar->DeleteFromDock();
    Bar->Parent = Side;
    Bar->InsertToDock();
    PumpMessages();
    ASSERT_EQ(Edit->Align, alTop);
    EXPECT_GT(Edit->Height, Edit->Width);
    TRect Window;
    Script.When(IsOpen(Edit), [&] {
        GetWindowRect(FindWindowW(L"#32768", nullptr), &Window);
        SendKey(VK_RIGHT);
    });
    Script.When(IsOpen(Help), PointTo(File));
    Script.When(PointingOpens(File), Type(VK_ESCAPE));
    ClickToOpen(Edit);
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
    const TPoint Corner = Edit->ClientToScreen({Edit->Width, 0});
    EXPECT_EQ(Window.left, Corner.X);
    EXPECT_EQ(Window.top, Corner.Y);
    ExpectIdle();
}

TEST_F(MenuButtonTest, AFloatingBarWorksFromItsFormAndFromItsFrame)
{
    Bar->FloatToPos(120, 260);
    ASSERT_TRUE(Bar->Floating);
    PumpMessages();
    for (TForm* Active : {Form.get(), static_cast<TForm*>(Bar->Frame)}) {
        Active->SetFocus();
        SetForegroundWindow(Active->Handle);
        ASSERT_TRUE(PumpUntil([&] { return Screen->ActiveCustomForm == Active; }));
        TypeKey(VK_MENU);
        EXPECT_TRUE(File->Hot);
        TypeKey(VK_ESCAPE);
        Script.When(IsOpen(Edit), Type(VK_ESCAPE));
        TypeKey('E', {ssAlt});
        EXPECT_TRUE(PumpUntil([&] { return Script.IsDone() && !TMenuTracking::Get().IsTracking(); }));
        ExpectIdle();
    }
}

TEST_F(MenuButtonTest, OnClickComesBeforeEveryOpening)
{
    std::vector<AnsiString> Opened;
    for (TkelMenuButton* Button : {File, Edit, Help})
        Button->OnClick = [&](TObject* Sender) { Opened.push_back(As<TkelMenuButton>(Sender)->Caption); };
    Script.When(IsOpen(File), PointTo(Edit));
    Script.When(PointingOpens(Edit), Type(VK_RIGHT));
    Script.When(IsOpen(Help), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
    EXPECT_THAT(Opened, ElementsAre("&File", "&Edit", "&Help"));
}

TEST_F(MenuButtonTest, AButtonWithoutAMenuIsAnOrdinaryOne)
{
    int Clicks = 0;
    Help->Menu = nullptr;
    Help->OnClick = [&](TObject*) { ++Clicks; };
    ClickOn(Help);
    EXPECT_EQ(Clicks, 1);
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, AMenuOfAnotherKindOpensToo)
{
    auto* Menu = new TPopupMenu(Form.get());
    Menu->Items->Add(
        NewItem("&About", scNone, false, true, [this](TObject*) { Chosen.push_back("About"); }, 0, "", Menu));
    Help->Menu = Menu;
    Script.When([&] { return TMenuTracking::Get().Current() == Help && FindWindowW(L"#32768", nullptr); }, Type('A'));
    ClickToOpen(Help);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    ExpectIdle();
}

// ---- menus with nothing in them

TEST_F(MenuButtonTest, ThePointerGoesOnOverAnEmptyMenuToTheNext)
{
    Edit->Menu->Items->Clear();
    Script.When(IsOpen(File), PointTo(Edit));
    Script.When([&] { return TMenuTracking::Get().Current() == Edit && !TWhileMenuOpen::IsOpen(); }, PointTo(Help));
    Script.When(PointingOpens(Help), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone() && !TMenuTracking::Get().IsTracking(); })) << Script.StepsDone();
    ExpectIdle();
}

TEST_F(MenuButtonTest, TheArrowsGoOnOverButtonsWithNothingToShow)
{
    int Clicks = 0;
    Edit->Menu->Items->Clear();
    Help->Menu = nullptr;
    Help->OnClick = [&](TObject*) { ++Clicks; };
    const auto IsShut = [](const TkelMenuButton* Button) {
        return [=] { return TMenuTracking::Get().Current() == Button && !TWhileMenuOpen::IsOpen() && Button->Hot; };
    };
    Script.When(IsOpen(File), Type(VK_RIGHT));
    Script.When(IsShut(Edit), Type(VK_RIGHT));
    Script.When(IsShut(Help), Type(VK_RIGHT));
    Script.When(IsOpen(File), Type(VK_LEFT));
    Script.When(IsShut(Help), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone() && !TMenuTracking::Get().IsTracking(); })) << Script.StepsDone();
    PumpMessages();
    EXPECT_EQ(Clicks, 0) << "nobody has clicked it";
    ExpectIdle();
}

TEST_F(MenuButtonTest, ThePointerGoesOnOverAButtonWithoutAMenu)
{
    Edit->Menu = nullptr;
    Script.When(IsOpen(File), PointTo(Edit));
    Script.When([&] { return TMenuTracking::Get().Current() == Edit && !TWhileMenuOpen::IsOpen(); }, PointTo(Help));
    Script.When(PointingOpens(Help), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone() && !TMenuTracking::Get().IsTracking(); })) << Script.StepsDone();
    ExpectIdle();
}

TEST_F(MenuButtonTest, OverAnEmptyMenuAPressElsewhereLeaves)
{
    Edit->Menu->Items->Clear();
    const auto IsShut = [&] { return TMenuTracking::Get().Current() == Edit && !TWhileMenuOpen::IsOpen(); };
    Script.When(IsOpen(File), Type(VK_RIGHT));
    ClickToOpen(File);
    EXPECT_TRUE(PumpUntil(IsShut));
    MovePointerTo(Form.get(), 200, 200);
    ClickButton();
    ExpectIdle();
    PointTo(Help)();
    PumpMessages();
    EXPECT_FALSE(TWhileMenuOpen::IsOpen());
    ClickOn(Edit);
    ExpectIdle();
}

TEST_F(MenuButtonTest, AButtonOutsideOfAllWindowsOpensNothing)
{
    TReports Reports;
    File->OnClick = [&](TObject*) { File->Parent = nullptr; };
    ClickToOpen(File);
    EXPECT_THAT(Reports.Texts(), ElementsAre());
    ExpectIdle();
}

// ---- what fails

class TFailingButton : public TkelMenuButton {
public:
    using TkelMenuButton::TkelMenuButton;
    bool Fails = false;

protected:
    void Paint() override
    {
        if (std::exchange(Fails, false))
            throw EInvalidOperation("cannot paint");
        TkelMenuButton::Paint();
    }
};

TEST_F(MenuButtonTest, WhatFailsInAHookIsReported)
{
    TReports Reports;
    auto* Failing = new TFailingButton(Form.get());
    Failing->Left = -1;
    Failing->Align = alLeft;
    Failing->Menu = File->Menu;
    Failing->Parent = Bar;
    PumpMessages();
    Failing->Left = -1;
    Failing->Fails = true;
    TypeKey(VK_F10);
    PumpMessages();
    EXPECT_FALSE(Failing->Fails);
    EXPECT_THAT(Reports.Texts(), ElementsAre(testing::HasSubstr("cannot paint")));
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
    Failing->Fails = true;
    MovePointerTo(Form.get(), 200, 200);
    TypeKey(VK_F10);
    Failing->Fails = true;
    ClickButton();
    EXPECT_EQ(Reports.Texts().size(), 3u);
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, AfterAnOnClickThatFailsTheButtonIsIdle)
{
    TReports Reports;
    File->OnClick = [](TObject*) { throw EInvalidOperation("no"); };
    ClickToOpen(File);
    EXPECT_THAT(Reports.Texts(), ElementsAre(testing::HasSubstr("no")));
    ExpectIdle();
}

// ---- what may go

class MenuHooks : public testing::Test {
protected:
    static void SetUpTestSuite() { MakeWhatMenusShare(); }
};

TEST_F(MenuHooks, AreThereFromTheFirstButtonToTheLast)
{
    const int64_t Before = LiveHandleCount();
    auto First = std::make_unique<TkelMenuButton>(nullptr);
    EXPECT_EQ(LiveHandleCount(), Before + 2);
    auto Second = std::make_unique<TkelMenuButton>(nullptr);
    EXPECT_EQ(LiveHandleCount(), Before + 2);
    First.reset();
    EXPECT_EQ(LiveHandleCount(), Before + 2);
    Second.reset();
    EXPECT_EQ(LiveHandleCount(), Before);
}

TEST_F(MenuButtonTest, TheFormMayGoWhileAMenuIsOpen)
{
    Script.When(IsOpen(File), [&] { Form.reset(); });
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, TheBarMayGoWhileAMenuIsOpen)
{
    Script.When(IsOpen(File), [&] { delete Bar; });
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, ABarThatGoesInKeyboardModeTakesTheHighlightAlong)
{
    TypeKey(VK_F10);
    ASSERT_TRUE(File->Hot);
    delete Bar;
    TypeKey(VK_RIGHT);
    TypeKey(VK_DOWN);
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, AButtonMayGoWhileItsMenuIsOpen)
{
    Script.When(IsOpen(File), [&] {
        delete File;
        File = Edit;
    });
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, TheMenuMayGoWithItsButton)
{
    delete File->Menu;
    EXPECT_EQ(File->Menu, nullptr);
    ClickToOpen(File);
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

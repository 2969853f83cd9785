// A menu bar with the menus of an MDI child in it, under a real mouse and keyboard.
#include "tests/menus/MdiMenuFixture.h"
#include "vcl/stdctrls/Memo.h"

#include <random>

using testing::ElementsAre;

namespace {

class MergedMenuBarTest : public MdiMenuFixture {};

} // namespace

TEST_F(MergedMenuBarTest, ThePointerGoesFromTheFormsMenusToTheChildsAndBack)
{
    TMdiChild* Child = NewChild();
    Script.When(IsOpen(Button("FileButton")), PointTo(Child->Edit()));
    Script.When(PointingOpens(Child->Edit()), PointTo(Button("ViewButton")));
    Script.When(PointingOpens(Button("ViewButton")), Type(VK_ESCAPE));
    ClickToOpen(Button("FileButton"));
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
}

TEST_F(MergedMenuBarTest, AltAndTheArrowsReachAllWhileAChildIsActive)
{
    TMdiChild* Child = NewChild();
    Child->Find<TMemo>("Memo")->SetFocus();
    ASSERT_EQ(Screen->ActiveCustomForm, Child);
    TypeKey(VK_MENU);
    EXPECT_TRUE(Button("FileButton")->Hot);
    Script.When([&] { return Child->Edit()->Hot; }, Type(VK_DOWN));
    Script.When(IsOpen(Child->Edit()), Type(VK_RIGHT));
    Script.When(IsOpen(Button("ViewButton")), Type(VK_ESCAPE));
    TypeKey(VK_RIGHT);
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone() && !TMenuTracking::Get().IsTracking(); }));
}

TEST_F(MergedMenuBarTest, TheKeyboardWorksWhicheverChildWasMadeLast)
{
    TMdiChild* First = NewChild();
    NewChild();
    Activate(First);
    TypeKey(VK_F10);
    EXPECT_TRUE(Button("FileButton")->Hot);
    TypeKey(VK_ESCAPE);
    NewChild();
    TypeKey(VK_F4, {ssCtrl});
    TypeKey(VK_F10);
    EXPECT_TRUE(Button("FileButton")->Hot);
    TypeKey(VK_F10);
}

TEST_F(MergedMenuBarTest, AltAndALetterOpenTheFormsMenusFromAChild)
{
    TMdiChild* Child = NewChild();
    Child->Find<TMemo>("Memo")->SetFocus();
    for (TkelMenuButton* Each : {Button("HelpButton"), Child->Edit()}) {
        Script.When(IsOpen(Each), Type(VK_ESCAPE));
        TypeKey(static_cast<uint16_t>(Each->Caption[1]), {ssAlt});
        EXPECT_TRUE(PumpUntil([&] { return Script.IsDone() && !TMenuTracking::Get().IsTracking(); })) << Each->Caption;
        EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
    }
}

TEST_F(MergedMenuBarTest, ShortcutsOfTheFormAndOfTheActiveChildWork)
{
    std::vector<AnsiString> Chosen;
    const auto Choose = [&](TObject* Sender) { Chosen.push_back(As<TMenuItem>(Sender)->Owner->Name); };
    As<TMenuItem>(Main->FindComponent("OpenItem"))->OnClick = Choose;
    TMdiChild* First = NewChild();
    First->Name = "First";
    TMdiChild* Second = NewChild();
    Second->Name = "Second";
    for (const TMdiChild* Child : {First, Second})
        Child->Find<TMenuItem>("CopyItem")->OnClick = Choose;
    TypeKey('K', {ssCtrl});
    TypeKey('O', {ssCtrl});
    Activate(First);
    TypeKey('K', {ssCtrl});
    PumpMessages();
    EXPECT_THAT(Chosen, ElementsAre("Second", "MdiMain", "First"));
}

TEST_F(MergedMenuBarTest, ClosingTheChildFromItsOwnMenuIsSafe)
{
    TMdiChild* Child = NewChild();
    Child->Find<TMenuItem>("CopyItem")->OnClick = [=](TObject*) { Child->Close(); };
    Script.When(IsOpen(Child->Edit()), Type('C'));
    ClickToOpen(Child->Edit());
    EXPECT_TRUE(PumpUntil([&] { return Main->MDIChildCount == 0; }));
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
}

TEST_F(MergedMenuBarTest, AChildMayGoWhileItsMenuIsOpen)
{
    TMdiChild* Child = NewChild();
    Script.When(IsOpen(Child->Edit()), [&] { delete Child; });
    ClickToOpen(Child->Edit());
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
}

// ---- all of it, at random

// A hand that knows no rules: keys, the pointer on buttons and in menus, children that come and go.
TEST_F(MergedMenuBarTest, ARandomSessionEndsIdle)
{
    constexpr int Actions = 300;
    std::mt19937 Random(4);
    const auto Below = [&](size_t Count) { return static_cast<size_t>(Random() % Count); };
    int Chosen = 0;
    const auto Choose = [&](TObject*) {
        if (++Chosen % 3 == 0 && Main->MDIChildCount < 4)
            new TMdiChild(Main, {.EditGroup = static_cast<int>(Below(7)), .TextGroup = static_cast<int>(Below(7))});
        else if (Chosen % 4 == 0 && Main->ActiveMDIChild)
            Main->ActiveMDIChild->Close();
    };
    const auto SetHandlers = [&](TForm* Form) {
        for (int I = 0; I < Form->ComponentCount; ++I)
            if (auto* Item = As<TMenuItem>(Form->Components[I]))
                Item->OnClick = Choose;
    };
    const auto RandomButton = [&]() -> TkelMenuButton* {
        std::vector<TkelMenuButton*> Buttons;
        for (TControl* Item : Bar->Items())
            if (auto* Button = As<TkelMenuButton>(Item))
                Buttons.push_back(Button);
        return Buttons[Below(Buttons.size())];
    };
    const std::vector<std::function<void()>> Kinds = {
        [&] {
            constexpr uint16_t Keys[] = {VK_MENU, VK_F10, VK_LEFT,   VK_RIGHT, VK_DOWN, VK_UP,
                                         'O',     'Z',    VK_ESCAPE, 'C',      'B',     VK_RETURN};
            SendKey(Keys[Below(std::size(Keys))]);
        },
        [&] {
            constexpr uint16_t Keys[] = {'F', 'V', 'H', 'E', 'T'};
            SendKey(Keys[Below(std::size(Keys))], {ssAlt});
        },
        [&] {
            constexpr uint16_t Keys[] = {VK_F6, 'O', 'K'};
            SendKey(Keys[Below(std::size(Keys))], {ssCtrl});
        },
        [&] { PointTo(RandomButton())(); },
        [&] {
            PointTo(RandomButton())();
            SendButton(mbLeft, true);
            SendButton(mbLeft, false);
        },
        [&] {
            SendMove(RandomButton()->ClientToScreen({20, 35}));
            SendButton(mbLeft, true);
            SendButton(mbLeft, false);
        },
    };
    NewChild();
    NewChild();
    for (int I = 0; I < Actions; ++I)
        Script.When([] { return true; },
                    [&] {
                        SetHandlers(Main);
                        for (int J = 0; J < Main->MDIChildCount; ++J)
                            SetHandlers(Main->MDIChildren[J]);
                        Kinds[Below(Kinds.size())]();
                    });
    for (int I = 0; I < 3; ++I)
        Script.When([] { return true; }, Type(VK_ESCAPE));
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone(); }, 60000)) << Script.StepsDone();
    EXPECT_TRUE(PumpUntil([&] { return !TMenuTracking::Get().IsTracking() && !TMenuTracking::Get().Current(); }));
    for (const TControl* Item : Bar->Items())
        if (const auto* Button = As<TkelMenuButton>(Item)) {
            EXPECT_FALSE(Button->Hot) << Button->Caption;
            EXPECT_FALSE(Button->Down) << Button->Caption;
        }
    EXPECT_GT(Chosen, 10);
    EXPECT_EQ(Main->ActiveMDIChild != nullptr, Main->MDIChildCount > 0);
}

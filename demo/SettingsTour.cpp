#include "demo/SettingsTour.h"

#include "demo/Main.h"
#include "demo/Settings.h"
#include "robot/MenuSteps.h"

namespace {

constexpr int TimeToDraw = 4; // in ticks of a script

bool MessageIsOpen()
{
    HWND Window = FindWindowW(L"#32770", nullptr);
    return Window && IsWindowVisible(Window);
}

void SendText(std::wstring_view Text)
{
    for (const wchar_t Letter : Text)
        SendLetter(Letter);
}

} // namespace

void TSettingsTour::Run()
{
    const TPreferences Before = FForm->Preferences;
    WhileOpen([this](TScript& Script) { Then(Script, DialogIsActive, &TSettingsTour::ChooseByKeys); });
    TPreferences Wanted = Before;
    Wanted.UserName = "Ada";
    Wanted.ShowsHints = false;
    TGuide::Expect(FForm->Preferences == Wanted, "OK takes what was chosen");
    TPreferences Kept;
    Kept.Load();
    TGuide::Expect(Kept == Wanted, "what was chosen is found again");
    TGuide::Expect(!Application->ShowHint, "hints are off");
    TGuide::Expect(FForm->FileBar->Floating && FForm->FileBar->Visible, "a grayed bar floats");

    WhileOpen([this](TScript& Script) {
        Then(Script, DialogIsActive, &TSettingsTour::ShowText);
        Then(
            Script, [Ticks = 0]() mutable { return MessageIsOpen() && ++Ticks > TimeToDraw; },
            &TSettingsTour::ShowRefusal);
        Then(Script, DialogIsActive, &TSettingsTour::ShowPages);
    });
    TGuide::Expect(FForm->Preferences == Wanted, "Cancel changes nothing");
    TGuide::Expect(!FForm->FormatBar->Floating && FForm->FormatBar->Visible, "Cancel leaves the bars alone");
}

// Opens the dialog from the menu, by keyboard, and comes back when the steps that AddSteps adds have closed it.
void TSettingsTour::WhileOpen(const std::function<void(TScript& Script)>& AddSteps)
{
    TScript Script;
    Script.When([this] { return TkelCustomPopupMenu::Current() == FForm->ViewMenu && TWhileMenuOpen::IsOpen(); },
                [] { SendKey('S'); });
    AddSteps(Script);
    SendKey('V', {ssAlt});
    FGuide.WaitFor("the settings", [&] { return (Script.IsDone() || FFailure) && !Dialog(); });
    if (FFailure)
        std::rethrow_exception(FFailure);
}

// A step of the script. When it goes wrong the dialog is closed: nobody is there to answer a message about it.
void TSettingsTour::Then(TScript& Script, const std::function<bool()>& Condition, void (TSettingsTour::*Step)())
{
    Script.When([=, this]() mutable { return !FFailure && Condition(); },
                [=, this] {
                    FGuide.Follow(Dialog());
                    try {
                        (this->*Step)();
                    } catch (...) {
                        FFailure = std::current_exception();
                        Dialog()->ModalResult = mrCancel;
                    }
                    FGuide.Follow(FForm);
                });
}

// nullptr while it is not open.
TSettingsForm* TSettingsTour::Dialog()
{
    for (int I = 0; I < Screen->FormCount; ++I)
        if (auto* Found = As<TSettingsForm>(Screen->Forms[I]))
            return Found;
    return nullptr;
}

bool TSettingsTour::DialogIsActive()
{
    return Dialog() && Screen->ActiveForm == Dialog() && Dialog()->Enabled && Screen->ActiveControl && !MessageIsOpen();
}

// By keyboard alone.
void TSettingsTour::ChooseByKeys()
{
    SendKey(VK_DOWN);
    FGuide.WaitFor("the second page", [] { return Dialog()->BarsPage->Showing; });
    TkelCheckListBox* Bars = Dialog()->BarList;
    SendKey('T', {ssAlt});
    FGuide.WaitFor("the bars", [=] { return Bars->Focused(); });
    SendKey(VK_HOME);
    for (const TCheckBoxState Expected : {cbUnchecked, cbGrayed}) {
        SendKey(VK_SPACE);
        FGuide.WaitFor("a bar to be changed", [=] { return Bars->State[0] == Expected; });
    }

    SendKey(VK_TAB, {ssShift});
    SendKey(VK_DOWN);
    FGuide.WaitFor("the third page", [] { return Dialog()->YouPage->Showing; });
    SendKey('N', {ssAlt});
    FGuide.WaitFor("the name", [] { return Dialog()->NameEdit->Focused(); });
    SendText(L"Ada");
    SendKey(VK_TAB);
    SendKey(VK_TAB);
    FGuide.WaitFor("the checked button", [] { return Dialog()->SampleRadio->Focused(); });
    SendKey(VK_TAB);
    FGuide.WaitFor("the other group", [] { return Dialog()->MaximizedRadio->Focused(); });
    SendKey(VK_TAB);
    FGuide.WaitFor("the check box", [] { return Dialog()->HintsBox->Focused(); });
    SendKey(VK_SPACE);
    FGuide.WaitFor("no hints", [] { return !Dialog()->HintsBox->Checked; });
    SendKey(VK_RETURN);
}

void TSettingsTour::ShowText()
{
    SendKey('F', {ssAlt});
    FGuide.WaitFor("the fonts", [] { return Dialog()->FontCombo->Focused(); });
    const AnsiString Before = Dialog()->FontCombo->FontName;
    SendText(L"wen");
    FGuide.WaitFor("another font", [&] {
        return Dialog()->FontCombo->FontName != Before &&
               Dialog()->Preview->Font->Name == Dialog()->FontCombo->FontName;
    });
    SendKey('X', {ssAlt});
    SendKey(VK_DOWN);
    FGuide.WaitFor("a maroon text", [] { return Dialog()->Preview->Font->Color == clMaroon; });
    SendKey('S', {ssAlt});
    FGuide.WaitFor("the size", [] { return Dialog()->SizeEdit->Focused(); });
    SendText(L"18");
    FGuide.WaitFor("another size", [] { return Dialog()->Preview->Font->Size == 18; });
    FGuide.Click(Dialog()->TrueTypeBox);
    FGuide.WaitFor("TrueType fonts", [] { return Dialog()->FontCombo->TrueTypeOnly; });
    FGuide.TakePicture("settings-text");
    FGuide.Click(Dialog()->TrueTypeBox);
    FGuide.WaitFor("all fonts", [] { return !Dialog()->FontCombo->TrueTypeOnly; });

    SendKey('S', {ssAlt});
    FGuide.WaitFor("the size", [] { return Dialog()->SizeEdit->Focused(); });
    SendText(L"large");
    FGuide.WaitFor("a text that is no number", [] { return Dialog()->SizeEdit->Text == "large"; });
    TGuide::Expect(Dialog()->Preview->Font->Size == 18, "the preview keeps what was possible");
    SendKey(VK_RETURN);
}

// What is no size was refused, and the dialog stays.
void TSettingsTour::ShowRefusal()
{
    FGuide.TakePictureOfMenu("settings-refusal");
    SendKey(VK_RETURN);
}

void TSettingsTour::ShowPages()
{
    TGuide::Expect(Dialog()->SizeEdit->Focused(), "the size is asked for again");
    SendText(L"12");
    FGuide.WaitFor("a size", [] { return Dialog()->Preview->Font->Size == 12; });
    ShowBars();
    ShowYou();
    ShowAbout();
    FGuide.Click(Dialog()->DefaultsButton);
    FGuide.WaitFor("the defaults", [] { return Dialog()->Preferences == TPreferences(); });
    SendKey(VK_ESCAPE);
}

// On its name in the list.
void TSettingsTour::ClickPage(int Index, const TPanel* Page)
{
    const TRect R = Dialog()->PageList->ItemRect(Index);
    FGuide.ClickAt(Dialog()->PageList->ClientToScreen({(R.Left + R.Right) / 2, (R.Top + R.Bottom) / 2}),
                   "a page of the settings", [Page] { return Page->Showing; });
}

void TSettingsTour::ShowBars()
{
    ClickPage(1, Dialog()->BarsPage);
    TkelCheckListBox* Bars = Dialog()->BarList;
    const int Format = Bars->Items->IndexOf(FForm->FormatBar->Caption);
    TGuide::Expect(Bars->State[Format] == cbChecked && Bars->State[0] == cbGrayed, "the bars are where the list says");
    const TRect Item = Bars->ItemRect(Format);
    const TPoint Check = Bars->ClientToScreen({Item.Left + Bars->GetCheckWidth() / 2, (Item.Top + Item.Bottom) / 2});
    FGuide.ClickAt(Check, "the bar to be unchecked", [=] { return Bars->State[Format] == cbUnchecked; });
    FGuide.ClickAt(Check, "the bar to be grayed", [=] { return Bars->State[Format] == cbGrayed; });
    FGuide.TakePicture("settings-bars");
    SendKey(VK_SPACE);
    FGuide.WaitFor("the space bar to check", [=] { return Bars->State[Format] == cbChecked; });
    SendKey(VK_SPACE);
    FGuide.WaitFor("the space bar to uncheck", [=] { return Bars->State[Format] == cbUnchecked; });
}

void TSettingsTour::ShowYou()
{
    ClickPage(2, Dialog()->YouPage);
    FGuide.Click(Dialog()->EmptyRadio);
    FGuide.WaitFor("the other button to come up", [] { return !Dialog()->SampleRadio->Checked; });
    FGuide.Click(Dialog()->EmailEdit);
    SendText(L"ada@example.org");
    FGuide.WaitFor("the address", [] { return Dialog()->EmailEdit->Text == "ada@example.org"; });
    FGuide.PointAt(Dialog()->EmptyRadio);
    FGuide.TakePicture("settings-you");
}

void TSettingsTour::ShowAbout()
{
    ClickPage(3, Dialog()->AboutPage);
    FGuide.Click(Dialog()->ControlsLink);
    FGuide.WaitFor("the link", [this] { return FForm->MessageText->Caption.find("controls.md") != AnsiString::npos; });
    FGuide.TakePicture("settings-about");
}

#include "demo/Settings.h"

#include "common/MessageBoxes.h"

TSettingsForm::TSettingsForm(TComponent* AOwner) : TForm(AOwner)
{
    LoadForm(this);
    SizeRange->Caption = Format("points, from %d to %d", TTextLook::SmallestSize, TTextLook::LargestSize);
    ShowPage(TextPage);
}

void TSettingsForm::Describe(TClassBuilder<TSettingsForm>& Class)
{
    Class.Field<&Self::PageList>("PageList");
    Class.Field<&Self::TextPage>("TextPage");
    Class.Field<&Self::BarsPage>("BarsPage");
    Class.Field<&Self::YouPage>("YouPage");
    Class.Field<&Self::AboutPage>("AboutPage");
    Class.Field<&Self::OkButton>("OkButton");
    Class.Field<&Self::CancelButton>("CancelButton");
    Class.Field<&Self::DefaultsButton>("DefaultsButton");
    Class.Field<&Self::FontCombo>("FontCombo");
    Class.Field<&Self::TrueTypeBox>("TrueTypeBox");
    Class.Field<&Self::SizeEdit>("SizeEdit");
    Class.Field<&Self::SizeRange>("SizeRange");
    Class.Field<&Self::TextColorCombo>("TextColorCombo");
    Class.Field<&Self::PaperColorCombo>("PaperColorCombo");
    Class.Field<&Self::Preview>("Preview");
    Class.Field<&Self::BarList>("BarList");
    Class.Field<&Self::NameEdit>("NameEdit");
    Class.Field<&Self::EmailEdit>("EmailEdit");
    Class.Field<&Self::SampleRadio>("SampleRadio");
    Class.Field<&Self::EmptyRadio>("EmptyRadio");
    Class.Field<&Self::MaximizedRadio>("MaximizedRadio");
    Class.Field<&Self::NormalRadio>("NormalRadio");
    Class.Field<&Self::HintsBox>("HintsBox");
    Class.Field<&Self::ControlsLink>("ControlsLink");

    Class.Method<&Self::DefaultsClick>("DefaultsClick");
    Class.Method<&Self::FormCloseQuery>("FormCloseQuery");
    Class.Method<&Self::LinkClick>("LinkClick");
    Class.Method<&Self::LookChange>("LookChange");
    Class.Method<&Self::PageListClick>("PageListClick");
    Class.Method<&Self::TrueTypeBoxClick>("TrueTypeBoxClick");
}

// ---- pages

void TSettingsForm::ShowPage(TPanel* Page)
{
    const auto All = Pages();
    for (TPanel* Each : All)
        Each->Visible = Each == Page;
    PageList->ItemIndex = static_cast<int>(std::ranges::find(All, Page) - All.begin());
}

void TSettingsForm::PageListClick(TObject*)
{
    if (PageList->ItemIndex >= 0)
        ShowPage(Pages()[PageList->ItemIndex]);
}

// ---- what the controls say

TPreferences TSettingsForm::GetPreferences() const
{
    return {
        .Look = {.FontName = FontCombo->FontName,
                 .Size = ChosenSize(),
                 .TextColor = TextColorCombo->ColorValue,
                 .PaperColor = PaperColorCombo->ColorValue},
        .UserName = Trim(NameEdit->Text),
        .Email = Trim(EmailEdit->Text),
        .StartsWithSample = SampleRadio->Checked,
        .OpensMaximized = MaximizedRadio->Checked,
        .ShowsHints = HintsBox->Checked,
    };
}

void TSettingsForm::SetPreferences(const TPreferences& Value)
{
    TrueTypeBox->Checked = false;
    FontCombo->FontName = Value.Look.FontName;
    SizeEdit->Text = std::to_string(Value.Look.Size);
    TextColorCombo->ColorValue = Value.Look.TextColor;
    PaperColorCombo->ColorValue = Value.Look.PaperColor;
    NameEdit->Text = Value.UserName;
    EmailEdit->Text = Value.Email;
    (Value.StartsWithSample ? SampleRadio : EmptyRadio)->Checked = true;
    (Value.OpensMaximized ? MaximizedRadio : NormalRadio)->Checked = true;
    HintsBox->Checked = Value.ShowsHints;
    LookChange(nullptr);
}

void TSettingsForm::DefaultsClick(TObject*)
{
    Preferences = TPreferences();
    for (int I = 0; I < BarList->Items->Count; ++I)
        BarList->State[I] = cbChecked;
}

int TSettingsForm::ChosenSize() const
{
    const int Size = StrToIntDef(Trim(SizeEdit->Text), 0);
    return Size >= TTextLook::SmallestSize && Size <= TTextLook::LargestSize ? Size : 0;
}

// None, or something before and behind the only @.
bool TSettingsForm::IsEmailPossible() const
{
    const AnsiString Address = Trim(EmailEdit->Text);
    const size_t At = Address.find('@');
    return Address.empty() || (At != AnsiString::npos && At > 0 && At + 1 < Address.size() &&
                               Address.rfind('@') == At && Address.find(' ') == AnsiString::npos);
}

// ---- the text

void TSettingsForm::TrueTypeBoxClick(TObject*)
{
    FontCombo->TrueTypeOnly = TrueTypeBox->Checked;
}

// The preview keeps what was possible last.
void TSettingsForm::LookChange(TObject*)
{
    if (!FontCombo->FontName.empty())
        Preview->Font->Name = FontCombo->FontName;
    if (const int Size = ChosenSize())
        Preview->Font->Size = Size;
    Preview->Font->Color = TextColorCombo->ColorValue;
    Preview->Color = PaperColorCombo->ColorValue;
}

// ---- closing

void TSettingsForm::FormCloseQuery(TObject*, bool& CanClose)
{
    if (ModalResult != mrOk)
        return;
    CanClose = false;
    if (FontCombo->FontName.empty())
        Refuse(TextPage, FontCombo, "Please choose a font.");
    else if (ChosenSize() == 0)
        Refuse(TextPage, SizeEdit,
               Format("\"%s\" is no size for the text. Please type a number from %d to %d.", SizeEdit->Text,
                      TTextLook::SmallestSize, TTextLook::LargestSize));
    else if (!IsEmailPossible())
        Refuse(
            YouPage, EmailEdit,
            Format("\"%s\" is no e-mail address. Please type one such as ada@example.org, or none.", EmailEdit->Text));
    else
        CanClose = true;
}

void TSettingsForm::Refuse(TPanel* Page, TWinControl* Control, const AnsiString& Message)
{
    ShowPage(Page);
    Control->SetFocus();
    if (auto* Edit = As<TCustomEdit>(Control))
        Edit->SelectAll();
    MsgWarning(Message);
}

// ---- links

// Each has what it would open as its hint.
void TSettingsForm::LinkClick(TObject* Sender)
{
    OnMessage("This link stands for " + As<TkelWebLabel>(Sender)->Hint);
}

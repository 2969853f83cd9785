#include "demo/Gallery.h"

TGalleryForm::TGalleryForm(TComponent* AOwner) : TChildForm(AOwner)
{
    LoadForm(this);
    Icon = Application->Icon;
    SamplesMenu->Banner->Picture->Bitmap->LoadFromResourceName(nullptr, "GALLERY_BANNER");
    CellScroll->Max = CellButton->Glyphs->Cols - 1;
    CellScrollChange(CellScroll);
    SwitchClick(nullptr);
}

void TGalleryForm::Describe(TClassBuilder<TGalleryForm>& Class)
{
    Class.Field<&Self::Magnifier>("Magnifier");
    Class.Field<&Self::CellLabel>("CellLabel");
    Class.Field<&Self::CellButton>("CellButton");
    Class.Field<&Self::CellLatched>("CellLatched");
    Class.Field<&Self::CellDisabled>("CellDisabled");
    Class.Field<&Self::PreviousButton>("PreviousButton");
    Class.Field<&Self::NextButton>("NextButton");
    Class.Field<&Self::CellScroll>("CellScroll");
    Class.Field<&Self::SampleLeft>("SampleLeft");
    Class.Field<&Self::SampleRight>("SampleRight");
    Class.Field<&Self::FlatSwitch>("FlatSwitch");
    Class.Field<&Self::EnabledSwitch>("EnabledSwitch");
    Class.Field<&Self::CaptionSwitch>("CaptionSwitch");
    Class.Field<&Self::AllUpSwitch>("AllUpSwitch");
    Class.Field<&Self::LayoutLeft>("LayoutLeft");
    Class.Field<&Self::LayoutRight>("LayoutRight");
    Class.Field<&Self::LayoutTop>("LayoutTop");
    Class.Field<&Self::LayoutBottom>("LayoutBottom");
    Class.Field<&Self::SamplesButton>("SamplesButton");
    Class.Field<&Self::SamplesMenu>("SamplesMenu");
    Class.Field<&Self::FlatItem>("FlatItem");
    Class.Field<&Self::EnabledItem>("EnabledItem");
    Class.Field<&Self::CaptionItem>("CaptionItem");
    Class.Field<&Self::AllUpItem>("AllUpItem");

    Class.Method<&Self::CellScrollChange>("CellScrollChange");
    Class.Method<&Self::LayoutClick>("LayoutClick");
    Class.Method<&Self::SampleClick>("SampleClick");
    Class.Method<&Self::StepClick>("StepClick");
    Class.Method<&Self::SwitchClick>("SwitchClick");
    Class.Method<&Self::SwitchItemClick>("SwitchItemClick");
}

void TGalleryForm::SampleClick(TObject* Sender)
{
    auto* Button = As<TkelSpeedButton>(Sender);
    AnsiString Text = "Clicked: " + GetShortHint(Button->Hint);
    if (Button->GroupIndex != 0)
        Text += Button->Down ? ", now down" : ", now up";
    Say(Text);
}

// ---- the glyph strip

void TGalleryForm::CellScrollChange(TObject*)
{
    const int Cell = CellScroll->Position;
    CellLabel->Caption = Format("GlyphIndex %d", Cell);
    Magnifier->Picture->Bitmap = CellButton->Glyphs->GetCell(Cell);
    for (TkelSpeedButton* Button : {CellButton, CellLatched, CellDisabled})
        Button->GlyphIndex = Cell;
}

void TGalleryForm::StepClick(TObject* Sender)
{
    CellScroll->Position += Sender == NextButton ? 1 : -1;
}

// ---- samples to try

std::array<TGalleryForm::TSwitch, 4> TGalleryForm::Switches() const
{
    return {
        {{FlatSwitch, FlatItem}, {EnabledSwitch, EnabledItem}, {CaptionSwitch, CaptionItem}, {AllUpSwitch, AllUpItem}}};
}

void TGalleryForm::SwitchClick(TObject*)
{
    for (TkelSpeedButton* Sample : {SampleLeft, SampleRight}) {
        Sample->Flat = FlatSwitch->Down;
        Sample->Enabled = EnabledSwitch->Down;
        Sample->Caption = CaptionSwitch->Down ? GetShortHint(Sample->Hint) : "";
        Sample->AllowAllUp = AllUpSwitch->Down;
    }
    for (const TSwitch& Switch : Switches())
        Switch.Item->Checked = Switch.Button->Down;
}

void TGalleryForm::SwitchItemClick(TObject* Sender)
{
    for (const TSwitch& Switch : Switches())
        if (Switch.Item == Sender)
            Switch.Button->Down = !Switch.Button->Down;
    SwitchClick(Sender);
}

// Each of the layout buttons has its layout as its Tag.
void TGalleryForm::LayoutClick(TObject* Sender)
{
    auto* Button = As<TkelSpeedButton>(Sender);
    const auto Layout = static_cast<TButtonLayout>(Button->Tag);
    Button->Down = true;
    SampleLeft->Layout = Layout;
    SampleRight->Layout = Layout;
    StateChanged();
}

void TGalleryForm::Execute(TToolbarGlyph Command)
{
    switch (Command) {
    case tgLayoutLeft: LayoutClick(LayoutLeft); break;
    case tgLayoutRight: LayoutClick(LayoutRight); break;
    case tgLayoutTop: LayoutClick(LayoutTop); break;
    case tgLayoutBottom: LayoutClick(LayoutBottom); break;
    default: break;
    }
}

TCommandState TGalleryForm::StateOf(TToolbarGlyph Command)
{
    switch (Command) {
    case tgLayoutLeft: return {.Down = LayoutLeft->Down};
    case tgLayoutRight: return {.Down = LayoutRight->Down};
    case tgLayoutTop: return {.Down = LayoutTop->Down};
    case tgLayoutBottom: return {.Down = LayoutBottom->Down};
    default: return {.Enabled = false};
    }
}

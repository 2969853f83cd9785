#include "demo/Gallery.h"

TGalleryFrame::TGalleryFrame(TComponent* AOwner) : TFrame(AOwner)
{
    LoadForm(this);
    CellScroll->Max = CellButton->Glyphs->Cols - 1;
    CellScrollChange(CellScroll);
}

void TGalleryFrame::Describe(TClassBuilder<TGalleryFrame>& Class)
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

    Class.Method<&Self::CellScrollChange>("CellScrollChange");
    Class.Method<&Self::LayoutClick>("LayoutClick");
    Class.Method<&Self::SampleClick>("SampleClick");
    Class.Method<&Self::StepClick>("StepClick");
    Class.Method<&Self::SwitchClick>("SwitchClick");
}

void TGalleryFrame::SampleClick(TObject* Sender)
{
    auto* Button = As<TkelSpeedButton>(Sender);
    AnsiString Text = "Clicked: " + GetShortHint(Button->Hint);
    if (Button->GroupIndex != 0)
        Text += Button->Down ? ", now down" : ", now up";
    OnMessage(Text);
}

// ---- the glyph strip

void TGalleryFrame::CellScrollChange(TObject*)
{
    const int Cell = CellScroll->Position;
    CellLabel->Caption = Format("GlyphIndex %d", Cell);
    Magnifier->Picture->Bitmap = CellButton->Glyphs->GetCell(Cell);
    for (TkelSpeedButton* Button : {CellButton, CellLatched, CellDisabled})
        Button->GlyphIndex = Cell;
}

void TGalleryFrame::StepClick(TObject* Sender)
{
    CellScroll->Position += Sender == NextButton ? 1 : -1;
}

// ---- samples to try

void TGalleryFrame::SwitchClick(TObject*)
{
    for (TkelSpeedButton* Sample : {SampleLeft, SampleRight}) {
        Sample->Flat = FlatSwitch->Down;
        Sample->Enabled = EnabledSwitch->Down;
        Sample->Caption = CaptionSwitch->Down ? GetShortHint(Sample->Hint) : "";
        Sample->AllowAllUp = AllUpSwitch->Down;
    }
}

void TGalleryFrame::LayoutClick(TObject* Sender)
{
    // Each of the layout buttons has its layout as its Tag.
    const auto Layout = static_cast<TButtonLayout>(As<TComponent>(Sender)->Tag);
    SampleLeft->Layout = Layout;
    SampleRight->Layout = Layout;
}

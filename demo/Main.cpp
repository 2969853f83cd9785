#include "demo/Main.h"

TMainForm::TMainForm(TComponent* AOwner) : TForm(AOwner)
{
    LoadForm(this);
}

void TMainForm::Describe(TClassBuilder<TMainForm>& Class)
{
    Class.Field<&Self::ToolGlyphs>("ToolGlyphs");
    Class.Field<&Self::LargeGlyphs>("LargeGlyphs");
    Class.Field<&Self::Images>("Images");
    Class.Field<&Self::OpenButton>("OpenButton");
    Class.Field<&Self::PasteButton>("PasteButton");
    Class.Field<&Self::ItalicButton>("ItalicButton");
    Class.Field<&Self::AlignLeftButton>("AlignLeftButton");
    Class.Field<&Self::AlignCenterButton>("AlignCenterButton");
    Class.Field<&Self::BulletsButton>("BulletsButton");
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
    Class.Field<&Self::StatusText>("StatusText");
    Class.Field<&Self::ClickText>("ClickText");

    Class.Method<&Self::CellScrollChange>("CellScrollChange");
    Class.Method<&Self::FormCreate>("FormCreate");
    Class.Method<&Self::LayoutClick>("LayoutClick");
    Class.Method<&Self::StepClick>("StepClick");
    Class.Method<&Self::SwitchClick>("SwitchClick");
    Class.Method<&Self::ToolClick>("ToolClick");
}

// The strips are resources of the program: the sheets of pixel art that CMakeLists.txt names.
void TMainForm::FormCreate(TObject*)
{
    ToolGlyphs->LoadBitmapRes(nullptr, "TOOLBAR16");
    ToolGlyphs->Width = 16;
    LargeGlyphs->LoadBitmapRes(nullptr, "TOOLBAR24");
    LargeGlyphs->Width = 24;
    Images->ResourceLoad(nullptr, "TOOLBAR16", ToolGlyphs->MaskColor);

    CellScroll->Max = ToolGlyphs->Cols - 1;
    CellScrollChange(CellScroll);
    Application->OnHint = {this, &TMainForm::ShowHint};
}

// ---- the status line

void TMainForm::ShowHint(TObject*)
{
    StatusText->Caption = Application->Hint.empty() ? "Ready" : Application->Hint;
}

void TMainForm::ToolClick(TObject* Sender)
{
    auto* Button = As<TkelSpeedButton>(Sender);
    AnsiString Text = "Clicked: " + GetShortHint(Button->Hint);
    if (Button->GroupIndex != 0)
        Text += Button->Down ? ", now down" : ", now up";
    ClickText->Caption = Text;
}

// ---- the glyph strip

void TMainForm::CellScrollChange(TObject*)
{
    const int Cell = CellScroll->Position;
    CellLabel->Caption = Format("GlyphIndex %d", Cell);
    Magnifier->Picture->Bitmap = ToolGlyphs->GetCell(Cell);
    for (TkelSpeedButton* Button : {CellButton, CellLatched, CellDisabled})
        Button->GlyphIndex = Cell;
}

void TMainForm::StepClick(TObject* Sender)
{
    CellScroll->Position += Sender == NextButton ? 1 : -1;
}

// ---- samples to try

void TMainForm::SwitchClick(TObject*)
{
    for (TkelSpeedButton* Sample : {SampleLeft, SampleRight}) {
        Sample->Flat = FlatSwitch->Down;
        Sample->Enabled = EnabledSwitch->Down;
        Sample->Caption = CaptionSwitch->Down ? GetShortHint(Sample->Hint) : "";
        Sample->AllowAllUp = AllUpSwitch->Down;
    }
}

void TMainForm::LayoutClick(TObject* Sender)
{
    // Each of the layout buttons has its layout as its Tag.
    const auto Layout = static_cast<TButtonLayout>(As<TComponent>(Sender)->Tag);
    SampleLeft->Layout = Layout;
    SampleRight->Layout = Layout;
}

// The showcase's window: a gallery of the library's panels, labels and tool buttons, and a corner to try them out.
// The window itself is described in Main.dfm.
#pragma once

#include "common/Tsy_common.h"
#include "toolbar/Tsy_toolbar.h"
#include "vcl/vcl.h"

class TMainForm : public TForm {
    VCL_CLASS(TMainForm, TForm)
public:
    explicit TMainForm(TComponent* AOwner);

    // Where the buttons' glyphs come from.
    TkelGlyphs* ToolGlyphs = nullptr;
    TkelGlyphs* LargeGlyphs = nullptr;
    TImageList* Images = nullptr;

    // Some of the tool buttons.
    TkelSpeedButton* OpenButton = nullptr;
    TkelSpeedButton* PasteButton = nullptr;
    TkelSpeedButton* ItalicButton = nullptr;
    TkelSpeedButton* AlignLeftButton = nullptr;
    TkelSpeedButton* AlignCenterButton = nullptr;
    TkelSpeedButton* BulletsButton = nullptr;

    // The magnifier of the glyph strip.
    TkelImage* Magnifier = nullptr;
    TLabel* CellLabel = nullptr;
    TkelSpeedButton* CellButton = nullptr;
    TkelSpeedButton* CellLatched = nullptr;
    TkelSpeedButton* CellDisabled = nullptr;
    TAlignSpeedButton* PreviousButton = nullptr;
    TAlignSpeedButton* NextButton = nullptr;
    TkelScrollBar* CellScroll = nullptr;

    // The samples, and the switches for how they look.
    TkelSpeedButton* SampleLeft = nullptr;
    TkelSpeedButton* SampleRight = nullptr;
    TkelSpeedButton* FlatSwitch = nullptr;
    TkelSpeedButton* EnabledSwitch = nullptr;
    TkelSpeedButton* CaptionSwitch = nullptr;
    TkelSpeedButton* AllUpSwitch = nullptr;
    TkelSpeedButton* LayoutLeft = nullptr;

    // The status line: the hint of what the pointer is on, and what was clicked.
    TkelPanel* StatusText = nullptr;
    TkelPanel* ClickText = nullptr;

private:
    friend class TClassBuilder<TMainForm>;

    void CellScrollChange(TObject* Sender);
    void FormCreate(TObject* Sender);
    void LayoutClick(TObject* Sender);
    void StepClick(TObject* Sender);
    void SwitchClick(TObject* Sender);
    void ToolClick(TObject* Sender);

    void ShowHint(TObject* Sender);
};

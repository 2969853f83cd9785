// The gallery: the library's panels, labels and tool buttons, and a corner to try them out. Gallery.dfm describes it.
#pragma once

#include "common/Tsy_common.h"
#include "toolbar/Tsy_toolbar.h"
#include "vcl/vcl.h"

class TGalleryFrame : public TFrame {
    VCL_CLASS(TGalleryFrame, TFrame)
public:
    // Its glyphs are those of the form named MainForm, which is there already.
    explicit TGalleryFrame(TComponent* AOwner);

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

    // One of the buttons was clicked: what there is to say about it.
    TEvent<void(const AnsiString& Text)> OnMessage;

private:
    friend class TClassBuilder<TGalleryFrame>;

    void CellScrollChange(TObject* Sender);
    void LayoutClick(TObject* Sender);
    void SampleClick(TObject* Sender);
    void StepClick(TObject* Sender);
    void SwitchClick(TObject* Sender);
};

// The gallery: the library's panels, labels and tool buttons, and a corner to try them out. Gallery.dfm describes it.
#pragma once

#include "common/Tsy_common.h"
#include "demo/ChildForm.h"
#include "menus/Tsy_menus.h"
#include "vcl/vcl.h"

class TGalleryForm : public TChildForm {
    VCL_CLASS(TGalleryForm, TChildForm)
public:
    // Its glyphs are those of the form named MainForm, which is there already.
    explicit TGalleryForm(TComponent* AOwner);

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
    TkelSpeedButton* LayoutRight = nullptr;
    TkelSpeedButton* LayoutTop = nullptr;
    TkelSpeedButton* LayoutBottom = nullptr;

    // The menu has the switches once more.
    TkelMenuButton* SamplesButton = nullptr;
    TkelOfficePopupMenu* SamplesMenu = nullptr;
    TMenuItem* FlatItem = nullptr;
    TMenuItem* EnabledItem = nullptr;
    TMenuItem* CaptionItem = nullptr;
    TMenuItem* AllUpItem = nullptr;

    // The layouts of the samples.
    void Execute(TToolbarGlyph Command) override;
    TCommandState StateOf(TToolbarGlyph Command) override;

private:
    friend class TClassBuilder<TGalleryForm>;

    struct TSwitch {
        TkelSpeedButton* Button;
        TMenuItem* Item;
    };
    std::array<TSwitch, 4> Switches() const;

    void CellScrollChange(TObject* Sender);
    void LayoutClick(TObject* Sender);
    void SampleClick(TObject* Sender);
    void StepClick(TObject* Sender);
    void SwitchClick(TObject* Sender);
    void SwitchItemClick(TObject* Sender);
};

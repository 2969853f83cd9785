// The settings of the showcase: a dialog made of the Office controls. Settings.dfm describes it.
//
// It shows what it is given and says what the user has made of that; nothing changes before that is applied.
#pragma once

#include "common/SavePos.h"
#include "controls/Tsy_controls.h"
#include "demo/Preferences.h"
#include "vcl/vcl.h"

class TSettingsForm : public TForm {
    VCL_CLASS(TSettingsForm, TForm)
public:
    explicit TSettingsForm(TComponent* AOwner);

    TListBox* PageList = nullptr;
    TPanel* TextPage = nullptr;
    TPanel* BarsPage = nullptr;
    TPanel* YouPage = nullptr;
    TPanel* AboutPage = nullptr;
    TkelBitBtn* OkButton = nullptr;
    TkelBitBtn* CancelButton = nullptr;
    TkelButton* DefaultsButton = nullptr;

    TkelFontComboBox* FontCombo = nullptr;
    TkelOfficeCheckBox* TrueTypeBox = nullptr;
    TkelOfficeEdit* SizeEdit = nullptr;
    TLabel* SizeRange = nullptr;
    TkelColorComboBox* TextColorCombo = nullptr;
    TkelColorComboBox* PaperColorCombo = nullptr;
    TPanel* Preview = nullptr;

    // Checked: shown in a dock; grayed: floats; unchecked: hidden.
    TkelCheckListBox* BarList = nullptr;

    TkelOfficeEdit* NameEdit = nullptr;
    TkelOfficeEdit* EmailEdit = nullptr;
    TkelOfficeRadioButton* SampleRadio = nullptr;
    TkelOfficeRadioButton* EmptyRadio = nullptr;
    TkelOfficeRadioButton* MaximizedRadio = nullptr;
    TkelOfficeRadioButton* NormalRadio = nullptr;
    TkelOfficeCheckBox* HintsBox = nullptr;

    TkelWebLabel* ControlsLink = nullptr;

    // What the controls say. Reading is for a dialog that was closed by OK: what cannot be is refused there.
    TPreferences GetPreferences() const;
    void SetPreferences(const TPreferences& Value);
    PROPERTY(TPreferences, Preferences);

    // What a link would open, in words.
    TEvent<void(const AnsiString& Text)> OnMessage;

private:
    friend class TClassBuilder<TSettingsForm>;

    void DefaultsClick(TObject* Sender);
    void FormCloseQuery(TObject* Sender, bool& CanClose);
    void LinkClick(TObject* Sender);
    void LookChange(TObject* Sender);
    void PageListClick(TObject* Sender);
    void TrueTypeBoxClick(TObject* Sender);

    // In the order of PageList.
    std::array<TPanel*, 4> Pages() const { return {TextPage, BarsPage, YouPage, AboutPage}; }
    void ShowPage(TPanel* Page);
    // Says what is wrong and goes there.
    void Refuse(TPanel* Page, TWinControl* Control, const AnsiString& Message);
    // The number in SizeEdit; 0 when it is not possible.
    int ChosenSize() const;
    bool IsEmailPossible() const;
};

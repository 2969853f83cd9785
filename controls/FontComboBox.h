// TkelFontComboBox: a drop-down list of the installed typefaces.
#pragma once

#include "controls/FontList.h"
#include "vcl/stdctrls/ComboBox.h"

class TBitmap;

// Glyphs mark the typefaces that are TrueType and those of the printer. The list is there as long as the window is, and
// follows what is installed. OnChange is raised whenever the user chooses, also the same typeface again.
class TkelFontComboBox : public TComboBox {
    VCL_CLASS(TkelFontComboBox, TComboBox)
public:
    explicit TkelFontComboBox(TComponent* AOwner);

    // Whose fonts are listed. Without a printer its part of the list is empty.
    TFontDevice GetDevice() const { return FDevice; }
    void SetDevice(TFontDevice Value);
    PROPERTY(TFontDevice, Device);
    // The typeface that is chosen, or "". Case does not matter when it is set; a name that is not listed chooses none.
    // Without a window, and while a form is read, the name waits for the list.
    AnsiString GetFontName() const;
    void SetFontName(const AnsiString& Value);
    PROPERTY(AnsiString, FontName);
    TFontListOptions GetOptions() const { return FOptions; }
    void SetOptions(TFontListOptions Value);
    PROPERTY(TFontListOptions, Options);
    // foTrueTypeOnly of Options.
    bool GetTrueTypeOnly() const { return FOptions.Contains(foTrueTypeOnly); }
    void SetTrueTypeOnly(bool Value);
    PROPERTY(bool, TrueTypeOnly);

    // Fills Items; each item's object is the system's type of the font. Nothing happens without a window.
    virtual void BuildList();
    // Lists the fonts anew and keeps the one that is chosen, if it is still there; otherwise OnChange is raised.
    void Reset();

protected:
    void CreateWnd() override;
    void DestroyWnd() override;
    void DrawItem(int Index, const TRect& Rect, TOwnerDrawState State) override;
    void Change() override;
    void Click() override;
    void Select() override;

private:
    void WMFontChange(TMessage& Message);
    void CMFontChanged(TMessage& Message);

    void ResetItemHeight();
    TBitmap* GlyphOf(int Index);

    std::shared_ptr<TBitmap> FTrueTypeGlyph;
    std::shared_ptr<TBitmap> FPrinterGlyph;
    AnsiString FKeptName; // while there is no window
    TFontDevice FDevice = fdScreen;
    TFontListOptions FOptions;
    bool FUpdating = false;
};

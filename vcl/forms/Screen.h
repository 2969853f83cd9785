// TScreen: the forms that exist, what is active, the cursors, and the display.
#pragma once

#include "vcl/classes/Component.h"
#include "vcl/classes/Strings.h"
#include "vcl/forms/FormTypes.h"
#include "vcl/graphics/Font.h"
#include "vcl/graphics/Handle.h"

#include <map>
#include <vector>

class TDataModule;
class TForm;

class TScreen : public TComponent {
    VCL_CLASS(TScreen, TComponent)
public:
    explicit TScreen(TComponent* AOwner);
    ~TScreen() override;

    // ---- the display, in pixels

    int GetWidth() const;
    int GetHeight() const;
    PROPERTY_READ(int, Width);
    PROPERTY_READ(int, Height);
    // The primary display without task bars.
    TRect GetWorkAreaRect() const;
    PROPERTY_READ(TRect, WorkAreaRect);
    int GetWorkAreaLeft() const { return WorkAreaRect.Left; }
    int GetWorkAreaTop() const { return WorkAreaRect.Top; }
    int GetWorkAreaWidth() const { return WorkAreaRect.Width(); }
    int GetWorkAreaHeight() const { return WorkAreaRect.Height(); }
    PROPERTY_READ(int, WorkAreaLeft);
    PROPERTY_READ(int, WorkAreaTop);
    PROPERTY_READ(int, WorkAreaWidth);
    PROPERTY_READ(int, WorkAreaHeight);
    // All displays together.
    TRect GetDesktopRect() const;
    PROPERTY_READ(TRect, DesktopRect);
    // The work area of the display that holds most of R.
    TRect WorkAreaOf(const TRect& R) const;
    int GetPixelsPerInch() const { return ScreenPixelsPerInch(); }
    PROPERTY_READ(int, PixelsPerInch);

    // ---- cursors

    // Shown everywhere in the program instead of the controls' own; crDefault ends that.
    TCursor GetCursor() const { return FCursor; }
    void SetCursor(TCursor Value);
    PROPERTY(TCursor, Cursor);
    // A slot's cursor; the arrow for a slot that nobody set, nullptr for crNone. A cursor that is set is the screen's
    // from then on, and is destroyed with it or when another takes its place; nullptr brings the slot's own back. Slots
    // above 0 are the application's, see TCursorResource; setting one of the system's replaces that.
    HCURSOR GetCursors(int Index) const;
    void SetCursors(int Index, HCURSOR Value);
    PROPERTY_INDEXED(HCURSOR, Cursors);

    // ---- fonts

    // The names of the installed typefaces, in alphabetical order.
    TStrings* GetFonts();
    PROPERTY_READ(TStrings*, Fonts);
    // Asks the system anew when Fonts is read next.
    void ResetFonts();
    TFont* GetHintFont() { return &FHintFont; }
    void SetHintFont(TFont* Value) { FHintFont.Assign(Value); }
    PROPERTY(TFont*, HintFont);
    TFont* GetMenuFont() { return &FMenuFont; }
    void SetMenuFont(TFont* Value) { FMenuFont.Assign(Value); }
    PROPERTY(TFont*, MenuFont);

    // ---- forms

    // The form that has the keyboard, or will have it when the program is active again; nullptr when that is no form.
    TForm* GetActiveForm() const;
    TCustomForm* GetActiveCustomForm() const { return FActiveCustomForm; }
    TWinControl* GetActiveControl() const { return FActiveControl; }
    PROPERTY_READ(TForm*, ActiveForm);
    PROPERTY_READ(TCustomForm*, ActiveCustomForm);
    PROPERTY_READ(TWinControl*, ActiveControl);
    // The forms, the last active first. Raise EListError when Index is out of range.
    int GetFormCount() const;
    TForm* GetForms(int Index) const;
    int GetCustomFormCount() const { return static_cast<int>(FCustomForms.size()); }
    TCustomForm* GetCustomForms(int Index) const;
    int GetDataModuleCount() const { return static_cast<int>(FDataModules.size()); }
    TDataModule* GetDataModules(int Index) const;
    PROPERTY_READ(int, FormCount);
    PROPERTY_INDEXED_READ(TForm*, Forms);
    PROPERTY_READ(int, CustomFormCount);
    PROPERTY_INDEXED_READ(TCustomForm*, CustomForms);
    PROPERTY_READ(int, DataModuleCount);
    PROPERTY_INDEXED_READ(TDataModule*, DataModules);
    // Between these two calls forms do not align their controls.
    void DisableAlign();
    void EnableAlign();
    void Realign();

    TNotifyEvent OnActiveControlChange;
    TNotifyEvent OnActiveFormChange;

private:
    friend class TApplicationHost;
    friend class TCustomForm;
    friend class TDataModule;
    friend class TFormFocus;

    void AddForm(TCustomForm* Form);
    void RemoveForm(TCustomForm* Form);
    void SetActive(TCustomForm* Form, TWinControl* Control);
    void ForgetIn(const TWinControl* Area);
    void ReportActive();

    std::vector<TCustomForm*> FCustomForms;
    std::vector<TDataModule*> FDataModules;
    mutable std::map<int, HCURSOR> FCursors; // those of resources come in when they are asked for
    std::unique_ptr<TStrings> FFonts;
    TFont FHintFont;
    TFont FMenuFont;
    TCustomForm* FActiveCustomForm = nullptr;
    TWinControl* FActiveControl = nullptr;
    TCustomForm* FFocusedForm = nullptr;    // the last one that was told CM_ACTIVATE
    TCustomForm* FLastActiveForm = nullptr; // as reported
    TWinControl* FLastActiveControl = nullptr;
    int FAlignLevel = 0;
    TCursor FCursor = crDefault;
};

// The one screen.
extern TScreen* Screen;

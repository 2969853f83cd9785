// TCustomEdit: the system's edit control.
#pragma once

#include "vcl/controls/WinControl.h"
#include "vcl/stdctrls/StdTypes.h"

// Positions and lengths of the selection count bytes of Text, so that Text.substr(SelStart, SelLength) is SelText.
class TCustomEdit : public TWinControl {
    VCL_CLASS(TCustomEdit, TWinControl)
public:
    explicit TCustomEdit(TComponent* AOwner);
    void DefaultHandler(TMessage& Message) override;

    // Entering the control by keyboard selects all of its text.
    bool AutoSelect = true;
    // bsNone or bsSingle: sunken with Ctl3D, else a line.
    TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    PROPERTY(TBorderStyle, BorderStyle);
    // Letters become capital or small as they are typed or set.
    TEditCharCase GetCharCase() const { return FCharCase; }
    void SetCharCase(TEditCharCase Value);
    PROPERTY(TEditCharCase, CharCase);
    // The selection shows only while the control has the focus.
    bool GetHideSelection() const { return FHideSelection; }
    void SetHideSelection(bool Value);
    PROPERTY(bool, HideSelection);
    // Kept for form files: the input method stays as the user has set it.
    TImeMode ImeMode = imDontCare;
    AnsiString ImeName;
    // The most characters that can be typed; 0 is no limit.
    int GetMaxLength() const { return FMaxLength; }
    void SetMaxLength(int Value);
    PROPERTY(int, MaxLength);
    // Typed characters become ones that the system's OEM code page has.
    bool GetOEMConvert() const { return FOEMConvert; }
    void SetOEMConvert(bool Value);
    PROPERTY(bool, OEMConvert);
    // Shown in place of every character; #0 shows the text.
    char GetPasswordChar() const { return FPasswordChar; }
    void SetPasswordChar(char Value);
    PROPERTY(char, PasswordChar);
    bool GetReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool Value);
    PROPERTY(bool, ReadOnly);

    // The user has changed the text since it was last set to false.
    bool GetModified();
    void SetModified(bool Value);
    PROPERTY(bool, Modified);
    // Positions beyond the text count as its end. Setting SelStart ends the selection.
    int GetSelStart();
    void SetSelStart(int Value);
    PROPERTY(int, SelStart);
    int GetSelLength();
    void SetSelLength(int Value);
    PROPERTY(int, SelLength);
    // Setting replaces the selection and puts the caret behind the new text.
    AnsiString GetSelText();
    void SetSelText(const AnsiString& Value);
    PROPERTY(AnsiString, SelText);
    bool GetCanUndo();
    PROPERTY_READ(bool, CanUndo);

    void Clear() { SetText(""); }
    void ClearSelection();
    void ClearUndo();
    void CopyToClipboard();
    void CutToClipboard();
    void PasteFromClipboard();
    void SelectAll();
    void Undo();

    // The text changed, by whatever means.
    TNotifyEvent OnChange;

    void SetAutoSize(bool Value) override;
    AnsiString AccessibleName() const override;
    int AccessibleRole() const override;
    int AccessibleState() const override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    virtual void Change() { OnChange(this); }
    // The text may have more than one line.
    virtual bool IsMultiLine() const { return false; }

private:
    void CNCommand(TWMCommand& Message);
    void CMCtl3DChanged(TMessage& Message);
    void CMEnter(TMessage& Message);
    void CMFontChanged(TMessage& Message);
    void CMTextChanged(TMessage& Message);

    void Tell(unsigned Msg, uintptr_t WParam = 0, intptr_t LParam = 0);
    void UpdateHeight();
    void Select(int Start, int End);

    int FMaxLength = 0;
    TBorderStyle FBorderStyle = bsSingle;
    TEditCharCase FCharCase = ecNormal;
    char FPasswordChar = 0;
    bool FHideSelection = true;
    bool FOEMConvert = false;
    bool FReadOnly = false;
    bool FModified = false;
    bool FCreating = false;
};

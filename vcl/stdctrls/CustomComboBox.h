// TCustomComboBox: the system's combo box.
//
// Everything but the list that is dropped down works before there is a window.
#pragma once

#include "vcl/controls/ControlCanvas.h"
#include "vcl/controls/WinControl.h"
#include "vcl/stdctrls/StdTypes.h"
#include "vcl/stdctrls/TypeAhead.h"
#include "vcl/stdctrls/WindowStrings.h"

class TCustomComboBox : public TWinControl {
    VCL_CLASS(TCustomComboBox, TWinControl)
public:
    explicit TCustomComboBox(TComponent* AOwner);

    // What is typed is completed to the first item that begins with it.
    bool AutoComplete = true;
    // Typing drops the list down.
    bool AutoDropDown = false;
    TEditCharCase GetCharCase() const { return FCharCase; }
    void SetCharCase(TEditCharCase Value);
    PROPERTY(TEditCharCase, CharCase);
    // How many items show at most when the list is dropped down.
    int DropDownCount = 8;
    // Kept for form files: the input method stays as the user has set it.
    TImeMode ImeMode = imDontCare;
    AnsiString ImeName;
    // In pixels; for styles that the application draws.
    int GetItemHeight() const;
    void SetItemHeight(int Value);
    PROPERTY(int, ItemHeight);
    // The control's own; setting copies.
    TStrings* GetItems() { return &FItems; }
    void SetItems(TStrings* Value) { FItems.Assign(Value); }
    PROPERTY(TStrings*, Items);
    // The chosen item; -1 when there is none. A number that no item has chooses none.
    int GetItemIndex() const;
    void SetItemIndex(int Value);
    PROPERTY(int, ItemIndex);
    // The most characters that can be typed; 0 is no limit.
    int GetMaxLength() const { return FMaxLength; }
    void SetMaxLength(int Value);
    PROPERTY(int, MaxLength);
    bool GetSorted() const { return FSorted; }
    void SetSorted(bool Value);
    PROPERTY(bool, Sorted);
    TComboBoxStyle GetStyle() const { return FStyle; }
    void SetStyle(TComboBoxStyle Value);
    PROPERTY(TComboBoxStyle, Style);

    // The list is down.
    bool GetDroppedDown() const;
    void SetDroppedDown(bool Value);
    PROPERTY(bool, DroppedDown);
    void Clear();
    void SelectAll();
    bool Focused() const override;
    // In the styles without an edit: the chosen item's text. Setting it chooses the item with that text, if any.
    AnsiString GetText() const override;

    // For drawing in OnDrawItem.
    TCanvas* GetCanvas() { return &FCanvas; }
    PROPERTY_READ(TCanvas*, Canvas);

    // The user changed the text, or chose an item and there is no OnSelect.
    TNotifyEvent OnChange;
    TNotifyEvent OnCloseUp;
    TNotifyEvent OnDropDown;
    // The user chose an item; OnClick comes before.
    TNotifyEvent OnSelect;
    // For the styles that the application draws. The canvas has the item's colours; the background is not drawn yet.
    TDrawItemEvent OnDrawItem;
    TMeasureItemEvent OnMeasureItem;

    AnsiString AccessibleName() const override;
    int AccessibleRole() const override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    void StoreText(const AnsiString& Value) override;
    void KeyPress(char16_t& Key) override;
    void DefaultHandler(TMessage& Message) override;
    virtual void Change() { OnChange(this); }
    virtual void Select();
    virtual void DropDown() { OnDropDown(this); }
    virtual void CloseUp() { OnCloseUp(this); }
    virtual void DrawItem(int Index, const TRect& Rect, TOwnerDrawState State);
    virtual void MeasureItem(int Index, int& Height) { OnMeasureItem(this, Index, Height); }

private:
    static LRESULT CALLBACK EditProcedure(HWND Edit, UINT Msg, WPARAM WParam, LPARAM LParam, UINT_PTR, DWORD_PTR Data);

    void CNCommand(TWMCommand& Message);
    void CNDrawItem(TMessage& Message);
    void CNMeasureItem(TMessage& Message);
    void CMWantSpecialKey(TMessage& Message);
    void CMEnter(TMessage& Message);

    bool IsList() const { return FStyle >= csDropDownList; }
    bool OwnerDrawn() const { return FStyle >= csOwnerDrawFixed; }
    bool ForEdit(TMessage& Message);
    void AdjustDropDown();
    void CompleteText();
    bool FindTyped(char16_t Key);

    TWindowStrings FItems;
    TControlCanvas FCanvas;
    TTypeAhead FTypeAhead;
    HWND FEdit = nullptr;
    int FKeptIndex = -1; // the chosen item while there is no window
    int FItemHeight = 16;
    int FMaxLength = 0;
    TComboBoxStyle FStyle = csDropDown;
    TEditCharCase FCharCase = ecNormal;
    bool FSorted = false;
    bool FTyping = false;
    bool FFromEdit = false; // the message that is being handled was sent to the edit window
};

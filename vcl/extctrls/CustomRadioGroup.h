// TCustomRadioGroup: a group box that makes its radio buttons from a list of texts.
#pragma once

#include "vcl/classes/StringList.h"
#include "vcl/stdctrls/CustomGroupBox.h"

class TGroupButton;
class TRadioButton;

class TCustomRadioGroup : public TCustomGroupBox {
    VCL_CLASS(TCustomRadioGroup, TCustomGroupBox)
public:
    explicit TCustomRadioGroup(TComponent* AOwner);
    ~TCustomRadioGroup() override;

    // 1 to 16; other values are brought within. The buttons go down each column in turn.
    int GetColumns() const { return FColumns; }
    void SetColumns(int Value);
    PROPERTY(int, Columns);
    // The button that is checked; -1 when none is. Setting brings it within what exists and raises OnClick.
    int GetItemIndex() const { return FItemIndex; }
    void SetItemIndex(int Value);
    PROPERTY(int, ItemIndex);
    // One button for each. The control's own; setting copies.
    TStrings* GetItems() { return &FItems; }
    void SetItems(TStrings* Value) { FItems.Assign(Value); }
    PROPERTY(TStrings*, Items);
    // Raises EListError when Index is out of range. The button is the control's own.
    TRadioButton* GetButtons(int Index) const;
    PROPERTY_INDEXED_READ(TRadioButton*, Buttons);

    bool CanFocus() const override;
    void GetChildren(const TGetChildProc& Proc, TComponent* Root) override;
    int AccessibleRole() const override;

protected:
    void Loaded() override;
    void ReadState(TReader& Reader) override;
    void Resize() override;
    // Asked before the user checks a button.
    virtual bool CanModify() const { return true; }

private:
    friend class TGroupButton;

    void CMEnabledChanged(TMessage& Message);
    void CMFontChanged(TMessage& Message);

    void ItemsChanged(TObject* Sender);
    void ButtonClick(TObject* Sender);
    void UpdateButtons();
    void ArrangeButtons();

    TStringList FItems;
    std::vector<TGroupButton*> FButtons;
    int FColumns = 1;
    int FItemIndex = -1;
    bool FReading = false;
    bool FUpdating = false;
};

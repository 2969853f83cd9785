// TkelCheckListBox: a list box with a check box in front of every item.
#pragma once

#include "controls/CustomListBox.h"

#include <memory>
#include <unordered_map>

// What a check list keeps with an item in place of the user's number.
struct TCheckListBoxDataWrapper {
    intptr_t Data = 0;
    TCheckBoxState State = cbUnchecked;

    bool GetChecked() const { return State == cbChecked; }
    void SetChecked(bool Value) { State = Value ? cbChecked : cbUnchecked; }
    // Of items that have none of these.
    static constexpr TCheckBoxState GetDefaultState() { return cbUnchecked; }
};

// A list of lbStandard is drawn by the control itself, and never calls OnDrawItem. Items that do not exist raise
// EListError "List Index Error".
class TkelCheckListBox : public TkelCustomListBox {
    VCL_CLASS(TkelCheckListBox, TkelCustomListBox)
public:
    using TkelCustomListBox::TkelCustomListBox;

    // The user has changed an item's state: that of ItemIndex by keyboard, the one under the mouse by a click.
    TNotifyEvent OnClickCheck;
    // Clicks also lead to cbGrayed: unchecked, grayed, checked.
    bool AllowGrayed = false;

    // State is cbChecked. Setting raises no event.
    bool GetChecked(int Index);
    void SetChecked(int Index, bool Value);
    PROPERTY_INDEXED(bool, Checked);
    TCheckBoxState GetState(int Index);
    void SetState(int Index, TCheckBoxState Value);
    PROPERTY_INDEXED(TCheckBoxState, State);
    // The width in pixels of the column of check boxes. A press in it, of any mouse button, changes the state.
    static int GetCheckWidth();

    intptr_t GetItemData(int Index) override;
    void SetItemData(int Index, intptr_t Data) override;
    void DeleteString(int Index) override;
    void ResetContent() override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void DrawItem(int Index, const TRect& Rect, TOwnerDrawState State) override;
    void DrawItemOf(TMessage& Message) override;
    void KeyDown(uint16_t& Key, TShiftState Shift) override;
    void KeyPress(char16_t& Key) override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    // Raises OnClickCheck.
    virtual void ClickCheck();
    // Nothing happens when there is no such item.
    void ToggleClickCheck(int Index);

private:
    void CMFontChanged(TMessage& Message);

    // nullptr when the item has none.
    TCheckListBoxDataWrapper* FindWrapper(int Index);
    TCheckListBoxDataWrapper& GetWrapper(int Index);
    void FreeWrapper(int Index);
    void ResetItemHeight();
    void InvalidateCheck(int Index);
    void DrawCheck(const TRect& R, TCheckBoxState State);

    // By what the window keeps with the item. A number that is not in here is nobody's pointer.
    std::unordered_map<intptr_t, std::unique_ptr<TCheckListBoxDataWrapper>> FWrappers;
};

#include "vcl/extctrls/CustomRadioGroup.h"

#include "vcl/classes/ListIndex.h"
#include "vcl/stdctrls/RadioButton.h"
#include "vcl/stdctrls/TextMeasure.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

// One of the group's buttons: it belongs to the group and is no part of the form file.
class TGroupButton : public TRadioButton {
    VCL_CLASS(TGroupButton, TRadioButton)
public:
    explicit TGroupButton(TCustomRadioGroup* Group);

protected:
    // The group decides whether the user may check it.
    void WndProc(TMessage& Message) override;
};

void TGroupButton::Describe(TClassBuilder<TGroupButton>&)
{}

TGroupButton::TGroupButton(TCustomRadioGroup* Group) : TRadioButton(Group)
{
    Visible = false;
    Enabled = Group->Enabled;
    ParentShowHint = false;
    OnClick = {Group, &TCustomRadioGroup::ButtonClick};
    Parent = Group;
}

void TGroupButton::WndProc(TMessage& Message)
{
    if (Message.Msg == CN_COMMAND && !static_cast<TCustomRadioGroup*>(Parent)->CanModify())
        return;
    inherited::WndProc(Message);
}

void TCustomRadioGroup::Describe(TClassBuilder<TCustomRadioGroup>& Class)
{
    Class.Declare<&Self::GetColumns, &Self::SetColumns>("Columns").Default(1);
    Class.Declare<&Self::GetItemIndex, &Self::SetItemIndex>("ItemIndex").Default(-1);
    Class.Declare<&Self::GetItems, &Self::SetItems>("Items");

    Class.Message<&Self::CMEnabledChanged>(CM_ENABLEDCHANGED);
    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
}

TCustomRadioGroup::TCustomRadioGroup(TComponent* AOwner) : TCustomGroupBox(AOwner)
{
    ControlStyle = TControlStyle{csSetCaption, csDoubleClicks};
    FItems.OnChange = {this, &TCustomRadioGroup::ItemsChanged};
}

TCustomRadioGroup::~TCustomRadioGroup()
{
    FItems.OnChange = nullptr;
}

// The buttons are made from Items, not read.
void TCustomRadioGroup::GetChildren(const TGetChildProc&, TComponent*)
{}

void TCustomRadioGroup::ReadState(TReader& Reader)
{
    {
        const TScopedValue Reading(FReading, true, false);
        inherited::ReadState(Reader);
    }
    UpdateButtons();
}

void TCustomRadioGroup::Loaded()
{
    inherited::Loaded();
    ArrangeButtons();
}

// ---- buttons

void TCustomRadioGroup::ItemsChanged(TObject*)
{
    if (FReading || IsDestroying())
        return;
    FItemIndex = std::min(FItemIndex, FItems.Count - 1);
    UpdateButtons();
}

void TCustomRadioGroup::UpdateButtons()
{
    size_t Count = static_cast<size_t>(FItems.Count);
    while (FButtons.size() > Count) {
        delete FButtons.back();
        FButtons.pop_back();
    }
    while (FButtons.size() < Count)
        FButtons.push_back(new TGroupButton(this));
    {
        TScopedValue Updating(FUpdating, true);
        for (size_t I = 0; I < Count; ++I) {
            FButtons[I]->Caption = FItems[static_cast<int>(I)];
            FButtons[I]->Checked = static_cast<int>(I) == FItemIndex;
        }
    }
    ArrangeButtons();
    Invalidate();
}

// Rows share the height below the title evenly.
void TCustomRadioGroup::ArrangeButtons()
{
    if (FButtons.empty() || FReading)
        return;
    int Count = static_cast<int>(FButtons.size());
    int PerColumn = (Count + FColumns - 1) / FColumns;
    int Title = LineHeight(Font);
    int ColumnWidth = (Width - 10) / FColumns;
    int Space = Height - Title - 5;
    int RowHeight = Space / PerColumn;
    int Top = Title + 1 + Space % PerColumn / 2;
    DisableAlign();
    for (int I = 0; I < Count; ++I) {
        int Column = I / PerColumn;
        if (BiDiMode == bdRightToLeft)
            Column = FColumns - 1 - Column;
        FButtons[static_cast<size_t>(I)]->SetBounds(8 + Column * ColumnWidth, Top + I % PerColumn * RowHeight,
                                                    ColumnWidth, RowHeight);
        FButtons[static_cast<size_t>(I)]->Visible = true;
    }
    EnableAlign();
}

void TCustomRadioGroup::ButtonClick(TObject* Sender)
{
    if (FUpdating)
        return;
    auto Place = std::find(FButtons.begin(), FButtons.end(), Sender);
    FItemIndex = static_cast<int>(Place - FButtons.begin());
    Changed();
    Click();
}

TRadioButton* TCustomRadioGroup::GetButtons(int Index) const
{
    CheckListIndex(Index, static_cast<int>(FButtons.size()));
    return FButtons[static_cast<size_t>(Index)];
}

// ---- properties

void TCustomRadioGroup::SetColumns(int Value)
{
    Value = std::clamp(Value, 1, 16);
    if (FColumns == Value)
        return;
    FColumns = Value;
    ArrangeButtons();
    Invalidate();
}

void TCustomRadioGroup::SetItemIndex(int Value)
{
    // A form file gives the number before the items.
    if (FReading) {
        FItemIndex = Value;
        return;
    }
    Value = std::clamp(Value, -1, FItems.Count - 1);
    if (FItemIndex == Value)
        return;
    int Before = std::exchange(FItemIndex, Value);
    if (Value >= 0)
        FButtons[static_cast<size_t>(Value)]->Checked = true;
    else
        FButtons[static_cast<size_t>(Before)]->Checked = false;
}

void TCustomRadioGroup::Resize()
{
    ArrangeButtons();
    inherited::Resize();
}

bool TCustomRadioGroup::CanFocus() const
{
    return !FButtons.empty() && inherited::CanFocus();
}

void TCustomRadioGroup::CMEnabledChanged(TMessage& Message)
{
    Inherited(Message);
    for (TGroupButton* Button : FButtons)
        Button->Enabled = Enabled;
}

void TCustomRadioGroup::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    ArrangeButtons();
}

int TCustomRadioGroup::AccessibleRole() const
{
    return ROLE_SYSTEM_GROUPING;
}

#include "vcl/extctrls/CustomLabeledEdit.h"

#include "vcl/system/ClassBuilder.h"

void TBoundLabel::Describe(TClassBuilder<TBoundLabel>& Class)
{
    Class.Publish("Left").NotStored();
    Class.Publish("Top").NotStored();
    Class.PublishAll("BiDiMode", "Caption", "Color", "DragCursor", "DragKind", "DragMode", "Font", "ParentBiDiMode",
                     "ParentColor", "ParentFont", "ParentShowHint", "PopupMenu", "ShowAccelChar", "ShowHint",
                     "Transparent", "Layout", "WordWrap", "OnClick", "OnContextPopup", "OnDblClick", "OnDragDrop",
                     "OnDragOver", "OnEndDrag", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag");
}

TBoundLabel::TBoundLabel(TComponent* AOwner) : TCustomLabel(AOwner)
{
    SetSubComponent(true);
}

void TBoundLabel::AdjustBounds()
{
    inherited::AdjustBounds();
    if (auto* Edit = As<TCustomLabeledEdit>(Owner))
        Edit->PlaceLabel();
}

void TCustomLabeledEdit::Describe(TClassBuilder<TCustomLabeledEdit>& Class)
{
    Class.Declare<&Self::GetEditLabel>("EditLabel");
    Class.Declare<&Self::GetLabelPosition, &Self::SetLabelPosition>("LabelPosition").Default(lpAbove);
    Class.Declare<&Self::GetLabelSpacing, &Self::SetLabelSpacing>("LabelSpacing").Default(3);

    Class.Message<&Self::CMEnabledChanged>(CM_ENABLEDCHANGED);
    Class.Message<&Self::CMVisibleChanged>(CM_VISIBLECHANGED);
}

TCustomLabeledEdit::TCustomLabeledEdit(TComponent* AOwner) : TCustomEdit(AOwner)
{
    FEditLabel = new TBoundLabel(this);
    FEditLabel->Name = "SubLabel";
    FEditLabel->Caption = "";
    FEditLabel->FocusControl = this;
}

void TCustomLabeledEdit::PlaceLabel()
{
    if (!FEditLabel)
        return;
    int X = Left;
    int Y = Top;
    switch (FLabelPosition) {
    case lpAbove: Y -= FEditLabel->Height + FLabelSpacing; break;
    case lpBelow: Y += Height + FLabelSpacing; break;
    case lpLeft:
        X -= FEditLabel->Width + FLabelSpacing;
        Y += (Height - FEditLabel->Height) / 2;
        break;
    case lpRight:
        X += Width + FLabelSpacing;
        Y += (Height - FEditLabel->Height) / 2;
        break;
    }
    FEditLabel->SetBounds(X, Y, FEditLabel->Width, FEditLabel->Height);
}

void TCustomLabeledEdit::SetLabelPosition(TLabelPosition Value)
{
    if (FLabelPosition == Value)
        return;
    FLabelPosition = Value;
    PlaceLabel();
}

void TCustomLabeledEdit::SetLabelSpacing(int Value)
{
    if (FLabelSpacing == Value)
        return;
    FLabelSpacing = Value;
    PlaceLabel();
}

// The label stands beside the edit, on the same parent.
void TCustomLabeledEdit::SetParent(TWinControl* Value)
{
    inherited::SetParent(Value);
    if (FEditLabel)
        FEditLabel->Parent = Value;
}

void TCustomLabeledEdit::SetBounds(int ALeft, int ATop, int AWidth, int AHeight)
{
    inherited::SetBounds(ALeft, ATop, AWidth, AHeight);
    PlaceLabel();
}

// In the designer the label's caption is the edit's name until it gets a caption of its own.
void TCustomLabeledEdit::SetName(const AnsiString& Value)
{
    bool Follows =
        IsDesigning() && !IsLoading() && FEditLabel && (FEditLabel->Caption.empty() || FEditLabel->Caption == Name);
    inherited::SetName(Value);
    if (Follows)
        FEditLabel->Caption = Value;
}

void TCustomLabeledEdit::CMEnabledChanged(TMessage& Message)
{
    Inherited(Message);
    if (FEditLabel)
        FEditLabel->Enabled = Enabled;
}

void TCustomLabeledEdit::CMVisibleChanged(TMessage& Message)
{
    Inherited(Message);
    if (FEditLabel)
        FEditLabel->Visible = Visible;
}

AnsiString TCustomLabeledEdit::AccessibleName() const
{
    return FEditLabel ? FEditLabel->AccessibleName() : "";
}

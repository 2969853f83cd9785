#include "controls/OfficeCheckBox.h"

#include "vcl/system/ClassBuilder.h"

void TkelOfficeCheckBox::Describe(TClassBuilder<TkelOfficeCheckBox>& Class)
{
    Class.Publish("Caption");
    Class.Property<&Self::GetChecked, &Self::SetChecked>("Checked");
    Class.PublishAll("DragCursor", "DragMode", "Font");
    Class.Publish("Color").Default(clWindow);
    Class.PublishAll("ParentFont", "PopupMenu", "Visible", "ShowHint");
    Class.Property<&Self::GetState, &Self::SetState>("State");
    Class.PublishAll("TabOrder", "TabStop", "OnClick", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnKeyDown",
                     "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp");
}

TkelOfficeCheckBox::TkelOfficeCheckBox(TComponent* AOwner) : TOfficeToggle(AOwner)
{}

// ---- state

// A form has both Checked and State, in whichever order: Checked = False says nothing against cbGrayed.
void TkelOfficeCheckBox::SetChecked(bool Value)
{
    if (IsLoading() && !Value && FState == cbGrayed)
        return;
    SetState(Value ? cbChecked : cbUnchecked);
}

void TkelOfficeCheckBox::SetState(TCheckBoxState Value)
{
    if (FState == Value)
        return;
    FState = Value;
    RedrawNow();
    Click();
}

void TkelOfficeCheckBox::Toggle()
{
    Checked = !Checked;
}

// ---- drawing

void TkelOfficeCheckBox::Paint()
{
    const bool IsHot = IsMouseInside();
    const int Top = MarkTop();
    const int Bottom = Top + MarkSize;
    Canvas->Font = Font;
    Canvas->Pen->Width = 1;
    Canvas->Pen->Color = clBtnShadow;
    Canvas->Brush->Style = bsSolid;
    Canvas->Brush->Color = IsHot ? clWindow : Color;
    Canvas->Rectangle(MarkLeft + 1, Top + 1, MarkRight, Bottom);
    Canvas->MoveTo(MarkLeft, Bottom);
    Canvas->LineTo(MarkLeft, Top);
    Canvas->LineTo(MarkRight, Top);
    if (IsHot)
        Canvas->Pen->Color = clBtnHighlight;
    Canvas->LineTo(MarkRight, Bottom);
    Canvas->LineTo(MarkLeft, Bottom);
    if (FState != cbUnchecked) {
        Canvas->Pen->Color = IsHot ? clWindowText : clGrayText;
        DrawMark(Top - 1);
    }
    DrawCaption();
}

// Four strokes; the last point of each is not drawn.
void TkelOfficeCheckBox::DrawMark(int Top)
{
    const int Bottom = Top + MarkSize;
    const auto Stroke = [&](int X1, int Y1, int X2, int Y2) {
        Canvas->MoveTo(X1, Y1);
        Canvas->LineTo(X2, Y2);
    };
    Stroke(3, Top + 7, 3, Bottom - 1);
    Stroke(4, Top + 6, 4, Bottom - 2);
    Stroke(3, Bottom - 1, MarkRight - 2, Top + 3);
    Stroke(4, Bottom - 1, MarkRight - 1, Top + 3);
}

// ---- for assistive technology

int TkelOfficeCheckBox::AccessibleRole() const
{
    return ROLE_SYSTEM_CHECKBUTTON;
}

int TkelOfficeCheckBox::AccessibleState() const
{
    constexpr int States[] = {0, STATE_SYSTEM_CHECKED, STATE_SYSTEM_MIXED};
    return inherited::AccessibleState() | States[FState];
}

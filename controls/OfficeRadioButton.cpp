#include "controls/OfficeRadioButton.h"

#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"

#include <cmath>
#include <numbers>

namespace {

constexpr int Radius = 6;
constexpr int DotInset = 4;

} // namespace

void TkelOfficeRadioButton::Describe(TClassBuilder<TkelOfficeRadioButton>& Class)
{
    Class.Publish("Caption");
    Class.Property<&Self::GetChecked, &Self::SetChecked>("Checked");
    Class.PublishAll("DragCursor", "DragMode", "Font", "Visible");
    Class.Value<&Self::GroupIndex>("GroupIndex");
    Class.PublishAll("ParentFont", "PopupMenu", "ShowHint", "TabOrder", "TabStop", "OnClick", "OnDragDrop",
                     "OnDragOver", "OnEndDrag", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove",
                     "OnMouseUp");
}

TkelOfficeRadioButton::TkelOfficeRadioButton(TComponent* AOwner) : TOfficeToggle(AOwner)
{}

// ---- state

void TkelOfficeRadioButton::SetChecked(bool Value)
{
    if (FChecked == Value)
        return;
    const TStillThere IsThere(this);
    TabStop = Value;
    FChecked = Value;
    if (Value) {
        TurnSiblingsOff();
        Click();
    }
    if (IsThere)
        RedrawNow();
}

void TkelOfficeRadioButton::TurnSiblingsOff()
{
    if (!Parent)
        return;
    for (int I = 0; I < Parent->ControlCount; ++I) {
        auto* Other = As<TkelOfficeRadioButton>(Parent->Controls[I]);
        if (Other && Other != this && Other->GroupIndex == GroupIndex)
            Other->Checked = false;
    }
}

void TkelOfficeRadioButton::Toggle()
{
    Checked = true;
}

void TkelOfficeRadioButton::DoEnter()
{
    const TStillThere IsThere(this);
    inherited::DoEnter();
    if (IsThere)
        Checked = true;
}

void TkelOfficeRadioButton::SetCheckColor(TColor Value)
{
    if (FCheckColor == Value)
        return;
    FCheckColor = Value;
    RedrawNow();
}

// ---- drawing

void TkelOfficeRadioButton::Paint()
{
    const bool IsHot = IsMouseInside();
    const int Top = MarkTop();
    const int Bottom = Top + MarkSize;
    Canvas->Font = Font;
    Canvas->Pen->Width = 1;
    Canvas->Pen->Color = Color;
    Canvas->Brush->Style = bsSolid;
    Canvas->Brush->Color = Color;
    Canvas->Rectangle(0, 0, Width, Height);
    Canvas->Pen->Color = IsHot ? clBtnShadow : clGrayText;
    Canvas->Brush->Color = IsHot ? clWindow : Color;
    Canvas->Ellipse(MarkLeft + 1, Top + 1, MarkRight - 1, Bottom - 1);
    if (IsHot)
        Cerchio(MarkLeft + Radius, Top + Radius, Radius);
    if (FChecked) {
        const TColor Dot = IsHot ? clWindowText : clGrayText;
        Canvas->Pen->Color = Dot;
        Canvas->Brush->Color = Dot;
        Canvas->Ellipse(MarkLeft + DotInset, Top + DotInset, MarkRight - DotInset, Bottom - DotInset);
    }
    DrawCaption();
}

void TkelOfficeRadioButton::Cerchio(int CenterX, int CenterY, int Radius)
{
    Canvas->MoveTo(CenterX + Radius, CenterY);
    for (int Degree = 1; Degree <= 360; ++Degree) {
        const double Angle = Degree * std::numbers::pi / 180;
        Canvas->Pen->Color = Degree >= 45 && Degree <= 225 ? clBtnShadow : clBtnHighlight;
        Canvas->LineTo(CenterX + static_cast<int>(Radius * std::cos(Angle)),
                       CenterY - static_cast<int>(Radius * std::sin(Angle)));
    }
}

// ---- for assistive technology

int TkelOfficeRadioButton::AccessibleRole() const
{
    return ROLE_SYSTEM_RADIOBUTTON;
}

int TkelOfficeRadioButton::AccessibleState() const
{
    return inherited::AccessibleState() | (FChecked ? STATE_SYSTEM_CHECKED : 0);
}

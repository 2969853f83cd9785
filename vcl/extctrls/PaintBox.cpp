#include "vcl/extctrls/PaintBox.h"

#include "vcl/system/ClassBuilder.h"

void TPaintBox::Describe(TClassBuilder<TPaintBox>& Class)
{
    Class.PublishAll("Align", "Anchors", "Color", "Constraints", "DragCursor", "DragKind", "DragMode", "Enabled",
                     "Font", "ParentColor", "ParentFont", "ParentShowHint", "PopupMenu", "ShowHint", "Visible",
                     "OnClick", "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnMouseDown",
                     "OnMouseMove", "OnMouseUp");
    Class.Event<&Self::OnPaint>("OnPaint");
    Class.Publish("OnStartDrag");
}

TPaintBox::TPaintBox(TComponent* AOwner) : TGraphicControl(AOwner)
{
    ControlStyle = ControlStyle + TControlStyle{csReplicatable};
    SetBounds(0, 0, 105, 105);
}

void TPaintBox::Paint()
{
    Canvas->Font = Font;
    Canvas->Brush->Color = Color;
    Canvas->Brush->Style = bsSolid;
    if (IsDesigning()) {
        Canvas->Pen->Style = psDash;
        Canvas->Brush->Style = bsClear;
        Canvas->Rectangle(0, 0, Width, Height);
    }
    OnPaint(this);
}

int TPaintBox::AccessibleRole() const
{
    return ROLE_SYSTEM_GRAPHIC;
}

#include "vcl/forms/ScrollBox.h"

#include "vcl/system/ClassBuilder.h"

void TScrollBox::Describe(TClassBuilder<TScrollBox>& Class)
{
    Class.PublishAll("Align", "Anchors", "AutoScroll", "AutoSize", "BiDiMode");
    Class.Property<&Self::GetBorderStyle, &Self::SetBorderStyle>("BorderStyle").Default(bsSingle);
    Class.PublishAll("Constraints", "DragCursor", "DragKind", "DragMode", "Enabled");
    Class.Publish("Color").NoDefault();
    Class.PublishAll("Ctl3D", "Font", "ParentBiDiMode", "ParentColor", "ParentCtl3D", "ParentFont", "ParentShowHint",
                     "PopupMenu", "ShowHint", "TabOrder", "TabStop", "Visible", "OnCanResize", "OnClick",
                     "OnConstrainedResize", "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag",
                     "OnEnter", "OnExit", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnMouseWheel", "OnResize",
                     "OnStartDrag");

    Class.Message<&Self::CMCtl3DChanged>(CM_CTL3DCHANGED);
}

TScrollBox::TScrollBox(TComponent* AOwner) : TScrollingWinControl(AOwner)
{
    ControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
    SetBounds(0, 0, 185, 41);
    AutoScroll = true;
}

void TScrollBox::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TScrollBox::CreateParams(TCreateParams& Params)
{
    TScrollingWinControl::CreateParams(Params);
    if (FBorderStyle != bsSingle)
        return;
    if (Ctl3D)
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    else
        Params.Style |= WS_BORDER;
}

void TScrollBox::CMCtl3DChanged(TMessage& Message)
{
    if (FBorderStyle == bsSingle)
        RecreateWnd();
    Inherited(Message);
}

#include "vcl/forms/Frame.h"

#include "vcl/classes/Reader.h"
#include "vcl/forms/RootChildren.h"
#include "vcl/system/ClassBuilder.h"

void TCustomFrame::Describe(TClassBuilder<TCustomFrame>&)
{}

TCustomFrame::TCustomFrame(TComponent* AOwner) : TScrollingWinControl(AOwner)
{
    ControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
    SetBounds(0, 0, 320, 240);
}

void TCustomFrame::CreateParams(TCreateParams& Params)
{
    TScrollingWinControl::CreateParams(Params);
    Params.Style |= WS_CLIPCHILDREN;
}

void TCustomFrame::GetChildren(const TGetChildProc& Proc, TComponent* Root)
{
    TScrollingWinControl::GetChildren(Proc, Root);
    GetRootChildren(this, Proc, Root);
}

void TCustomFrame::DefineProperties(TFiler& Filer)
{
    TScrollingWinControl::DefineProperties(Filer);
    Filer.DefineProperty("PixelsPerInch", {this, &TCustomFrame::ReadDesignPixels}, nullptr, false);
    Filer.DefineProperty("TextHeight", {this, &TCustomFrame::ReadDesignPixels}, nullptr, false);
}

// Frames are not scaled.
void TCustomFrame::ReadDesignPixels(TReader* Reader)
{
    Reader->ReadInteger();
}

void TFrame::Describe(TClassBuilder<TFrame>& Class)
{
    Class.PublishAll("Align", "Anchors", "AutoScroll", "AutoSize", "BiDiMode", "Constraints", "DragCursor", "DragKind",
                     "DragMode", "Enabled", "Color", "Ctl3D", "Font", "ParentBiDiMode", "ParentColor", "ParentCtl3D",
                     "ParentFont", "ParentShowHint", "PopupMenu", "ShowHint", "TabOrder", "TabStop", "Visible",
                     "OnCanResize", "OnClick", "OnConstrainedResize", "OnContextPopup", "OnDblClick", "OnDragDrop",
                     "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnMouseDown", "OnMouseMove", "OnMouseUp",
                     "OnMouseWheel", "OnResize", "OnStartDrag");
    Class.Publish("AutoScroll").Default(false);
}

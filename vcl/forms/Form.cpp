#include "vcl/forms/Form.h"

#include "vcl/system/ClassBuilder.h"

void TForm::Describe(TClassBuilder<TForm>& Class)
{
    Class.PublishAll("ActiveControl", "Align", "AlphaBlend", "AlphaBlendValue", "Anchors", "AutoScroll", "AutoSize",
                     "BiDiMode", "BorderIcons", "BorderStyle", "BorderWidth", "Caption", "ClientHeight", "ClientWidth",
                     "Color", "TransparentColor", "TransparentColorValue", "Constraints", "Ctl3D", "UseDockManager",
                     "DefaultMonitor", "DockSite", "DragKind", "DragMode", "Enabled");
    Class.Publish("ParentFont").Default(false);
    Class.PublishAll("Font", "FormStyle", "Height", "HelpFile", "HorzScrollBar", "Icon", "KeyPreview", "Menu",
                     "OldCreateOrder", "ObjectMenuItem", "ParentBiDiMode", "PixelsPerInch", "PopupMenu", "Position",
                     "PrintScale", "Scaled", "ScreenSnap", "ShowHint", "SnapBuffer", "VertScrollBar");
    Class.Publish("Visible").Default(false);
    Class.PublishAll("Width", "WindowState", "WindowMenu");
    Class.PublishAll("OnActivate", "OnCanResize", "OnClick", "OnClose", "OnCloseQuery", "OnConstrainedResize",
                     "OnContextPopup", "OnCreate", "OnDblClick", "OnDestroy", "OnDeactivate", "OnDragDrop",
                     "OnDragOver", "OnHelp", "OnHide", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown",
                     "OnMouseMove", "OnMouseUp", "OnMouseWheel", "OnPaint", "OnResize", "OnShortCut", "OnShow");
}

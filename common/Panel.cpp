#include "common/Panel.h"

#include "vcl/system/ClassBuilder.h"

void TkelPanel::Describe(TClassBuilder<TkelPanel>& Class)
{
    Class.PublishAll("BevelSides", "BorderColor", "BorderSides", "VerticalAlignment", "Transparent", "ShowCaption",
                     "Align", "Alignment", "BevelInner", "BevelOuter", "BevelWidth", "BorderStyle", "BorderWidth",
                     "Locked", "DragCursor", "Enabled", "Caption");
    Class.Publish("Color").Default(clBtnFace);
    Class.PublishAll("Ctl3D", "Font");
    Class.Publish("ParentColor").Default(false); // a new panel has a colour of its own
    Class.PublishAll("ParentCtl3D", "ParentFont", "ParentShowHint", "PopupMenu", "ShowHint", "TabOrder", "TabStop",
                     "Visible", "OnClick", "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter", "OnExit",
                     "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnResize");
}

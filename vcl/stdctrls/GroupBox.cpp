#include "vcl/stdctrls/GroupBox.h"

#include "vcl/system/ClassBuilder.h"

void TGroupBox::Describe(TClassBuilder<TGroupBox>& Class)
{
    Class.PublishAll("Align", "Anchors", "BiDiMode", "Caption", "Color", "Constraints", "Ctl3D", "DragCursor",
                     "DragKind", "DragMode", "Enabled", "Font", "ParentBackground", "ParentBiDiMode", "ParentColor",
                     "ParentCtl3D", "ParentFont", "ParentShowHint", "PopupMenu", "ShowHint", "TabOrder", "TabStop",
                     "Visible", "OnClick", "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag",
                     "OnEnter", "OnExit", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag");
}

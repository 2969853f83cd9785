#include "vcl/stdctrls/CheckBox.h"

#include "vcl/system/ClassBuilder.h"

void TCheckBox::Describe(TClassBuilder<TCheckBox>& Class)
{
    Class.PublishAll("Alignment", "AllowGrayed", "Anchors", "BiDiMode", "Caption", "Checked", "Color", "Constraints",
                     "Ctl3D", "DragCursor", "DragKind", "DragMode", "Enabled", "Font", "ParentBiDiMode", "ParentColor",
                     "ParentCtl3D", "ParentFont", "ParentShowHint", "PopupMenu", "ShowHint", "State", "TabOrder",
                     "TabStop", "Visible", "OnClick", "OnContextPopup", "OnDragDrop", "OnDragOver", "OnEndDrag",
                     "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove",
                     "OnMouseUp", "OnStartDrag");
}

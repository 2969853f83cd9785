#include "vcl/stdctrls/Edit.h"

#include "vcl/system/ClassBuilder.h"

void TEdit::Describe(TClassBuilder<TEdit>& Class)
{
    Class.PublishAll("Align", "Anchors", "AutoSelect", "AutoSize", "BiDiMode", "BorderStyle", "CharCase", "Color",
                     "Constraints", "Ctl3D", "DragCursor", "DragKind", "DragMode", "Enabled", "Font", "HideSelection",
                     "ImeMode", "ImeName", "MaxLength", "OEMConvert", "ParentBiDiMode", "ParentColor", "ParentCtl3D",
                     "ParentFont", "ParentShowHint", "PasswordChar", "PopupMenu", "ReadOnly", "ShowHint", "TabOrder",
                     "TabStop", "Text", "Visible", "OnChange", "OnClick", "OnContextPopup", "OnDblClick", "OnDragDrop",
                     "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp",
                     "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag");
}

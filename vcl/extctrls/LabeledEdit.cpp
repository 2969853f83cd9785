#include "vcl/extctrls/LabeledEdit.h"

#include "vcl/system/ClassBuilder.h"

void TLabeledEdit::Describe(TClassBuilder<TLabeledEdit>& Class)
{
    Class.PublishAll("Anchors", "AutoSelect", "AutoSize", "BiDiMode", "BorderStyle", "CharCase", "Color", "Constraints",
                     "Ctl3D", "DragCursor", "DragKind", "DragMode", "EditLabel", "Enabled", "Font", "HideSelection",
                     "ImeMode", "ImeName", "LabelPosition", "LabelSpacing", "MaxLength", "OEMConvert", "ParentBiDiMode",
                     "ParentColor", "ParentCtl3D", "ParentFont", "ParentShowHint", "PasswordChar", "PopupMenu",
                     "ReadOnly", "ShowHint", "TabOrder", "TabStop", "Text", "Visible", "OnChange", "OnClick",
                     "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter", "OnExit",
                     "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag");
}

#include "vcl/stdctrls/Memo.h"

#include "vcl/system/ClassBuilder.h"

void TMemo::Describe(TClassBuilder<TMemo>& Class)
{
    Class.PublishAll("Align", "Alignment", "Anchors", "BiDiMode", "BorderStyle", "Color", "Constraints", "Ctl3D",
                     "DragCursor", "DragKind", "DragMode", "Enabled", "Font", "HideSelection", "ImeMode", "ImeName",
                     "Lines", "MaxLength", "OEMConvert", "ParentBiDiMode", "ParentColor", "ParentCtl3D", "ParentFont",
                     "ParentShowHint", "PopupMenu", "ReadOnly", "ScrollBars", "ShowHint", "TabOrder", "TabStop",
                     "Visible", "WantReturns", "WantTabs", "WordWrap", "OnChange", "OnClick", "OnContextPopup",
                     "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown",
                     "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag");
}

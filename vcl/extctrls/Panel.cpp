#include "vcl/extctrls/Panel.h"

#include "vcl/system/ClassBuilder.h"

void TPanel::Describe(TClassBuilder<TPanel>& Class)
{
    Class.PublishAll("Align", "Alignment", "Anchors", "AutoSize", "BevelInner", "BevelOuter", "BevelWidth", "BiDiMode",
                     "BorderWidth", "BorderStyle", "Caption", "Color", "Constraints", "Ctl3D", "DragCursor", "DragKind",
                     "DragMode", "Enabled", "FullRepaint", "Font", "Locked", "ParentBiDiMode", "ParentBackground",
                     "ParentColor", "ParentCtl3D", "ParentFont", "ParentShowHint", "PopupMenu", "ShowHint", "TabOrder",
                     "TabStop", "Visible", "OnCanResize", "OnClick", "OnConstrainedResize", "OnContextPopup",
                     "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnMouseDown",
                     "OnMouseMove", "OnMouseUp", "OnResize", "OnStartDrag");
}

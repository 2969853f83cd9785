#include "vcl/extctrls/RadioGroup.h"

#include "vcl/system/ClassBuilder.h"

void TRadioGroup::Describe(TClassBuilder<TRadioGroup>& Class)
{
    Class.PublishAll("Align", "Anchors", "BiDiMode", "Caption", "Color", "Columns", "Ctl3D", "DragCursor", "DragKind",
                     "DragMode", "Enabled", "Font", "ItemIndex", "Items", "Constraints", "ParentBiDiMode",
                     "ParentBackground", "ParentColor", "ParentCtl3D", "ParentFont", "ParentShowHint", "PopupMenu",
                     "ShowHint", "TabOrder", "TabStop", "Visible", "OnClick", "OnContextPopup", "OnDragDrop",
                     "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnStartDrag");
}

#include "vcl/stdctrls/Label.h"

#include "vcl/system/ClassBuilder.h"

void TLabel::Describe(TClassBuilder<TLabel>& Class)
{
    Class.PublishAll("Align", "Alignment", "Anchors", "AutoSize", "BiDiMode", "Caption", "Color", "Constraints",
                     "DragCursor", "DragKind", "DragMode", "Enabled", "FocusControl", "Font", "ParentBiDiMode",
                     "ParentColor", "ParentFont", "ParentShowHint", "PopupMenu", "ShowAccelChar", "ShowHint",
                     "Transparent", "Layout", "Visible", "WordWrap", "OnClick", "OnContextPopup", "OnDblClick",
                     "OnDragDrop", "OnDragOver", "OnEndDrag", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag");
}

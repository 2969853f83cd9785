#include "vcl/stdctrls/StaticText.h"

#include "vcl/system/ClassBuilder.h"

void TStaticText::Describe(TClassBuilder<TStaticText>& Class)
{
    Class.PublishAll("Align", "Alignment", "Anchors", "AutoSize", "BiDiMode", "BorderStyle", "Caption", "Color",
                     "Constraints", "DragCursor", "DragKind", "DragMode", "Enabled", "FocusControl", "Font",
                     "ParentBiDiMode", "ParentColor", "ParentFont", "ParentShowHint", "PopupMenu", "ShowAccelChar",
                     "ShowHint", "TabOrder", "TabStop", "Visible", "OnClick", "OnContextPopup", "OnDblClick",
                     "OnDragDrop", "OnDragOver", "OnEndDrag", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag");
}

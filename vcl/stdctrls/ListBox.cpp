#include "vcl/stdctrls/ListBox.h"

#include "vcl/system/ClassBuilder.h"

void TListBox::Describe(TClassBuilder<TListBox>& Class)
{
    Class.PublishAll("Style", "AutoComplete", "Align", "Anchors", "BiDiMode", "BorderStyle", "Color", "Columns",
                     "Constraints", "Ctl3D", "DragCursor", "DragKind", "DragMode", "Enabled", "ExtendedSelect", "Font",
                     "ImeMode", "ImeName", "IntegralHeight", "ItemHeight", "Items", "MultiSelect", "ParentBiDiMode",
                     "ParentColor", "ParentCtl3D", "ParentFont", "ParentShowHint", "PopupMenu", "ScrollWidth",
                     "ShowHint", "Sorted", "TabOrder", "TabStop", "TabWidth", "Visible", "OnClick", "OnContextPopup",
                     "OnData", "OnDataFind", "OnDataObject", "OnDblClick", "OnDragDrop", "OnDragOver", "OnDrawItem",
                     "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMeasureItem",
                     "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag");
}

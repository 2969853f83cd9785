#include "vcl/stdctrls/ComboBox.h"

#include "vcl/system/ClassBuilder.h"

// Style comes first and Items last: both a window's style and its handlers must be there when items arrive.
void TComboBox::Describe(TClassBuilder<TComboBox>& Class)
{
    Class.PublishAll("AutoComplete", "AutoDropDown", "Style", "Align", "Anchors", "BiDiMode", "CharCase", "Color",
                     "Constraints", "Ctl3D", "DragCursor", "DragKind", "DragMode", "DropDownCount", "Enabled", "Font",
                     "ImeMode", "ImeName", "ItemHeight", "ItemIndex", "MaxLength", "ParentBiDiMode", "ParentColor",
                     "ParentCtl3D", "ParentFont", "ParentShowHint", "PopupMenu", "ShowHint", "Sorted", "TabOrder",
                     "TabStop", "Text", "Visible", "OnChange", "OnClick", "OnCloseUp", "OnContextPopup", "OnDblClick",
                     "OnDragDrop", "OnDragOver", "OnDrawItem", "OnDropDown", "OnEndDrag", "OnEnter", "OnExit",
                     "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMeasureItem", "OnSelect", "OnStartDrag", "Items");
}

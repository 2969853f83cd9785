#include "common/PopupMenu.h"

#include "vcl/system/ClassBuilder.h"

void TkelPopupMenu::Describe(TClassBuilder<TkelPopupMenu>& Class)
{
    Class.PublishAll("Style", "OnDrawItem", "OnMeasureItem");
}

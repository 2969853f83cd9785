#include "common/Menu.h"

#include "vcl/system/ClassBuilder.h"

void TkelMenu::Describe(TClassBuilder<TkelMenu>& Class)
{
    Class.PublishAll("Style", "OnDrawItem", "OnMeasureItem");
}

#include "common/ScrollBar.h"

#include "vcl/system/ClassBuilder.h"

void TkelScrollBar::Describe(TClassBuilder<TkelScrollBar>& Class)
{
    Class.Publish("Align");
}

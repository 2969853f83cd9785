#include "common/Shape.h"

#include "vcl/system/ClassBuilder.h"

void TkelShape::Describe(TClassBuilder<TkelShape>& Class)
{
    Class.Publish("Align");
}

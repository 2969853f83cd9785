#include "vcl/graphics/GraphicsObject.h"

#include "vcl/system/ClassBuilder.h"

void TGraphicsObject::Describe(TClassBuilder<TGraphicsObject>&)
{}

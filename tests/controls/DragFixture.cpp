#include "tests/controls/DragFixture.h"

void TPiece::Describe(TClassBuilder<TPiece>&)
{}

void TParcel::Describe(TClassBuilder<TParcel>&)
{}

#include "vcl/graphics/ChangeLink.h"

#include "vcl/graphics/ImageList.h"

TChangeLink::~TChangeLink()
{
    if (FSender)
        FSender->UnRegisterChanges(this);
}

void TChangeLink::Change()
{
    OnChange(FSender);
}

#include "common/Image.h"

#include "vcl/system/ClassBuilder.h"

void TkelImage::Describe(TClassBuilder<TkelImage>& Class)
{
    Class.Event<&Self::OnMouseEnter>("OnMouseEnter");
    Class.Event<&Self::OnMouseLeave>("OnMouseLeave");

    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

void TkelImage::CMMouseEnter(TMessage& Message)
{
    Inherited(Message);
    OnMouseEnter(this);
}

void TkelImage::CMMouseLeave(TMessage& Message)
{
    Inherited(Message);
    OnMouseLeave(this);
}

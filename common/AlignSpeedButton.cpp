#include "common/AlignSpeedButton.h"

#include "vcl/system/ClassBuilder.h"

void TAlignSpeedButton::Describe(TClassBuilder<TAlignSpeedButton>& Class)
{
    Class.Publish("Align");
    Class.Event<&Self::OnMouseEnter>("OnMouseEnter");
    Class.Event<&Self::OnMouseLeave>("OnMouseLeave");

    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

void TAlignSpeedButton::CMMouseEnter(TMessage& Message)
{
    Inherited(Message);
    OnMouseEnter(this);
}

void TAlignSpeedButton::CMMouseLeave(TMessage& Message)
{
    Inherited(Message);
    OnMouseLeave(this);
}

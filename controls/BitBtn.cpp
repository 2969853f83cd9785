#include "controls/BitBtn.h"

#include "vcl/system/ClassBuilder.h"

void TkelBitBtn::Describe(TClassBuilder<TkelBitBtn>& Class)
{
    Class.Property<&Self::GetHighlisgColor, &Self::SetHighlisgColor>("HighlisgColor");

    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

TkelBitBtn::TkelBitBtn(TComponent* AOwner) : TBitBtn(AOwner), FHighlight(Font)
{}

void TkelBitBtn::CMMouseEnter(TMessage&)
{
    FHighlight.MouseEnter();
}

void TkelBitBtn::CMMouseLeave(TMessage&)
{
    FHighlight.MouseLeave();
}

#include "menus/TBColorCombo.h"

#include "vcl/system/ClassBuilder.h"

void TkelTBColorCombo::Describe(TClassBuilder<TkelTBColorCombo>& Class)
{
    Class.Publish("Align");
}

TkelTBColorCombo::TkelTBColorCombo(TComponent* AOwner) : TkelColorComboButton(AOwner)
{
    Align = alLeft;
}

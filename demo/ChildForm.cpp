#include "demo/ChildForm.h"

#include "menus/MDIChildMenuBar.h"
#include "vcl/system/ClassBuilder.h"

void TChildForm::Describe(TClassBuilder<TChildForm>& Class)
{
    Class.Message<&Self::WMSize>(WM_SIZE);
}

void TChildForm::DoClose(TCloseAction& Action)
{
    Action = caFree;
    inherited::DoClose(Action);
}

void TChildForm::Activate()
{
    for (int I = 0; I < ComponentCount; ++I)
        if (auto* Bar = As<TkelMDIChildMenuBar>(Components[I]))
            Bar->MergeAll();
    inherited::Activate();
}

// Some commands are for maximized windows.
void TChildForm::WMSize(TWMSize& Message)
{
    Inherited(Message);
    StateChanged();
}

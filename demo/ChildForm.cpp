#include "demo/ChildForm.h"

#include "menus/MDIChildMenuBar.h"
#include "menus/MenuButton.h"
#include "vcl/system/ClassBuilder.h"

void TChildForm::Describe(TClassBuilder<TChildForm>& Class)
{
    Class.Message<&Self::WMMDIActivate>(WM_MDIACTIVATE);
    Class.Message<&Self::WMSize>(WM_SIZE);
}

void TChildForm::DoClose(TCloseAction& Action)
{
    Action = caFree;
    inherited::DoClose(Action);
}

// A bar that merges stops at the first button that comes before another one. The next time it goes on from there.
void TChildForm::WMMDIActivate(TMessage& Message)
{
    Inherited(Message);
    if (reinterpret_cast<HWND>(Message.LParam) != Handle)
        return;
    for (int I = 0; I < ComponentCount; ++I)
        if (const auto* Button = As<TkelMenuButton>(Components[I]))
            if (auto* Bar = As<TkelMDIChildMenuBar>(Button->Parent))
                Bar->Merge();
}

// Some commands are for maximized windows.
void TChildForm::WMSize(TWMSize& Message)
{
    Inherited(Message);
    StateChanged();
}

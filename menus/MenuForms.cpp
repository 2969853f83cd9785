#include "menus/MenuForms.h"

#include "menus/MenuButton.h"
#include "toolbar/Flpfrm97.h"
#include "toolbar/ToolBar.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Screen.h"

#include <algorithm>

namespace {

// The form that owns a component, directly or through a frame; nullptr when there is none.
TCustomForm* FormOf(TComponent* Component)
{
    while (Component && !As<TCustomForm>(Component))
        Component = Component->Owner;
    return As<TCustomForm>(Component);
}

TCustomForm* MenuFormOf(TCustomForm* Form)
{
    if (const auto* Frame = As<TFPForm97>(Form); Frame && Frame->ToolBar)
        Form = FormOf(Frame->ToolBar->Owner);
    return Form && Form->FormStyle == fsMDIChild ? Application->MainForm : Form;
}

} // namespace

TCustomForm* ActiveMenuForm()
{
    return MenuFormOf(Screen->ActiveCustomForm);
}

TCustomForm* MenuFormOf(const TkelMenuButton& Button)
{
    TCustomForm* Form = FormOf(Button.Owner);
    return Form ? MenuFormOf(Form) : ActiveMenuForm();
}

std::vector<TCustomForm*> FormsWithMenusOf(TCustomForm* MenuForm)
{
    std::vector<TCustomForm*> Forms;
    if (MenuForm && MenuForm->FormStyle == fsMDIForm && MenuForm->ActiveMDIChild)
        Forms.push_back(MenuForm->ActiveMDIChild);
    if (MenuForm)
        Forms.push_back(MenuForm);
    return Forms;
}

bool IsAmongMenusOf(TCustomForm* MenuForm, const TkelMenuButton& Button)
{
    const std::vector<TCustomForm*> Forms = FormsWithMenusOf(MenuForm);
    return std::ranges::find(Forms, FormOf(Button.Owner)) != Forms.end();
}

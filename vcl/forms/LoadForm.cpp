#include "vcl/forms/LoadForm.h"

#include "vcl/classes/LoadingBatch.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/ResourceStream.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/DataModule.h"
#include "vcl/system/SysUtils.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

namespace {

bool HasForm(TClass Class)
{
    return FindResourceW(GetModuleHandleW(nullptr), TWideText(UpperCase(Class->ClassName())).c_str(), RT_RCDATA);
}

void LoadResources(TComponent* Instance, TClass RootAncestor)
{
    if (!InitInheritedComponent(Instance, RootAncestor))
        throw EResNotFound(AnsiString("Resource ") + Instance->ClassName() + " not found");
}

} // namespace

bool InitInheritedComponent(TComponent* Instance, TClass RootAncestor)
{
    bool Found = false;
    std::vector<TClass> Chain;
    for (TClass Class = Instance->ClassType(); Class && Class != RootAncestor; Class = Class->ClassParent())
        Chain.push_back(Class);
    TLoadingBatch Batch(Instance);
    for (size_t I = Chain.size(); I-- > 0;) {
        if (!HasForm(Chain[I]))
            continue;
        TResourceStream Form(nullptr, UpperCase(Chain[I]->ClassName()), "#10");
        ReadRootComponent(Form, Instance);
        Found = true;
    }
    Batch.Finish();
    return Found;
}

void LoadForm(TCustomForm* Form)
{
    Form->FFormState << fsCreating;
    LoadResources(Form, TCustomForm::StaticClass());
    Form->FinishCreation();
}

void LoadForm(TDataModule* Module)
{
    LoadResources(Module, TDataModule::StaticClass());
    Module->DoCreate();
}

void LoadForm(TComponent* Component)
{
    LoadResources(Component, TComponent::StaticClass());
}

#include "vcl/forms/LoadForm.h"

#include "vcl/classes/LoadingBatch.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/ResourceStream.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/DataModule.h"
#include "vcl/system/Scope.h"
#include "vcl/system/SysUtils.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <optional>

namespace {

bool HasResource(const AnsiString& Name, const wchar_t* Type)
{
    return FindResourceW(GetModuleHandleW(nullptr), TWideText(Name).c_str(), Type) != nullptr;
}

// Reads the form of that name. An error says on which line, if the build has put that beside the form.
void ReadForm(const AnsiString& Name, TComponent* Instance)
{
    TResourceStream Form(nullptr, Name, "#10");
    std::optional<TResourceStream> Lines;
    TReader Reader(&Form);
    if (HasResource(Name, L"FORMLINES"))
        Reader.Lines = TFormLines(Lines.emplace(nullptr, Name, "FORMLINES").View());
    Reader.ReadRootComponent(Instance);
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
        const AnsiString Name = UpperCase(Chain[I]->ClassName());
        if (!HasResource(Name, RT_RCDATA))
            continue;
        ReadForm(Name, Instance);
        Found = true;
    }
    Batch.Finish();
    return Found;
}

void LoadForm(TCustomForm* Form)
{
    Form->FFormState << fsCreating;
    TScopeExit Failed([Form] { Form->FFormState >> fsCreating; });
    LoadResources(Form, TCustomForm::StaticClass());
    Failed.Dismiss();
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

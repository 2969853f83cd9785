#include "vcl/forms/DataModule.h"

#include "vcl/classes/Reader.h"
#include "vcl/classes/Writer.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/RootChildren.h"
#include "vcl/forms/Screen.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Guard.h"

void TDataModule::Describe(TClassBuilder<TDataModule>& Class)
{
    Class.Value<&Self::OldCreateOrder>("OldCreateOrder");
    Class.Event<&Self::OnCreate>("OnCreate");
    Class.Event<&Self::OnDestroy>("OnDestroy");
}

TDataModule::TDataModule(TComponent* AOwner) : TComponent(AOwner)
{
    Screen->FDataModules.push_back(this);
    Application->BeingMade(this);
}

TDataModule::~TDataModule()
{
    if (Screen)
        std::erase(Screen->FDataModules, this);
}

void TDataModule::BeforeDestruction()
{
    SetState(csDestroying, true);
    DoDestroy();
    TComponent::BeforeDestruction();
}

void TDataModule::DoCreate()
{
    Guarded(this, [this] { OnCreate(this); });
}

void TDataModule::DoDestroy()
{
    Guarded(this, [this] { OnDestroy(this); });
}

void TDataModule::GetChildren(const TGetChildProc& Proc, TComponent* Root)
{
    GetRootChildren(this, Proc, Root);
}

template <auto Member>
void TDataModule::ReadPixels(TReader* Reader)
{
    this->*Member = Reader->ReadInteger();
}

template <auto Member>
void TDataModule::WritePixels(TWriter* Writer)
{
    Writer->WriteInteger(this->*Member);
}

void TDataModule::DefineProperties(TFiler& Filer)
{
    TComponent::DefineProperties(Filer);
    auto* Ancestor = As<TDataModule>(Filer.Ancestor);
    auto Define = [&]<auto Member>(const char* Name) {
        Filer.DefineProperty(Name, {this, &TDataModule::ReadPixels<Member>}, {this, &TDataModule::WritePixels<Member>},
                             this->*Member != (Ancestor ? Ancestor->*Member : 0));
    };
    Define.template operator()<&TDataModule::HorizontalOffset>("HorizontalOffset");
    Define.template operator()<&TDataModule::VerticalOffset>("VerticalOffset");
    Define.template operator()<&TDataModule::Height>("Height");
    Define.template operator()<&TDataModule::Width>("Width");
}
